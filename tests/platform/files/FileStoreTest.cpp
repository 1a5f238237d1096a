#include "platform/files/FileStore.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <thread>

#include <sys/stat.h>

#include "support/TempFolder.h"
#include "support/TestDisks.h"

namespace kinalyx::test {
namespace {

/// Saves with every call to the disk failing in turn, until a save made no more calls; returns how many it made.
int FailEachCall(bool replaces) {
  int calls = 0;
  for (bool failed = true; failed; calls += failed) {
    TempFolder folder;
    const std::string path = replaces ? folder.Put("profile.prf", "the old bytes") : folder.Path("profile.prf");
    FailingDisk disk(calls);
    const Outcome saved = WriteWholeFile(path, std::string_view("the new bytes"), disk);
    const bool there = replaces || saved;
    EXPECT_EQ(folder.FileCount(), there ? 1u : 0u) << "call " << calls;
    if (there) {
      EXPECT_EQ(folder.Get("profile.prf"), saved ? "the new bytes" : "the old bytes") << "call " << calls;
    }
    EXPECT_NE(saved.Why().empty(), !saved);
    failed = disk.Failed();
  }
  return calls;
}

TEST(FileStore, EachFailureLeavesTheOldFileOrTheNewOne) {
  EXPECT_EQ(FailEachCall(true), 7) << "open, three writes, flush, close, rename";
  EXPECT_EQ(FailEachCall(false), 8) << "a new name is flushed with its folder";
}

TEST(FileStore, ManyWritersAtOnceLeaveWholeFilesToEveryReader) {
  const TempFolder folder;
  const std::string path = folder.Put("config10.ini", std::string(1000, 'a'));
  std::atomic<int> writing = 3;
  std::atomic<int> refused = 0;
  std::vector<std::thread> writers;
  for (const char letter : {'a', 'b', 'c'}) {
    writers.emplace_back([&, letter] {
      HastyDisk disk;
      const std::string text(1000 * static_cast<std::size_t>(letter - 'a' + 1), letter);
      for (int i = 0; i < 300; ++i) refused += !WriteWholeFile(path, text, disk);
      --writing;
    });
  }
  int torn = 0;
  do {
    const std::string text = folder.Get("config10.ini");
    torn += text.empty() || text != std::string(1000 * static_cast<std::size_t>(text[0] - 'a' + 1), text[0]);
  } while (writing > 0);
  for (std::thread& writer : writers) writer.join();
  EXPECT_EQ(torn, 0);
  EXPECT_EQ(refused, 0);
  EXPECT_EQ(folder.FileCount(), 1u);
}

TEST(FileStore, ASaveSweepsUpAfterThoseThatWereKilled) {
  const TempFolder folder;
  folder.Put(".swing.ved.0123456789abcdef.part", "half");
  folder.Put(".swing.ved.new", "somebody's own");
  ImpatientDisk disk;
  EXPECT_TRUE(WriteWholeFile(folder.Path("swing.ved"), std::string_view("whole"), disk));
  EXPECT_EQ(folder.FileCount(), 2u);
  EXPECT_EQ(folder.Get("swing.ved"), "whole");
}

TEST(FileStore, TreatsOddTargetsAsAnEditorWould) {
  TempFolder folder;
  const auto write = [&folder](std::string_view name, std::string_view text) {
    const Outcome written = WriteWholeFile(folder.Path(name), text);
    EXPECT_NE(written.Why().empty(), !written);
    return static_cast<bool>(written);
  };
  ::chmod(folder.Put("read-only", "kept").c_str(), 0444);
  EXPECT_FALSE(write("read-only", "new"));
  EXPECT_EQ(folder.Get("read-only"), "kept");

  const std::string secret = folder.Put("private", "old");
  ::chmod(secret.c_str(), 0600);
  EXPECT_TRUE(write("private", "new"));
  struct stat info {};
  ::stat(secret.c_str(), &info);
  EXPECT_EQ(info.st_mode & 0777, 0600u);

  std::filesystem::create_directory(folder.Path("sub"));
  folder.Put("sub/target", "old");
  std::filesystem::create_symlink("sub/target", folder.Path("link"));
  EXPECT_TRUE(write("link", "through the link"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("link")));
  EXPECT_EQ(folder.Get("sub/target"), "through the link");

  EXPECT_FALSE(write("sub", "x") || write("none/file", "x"));
  EXPECT_TRUE(write(std::string(250, 'n'), "long name") && write("empty", ""));
  EXPECT_EQ(std::filesystem::file_size(folder.Path("empty")), 0u);
}

TEST(FileStore, ReadsOnlyOrdinaryFilesOfBearableSize) {
  TempFolder folder;
  const std::string ten = folder.Put("ten", "0123456789");
  EXPECT_EQ(ReadWholeFile(ten, 10)->size(), 10u);
  EXPECT_FALSE(ReadWholeFile(ten, 9));
  ASSERT_EQ(::mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  for (const std::string& none : {folder.Path("none"), folder.Path(), folder.Path("pipe")})
    EXPECT_FALSE(ReadWholeFile(none)) << "must neither wait nor read";
  EXPECT_EQ(ReadTextFile(folder.Put("old",
                                    "Gr\xFC\xDF"
                                    "e")),
            "Gr\xC3\xBC\xC3\x9F"
            "e");
}

}  // namespace
}  // namespace kinalyx::test
