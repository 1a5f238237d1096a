#include "workspace/compare/LockedVideos.h"

#include <gtest/gtest.h>

#include "AnalysisStage.h"

namespace kinalyx {
namespace {

using test::AnalysisStage;
using test::RawVideo;

class LockedVideosTest : public testing::Test {
 protected:
  /// Puts videos of these lengths at these positions into slots 1, 2 and so on.
  void Open(const std::vector<std::pair<int, int>>& videos) {
    int slot = 0;
    for (const auto& [frames, position] : videos) ASSERT_TRUE(stage_.Open(++slot, RawVideo(frames), position));
  }
  std::vector<int> Positions(int slots) {
    std::vector<int> positions;
    for (int slot = 1; slot <= slots; ++slot) positions.push_back(stage_.At(slot));
    return positions;
  }

  AnalysisStage stage_{"4"};
  LockedVideos& lock_ = stage_.Modes().Locks();
};

TEST_F(LockedVideosTest, RangesReachAsFarAsTheShortestSide) {
  const struct {
    int frames1, at1, frames2, at2;
    std::array<int, 4> range;
  } cases[] = {
      {100, 20, 50, 30, {0, 38, 10, 48}},
      {100, 0, 50, 30, {0, 18, 30, 48}},  // nothing before slot 1: neither can go back
      {30, 29, 30, 10, {19, 28, 0, 9}},   // nothing after slot 1: the highest lies below where it stands
      {30, 12, 30, 12, {0, 28, 0, 28}},
  };
  for (const auto& pair : cases) {
    Open({{pair.frames1, pair.at1}, {pair.frames2, pair.at2}});
    ASSERT_TRUE(lock_.DualLock(1));
    EXPECT_EQ(lock_.LockRangeA, pair.range);
    lock_.DualUnlock(1);
  }
}

TEST_F(LockedVideosTest, PairStepsUpToItsBoundsAndNoFurther) {
  Open({{100, 2}, {50, 40}});
  stage_.Stage().CurrentWindow = 2;
  ASSERT_TRUE(lock_.ToggleLock());
  EXPECT_TRUE(lock_.IsLocked(1) && !lock_.IsLocked(3));
  for (int step = 0; step < 5; ++step) lock_.MoveTogether(DualMove::Back);
  EXPECT_EQ(Positions(2), (std::vector{0, 38}));
  for (int step = 0; step < 20; ++step) lock_.MoveTogether(DualMove::Forward);
  EXPECT_EQ(Positions(2), (std::vector{10, 48}));  // one short of the last picture of slot 2
  lock_.MoveTogether(DualMove::Rewind);
  EXPECT_EQ(Positions(2), (std::vector{0, 38}));

  // The shared bar takes both along and stops at the bounds.
  lock_.DualControlScroll(2, 44);
  EXPECT_EQ(Positions(2), (std::vector{6, 44}));
  lock_.DualControlScroll(2, 1000);
  EXPECT_EQ(Positions(2), (std::vector{10, 48}));
  EXPECT_EQ(lock_.BoundsOf(2)->lowest, 38);
  EXPECT_EQ(lock_.BoundsOf(2)->highest, 48);

  lock_.StepPartners(2, 1);
  EXPECT_EQ(Positions(2), (std::vector{11, 48}));
}

TEST_F(LockedVideosTest, PairLockMovesOnlyFromItsOwnWindows) {
  Open({{20, 5}, {20, 6}, {20, 7}, {20, 8}});
  ASSERT_TRUE(lock_.DualLock(1));
  stage_.Stage().CurrentWindow = 3;
  lock_.DualControlStep(true);  // slot 3 alone
  EXPECT_EQ(Positions(4), (std::vector{5, 6, 8, 8}));
  ASSERT_TRUE(lock_.DualLock(2));
  lock_.DualControlStep(false);
  EXPECT_EQ(Positions(4), (std::vector{5, 6, 7, 7}));
  lock_.DualUnlock(3);
  EXPECT_TRUE(lock_.IsLocked(1) && !lock_.IsLocked(3));
}

TEST_F(LockedVideosTest, GroupHoldsAllFourAndReplacesThePairs) {
  Open({{20, 5}, {20, 6}, {20, 2}});
  EXPECT_FALSE(stage_.Commands().Run("LockAll")) << "slot 4 is empty";
  EXPECT_FALSE(lock_.DualLock(2));
  EXPECT_FALSE(lock_.IsLocked(1) || lock_.IsLocked(3));
  ASSERT_TRUE(stage_.Open(4, RawVideo(30), 16));
  ASSERT_TRUE(lock_.DualLock(1));
  stage_.Stage().SetScreen(2);
  EXPECT_FALSE(lock_.LockAll()) << "two of them would move unseen";
  stage_.Stage().SetScreen(8);
  ASSERT_TRUE(stage_.Commands().Run("LockAll"));
  EXPECT_EQ(lock_.DualLocked, (std::array{false, false, true}));
  EXPECT_EQ(lock_.LockRangeA, (std::array{3, 17, 4, 18}));
  EXPECT_EQ(lock_.LockRangeB, (std::array{0, 14, 14, 28}));
  stage_.Stage().CurrentWindow = 4;
  std::vector<int> order;
  stage_.signalled = [&](int slot) { order.push_back(slot); };
  lock_.DualControlStep(true);
  EXPECT_EQ(order, (std::vector{4, 1, 2, 3}));  // the current window first
  EXPECT_EQ(Positions(4), (std::vector{6, 7, 3, 17}));
  // A path that is traced on one of them takes the others along.
  stage_.Key(kKeyF1 + int{kSwingPath});
  stage_.Click(4, 50, 50);
  EXPECT_EQ(Positions(4), (std::vector{7, 8, 4, 18}));
  ASSERT_TRUE(stage_.Commands().Run("LockAll"));
  EXPECT_FALSE(lock_.IsLocked(1) || lock_.IsLocked(4));
}

TEST_F(LockedVideosTest, LockIsRefusedOrEndsWithItsVideos) {
  Open({{20, 5}});
  EXPECT_FALSE(lock_.CanLock() || lock_.ToggleLock());
  ASSERT_TRUE(stage_.Open(2, RawVideo(20), 6));
  stage_.Stage().SetScreen(1);
  EXPECT_FALSE(lock_.CanLock());  // one window shows no pair
  stage_.Stage().SetScreen(2);
  ASSERT_TRUE(lock_.ToggleLock());
  // Split fields keep it where the videos stand.
  stage_.Stage().CurrentWindow = 2;
  stage_.Videos().ToggleSplitFields();
  EXPECT_EQ(Positions(2), (std::vector{5, 12}));
  EXPECT_EQ(lock_.LockRangeA, (std::array{0, 18, 7, 25}));
  lock_.PlayTogether();
  ASSERT_TRUE(stage_.Videos().CloseVideo(2));
  EXPECT_FALSE(lock_.IsLocked(1) || lock_.PlayingTogether());
  stage_.host.Advance(1000);  // nothing of the play is left behind
  EXPECT_EQ(stage_.At(1), 5);
}

TEST_F(LockedVideosTest, PlayTogetherKeepsTheOffsetAtEverySpeed) {
  Open({{60, 10}, {60, 25}});
  ASSERT_TRUE(lock_.ToggleLock());
  for (const int percent : {100, 30, 250}) {
    lock_.DualControlRewind();
    ASSERT_TRUE(lock_.setTogetherSpeed(percent));
    int widest = 0;
    stage_.signalled = [&](int slot) {
      if (slot == 2) widest = std::max(widest, std::abs(stage_.At(2) - stage_.At(1) - 15));
    };
    lock_.PlayTogether();
    stage_.host.Advance(200);
    const int wanted = 200 * 30 * percent / 100 / 1000;  // 30 pictures a second
    EXPECT_EQ(stage_.At(1), wanted) << percent << " percent";
    EXPECT_EQ(stage_.At(2), wanted + 15);
    EXPECT_EQ(widest, 0);
    lock_.StopTogether();
    stage_.signalled = nullptr;
  }
  EXPECT_FALSE(lock_.setTogetherSpeed(0));
}

TEST_F(LockedVideosTest, VideosOfDifferentRatesGoByTheTime) {
  Open({{100, 20}, {50, 10}});
  stage_.Stage().At(1).data.Study.TrueRate = 60;  // the other has 30
  lock_.HoldByTime(true);
  ASSERT_TRUE(lock_.ToggleLock());
  EXPECT_TRUE(lock_.RatesDiffer(1) && lock_.IsHeldByTime(2));
  EXPECT_EQ(lock_.LockRangeA, (std::array{0, 98, 0, 49}));  // 1.3 s after, which is where slot 2 ends
  lock_.MoveTogether(DualMove::Forward);
  EXPECT_EQ(Positions(2), (std::vector{21, 10}));
  lock_.MoveTogether(DualMove::Forward);
  EXPECT_EQ(Positions(2), (std::vector{22, 11}));
  lock_.DualControlScroll(2, 30);
  EXPECT_EQ(Positions(2), (std::vector{60, 30}));
  lock_.DualControlScroll(1, 1000);
  EXPECT_EQ(Positions(2), (std::vector{98, 49}));
  lock_.MoveTogether(DualMove::Forward);
  EXPECT_EQ(Positions(2), (std::vector{98, 49}));
  lock_.MoveTogether(DualMove::Rewind);
  EXPECT_EQ(Positions(2), (std::vector{0, 0}));

  // Each from its own window at its own pace: the file of slot 1 plays at 30 a second, half as fast as it was.
  lock_.PlayTogether(1, true);
  stage_.host.Advance(500);
  EXPECT_EQ(Positions(2), (std::vector{15, 7}));
  lock_.StopTogether();
  lock_.RewindTogether(1);
  lock_.PlayTogether(2, true);
  stage_.host.Advance(500);
  EXPECT_EQ(Positions(2), (std::vector{30, 15}));

  // Without it, or once both are known to have one rate, they go by their pictures, from where they stand.
  lock_.HoldByTime(false);
  EXPECT_FALSE(lock_.PlayingTogether() || lock_.IsHeldByTime(1));
  lock_.MoveTogether(DualMove::Forward);
  EXPECT_EQ(Positions(2), (std::vector{31, 16}));
  lock_.HoldByTime(true);
  stage_.Stage().At(1).data.Study.TrueRate = 0;
  stage_.Stage().News().Note(kVideoChanged);
  stage_.EndTurn();
  EXPECT_FALSE(lock_.IsHeldByTime(1) || lock_.RatesDiffer(1));
}

TEST_F(LockedVideosTest, PlayTogetherEndsOnTheLastOrBeginsAnew) {
  Open({{30, 0}, {24, 0}});
  ASSERT_TRUE(lock_.ToggleLock());  // 0 to 22 both
  lock_.PlayTogether();
  stage_.host.now += 500;  // a slow machine skips, but shows the last
  stage_.host.Advance(5000);
  EXPECT_EQ(Positions(2), (std::vector{22, 22}));
  EXPECT_FALSE(lock_.PlayingTogether());

  lock_.setTogetherRepeat(true);
  lock_.PlayTogether();  // from the end it starts at the first
  EXPECT_EQ(Positions(2), (std::vector{0, 0}));
  stage_.host.Advance(1010);
  EXPECT_TRUE(lock_.PlayingTogether());
  EXPECT_EQ(Positions(2), (std::vector{7, 7}));  // 23 positions, then seven more

  stage_.MP(2).Play(0, 20);  // a video set going by its own control ends the common play
  stage_.host.Advance(100);
  EXPECT_FALSE(lock_.PlayingTogether());
  EXPECT_TRUE(stage_.MP(2).IsPlaying());
}

}  // namespace
}  // namespace kinalyx
