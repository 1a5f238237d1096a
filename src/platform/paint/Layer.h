#pragma once

#include <cstddef>
#include <functional>
#include <memory>

#include "platform/paint/Canvas.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// A drawing kept ready to be laid over any number of frames: what a painter drew, boiled down to the
/// pixels that it touched, coat upon coat where raster modes change. Laying it gives the picture that
/// painting directly would give, at a small part of the price: the same pixels in every raster mode but
/// copy, whose antialiased edges agree within one step per byte (two where many edges cross). A value;
/// cheap to move.
class Layer {
 public:
  Layer();
  Layer(Layer&&) noexcept;
  Layer& operator=(Layer&&) noexcept;
  ~Layer();

  /// Runs `paint` on a transparent canvas of this size and keeps what it drew. The canvas is as any
  /// other, in all raster modes, but the pixels of its target say nothing of the frames to come.
  static Layer Record(int width, int height, const std::function<void(Canvas&)>& paint);

  /// Lays the drawing over `target`; a target of another size is left alone.
  void LayOver(Surface& target) const;
  /// The same as through glass: `opacity` 0 shows nothing of it, 255 all.
  void LayOver(Surface& target, int opacity) const;
  bool Empty() const;
  /// Bytes held, for bounding a store of layers.
  std::size_t Bytes() const;

 private:
  struct Content;
  std::unique_ptr<Content> content_;
};

}  // namespace kinalyx
