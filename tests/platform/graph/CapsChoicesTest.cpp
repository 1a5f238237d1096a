#include "platform/graph/CapsChoices.h"

#include <gst/app/gstappsink.h>
#include <gtest/gtest.h>
#include <turbojpeg.h>

#include <array>
#include <string>
#include <vector>

#include "platform/graph/GstHandles.h"

namespace kinalyx::test {
namespace {

/// Red, green and blue of the first pixel that a file gets of a camera with these caps; empty when none came.
std::vector<int> Recorded(const std::string& caps, const std::string& pattern) {
  EXPECT_TRUE(GstBegun());
  const GstCapsRef coming(gst_caps_from_string(caps.c_str()));
  const std::string line = "videotestsrc num-buffers=1 pattern=" + pattern + " ! capsfilter caps=\"" + caps + "\" ! " +
                           ChooseForFile()->BinFor(coming.get()) + " ! appsink name=end sync=false";
  GError* error = nullptr;
  const GstRef<GstElement> graph(gst_parse_launch(line.c_str(), &error));
  EXPECT_FALSE(error) << line << ": " << error->message;
  g_clear_error(&error);
  if (!graph) return {};
  const GstRef<GstElement> end(gst_bin_get_by_name(GST_BIN(graph.get()), "end"));
  gst_element_set_state(graph.get(), GST_STATE_PLAYING);
  GstSample* sample = gst_app_sink_try_pull_sample(GST_APP_SINK(end.get()), 10 * GST_SECOND);
  std::vector<int> pixel;
  GstMapInfo map;
  if (sample && gst_buffer_map(gst_sample_get_buffer(sample), &map, GST_MAP_READ)) {
    std::vector<unsigned char> rows(std::size_t{3} * 1280 * 1080);
    void* unpacker = tjInitDecompress();
    if (tjDecompress2(unpacker, map.data, map.size, rows.data(), 0, 0, 0, TJPF_RGB, 0) == 0)
      pixel.assign(rows.begin(), rows.begin() + 3);
    tjDestroy(unpacker);
    gst_buffer_unmap(gst_sample_get_buffer(sample), &map);
  }
  if (sample) gst_sample_unref(sample);
  gst_element_set_state(graph.get(), GST_STATE_NULL);
  return pixel;
}

TEST(CapsChoices, WhatIsCompressedKeepsItsColours) {
  const struct {
    const char* name;
    std::array<int, 3> rgb;
  } colours[] = {{"white", {255, 255, 255}}, {"black", {0, 0, 0}}, {"red", {255, 0, 0}}, {"blue", {0, 0, 255}}};
  for (const char* camera :
       {"format=YUY2,colorimetry=bt601", "format=YUY2,colorimetry=bt709", "format=NV12,colorimetry=bt601",
        "format=YUY2", "format=BGR", "format=BGRx", "format=UYVY,colorimetry=bt601,interlace-mode=interleaved"}) {
    for (const auto& colour : colours) {
      const std::vector<int> pixel =
          Recorded(std::string("video/x-raw,width=1280,height=720,framerate=30/1,") + camera, colour.name);
      ASSERT_EQ(pixel.size(), 3u) << camera;
      for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(pixel[i], colour.rgb[i], 5) << camera << ", " << colour.name;
    }
  }
}

}  // namespace
}  // namespace kinalyx::test
