#include "platform/files/Folders.h"

#include <cstdlib>
#include <unistd.h>

#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

using Names = std::vector<std::string>;

class Environment {
 public:
  Environment(const char* name, const std::string& value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    ::setenv(name, value.c_str(), 1);
  }
  ~Environment() { old_.empty() ? ::unsetenv(name_) : ::setenv(name_, old_.c_str(), 1); }

 private:
  const char* name_;
  std::string old_;
};

TEST(Folders, ListAsAReaderSorts) {
  TempFolder folder;
  for (const char* name : {"(10) swing.avi", "(9) swing.AVI", "(009) iron.avi", "b.avi", "A.avi", "\xC3\x89z.avi",
                           "\xC3\xA9t.avi", "e.avi", "f.avi", ".hidden.avi", "notes.txt", ".avi", "noextavi"})
    folder.Put(name, "");
  for (const char* name : {"Tom", "anna", "folder.avi", ".trash", "Student 2", "Student 10"})
    std::filesystem::create_directory(folder.Path(name));
  std::filesystem::create_directory_symlink(folder.Path("Tom"), folder.Path("link"));
  std::filesystem::create_symlink(folder.Path("b.avi"), folder.Path("c.avi"));
  std::filesystem::create_symlink(folder.Path("gone"), folder.Path("dangling.avi"));

  EXPECT_EQ(ListFiles(folder.Path(), ".avi"),
            (Names{"(009) iron.avi", "(9) swing.AVI", "(10) swing.avi", "A.avi", "b.avi", "c.avi", "e.avi",
                   "\xC3\xA9t.avi", "\xC3\x89z.avi", "f.avi"}));
  EXPECT_EQ(ListFolders(folder.Path()), (Names{"anna", "folder.avi", "link", "Student 2", "Student 10", "Tom"}));
  EXPECT_TRUE(ListFolders(folder.Path("none")).empty());
  EXPECT_TRUE(ListFiles(folder.Path("b.avi"), ".avi").empty());
}

TEST(Folders, TellFilesFromFolders) {
  TempFolder folder;
  const std::string file = folder.Put("file", "12345");
  EXPECT_TRUE(MakeFolder(folder.Path("a/b/c")));
  EXPECT_TRUE(MakeFolder(folder.Path("a/b/c")));
  EXPECT_FALSE(MakeFolder(folder.Path("file/below")));
  EXPECT_TRUE(FileExists(file));
  EXPECT_FALSE(FileExists(folder.Path("a")));
  EXPECT_TRUE(dirExists(folder.Path("a")));
  EXPECT_FALSE(dirExists(file));
  EXPECT_EQ(FileSize(file), 5);
  EXPECT_EQ(FileSize(folder.Path("none")), std::nullopt);
  EXPECT_GT(FreeBytes(folder.Path("not/yet/there")), 0);

  EXPECT_FALSE(KillFile(folder.Path("a"))) << "folders are not files";
  EXPECT_TRUE(dirExists(folder.Path("a/b/c")));
  EXPECT_TRUE(KillFile(file));
  EXPECT_TRUE(KillFile(file));
  EXPECT_FALSE(FileExists(file));
}

TEST(Folders, JoinAndTakeApart) {
  for (const auto& [folder, name, joined] :
       {std::tuple{"/a", "b", "/a/b"}, {"/a/", "b", "/a/b"}, {"/a/", "/b", "/a/b"}, {"", "b", "b"}, {"/", "b", "/b"}})
    EXPECT_EQ(JoinPath(folder, name), joined);
  for (const auto& [path, last] : {std::pair{"/a/b.avi", "b.avi"}, {"/a/b/", "b"}, {"b", "b"}, {"/", "/"}})
    EXPECT_EQ(LastName(path), last);
}

TEST(Folders, DocumentsAreWhereTheDesktopSaysSo) {
  TempFolder home;
  const Environment homeIs("HOME", home.Path());
  const Environment configIs("XDG_CONFIG_HOME", home.Path("settings"));
  EXPECT_EQ(DocumentsFolder(), home.Path("Documents"));
  EXPECT_TRUE(dirExists(home.Path("Documents")));

  std::filesystem::create_directory(home.Path("settings"));
  home.Put("settings/user-dirs.dirs",
           "# folders\nXDG_MUSIC_DIR=\"$HOME/Music\"\nXDG_DOCUMENTS_DIR=\"$HOME/Dokumente/\"\n");
  EXPECT_EQ(DocumentsFolder(), home.Path("Dokumente"));
  EXPECT_TRUE(dirExists(home.Path("Dokumente")));

  home.Put("settings/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"relative\"\n");
  EXPECT_EQ(DocumentsFolder(), home.Path("Documents"));
}

}  // namespace
}  // namespace kinalyx::test
