#include <algorithm>

#include "Player.h"
#include "video/FramePipeline.h"
#include "video/StrobeLayers.h"

namespace kinalyx::test {
namespace {

using std::vector;

TEST(ScanLineBytes, PadsRowsToFourBytes) {
  for (const auto& [bits, bytes] :
       {std::pair{24, 272}, {32, 360}, {16, 180}, {8, 92}, {4, 48}, {2, 24}, {1, 12}, {12, 0}, {0, 0}})
    EXPECT_EQ(ScanLineBytes(90, bits), bytes) << bits;
  EXPECT_EQ(ScanLineBytes(88, 24), 264);
}

TEST(SoftenField, RebuildsExactlyTheRowsThatTheFieldLeavesOut) {
  // Rows of one byte repeated, bottom row first; the older picture is all 9.
  const struct {
    vector<int> frame;
    bool field;
    vector<int> copied, softened;
  } cases[] = {{{10, 20, 31, 40, 50, 60}, true, {10, 9, 31, 9, 50, 9}, {10, 21, 31, 41, 50, 50}},
               {{10, 20, 31, 40, 50, 60}, false, {9, 20, 9, 40, 9, 60}, {20, 20, 30, 40, 50, 60}},
               {{10, 20, 31}, true, {10, 9, 31}, {10, 21, 31}},
               {{10, 20, 31}, false, {9, 20, 9}, {20, 20, 20}},
               {{10, 20}, true, {10, 9}, {10, 10}},
               {{10}, false, {9}, {9}}};
  constexpr int kRow = 12;
  const auto rows = [](const vector<int>& values) {
    vector<std::uint8_t> bytes;
    for (const int value : values) bytes.insert(bytes.end(), kRow, static_cast<std::uint8_t>(value));
    return bytes;
  };
  for (const auto& one : cases) {
    const int height = static_cast<int>(one.frame.size());
    SCOPED_TRACE(testing::Message() << height << " rows, field " << one.field);
    auto buffer = rows(vector<int>(one.frame.size(), 9));
    CopyField(rows(one.frame).data(), kRow, height, one.field, buffer.data());
    EXPECT_EQ(buffer, rows(one.copied));
    if (height > 1) SoftenField(buffer.data(), kRow, height, one.field);
    EXPECT_EQ(buffer, rows(one.softened));
    auto together = rows(vector<int>(one.frame.size(), 9));
    CopySoftField(rows(one.frame).data(), kRow, height, one.field, together.data());
    EXPECT_EQ(together, rows(one.softened));
  }
}

TEST(EnhanceField, PushesBytesThatStayInRange) {
  const vector<std::uint8_t> before{1, 2, 3, 0, 20, 21, 128, 129, 240, 245, 246, 255};
  const vector<std::uint8_t> after{1, 2, 3, 0, 20, 1, 108, 139, 250, 255, 246, 255};  // the first three stay
  constexpr int kRow = 12;
  for (const auto& [field, worked] : {std::pair{false, vector<int>{1, 3, 5, 7}}, {true, {2, 4, 6}}}) {
    vector<std::uint8_t> rows;
    for (int row = 0; row < 11; ++row) rows.insert(rows.end(), before.begin(), before.end());
    EnhanceField(rows.data(), kRow, 11, field, 10.4, 20);
    for (int row = 0; row < 11; ++row) {
      const bool pushed = std::ranges::count(worked, row) > 0;
      EXPECT_EQ(vector(rows.begin() + row * kRow, rows.begin() + (row + 1) * kRow), pushed ? after : before) << row;
    }
  }
}

TEST(StrobeLayers, LayPosesOverTheStartPicture) {
  // One byte of every row at a time: what differs by more than 20 from the ground is laid over the sum, the
  // first time as it is, later as a third of each of the three.
  constexpr int kRow = 8;
  constexpr int kHeight = 9;
  const auto picture = [](int value) { return vector<std::uint8_t>(kRow * kHeight, static_cast<std::uint8_t>(value)); };
  for (const auto& [field, worked] : {std::pair{false, vector<int>{1, 3, 5}}, {true, {2, 4}}}) {
    auto sum = picture(77);
    StrobeLayers layers(RowShape{kRow, kHeight});
    for (const auto& [shown, expected] :
         {std::pair{120, 77}, {80, 77}, {121, 121}, {200, 33 + 66 + 40}, {79, 33 + 26 + 46}}) {
      layers.Add(picture(100).data(), picture(shown).data(), field, sum.data());
      for (int i = 0; i < kRow * kHeight; ++i) {
        const bool laid = i % kRow >= 3 && std::ranges::count(worked, i / kRow) > 0;
        ASSERT_EQ(sum[static_cast<std::size_t>(i)], laid ? expected : 77) << shown << ", byte " << i;
      }
    }
  }
}

TEST(StrobeLayers, KeepAPoseOnlyWhereThePictureIsGround) {
  // The ground is the mean of three of four pictures, without the one that lies furthest off.
  constexpr int kRow = 8;
  const auto row = [](int value) { return vector<std::uint8_t>(kRow * 5, static_cast<std::uint8_t>(value)); };
  const auto ground = row(100), odd = row(200);
  for (const auto& [pose, picture, kept] :
       {std::tuple{200, 100, 200}, {200, 120, 200}, {200, 121, 121}, {120, 100, 100}}) {
    auto sum = row(pose);
    AddAgainstBackground({kRow, 5}, {ground.data(), odd.data(), ground.data(), ground.data()}, row(picture).data(),
                         false, sum.data());
    EXPECT_EQ(sum[kRow + 3], kept) << picture;
    EXPECT_EQ(sum[kRow + 2], pose) << "the first pixel of a row stays";
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
    for (int y = 0; y < 60; ++y) std::fill_n(rows.begin() + (y * 200 + n * 8 + 4) * 3, 8 * 3, std::uint8_t{240});
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
  for (const auto& [milliseconds, bars] :
       {std::pair{149, vector<int>{0}}, {1, {2, 5}}, {150, {2, 5, 8}}, {150, {2, 5, 8, 11}}}) {
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
  StrobedPlayer player;
  player->Strobeframes(4, 4, 5);
  player.host.Advance(5000);
  EXPECT_EQ(BarsOn(player.view.shown), (vector<int>{4, 9, 14}));
}

TEST(Strobe, StopsOnDemandAndBeforeAnyOtherMovementAlsoInItsOwnCallbacks) {
  using Deed = void (*)(Player&);
  const Deed deeds[] = {[](Player& player) { player->StopStrobe(); },
                        [](Player& player) { player->DrawFrame(3); },
                        [](Player& player) { player->Play(0, 5); },
                        [](Player& player) { player->Unload(); },
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

TEST(Strobe, EndsAtOnceOnPicturesItCannotWorkOnAndWithoutPauseAgainstABackground) {
  StrobedPlayer player;
  player->DrawFrame(1);
  player->Strobeframes2(2, 12, 4);
  player.host.Advance(5);
  EXPECT_FALSE(player->StrobeRunning());
  EXPECT_EQ(BarsOn(player.view.shown), (vector<int>{1, 6, 10}));
  EXPECT_EQ(player.sink.strobesEnded, 1);

  player->setForceDisplayFormat(4);
  ASSERT_TRUE(player->Load("", false, false));
  EXPECT_EQ(player->CurFormatBits(), 32);
  player->Strobeframes(0, 10, 1);
  EXPECT_FALSE(player->StrobeRunning());
  EXPECT_EQ(player.sink.strobesEnded, 2);
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
