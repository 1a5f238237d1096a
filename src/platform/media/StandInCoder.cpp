#include "platform/media/StandInCoder.h"

#include <libyuv.h>
#include <turbojpeg.h>

#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/media/Colours.h"
#include "platform/media/ToneMapper.h"

namespace kinalyx {
namespace {

constexpr std::array kLongSides = {480, 640, 960, 1280};
/// Of 100: 38 dB, or 36 of a film full of grain, where more brings no more: it is the colours that are halved.
constexpr int kQuality = 85;
/// Behind the packed picture stand its matrix and whether it has the full range.
constexpr std::size_t kColourBytes = 2;

bool IsPlain420(const AVFrame& frame) {
  return frame.format == AV_PIX_FMT_YUV420P || frame.format == AV_PIX_FMT_YUVJ420P;
}

FrameHandle FrameLike(const AVFrame& frame, int width, int height) {
  FrameHandle made = NewFrame();
  if (!made || av_frame_copy_props(made.get(), &frame) < 0) return nullptr;
  made->width = width;
  made->height = height;
  made->format = frame.format;
  return av_frame_get_buffer(made.get(), 0) < 0 ? nullptr : std::move(made);
}

}  // namespace

void StandInCoder::TurboDeleter::operator()(void* handle) const { tjDestroy(handle); }

int StandInCoder::LongSideFor(int shownWidth, int shownHeight) {
  const auto enough = std::ranges::lower_bound(kLongSides, std::max(shownWidth, shownHeight));
  return enough == kLongSides.end() ? kLongSides.back() : *enough;
}

FrameHandle StandInCoder::Scale(const AVFrame& frame, int width, int height) {
  FrameHandle scaled = FrameLike(frame, width, height);
  if (!scaled) return nullptr;
  std::uint8_t* const* to = scaled->data;
  const int* pitch = scaled->linesize;
  if (IsPlain420(frame)) {
    return libyuv::I420Scale(frame.data[0], frame.linesize[0], frame.data[1], frame.linesize[1], frame.data[2],
                             frame.linesize[2], frame.width, frame.height, to[0], pitch[0], to[1], pitch[1], to[2],
                             pitch[2], width, height, libyuv::kFilterBox) == 0
               ? std::move(scaled)
               : nullptr;
  }
  const auto format = static_cast<AVPixelFormat>(frame.format);
  scaler_.reset(sws_getCachedContext(scaler_.release(), frame.width, frame.height, format, width, height, format,
                                     SWS_AREA, nullptr, nullptr, nullptr));
  if (!scaler_) return nullptr;
  const int rows = sws_scale(scaler_.get(), frame.data, frame.linesize, 0, frame.height, to, pitch);
  return rows == height ? std::move(scaled) : nullptr;
}

FrameHandle StandInCoder::Smaller(const AVFrame& frame, int longSide) {
  const int longer = std::max(frame.width, frame.height);
  if (longer <= longSide) return nullptr;
  const auto part = [&](int side) { return std::max(2, side * longSide / longer & ~1); };
  return Scale(frame, part(frame.width), part(frame.height));
}

std::vector<std::uint8_t> StandInCoder::Pack(const AVFrame& frame, int longSide) {
  const FrameHandle scaled = Smaller(frame, longSide);
  if (!scaled && std::max(frame.width, frame.height) > longSide) return {};
  const AVFrame& source = scaled ? *scaled : frame;
  if (!packer_) packer_.reset(tjInitCompress());
  const unsigned long most = tjBufSize(source.width, source.height, TJSAMP_420);
  if (!packer_ || most == static_cast<unsigned long>(-1)) return {};
  packed_.resize(most);
  // Where rows share their colours two by two, the planes are those of the packed picture already.
  const bool asItIs = IsPlain420(source) && !HasFieldsApart(source) && !ToneMapper::Wants(source);
  const unsigned long bytes = asItIs ? PackPlanes(source) : PackRows(source);
  if (bytes == 0) return {};
  std::vector<std::uint8_t> made(packed_.begin(), packed_.begin() + static_cast<std::ptrdiff_t>(bytes));
  made.push_back(static_cast<std::uint8_t>(asItIs ? MatrixOf(source) : Matrix::Tape));
  made.push_back(!asItIs || IsFullRange(source) ? 1 : 0);
  return made;
}

unsigned long StandInCoder::PackPlanes(const AVFrame& picture) {
  const unsigned char* planes[] = {picture.data[0], picture.data[1], picture.data[2]};
  const int strides[] = {picture.linesize[0], picture.linesize[1], picture.linesize[2]};
  unsigned char* to = packed_.data();
  unsigned long bytes = packed_.size();
  const int result = tjCompressFromYUVPlanes(packer_.get(), planes, picture.width, strides, picture.height, TJSAMP_420,
                                             &to, &bytes, kQuality, TJFLAG_FASTDCT | TJFLAG_NOREALLOC);
  return result == 0 ? bytes : 0;
}

unsigned long StandInCoder::PackRows(const AVFrame& picture) {
  if (!converter_.Convert(picture, 32, rows_)) return 0;
  unsigned char* to = packed_.data();
  unsigned long bytes = packed_.size();
  const int result =
      tjCompress2(packer_.get(), rows_.data(), picture.width, RowConverter::RowBytes(picture.width, 32), picture.height,
                  TJPF_BGRX, &to, &bytes, TJSAMP_420, kQuality, TJFLAG_BOTTOMUP | TJFLAG_FASTDCT | TJFLAG_NOREALLOC);
  return result == 0 ? bytes : 0;
}

FrameHandle StandInCoder::Unpack(std::span<const std::uint8_t> packed) {
  if (packed.size() <= kColourBytes) return nullptr;
  const std::uint8_t matrix = packed[packed.size() - 2];
  const std::uint8_t fullRange = packed[packed.size() - 1];
  if (matrix > static_cast<std::uint8_t>(Matrix::Wide) || fullRange > 1) return nullptr;
  packed = packed.first(packed.size() - kColourBytes);
  if (!unpacker_) unpacker_.reset(tjInitDecompress());
  int width = 0, height = 0, sampling = 0, colours = 0;
  if (!unpacker_ || tjDecompressHeader3(unpacker_.get(), packed.data(), static_cast<unsigned long>(packed.size()),
                                        &width, &height, &sampling, &colours) != 0)
    return nullptr;
  // Nothing else was ever packed.
  if (sampling != TJSAMP_420 || colours != TJCS_YCbCr || std::max(width, height) > kLongSides.back()) return nullptr;
  FrameHandle frame = NewFrame();
  frame->width = width;
  frame->height = height;
  frame->format = fullRange ? AV_PIX_FMT_YUVJ420P : AV_PIX_FMT_YUV420P;
  frame->color_range = fullRange ? AVCOL_RANGE_JPEG : AVCOL_RANGE_MPEG;
  NameMatrix(*frame, static_cast<Matrix>(matrix));
  if (av_frame_get_buffer(frame.get(), 0) < 0) return nullptr;
  int strides[] = {frame->linesize[0], frame->linesize[1], frame->linesize[2]};
  const int result = tjDecompressToYUVPlanes(unpacker_.get(), packed.data(), static_cast<unsigned long>(packed.size()),
                                             frame->data, width, strides, height, TJFLAG_FASTDCT);
  // A damaged end is shown as far as it goes.
  return result == 0 || tjGetErrorCode(unpacker_.get()) == TJERR_WARNING ? std::move(frame) : nullptr;
}

}  // namespace kinalyx
