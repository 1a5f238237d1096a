#include "library/VideoStats.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

/// At most two decimals, and none that are zero: "30", "29.97", "3.1".
std::string Short(double value) {
  std::string text = fmt::format("{:.2f}", value);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace

VideoStats NoVideoStats() {
  VideoStats stats;
  stats.fill(kNoStat);
  return stats;
}

VideoStats StatsOf(const VideoInfo& video, int bits) {
  const double rate = video.scale > 0 ? static_cast<double>(video.rate) / static_cast<double>(video.scale) : 0.0;
  return {video.compressor,
          fmt::to_string(video.width),
          fmt::to_string(video.height),
          Tr("{} FPS", Short(rate)),
          video.frameCount == 1 ? Tr("1 Frame") : Tr("{} Frames", video.frameCount),
          Tr("{} Seconds", Short(video.durationMs / 1000)),
          FormatFileSize(video.fileBytes),
          Tr("{} BPP", bits),
          video.hasSound ? Tr("Sound") : Tr("No sound")};
}

std::string FormatFileSize(std::int64_t bytes) {
  bytes = std::max<std::int64_t>(bytes, 0);
  if (bytes < 1024) return Tr("{} bytes", bytes);
  constexpr const char* kUnits[] = {"KB", "MB", "GB", "TB"};
  double size = static_cast<double>(bytes) / 1024;
  int unit = 0;
  // 1023.95 would print as 1024.0 of the smaller unit.
  while (size >= 1023.95 && unit < 3) {
    size /= 1024;
    ++unit;
  }
  return size < 9.995 ? fmt::format("{:.2f} {}", size, kUnits[unit]) : fmt::format("{:.1f} {}", size, kUnits[unit]);
}

}  // namespace kinalyx
