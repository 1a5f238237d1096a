#include "printing/sheets/ShortGameSheets.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "RecordedPage.h"
#include "platform/paint/ImageFiles.h"
#include "workspace/AnalysisStage.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

/// A stage with model pictures beside its program.
struct SheetsTest : ::testing::Test {
  SheetsTest() {
    for (const char* name : {"bunkermodel", "Lbunkermodel", "chipmodel", "wedgemodel"})
      Put(stage.folder + "/pictures/BriskoModel/" + name + ".bmp", name[0] == 'L' ? 120 : 80);
  }
  static void Put(const std::string& path, int width) {
    fs::create_directories(fs::path(path).parent_path());
    EXPECT_TRUE(SaveBmp(RowsOf(Surface(width, 30)), path));
  }
  void Open(int slot, const std::string& name) { ASSERT_TRUE(stage.Open(slot, stage.Video("Erica/" + name))); }
  RecordedPage Sheet(ShortGame kind, bool lefty = false) {
    const auto sheet = sheets.MakeSheet(kind, lefty);
    RecordedPage page;
    if (sheet) sheet->PrintOn(page);
    else ADD_FAILURE() << sheet.Why();
    return page;
  }
  bool Kept(const char* name) const { return fs::exists(stage.folder + "/Erica/School Pics/" + name); }

  AnalysisStage stage{"2", 1200, 600};
  StagePictures pictures{stage.Stage(), stage.Modes()};
  ShortGameSheets sheets{stage.host, stage.settings, stage.Stage(), pictures};
};

TEST_F(SheetsTest, EachDayIsKeptInItsBitmap) {
  sheets.BriskoSaveScreen(ShortGame::BunkerShot);
  EXPECT_EQ(stage.host.messages.back(), "You must have a video open in window 1 to continue.");
  EXPECT_EQ(sheets.MakeSheet(ShortGame::ChipShot, false).Why(), "You must have a video open to continue.");

  Open(1, "Bunker Shot Day 1.avi");
  sheets.BriskoSaveScreen(ShortGame::BunkerShot);
  EXPECT_EQ(stage.host.messages.back(), "Pictures saved Successfully!");
  EXPECT_TRUE(Kept("BunkerShotDay1.bmp"));
  EXPECT_FALSE(Kept("BunkerShotDay3.bmp"));
  Open(2, "Bunker Shot Day 3.avi");
  sheets.BriskoSaveScreen(ShortGame::BunkerShot);
  EXPECT_TRUE(Kept("BunkerShotDay3.bmp"));
  sheets.BriskoSaveScreen(ShortGame::Putting);
  EXPECT_TRUE(Kept("PuttingFaceOn.bmp") && Kept("PuttingDownTheLine.bmp"));
  sheets.BriskoSaveScreen(ShortGame::ChipShot);
  EXPECT_TRUE(Kept("ChipShotDay1.bmp"));

  fs::remove_all(stage.folder + "/Erica/School Pics");
  std::ofstream(stage.folder + "/Erica/School Pics") << "a file in its place";
  sheets.BriskoSaveScreen(ShortGame::BunkerShot);
  EXPECT_TRUE(stage.host.messages.back().starts_with("The pictures could not be saved.")) << stage.host.messages.back();
}

TEST_F(SheetsTest, ASheetHasItsRowsBesideTheModelSwing) {
  Open(1, "Bunker Shot Day 1.avi");
  Open(2, "Bunker Shot Day 3.avi");
  const RecordedPage page = Sheet(ShortGame::BunkerShot);
  ASSERT_NE(page.Find("BUNKER SHOT"), nullptr);
  EXPECT_NEAR(page.Find("BUNKER SHOT")->at.y, 0.27, 1e-9);
  EXPECT_EQ(page.Find("BUNKER SHOT")->font.points, 18);
  for (const char* head : {"BACKSWING", "ADDRESS", "FOLLOWTHROUGH"}) {
    ASSERT_NE(page.Find(head), nullptr);
    EXPECT_NEAR(page.Find(head)->at.y, 0.75, 1e-9);
    EXPECT_EQ(page.Find(head)->font.points, 12);
  }
  EXPECT_NEAR(page.Find("3rd DAY")->at.y, 6.94, 1e-9);
  EXPECT_NEAR(page.Find("Model Swing")->at.y, 10.1, 1e-9);
  const double tops[] = {0.9375, 4.125, 7.3125};
  ASSERT_EQ(page.pictures.size(), 3u);
  for (std::size_t i = 0; i < 3; ++i) {
    const PageBox& box = page.pictures[i].box;
    EXPECT_NEAR(box.top + box.height / 2, tops[i] + 2.8125 / 2, 0.005) << i;
    EXPECT_GE(box.left, 0.25 - 1e-9);
    EXPECT_LE(box.Right(), 7.75 + 1e-9);
    EXPECT_LE(box.height, 2.8125 + 1e-9);
  }
  EXPECT_EQ(page.pictures[2].width, 80);
  EXPECT_EQ(Sheet(ShortGame::BunkerShot, true).pictures[2].width, 120) << "the left hand has a model of its own";

  EXPECT_EQ(Sheet(ShortGame::ChipShot).pictures.size(), 2u) << "the first day and the model";
  EXPECT_EQ(Sheet(ShortGame::ChipShot).Find("3rd DAY"), nullptr);
  EXPECT_EQ(Sheet(ShortGame::Putting).pictures.size(), 2u) << "two views and no model";
  EXPECT_EQ(Sheet(ShortGame::Putting).Find("Model Swing"), nullptr);
  EXPECT_FALSE(sheets.MakeSheet(ShortGame::ChipShot, true)) << "a model that cannot be loaded";
}

TEST_F(SheetsTest, ADayThatIsNotOnTheStageComesFromItsBitmap) {
  Open(1, "Distance Wedge Day 1.avi");
  EXPECT_EQ(Sheet(ShortGame::DistanceWedge).pictures.size(), 2u);
  Put(stage.folder + "/Erica/School Pics/DistanceWedgeDay3.bmp", 77);
  const RecordedPage page = Sheet(ShortGame::DistanceWedge);
  ASSERT_EQ(page.pictures.size(), 3u);
  EXPECT_EQ(page.pictures[1].width, 77);

  stage.Stage().SetScreen(4);  // two rows: the upper and the lower part of the stage
  Open(3, "Distance Wedge Day 3.avi");
  const RecordedPage rows = Sheet(ShortGame::DistanceWedge);
  EXPECT_EQ(rows.pictures[0].width, 1200);
  for (const int row : {0, 1}) {
    EXPECT_LE(rows.pictures[std::size_t(row)].height, 300) << "half of the stage";
    EXPECT_GE(rows.pictures[std::size_t(row)].height, 200);
  }
}

TEST_F(SheetsTest, TwoVideosInOneRowAreTwoDaysInEveryLayout) {
  stage.Stage().SetScreen(4);
  Open(2, "Lessons/Bunker Shot Day 3.avi");
  EXPECT_EQ(Sheet(ShortGame::BunkerShot).pictures.size(), 2u)
      << "window 1 is empty: the day that is there, and the model";
  Open(1, "Lessons/Bunker Shot Day 1.avi");
  sheets.BriskoSaveScreen(ShortGame::BunkerShot);
  EXPECT_EQ(stage.host.messages.back(), "Pictures saved Successfully!");
  EXPECT_TRUE(Kept("BunkerShotDay1.bmp") && Kept("BunkerShotDay3.bmp")) << "beside the lessons, not among them";
}

TEST_F(SheetsTest, AModelIsKeptAsABitmapWhateverItsNameEndsWith) {
  Open(1, "Bunker Shot Day 1.avi");
  stage.host.newFiles.push_back(stage.folder + "/mine");
  sheets.BriskoModel();
  EXPECT_EQ(stage.host.suggested, stage.folder + "/pictures/");
  EXPECT_TRUE(fs::exists(stage.folder + "/mine.bmp"));
  stage.host.newFiles.push_back(stage.folder + "/other.BMP");
  sheets.BriskoModel();
  EXPECT_TRUE(fs::exists(stage.folder + "/other.BMP"));
}

}  // namespace
}  // namespace kinalyx::test
