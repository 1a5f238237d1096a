#include "platform/graph/GstHandles.h"

namespace kinalyx {

bool GstBegun() {
  static const bool begun = gst_init_check(nullptr, nullptr, nullptr);
  return begun;
}

GstClockTime RunningTime(const GstSegment* segment, GstClockTime stamp) {
  if (!segment || segment->format != GST_FORMAT_TIME || !GST_CLOCK_TIME_IS_VALID(stamp)) return stamp;
  return gst_segment_to_running_time(segment, GST_FORMAT_TIME, stamp);
}

}  // namespace kinalyx
