#include "workspace/commands/MenuBar.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "AnalysisStage.h"
#include "workspace/commands/KeyWords.h"

namespace kinalyx::test {
namespace {

TEST(CommandsTest, TellWhyWhatCannotBeDoneCannot) {
  AnalysisStage stage("4");
  const auto reason = [&](const char* command) { return stage.Commands().Find(command)->Reason(); };
  const auto checked = [&](const char* command) { return stage.Commands().Find(command)->checked(); };
  EXPECT_EQ(reason("vplay"), "Open a video first");
  EXPECT_EQ(reason("TTES"), "Open a video first");
  EXPECT_EQ(reason("STM"), "Open videos in windows 1 and 2 first");
  EXPECT_FALSE(stage.Run("TTES") || stage.Run("no such thing"));
  stage.Open(1, stage.Video("a.avi"));
  EXPECT_EQ(reason("vplay") + reason("TFT"), "");
  EXPECT_EQ(reason("Cadoffbutton"), "Nothing is drawn in the current window");
  stage.Stage().ToggleMaximize();
  EXPECT_NE(reason("TF"), "");
  EXPECT_TRUE(checked("TMAX"));

  // Straight tools and plain ones are two things.
  stage.Run("DDSL");
  EXPECT_TRUE(checked("DDSL") && !checked("MenuDraw3"));
  stage.Click(1, 100, 100);
  stage.Click(1, 300, 140);
  stage.Run("MenuDraw3");
  EXPECT_TRUE(checked("MenuDraw3") && !checked("DDSL"));
}

TEST(CommandsTest, EveryKeyOfTheTableDoesItsWork) {
  OpenStage stage("2");
  for (const int key : {kKeyRight, kKeyRight, kKeyLeft}) stage.Key(key);
  EXPECT_EQ(stage.At(1), 1);
  stage.Key(kKeyDown);
  EXPECT_TRUE(stage.MP(1).IsPlaying());
  stage.Key(kKeyUp);
  EXPECT_EQ(stage.At(1), 0);
  stage.Type('p');
  EXPECT_TRUE(stage.MP(1).IsPlaying());
  stage.Type('R');
  EXPECT_FALSE(stage.MP(1).IsPlaying());
  for (const char key : {'s', 'l', 'F', 'm'}) stage.Type(key);
  EXPECT_EQ(stage.MP(1).Speed(), 25);
  EXPECT_TRUE(stage.MP(1).Repeat() && stage.MP(1).FlipHorizontal());
  EXPECT_EQ(stage.window.marks.size(), 1u);
  stage.Key(kKeyHome);
  stage.Key(kKeyEnd);
  stage.Key(kKeyPageUp);
  EXPECT_EQ((std::array{stage.libraryVisits, stage.menuVisits, stage.captureVisits}), (std::array{1, 1, 1}));
  stage.Type('o');
  EXPECT_EQ(stage.window.openPanels, 1);

  const char* const layouts[] = {"1", "2", "3T", "4", "3L", "6", "2H", "8"};
  for (int digit = 1; digit <= 8; ++digit) {
    stage.Key(kKey0 + digit);
    EXPECT_EQ(stage.Stage().ScreenLayout, layouts[digit - 1]);
  }
  for (const auto& [key, slot] : {std::pair{9, 2}, {3, 3}, {1, 4}, {7, 1}}) {
    stage.Key(kKeyNumpad0 + key);
    EXPECT_EQ(stage.Stage().CurrentWindow, slot);
  }
  stage.Key(kKey0 + 2);
  stage.Key(kKeyNumpad0 + 3);
  EXPECT_EQ(stage.Stage().CurrentWindow, 1) << "two windows have no third";
  stage.Type('c');
  EXPECT_FALSE(stage.Stage().HasVideo(1));
}

TEST(CommandsTest, TheKeysOfAnEditorTakeThePlaceOfThoseInTheirWay) {
  OpenStage stage("2");
  const auto caption = [&](const char* item) { return CaptionWithKey(*stage.Commands().Find(item)); };
  EXPECT_EQ(caption("vo"), "O - Open New Video");
  EXPECT_EQ(caption("FitPicture") + stage.Commands().KeyOf("vloop"), "Fit Picture in Window\tWL");
  stage.settings.KeysAndTools = kEditorKeys;
  stage.analysis.SettingsChanged();
  EXPECT_EQ(caption("vo") + stage.Commands().KeyOf("vloop"), "Open New Video\tCtrl+OCtrl+L");
  EXPECT_EQ(caption("vplay"), "Play / Pause Toggle\tSpace");
  EXPECT_EQ(caption("VLib"), "Student Profiles\tCtrl+Home");
  EXPECT_EQ(caption("MnuCloseAll"), "Close All Videos\tEsc");
  stage.Type('o');
  stage.Key(kKeyHome);
  EXPECT_EQ(stage.window.openPanels + stage.libraryVisits, 0);
  stage.Key('O', kCtrl);
  stage.Key(kKeyHome, kCtrl);
  stage.Key('Q', kCtrl);
  EXPECT_EQ((std::array{stage.window.openPanels, stage.libraryVisits, stage.quits}), (std::array{1, 1, 1}));
  stage.Draw(kLine, {10, 20}, {50, 60});
  EXPECT_FALSE(std::filesystem::exists(stage.sidecar));
  stage.Key('S', kCtrl);
  EXPECT_TRUE(std::filesystem::exists(stage.sidecar));
  EXPECT_EQ(stage.window.text, "Saved");
  stage.host.Advance(2000);
  EXPECT_EQ(stage.window.text, "");
  stage.Open(2, stage.Video("b.avi"));
  stage.Key('S', kCtrl);
  EXPECT_EQ(stage.window.text, "Saved: a, b");
  stage.Type('f');
  EXPECT_TRUE(stage.MP(1).FlipHorizontal()) << "all others stay as they are";
  stage.Key('W', kCtrl);
  EXPECT_FALSE(stage.Stage().HasVideo(1));
}

TEST(CommandsTest, ARightClickOffersWhatCanBeDoneThere) {
  OpenStage stage("2");
  const auto items = [&] {
    std::string all;
    for (const Command* command : stage.Commands().WindowMenu()) all += command ? command->item + " " : "| ";
    return all;
  };
  stage.Click(1, 100, 100, 2);
  EXPECT_EQ(stage.window.windowMenus, 1);
  EXPECT_EQ(items(),
            "vo OpenFromDisk MnuClose | FitPicture TMAX vFlip | TMark | vloop TSFrames TN PrintCall | TSaveClip "
            "TCopyPicture TSavePicture ");
  stage.Stage().SelectWindow(2);
  EXPECT_EQ(items(), "vo OpenFromDisk ");
  stage.Stage().SelectWindow(1);
  stage.Draw(kLine, {10, 100}, {200, 100});
  stage.Click(1, 100, 100, 2);
  stage.Type('p');
  stage.Click(1, 300, 300, 2);
  EXPECT_EQ(stage.window.windowMenus, 1) << "a drawing has its own, and a video that plays is stopped";
}

TEST(CommandsTest, PanAndZoomKeysKeepTheirLimits) {
  OpenStage stage;
  const Slot& slot = stage.Stage().At(1);
  for (const char key : {'y', 'y', 'h'}) stage.Type(key);
  EXPECT_EQ(slot.PanY, -100);
  EXPECT_EQ(slot.PanX, 50);
  for (int i = 0; i < 40; ++i) stage.Type('+');
  EXPECT_EQ(slot.VideoZoom, 4.0);
  for (int i = 0; i < 60; ++i) stage.Type('-');
  EXPECT_EQ(slot.VideoZoom, 0.2);
  stage.Type('*');
  EXPECT_EQ(slot.VideoZoom, 1.0);
  stage.Key(kKeyNumpad0 + 5);
  EXPECT_EQ(slot.PanX, 0);
  EXPECT_EQ(stage.Stage().At(2).VideoZoom, 1.0);
}

TEST(CommandsTest, EscapeLeavesOneThingAtATimeAndTheVideosComeBack) {
  OpenStage stage("2");
  stage.Open(2, stage.Video("b.avi"));
  stage.MP(2).DrawFrame(7);
  stage.Stage().SelectWindow(2);
  stage.Draw(kLine, {10, 20}, {50, 60});
  stage.Videos().ToggleFlip();
  stage.Stage().SetZoom(2);
  const POINTAPI drawn = stage.Shapes(2).Shapes[0].Pts[0];
  stage.Run("TVT");
  stage.Run("TN");
  stage.Run("MZoom");
  stage.Type('o');
  stage.Key(kKeyF1);
  stage.window.markList = true;
  const auto open = [&] {
    return std::array{stage.window.markList, stage.analysis.Tools().Drawing(),
                      stage.window.lists,    stage.window.notes.has_value(),
                      stage.window.timer,    stage.Modes().ZoomShown()};
  };
  for (std::size_t left = 0; left < 6; ++left) {
    EXPECT_TRUE(open()[left]) << left;
    stage.Key(kKeyEscape);
    EXPECT_FALSE(open()[left]) << left;
  }
  EXPECT_TRUE(stage.Stage().HasVideo(1) && stage.Stage().HasVideo(2));
  EXPECT_FALSE(stage.Run("ReopenVideos")) << "nothing is closed";

  stage.Key(kKeyEscape);
  EXPECT_FALSE(stage.Stage().HasVideo(1) || stage.Stage().HasVideo(2));
  stage.Stage().SetScreen(1);
  stage.analysis.KeyDown('T', kShift | kCtrl, 1);
  EXPECT_TRUE(stage.Stage().HasVideo(1) && stage.Stage().HasVideo(2));
  EXPECT_EQ(stage.Stage().ScreenLayout, "2");
  EXPECT_EQ(stage.Stage().CurrentWindow, 2);
  EXPECT_EQ(stage.At(2), 7);
  EXPECT_TRUE(stage.MP(2).FlipHorizontal());
  EXPECT_EQ(stage.Stage().Current().VideoZoom, 2);
  EXPECT_EQ(stage.Shapes(2).Shapes[0].Pts[0], drawn);

  // Only as long as the stage is empty, and without what has gone from the disk meanwhile.
  stage.Key(kKeyEscape);
  std::filesystem::remove(stage.path);
  EXPECT_TRUE(stage.Run("ReopenVideos"));
  EXPECT_FALSE(stage.Stage().HasVideo(1));
  EXPECT_TRUE(stage.Stage().HasVideo(2));
}

}  // namespace
}  // namespace kinalyx::test
