#include <algorithm>

#include "DrawingSupport.h"

namespace kinalyx::test {
namespace {

struct Bar final : IEditMarks {
  bool shown = false;
  bool multi = false;
  int set = 0;
  bool Shown() const override { return shown; }
  bool MultiEdit() const override { return multi; }
  void SetEditBar() override { ++set; }
};

TEST(DrawingTools, ALineFromTwoClicksEndsItsTool) {
  Desk desk;
  desk.tools.CmdMakeShape_Click(kLine);
  EXPECT_TRUE(desk.tools.Drawing());
  EXPECT_EQ(desk.workspace.caption, "                 Drawing a Line in Color       ");
  EXPECT_EQ(desk.workspace.vectorColor, 0xFF0000);
  EXPECT_EQ(desk.workspace.button, 2);
  desk.Move(5, 5);
  EXPECT_EQ(desk.List().NumShapes, 0) << "nothing before the first press";

  desk.Click(100, 100);
  EXPECT_TRUE(desk.List().Adding);
  desk.Move(100, 150);
  EXPECT_EQ(desk.List().Shapes[0].NumPts, 2);
  EXPECT_EQ(desk.workspace.display, "0°- 90° angle H-V     50 px");
  desk.Click(100, 200);
  const Shape& line = desk.List().Shapes[0];
  EXPECT_TRUE(line.Locked);
  EXPECT_EQ(line.Pts[0], (POINTAPI{100, 100}));
  EXPECT_EQ(line.Pts[1], (POINTAPI{100, 200}));
  EXPECT_EQ(line.Colour, 0xFF0000);
  EXPECT_FALSE(desk.tools.Drawing());
  EXPECT_FALSE(desk.List().Adding);
  EXPECT_EQ(desk.workspace.caption, "");
  EXPECT_EQ(desk.workspace.vectorColor, -1);
  EXPECT_EQ(desk.workspace.button, -1);
  EXPECT_EQ(desk.workspace.display, "0°- 90° angle H-V     100 px") << "the measure stays";
  EXPECT_EQ(desk.List().CanvasWidth, 640 * 15);
  EXPECT_EQ(desk.workspace.drawingsChanged, 1);
  EXPECT_FALSE(desk.Down(10, 10)) << "the next click is the transport's";
}

TEST(DrawingTools, EveryToolMakesItsKind) {
  struct Case {
    int kind;
    std::vector<POINTAPI> clicks;
  };
  Desk desk;
  const Case cases[] = {{kFlag, {{10, 10}}},
                        {kSquare, {{10, 10}, {90, 90}}},
                        {kEllipse, {{10, 10}, {90, 90}}},
                        {kAngle, {{10, 10}, {90, 90}, {10, 90}}},
                        {kParallelogram, {{10, 10}, {90, 10}, {99, 50}}},
                        {kZone, {{10, 10}, {90, 10}, {99, 50}}},
                        {kClock, {{10, 10}, {90, 90}}},
                        {kArrow, {{10, 10}, {90, 90}}}};
  int count = 0;
  for (const Case& entry : cases) {
    desk.tools.CmdMakeShape_Click(entry.kind);
    for (const POINTAPI& point : entry.clicks) {
      EXPECT_TRUE(desk.tools.Drawing());
      desk.Click(point.x, point.y);
    }
    ASSERT_EQ(desk.List().NumShapes, ++count);
    const Shape& shape = desk.List().Shapes.back();
    EXPECT_EQ(shape.Kind, entry.kind);
    EXPECT_TRUE(shape.Locked);
    EXPECT_EQ(shape.NumBound, static_cast<int>(entry.clicks.size()));
    EXPECT_EQ(shape.Colour, desk.settings.NewColors[static_cast<std::size_t>(entry.kind)]);
    EXPECT_FALSE(desk.tools.Drawing());
  }
}

TEST(DrawingTools, AFreehandIsOneStroke) {
  Desk desk;
  desk.tools.CmdMakeShape_Click(kFreehand);
  desk.Down(10, 10);
  desk.Move(20, 15);
  desk.Move(30, 10);
  desk.Up(40, 20);
  ASSERT_EQ(desk.List().NumShapes, 1);
  EXPECT_TRUE(desk.List().Shapes[0].Locked);
  EXPECT_EQ(desk.List().Shapes[0].NumBound, 3);
  EXPECT_FALSE(desk.tools.Drawing());
  // A mere click leaves nothing to see, and so nothing.
  desk.tools.CmdMakeShape_Click(kFreehand);
  desk.Down(10, 10);
  desk.Up(10, 10);
  EXPECT_EQ(desk.List().NumShapes, 1);
  EXPECT_FALSE(desk.tools.Drawing());
}

TEST(DrawingTools, APathStepsTheVideoWithEachClick) {
  Desk desk;
  desk.Draw(kSwingPath, {{10, 10}, {30, 10}, {60, 20}});
  EXPECT_EQ(desk.workspace.frame[1], 3);
  EXPECT_TRUE(desk.tools.Drawing());
  desk.Move(80, 30);
  desk.Down(80, 30, 1, 2);
  desk.Up(80, 30, 1, 2);
  EXPECT_FALSE(desk.tools.Drawing()) << "a right click ends it";
  EXPECT_FALSE(desk.List().Adding);
  ASSERT_EQ(desk.List().NumShapes, 1);
  EXPECT_EQ(desk.List().Shapes[0].NumBound, 3);
  EXPECT_EQ(desk.List().Shapes[0].NumPts, 3);

  desk.workspace.frame[1] = 8;
  desk.Draw(kSwingPath, {{10, 10}, {30, 10}});
  EXPECT_EQ(desk.workspace.frame[1], 9);
  EXPECT_FALSE(desk.tools.Drawing()) << "so does the click on the last frame";
  EXPECT_EQ(desk.List().Shapes[1].NumBound, 2);
}

TEST(DrawingTools, TheSamePixelTwiceIsOnePoint) {
  Desk desk;
  desk.tools.CmdMakeShape_Click(kLine);
  desk.Down(50, 50);
  desk.Up(50, 50);
  desk.Down(50, 50);
  desk.Up(50, 50);
  EXPECT_EQ(desk.List().Shapes[0].NumBound, 1);
  EXPECT_TRUE(desk.tools.Drawing());
  desk.Click(90, 50);
  // A new shape may begin on the pixel where the last one was pressed.
  desk.tools.CmdMakeShape_Click(kLine);
  desk.Down(90, 50);
  desk.Move(90, 90);
  desk.Up(90, 90);
  ASSERT_EQ(desk.List().NumShapes, 2);
  EXPECT_EQ(desk.List().Shapes[1].NumPts, 1);
}

TEST(DrawingTools, PickingAToolTwicePutsItDown) {
  Desk desk;
  desk.tools.CmdMakeShape_Click(kSquare);
  desk.tools.CmdMakeShape_Click(kSquare);
  EXPECT_FALSE(desk.tools.Drawing());
  EXPECT_EQ(desk.workspace.caption, "");
  EXPECT_FALSE(desk.Down(10, 10));
  EXPECT_EQ(desk.List().NumShapes, 0);

  // What is half made goes; a path stays as far as it was traced.
  desk.Draw(kAngle, {{10, 10}, {50, 50}});
  desk.tools.DrawOffBtn_Click();
  EXPECT_EQ(desk.List().NumShapes, 0);
  desk.Draw(kSwingPath, {{10, 10}, {50, 50}});
  desk.tools.CmdMakeShape_Click(kLine);
  ASSERT_EQ(desk.List().NumShapes, 1);
  EXPECT_TRUE(desk.List().Shapes[0].Locked);
  EXPECT_TRUE(desk.tools.Drawing());
  EXPECT_EQ(desk.tools.DrawKind(), kLine);
  EXPECT_NE(desk.workspace.caption, "");

  Desk empty;
  empty.workspace.hasVideo = false;
  empty.tools.CmdMakeShape_Click(kLine);
  EXPECT_FALSE(empty.tools.Drawing()) << "no tool without a video";
}

TEST(DrawingTools, AStraightLineIsStraightOnce) {
  Desk desk;
  desk.tools.DDSL_Click();
  desk.Click(100, 100);
  desk.Click(200, 130);
  EXPECT_EQ(desk.List().Shapes[0].Pts[1], (POINTAPI{200, 100}));
  desk.Draw(kLine, {{100, 100}, {200, 130}});
  EXPECT_EQ(desk.List().Shapes[1].Pts[1], (POINTAPI{200, 130}));

  desk.tools.CmdMakeShape_Click(kArrow);
  desk.tools.DDSA_Click();
  EXPECT_TRUE(desk.tools.Drawing()) << "the free arrow in hand becomes a straight one";
  desk.Click(100, 100);
  desk.tools.DrawOffBtn_Click();
  desk.Draw(kArrow, {{10, 10}, {20, 90}});
  EXPECT_EQ(desk.List().Shapes[2].Pts[1], (POINTAPI{20, 90})) << "put down, it is forgotten";
}

TEST(DrawingTools, RandomColoursStepButNotForPathsAndZones) {
  Desk desk;
  desk.settings.RandomColor = 1;
  desk.Draw(kLine, {{0, 0}, {9, 9}});
  desk.Draw(kZone, {{0, 0}, {9, 9}, {0, 9}});
  desk.Draw(kLine, {{0, 0}, {9, 9}});
  EXPECT_EQ(desk.List().Shapes[0].Colour, kColorChoices[0]);
  EXPECT_EQ(desk.List().Shapes[1].Colour, 0xFF0000);
  EXPECT_EQ(desk.List().Shapes[2].Colour, kColorChoices[2]);
  desk.tools.CmdMakeShape_Click(kLine);
  EXPECT_EQ(desk.workspace.button, 3);
  desk.tools.ColorChoiceBtn_Click(7);
  EXPECT_EQ(desk.workspace.vectorColor, kColorChoices[7]);
  desk.Click(0, 0);
  desk.Click(9, 9);
  EXPECT_EQ(desk.List().Shapes[3].Colour, kColorChoices[7]) << "the user's choice counts";
  for (int i = 0; i < 8; ++i) desk.Draw(kFlag, {{i, i}});
  desk.tools.CmdMakeShape_Click(kFlag);
  EXPECT_EQ(desk.workspace.button, 0) << "after twelve it begins again";
  for (const std::int32_t colour : desk.settings.NewColors)
    EXPECT_NE(std::ranges::find(kColorChoices, colour), kColorChoices.end()) << colour;
}

TEST(DrawingTools, AClickOnAPlayingVideoStopsItAndEndsTheTool) {
  Desk desk;
  desk.Draw(kSquare, {{10, 10}});
  desk.workspace.playing = true;
  EXPECT_TRUE(desk.Down(50, 50, 3));
  EXPECT_EQ(desk.workspace.stopClicks, 1);
  EXPECT_EQ(desk.workspace.active, 3);
  EXPECT_FALSE(desk.tools.Drawing());
  EXPECT_EQ(desk.workspace.caption, "");
  EXPECT_EQ(desk.List().NumShapes, 0);
}

TEST(DrawingTools, AShapeBelongsToTheWindowOfItsFirstPress) {
  Desk desk;
  desk.tools.CmdMakeShape_Click(kLine);
  desk.Click(10, 10, 2);
  EXPECT_EQ(desk.workspace.active, 2);
  EXPECT_EQ(desk.List(1).NumShapes, 0);
  EXPECT_EQ(desk.List(2).NumShapes, 1);
  desk.Move(300, 300, 1);
  EXPECT_EQ(desk.List(2).Shapes[0].NumPts, 1) << "the mouse in another window moves nothing";
  desk.Click(90, 90, 2);
  EXPECT_TRUE(desk.List(2).Shapes[0].Locked);
}

TEST(DrawingTools, DrawingsAreDeletedLastFirstOrAllAtOnce) {
  Desk desk;
  for (int i = 0; i < 3; ++i) desk.Draw(kFlag, {{i, i}});
  desk.tools.Lastcadoff_Click();
  EXPECT_EQ(desk.List().NumShapes, 2);
  // The shape under construction is the last; the tool stays in hand.
  desk.Draw(kLine, {{10, 10}});
  desk.tools.Lastcadoff_Click();
  EXPECT_EQ(desk.List().NumShapes, 2);
  EXPECT_TRUE(desk.tools.Drawing());
  desk.Click(20, 20);
  desk.Click(40, 40);
  EXPECT_EQ(desk.List().NumShapes, 3);
  desk.tools.Cadoffbutton_Click();
  EXPECT_FALSE(desk.tools.HasShapes(1));
  desk.tools.Lastcadoff_Click();
  desk.tools.Cadoffbutton_Click();
  EXPECT_EQ(desk.List().NumShapes, 0);

  desk.Draw(kFlag, {{1, 1}});
  desk.Draw(kFlag, {{2, 2}});
  desk.List().CurShape = 1;
  desk.tools.DeleteCurShape();
  EXPECT_EQ(desk.List().NumShapes, 1);
  EXPECT_EQ(desk.List().CurShape, 0);
  desk.workspace.hasVideo = false;
  desk.tools.Cadoffbutton_Click();
  EXPECT_EQ(desk.List().NumShapes, 1) << "only with a video in the window";
}

TEST(DrawingTools, UndoGoesThroughEveryChange) {
  Desk desk;
  desk.tools.ForgetPast(1, {640, 480, false});
  desk.Draw(kFlag, {{1, 1}});
  desk.Draw(kLine, {{1, 1}, {99, 99}});
  desk.tools.Cadoffbutton_Click();
  desk.tools.Undo(1);
  EXPECT_EQ(desk.List().NumShapes, 2);
  desk.tools.Undo(1);
  EXPECT_EQ(desk.List().NumShapes, 1);
  desk.tools.Redo(1);
  EXPECT_EQ(desk.List().NumShapes, 2);
  EXPECT_FALSE(desk.tools.CanUndo(2));

  // The picture is mirrored and the window halved: so is what comes back.
  FlipShapes(desk.List(), 640);
  desk.tools.ViewChanged(1, {640, 480, true});
  StretchShapes(desk.List(), 640, 480, 320, 240);
  desk.tools.ViewChanged(1, {320, 240, true});
  desk.tools.Undo(1);
  ASSERT_EQ(desk.List().NumShapes, 1);
  EXPECT_EQ(desk.List().Shapes[0].Pts[0].x, 320) << "half of 639, to the even neighbour";
  desk.tools.ForgetPast(1, {});
  EXPECT_FALSE(desk.tools.CanUndo(1));
}

TEST(DrawingTools, AnotherVideoInTheWindowBeginsAnotherPast) {
  Desk desk;
  desk.Draw(kLine, {{1, 1}, {99, 99}});
  desk.Draw(kSquare, {{10, 10}});
  // The video closes and another one opens, with drawings of its own, while a square is half made.
  desk.List() = {};
  Add(desk.List(), Finished(kArrow, {{1, 1}, {50, 50}}));
  EXPECT_TRUE(desk.tools.Drawing());
  desk.Click(20, 20);
  desk.Click(60, 60);
  ASSERT_EQ(desk.List().NumShapes, 2) << "the tool in hand begins anew";
  desk.tools.Undo(1);
  ASSERT_EQ(desk.List().NumShapes, 1);
  EXPECT_EQ(desk.List().Shapes[0].Kind, kArrow);
  EXPECT_FALSE(desk.tools.CanUndo(1)) << "the drawings that came with the video are no change";
}

TEST(DrawingTools, ACopyReplacesWhatTheOtherWindowHeld) {
  Desk desk;
  desk.Draw(kFlag, {{1, 1}}, 2);
  desk.tools.CopyShapes(1, 2);
  EXPECT_EQ(desk.List(2).NumShapes, 1) << "an empty source changes nothing";
  desk.Draw(kLine, {{1, 1}, {9, 9}}, 1);
  desk.Draw(kFlag, {{7, 7}}, 1);
  desk.tools.CopyShapes(1, 2);
  ASSERT_EQ(desk.List(2).NumShapes, 2);
  EXPECT_EQ(desk.List(2).Shapes[0], desk.List(1).Shapes[0]);
  EXPECT_FALSE(desk.List(2).Adding);
}

TEST(DrawingTools, WithTheEditBarClicksSelect) {
  Desk desk;
  Bar bar;
  desk.tools.AttachEditBar(&bar);
  desk.Draw(kFlag, {{100, 100}});
  desk.Draw(kFlag, {{300, 100}});
  desk.Draw(kFlag, {{300, 300}});
  EXPECT_FALSE(desk.Up(300, 110)) << "the bar is not up";
  bar.shown = true;
  EXPECT_TRUE(desk.Up(300, 110));
  EXPECT_EQ(desk.List().CurShape, 1);
  EXPECT_TRUE(desk.Up(200, 100));
  EXPECT_EQ(desk.List().CurShape, 0) << "a hundred pixels from both: the first";
  EXPECT_TRUE(desk.Up(600, 400));
  EXPECT_EQ(desk.List().CurShape, -1);
  desk.Up(300, 110, 1, 2);
  EXPECT_EQ(desk.List().CurShape, -1) << "the left button only";
  desk.Up(300, 110, 2);
  EXPECT_EQ(desk.workspace.active, 2);
}

TEST(DrawingTools, AWaitingZoomTakesTheSquare) {
  Desk desk;
  desk.workspace.takesSquares = true;
  desk.Draw(kSquare, {{10, 10}, {90, 90}});
  EXPECT_EQ(desk.List().NumShapes, 0);
  EXPECT_FALSE(desk.tools.Drawing());
  EXPECT_FALSE(desk.tools.CanUndo(1));
}

TEST(DrawingTools, AFrameIsPaintedWithMarksAndMeasure) {
  Desk desk;
  Bar bar;
  desk.tools.AttachEditBar(&bar);
  Surface surface(200, 200);
  Canvas canvas(surface);
  canvas.SetPen({0, 5, 0});
  desk.settings.CadOutline = false;
  const auto paint = [&] {
    surface.Clear(0);
    desk.tools.PreDrawFrame(canvas, 1);
  };
  desk.tools.MenuDraw_Click(11);
  paint();
  EXPECT_EQ(surface.Pixel(20, 11), 0x800000) << "ten columns";
  desk.tools.MenuDraw_Click(11);
  desk.Draw(kFlag, {{50, 150}});
  desk.Draw(kLine, {{50, 20}, {50, 80}});
  desk.workspace.display = "";
  paint();
  EXPECT_EQ(surface.Pixel(20, 11), 0);
  EXPECT_EQ(surface.Pixel(50, 50), 0xFF0000);
  EXPECT_EQ(surface.Pixel(50, 150), 0xFFFF);
  EXPECT_EQ(desk.workspace.display, "") << "no tool, no measure";

  bar.shown = true;
  paint();
  EXPECT_EQ(surface.Pixel(50, 50), 65280) << "selected";
  EXPECT_EQ(surface.Pixel(50, 150), 255);
  EXPECT_EQ(desk.workspace.display, "0°- 90° angle H-V     60 px");
  bar.multi = true;
  paint();
  EXPECT_EQ(surface.Pixel(50, 150), 65280);
  EXPECT_TRUE(desk.workspace.errors.empty());
}

}  // namespace
}  // namespace kinalyx::test
