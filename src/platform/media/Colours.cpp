#include "platform/media/Colours.h"

#include <cstring>

namespace kinalyx {
namespace {

/// A value that is none of its type's must not even be looked at as one.
template <typename Enum>
void MakeKnown(Enum& value, int count, Enum otherwise) {
  int number = 0;
  static_assert(sizeof number == sizeof value);
  std::memcpy(&number, &value, sizeof number);
  if (number < 0 || number >= count) value = otherwise;
}

}  // namespace

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

Matrix MatrixOf(const AVFrame& frame) {
  switch (frame.colorspace) {
    case AVCOL_SPC_BT709:
    case AVCOL_SPC_SMPTE240M: return Matrix::Hd;
    case AVCOL_SPC_BT2020_NCL:
    case AVCOL_SPC_BT2020_CL: return Matrix::Wide;
    case AVCOL_SPC_UNSPECIFIED: break;
    default: return Matrix::Tape;
  }
  if (frame.color_primaries == AVCOL_PRI_BT2020) return Matrix::Wide;
  return frame.height >= 720 && !IsFullRange(frame) ? Matrix::Hd : Matrix::Tape;
}

bool HasFieldsApart(const AVFrame& frame) { return frame.interlaced_frame && frame.height % 4 == 0; }

void SettleColours(AVFrame& frame) {
  MakeKnown(frame.colorspace, AVCOL_SPC_NB, AVCOL_SPC_UNSPECIFIED);
  MakeKnown(frame.color_primaries, AVCOL_PRI_NB, AVCOL_PRI_UNSPECIFIED);
  MakeKnown(frame.color_trc, AVCOL_TRC_NB, AVCOL_TRC_UNSPECIFIED);
  MakeKnown(frame.color_range, AVCOL_RANGE_NB, AVCOL_RANGE_UNSPECIFIED);
  if (frame.colorspace == AVCOL_SPC_UNSPECIFIED) NameMatrix(frame, MatrixOf(frame));
}

void NameMatrix(AVFrame& frame, Matrix matrix) {
  switch (matrix) {
    case Matrix::Tape: frame.colorspace = AVCOL_SPC_SMPTE170M; break;
    case Matrix::Hd: frame.colorspace = AVCOL_SPC_BT709; break;
    case Matrix::Wide: frame.colorspace = AVCOL_SPC_BT2020_NCL; break;
  }
}

}  // namespace kinalyx
