#include "OperationsFixture.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

using OperationFaults = OperationsFixture;

/// An operation on the first video or its student.
struct Operation {
  const char* name;
  OperationResult (*run)(OperationsFixture& t);
};
const Operation kOperations[] = {
    {"rename video", [](OperationsFixture& t) { return t.Ops().RenameVideo(t.DL(), "new"); }},
    {"move video", [](OperationsFixture& t) { return t.Run(&LibraryOperations::MoveVideo, t.DL(), "Bob", "Sue"); }},
    {"quick launch",
     [](OperationsFixture& t) {
       t.library.host.answers = {true};
       return t.Run(&LibraryOperations::QuickLaunch, t.DL());
     }},
    {"rename student", [](OperationsFixture& t) { return t.Ops().RenameStudent("Ann", "Joe Doe", "new"); }},
    {"move student",
     [](OperationsFixture& t) { return t.Run(&LibraryOperations::MoveStudent, "Ann", "Joe Doe", "Bob"); }},
    {"import",
     [](OperationsFixture& t) {
       return t.Import({{"Carl", "Joe Doe", t.DL().path}});
     }},
};

/// The first video, its drawings and the profile are somewhere, nothing is left behind, and drawings never
/// stand beside another video than theirs.
void ExpectNothingLost(const OperationsFixture& t, const OperationResult& result) {
  int videos = 0;
  int drawings = 0;
  int profiles = 0;
  for (const auto& entry : fs::recursive_directory_iterator(t.library.Root())) {
    const fs::path path = entry.path();
    if (path.filename().string()[0] == '.') ADD_FAILURE() << "left behind: " << path;
    const std::string bytes = entry.is_regular_file() ? TempLibrary::Read(path.string()) : "";
    videos += bytes == "video 1";
    profiles += bytes.find("Age=44") != std::string::npos;
    if (path.extension() != ".ved") continue;
    ++drawings;
    EXPECT_EQ(bytes, "1XXXSXXX");
    // What a finished move could not take away is told of, and does no harm.
    const std::string video = TempLibrary::Read(fs::path(path).replace_extension(".avi").string());
    const bool told = result.Done() && !t.library.host.messages.empty();
    EXPECT_TRUE(video == "video 1" || (video.empty() && told)) << path;
  }
  // A copy of a move whose source could not be removed is there twice.
  EXPECT_GE(videos, 1) << result.Status();
  EXPECT_GE(drawings, 1) << result.Status();
  EXPECT_GE(profiles, 1) << result.Status();
  EXPECT_TRUE(result.Done() || t.Exists("Ann/Joe Doe/(001) DL.avi")) << result.Status();
}

/// Does each operation again and again, within a drive and between two, on a fresh library; `tryOne` does it,
/// lets the worst happen at the moment that it is given, and is false when the operation was over before that.
template <typename TryOne>
void TryEverything(OperationsFixture& t, TryOne tryOne) {
  for (const Operation& operation : kOperations) {
    for (const bool twoDrives : {false, true}) {
      int moment = 0;
      for (bool harmed = true; harmed && moment < 100; ++moment) {
        SCOPED_TRACE(operation.name + std::string(twoDrives ? " between drives" : "") + ", " + std::to_string(moment));
        fs::remove_all(t.library.Root());
        t.Fill();
        t.library.host.messages.clear();
        OperationResult result;
        harmed = tryOne(operation, twoDrives, moment, result);
        ExpectNothingLost(t, result);
      }
      EXPECT_LT(moment, 100) << operation.name;
    }
  }
}

TEST_F(OperationFaults, LoseNothingWhicheverCallToTheDiskFails) {
  TryEverything(*this, [this](const Operation& operation, bool twoDrives, int call, OperationResult& result) {
    FailingDisk failing(call);
    TwoDrives drives(failing);
    Use(twoDrives ? static_cast<IDisk&>(drives) : failing);
    result = operation.run(*this);
    EXPECT_TRUE(result.Done() || !library.host.messages.empty()) << "a failure is told";
    operations.reset();
    return failing.Failed();
  });
}

TEST_F(OperationFaults, LoseNothingWheneverTheUserCancels) {
  TryEverything(*this, [this](const Operation& operation, bool twoDrives, int step, OperationResult& result) {
    TwoDrives drives;
    Use(twoDrives ? static_cast<IDisk&>(drives) : RealDisk());
    bool cancelled = false;
    heard->onProgress = [&, left = step](const JobProgress&) mutable {
      if (left-- > 0) return;
      cancelled = true;
      Ops().Cancel();
    };
    result = operation.run(*this);
    EXPECT_FALSE(Ops().Busy());
    operations.reset();
    return cancelled;
  });
}

}  // namespace
}  // namespace kinalyx::test
