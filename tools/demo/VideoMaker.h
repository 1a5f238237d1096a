#pragma once

#include <atomic>
#include <string>

#include "DemoPlan.h"

namespace kinalyx::demo {

/// Films a swing into a new video file, with its sidecar where there are notes.
/// @return empty when all went well, else the reason; nothing is left then
std::string MakeVideo(const DemoVideo& video, const std::string& path, const std::atomic<bool>& stop);

}  // namespace kinalyx::demo
