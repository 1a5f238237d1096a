#include "workspace/edits/DrawingEdits.h"

#include <gtest/gtest.h>

#include <fstream>

#include "AnalysisStage.h"

namespace kinalyx::test {
namespace {

/// A section with one video in which a line, a square and a circle are drawn.
struct Desk : AnalysisStage {
  explicit Desk(const std::string& layout = "1") : AnalysisStage(layout) {
    path = Video("a.avi");
    Open(1, path);
    Draw(kLine, {100, 200}, {300, 200});
    Draw(kSquare, {100, 250}, {160, 300});
    Draw(kEllipse, {300, 250}, {360, 300});
  }
  DrawingEdits& Edits() { return analysis.Edits(); }
  std::string path;
};

TEST(DrawingEdits, TheBarSelectsByClickKeysAndCommands) {
  Desk desk;
  desk.Commands().Run("MenuEdit");
  EXPECT_TRUE(desk.edits.bar);
  EXPECT_EQ(desk.edits.words, "Circle, 3 of 3") << "the last drawing is selected at first";
  desk.Key(kKeyTab);
  EXPECT_EQ(desk.edits.words, "Line, 1 of 3") << "Tab goes round";
  ASSERT_TRUE(desk.edits.marks);
  EXPECT_EQ(desk.edits.marks->pivot, (POINTAPI{200, 200}));
  desk.Click(1, 131, 276);
  EXPECT_EQ(desk.edits.words, "Square, 2 of 3");

  for (const int key : {kKeyRight, kKeyRight, kKeyLeft, kKeyUp}) EXPECT_TRUE(desk.Key(key, kShift));
  EXPECT_EQ(desk.PointOf(1, 0), (POINTAPI{101, 249}));
  EXPECT_EQ(desk.MP(1).Position(), 0) << "no step of the video";
  desk.Key(kKeyRight);
  EXPECT_EQ(desk.MP(1).Position(), 1) << "the arrow alone steps, as always";

  desk.Key(kKeyDelete);
  EXPECT_EQ(desk.Shapes().NumShapes, 2);
  EXPECT_EQ(desk.Shapes().Shapes[1].Kind, kEllipse) << "the selected one went, not the last";
  desk.Click(1, 20, 20);
  EXPECT_EQ(desk.edits.words, "Click a drawing");
  EXPECT_FALSE(desk.edits.marks);
  desk.Key(kKeyDelete);
  EXPECT_EQ(desk.Shapes().NumShapes, 2) << "nothing selected, nothing deleted";

  desk.Key(kKeyEscape);
  EXPECT_FALSE(desk.edits.bar);
  EXPECT_TRUE(desk.Stage().HasVideo(1)) << "Escape leaves the edit only";
  desk.Commands().Run("MenuEdit");
  desk.Videos().CloseVideo(1);
  EXPECT_FALSE(desk.edits.bar);
}

TEST(DrawingEdits, AllAsOneNeedsNoChoiceAndFramesWhatIsSeen) {
  Desk desk;
  desk.Draw(kClock, {400, 100}, {440, 180});
  desk.Commands().Run("MenuEdit");
  ASSERT_TRUE(desk.edits.marks);
  EXPECT_EQ(desk.edits.marks->corner, (POINTAPI{400, 100})) << "a clock fills the box of its points";
  EXPECT_EQ(desk.edits.marks->opposite, (POINTAPI{440, 180}));
  desk.Click(1, 20, 20);
  ASSERT_FALSE(desk.edits.marks);
  desk.Edits().EditAll(true);
  EXPECT_TRUE(desk.edits.handles[kMoveHandle] && desk.edits.handles[kDeleteHandle]);
  ASSERT_TRUE(desk.edits.marks);
  EXPECT_EQ(desk.edits.marks->opposite, (POINTAPI{440, 300}));
}

TEST(DrawingEdits, HandlesOnThePictureFollowTheMouse) {
  Desk desk;
  desk.Commands().Run("MenuEdit");
  desk.Click(1, 200, 200);  // the line from 100 to 300, about 200
  const auto drag = [&](EditHandle handle, POINTAPI from, POINTAPI to) {
    desk.Edits().HandlePressed(handle, from);
    desk.Edits().HandleDragged({(from.x + to.x) / 2, (from.y + to.y) / 2});
    desk.Edits().HandleDragged(to);
    desk.Edits().HandleReleased();
  };
  drag(kScaleHandle, {300, 200}, {250, 200});
  EXPECT_EQ(desk.PointOf(0, 0), (POINTAPI{150, 200})) << "half as far from the middle, half as large";
  EXPECT_EQ(desk.PointOf(0, 1), (POINTAPI{250, 200}));
  drag(kRotateHandle, {200, 145}, {255, 200});
  EXPECT_NEAR(desk.PointOf(0, 0).x, 200, 1) << "a quarter turn with the clock";
  EXPECT_NEAR(desk.PointOf(0, 0).y, 150, 1);

  // All as one: the square and the circle come with the line.
  desk.Edits().EditAll(true);
  EXPECT_EQ(desk.edits.words, "All 3 drawings");
  drag(kMoveHandle, {0, 0}, {10, 0});
  EXPECT_EQ(desk.PointOf(1, 0), (POINTAPI{110, 250}));
  EXPECT_EQ(desk.PointOf(2, 0), (POINTAPI{310, 250}));
}

TEST(DrawingEdits, AMacroFitsTheWindowThatItIsLaidOver) {
  Desk desk("2");
  desk.Commands().Run("DTMacro");
  EXPECT_EQ(desk.Edits().MacroList().NumMacros(), 0) << "no name, no macro";
  desk.edits.macroName = "Plane";
  desk.Commands().Run("DTMacro");
  desk.Commands().Run("AddMacro");
  EXPECT_TRUE(desk.edits.macroForm);
  EXPECT_EQ(desk.edits.macros, std::vector<std::string>{"Plane"});
  EXPECT_TRUE(std::filesystem::exists(desk.folder + "/Macro.dat"));

  const double width = desk.MP(1).ControlWidthPixels();
  desk.Stage().SetScreen(1);
  desk.Commands().Run("Cadoffbutton");
  desk.Edits().InsertMacro(0);
  ASSERT_EQ(desk.Shapes().NumShapes, 3);
  EXPECT_NEAR(desk.PointOf(0, 1).x, 300 * desk.MP(1).ControlWidthPixels() / width, 1);
  EXPECT_TRUE(desk.edits.bar && desk.edits.multi);
  EXPECT_FALSE(desk.edits.handles[kNextHandle] || desk.edits.handles[kRotateHandle]);
  desk.Key(kKeyTab);
  EXPECT_TRUE(desk.edits.multi) << "a disabled handle has no key either";
  desk.Key('Z', kCtrl);
  EXPECT_EQ(desk.Shapes().NumShapes, 0);

  desk.host.answers = {false, true};
  desk.Edits().DeleteMacro(0);
  EXPECT_EQ(desk.edits.macros.size(), 1u);
  desk.Edits().DeleteMacro(0);
  EXPECT_TRUE(desk.edits.macros.empty());
  EXPECT_FALSE(std::filesystem::exists(desk.folder + "/Macro.dat")) << "without macros there is no file";
  // A file that nobody can read is told of, kept, and told of again.
  std::ofstream(desk.folder + "/Macro.dat") << "of another program";
  desk.host.messages.clear();
  desk.Commands().Run("DTMacro");
  EXPECT_EQ(desk.host.messages.size(), 2u);
  EXPECT_EQ(desk.edits.macros, std::vector<std::string>{"Plane"});
  EXPECT_TRUE(std::filesystem::exists(desk.folder + "/Macro.dat.old"));
  desk.Key(kKeyEscape);
  desk.Key(kKeyEscape);
  EXPECT_FALSE(desk.edits.macroForm);
  EXPECT_TRUE(desk.Stage().HasVideo(1));
}

TEST(DrawingEdits, AMacroOfDrawingsThatCameBackFitsTheirWindow) {
  // Drawn in a small window, seen in a large one: the macro is what is seen.
  Desk desk("4");
  desk.edits.macroName = "Plane";
  desk.Stage().SetScreen(1);
  const POINTAPI seen = desk.PointOf(0, 1);
  desk.Commands().Run("DTMacro");
  desk.Edits().InsertMacro(0);
  EXPECT_EQ(desk.PointOf(0, 1), seen);

  // Drawings that came with the video, in which nobody has drawn since.
  desk.Videos().CloseVideo(1);
  desk.Open(1, desk.path);
  const POINTAPI stored = desk.PointOf(0, 1);
  desk.Commands().Run("DTMacro");
  desk.Edits().InsertMacro(1);
  EXPECT_EQ(desk.PointOf(0, 1), stored);
  const double width = desk.MP(1).ControlWidthPixels();
  desk.Stage().SetScreen(4);
  desk.Edits().InsertMacro(1);
  EXPECT_NEAR(desk.PointOf(0, 1).x, stored.x * desk.MP(1).ControlWidthPixels() / width, 1);
}

TEST(DrawingEdits, TheGridIsTurnedOnAndSized) {
  Desk desk;
  desk.Key(kKeyF12);
  EXPECT_TRUE(desk.Shapes().GridOn);
  EXPECT_TRUE(desk.Commands().Find("ribShowGrid")->checked());
  desk.Commands().Run("TAGrid");
  EXPECT_TRUE(desk.edits.gridPanel);
  const Colour ink = desk.settings.NewColors[11];
  const int width = desk.MP(1).ControlWidthPixels();
  for (const int divisions : {4, 3}) {
    desk.Edits().SetGridSize(divisions);
    const auto inked = [&](int of) { return desk.MP(1).Picture().Pixel(width % of / 2 + width / of, 5) == ink; };
    EXPECT_TRUE(inked(divisions) && !inked(7 - divisions)) << divisions;
  }
  EXPECT_EQ(desk.Edits().GridSize(), 3);
  desk.Key(kKeyEscape);
  EXPECT_FALSE(desk.edits.gridPanel);
  desk.Commands().Run("ribShowGrid");
  EXPECT_FALSE(desk.Shapes().GridOn);
}

TEST(DrawingEdits, DrawingsAreClonedToWhereTheyAreSeen) {
  Desk desk("1");
  EXPECT_FALSE(desk.Edits().CanClone()) << "no other video";
  desk.Stage().SetScreen(2);
  desk.Open(2, desk.Video("b.avi"));
  desk.Stage().SetScreen(1);
  desk.Commands().Run("DTClone");
  EXPECT_EQ(desk.Shapes(2).NumShapes, 3);
  EXPECT_EQ(desk.Stage().CurrentWindow, 2);
  EXPECT_EQ(desk.Stage().ScreenLayout, "2") << "a target that was hidden is shown";

  desk.Stage().SetScreen(4);
  desk.Open(4, desk.Video("c.avi"));
  desk.Commands().Run("DTClone");
  EXPECT_EQ(desk.edits.offeredTargets, (std::vector<int>{1, 4}));
  EXPECT_EQ(desk.Shapes(4).NumShapes, 0) << "the user chose none";
  desk.edits.cloneTarget = 4;
  desk.Commands().Run("TMAX");
  desk.Commands().Run("DTClone");
  EXPECT_EQ(desk.Stage().ScreenLayout, "4");
  EXPECT_EQ(desk.Shapes(4).NumShapes, 3);
  EXPECT_EQ(desk.Stage().CurrentWindow, 4);
  desk.Commands().Run("UndoDrawing");
  EXPECT_EQ(desk.Shapes(4).NumShapes, 0);
  EXPECT_FALSE(desk.Edits().CanClone()) << "nothing to copy here now";
}

}  // namespace
}  // namespace kinalyx::test
