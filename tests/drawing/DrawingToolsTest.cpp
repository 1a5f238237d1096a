#include "DrawingSupport.h"

namespace kinalyx::test {
namespace {

struct Bar final : IEditMarks {
  bool shown = false;
  bool multi = false;
  bool Shown() const override { return shown; }
  bool MultiEdit() const override { return multi; }
  void SetEditBar() override {}
};

TEST(DrawingTools, ALineFromTwoClicksEndsItsTool) {
  Desk desk;
  desk.tools.TakeTool(kLine);
  EXPECT_EQ(desk.workspace.caption, "                 Drawing a Line in Color       ");
  EXPECT_EQ(desk.workspace.vectorColor, 0xFF0000);
  EXPECT_EQ(desk.workspace.button, 2);
  desk.Move(5, 5);
  EXPECT_EQ(desk.List().NumShapes, 0) << "nothing before the first press";
  desk.Click(100, 100);
  EXPECT_TRUE(desk.List().Adding);
  desk.Move(100, 150);
  EXPECT_EQ(desk.workspace.display, "0°- 90° angle H-V     50 px");
  desk.Click(100, 200);
  EXPECT_EQ(desk.Points(0), (std::vector<POINTAPI>{{100, 100}, {100, 200}}));
  EXPECT_FALSE(desk.tools.Drawing() || desk.List().Adding);
  EXPECT_EQ(desk.workspace.caption, "");
  EXPECT_EQ(desk.workspace.vectorColor, -1);
  EXPECT_EQ(desk.workspace.button, -1);
  EXPECT_EQ(desk.workspace.display, "0°- 90° angle H-V     100 px") << "the measure stays";
  EXPECT_EQ(desk.List().CanvasWidth, 640 * 15);
  EXPECT_EQ(desk.workspace.drawingsChanged, 1);
  EXPECT_FALSE(desk.Down(10, 10)) << "the next click is the transport's";
}

TEST(DrawingTools, EveryToolMakesItsKindOfItsClicksInItsColour) {
  Desk desk;
  const POINTAPI points[] = {{10, 10}, {90, 90}, {10, 90}};
  for (const auto& [kind, clicks] : {std::pair{kFlag, 1},
                                     {kSquare, 2},
                                     {kEllipse, 2},
                                     {kAngle, 3},
                                     {kParallelogram, 3},
                                     {kZone, 3},
                                     {kClock, 2},
                                     {kArrow, 2}}) {
    SCOPED_TRACE(kind);
    desk.tools.ChooseFromMenu(kind);
    for (int i = 0; i < clicks; ++i) {
      EXPECT_TRUE(desk.tools.Drawing());
      desk.Click(points[i].x, points[i].y);
    }
    EXPECT_FALSE(desk.tools.Drawing());
    const Shape& shape = desk.List().Shapes.back();
    EXPECT_EQ(shape.Kind, kind);
    EXPECT_EQ(shape.NumBound, clicks);
    EXPECT_EQ(shape.Colour, desk.settings.NewColors[static_cast<std::size_t>(kind)]);
  }
}

TEST(DrawingTools, AFreehandIsOneStrokeAndAPathGoesOnToItsEnd) {
  Desk desk;
  desk.tools.TakeTool(kFreehand);
  desk.Down(10, 10);
  desk.Move(20, 15);
  desk.Move(30, 10);
  desk.Up(40, 20);
  ASSERT_EQ(desk.List().NumShapes, 1);
  EXPECT_EQ(desk.Points(0), (std::vector<POINTAPI>{{10, 10}, {20, 15}, {30, 10}, {40, 20}}));
  desk.Draw(kFreehand, {{10, 10}});
  EXPECT_EQ(desk.List().NumShapes, 1) << "a mere click is no stroke";
  EXPECT_FALSE(desk.tools.Drawing());

  desk.Draw(kSwingPath, {{10, 10}, {30, 10}, {60, 20}});
  EXPECT_TRUE(desk.tools.Drawing());
  desk.Down(60, 20, 1, 2);  // where the last click was
  EXPECT_FALSE(desk.tools.Drawing() || desk.List().Adding) << "the other button ends a path";
  EXPECT_EQ(desk.List().Shapes[1].NumBound, 3);
  EXPECT_EQ(desk.List().Shapes[1].NumPts, 3);
  desk.workspace.frame[1] = 8;
  desk.Draw(kSwingPath, {{10, 10}, {30, 10}});
  EXPECT_EQ(desk.workspace.frame[1], 9);
  EXPECT_FALSE(desk.tools.Drawing()) << "so does the last frame";
  EXPECT_EQ(desk.List().Shapes[2].NumBound, 2);
}

TEST(DrawingTools, APathIsTakenBackPointByPoint) {
  Desk desk;
  desk.Draw(kSwingPath, {{10, 10}, {30, 10}, {60, 20}});
  desk.Move(90, 90);
  desk.tools.Undo(1);
  EXPECT_EQ(desk.Points(0), (std::vector<POINTAPI>{{10, 10}, {30, 10}}));
  EXPECT_EQ(desk.List().Shapes[0].NumPts, 3) << "the mouse goes on drawing";
  EXPECT_EQ(desk.workspace.frame[1], 2) << "a point is a picture";
  desk.Click(60, 20);
  for (int points = 3; points > 0; --points) desk.tools.Undo(1);
  EXPECT_EQ(desk.List().NumShapes + desk.workspace.frame[1], 0);
  EXPECT_TRUE(desk.tools.Drawing());
  desk.Click(40, 40);
  desk.Click(50, 50);
  desk.tools.EndPath();
  EXPECT_EQ(desk.Points(0), (std::vector<POINTAPI>{{40, 40}, {50, 50}}));
  EXPECT_FALSE(desk.tools.Drawing() || desk.tools.TracingPath());
}

TEST(DrawingTools, TheSamePixelTwiceIsOnePoint) {
  Desk desk;
  desk.Draw(kLine, {{50, 50}, {50, 50}});
  EXPECT_EQ(desk.List().Shapes[0].NumBound, 1);
  EXPECT_TRUE(desk.tools.Drawing());
  desk.Click(90, 50);
  // A new shape may begin on the pixel where the last one was pressed.
  desk.tools.TakeTool(kLine);
  desk.Down(90, 50);
  desk.Move(93, 52);
  desk.Up(93, 52);
  ASSERT_EQ(desk.List().NumShapes, 2);
  EXPECT_EQ(desk.Points(1), (std::vector<POINTAPI>{{93, 52}})) << "a hand that trembles drags nothing";
}

TEST(DrawingTools, PickingAToolTwicePutsItDown) {
  Desk desk;
  desk.tools.TakeTool(kSquare);
  desk.tools.TakeTool(kSquare);
  EXPECT_FALSE(desk.tools.Drawing() || desk.Down(10, 10));
  EXPECT_EQ(desk.workspace.caption, "");
  // What is half made goes, also when a click stops a playing video; a path stays as far as it was traced.
  desk.Draw(kAngle, {{10, 10}, {50, 50}});
  desk.tools.PutToolDown();
  desk.Draw(kSquare, {{10, 10}});
  desk.workspace.playing = true;
  EXPECT_TRUE(desk.Down(50, 50, 3));
  EXPECT_FALSE(desk.workspace.playing || desk.tools.Drawing());
  EXPECT_EQ(desk.List().NumShapes, 0);
  desk.Draw(kSwingPath, {{10, 10}, {50, 50}});
  desk.tools.TakeTool(kLine);
  ASSERT_EQ(desk.List().NumShapes, 1);
  EXPECT_TRUE(desk.List().Shapes[0].Locked);
  EXPECT_EQ(desk.tools.DrawKind(), kLine);

  Desk empty;
  empty.workspace.hasVideo = false;
  empty.tools.TakeTool(kLine);
  EXPECT_FALSE(empty.tools.Drawing()) << "no tool without a video";
}

TEST(DrawingTools, AStraightLineIsStraightOnce) {
  Desk desk;
  desk.tools.TakeStraightLine();
  desk.Click(100, 100);
  desk.Click(200, 130);
  desk.Draw(kLine, {{100, 100}, {200, 130}});
  EXPECT_EQ(desk.Points(0)[1], (POINTAPI{200, 100}));
  EXPECT_EQ(desk.Points(1)[1], (POINTAPI{200, 130}));
  desk.tools.TakeStraightLine();
  desk.Click(100, 100);
  desk.Click(140, 60);
  EXPECT_EQ(desk.Points(2)[1], (POINTAPI{100, 60})) << "a tie is upright";

  desk.tools.TakeTool(kArrow);
  desk.tools.TakeStraightArrow();
  EXPECT_TRUE(desk.tools.Drawing()) << "the free arrow in hand becomes a straight one";
  desk.Click(100, 100);
  desk.tools.PutToolDown();
  desk.Draw(kArrow, {{10, 10}, {20, 90}});
  EXPECT_EQ(desk.Points(3)[1], (POINTAPI{20, 90})) << "put down, it is forgotten";
}

TEST(DrawingTools, RandomColoursStepButNotForPathsAndZones) {
  Desk desk;
  desk.settings.RandomColor = 1;
  desk.Draw(kLine, {{0, 0}, {9, 9}});
  desk.Draw(kZone, {{0, 0}, {9, 9}, {0, 9}});
  desk.Draw(kLine, {{0, 0}, {9, 9}});
  desk.tools.TakeTool(kFlag);
  EXPECT_EQ(desk.workspace.button, 3);
  desk.tools.ChooseColour(7);  // the user's choice counts
  EXPECT_EQ(desk.workspace.vectorColor, kColorChoices[7]);
  desk.Click(0, 0);
  const Colour wanted[] = {kColorChoices[0], 0xFF0000, kColorChoices[2], kColorChoices[7]};
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(desk.List().Shapes[i].Colour, wanted[i]) << i;
  for (int i = 0; i < 8; ++i) desk.Draw(kFlag, {{i, i}});
  desk.tools.TakeTool(kFlag);
  EXPECT_EQ(desk.workspace.button, 0) << "after twelve it begins again";
}

TEST(DrawingTools, AShapeBelongsToTheWindowOfItsFirstPress) {
  Desk desk;
  desk.tools.TakeTool(kLine);
  desk.Click(10, 10, 2);
  EXPECT_EQ(desk.workspace.active, 2);
  desk.Move(300, 300, 1);
  EXPECT_EQ(desk.List(2).Shapes[0].NumPts, 1) << "the mouse in another window moves nothing";
  desk.Click(90, 90, 2);
  EXPECT_TRUE(desk.List(2).Shapes[0].Locked);
  EXPECT_EQ(desk.List(1).NumShapes, 0);
}

TEST(DrawingTools, DrawingsAreDeletedLastFirstOrAllAtOnce) {
  Desk desk;
  for (int i = 0; i < 3; ++i) desk.Draw(kFlag, {{i, i}});
  desk.tools.DeleteLast();
  // The shape under construction is the last; the tool stays in hand.
  desk.Draw(kLine, {{10, 10}});
  desk.tools.DeleteLast();
  EXPECT_EQ(desk.List().NumShapes, 2);
  EXPECT_TRUE(desk.tools.Drawing());
  desk.Click(20, 20);
  desk.Click(40, 40);
  EXPECT_EQ(desk.List().NumShapes, 3);
  desk.workspace.hasVideo = false;
  desk.tools.DeleteAll();
  EXPECT_EQ(desk.List().NumShapes, 3) << "only with a video in the window";
  desk.workspace.hasVideo = true;
  desk.tools.DeleteAll();
  EXPECT_FALSE(desk.tools.HasShapes(1));
  desk.tools.DeleteLast();
  EXPECT_EQ(desk.List().NumShapes, 0);
}

TEST(DrawingTools, WithTheEditBarClicksSelect) {
  Desk desk;
  Bar bar;
  desk.tools.AttachEditBar(&bar);
  for (const POINTAPI& at : {POINTAPI{100, 100}, {300, 100}, {300, 300}}) desk.Draw(kFlag, {at});
  EXPECT_FALSE(desk.Up(300, 110)) << "the bar is not up";
  bar.shown = true;
  // A hundred pixels from two it is the first; the left button only.
  for (const auto& [at, button, selected] :
       {std::tuple{POINTAPI{300, 110}, 1, 1}, {{200, 100}, 1, 0}, {{600, 400}, 1, -1}, {{300, 110}, 2, -1}}) {
    EXPECT_TRUE(desk.Up(at.x, at.y, 1, button));
    EXPECT_EQ(desk.List().CurShape, selected) << at.x;
  }
}

TEST(DrawingTools, AFrameIsPaintedWithMarksAndMeasure) {
  Desk desk;
  Bar bar;
  desk.tools.AttachEditBar(&bar);
  Surface surface(200, 200);
  Canvas canvas(surface);
  canvas.SetPen({0, 5, 0});
  desk.settings.CadOutline = false;
  desk.Draw(kFlag, {{50, 150}});
  desk.Draw(kLine, {{50, 20}, {50, 80}});
  struct Marks {
    bool shown, multi;
    Colour line, flag;
    const char* display;
  };
  for (const auto& [shown, multi, line, flag, display] : {Marks{false, false, 0xFF0000, 0xFFFF, ""},
                                                          {true, false, 65280, 255, "0°- 90° angle H-V     60 px"},
                                                          {true, true, 65280, 65280, "0°- 90° angle H-V     60 px"}}) {
    bar.shown = shown;
    bar.multi = multi;
    desk.tools.SetGridMode(shown);
    if (!shown) desk.workspace.display = "";  // no tool, no measure
    surface.Clear(0);
    desk.tools.PreDrawFrame(canvas, 1);
    EXPECT_EQ(surface.Pixel(50, 50), line);
    EXPECT_EQ(surface.Pixel(50, 150), flag);
    EXPECT_EQ(desk.workspace.display, display);
    EXPECT_EQ(surface.Pixel(20, 11), shown ? 0x800000 : 0) << "ten columns";
  }
}

TEST(DrawingTools, ADragDrawsAFigureInOneGo) {
  Desk desk;
  const auto drag = [&](int kind, POINTAPI from, POINTAPI to, int shift = 0) {
    if (!desk.tools.Drawing()) desk.tools.TakeTool(kind);
    desk.Down(from.x, from.y);
    for (int step = 1; step <= 4; ++step)
      desk.tools.MouseMove(1, shift, static_cast<float>(from.x + (to.x - from.x) * step / 4),
                           static_cast<float>(from.y + (to.y - from.y) * step / 4), 1);
    desk.tools.MouseUp(1, shift, static_cast<float>(to.x), static_cast<float>(to.y), 1);
  };
  struct Drawn {
    int kind, shift;
    POINTAPI to, second;
  };
  for (const Drawn& each : {Drawn{kLine, 0, {190, 130}, {190, 130}},
                            {kLine, 1, {190, 130}, {190, 100}},     // level
                            {kArrow, 1, {190, 160}, {175, 175}},    // on the diagonal
                            {kEllipse, 1, {190, 130}, {190, 190}},  // round
                            {kSquare, 1, {60, 190}, {10, 190}}}) {
    drag(each.kind, {100, 100}, each.to, each.shift);
    EXPECT_FALSE(desk.tools.Drawing());
    EXPECT_EQ(desk.Points(static_cast<std::size_t>(desk.List().NumShapes) - 1),
              (std::vector<POINTAPI>{{100, 100}, each.second}))
        << each.kind;
  }
  drag(kAngle, {100, 100}, {200, 100});
  EXPECT_TRUE(desk.tools.Drawing()) << "one side of an angle is none yet";
  desk.Click(200, 200);
  EXPECT_EQ(desk.Points(5), (std::vector<POINTAPI>{{100, 100}, {200, 100}, {200, 200}}));

  desk.tools.TakeCentreCircle();
  EXPECT_EQ(desk.workspace.caption, "                 Drawing a Circle from its Center in Color       ");
  drag(kEllipse, {100, 100}, {130, 140});
  EXPECT_EQ(desk.Points(6), (std::vector<POINTAPI>{{50, 50}, {150, 150}})) << "kept as any circle";
  EXPECT_EQ(desk.List().Shapes[6].Kind, kEllipse);
}

TEST(DrawingTools, AToolMayStayInHand) {
  Desk desk;
  desk.tools.TakeStraightLine();
  desk.tools.StayInHand();
  desk.tools.ChooseColour(6);
  desk.tools.ChooseWidth(9);
  desk.Click(100, 100);
  desk.Click(200, 110);
  EXPECT_EQ(desk.workspace.display, "90°- 0° angle H-V     100 px") << "the measure is read between two lines";
  desk.Click(100, 200);
  desk.Click(200, 210);
  ASSERT_TRUE(desk.tools.StaysInHand());
  for (const std::size_t line : {0u, 1u}) {
    EXPECT_EQ(desk.Points(line)[1].y, desk.Points(line)[0].y);
    EXPECT_EQ(desk.List().Shapes[line].Colour, kColorChoices[6]);
    EXPECT_EQ(desk.List().Shapes[line].Width, 9);
  }
  desk.tools.PutToolDown();
  desk.Draw(kLine, {{10, 10}, {50, 60}});
  EXPECT_FALSE(desk.tools.Drawing());
  EXPECT_EQ(desk.List().Shapes[2].Width, 0) << "the next tool is the usual one";
}

}  // namespace
}  // namespace kinalyx::test
