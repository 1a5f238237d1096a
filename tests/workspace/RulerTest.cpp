#include "workspace/edits/RulerCalibration.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "AnalysisStage.h"
#include "platform/files/FileStore.h"

namespace kinalyx::test {
namespace {

/// The figures of the length that is shown.
double Shown(const AnalysisStage& stage) {
  const auto at = stage.window.text.find("H-V");
  return at == std::string::npos ? -1 : std::stod(stage.window.text.substr(at + 3));
}

TEST(MeasureTest, BelongsToItsShapeAndGoesWithIt) {
  OpenStage stage;
  const auto draw = [&] {
    stage.Draw(kLine, {100, 100}, {200, 100});
    EXPECT_EQ(Shown(stage), 100);
  };
  draw();
  stage.MP(1).Play(3);
  EXPECT_EQ(Shown(stage), 100) << "the next picture changes nothing";
  stage.Stage().SetZoom(0.5);
  EXPECT_EQ(Shown(stage), 50) << "in the pixels that are shown";
  stage.Stage().SetZoom(1);
  stage.Run("UndoDrawing");
  EXPECT_EQ(stage.window.text, "");
  for (const char* command : {"Lastcadoff", "Cadoffbutton"}) {
    draw();
    stage.Run(command);
    EXPECT_EQ(stage.window.text, "") << command;
  }
  draw();
  stage.Open(1, stage.Video("b.avi"));
  EXPECT_EQ(stage.window.text, "");

  // Under construction it has taken the place of the tool's name, which comes back.
  stage.Key(kKeyF1 + int{kLine});
  const std::string tool = stage.window.text;
  EXPECT_TRUE(stage.window.colour);
  stage.Click(1, 100, 100);
  stage.Move(1, 150, 100);
  EXPECT_EQ(Shown(stage), 50);
  EXPECT_FALSE(stage.window.colour);
  stage.Run("Lastcadoff");
  EXPECT_EQ(stage.window.text, tool);
  EXPECT_TRUE(stage.window.colour && stage.analysis.Tools().Drawing());
}

TEST(RulerTest, ItsLineIsNoDrawing) {
  OpenStage stage;
  const auto stored = [&] {
    stage.Rest();
    return ReadWholeFile(stage.sidecar);
  };
  stage.Draw(kSquare, {111, 33}, {157, 77});
  const auto saved = stored();
  ASSERT_TRUE(saved);
  stage.Run("TCal");
  stage.Click(1, 100, 300);
  stage.Click(1, 200, 300);
  stage.Stage().SetZoom(0.3);
  for (int turn = 0; turn < 2; ++turn) stage.Videos().ToggleFlip();
  stage.Stage().SetZoom(2);
  EXPECT_EQ(stage.window.calibrationLength, "200pts") << "the length follows the picture";
  EXPECT_EQ(stored(), saved);
  EXPECT_EQ(stage.Shapes().NumShapes, 2);
  stage.analysis.Ruler().Calibrate(100, kInches, kInches);
  stage.Stage().SetZoom(1);
  EXPECT_EQ(stage.Shapes().NumShapes, 1);
  EXPECT_EQ(stage.PointOf(0, 0), (POINTAPI{111, 33})) << "and has not moved by a rounding";
  EXPECT_EQ(stored(), saved);

  // Undo knows nothing of it, and leaves it where it is.
  stage.Run("TCal");
  stage.Click(1, 100, 200);
  stage.Click(1, 140, 200);
  stage.Key('Z', kCtrl);
  EXPECT_EQ(stage.window.calibrationLength, "40pts");
  // Deleted it cannot be measured any more.
  stage.Run("Lastcadoff");
  EXPECT_EQ(stage.window.calibrationLength, "");
  EXPECT_EQ(stage.Shapes().NumShapes, 0) << "the square was undone";

  // A zoom between the two clicks of a drawing finds it, not the line that lies there.
  stage.Draw(kLine, {100, 200}, {140, 200});
  stage.Key(kKeyF1 + int{kSquare});
  stage.Click(1, 30, 40);
  stage.Stage().SetZoom(2);
  stage.Click(1, 90, 100);
  ASSERT_EQ(stage.Shapes().NumShapes, 2);
  EXPECT_EQ(stage.Points(1), (std::vector<POINTAPI>{{60, 80}, {90, 100}}));
}

// What was calibrated on one video says nothing of the next, unless the user wants it so.
TEST(RulerTest, BelongsToItsVideo) {
  OpenStage stage("2");
  const std::string second = stage.Video("second.avi");
  stage.Run("TCal");
  stage.Click(1, 50, 100);
  stage.Click(1, 150, 100);
  stage.analysis.Ruler().Calibrate(1, kMetres, kMetres);
  stage.Draw(kLine, {20, 30}, {70, 30});
  EXPECT_NEAR(Shown(stage), 0.5, 0.002);
  EXPECT_TRUE(stage.host.questions.empty());

  ASSERT_TRUE(stage.Open(2, second));
  stage.Stage().SelectWindow(2);
  const auto& hint = stage.window.hints[2];
  for (int line = 1; line <= 2; ++line) {
    stage.Draw(kLine, {20, 30 * line}, {70, 30 * line});
    EXPECT_EQ(hint.second, line == 1 ? "LastRuler" : "") << "said once, and passed over";
    stage.host.Advance(30000);
    EXPECT_EQ(hint.first, "") << "it goes by itself";
    EXPECT_NE(stage.window.text.find("px"), std::string::npos) << stage.window.text;
  }
  EXPECT_TRUE(stage.host.questions.empty()) << "nobody is stopped in the middle of work";

  ASSERT_TRUE(stage.Reopen(2));
  stage.Draw(kLine, {20, 90}, {70, 90});
  ASSERT_TRUE(stage.Run(hint.second.c_str()));
  EXPECT_EQ(hint.first, "");
  EXPECT_TRUE(stage.Stage().At(2).data.Study.Ruler);
  ASSERT_TRUE(stage.Reopen(2));
  stage.Draw(kLine, {20, 120}, {70, 120});
  EXPECT_NEAR(Shown(stage), 0.5, 0.002) << "kept with the video";
  stage.Run("TCal");
  EXPECT_NE(stage.window.videoRuler.find("1 meter is"), std::string::npos) << stage.window.videoRuler;
  stage.analysis.Ruler().RemoveRuler();
  EXPECT_EQ(stage.window.videoRuler, "");
  EXPECT_TRUE(stage.Stage().At(1).data.Study.Ruler) << "the other keeps its own";
}

TEST(RulerTest, APathWithoutOneOffersIt) {
  OpenStage stage;
  stage.settings.CalibNumberOut = 0;
  const auto trace = [&] {
    stage.Key(kKeyF1 + int{kSwingPath});
    for (const int x : {60, 90, 130}) stage.Click(1, x, 80);
    stage.Key(kKeyReturn);
    stage.analysis.Tools().ChooseColour(3);
  };
  trace();
  const auto& hint = stage.window.hints[1];
  EXPECT_EQ(hint, std::pair(std::string("Set the ruler for speeds along the path."), std::string("TCal")));
  stage.Stage().At(1).data.Study.Ruler = VideoRuler{10, 640, 480, 0};
  trace();
  EXPECT_EQ(hint.second, "TrueRate") << "with a ruler it is about the rate";
}

// What a telephone writes as 30 pictures a second may have been taken at 240.
TEST(RulerTest, SpeedsSayByWhichRateTheyReckon) {
  OpenStage stage;
  stage.Run("TCal");
  stage.Click(1, 50, 100);
  stage.Click(1, 150, 100);
  stage.analysis.Ruler().Calibrate(1, kMetres, kMetres);
  stage.Key(kKeyF1 + int{kSwingPath});
  for (int x = 20; x <= 80; x += 20) stage.Click(1, x, x * x / 20);
  const auto& hint = stage.window.hints[1];
  EXPECT_EQ(hint.first, "") << "while nothing is measured yet";
  stage.Click(1, 80, 320, 2);
  EXPECT_NE(hint.first.find("30 pictures a second"), std::string::npos) << hint.first;
  EXPECT_EQ(hint.second, "TrueRate");
  const auto speeds = [&] { return stage.analysis.Tools().LabelsOf(1).at(0).Text; };
  const std::string untold = speeds();
  stage.analysis.Transport().SetTrueRate(240);
  EXPECT_NE(speeds(), untold);
  ASSERT_TRUE(stage.Reopen(1));
  EXPECT_EQ(hint.first, "") << "told once, it is known";

  // Each picture of the path has a speed of its own, also tomorrow.
  std::vector<std::string> seen;
  for (int position = 0; position <= 5; ++position) {
    stage.MP(1).DrawFrame(position);
    seen.push_back(speeds());
  }
  EXPECT_EQ(seen[0], seen[1]) << "the first step begins with the first point";
  EXPECT_NE(seen[1], seen[2]);
  EXPECT_NE(seen[2], seen[3]);
  EXPECT_EQ(seen[3], seen[5]) << "past its end it says how fast it ended";
}

// Whole pixels round, and windows of all sizes round otherwise; what is read off a drawing must not.
TEST(RulerTest, AFigureIsTheSameInEveryWindow) {
  OpenStage stage;
  stage.Run("TCal");
  stage.Click(1, 50, 100);
  stage.Click(1, 171, 100);
  stage.analysis.Ruler().Calibrate(1, kMetres, kMetres);
  stage.Draw(kLine, {101, 203}, {157, 241});
  stage.Key(kKeyF1 + int{kSwingPath});
  for (const POINTAPI& point : {POINTAPI{20, 30}, {31, 33}, {47, 45}, {52, 64}}) stage.Click(1, point.x, point.y);
  stage.Click(1, 52, 64, 2);
  stage.Stage().SetScreen(8);  // and one in a window that is much smaller
  stage.Draw(kArrow, {11, 13}, {47, 31});
  const auto figures = [&] {
    std::string all;
    for (const ShapeLabel& label : stage.analysis.Tools().LabelsOf(1)) all += label.Text + "; ";
    return all;
  };
  const std::string drawn = figures();
  EXPECT_EQ(std::ranges::count(drawn, ';'), 3) << drawn;
  for (int round = 0; round < 2; ++round) {
    for (const int layout : {8, 4, 2, 6, 1}) {
      stage.Stage().SetScreen(layout);
      EXPECT_EQ(figures(), drawn) << layout;
    }
    for (const double zoom : {0.3, 1.7, 1.0}) {
      stage.Stage().SetZoom(zoom);
      EXPECT_EQ(figures(), drawn) << zoom;
    }
    stage.Rest();
    EXPECT_EQ(figures(), drawn) << "saved";
    if (round == 0) {
      ASSERT_TRUE(stage.Reopen(1));
    }
    stage.MP(1).DrawFrame(4);
  }
}

TEST(RulerTest, TurnsPixelsIntoLengths) {
  OpenStage stage;
  stage.settings.RulerPerVideo = 0;
  const auto measure = [&](POINTAPI from, POINTAPI to) {
    stage.Draw(kLine, from, to);
    return Shown(stage);
  };
  stage.Run("TCal");
  stage.Click(1, 50, 300);
  stage.Click(1, 170, 300);
  EXPECT_EQ(stage.window.calibrationLength, "120pts");
  stage.analysis.Ruler().Calibrate(10, kInches, kCentimetres);
  EXPECT_EQ(stage.Shapes().NumShapes, 0) << "the measuring line goes";
  EXPECT_EQ(stage.settings.CalibNumber, 120);
  EXPECT_FLOAT_EQ(stage.settings.CalibNumberOut, 12);
  EXPECT_EQ(measure({100, 150}, {220, 150}), 25.4);
  EXPECT_NE(stage.window.text.find("25.4cm"), std::string::npos) << stage.window.text;

  // In another layout the picture has another size; what is seen in it has not.
  const int whole = stage.MP(1).ControlWidthPixels();
  stage.Stage().SetScreen(4);
  const int part = stage.MP(1).ControlWidthPixels();
  ASSERT_NE(part, whole);
  EXPECT_NEAR(measure({10, 100}, {10 + part / 2, 100}), whole / 2.0 / 12 * 2.54, 1);
  // Upright or not, a picture as high shows things as large.
  TestVideo upright = MjpegVideo(30);
  std::swap(upright.format.width, upright.format.height);
  ASSERT_TRUE(stage.Open(2, upright));
  stage.Stage().SelectWindow(2);
  ASSERT_LT(stage.MP(2).ControlWidthPixels(), part);
  const double other = measure({10, 10}, {10, 110});
  stage.Stage().SelectWindow(1);
  EXPECT_EQ(measure({10, 10}, {10, 110}), other);
  stage.settings.CalibHeight = 0;  // as older settings have it
  EXPECT_NEAR(measure({10, 100}, {10 + part / 2, 100}), whole / 2.0 / 12 * 2.54, 1);

  // Cancelled in the middle of its line: only that line goes, and the numbers stay.
  const int drawn = stage.Shapes().NumShapes;
  stage.Run("TCal");
  stage.Click(1, 20, 20);
  stage.Move(1, 60, 60);
  stage.Key(kKeyEscape);
  EXPECT_FALSE(stage.window.calibration || stage.analysis.Tools().Drawing());
  EXPECT_EQ(stage.Shapes().NumShapes, drawn);
  EXPECT_EQ(stage.settings.CalibNumber, 120);
}

TEST(RulerTest, TakesItsOwnLineAndNoOther) {
  OpenStage stage;
  stage.Draw(kLine, {101, 203}, {307, 209});
  stage.Run("TCal");
  stage.Click(1, 100, 60);
  stage.Click(1, 200, 60);
  stage.Draw(kEllipse, {300, 100}, {350, 140});
  stage.analysis.Ruler().CancelCalibration();
  ASSERT_EQ(stage.Shapes().NumShapes, 2);
  EXPECT_EQ(stage.Shapes().Shapes[1].Kind, kEllipse) << "drawn with the panel open: it is the selected one";
  // A line that was there before may be measured too.
  stage.Run("MenuEdit");
  stage.Run("TCal");
  stage.analysis.Tools().PutToolDown();
  stage.Shapes().CurShape = 0;
  stage.analysis.Tools().SetShapeCaption();
  EXPECT_NE(stage.window.calibrationLength, "");
  stage.analysis.Ruler().Calibrate(1, kFeet, kFeet);
  EXPECT_EQ(stage.Shapes().NumShapes, 2);
}

}  // namespace
}  // namespace kinalyx::test
