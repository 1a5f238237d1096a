#include "platform/graph/PictureBytes.h"

#include <gst/video/video.h>

#include <string_view>

#include "platform/graph/GstHandles.h"

namespace kinalyx {
namespace {

/// The bytes of a buffer, as long as somebody needs them.
struct Held {
  explicit Held(GstBuffer* given) : buffer(given) { mapped = gst_buffer_map(buffer, &map, GST_MAP_READ); }
  ~Held() {
    if (mapped) gst_buffer_unmap(buffer, &map);
    gst_buffer_unref(buffer);
  }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

  GstBuffer* buffer;
  GstMapInfo map{};
  bool mapped = false;
};

std::optional<RecordingFormat> FormatOf(const GstCaps* caps) {
  const GstStructure* first = gst_caps_get_structure(caps, 0);
  const std::string_view kind = gst_structure_get_name(first);
  const char* text = gst_structure_get_string(first, "format");
  const std::string_view raw = text ? text : "";
  RecordingFormat format;
  if (kind == "image/jpeg") format.codec = RecordingFormat::Codec::Mjpeg;
  else if (kind == "video/x-dv") format.codec = RecordingFormat::Codec::Dv;
  else if (kind == "video/x-raw" && raw == "YUY2") format.codec = RecordingFormat::Codec::RawYuy2;
  else if (kind == "video/x-raw" && raw == "BGR") format.codec = RecordingFormat::Codec::RawBgr24;
  else return std::nullopt;
  gst_structure_get_int(first, "width", &format.width);
  gst_structure_get_int(first, "height", &format.height);
  int over = 0, under = 0;
  if (gst_structure_get_fraction(first, "framerate", &over, &under) && under > 0)
    format.promisedRate = static_cast<double>(over) / under;
  if (const char* mode = gst_structure_get_string(first, "interlace-mode");
      mode && mode != std::string_view("progressive")) {
    const char* order = gst_structure_get_string(first, "field-order");
    format.fields = order && order == std::string_view("bottom-field-first") ? RecordingFormat::Fields::BottomFirst
                                                                             : RecordingFormat::Fields::TopFirst;
  }
  return format;
}

/// A file has the rows of a raw picture in their usual lengths; a camera may have given them others.
GstBuffer* WithUsualRows(GstSample* sample) {
  GstBuffer* buffer = gst_sample_get_buffer(sample);
  const GstVideoMeta* meta = gst_buffer_get_video_meta(buffer);
  GstVideoInfo usual;
  if (!meta || !gst_video_info_from_caps(&usual, gst_sample_get_caps(sample))) return gst_buffer_ref(buffer);
  if (meta->stride[0] == GST_VIDEO_INFO_PLANE_STRIDE(&usual, 0) && meta->offset[0] == 0) return gst_buffer_ref(buffer);
  GstBuffer* copy = gst_buffer_new_allocate(nullptr, GST_VIDEO_INFO_SIZE(&usual), nullptr);
  GstVideoFrame from, to;
  if (gst_video_frame_map(&from, &usual, buffer, GST_MAP_READ)) {
    if (gst_video_frame_map(&to, &usual, copy, GST_MAP_WRITE)) {
      gst_video_frame_copy(&to, &from);
      gst_video_frame_unmap(&to);
    }
    gst_video_frame_unmap(&from);
  }
  return copy;
}

}  // namespace

std::optional<PackedPicture> PackPicture(GstSample* sample) {
  const auto format = FormatOf(gst_sample_get_caps(sample));
  if (!format) return std::nullopt;
  const bool raw =
      format->codec == RecordingFormat::Codec::RawYuy2 || format->codec == RecordingFormat::Codec::RawBgr24;
  const auto held = std::make_shared<Held>(raw ? WithUsualRows(sample) : gst_buffer_ref(gst_sample_get_buffer(sample)));
  if (!held->mapped) return std::nullopt;
  PackedPicture picture;
  picture.format = *format;
  picture.bytes =
      std::shared_ptr<const std::byte>(held, static_cast<const std::byte*>(static_cast<void*>(held->map.data)));
  picture.size = held->map.size;
  return picture;
}

}  // namespace kinalyx
