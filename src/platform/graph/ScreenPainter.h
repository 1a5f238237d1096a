#pragma once

#include <gst/gst.h>

#include <cstdint>
#include <vector>

#include "platform/graph/LessonLane.h"

namespace kinalyx {

/// Makes pictures of a screen, four bytes a pixel, into what a lesson takes. A large screen is made as small as a
/// telephone or a projector shows it anyway. Only for the sources of this room.
class ScreenPainter {
 public:
  /// Without pixels when the sample holds no picture.
  ScreenPicture Paint(GstSample* sample);

 private:
  std::vector<std::uint8_t> whole_;  ///< of a large screen
};

}  // namespace kinalyx
