#pragma once

#include <gst/gst.h>

#include <cstdint>
#include <memory>

#include "platform/graph/GraphBuilder.h"

namespace kinalyx {

/// Notes what comes from a source, and gives a camera's pictures a sensible time where the camera does not.
void WatchSource(GstPad* output, std::shared_ptr<SourceWatch> watch, std::int64_t beginNs);
/// Lets through what the gate lets through.
void HoldBack(GstPad* pad, std::shared_ptr<GateFace> gate, std::int64_t beginNs);

}  // namespace kinalyx
