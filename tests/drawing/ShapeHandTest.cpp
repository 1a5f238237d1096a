#include "DrawingSupport.h"

namespace kinalyx::test {
namespace {

TEST(ShapeHand, APressTakesWhatLiesUnderIt) {
  Desk desk;
  desk.Draw(kEllipse, {{100, 100}, {200, 200}});
  desk.Draw(kZone, {{300, 100}, {400, 100}, {300, 200}});
  desk.Draw(kArrow, {{20, 300}, {220, 300}});
  desk.Draw(kLine, {{120, 250}, {120, 350}});
  desk.Draw(kSwingPath, {{400, 300}, {450, 350}, {500, 300}});
  desk.Click(500, 300, 1, 2);
  ShapeHand& hand = desk.tools.Hand();
  struct At {
    POINTAPI at;
    int taken;
  };
  for (const auto& [at, taken] : {At{{100, 150}, 0},
                                  {{150, 150}, -1},  // within a circle is the video's
                                  {{320, 120}, 1},   // within a zone is the zone
                                  {{60, 307}, 2},
                                  {{120, 302}, 3},  // of two that cross, the upper one
                                  {{450, 350}, 4},
                                  {{600, 20}, -1}}) {
    EXPECT_EQ(desk.Down(at.x, at.y), taken >= 0);
    EXPECT_EQ(desk.Up(at.x, at.y), taken >= 0) << "what was not taken is the transport's";
    ASSERT_EQ(hand.Taken() != nullptr, taken >= 0) << at.x;
    if (taken < 0) continue;
    EXPECT_EQ(hand.Taken(), &desk.List().Shapes[static_cast<std::size_t>(taken)]);
  }
  EXPECT_FALSE(desk.tools.CanRedo(1));
  desk.workspace.playing = true;
  desk.Down(100, 150);
  EXPECT_EQ(hand.Taken(), nullptr) << "the click that stops a video takes nothing";
}

TEST(ShapeHand, WhatIsNotSeenIsLeftAlone) {
  Desk desk;
  desk.Draw(kLine, {{100, 100}, {200, 100}});
  desk.List().Shapes[0].Time = {3, 5, 2};
  ShapeHand& hand = desk.tools.Hand();
  const auto taken = [&](int frame, bool hidden = false) {
    desk.workspace.frame[1] = frame;
    desk.tools.HideDrawings(hidden);
    hand.LetGo();
    EXPECT_EQ(hand.PointerAt({150, 100}, 1) != HandPointer::Nothing, desk.Down(150, 100)) << frame;
    desk.Up(150, 100);
    return hand.TakenIsSeen();
  };
  EXPECT_FALSE(taken(8));
  EXPECT_FALSE(taken(4, true));
  EXPECT_TRUE(taken(6)) << "while it fades it can be caught";
  desk.workspace.frame[1] = 9;
  EXPECT_FALSE(hand.TakenIsSeen()) << "it stays taken, so that its moment can be changed";
  ASSERT_TRUE(hand.Taken());
  desk.Down(100, 100);
  desk.Move(50, 50);
  desk.Up(50, 50);
  EXPECT_EQ(desk.Points(0)[0], (POINTAPI{100, 100})) << "nor by its handle";
}

TEST(ShapeHand, ADragMovesThePointOrTheWholeAsOneStep) {
  Desk desk;
  const auto drag = [&](POINTAPI from, POINTAPI to, int shift = 0) {
    desk.Down(from.x, from.y);
    for (int step = 1; step <= 3; ++step)
      desk.tools.MouseMove(1, shift, static_cast<float>(from.x + (to.x - from.x) * step / 3),
                           static_cast<float>(from.y + (to.y - from.y) * step / 3), 1);
    desk.Up(to.x, to.y);
  };
  desk.Draw(kAngle, {{100, 100}, {200, 100}, {200, 200}});
  drag({150, 100}, {156, 106});
  EXPECT_EQ(desk.Points(0), (std::vector<POINTAPI>{{106, 106}, {206, 106}, {206, 206}}));
  drag({206, 206}, {300, 180});
  EXPECT_EQ(desk.Points(0), (std::vector<POINTAPI>{{106, 106}, {206, 106}, {300, 180}})) << "one vertex alone";
  EXPECT_EQ(desk.workspace.display.substr(0, 6), " 141°") << "the measure goes with it";
  drag({300, 180}, {300, 110}, 1);
  EXPECT_EQ(desk.Points(0)[2], (POINTAPI{300, 106})) << "Shift holds it level";
  for (const POINTAPI third : {POINTAPI{300, 180}, {206, 206}}) {
    desk.tools.Undo(1);
    EXPECT_EQ(desk.Points(0)[2], third);
  }
  drag({150, 106}, {151, 107});
  EXPECT_EQ(desk.Points(0)[0], (POINTAPI{106, 106})) << "a hand that trembles moves nothing";

  desk.Draw(kSquare, {{400, 100}, {500, 200}});
  drag({450, 100}, {450, 103});
  drag({500, 103}, {520, 83});
  EXPECT_EQ(desk.Points(1), (std::vector<POINTAPI>{{400, 83}, {520, 203}})) << "a corner that no point stands on";
}

TEST(ShapeHand, WhatIsTakenChangesByThePaletteAndGoesByDelete) {
  Desk desk;
  desk.Draw(kLine, {{100, 100}, {200, 100}});
  desk.Draw(kSquare, {{300, 100}, {400, 200}});
  ShapeHand& hand = desk.tools.Hand();
  desk.Click(150, 101);
  const std::vector<Shape> before = DrawingsOf(desk.List());
  desk.tools.ChooseColour(6);
  desk.tools.ChooseWidth(9);
  EXPECT_EQ(desk.List().Shapes[0].Colour, kColorChoices[6]);
  EXPECT_EQ(hand.MarksIn(1)->width, 9);
  EXPECT_EQ(desk.List().Shapes[1].Width, 0);
  hand.BringToFront();
  EXPECT_EQ(hand.Taken(), &desk.List().Shapes[1]);
  hand.Duplicate();
  EXPECT_EQ(desk.Points(2), (std::vector<POINTAPI>{{116, 116}, {216, 116}}));
  EXPECT_EQ(desk.List().Shapes[2].Width, 9);
  hand.Remove();
  EXPECT_EQ(hand.Taken(), nullptr);
  EXPECT_EQ(desk.List().NumShapes, 2);
  for (int steps = 0; steps < 5; ++steps) desk.tools.Undo(1);
  EXPECT_EQ(DrawingsOf(desk.List()), before) << "each was one step";

  desk.Click(150, 101);
  desk.tools.TakeTool(kLine);
  EXPECT_FALSE(hand.MarksIn(1)) << "a tool in hand lets go";
  desk.tools.PutToolDown();
  desk.Click(150, 101);
  desk.tools.ForgetPast(1, {640, 480, false});
  EXPECT_FALSE(hand.MarksIn(1)) << "and so does a video that goes";
}

TEST(ShapeHand, LettersStandWhereTheMouseWasClicked) {
  Desk desk;
  desk.tools.TakeTextTool();
  desk.tools.ChooseColour(6);
  desk.Click(200, 150);
  EXPECT_EQ(desk.workspace.asked, (POINTAPI{200, 150}));
  EXPECT_FALSE(desk.tools.Drawing()) << "the keys are free for letters";
  EXPECT_EQ(desk.List().NumShapes, 0) << "nothing before they are typed";
  desk.tools.WriteText(1, {200, 150}, "Łokieć 肘", false);
  ASSERT_EQ(desk.List().NumShapes, 1);
  const Shape& text = desk.List().Shapes[0];
  EXPECT_EQ(text.Kind, kFlag) << "a program that knows no letters shows a plus sign";
  EXPECT_EQ(text.Colour, kColorChoices[6]);
  EXPECT_EQ(desk.tools.Hand().Taken(), &text);

  ShapeEngine& engine = desk.engine;
  Shape copy = text;
  engine.PrepTrans(copy);
  engine.ScaleShape(copy, 2, {0, 0});
  engine.RotateShape(copy, 90, {0, 0});
  EXPECT_EQ(copy.Kind, kFlag) << "letters stay letters";
  EXPECT_EQ(LetterHeight(copy), 2 * LetterHeight(text));

  desk.tools.MouseTwice({200, 150}, 1);
  EXPECT_EQ(desk.workspace.askedText, "Łokieć 肘");
  desk.tools.WriteText(1, {200, 150}, "Knie", true);
  EXPECT_EQ(desk.List().Shapes[0].Text, "Knie");
  desk.tools.Undo(1);
  EXPECT_EQ(desk.List().Shapes[0].Text, "Łokieć 肘");
  desk.tools.WriteText(1, {200, 150}, "", true);
  EXPECT_EQ(desk.List().NumShapes, 0) << "without letters there is nothing";
  desk.tools.WriteText(1, {639, 2}, "Knie beugen", false);
  const Polyline box = OutlineOf(desk.List().Shapes[0], false)[0];
  EXPECT_TRUE(box[2].x <= 640 && box[0].y >= 0) << "at the edge they stay on the picture";
}

TEST(ShapeHand, AnEditorMarksByAHaloAndTakesWhatWasDrawn) {
  Desk desk;
  desk.settings.KeysAndTools = kEditorKeys;
  desk.Draw(kLine, {{20, 50}, {120, 50}});
  EXPECT_EQ(desk.List().Shapes[0].Colour, kColorChoices[1]) << "the dark blue of old is for nobody on grass";
  ASSERT_TRUE(desk.tools.Hand().MarksIn(1));
  EXPECT_EQ(desk.tools.Hand().MarksIn(1)->handles, (std::vector<POINTAPI>{{20, 50}, {120, 50}}));
  Surface surface(200, 200);
  Canvas canvas(surface);
  canvas.SetPen({0, 5, 0});
  desk.tools.PreDrawFrame(canvas, 1);
  EXPECT_EQ(surface.Pixel(70, 50), kColorChoices[1]) << "what is taken keeps its colour";
  desk.settings.NewColors[kLine] = Rgb(1, 2, 3);
  desk.Draw(kLine, {{20, 90}, {120, 90}});
  EXPECT_EQ(desk.List().Shapes[1].Colour, Rgb(1, 2, 3)) << "a colour that somebody chose is used";
}

}  // namespace
}  // namespace kinalyx::test
