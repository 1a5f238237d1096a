#include "drawing/Macros.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <thread>

#include "DrawingSupport.h"
#include "support/TempFolder.h"
#include "support/TestDisks.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

/// A disk of which one folder may be read only.
class GuardedDisk final : public HastyDisk {
 public:
  std::string guarded;

  int OpenNew(const std::string& path) override {
    if (guarded.empty() || !path.starts_with(guarded)) return HastyDisk::OpenNew(path);
    errno = EROFS;
    return -1;
  }
};

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
  Macros before(app_, data_);
  before.LoadMList({});
  EXPECT_TRUE(before.CreateMacro("Stance", list_));
  EXPECT_TRUE(before.CreateMacro("Überschwung", {}));
  EXPECT_FALSE(before.CreateMacro("", list_));
  Macros macros(app_, data_);
  macros.LoadMList({});
  EXPECT_EQ(macros.MacroNames(), (std::vector<std::string>{"Stance", "Überschwung"}));
  EXPECT_EQ(macros.Macro(0), list_);
  EXPECT_EQ(macros.Macro(1).NumShapes, 0) << "a name without shapes";
  EXPECT_EQ(macros.Info(0), "2 Line's\r\n1 Clock's\r\n");
  EXPECT_TRUE(macros.KillMacro(0));
  EXPECT_EQ(macros.MacroNames(), std::vector<std::string>{"Überschwung"});
  EXPECT_TRUE(macros.KillMacro(0));
  EXPECT_FALSE(fs::exists(file_)) << "the last one takes the file with it";
}

TEST_F(MacrosTest, AllWhoUseOneFolderKeepEachOthers) {
  // Each has read the file before the others wrote to it.
  std::vector<std::thread> stations;
  for (int station = 0; station < 3; ++station) {
    stations.emplace_back([this, station] {
      GuardedDisk disk;
      Macros macros(app_, root_.Path("data" + std::to_string(station)), disk);
      macros.LoadMList({});
      // One that finds the others at it all the time says so, and its user tries again.
      const auto insist = [](const auto& change) {
        int tries = 0;
        while (!change() && ++tries < 100) {
        }
      };
      const auto name = [station](int number) { return std::to_string(station) + "-" + std::to_string(number); };
      for (int i = 0; i < 10; ++i) {
        insist([&] { return macros.CreateMacro(name(i), {}); });
        if (i % 2 == 1) insist([&] { return macros.KillMacro(macros.IndexOf(name(i - 1))); });
      }
    });
  }
  for (std::thread& station : stations) station.join();
  Macros all(app_, data_);
  all.LoadMList({});
  auto names = all.MacroNames();
  std::ranges::sort(names);
  EXPECT_EQ(names, (std::vector<std::string>{"0-1", "0-3", "0-5", "0-7", "0-9", "1-1", "1-3", "1-5", "1-7", "1-9",
                                             "2-1", "2-3", "2-5", "2-7", "2-9"}));
  EXPECT_EQ(std::distance(fs::directory_iterator(app_), {}), 1) << "no lock and no part stays";

  // What somebody has replaced under the same name is not what was to be removed.
  Macros mine(app_, data_);
  mine.LoadMList({});
  const int index = mine.IndexOf("1-1");
  ASSERT_TRUE(all.KillMacro(all.IndexOf("1-1")) && all.CreateMacro("1-1", list_));
  EXPECT_TRUE(mine.KillMacro(index));
  EXPECT_EQ(mine.Macro(mine.IndexOf("1-1")), list_);
}

TEST_F(MacrosTest, AnUnwritableProgramFolderGivesWayToTheUsersOwn) {
  const fs::path own = fs::path(data_) / "Macro.dat";
  GuardedDisk disk;
  Macros macros(app_, data_, disk);
  ASSERT_TRUE(macros.CreateMacro("Everybody's", list_));
  disk.guarded = app_;
  EXPECT_TRUE(macros.CreateMacro("Mine", list_));
  EXPECT_TRUE(fs::exists(own));
  const Outcome refused = macros.KillMacro(0);
  EXPECT_NE(refused.Why().find(file_.string()), std::string::npos) << refused.Why();

  // The shared one can be written again: both are shown, and each keeps to itself.
  disk.guarded.clear();
  EXPECT_TRUE(macros.CreateMacro("Everybody's too", list_));
  Macros again(app_, data_, disk);
  again.LoadMList({});
  EXPECT_EQ(again.MacroNames(), (std::vector<std::string>{"Everybody's", "Everybody's too", "Mine"}));
  EXPECT_TRUE(again.KillMacro(2));
  EXPECT_FALSE(fs::exists(own));
  EXPECT_TRUE(fs::exists(file_)) << "not mine to take away";

  // An own file that once stood in for the shared one repeats it: what is removed goes from both.
  fs::copy_file(file_, own);
  again.LoadMList({});
  ASSERT_EQ(again.NumMacros(), 2);
  EXPECT_TRUE(again.KillMacro(0));
  EXPECT_EQ(again.MacroNames(), std::vector<std::string>{"Everybody's too"});

  disk.guarded = root_.Path();
  EXPECT_FALSE(again.CreateMacro("Lost", list_));
  EXPECT_EQ(again.NumMacros(), 1) << "what is not on the disk is not in the list";
  Macros one(app_, app_);
  one.LoadMList({});
  EXPECT_EQ(one.NumMacros(), 1) << "both folders may be the same";
}

TEST_F(MacrosTest, WhatCannotBeReadIsKeptBesideAndTold) {
  const std::vector<std::uint8_t> whole = WriteShapeFile({0, {list_, list_}, {"One", "Two"}});
  const std::size_t record = (whole.size() - 6 - 13 - 2 * 5 - 3) / 6;
  const auto changed = [&](std::size_t at, std::uint8_t byte) {
    auto bytes = whole;
    bytes[at] = byte;
    return bytes;
  };
  const auto sized = [&](std::size_t size) {
    auto bytes = whole;
    bytes.resize(size);
    return bytes;
  };
  const struct {
    const char* what;
    std::vector<std::uint8_t> bytes;
    int readable;
  } cases[] = {{"another head", changed(0, 'X'), 0},
               {"a list too many", changed(4, 2), 3},
               {"an unknown tag", changed(6, 'X'), 2},
               {"two dimensions", changed(6 + 4 + 8, 2), 2},
               {"more points than there are", changed(6 + 4 + 11, 1), 2},
               {"more fixed points than there are", changed(6 + 4, 200), 2},
               {"a list that is none", changed(6 + record + 3, 9), 2},
               {"a name too many", changed(whole.size() - 3 - 10 - 8, 3), 2},
               {"a byte missing", sized(whole.size() - 1), 2},
               {"no names", sized(6 + 6 * record), 2},
               {"bytes left over", sized(whole.size() + 2), 2},
               {"empty, as nothing", {}, 0}};
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    const std::string kept = file_.string() + ".old";
    fs::remove(kept);
    ASSERT_TRUE(WriteWholeFile(file_.string(), one.bytes));
    Macros macros(app_, data_);
    macros.LoadMList({});
    EXPECT_EQ(macros.NumMacros(), one.readable);
    EXPECT_EQ(macros.TakeNotice().empty(), one.bytes.empty());
    macros.LoadMList({});
    EXPECT_EQ(macros.TakeNotice(), "") << "once is enough";
    EXPECT_TRUE(macros.CreateMacro("New", list_));
    EXPECT_EQ(macros.NumMacros(), one.readable + 1);
    EXPECT_EQ(macros.TakeNotice().find(kept) == std::string::npos, one.bytes.empty());
    EXPECT_EQ(ReadWholeFile(kept).value_or(std::vector<std::uint8_t>{}), one.bytes);
    // The file is sound again, and what was kept is not replaced.
    EXPECT_TRUE(macros.CreateMacro("Newer", list_));
    EXPECT_EQ(macros.TakeNotice(), "");
    EXPECT_FALSE(fs::exists(kept + "2"));
  }
}

TEST_F(MacrosTest, TheFileStaysShortEnoughToBeRead) {
  Macros macros(app_, data_);
  ShapeList large;
  for (int i = 0; i < 300; ++i) Add(large, Finished(kLine, {{i, i}, {i + 9, i}}));
  EXPECT_TRUE(macros.CreateMacro("First", large));
  EXPECT_NE(macros.CreateMacro("Second", large).Why().find("32767"), std::string::npos);
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
  EXPECT_EQ(fs::file_size(fs::path(app_) / "Macro.dat.old"), size);
}

TEST_F(MacrosTest, AreLaidOverAWindowOfAnotherSize) {
  Desk desk;
  desk.List().GridOn = true;
  EmbedMacro(list_, desk.tools, desk.workspace);
  ASSERT_EQ(desk.List().NumShapes, 3);
  EXPECT_EQ(desk.Points(0)[1], (POINTAPI{180, 100}));
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
