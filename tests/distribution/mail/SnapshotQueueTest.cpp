#include "distribution/mail/SnapshotQueue.h"

#include <gmock/gmock.h>

#include "MailFakes.h"
#include "distribution/mail/SnapshotDesk.h"
#include "platform/paint/Blend.h"
#include "platform/paint/ImageFiles.h"

namespace kinalyx::test {
namespace {

using testing::ElementsAre;

struct SnapshotQueueTest : testing::Test, MailStage {};

TEST_F(SnapshotQueueTest, PicturesWaitInTheirOrderAndGapsArePassedOver) {
  Shoot(3);
  EXPECT_THAT(queue.Pictures(), ElementsAre(File(1), File(2), File(3)));
  const auto loaded = LoadPicture(File(3));
  ASSERT_TRUE(loaded);
  EXPECT_EQ(loaded->Width(), 60);
  EXPECT_GT(queue.Bytes(), 0);
  std::filesystem::remove(File(2));  // by hand
  EXPECT_EQ(queue.Count(), 2);
  ASSERT_TRUE(queue.Delete(File(1)));
  Shoot(1);
  EXPECT_THAT(queue.Pictures(), ElementsAre(File(3), File(4))) << "no picture takes the place of one that waits";
  EXPECT_TRUE(queue.ClearEmailQueue());
  EXPECT_EQ(queue.Count(), 0);
  Shoot(1);
  EXPECT_THAT(queue.Pictures(), ElementsAre(File(1)));
}

TEST_F(SnapshotQueueTest, TheHundredAndFirstIsTold) {
  Shoot(SnapshotQueue::kMost);
  const auto more = queue.Add(RowsOf(Surface(8, 8)));
  EXPECT_EQ(more.Kind(), Fault::Refused);
  EXPECT_THAT(more.Why(), testing::StartsWith("100 pictures"));
  EXPECT_EQ(queue.Count(), 100);
  ASSERT_TRUE(queue.Delete(File(7)));
  Shoot(1);
  EXPECT_EQ(queue.Pictures().back(), File(7)) << "when the numbers have run out, gaps serve";
}

TEST_F(SnapshotQueueTest, TwoWindowsKeepTheirPicturesApart) {
  Shoot(2);
  SnapshotQueue other(folder.Path("email"));
  ASSERT_TRUE(other.Add(RowsOf(Surface(8, 8))));
  Shoot(1);
  EXPECT_THAT(other.Pictures(), ElementsAre(File(3)));
  EXPECT_THAT(queue.Pictures(), ElementsAre(File(1), File(2), File(4)));
  EXPECT_EQ(other.FindLeft(), 0) << "what somebody holds is not left";
  EXPECT_TRUE(other.ClearEmailQueue());
  EXPECT_EQ(queue.Count(), 3);
}

TEST_F(SnapshotQueueTest, WhatAKilledProgramLeftIsFound) {
  Shoot(2);
  std::filesystem::create_directory(File(9));
  folder.Put("email/email12.jpg.bak", "x");
  queue = SnapshotQueue(folder.Path("email"));
  EXPECT_EQ(queue.Count(), 0);
  EXPECT_EQ(queue.FindLeft(), 2);
  Shoot(1);
  queue.TakeLeft();
  EXPECT_THAT(queue.Pictures(), ElementsAre(File(1), File(2), File(3)));

  queue = SnapshotQueue(folder.Path("email"));
  EXPECT_EQ(queue.FindLeft(), 3);
  EXPECT_TRUE(queue.DeleteLeft());
  EXPECT_FALSE(std::filesystem::exists(File(1)));
  EXPECT_TRUE(std::filesystem::exists(File(9)));
}

struct Shutter final : IShortSounds, ISnapshotView {
  void Play(const std::string& path) override { heard.push_back(path); }
  void ShowEmailPnl(const std::string& text) override { words = text; }
  void HideEmailPnl() override { words.clear(); }
  std::vector<std::string> heard;
  std::string words;
};

TEST_F(SnapshotQueueTest, ASnapshotIsHeardAndTold) {
  Shutter shutter;
  SnapshotDesk desk(host, queue, shutter, "camera.wav", shutter);
  Surface stage(60, 50);
  stage.Clear(Rgb(255, 255, 255));
  CopyPart(Surface(20, 10), 0, 0, 20, 10, stage, 5, 30);
  desk.TTES_Click(stage);
  const auto kept = LoadPicture(File(1));
  ASSERT_TRUE(kept);
  EXPECT_EQ(std::pair(kept->Width(), kept->Height()), std::pair(20, 10)) << "the paper around it is left out";
  EXPECT_EQ(shutter.words, "Picture Saved... You now have 1 pictures queued for emailing.");
  host.Advance(SnapshotDesk::kShownMs - 100);
  desk.TTES_Click(Surface(20, 20));
  host.Advance(SnapshotDesk::kShownMs - 100);
  EXPECT_EQ(shutter.words, "Picture Saved... You now have 2 pictures queued for emailing.") << "its own time";
  host.Advance(200);
  EXPECT_EQ(shutter.words, "");
  EXPECT_THAT(shutter.heard, ElementsAre("camera.wav", "camera.wav"));

  std::filesystem::remove_all(folder.Path("email"));
  folder.Put("email", "no folder");
  desk.TTES_Click(Surface(20, 20));
  ASSERT_EQ(host.messages.size(), 1u);
  EXPECT_THAT(host.messages[0], testing::StartsWith("Failed to save the picture to the file: '" + File(3) + "'"));
  EXPECT_EQ(shutter.words, "");
}

}  // namespace
}  // namespace kinalyx::test
