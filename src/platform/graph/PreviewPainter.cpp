#include "platform/graph/PreviewPainter.h"

#include <libyuv/convert_argb.h>
#include <libyuv/scale.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace kinalyx {
namespace {

/// A sample's pixels, as long as it lives.
class MappedPicture {
 public:
  explicit MappedPicture(GstSample* sample) {
    const GstCaps* caps = gst_sample_get_caps(sample);
    mapped_ = caps && gst_video_info_from_caps(&info_, caps) &&
              gst_video_frame_map(&frame_, &info_, gst_sample_get_buffer(sample), GST_MAP_READ);
  }
  ~MappedPicture() {
    if (mapped_) gst_video_frame_unmap(&frame_);
  }
  MappedPicture(const MappedPicture&) = delete;
  MappedPicture& operator=(const MappedPicture&) = delete;

  explicit operator bool() const { return mapped_; }
  const GstVideoInfo& Info() const { return info_; }
  const std::uint8_t* Plane(int plane) const {
    return static_cast<const std::uint8_t*>(GST_VIDEO_FRAME_PLANE_DATA(&frame_, plane));
  }
  int Stride(int plane) const { return GST_VIDEO_FRAME_PLANE_STRIDE(&frame_, plane); }
  int Width(int plane) const { return GST_VIDEO_FRAME_COMP_WIDTH(&frame_, plane); }
  int Height(int plane) const { return GST_VIDEO_FRAME_COMP_HEIGHT(&frame_, plane); }

 private:
  GstVideoInfo info_{};
  GstVideoFrame frame_{};
  bool mapped_ = false;
};

const libyuv::YuvConstants* ColoursOf(const GstVideoInfo& info) {
  const bool full = GST_VIDEO_INFO_COLORIMETRY(&info).range == GST_VIDEO_COLOR_RANGE_0_255;
  if (GST_VIDEO_INFO_COLORIMETRY(&info).matrix == GST_VIDEO_COLOR_MATRIX_BT709)
    return full ? &libyuv::kYuvF709Constants : &libyuv::kYuvH709Constants;
  return full ? &libyuv::kYuvJPEGConstants : &libyuv::kYuvI601Constants;
}

}  // namespace

RendererFace::Size FitPreview(RendererFace::Size picture, double aspect, RendererFace::Size wanted) {
  const double shownWidth = picture.height * aspect;
  if (wanted.width <= 0 || wanted.height <= 0 || shownWidth <= 0) return picture;
  const double part = std::min(wanted.width / shownWidth, wanted.height / static_cast<double>(picture.height));
  const auto fit = [](double length, int most) { return std::clamp(static_cast<int>(std::lround(length)), 1, most); };
  return {fit(shownWidth * part, picture.width), fit(picture.height * part, picture.height)};
}

LivePicture PreviewPainter::Paint(GstSample* sample, RendererFace::Size wanted) {
  const MappedPicture from(sample);
  if (!from) return {};
  const GstVideoInfo& info = from.Info();
  LivePicture picture;
  picture.aspect = static_cast<double>(info.width) * info.par_n / (static_cast<double>(info.height) * info.par_d);
  const RendererFace::Size size = FitPreview({info.width, info.height}, picture.aspect, wanted);
  picture.width = size.width;
  picture.height = size.height;
  picture.stride = size.width * 4;

  // Colours in half the size are what the eye needs, and what the fastest conversion takes.
  const std::array<RendererFace::Size, 3> planes{
      {size, {(size.width + 1) / 2, (size.height + 1) / 2}, {(size.width + 1) / 2, (size.height + 1) / 2}}};
  std::array<const std::uint8_t*, 3> data{};
  std::array<int, 3> strides{};
  std::size_t needed = 0;
  for (const auto& plane : planes)
    needed += static_cast<std::size_t>(plane.width) * static_cast<std::size_t>(plane.height);
  if (scaled_.size() < needed) scaled_.resize(needed);
  std::uint8_t* free = scaled_.data();
  for (int i = 0; i < 3; ++i) {
    const auto at = static_cast<std::size_t>(i);
    const auto [width, height] = planes[at];
    data[at] = from.Plane(i);
    strides[at] = from.Stride(i);
    if (from.Width(i) == width && from.Height(i) == height) continue;
    libyuv::ScalePlane(from.Plane(i), from.Stride(i), from.Width(i), from.Height(i), free, width, width, height,
                       from.Width(i) >= 2 * width ? libyuv::kFilterBox : libyuv::kFilterBilinear);
    data[at] = free;
    strides[at] = width;
    free += static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  }
  const auto surface = FreeSurface(static_cast<std::size_t>(picture.stride) * static_cast<std::size_t>(size.height));
  libyuv::I420ToARGBMatrix(data[0], strides[0], data[1], strides[1], data[2], strides[2], surface->data(),
                           picture.stride, ColoursOf(info), size.width, size.height);
  picture.pixels = std::shared_ptr<const std::uint8_t>(surface, surface->data());
  return picture;
}

/// One that no window holds any more, or a new one.
std::shared_ptr<PreviewPainter::Bytes> PreviewPainter::FreeSurface(std::size_t size) {
  const auto fits = [&](const std::shared_ptr<Bytes>& surface) { return surface.use_count() == 1; };
  std::erase_if(surfaces_, [&](const auto& surface) { return fits(surface) && surface->size() != size; });
  const auto found = std::ranges::find_if(surfaces_, fits);
  if (found != surfaces_.end()) return *found;
  return surfaces_.emplace_back(std::make_shared<Bytes>(size));
}

}  // namespace kinalyx
