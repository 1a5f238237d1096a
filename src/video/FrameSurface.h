#pragma once

#include <optional>

#include "platform/paint/Canvas.h"
#include "platform/paint/PixelOps.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// The off-screen surface on which a player composes each frame, with the canvas for what is drawn over it.
/// A picture that is wanted twice is kept as it was composed: somebody draws on it, and will want it again.
class FrameSurface {
 public:
  FrameSurface() = default;
  FrameSurface(const FrameSurface&) = delete;
  FrameSurface& operator=(const FrameSurface&) = delete;

  /// What a composed picture depends on, beside the size of the surface.
  struct Content {
    int frame = 0;
    bool split = false;
    bool field = false;
    bool flip = false;
    bool operator==(const Content&) const = default;
  };

  /// Black surfaces of this size, pixels; nothing happens when they have it.
  void CreateSurfaces(int width, int height);
  /// The pen and the raster mode of what is drawn; nothing is filled.
  void UpdatePenBrush(const Pen& pen, Rop2 mode);
  bool Empty() const { return MainSurface_.Empty(); }
  const Surface& Picture() const { return MainSurface_; }
  Canvas& hDC() { return FrameGraphics_; }
  void Clear(Colour colour) { MainSurface_.Clear(colour); }

  /// Stretches a picture over the whole surface, and mirrors it when `flip` is set.
  void Compose(const PixelRows& picture, bool flip, ScaleScratch& scratch);
  /// Says that what was composed last is this picture, before anything is drawn over it.
  void Composed(const Content& content);
  /// Brings a picture back as it was composed; false when it is not kept.
  bool BringBack(const Content& content);
  /// The surface holds none of the pictures that may be asked for.
  void ForgetComposed() { composed_.reset(); }
  /// The same, and gives the memory of the kept picture back.
  void DropKept();

 private:
  Surface MainSurface_;
  Surface ScratchSurface_;  ///< for mirroring
  Canvas FrameGraphics_{MainSurface_};
  std::optional<Content> composed_;  ///< stood on the main surface last, before it was drawn over
  Surface Kept_;                     ///< the same as it was composed, once it has been wanted twice
  bool isKept_ = false;
};

}  // namespace kinalyx
