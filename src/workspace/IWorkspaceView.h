#pragma once

#include <string>
#include <vector>

#include "platform/paint/Geometry.h"
#include "workspace/Layout.h"

namespace kinalyx {

/// What the workspace asks of the window that shows it. The window decides nothing: it places, paints
/// and shows what it is told. Slots count from 1.
class IWorkspaceView {
 public:
  virtual ~IWorkspaceView() = default;

  // --- grid
  virtual int MainPanelWidth() = 0;   ///< twips
  virtual int MainPanelHeight() = 0;  ///< twips
  /// Places `BorderPanel` and, inside it, `VideoPanel` (relative to the border).
  virtual void PlaceCell(int slot, const TwipRect& border, const TwipRect& video) = 0;
  virtual void HideCell(int slot) = 0;
  /// Places `MP` inside its `VideoPanel`, or hides it.
  virtual void PlacePlayer(int slot, const TwipRect& place, bool shown) = 0;
  virtual void PaintBorder(int slot, bool current) = 0;
  /// The name over the picture; empty for an empty slot.
  virtual void SetCellTitle(int slot, const std::string& title) = 0;
  /// Where a slot's video stands: shown under its picture while the play bar is elsewhere. An empty slot
  /// has an empty line.
  virtual void SetCellPosition(int slot, int position, int maximum, const std::string& line) = 0;

  // --- play bar
  /// Where the docked bar stands, relative to `MainPanel`.
  virtual void PlacePlayBar(const TwipRect& place) = 0;
  virtual void SetScrollRange(int minimum, int maximum) = 0;
  virtual void SetScrollValue(int position) = 0;
  virtual void SetPlayPicture(bool playing) = 0;
  virtual void SetSlomoButton(bool down) = 0;
  virtual void SetLoopButton(bool down) = 0;
  /// The transport's line, and the frame counter's text (empty: not shown).
  virtual void SetDisplayLine(const std::string& line, const std::string& counter) = 0;
  /// Marks of the current slot as positions; empty hides the mark box.
  virtual void SetMarks(const std::vector<int>& marks) = 0;

  // --- drawing
  /// A text over the current picture, such as the tool's caption; empty hides it.
  virtual void SetDisplayText(const std::string& text) = 0;
  virtual void ShowVectorColor(Colour colour) = 0;
  virtual void HideVectorColor() = 0;
  /// Presses one colour button, 0 to 11; -1 releases all.
  virtual void SetColorButton(int index) = 0;

  // --- panels and small windows
  /// The notes of the current video, over the lower part of its cell; `place` is relative to `MainPanel`.
  virtual void ShowNotesPnl(const TwipRect& place, const std::string& notes) = 0;
  virtual void HideNotesPnl() = 0;
  virtual void ShowVideoTimer(bool shown) = 0;
  /// The reading, in the second colour when negative, and the rate in its box.
  virtual void SetVideoTimer(const std::string& reading, bool negative, const std::string& rate) = 0;
  /// The calibration panel; it comes with the units of the settings and empty fields.
  virtual void ShowCalibration(bool shown) = 0;
  virtual void SetCalibrationLength(const std::string& length) = 0;
  /// The notes that go with a printout.
  virtual void ShowNotesform() = 0;

  // --- forms and commands
  virtual void ShowOpenPanel() = 0;
  /// False when it was not open.
  virtual bool CloseOpenPanel() = 0;
  /// Enable rules, checks and pressed buttons may have changed.
  virtual void CommandsChanged() = 0;
  /// Takes the keyboard focus off a pressed button.
  virtual void FocusKeyBox() = 0;
};

}  // namespace kinalyx
