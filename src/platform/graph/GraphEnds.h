#pragma once

#include <cstdint>
#include <memory>

#include "platform/graph/FilterBin.h"
#include "platform/graph/GraphFaces.h"
#include "platform/graph/GraphNews.h"

namespace kinalyx {

// Where pictures leave a graph. What goes wrong here stays here: the other ways of the same camera go on.

/// Shows them in a window, those that it can keep up with.
/// @param beginNs  nanoseconds of CLOCK_MONOTONIC at which the graph's time was 0
void AppendPreview(FilterBin& bin, std::shared_ptr<RendererFace> face, const GraphNews& news, std::int64_t beginNs);
/// Hands them to a file.
void AppendFile(FilterBin& bin, std::shared_ptr<RecordingLane> lane, std::int64_t beginNs);

}  // namespace kinalyx
