#pragma once

#include <string>

#include "workspace/stage/Layout.h"

namespace kinalyx {

/// What the stage asks of the window that shows it. The window decides nothing: it places and paints what it
/// is told. Slots count from 1.
class IStageView {
 public:
  virtual ~IStageView() = default;
  virtual int MainPanelWidth() = 0;   ///< twips
  virtual int MainPanelHeight() = 0;  ///< twips
  /// Places `BorderPanel` and, inside it, `VideoPanel` (relative to the border).
  virtual void PlaceCell(int slot, const TwipRect& border, const TwipRect& video) = 0;
  virtual void HideCell(int slot) = 0;
  /// Places the row of pictures of the video, relative to the border; an empty one is hidden.
  virtual void PlaceFilm(int slot, const TwipRect& place) = 0;
  /// Places `MP` inside its `VideoPanel`, or hides it.
  virtual void PlacePlayer(int slot, const TwipRect& place, bool shown) = 0;
  virtual void PaintBorder(int slot, bool current) = 0;
  /// The name over the picture; empty for an empty slot.
  virtual void SetCellTitle(int slot, const std::string& title) = 0;
  /// What a picture that is not seen as a whole says of itself, such as its zoom; empty for the others.
  virtual void SetZoomFigure(int slot, const std::string& figure) = 0;
  /// Where the docked play bar stands, relative to `MainPanel`.
  virtual void PlacePlayBar(const TwipRect& place) = 0;
  /// Takes the keyboard focus off a pressed button.
  virtual void FocusKeyBox() = 0;
};

}  // namespace kinalyx
