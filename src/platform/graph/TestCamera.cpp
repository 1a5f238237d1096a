#include "platform/graph/TestCamera.h"

#include <ctime>
#include <chrono>
#include <memory>

#include <fmt/format.h>
#include <libyuv/convert_from_argb.h>

#include "platform/graph/GstHandles.h"
#include "platform/graph/TestPicture.h"

namespace kinalyx {
namespace {

/// What draws the pictures of one run.
struct Easel {
  Easel(const PictureMode& wanted) : mode(wanted), picture(wanted.width, wanted.height) {}

  PictureMode mode;
  TestPicture picture;
};

double TimeOfDay() {
  const auto now = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  std::tm local{};
  localtime_r(&seconds, &local);
  const std::chrono::duration<double> part = now - std::chrono::floor<std::chrono::seconds>(now);
  return local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec + part.count();
}

/// Sizes here are multiples of eight, so that rows follow each other without a gap.
void Copy(const Surface& surface, bool compressed, std::uint8_t* to) {
  const int width = surface.Width();
  const int height = surface.Height();
  if (compressed) {
    std::uint8_t* blue = to + width * height;
    std::uint8_t* red = blue + width * height / 4;
    // JPEG has the whole range of brightness.
    libyuv::ARGBToJ420(surface.Row(0), surface.Stride(), to, width, blue, width / 2, red, width / 2, width, height);
  } else {
    libyuv::ARGBToYUY2(surface.Row(0), surface.Stride(), to, width * 2, width, height);
  }
}

/// Draws over what the source has made, whose number the buffer tells.
GstPadProbeReturn DrawInto(GstPad*, GstPadProbeInfo* info, gpointer data) {
  auto& easel = *static_cast<Easel*>(data);
  GstBuffer* buffer = gst_buffer_make_writable(GST_PAD_PROBE_INFO_BUFFER(info));
  info->data = buffer;
  const auto number = static_cast<std::int64_t>(GST_BUFFER_OFFSET(buffer));
  const double seconds = static_cast<double>(number) / easel.mode.rate;
  const Surface& drawn = easel.picture.Draw(number, seconds, TimeOfDay());
  const bool compressed = easel.mode.format == "MJPG";
  GstMapInfo map;
  if (!gst_buffer_map(buffer, &map, GST_MAP_WRITE)) return GST_PAD_PROBE_DROP;
  const gsize needed =
      static_cast<gsize>(drawn.Width()) * static_cast<gsize>(drawn.Height()) * (compressed ? 3 : 4) / 2;
  if (map.size >= needed) Copy(drawn, compressed, map.data);
  gst_buffer_unmap(buffer, &map);
  return GST_PAD_PROBE_OK;
}

}  // namespace

const std::vector<PictureMode>& TestCameraModes() {
  static const std::vector<PictureMode> modes = {
      {640, 480, 30, "YUY2"}, {640, 480, 30, "MJPG"}, {1280, 720, 60, "YUY2"}, {1280, 720, 60, "MJPG"}};
  return modes;
}

GstElement* MakeTestCamera(const PictureMode& mode) {
  if (!GstBegun()) return nullptr;
  const bool compressed = mode.format == "MJPG";
  const std::string description = fmt::format(
      "videotestsrc name=source is-live=true pattern=black ! capsfilter caps=video/x-raw,format={},width={},height={},"
      "framerate={}/1,pixel-aspect-ratio=1/1,colorimetry={}",
      compressed ? "I420" : "YUY2", mode.width, mode.height, static_cast<int>(mode.rate),
      compressed ? "1:4:0:0 ! jpegenc quality=90" : "bt601");
  GError* error = nullptr;
  GstElement* camera = gst_parse_bin_from_description(description.c_str(), true, &error);
  g_clear_error(&error);
  if (!camera) return nullptr;
  const GstRef<GstElement> source(gst_bin_get_by_name(GST_BIN(camera), "source"));
  const GstRef<GstPad> pad(gst_element_get_static_pad(source.get(), "src"));
  gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_BUFFER, DrawInto, std::make_unique<Easel>(mode).release(),
                    [](gpointer data) { std::default_delete<Easel>()(static_cast<Easel*>(data)); });
  return camera;
}

}  // namespace kinalyx
