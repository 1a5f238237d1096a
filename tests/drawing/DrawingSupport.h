#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "support/TestHost.h"
#include "core/Settings.h"
#include "drawing/DrawingTools.h"
#include "platform/paint/Canvas.h"
#include "platform/paint/Surface.h"

namespace kinalyx::test {

/// A finished shape of these points, its floating and spare slots as the store makes them.
inline Shape Finished(int kind, std::vector<POINTAPI> points, Colour colour = Rgb(255, 0, 0)) {
  ShapeEngine engine;
  ShapeList list;
  Shape& shape = *engine.AddShape(list, kind, colour);
  for (const POINTAPI& point : points) engine.AddPoint(shape, point, true);
  if (!shape.Locked) engine.LockShape(shape);
  return shape;
}

inline void Add(ShapeList& list, Shape shape) {
  list.Shapes.resize(static_cast<std::size_t>(list.NumShapes));
  list.Shapes.push_back(std::move(shape));
  ++list.NumShapes;
}

/// Eight windows of 640 x 480 with videos of ten frames, and a note of what the tools did to them.
class TestWorkspace final : public IDrawingWorkspace {
 public:
  int active = 1;
  bool hasVideo = true;
  bool playing = false;
  std::map<int, int> frame;
  std::map<int, int> refreshed;
  std::string display;
  std::string caption;
  Colour vectorColor = -1;  ///< -1 while hidden
  int button = -1;
  int drawingsChanged = 0;
  POINTAPI asked{};  ///< where letters are wanted
  std::string askedText;

  int ActiveWindow() override { return active; }
  void SetActiveWindow(int window) override { active = window; }
  bool HasVideo(int) override { return hasVideo; }
  int PictureWidth(int) override { return 640; }
  int PictureHeight(int) override { return 480; }
  bool IsPlaying(int) override { return playing; }
  void StopClick(int window) override {
    playing = false;
    active = window;
  }
  void ReleaseLoopButton() override {}
  void Refresh(int window) override { ++refreshed[window]; }
  bool OnLastFrame(int window) override { return frame[window] == 9; }
  int FrameOf(int window) override { return frame[window]; }
  void AdvanceFrame(int window) override { ++frame[window]; }
  void RetreatFrame(int window) override { --frame[window]; }
  void DisplayData(const std::string& text) override { display = text; }
  void ShowToolCaption(const std::string& text) override { caption = text; }
  void ShowVectorColor(Colour colour) override { vectorColor = colour; }
  void HideVectorColor() override { vectorColor = -1; }
  void SetColorButton(int index) override { button = index; }
  void ShowDrawError(const std::string& text) override { ADD_FAILURE() << text; }
  void DrawingsChanged(int) override { ++drawingsChanged; }
  void AskText(int, POINTAPI at, const std::string& text) override {
    asked = at;
    askedText = text;
  }
  bool TakeSquare(int, const Shape&) override { return false; }
  bool CalibrationShown() override { return false; }
  void ShowCalibrationLength(const std::string&) override {}
};

/// The tools over such a workspace, with a mouse.
struct Desk {
  TestHost host;
  Settings settings;
  TestWorkspace workspace;
  ShapeEngine engine;
  DrawingTools tools{engine, settings, workspace};

  /// Without a folder the settings are never written.
  explicit Desk(const std::string& dataPath = "") : settings(host, dataPath, dataPath) {
    if (!dataPath.empty()) settings.LoadSettings();
    settings.CadWidth = 5;
    settings.CadOutline = true;
    settings.GridSize = 10;
    settings.NTSCorPAL = "0";
    settings.NewColors = {0xC0C000, 0xFFFF,   0x8000, 0xFF0000, 0xFF,     0xFF00, 0xFFFF,
                          0xFF,     0xFF0000, 0xFFFF, 0xFF,     0x800000, 0xFFFF};
  }

  ShapeList& List(int window = 1) { return engine.ShapeLists(window); }
  /// The fixed points of one of the first window's shapes.
  std::vector<POINTAPI> Points(std::size_t shape) {
    const auto points = BoundPoints(List().Shapes[shape]);
    return {points.begin(), points.end()};
  }
  void Move(int x, int y, int window = 1) {
    tools.MouseMove(0, 0, static_cast<float>(x), static_cast<float>(y), window);
  }
  bool Down(int x, int y, int window = 1, int button = 1) {
    return tools.MouseDown(button, 0, static_cast<float>(x), static_cast<float>(y), window);
  }
  bool Up(int x, int y, int window = 1, int button = 1) {
    return tools.MouseUp(button, 0, static_cast<float>(x), static_cast<float>(y), window);
  }
  /// Moves there, presses and releases.
  void Click(int x, int y, int window = 1, int button = 1) {
    Move(x, y, window);
    Down(x, y, window, button);
    Up(x, y, window, button);
  }
  void Draw(int kind, std::initializer_list<POINTAPI> points, int window = 1) {
    workspace.active = window;
    tools.TakeTool(kind);
    for (const POINTAPI& point : points) Click(point.x, point.y, window);
  }
};

}  // namespace kinalyx::test
