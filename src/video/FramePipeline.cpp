#include "video/FramePipeline.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>

namespace kinalyx {
namespace {

std::uint8_t* Row(std::uint8_t* rows, int rowBytes, int row) {
  return rows + static_cast<std::ptrdiff_t>(row) * rowBytes;
}

void MeanOfRows(const std::uint8_t* below, const std::uint8_t* above, std::uint8_t* target, int count) {
  for (int c = 0; c < count; ++c) target[c] = static_cast<std::uint8_t>((below[c] + above[c] + 1) >> 1);
}

std::uint8_t Enhanced(int value, double highAmount, double lowAmount) {
  const double pushed = value > 128 ? value + highAmount : value - lowAmount;
  const bool inRange = value > 128 ? pushed < 256 : pushed > 0;
  const double rounded = std::nearbyint(pushed);
  return static_cast<std::uint8_t>(inRange && rounded >= 0 && rounded <= 255 ? rounded : value);
}

}  // namespace

int ScanLineBytes(int width, int bitCount) {
  switch (bitCount) {
    case 1: return (width / 8 + 3) & ~3;
    case 2: return (width / 4 + 3) & ~3;
    case 4: return (width / 2 + 3) & ~3;
    case 8: return (width + 3) & ~3;
    case 16: return (2 * width + 3) & ~3;
    case 24: return (3 * width + 3) & ~3;
    case 32: return 4 * width;
    default: return 0;
  }
}

void CopyField(const std::uint8_t* frame, int rowBytes, int height, bool currentField, std::uint8_t* target) {
  for (int row = currentField ? 0 : 1; row <= height - 1; row += 2) {
    const auto offset = static_cast<std::ptrdiff_t>(row) * rowBytes;
    std::memcpy(target + offset, frame + offset, static_cast<std::size_t>(rowBytes));
  }
}

void smooth(std::uint8_t* rows, int rowBytes, int firstRow, int lastColumn, int lastRow) {
  for (int row = firstRow; row <= lastRow; row += 2)
    MeanOfRows(Row(rows, rowBytes, row - 1), Row(rows, rowBytes, row + 1), Row(rows, rowBytes, row), lastColumn + 1);
}

void SoftenField(std::uint8_t* rows, int rowBytes, int height, bool currentField) {
  const int lastRow = height - 1;
  const int missing = currentField ? 1 : 0;  // the lowest row that was not copied
  if (height < 2) return;
  // The rule proper begins at row 3 or 2. Row 1 (or 0) would keep an older picture for good, and so
  // would a missing row at the top: they are taken from the written rows beside them.
  if (missing == 1 && height > 2) {
    smooth(rows, rowBytes, 1, rowBytes - 1, 1);
  } else {
    std::memcpy(Row(rows, rowBytes, missing), Row(rows, rowBytes, 1 - missing), static_cast<std::size_t>(rowBytes));
  }
  smooth(rows, rowBytes, missing + 2, rowBytes - 1, lastRow - 1);
  if (lastRow >= 2 && lastRow % 2 == missing)
    std::memcpy(Row(rows, rowBytes, lastRow), Row(rows, rowBytes, lastRow - 1), static_cast<std::size_t>(rowBytes));
}

void CopySoftField(const std::uint8_t* frame, int rowBytes, int height, bool currentField, std::uint8_t* target) {
  const int first = currentField ? 0 : 1;
  const auto bytes = static_cast<std::size_t>(rowBytes);
  int last = -1;  // the row that was copied last
  for (int row = first; row < height; row += 2) {
    std::uint8_t* const copied = Row(target, rowBytes, row);
    std::memcpy(copied, frame + static_cast<std::ptrdiff_t>(row) * rowBytes, bytes);
    if (last >= 0) MeanOfRows(Row(target, rowBytes, last), copied, Row(target, rowBytes, row - 1), rowBytes);
    else if (row == 1) std::memcpy(target, copied, bytes);
    last = row;
  }
  if (last >= 0 && last < height - 1)
    std::memcpy(Row(target, rowBytes, height - 1), Row(target, rowBytes, last), bytes);
}

void EnhanceField(std::uint8_t* rows, int rowBytes, int height, bool currentField, double highAmount,
                  double lowAmount) {
  std::array<std::uint8_t, 256> table;
  for (int value = 0; value < 256; ++value)
    table[static_cast<std::size_t>(value)] = Enhanced(value, highAmount, lowAmount);
  const int first = currentField ? 2 : 1;
  const int last = height - 1 - (currentField ? 2 : 1) - 2;
  for (int row = first; row <= last; row += 2) {
    std::uint8_t* bytes = Row(rows, rowBytes, row);
    for (int c = 3; c < rowBytes; ++c) bytes[c] = table[bytes[c]];
  }
}

}  // namespace kinalyx
