#include "platform/graph/Taken.h"

#include <gst/app/gstappsink.h>

#include <chrono>

#include "platform/graph/GstHandles.h"
#include "platform/graph/TestPicture.h"

namespace kinalyx::test {

Takings Take(GstElement* source, std::size_t pictures, int milliseconds) {
  Takings takings;
  if (!source) return takings;
  const GstRef<GstElement> pipeline(GST_ELEMENT(gst_object_ref_sink(gst_parse_launch(
      "decodebin name=decoder ! videoconvert ! appsink name=sink caps=video/x-raw,format=BGRx sync=false", nullptr))));
  const GstRef<GstElement> decoder(gst_bin_get_by_name(GST_BIN(pipeline.get()), "decoder"));
  gst_bin_add(GST_BIN(pipeline.get()), source);
  gst_element_link(source, decoder.get());
  const GstRef<GstElement> sink(gst_bin_get_by_name(GST_BIN(pipeline.get()), "sink"));
  const GstRef<GstClock> clock(gst_system_clock_obtain());
  gst_pipeline_use_clock(GST_PIPELINE(pipeline.get()), clock.get());
  const GstRef<GstBus> bus(gst_element_get_bus(pipeline.get()));
  gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
  const auto over = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
  while (takings.pictures.size() < pictures && std::chrono::steady_clock::now() < over) {
    GstSample* sample = gst_app_sink_try_pull_sample(GST_APP_SINK(sink.get()), 50 * GST_MSECOND);
    if (!sample) {
      if (GstMessage* message = gst_bus_pop_filtered(bus.get(), GST_MESSAGE_ERROR)) {
        GError* error = nullptr;
        gst_message_parse_error(message, &error, nullptr);
        takings.fault = error->message;
        g_clear_error(&error);
        gst_message_unref(message);
        break;
      }
      if (gst_app_sink_is_eos(GST_APP_SINK(sink.get()))) break;
      continue;
    }
    Taken taken;
    const GstStructure* caps = gst_caps_get_structure(gst_sample_get_caps(sample), 0);
    gst_structure_get_int(caps, "width", &taken.width);
    gst_structure_get_int(caps, "height", &taken.height);
    GstBuffer* buffer = gst_sample_get_buffer(sample);
    taken.atNs = static_cast<std::int64_t>(GST_BUFFER_PTS(buffer));
    GstMapInfo map;
    if (gst_buffer_map(buffer, &map, GST_MAP_READ)) {
      taken.number = ReadFrameNumber(map.data, taken.width, taken.height, taken.width * 4);
      gst_buffer_unmap(buffer, &map);
    }
    gst_sample_unref(sample);
    takings.pictures.push_back(taken);
  }
  const GstRef<GstPad> pad(gst_element_get_static_pad(source, "src"));
  if (GstCaps* caps = gst_pad_get_current_caps(pad.get())) {
    gchar* text = gst_caps_to_string(caps);
    takings.caps = text;
    g_free(text);
    gst_caps_unref(caps);
  }
  if (takings.pictures.size() < pictures && takings.fault.empty() && std::chrono::steady_clock::now() >= over)
    takings.fault = "The time is over.";
  gst_element_set_state(pipeline.get(), GST_STATE_NULL);
  return takings;
}

}  // namespace kinalyx::test
