#pragma once

#include <array>

#include "drawing/DrawingTools.h"
#include "workspace/Workspace.h"

namespace kinalyx {

/// Keeps the drawings of the eight slots in step with their players and their sidecars: takes them from
/// the data of a video that opens, fits them to every size of its picture, turns them with it, and puts
/// them back into the data before they are written.
///
/// Points are whole pixels, so every fitting rounds. Drawings that nobody has touched since are
/// therefore always fitted from where they were drawn, not from the last fitting: however often a window
/// changes its size, they come out where they were. What can be undone follows, and so does the ruler's
/// line, which is no drawing and never gets into the data.
class SlotDrawings {
 public:
  SlotDrawings(Workspace& workspace, DrawingTools& tools) : workspace_(workspace), tools_(tools) {}

  void VideoOpened(int slot);
  void PlayerResized(int slot);
  /// The player's FlipHorizontal has changed.
  void PictureFlipped(int slot);
  /// Fills the shapes of the slot's data, unmirrored. True when they differ from those stored last.
  bool CollectData(int slot);
  void DataSaved(int slot);
  void VideoClosed(int slot);

 private:
  /// Shapes in a picture of a size, pixels; 0 when it is not known yet.
  struct Drawn {
    std::vector<Shape> shapes;
    int width = 0;
    int height = 0;
  };
  struct Kept {
    Drawn stored;  ///< as the sidecar has them, unmirrored
    Drawn origin;  ///< as they were read or drawn, mirrored like the picture
    Drawn fitted;  ///< as they were put into the list last
    bool changed = false;  ///< something was drawn or deleted since they were stored
  };

  Kept& At(int slot) { return kept_[static_cast<std::size_t>(slot - 1)]; }
  void Notice(int slot);
  void Fit(int slot, int width, int height);
  ShapeList& List(int slot) { return tools_.List(slot); }

  Workspace& workspace_;
  DrawingTools& tools_;
  std::array<Kept, kSlots> kept_;
};

}  // namespace kinalyx
