#include "platform/media/ConversionPictures.h"

#include <libyuv.h>

#include <algorithm>
#include <cstddef>

namespace kinalyx {
namespace {

constexpr int kPixelBytes = 4;

/// One row, brought out a little against those above and below and against its neighbours.
void SharpenRow(const std::uint8_t* above, const std::uint8_t* row, const std::uint8_t* below, int width,
                std::uint8_t* to) {
  constexpr int kPart = 8;  // of the difference from the four around it
  for (int x = 1; x < width - 1; ++x) {
    const int around = above[x] + below[x] + row[x - 1] + row[x + 1];
    to[x] = static_cast<std::uint8_t>(std::clamp(row[x] + (4 * row[x] - around) / kPart, 0, 255));
  }
}

}  // namespace

FrameHandle ConversionPictures::Make(const AVFrame& picture) {
  const FrameRows rows = rows_.Convert(picture, 32, upright_);
  FrameHandle made = NewFrame();
  if (!rows || !made) return nullptr;
  made->format = form_.format;
  made->width = form_.width;
  made->height = form_.height;
  if (av_frame_get_buffer(made.get(), 0) < 0) return nullptr;
  made->interlaced_frame = form_.fields != PictureForm::Fields::None;
  made->top_field_first = form_.fields == PictureForm::Fields::TopFirst;

  Argb from{rows.bits + static_cast<std::ptrdiff_t>(rows.height - 1) * rows.rowBytes, -rows.rowBytes};
  const bool lower = form_.format == AV_PIX_FMT_YUV411P && form_.fields == PictureForm::Fields::TopFirst;
  if (lower || rows.width != form_.width || rows.height != form_.height) {
    const int stride = form_.width * kPixelBytes;
    // One row more than the picture has, on top.
    scaled_.resize(static_cast<std::size_t>(stride) * static_cast<std::size_t>(form_.height + 1));
    std::uint8_t* const second = scaled_.data() + stride;
    if (!Scale(rows, second, stride)) return nullptr;
    std::copy_n(second, stride, scaled_.data());
    from = {lower ? scaled_.data() : second, stride};
    if (lower) made->top_field_first = 0;
  }
  if (!(form_.format == AV_PIX_FMT_YUV411P ? ToTape(from, *made) : ToPlanes(from, *made))) return nullptr;
  if (form_.sharpen) Sharpen(*made);
  return made;
}

bool ConversionPictures::Scale(const FrameRows& rows, std::uint8_t* to, int stride) const {
  const bool apart = form_.fields != PictureForm::Fields::None && rows.height != form_.height;
  const int fields = apart ? 2 : 1;
  const bool smaller = rows.width > form_.width || rows.height > form_.height;
  for (int field = 0; field < fields; ++field) {
    const auto above = static_cast<std::ptrdiff_t>(rows.height - 1 - field);
    const int height = (rows.height - field + fields - 1) / fields;
    if (libyuv::ARGBScale(rows.bits + above * rows.rowBytes, -rows.rowBytes * fields, rows.width, height,
                          to + static_cast<std::ptrdiff_t>(field) * stride, stride * fields, form_.width,
                          (form_.height - field + fields - 1) / fields,
                          smaller ? libyuv::kFilterBox : libyuv::kFilterBilinear) != 0)
      return false;
  }
  return true;
}

bool ConversionPictures::ToPlanes(Argb from, AVFrame& to) {
  const auto convert = form_.format == AV_PIX_FMT_YUVJ420P ? &libyuv::ARGBToJ420 : &libyuv::ARGBToJ422;
  return convert(from.bits, from.stride, to.data[0], to.linesize[0], to.data[1], to.linesize[1], to.data[2],
                 to.linesize[2], form_.width, form_.height) == 0;
}

bool ConversionPictures::ToTape(Argb from, AVFrame& to) {
  const int half = (form_.width + 1) / 2;
  const std::size_t plane = static_cast<std::size_t>(half) * static_cast<std::size_t>(form_.height);
  chroma_.resize(2 * plane);
  std::uint8_t* const chroma[] = {chroma_.data(), chroma_.data() + plane};
  if (libyuv::ARGBToI422(from.bits, from.stride, to.data[0], to.linesize[0], chroma[0], half, chroma[1], half,
                         form_.width, form_.height) != 0)
    return false;
  for (const int p : {0, 1})
    libyuv::ScalePlane(chroma[p], half, half, form_.height, to.data[p + 1], to.linesize[p + 1], (form_.width + 3) / 4,
                       form_.height, libyuv::kFilterBox);
  return true;
}

void ConversionPictures::Sharpen(AVFrame& picture) {
  const int width = form_.width;
  const int height = form_.height;
  before_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  libyuv::CopyPlane(picture.data[0], picture.linesize[0], before_.data(), width, width, height);
  const int apart = form_.fields == PictureForm::Fields::None ? 1 : 2;  // rows from one to the next of its field
  const auto row = [&](int y) { return before_.data() + static_cast<std::ptrdiff_t>(y) * width; };
  for (int y = apart; y < height - apart; ++y)
    SharpenRow(row(y - apart), row(y), row(y + apart), width,
               picture.data[0] + static_cast<std::ptrdiff_t>(y) * picture.linesize[0]);
}

}  // namespace kinalyx
