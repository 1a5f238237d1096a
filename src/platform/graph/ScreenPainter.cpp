#include "platform/graph/ScreenPainter.h"

#include <gst/video/video.h>
#include <libyuv/convert.h>
#include <libyuv/scale.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace kinalyx {
namespace {

constexpr int kWidest = 1920;
constexpr int kHighest = 1200;

int Even(double length) { return std::max(2, static_cast<int>(length) / 2 * 2); }

/// The three planes of a picture, one behind the other.
struct Planes {
  Planes(std::uint8_t* bytes, int ofWidth, int ofHeight)
      : width(ofWidth), height(ofHeight), luma(bytes), blue(bytes + width * height), red(blue + width * height / 4) {}
  static std::size_t Bytes(int width, int height) {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3 / 2;
  }

  int width;
  int height;
  std::uint8_t* luma;
  std::uint8_t* blue;
  std::uint8_t* red;
};

}  // namespace

ScreenPicture ScreenPainter::Paint(GstSample* sample) {
  GstVideoInfo info;
  GstVideoFrame frame;
  if (!gst_video_info_from_caps(&info, gst_sample_get_caps(sample))) return {};
  if (!gst_video_frame_map(&frame, &info, gst_sample_get_buffer(sample), GST_MAP_READ)) return {};
  const int width = Even(info.width), height = Even(info.height);
  const double shrink = std::min({1.0, static_cast<double>(kWidest) / width, static_cast<double>(kHighest) / height});
  ScreenPicture picture;
  picture.width = Even(width * shrink);
  picture.height = Even(height * shrink);
  const std::shared_ptr<std::uint8_t[]> bytes(new std::uint8_t[Planes::Bytes(picture.width, picture.height)]);
  const Planes made(bytes.get(), picture.width, picture.height);
  if (shrink < 1) whole_.resize(Planes::Bytes(width, height));
  const Planes whole = shrink < 1 ? Planes(whole_.data(), width, height) : made;
  const auto* pixels = static_cast<const std::uint8_t*>(GST_VIDEO_FRAME_PLANE_DATA(&frame, 0));
  libyuv::ARGBToI420(pixels, GST_VIDEO_FRAME_PLANE_STRIDE(&frame, 0), whole.luma, width, whole.blue, width / 2,
                     whole.red, width / 2, width, height);
  gst_video_frame_unmap(&frame);
  if (shrink < 1)
    libyuv::I420Scale(whole.luma, width, whole.blue, width / 2, whole.red, width / 2, width, height, made.luma,
                      made.width, made.blue, made.width / 2, made.red, made.width / 2, made.width, made.height,
                      libyuv::kFilterBox);
  picture.pixels = LessonPicture(bytes, bytes.get());
  return picture;
}

}  // namespace kinalyx
