#include "platform/media/RowConverter.h"

#include <libyuv.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>

#include "platform/media/Colours.h"

namespace kinalyx {
namespace {

const libyuv::YuvConstants& ConstantsOf(const AVFrame& frame) {
  const bool full = IsFullRange(frame);
  switch (MatrixOf(frame)) {
    case Matrix::Hd: return full ? libyuv::kYuvF709Constants : libyuv::kYuvH709Constants;
    case Matrix::Wide: return full ? libyuv::kYuvV2020Constants : libyuv::kYuv2020Constants;
    case Matrix::Tape: break;
  }
  return full ? libyuv::kYuvJPEGConstants : libyuv::kYuvI601Constants;
}

bool IsPlain420(const AVFrame& frame) {
  return frame.format == AV_PIX_FMT_YUV420P || frame.format == AV_PIX_FMT_YUVJ420P;
}

/// Rows of colour that are made at a time: few enough for the processor to have them still at hand when they are used.
constexpr int kBand = 16;

/// Doubles the samples of some rows: each keeps its place, and the mean of two stands between them. `means` has room
/// for as many samples as come in.
void DoubleSamples(const std::uint8_t* from, int stride, int count, int rows, std::uint8_t* means, std::uint8_t* to) {
  if (count > 1) libyuv::InterpolatePlane(from, stride, from + 1, stride, means, count, count - 1, rows, 128);
  for (int y = 0; y < rows; ++y)
    means[y * count + count - 1] = from[static_cast<std::ptrdiff_t>(y) * stride + count - 1];
  libyuv::MergeUVPlane(from, stride, means, count, to, 2 * count, count, rows);
}

/// The colours of a picture as they come from a range from 0 to 255, or 1023, whatever its own. libyuv keeps blue of
/// the narrow range a little too weak, which does not matter on a usual screen and much in what is brightened later.
const libyuv::YuvConstants& FullConstantsOf(const AVFrame& frame) {
  switch (MatrixOf(frame)) {
    case Matrix::Hd: return libyuv::kYuvF709Constants;
    case Matrix::Wide: return libyuv::kYuvV2020Constants;
    case Matrix::Tape: break;
  }
  return libyuv::kYuvJPEGConstants;
}

/// Where the library's function for 4:2:0 and 4:2:2 pictures of a sample type are the same but for the height of
/// their colour, one call converts a picture, or two its fields.
template <typename Sample, typename Convert>
bool ByFields(const AVFrame& frame, const RowTarget& target, const libyuv::YuvConstants& colours, Convert convert) {
  const auto [bits, stride, height] = target;
  const int fields = HasFieldsApart(frame) ? 2 : 1;
  const bool upward = height < 0;
  for (int field = 0; field < fields; ++field) {
    const Sample* planes[3];
    int pitches[3];
    for (int p = 0; p < 3; ++p) {
      const std::ptrdiff_t row = static_cast<std::ptrdiff_t>(field) * frame.linesize[p];
      planes[p] = reinterpret_cast<const Sample*>(frame.data[p] + row);
      pitches[p] = fields * frame.linesize[p] / static_cast<int>(sizeof(Sample));
    }
    const int row = fields == 2 && upward ? 1 - field : field;
    std::uint8_t* const to = bits + static_cast<std::ptrdiff_t>(row) * stride;
    if (convert(planes[0], pitches[0], planes[1], pitches[1], planes[2], pitches[2], to, fields * stride, &colours,
                frame.width, height / fields) != 0)
      return false;
  }
  return true;
}

/// The turn that follows when a picture is first made upside down (or, mirrored, the right way up), and is to
/// stand with its bottom row first: a mirror is a half turn of a picture upside down.
libyuv::RotationMode TurnOf(const PictureShape& shape) {
  const int quarters = (8 - shape.turns - (shape.mirrored ? 2 : 0)) % 4;
  return static_cast<libyuv::RotationMode>(quarters * 90);
}

}  // namespace

FrameRows RowConverter::Convert(const AVFrame& frame, int bitCount, std::vector<std::uint8_t>& bits) {
  const PictureSize size = shape_.SizeOf(frame.width, frame.height);
  const int rowBytes = RowBytes(size.width, bitCount);
  bits.resize(static_cast<std::size_t>(rowBytes) * static_cast<std::size_t>(size.height));
  const FrameRows rows{bits.data(), size.width, size.height, rowBytes, bitCount};
  if (bitCount == 32) return Upright(frame, bits.data(), rowBytes) ? rows : FrameRows{};

  if (shape_.IsPlain() && ToRgb24(frame, {bits.data(), rowBytes, -frame.height})) return rows;
  const int wideStride = size.width * 4;
  wide_.resize(static_cast<std::size_t>(wideStride) * static_cast<std::size_t>(size.height));
  const bool good = Upright(frame, wide_.data(), wideStride) &&
                    libyuv::ARGBToRGB24(wide_.data(), wideStride, bits.data(), rowBytes, size.width, size.height) == 0;
  return good ? rows : FrameRows{};
}

bool RowConverter::ConvertField(const AVFrame& frame, int first, std::vector<std::uint8_t>& bits) {
  const bool ownColour = frame.format == AV_PIX_FMT_YUV411P || frame.format == AV_PIX_FMT_YUV422P;
  if (!ownColour || !shape_.IsPlain() || frame.height < 2 || ToneMapper::Wants(frame)) return false;
  const int rowBytes = RowBytes(frame.width, 24);
  bits.resize(static_cast<std::size_t>(rowBytes) * static_cast<std::size_t>(frame.height));
  // The field as a picture of its own, over the same bytes.
  AVFrame field = frame;
  field.height = (frame.height - first + 1) / 2;
  field.interlaced_frame = 0;
  const int top = (frame.height - 1 - first) % 2;
  for (int p = 0; p < 3; ++p) {
    field.data[p] += static_cast<std::ptrdiff_t>(top) * frame.linesize[p];
    field.linesize[p] *= 2;
  }
  return ToRgb24(field, {bits.data() + static_cast<std::ptrdiff_t>(first) * rowBytes, 2 * rowBytes, -field.height});
}

bool RowConverter::Upright(const AVFrame& frame, std::uint8_t* bits, int stride) {
  if (shape_.IsPlain()) return ToArgb(frame, {bits, stride, -frame.height});
  if (TurnPlanes(frame)) return ToArgb(*turned_, {bits, stride, turned_->height});

  const int wide = shape_.StretchedWidth(frame.width);
  const int height = frame.height;
  const libyuv::RotationMode turn = TurnOf(shape_);
  std::uint8_t* lying = bits;
  int lyingStride = stride;
  if (turn != libyuv::kRotate0) {
    lyingStride = wide * 4;
    lying_.resize(static_cast<std::size_t>(lyingStride) * static_cast<std::size_t>(height));
    lying = lying_.data();
  }
  const int toward = shape_.mirrored ? height : -height;
  if (wide == frame.width) {
    if (!ToArgb(frame, {lying, lyingStride, toward})) return false;
  } else {
    const int narrowStride = frame.width * 4;
    narrow_.resize(static_cast<std::size_t>(narrowStride) * static_cast<std::size_t>(height));
    if (!ToArgb(frame, {narrow_.data(), narrowStride, toward})) return false;
    if (libyuv::ARGBScale(narrow_.data(), narrowStride, frame.width, height, lying, lyingStride, wide, height,
                          libyuv::kFilterLinear) != 0)
      return false;
  }
  return turn == libyuv::kRotate0 || libyuv::ARGBRotate(lying, lyingStride, bits, stride, wide, height, turn) == 0;
}

/// The planes of the usual pictures of telephones are turned before they become pixels, which are more bytes. False
/// where that would not give the same.
bool RowConverter::TurnPlanes(const AVFrame& frame) {
  const libyuv::RotationMode turn = TurnOf(shape_);
  const bool whole = frame.width % 2 == 0 && frame.height % 2 == 0;
  const bool wide = frame.format == AV_PIX_FMT_YUV420P10;
  if (turn == libyuv::kRotate0 || shape_.pixelWidth != 1) return false;
  if (!(wide || IsPlain420(frame)) || !whole || HasFieldsApart(frame)) return false;
  const PictureSize size = shape_.SizeOf(frame.width, frame.height);
  if (!turned_ || turned_->width != size.width || turned_->height != size.height || turned_->format != frame.format) {
    turned_ = NewFrame();
    if (!turned_) return false;
    turned_->width = size.width;
    turned_->height = size.height;
    turned_->format = frame.format;
    if (av_frame_get_buffer(turned_.get(), 0) < 0) {
      turned_.reset();
      return false;
    }
  }
  turned_->color_primaries = frame.color_primaries;
  turned_->color_range = frame.color_range;
  turned_->color_trc = frame.color_trc;
  NameMatrix(*turned_, MatrixOf(frame));
  const int toward = shape_.mirrored ? frame.height : -frame.height;
  const auto rotate = [&]<typename Sample>(auto function) {
    const auto from = [&](int p) { return reinterpret_cast<const Sample*>(frame.data[p]); };
    const auto to = [&](int p) { return reinterpret_cast<Sample*>(turned_->data[p]); };
    const auto pitch = [](int bytes) { return bytes / static_cast<int>(sizeof(Sample)); };
    const int* in = frame.linesize;
    const int* out = turned_->linesize;
    return function(from(0), pitch(in[0]), from(1), pitch(in[1]), from(2), pitch(in[2]), to(0), pitch(out[0]), to(1),
                    pitch(out[1]), to(2), pitch(out[2]), frame.width, toward, turn) == 0;
  };
  return wide ? rotate.operator()<std::uint16_t>(&libyuv::I010Rotate)
              : rotate.operator()<std::uint8_t>(&libyuv::I420Rotate);
}

bool RowConverter::ToArgb(const AVFrame& frame, const RowTarget& target) {
  if (ToneMapper::Wants(frame)) return ByTones(frame, target);
  const libyuv::YuvConstants& colours = ConstantsOf(frame);
  switch (frame.format) {
    case AV_PIX_FMT_YUV420P:
    case AV_PIX_FMT_YUVJ420P: return ByFields<std::uint8_t>(frame, target, colours, &libyuv::I420ToARGBMatrix);
    case AV_PIX_FMT_YUV420P10: return ByFields<std::uint16_t>(frame, target, colours, &libyuv::I010ToARGBMatrix);
    case AV_PIX_FMT_YUV420P12: return ByFields<std::uint16_t>(frame, target, colours, &libyuv::I012ToARGBMatrix);
    case AV_PIX_FMT_YUV422P:
    case AV_PIX_FMT_YUVJ422P: return ByFields<std::uint8_t>(frame, target, colours, &libyuv::I422ToARGBMatrix);
    case AV_PIX_FMT_YUV422P10: return ByFields<std::uint16_t>(frame, target, colours, &libyuv::I210ToARGBMatrix);
    case AV_PIX_FMT_YUV444P:
    case AV_PIX_FMT_YUVJ444P: return ByFields<std::uint8_t>(frame, target, colours, &libyuv::I444ToARGBMatrix);
    case AV_PIX_FMT_YUV444P10: return ByFields<std::uint16_t>(frame, target, colours, &libyuv::I410ToARGBMatrix);
    case AV_PIX_FMT_YUV411P: return Quarter411(frame, target, &libyuv::I422ToARGBMatrix);
    case AV_PIX_FMT_BGR24:
      return libyuv::RGB24ToARGB(frame.data[0], frame.linesize[0], target.bits, target.stride, frame.width,
                                 target.height) == 0;
    default: return ByScaler(frame, target);
  }
}

bool RowConverter::ByTones(const AVFrame& frame, const RowTarget& target) {
  const libyuv::YuvConstants& colours = FullConstantsOf(frame);
  bool good = false;
  switch (frame.format) {
    case AV_PIX_FMT_YUV420P:
    case AV_PIX_FMT_YUVJ420P: good = ByFields<std::uint8_t>(frame, target, colours, &libyuv::I420ToAR30Matrix); break;
    case AV_PIX_FMT_YUV420P10: good = ByFields<std::uint16_t>(frame, target, colours, &libyuv::I010ToAR30Matrix); break;
    case AV_PIX_FMT_YUV420P12: good = ByFields<std::uint16_t>(frame, target, colours, &libyuv::I012ToAR30Matrix); break;
    case AV_PIX_FMT_YUV422P10: good = ByFields<std::uint16_t>(frame, target, colours, &libyuv::I210ToAR30Matrix); break;
    case AV_PIX_FMT_YUV444P10: good = ByFields<std::uint16_t>(frame, target, colours, &libyuv::I410ToAR30Matrix); break;
    default: return ToTenBits(frame) && ByTones(*tenBits_, target);
  }
  if (good) tones_.Map(frame, target.bits, target.stride, frame.height);
  return good;
}

/// Brings a picture of a rare format into one of those that ByTones knows.
bool RowConverter::ToTenBits(const AVFrame& frame) {
  tenBits_ = NewFrame();
  if (!tenBits_ || av_frame_copy_props(tenBits_.get(), &frame) < 0) return false;
  tenBits_->width = frame.width;
  tenBits_->height = frame.height;
  tenBits_->format = AV_PIX_FMT_YUV444P10;
  const auto format = static_cast<AVPixelFormat>(frame.format);
  scaler_.reset(sws_getCachedContext(scaler_.release(), frame.width, frame.height, format, frame.width, frame.height,
                                     AV_PIX_FMT_YUV444P10, SWS_BILINEAR, nullptr, nullptr, nullptr));
  if (!scaler_ || av_frame_get_buffer(tenBits_.get(), 0) < 0) return false;
  return sws_scale(scaler_.get(), frame.data, frame.linesize, 0, frame.height, tenBits_->data, tenBits_->linesize) ==
         frame.height;
}

/// Where rows of 24 bits can be made without the wider ones in between. False for any other picture.
bool RowConverter::ToRgb24(const AVFrame& frame, const RowTarget& target) {
  if (ToneMapper::Wants(frame)) return false;
  const libyuv::YuvConstants& colours = ConstantsOf(frame);
  switch (frame.format) {
    case AV_PIX_FMT_YUV420P:
    case AV_PIX_FMT_YUVJ420P: return ByFields<std::uint8_t>(frame, target, colours, &libyuv::I420ToRGB24Matrix);
    case AV_PIX_FMT_YUV422P:
    case AV_PIX_FMT_YUVJ422P: return ByFields<std::uint8_t>(frame, target, colours, &libyuv::I422ToRGB24Matrix);
    case AV_PIX_FMT_YUV411P: return Quarter411(frame, target, &libyuv::I422ToRGB24Matrix);
    case AV_PIX_FMT_BGR24:
      if (std::abs(frame.linesize[0]) < frame.width * 3) return false;
      libyuv::CopyPlane(frame.data[0], frame.linesize[0], target.bits, target.stride, frame.width * 3, target.height);
      return true;
    default: return false;
  }
}

template <typename Function>
bool RowConverter::Quarter411(const AVFrame& frame, const RowTarget& target, Function convert) {
  const int quarter = (frame.width + 3) / 4;
  const std::size_t plane = std::size_t{2} * kBand * static_cast<std::size_t>(quarter);
  chroma_.resize(3 * plane);
  std::uint8_t* const doubled[] = {chroma_.data(), chroma_.data() + plane};
  std::uint8_t* const means = doubled[1] + plane;
  const bool upward = target.height < 0;
  for (int y = 0; y < frame.height; y += kBand) {
    const int rows = std::min(kBand, frame.height - y);
    const auto from = [&](int p) { return frame.data[p] + static_cast<std::ptrdiff_t>(y) * frame.linesize[p]; };
    for (const int p : {0, 1}) DoubleSamples(from(p + 1), frame.linesize[p + 1], quarter, rows, means, doubled[p]);
    const int lowest = upward ? frame.height - y - rows : y;
    if (convert(from(0), frame.linesize[0], doubled[0], 2 * quarter, doubled[1], 2 * quarter,
                target.bits + static_cast<std::ptrdiff_t>(lowest) * target.stride, target.stride, &ConstantsOf(frame),
                frame.width, upward ? -rows : rows) != 0)
      return false;
  }
  return true;
}

bool RowConverter::ByScaler(const AVFrame& frame, const RowTarget& target) {
  const auto format = static_cast<AVPixelFormat>(frame.format);
  scaler_.reset(sws_getCachedContext(scaler_.release(), frame.width, frame.height, format, frame.width, frame.height,
                                     AV_PIX_FMT_BGRA, SWS_BILINEAR, nullptr, nullptr, nullptr));
  if (!scaler_) return false;
  const Matrix colours = MatrixOf(frame);
  const int* matrix = sws_getCoefficients(colours == Matrix::Hd     ? SWS_CS_ITU709
                                          : colours == Matrix::Wide ? SWS_CS_BT2020
                                                                    : SWS_CS_ITU601);
  sws_setColorspaceDetails(scaler_.get(), matrix, IsFullRange(frame), matrix, 1, 0, 1 << 16, 1 << 16);
  // The library writes on behind the end of a row: it gets rows that have room for it.
  if (!scaled_ || scaled_->width != frame.width || scaled_->height != frame.height) {
    scaled_ = NewFrame();
    scaled_->width = frame.width;
    scaled_->height = frame.height;
    scaled_->format = AV_PIX_FMT_BGRA;
    if (av_frame_get_buffer(scaled_.get(), 0) < 0) {
      scaled_.reset();
      return false;
    }
  }
  if (sws_scale(scaler_.get(), frame.data, frame.linesize, 0, frame.height, scaled_->data, scaled_->linesize) !=
      frame.height)
    return false;
  libyuv::ARGBCopy(scaled_->data[0], scaled_->linesize[0], target.bits, target.stride, frame.width, target.height);
  // Transparency of a strange format is no business of a video.
  for (std::size_t i = 3; i < static_cast<std::size_t>(target.stride) * static_cast<std::size_t>(frame.height); i += 4)
    target.bits[i] = 255;
  return true;
}

}  // namespace kinalyx
