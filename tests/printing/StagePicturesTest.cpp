#include "workspace/pictures/StagePictures.h"

#include <gtest/gtest.h>

#include "workspace/AnalysisStage.h"
#include "workspace/stage/PlayerPlace.h"

namespace kinalyx::test {
namespace {

constexpr Colour kWhite = StagePictures::kPaperWhite;

struct StagePicturesTest : ::testing::Test {
  explicit StagePicturesTest() {
    stage.Open(1, MjpegVideo(30), 3);
    stage.Open(2, MjpegVideo(30), 20);
  }
  /// The pixel of the stage under a point of a window's picture.
  static Colour At(AnalysisStage& stage, const Surface& all, int slot, int x, int y) {
    const POINTAPI corner = PlayerCornerOnStage(stage.Stage().At(slot));
    return all.Pixel(corner.x + x, corner.y + y);
  }

  AnalysisStage stage{"2", 1200, 600};
  StagePictures pictures{stage.Stage(), stage.Modes()};
};

TEST_F(StagePicturesTest, WindowsStandInTheirPlacesWithTheirDrawings) {
  stage.Stage().CurrentWindow = 1;
  stage.Stage().SetFits(1, true);
  stage.Stage().SetFits(2, true);
  stage.Draw(kLine, {50, 60}, {250, 60});
  const Surface all = pictures.All();
  EXPECT_EQ(all.Width(), 1200);
  EXPECT_EQ(all.Height(), 600);
  EXPECT_EQ(all.Pixel(1, 1), kWhite) << "nothing of the dark stage";
  EXPECT_EQ(At(stage, all, 1, 150, 60), stage.Shapes().Shapes[0].Colour);
  for (const int slot : {1, 2}) {
    const Surface window = pictures.Window(slot);
    EXPECT_EQ(window.Width(), stage.MP(slot).Picture().Width()) << "nothing is cut off, nothing added";
    EXPECT_EQ(At(stage, all, slot, 20, 30), window.Pixel(20, 30)) << slot;
  }
  EXPECT_TRUE(pictures.Window(3).Empty());
}

TEST_F(StagePicturesTest, OfAPictureThatReachesBeyondItsCellOnlyWhatIsSeenIsTaken) {
  stage.Stage().CurrentWindow = 1;
  stage.Stage().SetZoom(2);
  const Slot& at = stage.Stage().At(1);
  const Surface seen = pictures.Window(1);
  EXPECT_NEAR(seen.Width(), at.panel.Width / kTwipsPerPixel, 1);
  EXPECT_NEAR(seen.Height(), at.panel.Height / kTwipsPerPixel, 1);
  const POINTAPI corner = PlayerCorner(at);
  EXPECT_EQ(seen.Pixel(0, 0), at.MP->Picture().Pixel(-corner.x, -corner.y));
  const Surface whole = pictures.Whole(1);
  EXPECT_EQ(whole.Width(), at.MP->Picture().Width());
  EXPECT_GT(whole.Width(), seen.Width());
}

TEST_F(StagePicturesTest, TheModesComeAsTheyAreSeen) {
  ASSERT_TRUE(stage.Run("STM"));
  stage.host.Advance(100);
  const Surface mix = pictures.All();
  EXPECT_EQ(mix.Pixel(600, 300), stage.Modes().Transparency().Mix().Pixel(600, 300));
  EXPECT_EQ(mix.Pixel(2, 2), kWhite) << "beside the pictures";
  ASSERT_TRUE(stage.Run("STM"));

  stage.Stage().CurrentWindow = 2;
  ASSERT_TRUE(stage.Run("TMAX"));
  EXPECT_EQ(pictures.Shown(), std::vector<int>{2});
  const Surface alone = pictures.All();
  EXPECT_EQ(At(stage, alone, 2, 40, 40), stage.MP(2).Picture().Pixel(40, 40));
  ASSERT_TRUE(stage.Run("TMAX"));

  ASSERT_TRUE(stage.Run("smbar"));
  const Surface film = pictures.All();
  EXPECT_EQ(film.Pixel(0, 599), 0) << "the film has a ground of its own";
  int lit = 0;
  for (int x = 0; x < film.Width(); ++x) lit += film.Pixel(x, 90) != 0;
  EXPECT_GT(lit, 300) << "pictures of the film across the top";
}

TEST_F(StagePicturesTest, APlayEndsOnThePictureThatIsTaken) {
  stage.Stage().CurrentWindow = 1;
  stage.MP(1).Play(0, 29);
  stage.host.Advance(200);
  ASSERT_TRUE(stage.MP(1).IsPlaying());
  const Surface all = pictures.All();
  EXPECT_FALSE(stage.MP(1).IsPlaying());
  EXPECT_TRUE(stage.MP(1).PictureIsExact());
  EXPECT_EQ(At(stage, all, 1, 100, 100), stage.MP(1).Picture().Pixel(100, 100));
}

}  // namespace
}  // namespace kinalyx::test
