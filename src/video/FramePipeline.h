#pragma once

#include <cstdint>
#include <span>

namespace kinalyx {

/// The header of frames as the decoder delivers them: rows bottom first, each padded to 4 bytes.
struct FormatHeader {
  int size = 0;  ///< 40 once a frame has been read
  int width = 0;
  int height = 0;
  int planes = 0;
  int bitCount = 0;
  int compression = 0;
  std::int64_t imageSize = 0;  ///< bytes of all rows
};

/// Bytes from one row to the next, or 0 for a bit count other than 1, 2, 4, 8, 16, 24 and 32.
int ScanLineBytes(int width, int bitCount);

/// Copies the rows of one field of a frame to the same rows of `target`; the others keep what they
/// held. Rows count from the bottom of the picture: `currentField` takes 0, 2, 4 and so on, else 1, 3, 5.
/// Both blocks hold at least `height` rows of `rowBytes`.
void CopyField(const std::uint8_t* frame, int rowBytes, int height, bool currentField, std::uint8_t* target);

/// Rebuilds the rows that CopyField did not write, as the mean of the row above and the row below, so
/// that one field looks like a whole picture. Bytes 0 to `lastColumn` of rows `firstRow`, `firstRow` + 2
/// and so on up to `lastRow`.
void smooth(std::uint8_t* rows, int rowBytes, int firstRow, int lastColumn, int lastRow);

/// The field rule of `smooth`: which rows are rebuilt in a picture of `height` rows after the field
/// `currentField` was copied. The outermost missing row, which has one neighbour only, is a copy of it.
void SoftenField(std::uint8_t* rows, int rowBytes, int height, bool currentField);

/// CopyField and SoftenField in one go, which reads and writes each row while the processor has it at hand.
void CopySoftField(const std::uint8_t* frame, int rowBytes, int height, bool currentField, std::uint8_t* target);

/// Pushes the contrast of a field: bytes above 128 are raised by `highAmount`, all others lowered by
/// `lowAmount`. A byte that would leave the range stays what it was. The first pixel of each row and
/// the outermost rows are left out.
void EnhanceField(std::uint8_t* rows, int rowBytes, int height, bool currentField, double highAmount, double lowAmount);

}  // namespace kinalyx
