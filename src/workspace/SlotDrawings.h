#pragma once

#include <array>
#include <vector>

#include "drawing/DrawingTools.h"
#include "workspace/Workspace.h"

namespace kinalyx {

/// Keeps the drawings of the eight slots in step with their players and their sidecars: takes them from
/// the data of a video that opens, fits them to every size of its picture, turns them with it, and puts
/// them back into the data before they are written.
///
/// Points are whole pixels, so every fitting rounds. A drawing that nobody has touched since is therefore
/// always fitted from where it was drawn or stored, not from the last fitting: however often a window changes
/// its size, it comes out where it was, also in the file. What can be undone follows, and so does the ruler's
/// line, which is no drawing and never gets into the data.
class SlotDrawings {
 public:
  SlotDrawings(Workspace& workspace, DrawingTools& tools) : workspace_(workspace), tools_(tools) {}

  void VideoOpened(int slot);
  void PlayerResized(int slot);
  /// The player's FlipHorizontal has changed.
  void PictureFlipped(int slot);
  /// Fills the shapes of the slot's data, unmirrored: those that were not touched as its base has them, in the
  /// base's size or whole multiples of it. True when they differ from those stored last.
  bool CollectData(int slot);
  /// The slot's base holds them now as they were stored.
  void DataSaved(int slot);
  void VideoClosed(int slot);

 private:
  /// A shape in the picture in which it was drawn, unmirrored.
  struct Origin {
    Shape shape;
    int width = 0;  ///< pixels; 0 when not known yet
    int height = 0;
    bool stored = false;  ///< the slot's base has it, under its number
  };
  struct Kept {
    std::vector<Origin> origins;  ///< of the drawings in the list, in its order
    std::vector<Origin> past;     ///< what they were before, the latest last: an undo brings it back
    std::vector<Shape> fitted;    ///< the drawings as they were fitted last
    DrawingView view;             ///< to which
  };

  Kept& At(int slot) { return kept_[static_cast<std::size_t>(slot - 1)]; }
  void Notice(int slot);
  void Fit(int slot, const DrawingView& view);
  ShapeList& List(int slot) { return tools_.List(slot); }

  Workspace& workspace_;
  DrawingTools& tools_;
  std::array<Kept, kSlots> kept_;
};

}  // namespace kinalyx
