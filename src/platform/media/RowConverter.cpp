#include "platform/media/RowConverter.h"

#include <libyuv.h>

#include <cstddef>
#include <cstdlib>

namespace kinalyx {
namespace {

bool IsFullRange(const AVFrame& frame) {
  switch (frame.format) {
    case AV_PIX_FMT_YUVJ420P:
    case AV_PIX_FMT_YUVJ422P:
    case AV_PIX_FMT_YUVJ444P:
    case AV_PIX_FMT_YUVJ411P:
    case AV_PIX_FMT_YUVJ440P: return true;
    default: return frame.color_range == AVCOL_RANGE_JPEG;
  }
}

/// Without a word in the stream, small pictures have the colours of tape and large ones those of HD.
bool IsHd(const AVFrame& frame) {
  if (frame.colorspace == AVCOL_SPC_BT709) return true;
  return frame.colorspace == AVCOL_SPC_UNSPECIFIED && frame.height >= 720 && !IsFullRange(frame);
}

const libyuv::YuvConstants* MatrixOf(const AVFrame& frame) {
  const bool full = IsFullRange(frame);
  if (IsHd(frame)) return full ? &libyuv::kYuvF709Constants : &libyuv::kYuvH709Constants;
  return full ? &libyuv::kYuvJPEGConstants : &libyuv::kYuvI601Constants;
}

/// Doubles a row of samples: each keeps its place, and the mean of two stands between them.
void DoubleRow(const std::uint8_t* from, int count, std::uint8_t* to) {
  for (int x = 0; x < count - 1; ++x) {
    to[2 * x] = from[x];
    to[2 * x + 1] = static_cast<std::uint8_t>((from[x] + from[x + 1] + 1) >> 1);
  }
  to[2 * count - 2] = to[2 * count - 1] = from[count - 1];
}

}  // namespace

bool RowConverter::Convert(const AVFrame& frame, int bitCount, std::vector<std::uint8_t>& rows) {
  const int rowBytes = RowBytes(frame.width, bitCount);
  rows.resize(static_cast<std::size_t>(rowBytes) * static_cast<std::size_t>(frame.height));
  if (bitCount == 32) return ToArgb(frame, rows.data(), rowBytes);

  if (frame.format == AV_PIX_FMT_BGR24 && std::abs(frame.linesize[0]) >= frame.width * 3) {
    libyuv::CopyPlane(frame.data[0], frame.linesize[0], rows.data(), rowBytes, frame.width * 3, -frame.height);
    return true;
  }
  const int wideStride = frame.width * 4;
  wide_.resize(static_cast<std::size_t>(wideStride) * static_cast<std::size_t>(frame.height));
  return ToArgb(frame, wide_.data(), wideStride) &&
         libyuv::ARGBToRGB24(wide_.data(), wideStride, rows.data(), rowBytes, frame.width, frame.height) == 0;
}

bool RowConverter::ToArgb(const AVFrame& frame, std::uint8_t* target, int stride) {
  const std::uint8_t* const* data = frame.data;
  const int* pitch = frame.linesize;
  const int width = frame.width;
  const int upsideDown = -frame.height;
  switch (frame.format) {
    case AV_PIX_FMT_YUV420P:
    case AV_PIX_FMT_YUVJ420P:
      return libyuv::I420ToARGBMatrix(data[0], pitch[0], data[1], pitch[1], data[2], pitch[2], target, stride,
                                      MatrixOf(frame), width, upsideDown) == 0;
    case AV_PIX_FMT_YUV422P:
    case AV_PIX_FMT_YUVJ422P:
      return libyuv::I422ToARGBMatrix(data[0], pitch[0], data[1], pitch[1], data[2], pitch[2], target, stride,
                                      MatrixOf(frame), width, upsideDown) == 0;
    case AV_PIX_FMT_YUV444P:
    case AV_PIX_FMT_YUVJ444P:
      return libyuv::I444ToARGBMatrix(data[0], pitch[0], data[1], pitch[1], data[2], pitch[2], target, stride,
                                      MatrixOf(frame), width, upsideDown) == 0;
    case AV_PIX_FMT_YUV411P: {
      const int quarter = (width + 3) / 4;
      const std::size_t plane = 2 * static_cast<std::size_t>(quarter) * static_cast<std::size_t>(frame.height);
      chroma_.resize(2 * plane);
      for (int p = 0; p < 2; ++p) {
        for (int y = 0; y < frame.height; ++y) {
          DoubleRow(data[p + 1] + static_cast<std::ptrdiff_t>(y) * pitch[p + 1], quarter,
                    chroma_.data() + p * plane + static_cast<std::size_t>(y) * 2 * quarter);
        }
      }
      return libyuv::I422ToARGBMatrix(data[0], pitch[0], chroma_.data(), 2 * quarter, chroma_.data() + plane,
                                      2 * quarter, target, stride, MatrixOf(frame), width, upsideDown) == 0;
    }
    case AV_PIX_FMT_BGR24: return libyuv::RGB24ToARGB(data[0], pitch[0], target, stride, width, upsideDown) == 0;
    default: return ByScaler(frame, target, stride);
  }
}

bool RowConverter::ByScaler(const AVFrame& frame, std::uint8_t* target, int stride) {
  const auto format = static_cast<AVPixelFormat>(frame.format);
  scaler_.reset(sws_getCachedContext(scaler_.release(), frame.width, frame.height, format, frame.width, frame.height,
                                     AV_PIX_FMT_BGRA, SWS_BILINEAR, nullptr, nullptr, nullptr));
  if (!scaler_) return false;
  const int* matrix = sws_getCoefficients(IsHd(frame) ? SWS_CS_ITU709 : SWS_CS_ITU601);
  sws_setColorspaceDetails(scaler_.get(), matrix, IsFullRange(frame), matrix, 1, 0, 1 << 16, 1 << 16);
  std::uint8_t* const planes[] = {target + static_cast<std::ptrdiff_t>(frame.height - 1) * stride};
  const int strides[] = {-stride};
  if (sws_scale(scaler_.get(), frame.data, frame.linesize, 0, frame.height, planes, strides) != frame.height)
    return false;
  // Transparency of a strange format is no business of a video.
  for (std::size_t i = 3; i < static_cast<std::size_t>(stride) * static_cast<std::size_t>(frame.height); i += 4)
    target[i] = 255;
  return true;
}

}  // namespace kinalyx
