#include "platform/graph/SoundGraph.h"

#include <gst/app/gstappsrc.h>

namespace kinalyx {
namespace {

constexpr double kAheadSeconds = 0.5;  // of sound that waits in the graph

}  // namespace

std::unique_ptr<SoundGraph> SoundGraph::Make(const std::string& sink, Clock::time_point zero, int rate, int channels) {
  if (!GstBegun()) return nullptr;
  const std::string description =
      "appsrc name=source format=time ! audioconvert ! audioresample ! volume name=volume ! " + sink;
  GError* error = nullptr;
  GstElement* made = gst_parse_launch(description.c_str(), &error);
  g_clear_error(&error);
  if (!made) return nullptr;
  std::unique_ptr<SoundGraph> graph(new SoundGraph);
  graph->pipeline_.reset(GST_ELEMENT(gst_object_ref_sink(made)));
  graph->source_.reset(gst_bin_get_by_name(GST_BIN(made), "source"));
  graph->volume_.reset(gst_bin_get_by_name(GST_BIN(made), "volume"));
  graph->bus_.reset(gst_element_get_bus(made));
  graph->rate_ = rate;
  graph->channels_ = channels;
  if (!graph->source_ || !graph->volume_) return nullptr;
  GstCaps* caps =
      gst_caps_new_simple("audio/x-raw", "format", G_TYPE_STRING, "S16LE", "layout", G_TYPE_STRING, "interleaved",
                          "rate", G_TYPE_INT, rate, "channels", G_TYPE_INT, channels, nullptr);
  gst_app_src_set_caps(GST_APP_SRC(graph->source_.get()), caps);
  gst_caps_unref(caps);
  // Times count from `zero` by the clock that the pictures go by, whenever the sink is ready.
  const GstRef<GstClock> clock(gst_system_clock_obtain());
  gst_pipeline_use_clock(GST_PIPELINE(made), clock.get());
  gst_element_set_start_time(made, GST_CLOCK_TIME_NONE);
  const auto ago = std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now() - zero).count();
  gst_element_set_base_time(made, gst_clock_get_time(clock.get()) - static_cast<GstClockTime>(ago));
  if (gst_element_set_state(made, GST_STATE_PLAYING) == GST_STATE_CHANGE_FAILURE) return nullptr;
  return graph;
}

SoundGraph::~SoundGraph() {
  if (pipeline_) gst_element_set_state(pipeline_.get(), GST_STATE_NULL);
}

void SoundGraph::SetVolume(int percent) {
  // As the ear has it: half of the way sounds half as loud.
  const double part = percent / 100.0;
  g_object_set(volume_.get(), "volume", part * part, nullptr);
}

bool SoundGraph::Full() const {
  const auto waiting = gst_app_src_get_current_level_bytes(GST_APP_SRC(source_.get()));
  return static_cast<double>(waiting) > kAheadSeconds * rate_ * channels_ * sizeof(std::int16_t);
}

void SoundGraph::Push(std::span<const std::int16_t> samples, std::chrono::nanoseconds at) {
  GstBuffer* buffer = gst_buffer_new_memdup(samples.data(), samples.size_bytes());
  GST_BUFFER_PTS(buffer) = static_cast<GstClockTime>(at.count());
  GST_BUFFER_DURATION(buffer) =
      gst_util_uint64_scale_int(samples.size() / static_cast<std::size_t>(channels_), GST_SECOND, rate_);
  gst_app_src_push_buffer(GST_APP_SRC(source_.get()), buffer);  // takes it
}

bool SoundGraph::Works() {
  GstMessage* failed = gst_bus_pop_filtered(bus_.get(), GST_MESSAGE_ERROR);
  if (!failed) return true;
  gst_message_unref(failed);
  return false;
}

}  // namespace kinalyx
