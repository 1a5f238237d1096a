#include "platform/graph/ScreenSource.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <cstdio>
#include <memory>

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
      "identity name=pace",
      connection, node);
}

/// When the next picture is wanted.
struct Pace {
  GstClockTime next = 0;
};

/// Lets no more pictures through than a lesson has in a second. A desktop promises no rate, which the library's own
/// element for this does not survive.
GstPadProbeReturn KeepPace(GstPad*, GstPadProbeInfo* info, gpointer data) {
  constexpr GstClockTime kBetween = GST_SECOND / LessonFile::kRate;
  auto& pace = *static_cast<Pace*>(data);
  const GstClockTime now = GST_BUFFER_PTS(GST_PAD_PROBE_INFO_BUFFER(info));
  if (!GST_CLOCK_TIME_IS_VALID(now)) return GST_PAD_PROBE_OK;
  if (now + kBetween / 4 < pace.next) return GST_PAD_PROBE_DROP;
  pace.next = (pace.next + kBetween > now ? pace.next : now) + kBetween;
  return GST_PAD_PROBE_OK;
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
  if (!made) return nullptr;
  if (const GstRef<GstElement> pace(gst_bin_get_by_name(GST_BIN(made), "pace")); pace) {
    const GstRef<GstPad> pad(gst_element_get_static_pad(pace.get(), "sink"));
    gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_BUFFER, KeepPace, std::make_unique<Pace>().release(),
                      [](gpointer data) { std::default_delete<Pace>()(static_cast<Pace*>(data)); });
  }
  return made;
}

}  // namespace kinalyx
