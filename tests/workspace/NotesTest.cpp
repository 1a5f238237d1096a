#include "workspace/edits/VideoNotes.h"

#include <gtest/gtest.h>

#include "AnalysisStage.h"

namespace kinalyx::test {
namespace {

TEST(NotesTest, LieUnderThePictureAndAreKeptWithTheVideo) {
  OpenStage stage("2");
  stage.Open(2, stage.Video("b.avi"));
  const int height = stage.MP(1).ControlHeightPixels();
  const std::string text = "Gro\u00DFer Schwung\r\nhead still";
  stage.Run("TN");
  EXPECT_EQ(stage.window.notes, "");
  const int beside = stage.MP(1).ControlHeightPixels();
  EXPECT_LT(beside, height) << "they make room under the picture";
  stage.analysis.Notes().TakeNotes(text);
  EXPECT_FALSE(ReadSidecarMarks(stage.sidecar).HasNotes());
  stage.Rest();
  EXPECT_TRUE(ReadSidecarMarks(stage.sidecar).HasNotes()) << "written when typing rests";
  stage.analysis.Notes().TakeNotes(text + "\r\ngrip");
  stage.Press(2, 5, 5);
  EXPECT_FALSE(stage.window.notes) << "another window closes the panel";
  EXPECT_EQ(stage.MP(1).ControlHeightPixels(), height);

  // They stay, as the grid does, for the next video of the window.
  stage.Press(1, 5, 5);
  stage.Run("TN");
  stage.Run("MenuDraw11");
  EXPECT_EQ(stage.window.notes, text + "\r\ngrip");
  stage.Open(1, stage.Video("c.avi"));
  EXPECT_EQ(stage.window.notes, "") << "those of the new video";
  EXPECT_EQ(stage.MP(1).ControlHeightPixels(), beside);
  stage.Open(1, stage.path);
  EXPECT_EQ(stage.window.notes, text + "\r\ngrip");
  stage.Videos().CloseVideo(1);
  stage.EndTurn();
  EXPECT_FALSE(stage.window.notes) << "without a video there is nothing to note";
  stage.Open(1, stage.path);
  EXPECT_EQ(stage.MP(1).ControlHeightPixels(), height);
  EXPECT_TRUE(stage.Commands().Find("MenuDraw11")->checked());
}

}  // namespace
}  // namespace kinalyx::test
