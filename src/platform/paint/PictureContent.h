#pragma once

#include <QImage>

#include "platform/paint/Picture.h"

namespace kinalyx {

/// What a picture holds; for the sources of this folder only. `image` has one of the formats of
/// PictureKind: Indexed8, BGR888, RGB32 and ARGB32.
struct Picture::Content {
  QImage image;
};

/// Takes over an image of any format, as the nearest kind.
Picture PictureFrom(QImage image);

/// The surface's own memory as an image; good while the surface keeps its size.
inline QImage ImageOver(Surface& surface) {
  return surface.Empty() ? QImage()
                         : QImage(surface.Row(0), surface.Width(), surface.Height(), surface.Stride(), QImage::Format_RGB32);
}

}  // namespace kinalyx
