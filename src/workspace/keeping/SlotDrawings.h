#pragma once

#include <array>
#include <span>
#include <vector>

#include "drawing/DrawingTools.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// Keeps the drawings of the eight slots in step with their players and their sidecars: takes them from
/// the data of a video that opens, fits them to every size of its picture, turns them with it, and puts
/// them into the data that are written.
///
/// Points are whole pixels, so every fitting rounds. A drawing that nobody has touched since is therefore
/// always fitted from where it was drawn or stored, not from the last fitting: however often a window changes
/// its size, it comes out where it was, also in the file. What can be undone follows, and so does the ruler's
/// line, which is no drawing and never gets into the data.
///
/// `base` is everywhere what the slot has read or written last, with its drawings as the file has them.
class SlotDrawings {
 public:
  SlotDrawings(Stage& stage, DrawingTools& tools) : stage_(stage), tools_(tools) {}

  /// Numbers the shapes of the base and puts them on the picture, as yet in the size that the file has.
  void VideoOpened(int slot, SlotData& base);
  /// The picture may have another size, or be mirrored: what is drawn follows. Called before it is painted.
  void FollowPicture(int slot);
  /// A drawing of the list as the file has it, or will: in the file's picture, where the same figures are read off it
  /// in every window, today and tomorrow.
  std::optional<ExactDrawing> ExactOf(int slot, const Shape& shape) const;
  /// True when they differ from those of the base.
  bool Changed(int slot, const SlotData& base);
  /// Puts them into `data`, unmirrored: those that were not touched as the base has them, in the base's size or
  /// whole multiples of it.
  void Collect(int slot, const SlotData& base, SlotData& data);
  /// The base holds them now as they were stored.
  void Saved(int slot, const SlotData& base);
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
    bool placed = false;          ///< to a picture on the stage, no longer to that of the file
    DrawingView file;             ///< the picture to which the base's drawings belong; 0 wide without any
  };

  const Kept& At(int slot) const { return kept_[static_cast<std::size_t>(slot - 1)]; }
  Kept& At(int slot) { return kept_[static_cast<std::size_t>(slot - 1)]; }
  void Notice(int slot);
  std::span<const Origin> Finished(int slot);
  static DrawingView SizeInFile(const Kept& kept, int width, int height);
  static void TakeFile(Kept& kept, const SlotData& base);
  void Fit(int slot, const DrawingView& view);
  ShapeList& List(int slot) { return tools_.List(slot); }

  Stage& stage_;
  DrawingTools& tools_;
  std::array<Kept, kSlots> kept_;
};

}  // namespace kinalyx
