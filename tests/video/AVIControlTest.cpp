#include "video/AVIControl.h"

#include <chrono>
#include <thread>

#include "Player.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

using std::string;
using std::vector;

TEST(AVIControl, OpensAVideo) {
  Player player;
  ASSERT_TRUE(player.Load(H264Video(40)));
  EXPECT_EQ(player.view.colours.back(), 0);
  EXPECT_EQ(player->filename(), MakeTestVideo(H264Video(40)));
  EXPECT_EQ(player->VideoWidth(), 320);
  EXPECT_EQ(player->VideoHeight(), 240);
  EXPECT_EQ(player->VideoLength(), 40);
  EXPECT_EQ(player->CurFormatBits(), 24);
  EXPECT_EQ(player.view.presented, 0) << "opening shows nothing by itself";
  // An empty name opens the last one again.
  player->DrawFrame(17);
  EXPECT_EQ(player.Shown(), 17);
  ASSERT_TRUE(player->Load("", true, false));
  EXPECT_EQ(player->VideoLength(), 80);
  EXPECT_EQ(player->Position(), 0);
  player->Unload();
  EXPECT_TRUE(player.view.empty);
  EXPECT_EQ(player->VideoLength(), 0);
  EXPECT_FALSE(player->Load("", false, false));

  // Only the rates of tape are rounded up.
  ASSERT_TRUE(player.Load(DvVideo(3)));
  EXPECT_EQ(player.services.VideoFrameRate, 30);
  for (const int rate : {25, 240}) {
    TestVideo video = MjpegVideo(4);
    video.format.rate = rate;
    ASSERT_TRUE(player.Load(video));
    EXPECT_EQ(player.services.VideoFrameRate, rate);
  }
}

TEST(AVIControl, SaysByItsColourWhyNothingOpens) {
  Player player;
  TempFolder folder;
  for (const auto& [path, colour] : {std::pair{folder.Path("missing.avi"), 65535},
                                     {folder.Put("letter.avi", "Dear coach, here is my swing."), 65535},
                                     {folder.Put("empty.avi", ""), 255}}) {
    ASSERT_TRUE(player.Load(MjpegVideo(60)));
    EXPECT_FALSE(player->Load(path, false, false));
    EXPECT_EQ(player->BackColor(), colour) << path;
    EXPECT_EQ(player.view.colours.back(), colour);
    EXPECT_EQ(player->filename(), "");
    EXPECT_TRUE(player.view.empty);
    player->DrawFrame(3);
    player->Play(0, 10);
    EXPECT_FALSE(player->IsPlaying());
  }
}

TEST(AVIControl, WithoutAFirstPictureBeginsAtTheThird) {
  TempFolder folder;
  std::filesystem::copy_file(MakeTestVideo(MjpegVideo(60)), folder.Path("lost.avi"));
  string bytes = folder.Get("lost.avi");
  const auto packet = bytes.find("00dc", bytes.find("movi"));
  std::uint32_t size = 0;
  bytes.copy(reinterpret_cast<char*>(&size), 4, packet + 4);
  bytes.replace(packet + 8, size, size, '\0');

  Player player;
  ASSERT_TRUE(player->Load(folder.Put("lost.avi", bytes), false, false));
  EXPECT_EQ(player->Position(), 2);
  player->Refresh();
  EXPECT_EQ(player.Shown(), 2);
}

TEST(AVIControl, CountsFieldsBothWaysRound) {
  Player player;
  for (const bool reverse : {false, true}) {
    ASSERT_TRUE(player.Load(DvVideo(6), true, reverse));
    // Field 0 of a frame lies in the rows 1, 3, 5 from the bottom, which are 0, 2, 4 from the top.
    for (const int position : {2, 3, 11, 0, 1}) {
      player->DrawFrame(position);
      EXPECT_EQ(player->Position(), position);
      EXPECT_EQ(player.Shown(), reverse ? position ^ 1 : position);
    }
  }
  player->DrawFrame(7);
  player->setSplitFields(false);
  EXPECT_EQ(player->VideoLength(), 6);
  EXPECT_EQ(player->Position(), 3) << "the position stays on its frame";
  for (const int position : {-5, 99}) {
    player->DrawFrame(position);
    EXPECT_EQ(player->Position(), position < 0 ? 0 : 5);
  }
}

TEST(AVIControl, CallsItsSinkInOrder) {
  Player player;
  ASSERT_TRUE(player.Load(MjpegVideo(60)));
  player.sink.onDraw = [&](Canvas&) { EXPECT_EQ(player.view.presented, 0) << "drawn before it is shown"; };
  player.sink.onSignal = [&](int) { EXPECT_EQ(player.view.presented, 1) << "told after it is shown"; };
  player->DrawFrame(9);
  EXPECT_EQ(player.sink.calls, (vector<string>{"draw 4", "signal 9 4"}));

  EXPECT_FALSE(player->SetFrameInterface(nullptr));
  EXPECT_TRUE(player->ReleaseFrameInterface());
  EXPECT_FALSE(player->SetMouseKeyboardInterface(nullptr));
  player->DrawFrame(10);
  EXPECT_EQ(player.Shown(), 10);
  EXPECT_EQ(player.sink.calls.size(), 2u);
}

TEST(AVIControl, MirrorsThePictureButNotWhatIsDrawnOnIt) {
  Player player;
  ASSERT_TRUE(player.Load(MjpegVideo(60)));
  player->DrawFrame(5);
  const Surface plain = player.view.shown;
  player->setFlipHorizontal(true);
  player.sink.onDraw = [](Canvas& canvas) {
    canvas.SetPen({Rgb(255, 0, 0), 1, 0});
    canvas.Line({3, 10}, {3, 20});
  };
  for (int i = 0; i < 4; ++i) {  // also when the composed picture is taken out of the store
    player->Refresh();
    EXPECT_EQ(player.view.shown.Pixel(3, 15), Rgb(255, 0, 0));
    for (const int x : {0, 50, 120, 190}) EXPECT_EQ(player.view.shown.Pixel(199 - x, 70), plain.Pixel(x, 70));
  }
  player.sink.onDraw = nullptr;
  player->setFlipHorizontal(false);
  player->Refresh();
  EXPECT_EQ(player.Shown(), 5);
  EXPECT_EQ(player.view.shown.Pixel(3, 15), plain.Pixel(3, 15)) << "nothing of a drawing stays";
}

TEST(AVIControl, FollowsItsSize) {
  Player player;
  ASSERT_TRUE(player.Load(MjpegVideo(60)));
  player->DrawFrame(5);
  player->Resize(300, 100);
  EXPECT_EQ(player.view.shown.Width(), 300);
  EXPECT_EQ(player.view.shown.Height(), 100);
  EXPECT_EQ(player.Shown(), 5);
  player->Resize(0, 0);
  player->DrawFrame(6);
  player->Resize(200, 150);
  EXPECT_EQ(player.Shown(), 6);
}

TEST(AVIControl, AStandInGivesWayToTheExactPicture) {
  TestVideo large = H264Video(120);
  large.format.width = 1280;
  large.format.height = 720;
  large.format.keyInterval = 60;
  Player player;
  ASSERT_TRUE(player.Load(large));
  const auto waitForExact = [&] {
    for (int waited = 0; waited < 6000 && !player->PictureIsExact(); ++waited) {
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
      player.host.Advance(10);
    }
  };
  for (const int position : {110, 50, 49, 7}) {
    player->DrawFrame(position);
    EXPECT_EQ(player->Position(), position) << "whatever is shown meanwhile";
    EXPECT_EQ(player.sink.signalled.back(), position);
    waitForExact();
    ASSERT_EQ(player.Shown(), position);
  }
  player->setExactPictures(true);
  for (const int position : {118, 61, 3}) {
    player->DrawFrame(position);
    ASSERT_EQ(player.Shown(), position) << "at once";
  }
  player->Unload();
  EXPECT_EQ(player.host.TimerCount(), 0u);
}

TEST(AVIControl, KeepsItsSettingsInABag) {
  Player player;
  player->ReadProperties({});
  const PropertyBag defaults = player->WriteProperties();
  EXPECT_EQ(defaults.size(), 14u);
  using Property = std::pair<const char*, std::int64_t>;
  for (const auto& [name, value] : {Property{"DrawMode", 13},
                                    {"DrawWidth", 1},
                                    {"ForceFormat", 3},
                                    {"Speed", 100},
                                    {"ForeColor", 0x80000012},
                                    {"BackColor", 0x8000000F},
                                    {"CompSpeed", 1},
                                    {"FlipH", 0}})
    EXPECT_EQ(defaults.at(name), value) << name;
  const PropertyBag others = {{"Loop", -1},        {"DrawStyle", 2},   {"DrawMode", 7},  {"DrawWidth", 3},
                              {"ForeColor", 255},  {"BackColor", 5},   {"KeyColor", 77}, {"FlipH", -1},
                              {"SplitFields", -1}, {"ForceFormat", 4}, {"Speed", 25},    {"ID", 8},
                              {"Soften", -1},      {"CompSpeed", 9}};
  player->ReadProperties(others);
  EXPECT_EQ(player->WriteProperties(), others);

  for (const int bad : {5, -1}) EXPECT_FALSE(player->setForceDisplayFormat(bad));
  EXPECT_FALSE(player->setSpeed(0));
  EXPECT_FALSE(player->setForecolor(static_cast<Colour>(0x80000019)));
  EXPECT_FALSE(player->setBackColor(0x01000000));
  EXPECT_EQ(player->WriteProperties(), others);
  player->ReadProperties({{"DrawMode", 40}, {"ForceFormat", 9}, {"Speed", -1}, {"ForeColor", 0x90000000}});
  EXPECT_EQ(player->WriteProperties(), defaults);
}

}  // namespace
}  // namespace kinalyx::test
