#pragma once

#include <cstdint>

namespace kinalyx {

/// Files and settings keep sizes of windows in twips.
inline constexpr std::int32_t kTwipsPerPixel = 15;

}  // namespace kinalyx
