#include "platform/host/DriveWatch.h"

#include <gtest/gtest.h>

#include "support/TestHost.h"

namespace kinalyx::test {
namespace {

const std::string kShare = "/net/library";
const std::string kStick = "/media/stick";

struct DriveWatchTest : ::testing::Test {
  std::optional<int> Ask(const std::string& place) {
    return drives.Ask(place, [] { return 7; });
  }

  TestHost host;
  DriveWatch& drives = host.Drives();
};

TEST_F(DriveWatchTest, ADriveThatWasGivenUpIsNotWaitedForUntilItAnswers) {
  host.drivesHang = true;
  EXPECT_EQ(Ask(kShare), std::nullopt);
  ASSERT_EQ(host.waits.size(), 1u);
  EXPECT_NE(host.waits[0].find(kShare), std::string::npos) << host.waits[0];
  EXPECT_EQ(host.notes.size(), 1u) << "the log has it";

  host.drivesHang = false;  // for what is asked from now on
  EXPECT_EQ(Ask(kShare), std::nullopt) << "the first question still hangs there";
  EXPECT_FALSE(drives.Answers(kShare));
  EXPECT_TRUE(drives.Silent(kShare));
  EXPECT_EQ(Ask(kStick), 7) << "another drive has nothing to do with it";
  EXPECT_EQ(host.waits.size(), 1u);

  int told = 0;
  HostTimer timer = drives.WhenAnswers(kShare, [&] {
    ++told;
    timer.Stop();
  });
  host.Advance(5000);
  EXPECT_EQ(told, 0);
  host.DrivesAnswer();
  host.Advance(5000);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(Ask(kShare), 7);
  EXPECT_EQ(host.waits.size(), 1u);
}

TEST_F(DriveWatchTest, TheUserCanHaveItTriedAgain) {
  host.drivesHang = true;
  EXPECT_EQ(Ask(kShare), std::nullopt);
  drives.TryAgain(kShare);
  EXPECT_EQ(Ask(kShare), std::nullopt);
  EXPECT_EQ(host.waits.size(), 2u);

  drives.TryAgain(kShare);
  host.drivesHang = false;
  EXPECT_EQ(Ask(kShare), 7) << "what hangs from before is in nobody's way";
}

TEST_F(DriveWatchTest, WhoWaitsLongEnoughGetsTheAnswerAndNothingIsAskedTwiceMeanwhile) {
  host.drivesHang = true;
  host.stopsWaiting = false;
  int turns = 0;
  host.onDoEvents = [&] {
    EXPECT_EQ(Ask(kShare), std::nullopt) << "from a handler while the first one waits";
    EXPECT_EQ(Ask(kStick), std::nullopt) << "nor does a second drive get a second card";
    if (++turns == 3) host.DrivesAnswer();
  };
  EXPECT_EQ(Ask(kShare), 7);
  EXPECT_EQ(turns, 3);
  EXPECT_EQ(host.waits.size(), 1u);
  EXPECT_EQ(Ask(kStick), 7);
}

}  // namespace
}  // namespace kinalyx::test
