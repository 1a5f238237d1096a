#include "distribution/clips/ClipJob.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>

#include "platform/media/Films.h"
#include "support/TestVideos.h"
#include "workspace/AnalysisStage.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

struct ClipJobTest : testing::Test {
  /// The whole of what stands on the stage, in the size in which it stands there.
  ClipOrder Order(const std::string& name, bool all = true) {
    ClipOrder order;
    order.Scene = TakeScene(stage->analysis, all);
    order.Path = stage->folder + "/" + name;
    const POINTAPI size = PixelsOf(order.Scene, ClipSize::AsSeen);
    order.Width = size.x;
    order.Height = size.y;
    order.Stretch.Last = stage->MP(stage->Stage().CurrentWindow).VideoLength() - 1;
    return order;
  }
  static Outcome Make(ClipOrder order) {
    ClipJob job(std::move(order));
    while (job.Step()) {
    }
    return job.Outcome();
  }
  /// Of a picture of the scene what one of its videos fills.
  static FrameRows PartOf(const ClipScene& scene, std::size_t video, const FrameRows& rows) {
    const TwipRect& cell = scene.Videos[video].Cell;
    const TwipRect place = PlaceVideo(scene.Videos[video].Placement, cell.Width, cell.Height);
    const double width = place.Width;
    const double left = cell.Left + place.Left;
    return Part(rows, left / scene.Width, (left + width) / scene.Width);
  }
  /// A part of a picture, by the shares of its width.
  static FrameRows Part(FrameRows rows, double from, double to) {
    const int left = static_cast<int>(rows.width * from);
    rows.bits += static_cast<std::ptrdiff_t>(left) * rows.bitCount / 8;
    rows.width = static_cast<int>(rows.width * to) - left;
    return rows;
  }
  static bool IsBlueAt(const FrameRows& rows, double x, double y) {
    const int row = rows.height - 1 - static_cast<int>(y * rows.height);
    const std::uint8_t* pixel = rows.bits + static_cast<std::ptrdiff_t>(row) * rows.rowBytes +
                                static_cast<int>(x * rows.width) * std::ptrdiff_t{4};
    return pixel[0] > 180 && pixel[1] < 80 && pixel[2] < 80;
  }
  void Layout(const char* code, int height = 240) { stage = std::make_unique<AnalysisStage>(code, 640, height); }

  std::unique_ptr<AnalysisStage> stage;
};

TEST_F(ClipJobTest, EveryPictureWithWhatIsDrawnOnIt) {
  Layout("1", 480);
  ASSERT_TRUE(stage->Open(1, MjpegVideo(12), 3));
  // In the lower quarter, where the bar code of the pictures is not read.
  const int width = stage->MP(1).ControlWidthPixels();
  const int height = stage->MP(1).ControlHeightPixels();
  stage->Draw(3, {width / 10, height * 9 / 10}, {width * 9 / 10, height * 9 / 10});
  ASSERT_EQ(stage->Shapes().NumShapes, 1);
  stage->Shapes().Shapes[0].Time = {4, 7, 0};
  stage->Shapes().Shapes[0].Colour = Rgb(0, 0, 255);
  for (const bool mirrored : {false, true}) {
    SCOPED_TRACE(mirrored);
    stage->MP(1).setFlipHorizontal(mirrored);
    stage->MP(1).Refresh();
    ClipOrder order = Order("clip.mp4");
    EXPECT_NEAR(order.Scene.Proportion(), 640.0 / 480, 0.005);
    ASSERT_TRUE(Make(order)) << Make(order).Why();
    const auto clip = OpenedVideo(order.Path);
    ASSERT_EQ(clip->Info().frameCount, 12);
    EXPECT_NEAR(clip->Info().durationMs, 400, 1);
    for (int frame = 0; frame < 12; ++frame) {
      SCOPED_TRACE(frame);
      const FrameRows rows = clip->Frame(frame, 32);
      if (!mirrored) {
        EXPECT_EQ(ReadNumber(rows), frame);
      }
      const bool drawn = frame >= 4 && frame <= 7;
      EXPECT_EQ(IsBlueAt(rows, 0.3, 0.9) && IsBlueAt(rows, 0.7, 0.9), drawn);
    }
  }
}

TEST_F(ClipJobTest, TwoVideosSideBySideAndMixed) {
  Layout("2");
  ASSERT_TRUE(stage->Open(2, MjpegVideo(30), 12));
  ASSERT_TRUE(stage->Open(1, MjpegVideo(30), 10));
  ASSERT_TRUE(stage->Run("cmdDualPlay"));
  ClipOrder order = Order("pair.mp4");
  ASSERT_EQ(order.Scene.Videos.size(), 2u);
  order.Height *= 2;
  order.Width *= 2;
  order.Stretch = {.First = 4, .Last = 9, .Slower = 2};
  ASSERT_TRUE(Make(order));
  const auto clip = OpenedVideo(order.Path);
  ASSERT_EQ(clip->Info().frameCount, 6);
  EXPECT_NEAR(clip->Info().durationMs, 400, 1);
  for (int frame = 0; frame < 6; ++frame) {
    const FrameRows rows = clip->Frame(frame, 32);
    EXPECT_EQ(ReadNumber(PartOf(order.Scene, 0, rows)), 4 + frame);
    EXPECT_EQ(ReadNumber(PartOf(order.Scene, 1, rows)), 6 + frame);
  }
  EXPECT_EQ(Stacked(order.Scene).Videos[1].Seen.Left, 0);
  EXPECT_GT(Stacked(order.Scene).Videos[1].Seen.Top, 0);

  ASSERT_TRUE(stage->Run("STM"));
  stage->Modes().Transparency().SetMix(255);
  ClipOrder mixed = Order("mix.mp4");
  EXPECT_EQ(mixed.Scene.Shows, ClipScene::Look::Mix);
  mixed.Stretch = {.First = 4, .Last = 4};
  ASSERT_TRUE(Make(mixed));
  EXPECT_EQ(ReadNumber(PartOf(mixed.Scene, 0, OpenedVideo(mixed.Path)->Frame(0, 32))), 6);
}

TEST_F(ClipJobTest, SoundStandsStillWithThePicture) {
  Layout("1");
  const std::string path = stage->folder + "/heard.avi";
  MakeFilm({.name = "heard.avi",
            .encoder = "mjpeg",
            .frames = 25,
            .gop = 1,
            .bFrames = 0,
            .sound = true,
            .format = AV_PIX_FMT_YUVJ420P},
           path);
  ASSERT_TRUE(stage->Open(1, path));
  stage->Draw(3, {20, 20}, {100, 20});
  ClipOrder order = Order("heard.mp4");
  order.Sound = true;
  order.Stretch.PauseMs = 500;
  ASSERT_TRUE(Make(order));
  EXPECT_NEAR(OpenedVideo(order.Path)->Info().durationMs, 1500, 5);
  const auto heard = [](const std::string& file) {
    std::vector<std::int16_t> samples;
    const auto reader = SoundReader::Open(file);
    reader->Begin(0);
    while (reader->Read(samples)) {
    }
    return samples;
  };
  const auto sound = heard(order.Path);
  const auto loudest = [&](double from, double to) {
    int most = 0;
    const double each = static_cast<double>(sound.size()) / 1500;
    for (auto i = static_cast<std::size_t>(from * each); i < static_cast<std::size_t>(to * each) && i < sound.size();
         ++i)
      most = std::max(most, std::abs(int{sound[i]}));
    return most;
  };
  EXPECT_LT(loudest(50, 400), 50) << "while the first picture stands";
  EXPECT_GT(loudest(600, 1400), 1000);

  order.Voice.assign(48000, 9000);
  ASSERT_TRUE(Make(order));
  EXPECT_NEAR(heard(order.Path)[9600], 9000, 500);
}

TEST_F(ClipJobTest, OtherKindsOfFile) {
  Layout("1");
  ASSERT_TRUE(stage->Open(1, MjpegVideo(30)));
  ClipOrder loop = Order("loop.gif");
  loop.Makes = ClipOrder::Kind::Gif;
  loop.Stretch.MostRate = 15;
  ASSERT_TRUE(Make(loop)) << Make(loop).Why();
  EXPECT_EQ(DecodeStraight(loop.Path).size(), 16u) << "fifteen a second, and the last";

  ClipOrder row = Order("row.png");
  row.Makes = ClipOrder::Kind::Row;
  row.RowPictures = 3;
  ASSERT_TRUE(Make(row));
  const auto picture = LoadPicture(row.Path, 10000, 0);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->Width(), 3 * row.Width);

  ClipOrder card = Order("card.mp4");
  card.Card.Lines = {"Zażółć gęślą jaźń", "ゴルフ"};
  card.Card.LogoPath = "/nowhere/logo.png";
  card.Words = {true, true, true};
  ASSERT_TRUE(Make(card));
  EXPECT_NEAR(OpenedVideo(card.Path)->Info().durationMs, 4000, 50);
}

TEST_F(ClipJobTest, WholeOrNotAtAll) {
  Layout("1");
  const std::string video = stage->Video("gone.avi", MjpegVideo(30));
  ASSERT_TRUE(stage->Open(1, video));
  ClipOrder order = Order("clip.mp4");
  std::ofstream(order.Path) << "an older clip";
  const auto files = [&] { return std::distance(fs::directory_iterator(stage->folder), fs::directory_iterator()); };
  const auto before = files();

  ClipJob cancelled(order);
  for (int i = 0; i < 10; ++i) ASSERT_TRUE(cancelled.Step());
  cancelled.Cancel();
  EXPECT_FALSE(cancelled.Step());
  EXPECT_EQ(cancelled.Outcome().Kind(), Fault::Cancelled);

  ClipOrder elsewhere = order;
  elsewhere.Path = stage->folder + "/no such folder/clip.mp4";
  EXPECT_FALSE(Make(elsewhere));

  fs::rename(video, video + ".away");
  const Outcome gone = Make(order);
  EXPECT_EQ(gone.Why(), "\"gone\" cannot be opened any more.");
  EXPECT_EQ(files(), before);
  EXPECT_EQ(fs::file_size(order.Path), 13u) << "what was there stays";
}

TEST_F(ClipJobTest, APictureAtTheVideosOwnSize) {
  Layout("1", 720);
  ASSERT_TRUE(stage->Open(1, MjpegVideo(30), 17));
  stage->Stage().SetZoom(2);
  const ClipScene scene = TakePicture(stage->analysis, 1);
  const POINTAPI size = PixelsOf(scene, ClipSize::AsSeen);
  EXPECT_EQ(size, (POINTAPI{320, 240}));
  const auto picture = PictureOf(scene, size.x, size.y);
  ASSERT_TRUE(picture);
  // Its rows are those of the file, upside down.
  const FrameRows rows{picture->Row(239), 320, 240, -picture->Stride(), 32};
  EXPECT_EQ(ReadNumber(rows), 17);
}

}  // namespace
}  // namespace kinalyx::test
