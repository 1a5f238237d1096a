#pragma once

#include <string>
#include <vector>

#include "library/OpenVideo.h"

namespace kinalyx::test {

/// An analysis section that opens whatever it is asked to.
class FakeOpener final : public IOpenVideo {
 public:
  std::vector<std::string> opened;
  std::vector<std::string> family;
  int undone = 0;
  int done = 0;

  bool OpenVideo(const std::string& path) override {
    opened.push_back(path);
    return true;
  }
  int OpenFamily(const std::vector<std::string>& paths) override {
    family = paths;
    return static_cast<int>(paths.size());
  }
  int PickAndOpen() override { return 2; }
  void UndoLastOpen() override { ++undone; }
  void OpenVideoDone() override { ++done; }
};

}  // namespace kinalyx::test
