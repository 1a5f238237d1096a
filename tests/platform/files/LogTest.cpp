#include "platform/files/Log.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <thread>

#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"
#include "support/TempFolder.h"

namespace kinalyx {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

constexpr int kLongWaitMs = 30'000;

TEST(Log, HoldsOneLineAMessageAndNoPaths) {
  const test::TempFolder folder;
  const std::string path = folder.Path("kinalyx.log");
  {
    Log log(path);
    EXPECT_FALSE(FileExists(path));  // nothing has happened yet
    log.Write(LogLevel::Warning, "save", "refused:\nNo space left on device\n");
    log.Write(LogLevel::Error, "video", "cannot read '/srv/Anna Lindqvist/O'Brien.avi': I/O error");
    ASSERT_TRUE(log.Flush(kLongWaitMs));
  }
  EXPECT_THAT(*ReadTextFile(path),
              MatchesRegex("[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9:]{8} warning save: refused: No space left "
                           "on device\n[^\n]* error video: cannot read '...': I/O error\n"));

  EXPECT_EQ(WithoutPaths("/srv/Anna"), "...");
  EXPECT_EQ(WithoutPaths("open(\"/a/b c\", 3) and /x/y z.avi: gone"), "open(\"...\", 3) and ...");
  EXPECT_EQ(WithoutPaths("file:/a/b"), "file:...");
  EXPECT_EQ(WithoutPaths("24/30 frames, 1 / 2, I/O, video/x-raw /"), "24/30 frames, 1 / 2, I/O, video/x-raw /");
}

TEST(Log, StaysWithinItsLimitAndKeepsOneOldFile) {
  const test::TempFolder folder;
  const std::string path = folder.Path("kinalyx.log");
  Log log(path, 1000);
  for (int i = 0; i < 100; ++i) {
    log.Write(LogLevel::Note, "part" + std::to_string(i % 10), "message " + std::to_string(i));
    ASSERT_TRUE(log.Flush(kLongWaitMs));
  }
  EXPECT_LE(FileSize(path).value_or(-1), 1000);
  EXPECT_GT(FileSize(path + ".old").value_or(-1), 500);
  EXPECT_EQ(folder.FileCount(), 2u);
  EXPECT_THAT(*ReadTextFile(path), HasSubstr("message 99\n"));
  EXPECT_THAT(*ReadTextFile(path + ".old"), Not(HasSubstr("message 0\n")));
}

TEST(Log, TakesMessagesFromAllThreadsAndNoFlood) {
  const test::TempFolder folder;
  const std::string path = folder.Path("kinalyx.log");
  Log log(path);
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([&log, t] {
      for (int i = 0; i < 500; ++i) log.Write(LogLevel::Warning, "thread" + std::to_string(t), std::to_string(i / 2));
    });
  }
  for (auto& thread : threads) thread.join();
  ASSERT_TRUE(log.Flush(kLongWaitMs));
  const std::string text = *ReadTextFile(path);
  const auto lines = std::count(text.begin(), text.end(), '\n');
  EXPECT_GE(lines, 4 * 30);
  EXPECT_LE(lines, 2 * 4 * 30);  // the minute may have changed meanwhile
}

TEST(Log, IsNoFaultWhenItCannotBeWritten) {
  const test::TempFolder folder;
  Log log(folder.Path("missing/kinalyx.log"));
  log.Write(LogLevel::Error, "save", "refused");
  EXPECT_TRUE(log.Flush(kLongWaitMs));
  EXPECT_FALSE(FileExists(folder.Path("missing/kinalyx.log")));
}

}  // namespace
}  // namespace kinalyx
