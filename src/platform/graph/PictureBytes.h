#pragma once

#include <gst/gst.h>

#include <optional>

#include "platform/graph/RecordingLane.h"

namespace kinalyx {

/// A picture as a file takes it; its time is left to the caller. Nothing where a file cannot hold what came.
std::optional<PackedPicture> PackPicture(GstSample* sample);

}  // namespace kinalyx
