#include "platform/host/OneProgram.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <future>
#include <string>
#include <vector>

#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

class OneProgramTest : public ::testing::Test {
 protected:
  OneProgramTest() { qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(folder_.Path())); }
  ~OneProgramTest() override { qunsetenv("XDG_RUNTIME_DIR"); }

  template <class Done>
  static void PumpUntil(Done done) {
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < 10'000) QApplication::processEvents(QEventLoop::AllEvents, 10);
  }

  int argc_ = 1;
  std::string name_ = "test";
  char* argv_[2] = {name_.data(), nullptr};
  TempFolder folder_;
  QApplication application_{argc_, argv_};
};

TEST_F(OneProgramTest, ASecondStartHandsItsFilesToTheFirst) {
  OneProgram first("library");
  ASSERT_TRUE(first.First());
  EXPECT_TRUE(OneProgram("another library").First());
  OneProgram second("library");
  ASSERT_FALSE(second.First());

  // Told before the first serves, as by two clicks on the desktop while the splash is up.
  const std::vector<std::string> early{folder_.Path() + "/Łódź 水泳.mp4", "/x/second.avi"};
  auto told = std::async(std::launch::async, [&] { return second.Tell({early, "token"}, 10'000); });
  std::vector<StartWish> taken;
  PumpUntil([&] { return told.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
  ASSERT_EQ(told.get(), OneProgram::Told::Taken);
  first.Serve([&](const StartWish& wish) { taken.push_back(wish); });
  ASSERT_EQ(taken.size(), 1U);
  EXPECT_EQ(taken[0].paths, early);
  EXPECT_EQ(taken[0].token, "token");

  // With nothing to open the window only comes forward.
  told = std::async(std::launch::async, [&] { return second.Tell({}, 10'000); });
  PumpUntil([&] { return taken.size() == 2; });
  ASSERT_EQ(taken.size(), 2U);
  EXPECT_TRUE(taken[1].paths.empty());
  EXPECT_EQ(told.get(), OneProgram::Told::Taken);

  // A restart begins before the old program has gone.
  first.Release();
  EXPECT_TRUE(OneProgram("library").First());
}

TEST_F(OneProgramTest, AFirstThatHangsIsToldOfAndWhatACrashLeftIsNoProgram) {
  {
    const OneProgram hangs("library");
    const OneProgram second("library");
    ASSERT_FALSE(second.First());
    EXPECT_EQ(second.Tell({{"/a.avi"}, {}}, 300), OneProgram::Told::NoAnswer);
  }
  // Its lock went with it; its socket may lie there still, and others may write rubbish to it.
  OneProgram next("library");
  EXPECT_TRUE(next.First());
}

}  // namespace
}  // namespace kinalyx::test
