#pragma once

#include <gst/gst.h>
#include <gst/video/video.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/graph/GraphFaces.h"

namespace kinalyx {

/// Makes of a camera's pictures, three planes of bytes, what a window shows.
class PreviewPainter {
 public:
  /// The formats that Paint takes.
  static constexpr const char* kFormats = "{I420,Y42B,Y444}";

  /// @param wanted  the size of the window; pictures keep their shape in it and are never made larger. 0: as they are
  /// @return  null pixels where the sample cannot be read
  LivePicture Paint(GstSample* sample, RendererFace::Size wanted);

 private:
  using Bytes = std::vector<std::uint8_t>;

  std::shared_ptr<Bytes> FreeSurface(std::size_t size);

  std::vector<std::shared_ptr<Bytes>> surfaces_;  ///< some of them with a window
  Bytes scaled_;
};

/// The size in which a picture is shown: `wanted` at most, in the shape of the picture.
RendererFace::Size FitPreview(RendererFace::Size picture, double aspect, RendererFace::Size wanted);

}  // namespace kinalyx
