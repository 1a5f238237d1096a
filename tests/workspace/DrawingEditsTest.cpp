#include "workspace/edits/DrawingEdits.h"

#include <gtest/gtest.h>

#include <fstream>

#include "AnalysisStage.h"

namespace kinalyx::test {
namespace {

/// A section with one video in which a line, a square and a circle are drawn.
struct Desk : OpenStage {
  explicit Desk(const std::string& layout = "1") : OpenStage(layout) {
    Draw(kLine, {100, 200}, {300, 200});
    Draw(kSquare, {100, 250}, {160, 300});
    Draw(kEllipse, {300, 250}, {360, 300});
  }
  DrawingEdits& Edits() { return analysis.Edits(); }
};

TEST(DrawingEdits, TheBarSelectsByClickKeysAndCommands) {
  Desk desk;
  desk.Draw(kClock, {400, 100}, {440, 180});
  desk.Run("MenuEdit");
  EXPECT_EQ(desk.edits.words, "Clock Grid, 4 of 4") << "the last drawing is selected at first";
  ASSERT_TRUE(desk.edits.marks);
  EXPECT_EQ(desk.edits.marks->corner, (POINTAPI{400, 100})) << "a clock fills the box of its points";
  EXPECT_EQ(desk.edits.marks->opposite, (POINTAPI{440, 180}));
  desk.Key(kKeyTab);
  EXPECT_EQ(desk.edits.words, "Line, 1 of 4") << "Tab goes round";
  desk.Click(1, 131, 276);
  EXPECT_EQ(desk.edits.words, "Square, 2 of 4");
  for (const int key : {kKeyRight, kKeyRight, kKeyLeft, kKeyUp}) EXPECT_TRUE(desk.Key(key, kShift));
  EXPECT_EQ(desk.PointOf(1, 0), (POINTAPI{101, 249}));
  EXPECT_EQ(desk.At(1), 0) << "no step of the video";
  desk.Key(kKeyRight);
  EXPECT_EQ(desk.At(1), 1) << "the arrow alone steps, as always";
  desk.Key(kKeyDelete);
  ASSERT_EQ(desk.Shapes().NumShapes, 3);
  EXPECT_EQ(desk.Shapes().Shapes[1].Kind, kEllipse) << "the selected one went, not the last";

  desk.Click(1, 20, 20);
  EXPECT_EQ(desk.edits.words, "Click a drawing");
  EXPECT_FALSE(desk.edits.marks);
  desk.Key(kKeyDelete);
  EXPECT_EQ(desk.Shapes().NumShapes, 3) << "nothing selected, nothing deleted";
  desk.Edits().EditAll(true);
  EXPECT_TRUE(desk.edits.handles[kMoveHandle] && desk.edits.handles[kDeleteHandle]) << "all as one needs no choice";
  ASSERT_TRUE(desk.edits.marks);
  EXPECT_EQ(desk.edits.marks->opposite, (POINTAPI{440, 300}));

  desk.Key(kKeyEscape);
  EXPECT_FALSE(desk.edits.bar);
  EXPECT_TRUE(desk.Stage().HasVideo(1)) << "Escape leaves the edit only";
  desk.Run("MenuEdit");
  desk.Videos().CloseVideo(1);
  EXPECT_FALSE(desk.edits.bar);
}

TEST(DrawingEdits, AMacroFitsTheWindowThatItIsLaidOver) {
  Desk desk("2");
  desk.edits.macroName = "Plane";
  desk.Run("DTMacro");
  desk.Run("AddMacro");
  const double width = desk.MP(1).ControlWidthPixels();
  desk.Stage().SetScreen(1);
  desk.Run("Cadoffbutton");
  desk.Edits().InsertMacro(0);
  ASSERT_EQ(desk.Shapes().NumShapes, 3);
  EXPECT_NEAR(desk.PointOf(0, 1).x, 300 * desk.MP(1).ControlWidthPixels() / width, 1);
  EXPECT_TRUE(desk.edits.bar && desk.edits.multi);
  desk.Key(kKeyTab);
  EXPECT_TRUE(desk.edits.multi) << "a disabled handle has no key either";
  desk.Key('Z', kCtrl);
  EXPECT_EQ(desk.Shapes().NumShapes, 0);

  desk.Edits().DeleteMacro(0);
  EXPECT_EQ(desk.edits.macros, std::vector<std::string>{"Plane"}) << "the user was asked";
  // A file that nobody can read is told of, kept, and told of again.
  std::ofstream(desk.folder + "/Macro.dat") << "of another program";
  desk.host.messages.clear();
  desk.Run("DTMacro");
  EXPECT_EQ(desk.host.messages.size(), 2u);
  EXPECT_TRUE(std::filesystem::exists(desk.folder + "/Macro.dat.old"));
  desk.Key(kKeyEscape);
  desk.Key(kKeyEscape);
  EXPECT_FALSE(desk.edits.macroForm);
}

TEST(DrawingEdits, AMacroOfDrawingsThatCameBackFitsTheirWindow) {
  // Drawn in a small window, seen in a large one: the macro is what is seen.
  Desk desk("4");
  desk.edits.macroName = "Plane";
  desk.Stage().SetScreen(1);
  const POINTAPI seen = desk.PointOf(0, 1);
  desk.Run("DTMacro");
  desk.Edits().InsertMacro(0);
  EXPECT_EQ(desk.PointOf(0, 1), seen);

  // Drawings that came with the video, in which nobody has drawn since.
  desk.Videos().CloseVideo(1);
  desk.Open(1, desk.path);
  const POINTAPI stored = desk.PointOf(0, 1);
  desk.Run("DTMacro");
  desk.Edits().InsertMacro(1);
  EXPECT_EQ(desk.PointOf(0, 1), stored);
  const double width = desk.MP(1).ControlWidthPixels();
  desk.Stage().SetScreen(4);
  desk.Edits().InsertMacro(1);
  EXPECT_NEAR(desk.PointOf(0, 1).x, stored.x * desk.MP(1).ControlWidthPixels() / width, 1);
}

TEST(DrawingEdits, DrawingsAreClonedToWhereTheyAreSeen) {
  Desk desk("1");
  EXPECT_FALSE(desk.Edits().CanClone()) << "no other video";
  desk.Stage().SetScreen(2);
  desk.Open(2, desk.Video("b.avi"));
  desk.Stage().SetScreen(1);
  desk.Run("DTClone");
  EXPECT_EQ(desk.Shapes(2).NumShapes, 3);
  EXPECT_EQ(desk.Stage().CurrentWindow, 2);
  EXPECT_EQ(desk.Stage().ScreenLayout, "2") << "a target that was hidden is shown";

  desk.Stage().SetScreen(4);
  desk.Open(4, desk.Video("c.avi"));
  desk.Run("DTClone");
  EXPECT_EQ(desk.edits.offeredTargets, (std::vector<int>{1, 4}));
  EXPECT_EQ(desk.Shapes(4).NumShapes, 0) << "the user chose none";
  desk.edits.cloneTarget = 4;
  desk.Run("TMAX");
  desk.Run("DTClone");
  EXPECT_EQ(desk.Stage().ScreenLayout, "4");
  EXPECT_EQ(desk.Shapes(4).NumShapes, 3);
  EXPECT_EQ(desk.Stage().CurrentWindow, 4);
  desk.Run("UndoDrawing");
  EXPECT_EQ(desk.Shapes(4).NumShapes, 0);
  EXPECT_FALSE(desk.Edits().CanClone()) << "nothing to copy here now";
}

}  // namespace
}  // namespace kinalyx::test
