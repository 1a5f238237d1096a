// Undo of drawings against everything else that happens to a window.

#include <gtest/gtest.h>

#include "AnalysisStage.h"

namespace kinalyx::test {
namespace {

class Undo : public testing::Test {
 protected:
  void SetUp() override {
    Draw(kLine, {101, 203}, {307, 209});
    Draw(kSquare, {110, 250}, {165, 301});
    drawn_ = Drawn();
  }

  void TakeUp(int tool) { stage_.Key(kKeyF1 + tool); }
  void Click(POINTAPI at) { stage_.Click(Window(), at.x, at.y); }
  void Draw(int tool, POINTAPI from, POINTAPI to) { stage_.Draw(tool, from, to); }
  void PressUndo() { stage_.Key('Z', kCtrl); }
  void PressRedo() { redone_++ % 2 ? stage_.Key('Y', kCtrl) : stage_.Key('Z', kCtrl | kShift); }
  void Do(const char* command) { EXPECT_TRUE(stage_.Run(command)) << command; }
  int Window() { return stage_.Stage().CurrentWindow; }
  /// What the current window shows, finished or not.
  std::vector<Shape> Drawn() {
    const auto shapes = ShapesOf(stage_.Shapes(Window()));
    std::vector<Shape> drawn(shapes.begin(), shapes.end());
    for (Shape& shape : drawn) shape.SavedPts.clear();  // what is left of a turn shows nowhere
    return drawn;
  }
  int Count() { return stage_.Shapes(Window()).NumShapes; }

  OpenStage stage_;
  std::vector<Shape> drawn_;  ///< a line and a square
  int redone_ = 0;            ///< so far; there are two keys for it
};

TEST_F(Undo, EveryKindOfChangeIsOneStep) {
  const auto changes = std::vector<std::function<void()>>{
      [&] {
        Draw(kEllipse, {300, 100}, {350, 140});
      },
      [&] { Do("Lastcadoff"); },
      [&] { Do("Cadoffbutton"); },
      [&] {  // a stroke
        TakeUp(kFreehand);
        stage_.Press(1, 50, 50);
        for (int x = 51; x < 90; ++x) stage_.Move(1, x, 50 + x % 3);
        stage_.Release(1, 90, 50);
      },
      [&] {  // a path over three pictures, ended by the other button
        TakeUp(kSwingPath);
        for (const int x : {60, 90, 130}) Click({x, 80});
        stage_.Click(1, 160, 80, 2);
      },
      [&] {  // a square turns into another kind
        stage_.analysis.Edits().HandlePressed(kRotateHandle, {138, 200});
        for (const int x : {150, 170, 190}) stage_.analysis.Edits().HandleDragged({x, 210});
        stage_.analysis.Edits().HandleReleased();
      },
      [&] {
        stage_.analysis.Edits().EditAll(true);
        stage_.analysis.Edits().Nudge(7, -3);
      },
      [&] { stage_.Key(kKeyDelete); },
  };
  for (std::size_t i = 0; i < changes.size(); ++i) {
    if (i == 5) Do("MenuEdit");
    changes[i]();
    const std::vector<Shape> changed = Drawn();
    EXPECT_NE(changed, drawn_) << i;
    PressUndo();
    EXPECT_EQ(Drawn(), drawn_) << i;
    PressRedo();
    EXPECT_EQ(Drawn(), changed) << i;
    PressUndo();
    stage_.Shapes().CurShape = 1;
  }
  PressUndo();
  EXPECT_EQ(Count(), 1);
  PressUndo();
  EXPECT_EQ(Count(), 0);
  EXPECT_FALSE(stage_.analysis.Edits().CanUndo());
}

TEST_F(Undo, AHalfDrawnShapeIsAllThatGoes) {
  for (const int tool : {kLine, kAngle, kClock}) {
    TakeUp(tool);
    Click({200, 100});
    stage_.Move(1, 240, 130);
    ASSERT_EQ(Count(), 3);
    PressUndo();
    EXPECT_EQ(Drawn(), drawn_) << tool;
    EXPECT_FALSE(stage_.analysis.Tools().Drawing()) << "nor is the tool left waiting for its next point";
  }
  // A path goes point by point. Redo with another shape in hand gives that up, and brings the path back.
  TakeUp(kSwingPath);
  for (const int x : {60, 90, 130, 170}) Click({x, 80});
  stage_.Key(kKeyBackspace);
  stage_.Key(kKeyReturn);
  PressUndo();
  EXPECT_EQ(Drawn(), drawn_);
  TakeUp(kLine);
  Click({200, 100});
  PressRedo();
  ASSERT_EQ(Count(), 3);
  EXPECT_EQ(Drawn()[2].Kind, kSwingPath);
  EXPECT_EQ(Drawn()[2].NumBound, 3);
}

TEST_F(Undo, TheSizeOfTheWindowWearsNothingOut) {
  stage_.Shapes().CurShape = 0;
  Do("MenuEdit");
  stage_.analysis.Edits().Nudge(11, 5);
  const std::vector<Shape> moved = Drawn();
  stage_.Key(kKeyEscape);
  for (int round = 0; round < 5; ++round) {
    for (const int layout : {8, 4, 6, 1}) stage_.Stage().SetScreen(layout);
    Do("vFlip");
    Do("vFlip");
  }
  for (int height = 720; height > 300; height -= 7) {
    stage_.window.height = height;
    stage_.analysis.StageResized();
  }
  stage_.window.height = 720;
  stage_.analysis.StageResized();
  EXPECT_EQ(Drawn(), moved);
  PressUndo();
  EXPECT_EQ(Drawn(), drawn_) << "to the pixel, and so is what the step did not touch";
  stage_.Stage().SetScreen(8);
  PressRedo();
  stage_.Stage().SetScreen(1);
  EXPECT_EQ(Drawn(), moved) << "brought back in a small window, and seen in the large one";
  Do("vFlip");
  PressUndo();
  Do("vFlip");
  EXPECT_EQ(Drawn(), drawn_);
}

TEST_F(Undo, AStraightLineStaysStraightWhenThePictureChangesUnderIt) {
  Do("DDSL");
  Click({120, 100});
  stage_.Type('F');
  stage_.Stage().SetZoom(1.3);
  const POINTAPI first = Drawn().back().Pts[0];
  Click({first.x + 4, first.y + 80});
  ASSERT_EQ(Count(), 3);
  EXPECT_EQ(Drawn()[2].Pts[1].x, first.x);
  EXPECT_EQ(stage_.MP(1).Picture().Pixel(first.x, first.y + 40), Drawn()[2].Colour) << "and is seen on the picture";
}

TEST_F(Undo, WindowsAndSavesDoNotMeddle) {
  stage_.Stage().SetScreen(2);
  const std::vector<Shape> one = Drawn();
  // The same video a second time brings what was drawn so far, and has a past of its own.
  ASSERT_TRUE(stage_.Open(2, stage_.path));
  stage_.Stage().SelectWindow(2);
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(stage_.Commands().Find("UndoDrawing")->Reason(), "No change of the drawings in the current window to undo");
  Draw(kLine, {20, 20}, {60, 60});
  ASSERT_TRUE(stage_.Keeping().SaveData(2));
  PressUndo();
  EXPECT_EQ(Count(), 2) << "a save is no end of the past";
  // A half-drawn shape waits in its window while another one is undone.
  stage_.Stage().SelectWindow(1);
  TakeUp(kLine);
  Click({50, 50});
  stage_.Stage().SelectWindow(2);
  PressRedo();
  EXPECT_EQ(Count(), 3);
  stage_.Stage().SelectWindow(1);
  EXPECT_EQ(Count(), 3);
  PressUndo();
  EXPECT_EQ(Drawn(), one);
  // A clone is undone where it was laid.
  Do("DTClone");
  ASSERT_EQ(Window(), 2);
  EXPECT_EQ(Count(), 2);
  PressUndo();
  EXPECT_EQ(Count(), 3);
  // Another video knows nothing of it.
  ASSERT_TRUE(stage_.Reopen(2));
  ASSERT_NE(Count(), 0);
  EXPECT_FALSE(stage_.analysis.Edits().CanUndo());
}

TEST_F(Undo, NothingIsUndoneInTheMiddleOfADrag) {
  Do("MenuEdit");
  DrawingEdits& edits = stage_.analysis.Edits();
  edits.HandlePressed(kMoveHandle, {130, 270});
  edits.HandleDragged({160, 290});
  EXPECT_FALSE(edits.CanUndo());
  PressUndo();
  stage_.Key(kKeyDelete);
  EXPECT_EQ(Count(), 2);
  edits.HandleReleased();
  PressUndo();
  EXPECT_EQ(Drawn(), drawn_) << "the whole drag is one step";
  EXPECT_EQ(stage_.Shapes().CurShape, 1) << "what was being edited stays selected";
  // A drag that comes back to where it began is none: what was undone can still be had back.
  edits.HandlePressed(kMoveHandle, {130, 270});
  for (const POINTAPI& at : {POINTAPI{160, 290}, {130, 270}}) edits.HandleDragged(at);
  edits.HandleReleased();
  EXPECT_TRUE(edits.CanRedo());
}

}  // namespace
}  // namespace kinalyx::test
