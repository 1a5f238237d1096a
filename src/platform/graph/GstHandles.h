#pragma once

#include <gst/gst.h>

#include <memory>

namespace kinalyx {

struct GstUnref {
  void operator()(void* object) const { gst_object_unref(object); }
};
/// Keeps an object of the library for graphs.
template <typename T>
using GstRef = std::unique_ptr<T, GstUnref>;

struct GstCapsUnref {
  void operator()(GstCaps* caps) const { gst_caps_unref(caps); }
};
using GstCapsRef = std::unique_ptr<GstCaps, GstCapsUnref>;

struct GstMiniUnref {
  void operator()(GstMessage* message) const { gst_message_unref(message); }
  void operator()(GstSample* sample) const { gst_sample_unref(sample); }
};
using GstMessageRef = std::unique_ptr<GstMessage, GstMiniUnref>;
using GstSampleRef = std::unique_ptr<GstSample, GstMiniUnref>;

/// The library is begun with the first call, which may take seconds where its plugins have changed; not on the
/// user-interface thread. False when it cannot be.
bool GstBegun();

/// Nanoseconds since the graph began, of a stamp in that segment, which may be null. The stamp alone does not tell:
/// some encoders count from a thousand hours on.
GstClockTime RunningTime(const GstSegment* segment, GstClockTime stamp);

}  // namespace kinalyx
