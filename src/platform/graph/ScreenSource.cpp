#include "platform/graph/ScreenSource.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <cstdio>

#include "platform/graph/GstHandles.h"
#include "platform/media/LessonFile.h"

namespace kinalyx {
namespace {

constexpr std::string_view kX11 = "screen:x11 ";
constexpr std::string_view kPipeWire = "screen:pipewire ";

/// The pointer is seen. The whole picture is taken each time: what a server tells of changes is not to be relied on.
std::string DescribeX11(const ScreenPlace& place) {
  return fmt::format(
      "ximagesrc use-damage=false show-pointer=true startx={} starty={} endx={} endy={} ! "
      "capsfilter caps=video/x-raw,framerate={}/1",
      place.left, place.top, place.left + place.width - 1, place.top + place.height - 1, LessonFile::kRate);
}

/// A screen on which nothing moves gives nothing: its last picture comes again once a second.
std::string DescribePipeWire(int connection, unsigned node) {
  return fmt::format(
      "pipewiresrc fd={} path={} do-timestamp=true always-copy=true keepalive-time=1000 ! "
      "videorate drop-only=true max-rate={}",
      connection, node, LessonFile::kRate);
}

}  // namespace

std::string NameOfX11Screen(const ScreenPlace& place) {
  return fmt::format("{}{} {} {} {}", kX11, place.left, place.top, place.width, place.height);
}

std::string NameOfPipeWireScreen(int connection, unsigned node) {
  return fmt::format("{}{} {}", kPipeWire, connection, node);
}

bool IsScreenName(std::string_view name) { return name.starts_with(kX11) || name.starts_with(kPipeWire); }

GstElement* MakeScreenSource(const std::string& name) {
  if (!GstBegun()) return nullptr;
  std::string description;
  ScreenPlace place;
  int connection = -1;
  unsigned node = 0;
  if (std::sscanf(name.c_str(), "screen:x11 %d %d %d %d", &place.left, &place.top, &place.width, &place.height) == 4) {
    description = DescribeX11(place);
  } else if (std::sscanf(name.c_str(), "screen:pipewire %d %u", &connection, &node) == 2) {
    // The element closes what it is given.
    const int own = ::fcntl(connection, F_DUPFD_CLOEXEC, 0);
    if (own < 0) return nullptr;
    description = DescribePipeWire(own, node);
  } else {
    return nullptr;
  }
  GError* error = nullptr;
  GstElement* made = gst_parse_bin_from_description(description.c_str(), true, &error);
  g_clear_error(&error);
  return made;
}

}  // namespace kinalyx
