#include "platform/media/Colours.h"

namespace kinalyx {

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

void NameMatrix(AVFrame& frame, Matrix matrix) {
  switch (matrix) {
    case Matrix::Tape: frame.colorspace = AVCOL_SPC_SMPTE170M; break;
    case Matrix::Hd: frame.colorspace = AVCOL_SPC_BT709; break;
    case Matrix::Wide: frame.colorspace = AVCOL_SPC_BT2020_NCL; break;
  }
}

}  // namespace kinalyx
