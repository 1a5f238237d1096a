// A maximized window, the film strip and transparency take the stage from a layout and give it back.

#include <gtest/gtest.h>

#include "AnalysisStage.h"

namespace kinalyx {
namespace {

using test::AnalysisStage;
using test::MjpegVideo;

class StageHomeTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const int slot : {1, 2, 5}) ASSERT_TRUE(stage_.Open(slot, MjpegVideo(30)));
    slots_.SelectWindow(5);
  }
  void Toggle(const std::string& mode) {
    if (mode == "TMAX") slots_.ToggleMaximize();
    if (mode == "smbar") stage_.Modes().Strip().ToggleStrip();
    if (mode == "STM") stage_.Modes().Transparency().ToggleTransparency();
  }
  /// Everything is as in a layout that was never left.
  void ExpectHome(const std::string& layout, int window) {
    EXPECT_EQ(slots_.ScreenLayout, layout);
    EXPECT_EQ(slots_.CurrentWindow, window);
    EXPECT_EQ(stage_.window.cells.size(), static_cast<std::size_t>(Val(layout)));
    for (const auto& [slot, cell] : stage_.window.cells) {
      EXPECT_EQ(stage_.window.borders[slot], slot == window) << slot;
      EXPECT_EQ(cell.Height, stage_.window.cells[1].Height) << slot;
    }
    EXPECT_FALSE(slots_.Home().Away() || slots_.BarHidden);
    EXPECT_FALSE(stage_.compareView.transparency || stage_.compareView.strip);
    EXPECT_FALSE(stage_.Modes().Transparency().TransparencyOn() || stage_.Modes().Strip().Shown());
  }

  AnalysisStage stage_{"8"};
  Stage& slots_ = stage_.Stage();
};

TEST_F(StageHomeTest, EveryWayThereLeadsBack) {
  const std::string modes[] = {"TMAX", "smbar", "STM"};
  const struct {
    const char* name;
    std::function<void(const std::string& last)> leave;
    std::string layout;
    int window;
  } ways[] = {
      {"its own button", [&](const std::string& last) { Toggle(last); }, "8", 5},
      {"Esc", [&](const std::string&) { stage_.Key(kKeyEscape); }, "8", 5},
      {"a layout with the window", [&](const std::string&) { stage_.Key('6'); }, "6", 5},
      {"a layout without it", [&](const std::string&) { stage_.Key('4'); }, "4", 1},
      {"the layout of transparency", [&](const std::string&) { stage_.Key('2'); }, "2", 1},
      {"a video sent to another window",
       [&](const std::string&) { EXPECT_EQ(stage_.Videos().SendToAnalysis(stage_.Video("sent.avi")), 3); }, "8", 3},
      {"all videos closed", [&](const std::string&) { EXPECT_TRUE(stage_.Videos().CloseAll()); }, "8", 1},
  };
  for (const std::string& first : modes)
    for (const std::string& last : modes)
      for (const auto& way : ways) {
        SCOPED_TRACE(first + ", " + last + ", left by " + way.name);
        Toggle(first);
        if (last != first) Toggle(last);
        EXPECT_EQ(slots_.Maximized(), last == "TMAX");
        EXPECT_EQ(stage_.compareView.strip, last == "smbar");
        EXPECT_EQ(stage_.compareView.transparency, last == "STM");
        way.leave(last);
        ExpectHome(way.layout, way.window);
        stage_.Videos().ReopenClosed();  // what was closed, under the layout and the window from before
        if (slots_.HasVideo(3)) stage_.Videos().CloseVideo(3);
        slots_.SetScreen(8);
        if (way.name == std::string("all videos closed")) {
          EXPECT_EQ(slots_.CurrentWindow, 5);
        }
        slots_.SelectWindow(5);
      }
}

TEST_F(StageHomeTest, ANewVideoInTheMixStaysThere) {
  Toggle("STM");
  ASSERT_TRUE(stage_.Videos().CloseVideo(1));
  EXPECT_EQ(stage_.Videos().SendToAnalysis(stage_.Video("sent.avi")), 1);
  EXPECT_TRUE(stage_.compareView.transparency);
  Toggle("STM");
  ExpectHome("8", 5);
  // The strip and a maximized window go with their video.
  for (const char* mode : {"smbar", "TMAX"}) {
    ASSERT_TRUE(stage_.Open(5, MjpegVideo(30)));
    Toggle(mode);
    ASSERT_TRUE(stage_.Videos().CloseVideo(5));
    ExpectHome("8", 5);
  }
  // Another layout leaves them also where it shows no video at all.
  ASSERT_TRUE(stage_.Videos().CloseVideo(1));
  ASSERT_TRUE(stage_.Open(5, MjpegVideo(30)));
  Toggle("smbar");
  stage_.Key('1');
  ExpectHome("1", 1);
}

}  // namespace
}  // namespace kinalyx
