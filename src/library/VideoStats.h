#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/media/VideoFile.h"

namespace kinalyx {

/// The lines `ProInfoLbl(22)` to `ProInfoLbl(30)`, by their number less 22.
using VideoStats = std::array<std::string, 9>;
inline constexpr int kFirstStat = 22;

/// What the lines show while there is nothing to tell.
inline constexpr const char* kNoStat = "------------------";
VideoStats NoVideoStats();

/// 22 compressor, 23 width, 24 height, 25 rate, 26 frames, 27 duration, 28 file size, 29 bits of a
/// decoded picture, 30 sound.
VideoStats StatsOf(const VideoInfo& video, int bits);

/// "512 bytes", "9.77 KB", "11.0 MB": two decimals below ten, else one; units of 1024.
std::string FormatFileSize(std::int64_t bytes);

}  // namespace kinalyx
