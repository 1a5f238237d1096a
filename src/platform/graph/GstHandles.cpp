#include "platform/graph/GstHandles.h"

namespace kinalyx {

bool GstBegun() {
  static const bool begun = gst_init_check(nullptr, nullptr, nullptr);
  return begun;
}

}  // namespace kinalyx
