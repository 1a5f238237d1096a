#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "library/LibraryFakes.h"
#include "library/LibraryOperations.h"
#include "library/TempLibrary.h"
#include "platform/files/Folders.h"
#include "support/TestDisks.h"

namespace kinalyx::test {

using Videos = std::vector<LibraryVideo>;

/// A library with two instructors, and an analysis section in which some videos are open.
class OperationsFixture : public testing::Test {
 public:
  OperationsFixture() { Fill(); }

  void Fill() {
    library.File("Ann/Joe Doe/(001) DL.avi", "video 1");
    library.File("Ann/Joe Doe/(001) DL.ved", "1XXXSXXX");
    library.File("Ann/Joe Doe/(002) FO.avi", "video 2");
    library.File("Ann/Joe Doe/lessons/First.avi", "lesson");
    library.File("Ann/Joe Doe/profile.prf", "[Profile]\nName=Joe Doe\nAge=44\n");
    library.File("Ann/Joe Doe/profile.txt", "keeps his head down\r\n");
    library.File("Bob/Sue/Swing.avi", "Sue's");
  }

  LibraryOperations& Ops() {
    if (!operations) {
      operations =
          std::make_unique<LibraryOperations>(library.host, library.settings, analysis,
                                              LibraryOperations::Environment{JobRunner::On::HostTimer, disk, trash});
    }
    return *operations;
  }
  /// From now on the operations work on another disk.
  void Use(IDisk& other) {
    operations.reset();
    disk = &other;
  }

  LibraryVideo Video(const std::string& instructor, const std::string& student, const std::string& name) {
    const std::string folder =
        instructor == kGeneralFolder ? "" : instructor + "/" + (student.empty() ? "" : student + "/");
    return {instructor, student, library.Path(folder + name + ".avi")};
  }
  LibraryVideo DL() { return Video("Ann", "Joe Doe", "(001) DL"); }
  LibraryVideo FO() { return Video("Ann", "Joe Doe", "(002) FO"); }

  /// Does a long operation to its end.
  template <typename... Arguments>
  OperationResult Run(auto operation, const Arguments&... arguments) {
    heard->ended.reset();
    (Ops().*operation)(arguments..., heard);
    return Ended();
  }
  OperationResult Import(const Videos& videos, const ImportTarget& loose = {}) {
    heard->ended.reset();
    Ops().ImportVideos(videos, heard, loose);
    return Ended();
  }
  std::string Message() const { return library.host.messages.empty() ? "" : library.host.messages.back(); }
  bool Told(const std::string& words) const { return Message().find(words) != std::string::npos; }
  bool Exists(const std::string& name) const { return EntryExists(library.Path(name)); }
  std::string Read(const std::string& name) const { return TempLibrary::Read(library.Path(name)); }

  TempLibrary library;
  IDisk* disk = &RealDisk();
  ITrash* trash = nullptr;
  FakeAnalysis analysis;
  std::set<std::string>& open = analysis.open;
  const std::shared_ptr<HeardOperation> heard = std::make_shared<HeardOperation>();
  std::unique_ptr<LibraryOperations> operations;

 private:
  OperationResult Ended() {
    for (int turn = 0; !heard->ended && turn < 10000; ++turn) library.host.Advance(1);
    EXPECT_TRUE(heard->ended) << "the operation never ends";
    return heard->ended.value_or(OperationResult());
  }
};

}  // namespace kinalyx::test
