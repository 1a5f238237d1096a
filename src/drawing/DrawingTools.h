#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/Settings.h"
#include "drawing/FilmDrawings.h"
#include "drawing/IDrawingWorkspace.h"
#include "drawing/LabelPainter.h"
#include "drawing/Measurement.h"
#include "drawing/ShapeHand.h"
#include "drawing/ShapeLabels.h"
#include "drawing/ShapeHistory.h"
#include "drawing/ShapeStore.h"
#include "drawing/WindowPainter.h"

namespace kinalyx {

/// The back colours of the twelve colour buttons `ColorChoiceBtn`, in their order.
inline constexpr std::array<Colour, 12> kColorChoices{
    Rgb(255, 0, 0),   Rgb(255, 255, 0), Rgb(0, 0, 255),   Rgb(0, 255, 0),     Rgb(255, 0, 255), Rgb(0, 192, 192),
    Rgb(255, 128, 0), Rgb(0, 128, 0),   Rgb(0, 255, 255), Rgb(255, 255, 255), Rgb(0, 0, 128),   Rgb(255, 128, 192)};

constexpr int kGridSizeLeast = 2;
constexpr int kGridSizeMost = 200;

/// Ways of holding one of the tools.
enum class ToolInHand {
  Plain,
  CentreCircle,  ///< a circle from its centre to its edge
  Text,          ///< letters where the mouse is clicked
};

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
/// Idle -> TakeTool -> armed -> first mouse down -> building -> the shape is finished -> idle.
/// A path steps the video one frame per click. Putting a tool down ends what is under construction: an
/// open line is finished as far as it goes, any other shape is given up.
class DrawingTools final : public IShapeLocked {
 public:
  DrawingTools(ShapeEngine& engine, Settings& settings, IDrawingWorkspace& workspace);
  ~DrawingTools() override;
  DrawingTools(const DrawingTools&) = delete;
  DrawingTools& operator=(const DrawingTools&) = delete;

  /// The edit bar, once there is one; not owned, null for none.
  void AttachEditBar(IEditMarks* bar) { bar_ = bar; }
  ShapeEngine& Engine() { return engine_; }
  ShapeList& List(int window) { return engine_.ShapeLists(window); }
  const ShapeList& List(int window) const { return engine_.ShapeLists(window); }
  /// What is done to drawings without a tool.
  ShapeHand& Hand() { return hand_; }
  const ShapeHand& Hand() const { return hand_; }

  // --- state
  bool Drawing() const { return Drawing_; }
  int DrawKind() const { return DrawKind_; }
  ToolInHand InHand() const { return inHand_; }
  bool StaysInHand() const { return Drawing_ && stays_; }
  /// The user has chosen the keys and tools of an editor.
  bool Editor() const { return settings_.KeysAndTools == kEditorKeys; }
  /// Pixels of a line that has no width of its own.
  int UsualWidth() const { return settings_.CadWidth; }
  int DrawWindow() const { return DrawWindow_; }
  bool HasShapes(int window) const;
  /// The measure of a shape does not outlive what comes now; a tool in hand is announced again.
  void DropMeasure();

  // --- commands
  /// Takes a tool up; the tool in hand is put down by it. Nothing happens without a video.
  void TakeTool(int Index);
  /// The Draw menu: index 11 turns the grid on or off, the others are tools.
  void ChooseFromMenu(int Index);
  void TakeStraightLine();   ///< a straight line
  void TakeStraightArrow();  ///< a straight arrow
  void TakeCentreCircle();
  void TakeTextTool();
  /// The tool in hand makes one shape after the other until it is put down.
  void StayInHand() {
    stays_ = Drawing_;
    straight_ = engine_.StraightMode;
  }
  void PutToolDown();
  bool TracingPath() const;
  /// The path or stroke that is traced ends where it is.
  void EndPath();
  void DeleteLast();
  void DeleteAll();
  /// For the tool in hand, or what is taken.
  void ChooseColour(int Index);
  /// Pixels, likewise; the tool keeps them for all shapes to come, 0 what the settings say.
  void ChooseWidth(int pixels);
  int PenWidth() const { return PenWidth_ > 0 ? PenWidth_ : settings_.CadWidth; }
  /// Letters round a point, or, `anew`, in place of those that are taken; without any nothing is written.
  void WriteText(int window, POINTAPI at, const std::string& text, bool anew);
  void SetGridMode(bool Value);
  /// Divisions across the picture, kGridSizeLeast to kGridSizeMost; other values count as the nearest.
  void SetGridSize(int Value);
  /// Copies the active window's drawings to the other one of two, which becomes active. False when the
  /// layout shows more: then the user must choose, and CopyShapes does it.
  bool CloneStart(int windowsShown);

  // --- mouse, in pixels of the window's picture; Button 1 is the left one
  /// True when the click was taken; otherwise it is the transport's.
  bool MouseDown(int Button, int Shift, float X, float Y, int Window);
  bool MouseMove(int Button, int Shift, float X, float Y, int Window);
  bool MouseUp(int Button, int Shift, float X, float Y, int Window);
  /// The second press of a fast pair, after MouseDown has had it.
  void MouseTwice(POINTAPI at, int Window) {
    if (!Drawing_ && !BarShown()) hand_.PressTwice(at, Window);
  }

  // --- frame
  /// Takes all finished drawings off the pictures, in every window, until they are wanted again; what is being
  /// drawn stays in sight.
  void HideDrawings(bool hidden);
  bool Hidden() const { return hidden_; }
  /// The picture that a window shows has something of this drawing of it; what is not seen is left alone by the mouse.
  bool IsSeen(const Shape& shape, int window) const;
  /// Figures stand beside the drawings of every window.
  void ToggleLabels();
  bool LabelsShown() const { return settings_.ShapeLabels != 0; }
  /// Paths of a window have speeds beside them.
  bool ShowsSpeeds(int window) const;
  /// The figures beside the drawings of a window; of those that come or go, none.
  std::vector<ShapeLabel> LabelsOf(int window);
  /// What a window's picture has drawn on it now, as values; nothing of what is under construction or hidden.
  FilmDrawings FilmOf(int window);
  /// What the drawings measure that are seen in full now, each by its index in the list.
  std::vector<std::pair<std::size_t, ShapeLabel>> MeasuresOf(int window);
  /// Paints the grid and the shapes of a window, and the measure of the current shape with them.
  void PreDrawFrame(Canvas& hDC, int Window);

  // --- shapes of a window; -1 means the active one
  /// Removes the selected shape of the window that was drawn in last.
  void DeleteCurShape();
  void RemoveShape(int window, int index);
  /// Moves letters so far that all of them are on their window's picture; other shapes stay.
  void KeepInside(Shape& shape, int window);
  /// The halo and the handles of a shape.
  TakenMarks MarksOf(const Shape& shape) const;
  void DeleteLastCAD(int Window);
  void DeleteAllCAD(int Window);
  void RedrawCanvas(int Window);
  /// Replaces the drawings of a window by those of another; a source without any changes nothing.
  void CopyShapes(int FromWindow, int ToWindow);
  /// Which list the selection, its measure and its deletion belong to.
  void SetDrawWindow(int window) { DrawWindow_ = window; }
  /// Shows what the selected shape measures.
  void SetShapeCaption();
  /// Pixels of a window's picture have a length: a ruler is set.
  bool Calibrated(int window) const { return ScaleOf(window).PixelsPerInch > 0; }
  /// The window that is measured in.
  int MeasuredWindow() const { return measure_ ? measure_->window : DrawWindow_; }
  /// Takes the ruler's line off the picture, whichever it lies on.
  void RemoveMeasuringLine();

  // --- the past of a window's drawings
  /// Whoever changes a list by other roads than this class says so before and after. A list that was
  /// exchanged without a word begins a new past.
  void BeforeChange(int window) { History(window).BeforeChange(List(window)); }
  /// Closes a step that can be undone; nothing happens when the drawings are what they were.
  void NoteChange(int window) { History(window).Note(List(window)); }
  /// The window's drawings came or went with its video: nothing of before can be undone.
  void ForgetPast(int window, const DrawingView& view);
  /// The window's drawings have been fitted to this view of its picture: their past follows, and so do a
  /// straight line under construction and a measure.
  void ViewChanged(int window, const DrawingView& view);
  /// The window's drawings in the size in which they were drawn; nothing when something has been done to
  /// them without a word.
  std::optional<DrawnShapes> AsDrawn(int window) const { return History(window).AsDrawn(engine_.ShapeLists(window)); }
  bool CanUndo(int window) const { return History(window).CanUndo() || engine_.ShapeLists(window).Adding; }
  bool CanRedo(int window) const { return History(window).CanRedo(); }
  /// Of a path under construction an undo takes back the last point, and the picture that it belongs to comes back;
  /// of another shape all. A stroke is finished first, and then goes as a step that can be redone. The tool of a
  /// path stays in hand, another is put down.
  void Undo(int window);
  void Redo(int window);

  // --- from the store
  /// The announcement ends and the random colour steps on.
  void AnnouncementOver() override;
  /// No tool is active any more.
  void DrawingOff() override;

 private:
  /// Announces a tool of this kind, 0 to 10, and chooses its colour.
  void VectorColorUpdate(int Kind);
  static constexpr int HitRadius = 100;  ///< pixels within which a click selects a shape

  int Resolve(int window) { return window == -1 ? workspace_.ActiveWindow() : window; }
  ShapeHistory& History(int window) { return histories_[static_cast<std::size_t>(window - 1)]; }
  const ShapeHistory& History(int window) const { return histories_[static_cast<std::size_t>(window - 1)]; }
  /// A measure on the display: it belongs to its shape, follows it, and goes with it.
  struct Measure {
    int window = 0;
    std::size_t index = 0;
    Shape shape;
    std::string text;
  };

  void PutDown();
  void Announce(int kind);
  void EndAnnouncement();
  bool UnderConstruction() const;
  bool EndConstruction();
  void FinishOpenShape(ShapeList& list);
  void EndOpenShape(int window);
  bool TakeBackPoint(int window);
  void BindPoint(ShapeList& list, POINTAPI point, bool even, int window);
  void BeginAtPress(Shape& shape, POINTAPI now);
  POINTAPI Aim(Shape& shape, POINTAPI point, bool even);
  void GoOnDrawing();
  void WantText(int window, POINTAPI at);
  void Hold(ToolInHand way, int kind);
  bool BarShown() const { return bar_ && bar_->Shown(); }
  Colour ToolColour(int index) const;
  void ShapeFinished(int window);
  void StraightTool(int kind);
  void Select(int window, POINTAPI point);
  void SetEditBar();
  void StepHistory(int window, bool (ShapeHistory::*step)(ShapeList&));
  GridLook GridOf(const ShapeList& list) const;
  ShapeLook LookOfShapes();
  void ChooseColours(const ShapeList& list);
  void ChooseOpacities(const ShapeList& list, int frame);
  void RefreshAll();
  Calibration CalibrationOf(int window) const;
  MeasureScale ScaleOf(int window) const;
  void ShowMeasure(Measure measure);
  void FollowMeasure();
  void TellFailure(int window, const Shape* failed);

  ShapeEngine& engine_;
  Settings& settings_;
  IDrawingWorkspace& workspace_;
  IEditMarks* bar_ = nullptr;
  std::array<WindowPainter, ShapeLists::kWindows> painters_;
  std::array<ShapeHistory, ShapeLists::kWindows> histories_;
  std::array<std::string, ShapeLists::kWindows> failures_;  // what the user was told last
  std::vector<Colour> colours_;
  std::vector<std::uint8_t> opacities_;
  std::array<LabelPainter, ShapeLists::kWindows> labelPainters_;
  bool hidden_ = false;

  bool Drawing_ = false;
  bool NewShapePending_ = false;  ///< the next press of the mouse begins a shape
  int DrawKind_ = 0;
  int DrawWindow_ = 1;
  int RandomColorIndex_ = 0;
  POINTAPI LastDown_;
  std::optional<POINTAPI> press_;  ///< where the left button went down, while it is down
  ToolInHand inHand_ = ToolInHand::Plain;
  bool stays_ = false;
  bool straight_ = false;  ///< of a tool that stays: straight mode
  std::int16_t PenWidth_ = 0;
  Colour textColour_ = 0;  ///< of the text tool when it asked for letters
  ShapeHand hand_{*this, workspace_};
  std::optional<Measure> measure_;  ///< what is shown, also when its tool has ended
};

}  // namespace kinalyx
