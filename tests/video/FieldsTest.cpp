#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "Player.h"
#include "video/FramePipeline.h"
#include "video/StrobeLayers.h"

namespace kinalyx::test {
namespace {

using std::vector;

vector<std::uint8_t> Noise(std::size_t count, unsigned seed) {
  std::mt19937 random(seed);
  vector<std::uint8_t> bytes(count);
  for (auto& byte : bytes) byte = static_cast<std::uint8_t>(random());
  return bytes;
}

TEST(ScanLineBytes, PadsRowsToFourBytes) {
  for (const auto& [bits, bytes] : {std::pair{24, 272}, {32, 360}, {16, 180}, {8, 92}, {4, 48}, {2, 24}, {1, 12}, {12, 0}, {0, 0}})
    EXPECT_EQ(ScanLineBytes(90, bits), bytes) << bits;
  EXPECT_EQ(ScanLineBytes(88, 24), 264);
}

TEST(SoftenField, RebuildsExactlyTheRowsThatTheFieldLeavesOut) {
  for (const int height : {1, 2, 3, 6, 7, 480}) {
    for (const bool field : {false, true}) {
      const auto frame = Noise(static_cast<std::size_t>(height) * 12, 3);
      const auto older = Noise(frame.size(), 4);
      auto copied = older;
      CopyField(frame.data(), 12, height, field, copied.data());
      auto softened = copied;
      if (height > 1) SoftenField(softened.data(), 12, height, field);
      for (int i = 0; i < height * 12; ++i) {
        SCOPED_TRACE(testing::Message() << "row " << i / 12 << " of " << height);
        const auto at = [&](int byte) { return frame[static_cast<std::size_t>(byte)]; };
        const int row = i / 12;
        const bool taken = (row % 2 == 0) == field;
        ASSERT_EQ(copied[static_cast<std::size_t>(i)], taken ? at(i) : older[static_cast<std::size_t>(i)]);
        if (height == 1) continue;
        const int expected = taken            ? at(i)
                             : row == 0       ? at(i + 12)
                             : row + 1 < height ? (at(i - 12) + at(i + 12) + 1) / 2
                                                : at(i - 12);
        ASSERT_EQ(softened[static_cast<std::size_t>(i)], expected);
      }
    }
  }
}

TEST(EnhanceField, PushesBytesThatStayInRange) {
  constexpr int kRow = 256 + 3;
  constexpr int kHeight = 12;
  for (const bool field : {false, true}) {
    vector<std::uint8_t> rows(kRow * kHeight);
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = static_cast<std::uint8_t>(i % kRow - 3);
    const auto before = rows;
    EnhanceField(rows.data(), kRow, kHeight, field, 10.4, 20);
    const int first = field ? 2 : 1;
    const int last = kHeight - 1 - (field ? 2 : 1) - 2;
    for (int row = 0; row < kHeight; ++row) {
      const bool worked = row >= first && row <= last && (row - first) % 2 == 0;
      for (int c = 0; c < kRow; ++c) {
        const int x = before[static_cast<std::size_t>(row * kRow + c)];
        int expected = x;
        if (worked && c >= 3) expected = x > 128 ? (x + 10.4 < 256 ? std::min(255, x + 10) : x) : (x > 20 ? x - 20 : x);
        ASSERT_EQ(rows[static_cast<std::size_t>(row * kRow + c)], expected) << x << " in row " << row;
      }
    }
  }
}

/// Pictures in which noise up to the threshold and movement above it are both frequent.
vector<std::uint8_t> Near(const vector<std::uint8_t>& scene, unsigned seed) {
  auto bytes = Noise(scene.size(), seed);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const int shift = bytes[i] % 4 == 0 ? bytes[i] : bytes[i] % 49 - 24;
    bytes[i] = static_cast<std::uint8_t>(std::clamp(scene[i] + shift, 0, 255));
  }
  return bytes;
}

TEST(StrobeLayers, LayPosesOverTheStartPicture) {
  const RowShape shape{100, 21};
  for (const bool field : {false, true}) {
    const auto scene = Noise(2100, 5);
    auto sum = Noise(2100, 6);
    auto expected = sum;
    vector<bool> touched(2100);
    StrobeLayers layers(shape);
    for (unsigned layer = 0; layer < 4; ++layer) {
      const auto picture = Near(scene, 10 + layer);
      layers.Add(scene.data(), picture.data(), field, sum.data());
      for (int row = field ? 2 : 1; row <= 20 - (field ? 2 : 1) - 2; row += 2) {
        for (int c = 3; c < 100; ++c) {
          const auto i = static_cast<std::size_t>(row * 100 + c);
          if (std::abs(scene[i] - picture[i]) <= 20) continue;
          expected[i] = touched[i] ? static_cast<std::uint8_t>(scene[i] / 3 + picture[i] / 3 + expected[i] / 3) : picture[i];
          touched[i] = true;
        }
      }
      ASSERT_EQ(sum, expected) << "layer " << layer;
    }
  }
}

// ---------------------------------------------------------------- in the player

/// A white bar that walks over a dark ground: at x = 8n + 4 in frame n, 8 pixels wide.
std::string WalkingBar() {
  VideoFormat format;
  format.codec = VideoFormat::Codec::RawRgb;
  format.width = 200;
  format.height = 60;
  const std::string path = TestPath("bar.avi");
  auto writer = VideoWriter::Create(path, format);
  for (int n = 0; n < 20; ++n) {
    vector<std::uint8_t> rows(200 * 60 * 3, 40);
    for (int y = 0; y < 60; ++y)
      std::fill_n(rows.begin() + (y * 200 + n * 8 + 4) * 3, 8 * 3, std::uint8_t{240});
    (*writer)->Write({rows.data(), 200, 60, 600, 24, false});
  }
  (*writer)->Close();
  return path;
}

/// The frames whose bar stands on the picture at half height.
vector<int> BarsOn(const Surface& surface) {
  vector<int> bars;
  for (int n = 0; n < 20; ++n)
    if (Green(surface.Pixel(n * 8 + 8, surface.Height() / 2)) > 150) bars.push_back(n);
  return bars;
}

struct StrobedPlayer : Player {
  StrobedPlayer() {
    control->Resize(200, 60);
    control->Load(WalkingBar(), false, false);
    control->DrawFrame(0);
    // Softening some field arms the strobe.
    control->setSplitFields(true);
    control->Refresh();
    control->setSplitFields(false);
  }
};

TEST(Strobe, ShowsAChainOfPoses) {
  StrobedPlayer player;
  player->Strobeframes(2, 12, 3);
  EXPECT_TRUE(player->StrobeRunning());
  // A layer after each three times 50 ms. Somebody draws meanwhile: the poses stay.
  for (const auto& [milliseconds, bars] : {std::pair{149, vector<int>{0}}, {1, {2, 5}}, {150, {2, 5, 8}}, {150, {2, 5, 8, 11}}}) {
    player.host.Advance(milliseconds);
    EXPECT_EQ(BarsOn(player.view.shown), bars);
    if (bars.size() == 3) player->Refresh();
    EXPECT_EQ(BarsOn(player.view.shown), bars);
    EXPECT_EQ(player.sink.strobesEnded, 0);
  }
  player.host.Advance(150);
  EXPECT_FALSE(player->StrobeRunning());
  EXPECT_EQ(player.sink.strobesEnded, 1);
  EXPECT_EQ(player->Position(), 11);
  EXPECT_EQ(BarsOn(player.view.shown), (vector<int>{2, 5, 8, 11})) << "the picture stays";
  player->Refresh();
  EXPECT_EQ(BarsOn(player.view.shown), vector<int>{11}) << "until it is drawn anew";
}

TEST(Strobe, WithoutAnEndGoesToTheLastFrame) {
  for (const int end : {4, 0}) {
    StrobedPlayer player;
    player->Strobeframes(4, end, 5);
    player.host.Advance(5000);
    EXPECT_EQ(BarsOn(player.view.shown), (vector<int>{4, 9, 14}));
  }
}

TEST(Strobe, StopsOnDemandAndBeforeAnyOtherMovementAlsoInItsOwnCallbacks) {
  using Deed = void (*)(Player&);
  const Deed deeds[] = {[](Player& player) { player->StopStrobe(); }, [](Player& player) { player->DrawFrame(3); },
                        [](Player& player) { player->Play(0, 5); },   [](Player& player) { player->Unload(); },
                        [](Player& player) { player->Load("", false, false); },
                        [](Player& player) { player->Strobeframes(0, 9, 9); },
                        [](Player& player) { player.control.reset(); }};
  for (const Deed deed : deeds) {
    for (const bool inside : {false, true}) {
      StrobedPlayer player;
      player->Play(0, 15);
      player->Strobeframes(2, 19, 2);
      EXPECT_FALSE(player->IsPlaying());
      int calls = 0;
      player.sink.onSignal = [&](int) {
        if (++calls == 2 && inside) deed(player);
      };
      player.host.Advance(250);
      EXPECT_GE(calls, 2);
      if (!inside) {
        deed(player);
        EXPECT_TRUE(player.sink.strobesEnded == 1 || !player.control);
      }
      player.host.Advance(5000);
      EXPECT_FALSE(player.control && player->StrobeRunning());
      EXPECT_EQ(player.host.TimerCount(), 0u);
    }
  }
  StrobedPlayer player;
  player->Strobeframes(2, 19, 2);
  player->StopStrobe();
  EXPECT_EQ(BarsOn(player.view.shown), vector<int>{0}) << "the picture is left alone";
}

TEST(Strobe, OfPicturesItCannotWorkOnEndsAtOnce) {
  StrobedPlayer player;
  player->setForceDisplayFormat(4);
  ASSERT_TRUE(player->Load("", false, false));
  EXPECT_EQ(player->CurFormatBits(), 32);
  player->Strobeframes(0, 10, 1);
  EXPECT_FALSE(player->StrobeRunning());
  EXPECT_EQ(player.sink.strobesEnded, 1);
}

TEST(Strobe, AgainstABackgroundRunsWithoutPause) {
  StrobedPlayer player;
  player->DrawFrame(1);
  player->Strobeframes2(2, 12, 4);
  player.host.Advance(5);
  EXPECT_FALSE(player->StrobeRunning());
  EXPECT_EQ(BarsOn(player.view.shown), (vector<int>{1, 6, 10}));
  EXPECT_EQ(player.sink.strobesEnded, 1);
}

TEST(Enhance, PushesTheContrastOfTheShownField) {
  StrobedPlayer player;
  player->DrawFrame(5);
  const Colour ground = player.view.shown.Pixel(150, 30);
  player->Enhance(10, 30);
  EXPECT_EQ(Green(player.view.shown.Pixel(150, 30)), Green(ground) - 30);
  EXPECT_EQ(Green(player.view.shown.Pixel(5 * 8 + 8, 30)), 250);
  player->Refresh();
  EXPECT_EQ(player.view.shown.Pixel(150, 30), ground);
}

TEST(AttackBits, ShowsAFieldFurtherOn) {
  Player player;
  ASSERT_TRUE(player.Load(MjpegVideo(60)));
  player->DrawFrame(5);
  player->AttackBits();
  EXPECT_EQ(player.Shown(), 25);
  EXPECT_EQ(player->Position(), 5);
  player->DrawFrame(50);
  player->AttackBits();
  EXPECT_EQ(player.Shown(), 50) << "there is no frame 70";
}

}  // namespace
}  // namespace kinalyx::test
