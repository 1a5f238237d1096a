#include "platform/media/WebPictures.h"

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <libyuv.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/media/Colours.h"

namespace kinalyx {
namespace {

constexpr double kLongSide = 1280;
constexpr double kShortSide = 720;
constexpr int kPixelBytes = 4;

/// A column or row that is lost is not missed.
int Even(double pixels) { return std::max(2, 2 * static_cast<int>(std::floor(pixels / 2 + 1e-6))); }

libyuv::FilterMode FilterFor(int from, int to) { return from > to ? libyuv::kFilterBox : libyuv::kFilterBilinear; }

/// Of a plane from 0 to 255 one of the narrow range, in place: `steps` of it around `rest`, which is `at` there.
void ToNarrowRange(std::uint8_t* bits, int pitch, int width, int height, int steps, int rest, int at) {
  for (int y = 0; y < height; ++y, bits += pitch)
    for (int x = 0; x < width; ++x)
      bits[x] = static_cast<std::uint8_t>(at + (((bits[x] - rest) * steps * 257 + (1 << 15)) >> 16));
}

}  // namespace

PictureSize WebPictures::SizeFor(PictureSize upright) {
  const bool stands = upright.height > upright.width;
  const double most[] = {stands ? kShortSide : kLongSide, stands ? kLongSide : kShortSide};
  const double scale = std::min({1.0, most[0] / upright.width, most[1] / upright.height});
  return {Even(upright.width * scale), Even(upright.height * scale)};
}

AVColorSpace WebPictures::ColoursOf(const AVFrame& picture) const {
  if (!IsPlanar(picture)) return AVCOL_SPC_SMPTE170M;  // what libyuv makes of pixels
  switch (MatrixOf(picture)) {
    case Matrix::Hd: return AVCOL_SPC_BT709;
    case Matrix::Wide: return AVCOL_SPC_BT2020_NCL;
    case Matrix::Tape: break;
  }
  return AVCOL_SPC_SMPTE170M;
}

/// Three planes of 8 bits, which need not become pixels on the way.
bool WebPictures::IsPlanar(const AVFrame& picture) const {
  const AVPixFmtDescriptor* format = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(picture.format));
  if (!format || shape_.mirrored || ToneMapper::Wants(picture)) return false;
  const bool planes = (format->flags & AV_PIX_FMT_FLAG_PLANAR) && format->nb_components == 3;
  return planes && !(format->flags & (AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_BE)) && format->comp[0].depth == 8 &&
         format->comp[1].step == 1 && format->comp[0].step == 1;
}

FrameHandle WebPictures::NewPicture(PictureSize size) const {
  FrameHandle made = NewFrame();
  if (!made) return nullptr;
  made->format = AV_PIX_FMT_YUV420P;
  made->width = size.width;
  made->height = size.height;
  return av_frame_get_buffer(made.get(), 0) < 0 ? nullptr : std::move(made);
}

FrameHandle WebPictures::Make(const AVFrame& picture) {
  return IsPlanar(picture) ? FromPlanes(picture) : FromRows(picture);
}

WebPictures::Planes WebPictures::PlanesOf(const AVFrame& picture) const {
  const AVPixFmtDescriptor& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(picture.format));
  Planes planes{};
  for (int p = 0; p < 3; ++p) {
    const int narrow = p == 0 ? 0 : format.log2_chroma_w;
    const int low = p == 0 ? 0 : format.log2_chroma_h;
    planes.width[p] = AV_CEIL_RSHIFT(picture.width, narrow);
    planes.height[p] = AV_CEIL_RSHIFT(picture.height, low);
    planes.bits[p] = picture.data[p];
    planes.pitch[p] = picture.linesize[p];
    if (!fields_ || planes.height[p] < 2) continue;
    planes.bits[p] += static_cast<std::ptrdiff_t>(first_) * picture.linesize[p];
    planes.pitch[p] *= 2;
    planes.height[p] = (planes.height[p] + 1 - first_) / 2;
  }
  return planes;
}

FrameHandle WebPictures::FromPlanes(const AVFrame& picture) {
  const bool turned = shape_.turns % 2 != 0;
  const PictureSize lying = turned ? PictureSize{size_.height, size_.width} : size_;
  const bool fits = picture.width == lying.width && picture.height == lying.height;
  const bool full = IsFullRange(picture);
  if (fits && !fields_ && !full && shape_.turns == 0 && picture.format == AV_PIX_FMT_YUV420P)
    return FrameHandle(av_frame_clone(&picture));

  FrameHandle made = NewPicture(lying);
  if (!made) return nullptr;
  const Planes planes = PlanesOf(picture);
  for (int p = 0; p < 3; ++p) {
    const int width = p == 0 ? lying.width : lying.width / 2;
    const int height = p == 0 ? lying.height : lying.height / 2;
    libyuv::ScalePlane(planes.bits[p], planes.pitch[p], planes.width[p], planes.height[p], made->data[p],
                       made->linesize[p], width, height, FilterFor(planes.width[p] * planes.height[p], width * height));
  }
  if (full) {
    constexpr int kBlack = 16, kBrightSteps = 219, kColourSteps = 224, kGrey = 128;
    ToNarrowRange(made->data[0], made->linesize[0], lying.width, lying.height, kBrightSteps, 0, kBlack);
    for (const int p : {1, 2})
      ToNarrowRange(made->data[p], made->linesize[p], lying.width / 2, lying.height / 2, kColourSteps, kGrey, kGrey);
  }
  if (shape_.turns == 0) return made;
  FrameHandle upright = NewPicture(size_);
  if (!upright) return nullptr;
  const auto turn = static_cast<libyuv::RotationMode>(shape_.turns * 90);
  const bool good = libyuv::I420Rotate(made->data[0], made->linesize[0], made->data[1], made->linesize[1],
                                       made->data[2], made->linesize[2], upright->data[0], upright->linesize[0],
                                       upright->data[1], upright->linesize[1], upright->data[2], upright->linesize[2],
                                       lying.width, lying.height, turn) == 0;
  return good ? std::move(upright) : nullptr;
}

FrameHandle WebPictures::FromRows(const AVFrame& picture) {
  const FrameRows rows = rows_.Convert(picture, 32, upright_);
  FrameHandle made = rows ? NewPicture(size_) : nullptr;
  if (!made) return nullptr;
  // The bottom row comes first.
  const std::uint8_t* bits = rows.bits + static_cast<std::ptrdiff_t>(rows.height - 1) * rows.rowBytes;
  int stride = -rows.rowBytes;
  int height = rows.height;
  if (fields_ && height > 1 && shape_.turns % 2 == 0) {
    bits += first_ * stride;
    stride *= 2;
    height = (height + 1 - first_) / 2;
  }
  if (rows.width != size_.width || height != size_.height) {
    const int pitch = size_.width * kPixelBytes;
    scaled_.resize(static_cast<std::size_t>(pitch) * static_cast<std::size_t>(size_.height));
    if (libyuv::ARGBScale(bits, stride, rows.width, height, scaled_.data(), pitch, size_.width, size_.height,
                          FilterFor(rows.width * height, size_.width * size_.height)) != 0)
      return nullptr;
    bits = scaled_.data();
    stride = pitch;
  }
  const bool good = libyuv::ARGBToI420(bits, stride, made->data[0], made->linesize[0], made->data[1], made->linesize[1],
                                       made->data[2], made->linesize[2], size_.width, size_.height) == 0;
  return good ? std::move(made) : nullptr;
}

}  // namespace kinalyx
