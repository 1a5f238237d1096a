#include "platform/graph/WaveFile.h"

#include <gst/app/gstappsink.h>

#include "platform/graph/GstHandles.h"

namespace kinalyx {

std::vector<std::int16_t> ReadWave(const std::string& path, int rate, std::size_t most) {
  std::vector<std::int16_t> samples;
  if (!GstBegun()) return samples;
  GError* error = nullptr;
  GstElement* made = gst_parse_launch(
      "filesrc name=file ! wavparse ! audioconvert ! audioresample ! appsink name=end sync=false max-buffers=16",
      &error);
  g_clear_error(&error);
  if (!made) return samples;
  const GstRef<GstElement> pipeline(GST_ELEMENT(gst_object_ref_sink(made)));
  const GstRef<GstElement> file(gst_bin_get_by_name(GST_BIN(made), "file"));
  const GstRef<GstElement> end(gst_bin_get_by_name(GST_BIN(made), "end"));
  const GstCapsRef caps(gst_caps_new_simple("audio/x-raw", "format", G_TYPE_STRING, "S16LE", "layout", G_TYPE_STRING,
                                            "interleaved", "rate", G_TYPE_INT, rate, "channels", G_TYPE_INT, 2,
                                            nullptr));
  g_object_set(file.get(), "location", path.c_str(), nullptr);
  g_object_set(end.get(), "caps", caps.get(), nullptr);
  gst_element_set_state(made, GST_STATE_PLAYING);
  const GstRef<GstBus> bus(gst_element_get_bus(made));
  while (samples.size() < most) {
    constexpr GstClockTime kLook = 50 * GST_MSECOND;
    const GstSampleRef sample(gst_app_sink_try_pull_sample(GST_APP_SINK(end.get()), kLook));
    GstBuffer* buffer = sample ? gst_sample_get_buffer(sample.get()) : nullptr;
    GstMapInfo map;
    if (!buffer) {
      const GstMessageRef failed(gst_bus_pop_filtered(bus.get(), GST_MESSAGE_ERROR));
      if (failed || gst_app_sink_is_eos(GST_APP_SINK(end.get()))) break;
    } else if (gst_buffer_map(buffer, &map, GST_MAP_READ)) {
      const auto* first = reinterpret_cast<const std::int16_t*>(map.data);
      samples.insert(samples.end(), first, first + map.size / sizeof(std::int16_t));
      gst_buffer_unmap(buffer, &map);
    }
  }
  gst_element_set_state(made, GST_STATE_NULL);
  return samples;
}

}  // namespace kinalyx
