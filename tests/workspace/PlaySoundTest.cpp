#include "workspace/transport/PlaySound.h"

#include <gtest/gtest.h>

#include "AnalysisStage.h"
#include "platform/media/Films.h"

namespace kinalyx::test {
namespace {

/// Remembers what was to be heard.
class FakeSound final : public ISoundOutput {
 public:
  std::string path;  ///< empty: silence
  double fromMs = -1;
  int volume = 0;
  int begun = 0;

 private:
  void Play(const std::string& video, double from, int percent) override {
    path = video;
    fromMs = from;
    volume = percent;
    ++begun;
  }
  void Stop() override { path.clear(); }
  void SetVolume(int percent) override { volume = percent; }
};

struct PlaySoundTest : testing::Test {
  void SetUp() override {
    settings().SoundVolume = 80;
    for (const int slot : {1, 2}) {
      const std::string path = stage.folder + "/sound" + std::to_string(slot) + ".avi";
      Film film{"sound.avi", "mpeg4", 60, 12, 0};
      film.sound = true;
      MakeFilm(film, path);
      if (IsSkipped()) return;
      ASSERT_TRUE(stage.Open(slot, path));
    }
    stage.Stage().SelectWindow(1);
    stage.EndTurn();
  }
  Settings& settings() { return stage.settings; }
  bool Silent() {
    stage.EndTurn();
    return sound.path.empty();
  }

  FakeSound sound;
  AnalysisStage stage{"2", 1280, 720, nullptr, &sound};
  Transport& transport = stage.analysis.Transport();
};

TEST_F(PlaySoundTest, FollowsThePicturesOfTheCurrentVideo) {
  EXPECT_TRUE(Silent());
  transport.Seek(15);
  transport.TogglePlay();
  EXPECT_EQ(sound.path, stage.Stage().At(1).path);
  EXPECT_NEAR(sound.fromMs, stage.MP(1).TimeOf(15), 1);
  EXPECT_EQ(sound.volume, 80);
  stage.host.Advance(300);
  EXPECT_EQ(sound.begun, 1) << "it runs by itself";
  transport.TogglePlay();
  EXPECT_TRUE(Silent()) << "a pause";

  transport.ToggleLoop();
  stage.host.Advance(2500);
  EXPECT_EQ(sound.begun, 3) << "a loop begins it anew";
  EXPECT_NEAR(sound.fromMs, 0, 1);
  transport.SetSpeed(50);
  EXPECT_TRUE(Silent()) << "slow motion has no sound";
  transport.SetSpeed(100);
  EXPECT_FALSE(Silent());
  stage.analysis.Sound().SetAudible(false);
  EXPECT_TRUE(Silent()) << "the window was put away";
  stage.analysis.Sound().SetAudible(true);
  EXPECT_NEAR(sound.fromMs, stage.MP(1).TimeOf(stage.At(1)), 40);
  stage.analysis.Sound().SetVolume(0);
  EXPECT_TRUE(Silent());
  stage.analysis.Sound().SetVolume(40);
  EXPECT_EQ(sound.volume, 40);
  EXPECT_FALSE(Silent());
  stage.Stage().SelectWindow(2);
  EXPECT_TRUE(Silent()) << "another window has the hand";
  stage.Stage().SelectWindow(1);
  EXPECT_FALSE(Silent());
  stage.Videos().CloseVideo(1);
  EXPECT_TRUE(Silent());
}

TEST_F(PlaySoundTest, OfALockedPairTheLeadIsHeardAndBackwardNothing) {
  stage.Modes().Locks().DualLock(1);
  stage.Stage().SelectWindow(2);
  transport.PlayPause();
  EXPECT_FALSE(Silent());
  EXPECT_EQ(sound.path, stage.Stage().At(2).path);
  stage.Stage().SelectWindow(1);
  EXPECT_FALSE(Silent());
  EXPECT_EQ(sound.path, stage.Stage().At(2).path) << "the pair plays by its lead";
  transport.PlayPause();
  EXPECT_TRUE(Silent());
  stage.Modes().Locks().DualUnlock(1);
  transport.Seek(30);
  transport.PlayBackward();
  EXPECT_TRUE(stage.MP(1).IsPlaying() && Silent());
}

}  // namespace
}  // namespace kinalyx::test
