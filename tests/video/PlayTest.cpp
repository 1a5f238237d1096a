#include <cmath>

#include <numeric>

#include "Player.h"
#include "video/PlayClock.h"

namespace kinalyx::test {
namespace {

using std::vector;

vector<int> Range(int from, int to) {
  vector<int> numbers(static_cast<std::size_t>(to - from + 1));
  std::iota(numbers.begin(), numbers.end(), from);
  return numbers;
}

/// 40 ms for each frame.
TestVideo Video25(int frames) {
  TestVideo video = MjpegVideo(frames);
  video.format.rate = 25;
  return video;
}

struct Film : Player {
  Film() { EXPECT_TRUE(Load(Video25(30))); }
};

TEST(Play, ShowsEveryPositionWhenItFallsDueAndTellsItsEnd) {
  Film player;
  player->Play(5, 20);
  EXPECT_TRUE(player->IsPlaying());
  EXPECT_EQ(player.Shown(), 5) << "the first at once";
  for (const auto& [milliseconds, shown] : {std::pair{39, 5}, {1, 6}, {10 * 40, 16}, {1000, 20}}) {
    player.host.Advance(milliseconds);
    EXPECT_EQ(player.Shown(), shown);
  }
  EXPECT_FALSE(player->IsPlaying());
  EXPECT_EQ(player.sink.signalled, Range(5, 20));
  EXPECT_EQ(player.sink.notified, vector<int>{20});
  EXPECT_EQ(player.host.TimerCount(), 0u) << "an idle player costs nothing";

  // Without arguments the last end stands; a start alone shows one position.
  player->DrawFrame(18);
  player->Play();
  player.host.Advance(1000);
  EXPECT_EQ(player->Position(), 20);
  player->Play(5);
  EXPECT_FALSE(player->IsPlaying());
  EXPECT_EQ(player.Shown(), 5);
  EXPECT_EQ(player.sink.notified.size(), 2u);
}

TEST(Play, SkipsLatePositionsAndDrawsTheLast) {
  Film player;
  // A drawing takes 100 ms.
  player.sink.onDraw = [&](Canvas&) { player.host.now += 100; };
  player->Play(0, 24);
  const auto start = player.host.now;
  player.host.Advance(2000);
  ASSERT_GT(player.sink.signalled.size(), 5u);
  EXPECT_LT(player.sink.signalled.size(), 14u);
  EXPECT_EQ(player.sink.signalled.back(), 24);
  EXPECT_EQ(player.sink.notified, vector<int>{24});
  EXPECT_LT(player.host.now - start, 2200);
}

TEST(Play, IsAPauseWhilePlaying) {
  Film player;
  player->setRepeat(true);
  player->Play(0, 29);
  player.host.Advance(200);
  player->Play(0, 29);
  EXPECT_FALSE(player->IsPlaying());
  EXPECT_FALSE(player->Repeat()) << "a stop ends the repeat";
  player.host.Advance(1000);
  EXPECT_EQ(player->Position(), 5);
  EXPECT_EQ(player.sink.notified, vector<int>{5});
}

// Two videos of one length that are looped together must not drift apart because one was shown late.
TEST(Play, ALateLoopKeepsItsBeat) {
  Player player;
  ASSERT_TRUE(player.Load(Video25(10)));
  player->setRepeat(true);
  player->Play(0, 9);
  player.host.Advance(9 * 40);
  ASSERT_EQ(player->Position(), 9);
  player.host.now += 40 + 25;  // busy with something else: the start falls due 25 ms too late
  player.host.DoEvents();
  EXPECT_EQ(player->Position(), 0);
  player.host.Advance(15);
  EXPECT_EQ(player->Position(), 1) << "due 40 ms after the start should have been seen";
  EXPECT_TRUE(player.sink.notified.empty()) << "a new round is no end";
  player->StopPlay();
  EXPECT_EQ(player.sink.notified, vector<int>{1});
  player->LoopPlay();
  player.host.Advance(400);
  EXPECT_EQ(player->Position(), 1);
}

// At 30 pictures a second none lasts whole milliseconds: rounded to 33 the video would be 36 seconds ahead
// after an hour, and its loops 0.3 of a millisecond each.
TEST(Play, KeepsItsRateForAnHour) {
  PlayClock clock;
  clock.Start(5000, 10, 1000.0 / 30);
  EXPECT_EQ(std::floor(clock.BeatAt(5000 + 3600000)), 10 + 3600 * 30);
  EXPECT_EQ(clock.Due(10 + 3600 * 30), 5000 + 3600000);
  for (int position = 10; position < 2000; ++position) {
    ASSERT_EQ(std::floor(clock.BeatAt(clock.Due(position))), position);
    ASSERT_LT(std::floor(clock.BeatAt(clock.Due(position) - 1)), position);
  }
  clock.Start(5000, 0, 1000.0 / 30);
  for (int round = 0; round < 3600 * 3; ++round) clock.Wrap(clock.Due(10), 10);
  EXPECT_EQ(clock.Due(0), 5000 + 3600000);

  Player player;
  TestVideo video = MjpegVideo(10);
  video.format.rate = 30;
  ASSERT_TRUE(player.Load(video));
  player->setRepeat(true);
  player->Play(0, 9);
  player.host.Advance(20000);
  EXPECT_EQ(player->Position(), 0) << "60 rounds in 20 seconds";
  player.host.Advance(1000 - 1);
  EXPECT_EQ(player->Position(), 9);
}

TEST(Play, BackwardEveryPositionHasItsTimeToo) {
  Film player;
  player->DrawFrame(20);
  player.sink.signalled.clear();
  player->PlayBack();
  EXPECT_TRUE(player->PlaysBack());
  for (const auto& [milliseconds, shown] : {std::pair{39, 20}, {1, 19}, {10 * 40, 9}}) {
    player.host.Advance(milliseconds);
    EXPECT_EQ(player.Shown(), shown);
  }
  ASSERT_TRUE(player->setSpeed(50));
  EXPECT_TRUE(player->PlaysBack()) << "another speed is no other way";
  player.host.Advance(80 * 9 - 1);
  EXPECT_EQ(player.Shown(), 1);
  player.host.Advance(1);
  EXPECT_EQ(player.Shown(), 0);
  EXPECT_FALSE(player->IsPlaying() || player->PlaysBack());
}

TEST(Play, OfAPartRepeatsThePart) {
  Film player;
  player->setPlayRange(AVIControl::Range{5, 9});
  player->setRepeat(true);
  player->Play(7, 9);
  player.sink.signalled.clear();
  player.host.Advance(8 * 40);
  EXPECT_EQ(player.sink.signalled, (vector<int>{8, 9, 5, 6, 7, 8, 9, 5}));
  player->StopPlay();
  player->PlayBack();
  player.host.Advance(1000);
  EXPECT_EQ(player->Position(), 5);
  for (const AVIControl::Range& none : std::initializer_list<AVIControl::Range>{{9, 9}, {-1, 5}, {3, 30}}) {
    player->setPlayRange(none);
    EXPECT_EQ(player->PlayRange(), (AVIControl::Range{0, 29})) << "that is no part of the video";
  }
}

TEST(Play, GoesOnToTheEndAtANewSpeed) {
  Film player;
  player->setRepeat(true);
  player->Play(0, 8);
  player.host.Advance(160);
  EXPECT_TRUE(player->setSpeed(50));
  EXPECT_TRUE(player->Repeat()) << "the repeat survives a change of speed";
  EXPECT_EQ(player->Position(), 4);
  player.host.Advance(80);
  EXPECT_EQ(player->Position(), 5);
  player.host.Advance(80 * 24);
  EXPECT_EQ(player->Position(), 29) << "past the old end";
  EXPECT_TRUE(player->IsPlaying());

  player->StopPlay();
  player->setSpeed(200);
  player->Play(0, 29);
  player.host.Advance(20 * 10);
  EXPECT_EQ(player->Position(), 10);
}

TEST(Play, OfFieldsTakesHalfTheTimeForEach) {
  Player player;
  ASSERT_TRUE(player.Load(DvVideo(12), true, false));
  player->Play(0, 23);
  player.host.Advance(17 * 5);
  EXPECT_EQ(player.Shown(), 5);
  player.host.Advance(1000);
  EXPECT_EQ(player->Position(), 23);
  EXPECT_EQ(player.sink.notified, vector<int>{11}) << "the raw frame";
  // A play without arguments begins at the raw frame and ends at half the end.
  player->Play();
  EXPECT_EQ(player->Position(), 11);
  player->DrawFrame(4);
  player->Play();
  player.host.Advance(1000);
  EXPECT_EQ(player->Position(), 11) << "and so does the next";
}

TEST(Play, At240PicturesASecondMovesOn) {
  Player player;
  TestVideo video = MjpegVideo(240);
  video.format.rate = 240;
  ASSERT_TRUE(player.Load(video));
  player->Play(0, 239);
  player.host.Advance(400);
  EXPECT_EQ(player->Position(), 96);
  player->setSpeed(1000);  // 0.4 ms: faster than the clock
  player.host.Advance(20);
  EXPECT_EQ(player->Position(), 96 + 48);
  player.host.Advance(1000);
  EXPECT_FALSE(player->IsPlaying());
  EXPECT_EQ(player.Shown(), 239);
}

TEST(Play, AllowsAnythingToThoseWhoAreTold) {
  using Deed = void (*)(Player&);
  const Deed deeds[] = {
      [](Player& player) { player->StopPlay(); },
      [](Player& player) { player->Unload(); },
      [](Player& player) { player->Load(MakeTestVideo(RawVideo(10)), true, false); },
      [](Player& player) { player->setSpeed(player->Speed() == 100 ? 50 : 100); },
      [](Player& player) { player->Play(3, 9); },
      [](Player& player) { player->DrawFrame(2); },
      [](Player& player) { player->Refresh(); },
      [](Player& player) { player->Strobeframes(0, 20, 2); },
      [](Player& player) { player.control.reset(); },
  };
  for (std::size_t deed = 0; deed < std::size(deeds); ++deed) {
    for (const bool atEnd : {false, true}) {
      SCOPED_TRACE(testing::Message() << "deed " << deed << (atEnd ? " at the end" : " at a picture"));
      Film player;
      int calls = 0;
      const auto act = [&] {
        if (++calls == (atEnd ? 1 : 3)) deeds[deed](player);
      };
      if (atEnd) player.sink.onNotify = act;
      else player.sink.onSignal = [&](int) { act(); };
      player->Play(0, 12);
      player.host.Advance(8000);
      EXPECT_GE(calls, atEnd ? 1 : 3);
      EXPECT_FALSE(player.control && player->IsPlaying());
      EXPECT_EQ(player.host.TimerCount(), 0u);
    }
  }
}

}  // namespace
}  // namespace kinalyx::test
