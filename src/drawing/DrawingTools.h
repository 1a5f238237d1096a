#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/Settings.h"
#include "drawing/IDrawingWorkspace.h"
#include "drawing/ShapeStore.h"
#include "drawing/WindowPainter.h"

namespace kinalyx {

/// The back colours of the twelve colour buttons `ColorChoiceBtn`, in their order.
inline constexpr std::array<Colour, 12> kColorChoices{
    Rgb(255, 0, 0),   Rgb(255, 255, 0), Rgb(0, 0, 255),   Rgb(0, 255, 0),   Rgb(255, 0, 255), Rgb(0, 192, 192),
    Rgb(255, 128, 0), Rgb(0, 128, 0),   Rgb(0, 255, 255), Rgb(255, 255, 255), Rgb(0, 0, 128), Rgb(255, 128, 192)};

/// What the edit bar adds to painting and clicks.
class IEditMarks {
 public:
  virtual ~IEditMarks() = default;
  virtual bool Shown() const = 0;      ///< the bar is up: the selection is marked, clicks select
  virtual bool MultiEdit() const = 0;  ///< all shapes of the window are worked on
  virtual void SetEditBar() = 0;       ///< the active list or its selection changed
};

/// Turns the mouse in a video window into shapes, and knows the commands that begin and clear them.
///
/// Idle -> CmdMakeShape_Click -> armed -> first mouse down -> building -> the shape is finished -> idle.
/// A path steps the video one frame per click. A tool that is put down, or another one taken up, ends
/// what is under construction: a line of free points is finished as far as it goes, any other goes.
class DrawingTools final : public IShapeLocked {
 public:
  DrawingTools(ShapeEngine& engine, Settings& settings, IDrawingWorkspace& workspace);
  ~DrawingTools() override;

  /// The edit bar, once there is one; not owned, null for none.
  void AttachEditBar(IEditMarks* bar) { bar_ = bar; }
  ShapeEngine& Engine() { return engine_; }
  ShapeList& List(int window) { return engine_.ShapeLists(window); }

  // --- state
  bool Drawing() const { return Drawing_; }
  bool NewShapePending() const { return NewShapePending_; }
  int DrawKind() const { return DrawKind_; }
  int DrawWindow() const { return DrawWindow_; }
  int RandomColorIndex() const { return RandomColorIndex_; }
  bool HasShapes(int window) const;
  /// A measure stays on the display although the tool has ended.
  bool CaptionKept() const { return CaptionKept_; }
  void ClearCaptionKept() { CaptionKept_ = false; }

  // --- commands
  /// Takes a tool up; the tool in hand is put down by it. Nothing happens without a video.
  void CmdMakeShape_Click(int Index);
  /// The Draw menu: index 11 turns the grid on or off, the others are tools.
  void MenuDraw_Click(int Index);
  void DDSL_Click();  ///< a straight line
  void DDSA_Click();  ///< a straight arrow
  void DrawOffBtn_Click();
  void Lastcadoff_Click();
  void Cadoffbutton_Click();
  void ColorChoiceBtn_Click(int Index);
  void SetGridMode(bool Value);

  // --- mouse, in pixels of the window's picture; Button 1 is the left one
  /// True when the click was taken; otherwise it is the transport's.
  bool MouseDown(int Button, int Shift, float X, float Y, int Window);
  bool MouseMove(int Button, int Shift, float X, float Y, int Window);
  bool MouseUp(int Button, int Shift, float X, float Y, int Window);

  // --- frame
  /// Paints the grid and the shapes of a window, and the measure of the current shape with them.
  void PreDrawFrame(Canvas& hDC, int Window);

  // --- shapes of a window; -1 means the active one
  /// Removes the selected shape of the window that was drawn in last.
  void DeleteCurShape();
  void DeleteLastCAD(int Window);
  void DeleteAllCAD(int Window);
  void RedrawCanvas(int Window);
  /// Replaces the drawings of a window by those of another; a source without any changes nothing.
  void CopyShapes(int FromWindow, int ToWindow);
  /// Which list the selection, its measure and its deletion belong to.
  void SetDrawWindow(int window) { DrawWindow_ = window; }
  void SetShapeCaption();

  // --- from the store
  /// Kinds 0 to 10 announce a tool and choose its colour; 25 ends the announcement and steps the random colour.
  void VectorColorUpdate(int Kind) override;
  /// No tool is active any more.
  void DrawingOff() override;

 private:
  static constexpr int HitRadius = 100;  ///< pixels within which a click selects a shape

  int Resolve(int window);
  void EndConstruction();
  void FinishOpenShape(ShapeList& list);
  void Finished(int window);
  void Select(int window, POINTAPI point);
  void SetEditBar();

  ShapeEngine& engine_;
  Settings& settings_;
  IDrawingWorkspace& workspace_;
  IEditMarks* bar_ = nullptr;
  std::array<WindowPainter, ShapeLists::kWindows> painters_;
  std::array<const Shape*, ShapeLists::kWindows> failed_{};

  bool Drawing_ = false;
  bool NewShapePending_ = false;
  int DrawKind_ = 0;
  int DrawWindow_ = 1;
  int RandomColorIndex_ = 0;
  POINTAPI LastDown_;
  bool CaptionKept_ = false;
};

}  // namespace kinalyx
