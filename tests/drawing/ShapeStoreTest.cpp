#include <gmock/gmock.h>

#include <ctime>
#include <regex>
#include <sstream>

#include "DrawingSupport.h"
#include "drawing/ShapeGeometry.h"
#include "drawing/ShapeHistory.h"
#include "platform/files/IniFile.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

struct Listener final : IShapeLocked {
  int announcements = 0;  ///< that are over
  int off = 0;
  void AnnouncementOver() override { ++announcements; }
  void DrawingOff() override { ++off; }
};

TEST(ShapeStore, AnAngleIsFinishedByItsThirdPoint) {
  ShapeEngine engine;
  Listener listener;
  engine.SetLockListener(&listener);
  engine.CadColor = 77;
  ShapeList list;
  Shape& angle = *engine.AddShape(list, kAngle, 0);
  EXPECT_EQ(angle.Colour, 77) << "no colour means the current one";
  for (const auto& [point, fixed] :
       {std::pair{POINTAPI{10, 10}, false}, {{11, 10}, true}, {{50, 10}, false}, {{11, 10}, false}})
    EXPECT_FALSE(engine.AddPoint(angle, point, fixed));
  EXPECT_EQ(angle.NumPts, 2);
  EXPECT_EQ(angle.Pts[1], (POINTAPI{50, 10})) << "back on the last fixed point, the floating one stays where it was";
  EXPECT_FALSE(engine.AddPoint(angle, {60, 10}, true));
  EXPECT_EQ(listener.announcements, 0);
  EXPECT_TRUE(engine.AddPoint(angle, {60, 90}, true));
  EXPECT_TRUE(angle.Locked);
  EXPECT_EQ(listener.announcements, 1);
  EXPECT_EQ(listener.off, 1);
  EXPECT_FALSE(engine.AddPoint(angle, {1, 1}, true)) << "locked";
  EXPECT_EQ(angle.NumBound, 3);
}

TEST(ShapeStore, AnOpenLineGrowsAndDropsItsFloatingPoint) {
  ShapeEngine engine;
  ShapeList list;
  Shape& path = *engine.AddShape(list, kSwingPath, 1);
  for (int i = 0; i < 5; ++i) engine.AddPoint(path, {i, i}, true);
  engine.AddPoint(path, {99, 99}, false);
  EXPECT_EQ(path.NumPts, 6);
  engine.LockShape(path);
  EXPECT_EQ(path.NumPts, 5);
  EXPECT_TRUE(path.Locked);

  // The counts are 16 bits wide: a stroke without end stops taking points.
  Shape& stroke = *engine.AddShape(list, kFreehand, 1);
  for (int i = 0; i < 40000; ++i) engine.AddPoint(stroke, {i, 0}, true);
  EXPECT_EQ(stroke.NumBound, 32767);
}

TEST(ShapeStore, ACopyIsFinishedLikeAnyShape) {
  ShapeEngine engine;
  ShapeList source, target;
  Add(source, Finished(kClock, {{0, 0}, {100, 100}}, 9));
  source.Shapes[0].Pts[2].x = 15;
  source.Shapes[0].SavedPts.resize(3);
  Add(source, Finished(kFreehand, {{0, 0}, {5, 5}, {0, 0}}, 9));
  for (int index = 0; index < 3; ++index) engine.CopyShapeInto(source, target, index);
  ASSERT_EQ(target.NumShapes, 2);
  EXPECT_FALSE(target.Adding);
  EXPECT_EQ(ClockRotation(target.Shapes[0]), 0);
  EXPECT_TRUE(target.Shapes[0].SavedPts.empty());
  EXPECT_EQ(target.Shapes[1].NumBound, 3);
}

TEST(ShapeStore, TheLogTellsOfADrawingWhenTheSettingsAskForIt) {
  TempFolder folder;
  const auto drawn = [&] {
    Desk desk(folder.Path());
    DrawingTools tools(desk.engine, desk.settings, desk.workspace);  // made after the settings were read
    tools.TakeTool(kLine);
    for (const float x : {10.0f, 90.0f}) {
      tools.MouseDown(1, 0, x, 20, 1);
      tools.MouseUp(1, 0, x, 20, 1);
    }
    tools.DeleteCurShape();
    return folder.Get("Kinalyx_Log.txt");
  };
  EXPECT_EQ(drawn(), "");
  EXPECT_EQ(folder.Get("config10.ini").find("LogEnabled"), std::string::npos) << "no first run writes the key";
  ASSERT_TRUE(WritePrivateProfileString("Analysis", "LogEnabled", "True", folder.Path("config10.ini")));
  const std::time_t now = std::time(nullptr);
  char today[11];
  std::strftime(today, sizeof today, "%d/%m/%Y", std::localtime(&now));
  std::istringstream log(drawn());
  std::vector<std::string> calls;
  for (std::string line; std::getline(log, line);) {
    EXPECT_TRUE(std::regex_match(line.substr(0, 24), std::regex(R"(\d\d:\d\d:\d\d - )" + std::string(today) + " - ")))
        << line;
    calls.push_back(line.substr(24));
  }
  EXPECT_THAT(calls, testing::IsSupersetOf({"Calling AddShape(3)", "Calling AddPoint((10, 20), True)",
                                            "Calling AddPoint((90, 20), True)", "Calling LockShape()",
                                            "Calling KillShape(0)"}));
}

TEST(ShapeStore, ListsStretchAndFlip) {
  ShapeList list;
  Add(list, Finished(kClock, {{10, 20}, {31, 41}}));
  list.Shapes[0].Pts[2].x = 12;
  StretchShapes(list, 640, 480, 320, 240);
  // 15.5 and 20.5 go to the even neighbour; a rotation is no place.
  EXPECT_EQ(list.Shapes[0].Pts, (std::vector<POINTAPI>{{5, 10}, {16, 20}, {12, 0}}));
  FlipShapes(list, 320);
  EXPECT_EQ(list.Shapes[0].Pts[0], (POINTAPI{315, 10}));
  const ShapeList before = list;
  StretchShapes(list, 320, 240, 0, 0);
  StretchShapes(list, 0, 0, 320, 240);
  EXPECT_EQ(list, before) << "a window that is not shown has no size";
}

TEST(ShapeHistory, FiftyChangesCanBeTakenBack) {
  ShapeHistory history;
  ShapeList list;
  history.Reset(list, {640, 480, false});
  for (int i = 0; i < 60; ++i) {
    Add(list, Finished(kFlag, {{i, i}}));
    history.Note(list);
    history.Note(list);
  }
  int steps = 0;
  while (history.Undo(list)) ++steps;
  EXPECT_EQ(steps, 50);
  EXPECT_EQ(list.NumShapes, 10);
  EXPECT_TRUE(history.Redo(list));
  EXPECT_EQ(list.NumShapes, 11);
  ShapeEngine().KillShape(list, 0);
  history.Note(list);
  EXPECT_FALSE(history.CanRedo()) << "a new change drops what was taken back";
}

}  // namespace
}  // namespace kinalyx::test
