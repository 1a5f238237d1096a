#include <fstream>

#include "MirrorFakes.h"
#include "capture/mirror/MirrorChoices.h"
#include "capture/mirror/MirrorPane.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

TEST(PaneTimeTest, ALoopGoesRoundWithAPauseAtItsEnd) {
  const std::int64_t begun = 100 * kSecond;
  PaneTime time = PaneTime::Loop(10 * kSecond, 15 * kSecond, 0.25, begun);
  EXPECT_EQ(time.MomentAt(begun), 10 * kSecond);
  EXPECT_EQ(time.MomentAt(begun + 4 * kSecond), 11 * kSecond);
  EXPECT_EQ(time.MomentAt(begun + 20 * kSecond), 15 * kSecond);
  EXPECT_EQ(time.MomentAt(begun + 20 * kSecond + 400 * kMs), 15 * kSecond) << "the end stands a little";
  EXPECT_EQ(time.MomentAt(begun + 20 * kSecond + 500 * kMs), 10 * kSecond);
  EXPECT_EQ(time.WhenShown(12 * kSecond, begun + kSecond), begun + 8 * kSecond);
  const std::int64_t second = begun + 20 * kSecond + 500 * kMs;
  EXPECT_EQ(time.WhenShown(12 * kSecond, second + kSecond), second + 8 * kSecond) << "in the second round";

  time.SetSpeed(1, begun + 8 * kSecond);
  EXPECT_EQ(time.MomentAt(begun + 8 * kSecond), 12 * kSecond) << "another speed goes on from where it is";
  EXPECT_EQ(time.MomentAt(begun + 9 * kSecond), 13 * kSecond);
  time.Freeze(true, begun + 9 * kSecond);
  EXPECT_EQ(time.MomentAt(begun + 999 * kSecond), 13 * kSecond);
  time.Freeze(false, begun + 999 * kSecond);
  EXPECT_EQ(time.MomentAt(begun + 1000 * kSecond), 14 * kSecond) << "it goes on where it stood";
  const PaneTime still = PaneTime::Loop(5, 5, 0.25, begun);
  EXPECT_EQ(still.MomentAt(begun + 77 * kSecond), 5) << "one picture alone";
}

class PaneTest : public testing::Test {
 protected:
  /// Pictures number 0, 1, 2 ... of a camera of 50 a second, from now on.
  void Film(int count) {
    for (int i = 0; i < count; ++i, ++taken) recorder.pictures.push_back(NumberedPicture(taken, taken * 20 * kMs));
  }
  void Begin() {
    memory->Limit(60 * kSecond, 1 << 30);
    memory->Follow(recorder);
  }
  /// Lets time pass as a thread would, and says which numbers were seen, and how late the latest of them.
  std::vector<int> Run(std::int64_t ns) {
    std::vector<int> seen;
    for (const std::int64_t end = now + ns; now < end;) {
      const std::int64_t next = pane.Step(now);
      if (told) {
        told = false;
        seen.push_back(NumberOf(pane.Show().picture));
      }
      EXPECT_GT(next, now);
      now = std::min(end, next);
    }
    return seen;
  }

  FakeRecorder recorder;
  std::shared_ptr<PictureMemory> memory = std::make_shared<PictureMemory>();
  bool told = false;
  MirrorPane pane{[this] { told = true; }};
  std::int64_t now = 0;
  int taken = 0;
};

TEST_F(PaneTest, ShowsEveryPictureOnceAndAtItsTime) {
  Film(100);
  Begin();
  pane.Behind(memory, kSecond);
  now = kSecond + 5 * kMs;
  EXPECT_EQ(Run(98 * kMs), (std::vector{0, 1, 2, 3, 4, 5}));
  // Shown when it is due and not before, although it has been ready for long.
  EXPECT_EQ(pane.Show().picture.takenAt, 100 * kMs);
  now = kSecond + 119 * kMs;
  EXPECT_TRUE(Run(kMs).empty());
  EXPECT_EQ(Run(2 * kMs), std::vector{6});
}

TEST_F(PaneTest, PassesOverWhatItIsLateFor) {
  Film(100);
  Begin();
  pane.Behind(memory, kSecond);
  now = kSecond;
  Run(10 * kMs);
  now += 500 * kMs;  // the machine was busy
  const std::vector<int> seen = Run(10 * kMs);
  ASSERT_FALSE(seen.empty());
  EXPECT_EQ(seen.back(), 25);
  EXPECT_LE(seen.size(), 2U);
}

TEST_F(PaneTest, StandsInWithTheLivePictureUntilThereIsEnough) {
  Film(10);
  Begin();
  pane.Behind(memory, kSecond);
  now = 190 * kMs;
  EXPECT_EQ(Run(kMs), std::vector{9});
  EXPECT_TRUE(pane.Show().standIn);
  Film(90);
  now = kSecond + kMs;
  EXPECT_EQ(Run(kMs), std::vector{0});
  EXPECT_FALSE(pane.Show().standIn);
}

TEST_F(PaneTest, KeepsTheLastGoodPictureOverABrokenOne) {
  Film(10);
  recorder.pictures[4].size /= 2;
  Begin();
  pane.Behind(memory, kSecond);
  now = kSecond + 60 * kMs;
  EXPECT_EQ(Run(60 * kMs), (std::vector{3, 5})) << "nothing else is shown in its place";
}

TEST_F(PaneTest, LoopsWhatTheRingHasForgotten) {
  Film(50);
  Begin();
  pane.Loop(memory->Between(200 * kMs, 300 * kMs), 0.5, now = kSecond);
  recorder.pictures.clear();
  EXPECT_EQ(Run(700 * kMs + 10 * kMs), (std::vector{10, 11, 12, 13, 14, 15, 10}));
  pane.Freeze(true, now);
  EXPECT_TRUE(Run(2 * kSecond).size() <= 1) << "it stands";
  pane.StepBy(2, now);
  EXPECT_EQ(Run(100 * kMs), std::vector{12});
  pane.StepBy(-99, now);
  EXPECT_EQ(Run(100 * kMs), std::vector{10});
}

TEST_F(PaneTest, ThePastOutlivesTheRunOfItsCamera) {
  Film(50);
  Begin();
  memory->LetGo();
  recorder.pictures.clear();
  pane.Behind(memory, kSecond);
  now = kSecond + 500 * kMs;
  EXPECT_EQ(Run(kMs), std::vector{25});
  // It is back: what is between stands still.
  taken = 200;
  Film(50);
  memory->Follow(recorder);
  now = kSecond + 2 * kSecond;
  EXPECT_EQ(Run(kMs), std::vector{49});
  now = kSecond + 4001 * kMs;
  EXPECT_EQ(Run(kMs), std::vector{200});
  EXPECT_EQ(memory->Between(0, 100 * kSecond).size(), 100U);
  EXPECT_EQ(memory->Take().oldestNs, 0);
  memory->Trim(61 * kSecond);
  EXPECT_EQ(memory->Between(0, 3 * kSecond).size(), 0U) << "what is too old goes";
  memory->LetGo();
  memory->Limit(60 * kSecond, static_cast<std::int64_t>(3.5 * static_cast<double>(recorder.pictures[0].size)));
  memory->Trim(5 * kSecond);
  EXPECT_LE(memory->Between(0, 9 * kSecond).size(), 3U) << "and what is too much";
}

TEST(MirrorChoicesTest, KeepWhatTheFileHoldsAndNothingThatMakesNoSense) {
  const TempFolder folder;
  const std::string path = folder.Path("mirror.json");
  const MirrorChoices first;
  EXPECT_EQ(ReadMirrorChoices(path), first);
  MirrorChoices set;
  set.panes = 3;
  set.SetDelay(1, 7.3);
  set.SetDelay(2, 99);
  set.cameras[2] = 1;
  set.loopSeconds = 12;
  set.speed = LoopSpeed::Half;
  set.mirrored = true;
  set.left = -1920;
  set.width = 800;
  set.height = 600;
  set.fullScreen = true;
  set.screen = "ekran łódź 画面";
  EXPECT_EQ(set.Delay(1), 7.5) << "in steps of half a second";
  EXPECT_EQ(set.Delay(2), 60);
  ASSERT_TRUE(WriteMirrorChoices(path, set));
  EXPECT_EQ(ReadMirrorChoices(path), set);
  const auto read = [&](const std::string& text) {
    std::ofstream(path) << text;
    return ReadMirrorChoices(path);
  };
  for (const char* text :
       {"", "[]", "{", "null", "\xFF\xFE", R"({"panes":9,"delays":[[1]],"speed":-1,"loopSeconds":"5","cameras":7})",
        R"({"panes":null,"delays":[5,{},"",[null,true]],"width":1e300,"screen":4,"mirrored":1})"})
    EXPECT_EQ(read(text), first) << text;
  EXPECT_EQ(read(R"({"panes":2,"delays":[[3],["x",-4],[],[]]})").panes, 2);
}

}  // namespace
}  // namespace kinalyx::test
