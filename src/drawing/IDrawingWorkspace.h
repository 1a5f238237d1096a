#pragma once

#include <optional>
#include <string>

#include "drawing/Measurement.h"
#include "drawing/Shape.h"
#include "drawing/ShapeLabels.h"
#include "platform/paint/Geometry.h"

namespace kinalyx {

/// What lies under a hand without a tool.
enum class HandPointer { Nothing, Shape, Point };

/// What the drawing tools need of the workspace whose windows they draw in. Windows count from 1.
class IDrawingWorkspace {
 public:
  virtual ~IDrawingWorkspace() = default;

  // --- windows and players
  virtual int ActiveWindow() = 0;
  /// Makes a window the active one, frame and all.
  virtual void SetActiveWindow(int window) = 0;
  virtual bool HasVideo(int window) = 0;
  /// Size of the window's picture in pixels; 0 when it has none.
  virtual int PictureWidth(int window) = 0;
  virtual int PictureHeight(int window) = 0;
  virtual bool IsPlaying(int window) = 0;
  /// Ends a play by a click in `window`: the active player stops, `window` becomes active, the loop
  /// button comes up, running timers of held buttons end.
  virtual void StopClick(int window) = 0;
  virtual void ReleaseLoopButton() = 0;
  /// Composes the window's frame again; the tools' PreDrawFrame runs inside.
  virtual void Refresh(int window) = 0;
  /// The window's player stands on its last position.
  virtual bool OnLastFrame(int window) = 0;
  /// Moves the window's player one position on, and its partner when the two are locked together and the
  /// partner is not on its last; the mix follows.
  virtual void AdvanceFrame(int window) = 0;
  /// The same one back.
  virtual void RetreatFrame(int window) = 0;

  // --- display
  /// The line of the play bar; empty brings the position back.
  virtual void DisplayData(const std::string& text) = 0;
  /// "Drawing a Line in Color", beside the play bar, while a tool is active.
  virtual void ShowToolCaption(const std::string& caption) = 0;
  /// The colour beside the caption, and the button that ends the tool.
  virtual void ShowVectorColor(Colour colour) = 0;
  virtual void HideVectorColor() = 0;
  /// Presses one of the twelve colour buttons, -1 none. Must not come back as ChooseColour.
  virtual void SetColorButton(int index) = 0;
  /// A figure could not be drawn. Told once, not on each frame; comes while a frame is composed, so a
  /// message box must wait until that is over.
  virtual void ShowDrawError(const std::string& text) = 0;

  // --- a drawing in the free hand
  /// Another drawing is taken, none any more, or it has another look.
  virtual void ShapeTaken() {}
  virtual void ShowPointer(int /*window*/, HandPointer) {}
  /// Opens the menu of the drawing that is taken.
  virtual void ShowShapeMenu(int /*window*/, POINTAPI) {}
  /// Asks for letters round a point of the picture, where some may stand already. They come by
  /// DrawingTools::WriteText, later or never.
  virtual void AskText(int /*window*/, POINTAPI, const std::string& /*text*/) {}

  // --- what other parts of the workspace do with drawings
  /// A tool was taken up or put down, or the edit bar opened: what else waits for the mouse on a picture
  /// waits no longer.
  virtual void MouseWanted() {}
  /// A window's shapes or its grid are other ones, for good: what is made from its pictures is made anew.
  virtual void DrawingsChanged(int) {}
  /// Offers a finished square to a waiting zoom or carve; true takes it, and it is no drawing then.
  virtual bool TakeSquare(int, const Shape&) { return false; }
  // --- what a window's video is measured by
  /// Its own ruler.
  virtual std::optional<VideoRuler> RulerOf(int) { return std::nullopt; }
  /// A drawing of a window as it was drawn, or as its file has it; nothing when that is what the window shows.
  virtual std::optional<ExactDrawing> ExactOf(int, const Shape&) { return std::nullopt; }
  /// Width by height of the window's picture before it is fitted to whole pixels; 0 not known.
  virtual double Proportion(int) { return 0; }
  /// Positions that were taken in one second; 0 not known.
  virtual double PositionsPerSecond(int) { return 0; }
  /// The position that it shows, as its player counts.
  virtual std::optional<PathTime> PositionNow(int) { return std::nullopt; }
  /// The frame that it shows.
  virtual int FrameOf(int) { return 0; }
  virtual bool CalibrationShown() { return false; }
  /// The length of the measuring line, "123.4pts".
  virtual void ShowCalibrationLength(const std::string&) {}
};

}  // namespace kinalyx
