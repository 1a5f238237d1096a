#include "platform/graph/SourceProbe.h"

#include <cstdlib>
#include <utility>

#include "platform/graph/GstHandles.h"

namespace kinalyx {
namespace {

// No camera takes longer from its picture to us; one that says so goes by another clock.
constexpr std::int64_t kLongestWayNs = 3'000'000'000;

struct Watching {
  std::shared_ptr<SourceWatch> watch;
  std::int64_t beginNs;

  GstPadProbeReturn See(GstPad*, GstPadProbeInfo* info) const {
    if (info->type & GST_PAD_PROBE_TYPE_BUFFER) {
      const std::int64_t now = MonotonicNow();
      watch->lastNs = now;
      watch->given = true;
      if (watch->camera) CorrectTime(info, now - beginNs);
    } else if (GST_EVENT_TYPE(GST_PAD_PROBE_INFO_EVENT(info)) == GST_EVENT_EOS) {
      watch->ended = true;
    }
    return GST_PAD_PROBE_OK;
  }

  static void CorrectTime(GstPadProbeInfo* info, std::int64_t now) {
    GstBuffer* buffer = GST_PAD_PROBE_INFO_BUFFER(info);
    const GstClockTime at = GST_BUFFER_PTS(buffer);
    if (GST_CLOCK_TIME_IS_VALID(at) && std::abs(static_cast<std::int64_t>(at) - now) < kLongestWayNs) return;
    buffer = gst_buffer_make_writable(buffer);
    GST_BUFFER_PTS(buffer) = static_cast<GstClockTime>(now);
    GST_BUFFER_DTS(buffer) = GST_CLOCK_TIME_NONE;
    info->data = buffer;
  }
};

struct Gating {
  std::shared_ptr<GateFace> gate;
  std::int64_t beginNs;

  GstPadProbeReturn See(GstPad* pad, GstPadProbeInfo* info) const {
    const GstSegment* segment = nullptr;
    GstEvent* const event = gst_pad_get_sticky_event(pad, GST_EVENT_SEGMENT, 0);
    if (event) gst_event_parse_segment(event, &segment);
    const GstClockTime at = RunningTime(segment, GST_BUFFER_PTS(GST_PAD_PROBE_INFO_BUFFER(info)));
    if (event) gst_event_unref(event);
    const bool passes = GST_CLOCK_TIME_IS_VALID(at) && gate->LetsThrough(beginNs + static_cast<std::int64_t>(at));
    return passes ? GST_PAD_PROBE_OK : GST_PAD_PROBE_DROP;
  }
};

template <typename Seer>
void AddProbe(GstPad* pad, int kinds, Seer seer) {
  gst_pad_add_probe(
      pad, static_cast<GstPadProbeType>(kinds),
      [](GstPad* seen, GstPadProbeInfo* info, gpointer self) { return static_cast<Seer*>(self)->See(seen, info); },
      std::make_unique<Seer>(std::move(seer)).release(),
      [](gpointer self) { std::unique_ptr<Seer>(static_cast<Seer*>(self)); });
}

}  // namespace

void WatchSource(GstPad* output, std::shared_ptr<SourceWatch> watch, std::int64_t beginNs) {
  AddProbe(output, GST_PAD_PROBE_TYPE_BUFFER | GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM,
           Watching{std::move(watch), beginNs});
}

void HoldBack(GstPad* pad, std::shared_ptr<GateFace> gate, std::int64_t beginNs) {
  AddProbe(pad, GST_PAD_PROBE_TYPE_BUFFER, Gating{std::move(gate), beginNs});
}

}  // namespace kinalyx
