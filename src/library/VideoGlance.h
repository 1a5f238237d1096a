#pragma once

#include <string>

#include "platform/paint/Surface.h"

namespace kinalyx {

/// What a list shows of a video besides its name. It touches a drive that may not answer, so a worker looks.
struct VideoGlance {
  bool opens = false;
  double seconds = 0;  ///< how long it plays; 0 for what cannot be opened
  Surface picture;     ///< the first one, in the video's proportions; empty when there is none
};
/// Opens a video and takes its first picture, which fits into `width` x `height` pixels.
VideoGlance GlanceAt(const std::string& path, int width, int height);

/// "0:07", "12:30", "1:02:03"; empty for a length that is not known.
std::string LengthText(double seconds);

}  // namespace kinalyx
