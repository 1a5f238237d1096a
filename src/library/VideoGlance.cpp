#include "library/VideoGlance.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "platform/media/VideoFile.h"
#include "platform/paint/PixelOps.h"

namespace kinalyx {

VideoGlance GlanceAt(const std::string& path, int width, int height) {
  VideoGlance glance;
  const auto opened = VideoFile::Open(path);
  if (!opened) return glance;
  glance.opens = true;
  glance.seconds = (*opened)->Info().durationMs / 1000;
  const FrameRows rows = (*opened)->Frame(0, 32);
  if (!rows || rows.width <= 0 || rows.height <= 0) return glance;
  const double scale = std::min(double(width) / rows.width, double(height) / rows.height);
  glance.picture = Surface(std::max(1, int(rows.width * scale)), std::max(1, int(rows.height * scale)));
  ScaleScratch scratch;
  StretchRows({rows.bits, rows.width, rows.height, rows.rowBytes, rows.bitCount}, glance.picture, scratch);
  return glance;
}

std::string LengthText(double seconds) {
  if (!(seconds > 0)) return {};
  const long whole = std::lround(seconds);
  return whole < 3600 ? fmt::format("{}:{:02}", whole / 60, whole % 60)
                      : fmt::format("{}:{:02}:{:02}", whole / 3600, whole / 60 % 60, whole % 60);
}

}  // namespace kinalyx
