#include "platform/files/Trash.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

/// A user who has never had a trash, for as long as the object lives.
class NewUser {
 public:
  explicit NewUser(const std::string& home) : before_(std::getenv("HOME") ? std::getenv("HOME") : "") {
    ::setenv("HOME", home.c_str(), 1);
    ::unsetenv("XDG_DATA_HOME");
  }
  ~NewUser() { ::setenv("HOME", before_.c_str(), 1); }

 private:
  std::string before_;
};

TEST(DesktopTrash, TakesFilesAndFoldersOfAUserWhoHasNeverHadOne) {
  const TempFolder folder;
  const NewUser user(folder.Path("home"));
  fs::create_directories(folder.Path("home"));
  fs::create_directories(folder.Path("Tom/lessons"));
  std::ofstream(folder.Path("Tom/lessons/First.avi")) << "lesson";
  std::ofstream(folder.Path("swing.avi")) << "video";
  EXPECT_TRUE(DesktopTrash().Has(folder.Path("Tom")));
  EXPECT_TRUE(DesktopTrash().Take(folder.Path("swing.avi")));
  EXPECT_TRUE(DesktopTrash().Take(folder.Path("Tom")));
  EXPECT_FALSE(fs::exists(folder.Path("Tom")) || fs::exists(folder.Path("swing.avi")));
  const std::string trash = folder.Path("home/.local/share/Trash/");
  EXPECT_TRUE(fs::exists(trash + "files/Tom/lessons/First.avi") && fs::exists(trash + "info/swing.avi.trashinfo"));
  EXPECT_FALSE(DesktopTrash().Take(folder.Path("Tom")));
}

}  // namespace
}  // namespace kinalyx::test
