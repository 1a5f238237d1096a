#include "platform/graph/SoundFeed.h"

#include <gst/app/gstappsrc.h>

namespace kinalyx {
namespace {

constexpr gint64 kSinkMicroseconds = 40'000;  // of sound that waits in the card; less stutters on a busy machine
constexpr gint64 kPieceMicroseconds = 10'000;
/// Blocks that were missed, in a suspended machine for one, are not made up for.
constexpr GstClockTime kMostLate = 200 * GST_MSECOND;

/// The sink may be made only when the graph starts: whatever comes is told how little is to wait in it.
void MakeQuick(GstBin*, GstBin*, GstElement* element, gpointer) {
  GObjectClass* kind = G_OBJECT_GET_CLASS(element);
  if (!g_object_class_find_property(kind, "buffer-time") || !g_object_class_find_property(kind, "latency-time")) return;
  g_object_set(element, "buffer-time", kSinkMicroseconds, "latency-time", kPieceMicroseconds, nullptr);
}

}  // namespace

std::unique_ptr<SoundFeed> SoundFeed::Make(const std::string& sink, int rate, int channels) {
  if (!GstBegun()) return nullptr;
  GstRef<GstElement> pipeline(GST_ELEMENT(gst_object_ref_sink(gst_pipeline_new(nullptr))));
  g_signal_connect(pipeline.get(), "deep-element-added", G_CALLBACK(MakeQuick), nullptr);
  GError* error = nullptr;
  const std::string description =
      "appsrc name=source is-live=true format=time ! audioconvert ! audioresample ! " + sink;
  GstElement* made = gst_parse_bin_from_description(description.c_str(), FALSE, &error);
  g_clear_error(&error);
  if (!made) return nullptr;
  std::unique_ptr<SoundFeed> feed(new SoundFeed);
  gst_bin_add(GST_BIN(pipeline.get()), made);
  feed->source_.reset(gst_bin_get_by_name(GST_BIN(made), "source"));
  feed->bus_.reset(gst_element_get_bus(pipeline.get()));
  feed->pipeline_ = std::move(pipeline);
  feed->blockTime_ = gst_util_uint64_scale_int(kBlock, GST_SECOND, rate);
  const GstCapsRef caps(gst_caps_new_simple("audio/x-raw", "format", G_TYPE_STRING, "S16LE", "layout", G_TYPE_STRING,
                                            "interleaved", "rate", G_TYPE_INT, rate, "channels", G_TYPE_INT, channels,
                                            nullptr));
  gst_app_src_set_caps(GST_APP_SRC(feed->source_.get()), caps.get());
  if (gst_element_set_state(feed->pipeline_.get(), GST_STATE_PLAYING) == GST_STATE_CHANGE_FAILURE) return nullptr;
  return feed;
}

SoundFeed::~SoundFeed() {
  if (pipeline_) gst_element_set_state(pipeline_.get(), GST_STATE_NULL);
}

bool SoundFeed::Begun() {
  GstState state = GST_STATE_NULL;
  if (!begun_ && gst_element_get_state(pipeline_.get(), &state, nullptr, 0) == GST_STATE_CHANGE_SUCCESS)
    begun_ = state == GST_STATE_PLAYING;
  return begun_;
}

bool SoundFeed::Wants() {
  const GstClockTime now = gst_element_get_current_running_time(pipeline_.get());
  if (!GST_CLOCK_TIME_IS_VALID(now)) return false;
  if (now > next_ + kMostLate) next_ = now;
  return now >= next_;
}

void SoundFeed::Push(std::span<const std::int16_t> block) {
  GstBuffer* buffer = gst_buffer_new_memdup(block.data(), block.size_bytes());
  GST_BUFFER_PTS(buffer) = next_;
  GST_BUFFER_DURATION(buffer) = blockTime_;
  next_ += blockTime_;
  gst_app_src_push_buffer(GST_APP_SRC(source_.get()), buffer);  // takes it
}

bool SoundFeed::Works() {
  const GstMessageRef failed(gst_bus_pop_filtered(bus_.get(), GST_MESSAGE_ERROR));
  return failed == nullptr;
}

}  // namespace kinalyx
