#include "drawing/Macros.h"

#include <filesystem>

#include "DrawingSupport.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

class MacrosTest : public testing::Test {
 protected:
  TempFolder root_;
  std::string app_ = root_.Path("app");
  std::string data_ = root_.Path("data");
  fs::path file_ = fs::path(app_) / "Macro.dat";
  ShapeList list_;

  MacrosTest() {
    fs::create_directories(app_);
    fs::create_directories(data_);
    Add(list_, Finished(kLine, {{10, 10}, {90, 50}}));
    Add(list_, Finished(kLine, {{10, 10}, {90, 90}}));
    Add(list_, Finished(kClock, {{10, 10}, {90, 90}}));
    list_.CanvasWidth = 320 * 15;
    list_.CanvasHeight = 240 * 15;
  }
};

TEST_F(MacrosTest, OutliveTheProgram) {
  {
    Macros macros(app_, data_);
    macros.LoadMList({});
    EXPECT_EQ(macros.NumMacros(), 0);
    EXPECT_TRUE(macros.CreateMacro("Stance", list_));
    EXPECT_TRUE(macros.CreateMacro("Überschwung", {}));
    EXPECT_FALSE(macros.CreateMacro("", list_));
  }
  Macros macros(app_, data_);
  macros.LoadMList({});
  ASSERT_EQ(macros.NumMacros(), 2);
  EXPECT_EQ(macros.MacroNames(), (std::vector<std::string>{"Stance", "Überschwung"}));
  EXPECT_EQ(macros.Macro(0), list_);
  EXPECT_EQ(macros.Macro(1).NumShapes, 0) << "a name without shapes";
  EXPECT_EQ(macros.Info(0), "2 Line's\r\n1 Clock's\r\n");
  EXPECT_TRUE(macros.KillMacro(0));
  EXPECT_EQ(macros.MacroNames(), std::vector<std::string>{"Überschwung"});
  EXPECT_TRUE(macros.KillMacro(0));
  EXPECT_FALSE(fs::exists(file_)) << "the last one takes the file with it";
}

TEST_F(MacrosTest, TwoUsersOfOneFolderKeepEachOthers) {
  Macros mine(app_, data_);
  Macros theirs(app_, data_);
  mine.LoadMList({});
  theirs.LoadMList({});
  ASSERT_TRUE(theirs.CreateMacro("Theirs", list_));
  mine.LoadMList({});
  ASSERT_TRUE(mine.CreateMacro("Mine", list_));
  theirs.LoadMList({});
  EXPECT_EQ(theirs.MacroNames(), (std::vector<std::string>{"Theirs", "Mine"}));
}

TEST_F(MacrosTest, AnUnwritableProgramFolderGivesWayToTheUsersOwn) {
  // A folder of the file's name refuses to be written over, whoever runs the test.
  fs::create_directories(file_ / "taken");
  Macros macros(app_, data_);
  EXPECT_TRUE(macros.CreateMacro("Mine", list_));
  EXPECT_TRUE(fs::exists(fs::path(data_) / "Macro.dat"));
  Macros again(app_, data_);
  again.LoadMList({});
  EXPECT_EQ(again.NumMacros(), 1);

  fs::create_directories(fs::path(data_) / "Macro.old");
  Macros nowhere(app_, root_.Path("missing/folder"));
  std::string error;
  EXPECT_FALSE(nowhere.CreateMacro("Lost", list_, &error));
  EXPECT_NE(error, "");
  EXPECT_EQ(nowhere.NumMacros(), 0) << "what is not on the disk is not in the list";
}

TEST_F(MacrosTest, TheFileStaysShortEnoughToBeRead) {
  Macros macros(app_, data_);
  ShapeList large;
  for (int i = 0; i < 300; ++i) Add(large, Finished(kLine, {{i, i}, {i + 9, i}}));
  EXPECT_TRUE(macros.CreateMacro("First", large));
  std::string error;
  EXPECT_FALSE(macros.CreateMacro("Second", large, &error));
  EXPECT_NE(error.find("32767"), std::string::npos);
  EXPECT_EQ(macros.NumMacros(), 1);
  EXPECT_LE(fs::file_size(file_), kShapeFileLimit);

  // One from elsewhere that is longer reads in part; nothing of it is lost when it is replaced.
  for (int i = 0; i < 400; ++i) Add(large, Finished(kLine, {{i, i}, {i + 9, i}}));
  ASSERT_TRUE(WriteWholeFile(file_.string(), WriteShapeFile({0, {large}, {"Long"}})));
  const auto size = fs::file_size(file_);
  Macros again(app_, data_);
  again.LoadMList({});
  ASSERT_EQ(again.NumMacros(), 1);
  EXPECT_EQ(again.NumShapesInMacro(0), 1);
  EXPECT_TRUE(again.CreateMacro("More", list_));
  EXPECT_EQ(fs::file_size(fs::path(data_) / "Macro.old"), size);
}

TEST_F(MacrosTest, AreLaidOverAWindowOfAnotherSize) {
  Desk desk;
  desk.List().GridOn = true;
  EmbedMacro(list_, desk.tools, desk.workspace);
  ASSERT_EQ(desk.List().NumShapes, 3);
  EXPECT_EQ(desk.Points(0)[1], (POINTAPI{180, 100}));
  EXPECT_EQ(desk.List().CanvasWidth, 640 * 15);
  EXPECT_EQ(desk.List().CurShape, 0);
  EXPECT_TRUE(desk.List().GridOn);
  // One that does not know its size is taken as it is.
  list_.CanvasWidth = 0;
  EmbedMacro(list_, desk.tools, desk.workspace);
  EXPECT_EQ(desk.Points(0)[1], (POINTAPI{90, 50}));
}

TEST_F(MacrosTest, PreviewsShowTheWholeDrawing) {
  const Surface preview = PaintMacro(list_, 80, 60, Rgb(20, 20, 20), {8, false, false});
  EXPECT_EQ(preview.Pixel(12, 7), Rgb(255, 0, 0)) << "the first line's middle, a quarter as large";
  EXPECT_EQ(preview.Pixel(70, 50), Rgb(20, 20, 20));
}

TEST_F(MacrosTest, TheGridKeepsItsRange) {
  Desk desk(data_);
  desk.tools.SetGridMode(true);
  desk.workspace.refreshed.clear();
  desk.tools.SetGridSize(10);
  EXPECT_EQ(desk.settings.GridSize, 10);
  EXPECT_EQ(desk.workspace.refreshed[1], 1);
  desk.tools.SetGridSize(-5);
  EXPECT_EQ(desk.settings.GridSize, kGridSizeLeast);
}

}  // namespace
}  // namespace kinalyx::test
