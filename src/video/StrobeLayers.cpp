#include "video/StrobeLayers.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace kinalyx {
namespace {

/// The first pixel of each row stays as it is.
constexpr int kFirstColumn = 3;

// The row loops have no branch that depends on a pixel, so that the compiler turns them into vector code.

void AddRow(const std::uint8_t* __restrict scene, const std::uint8_t* __restrict picture,
            std::uint8_t* __restrict touched, std::uint8_t* __restrict sum, int count) {
  for (int c = 0; c < count; ++c) {
    const std::uint8_t a = scene[c];
    const std::uint8_t b = picture[c];
    const std::uint8_t old = sum[c];
    const auto difference = static_cast<std::uint8_t>(std::max(a, b) - std::min(a, b));
    // Each part is cut off on its own.
    const auto blend = static_cast<std::uint8_t>(a / 3 + b / 3 + old / 3);
    const auto moved = static_cast<std::uint8_t>(difference > StrobeLayers::kNoise ? 255 : 0);
    const std::uint8_t pose = touched[c] ? blend : b;
    sum[c] = moved ? pose : old;
    touched[c] = static_cast<std::uint8_t>(touched[c] | moved);
  }
}

void AddRowAgainstBackground(const std::array<const std::uint8_t*, 4>& scenes, const std::uint8_t* __restrict picture,
                             std::uint8_t* __restrict sum, int count) {
  const std::uint8_t* __restrict s1 = scenes[0];
  const std::uint8_t* __restrict s2 = scenes[1];
  const std::uint8_t* __restrict s3 = scenes[2];
  const std::uint8_t* __restrict s4 = scenes[3];
  for (int c = 0; c < count; ++c) {
    const int b = picture[c];
    const int old = sum[c];
    const int b1 = s1[c], b2 = s2[c], b3 = s3[c], b4 = s4[c];
    const int all = b1 + b2 + b3 + b4;
    // The distance of each from the other three; the first of equal ones counts as the odd one out.
    int odd = b1;
    int most = std::abs(4 * b1 - all);
    const int d2 = std::abs(4 * b2 - all), d3 = std::abs(4 * b3 - all), d4 = std::abs(4 * b4 - all);
    odd = d2 > most ? b2 : odd;
    most = std::max(most, d2);
    odd = d3 > most ? b3 : odd;
    most = std::max(most, d3);
    odd = d4 > most ? b4 : odd;
    const int background = (all - odd) / 3;
    const bool keep = std::abs(old - b) > StrobeLayers::kNoise && std::abs(background - b) <= StrobeLayers::kNoise;
    sum[c] = static_cast<std::uint8_t>(keep ? old : b);
  }
}

}  // namespace

FieldRows StrobeRows(int height, bool currentField) {
  const int lastRow = height - 1;
  return currentField ? FieldRows{2, lastRow - 2 - 2} : FieldRows{1, lastRow - 1 - 2};
}

StrobeLayers::StrobeLayers(RowShape shape)
    : shape_(shape), touched_(static_cast<std::size_t>(shape.rowBytes) * static_cast<std::size_t>(shape.height), 0) {}

void StrobeLayers::Add(const std::uint8_t* reference, const std::uint8_t* picture, bool currentField,
                       std::uint8_t* sum) {
  const FieldRows rows = StrobeRows(shape_.height, currentField);
  for (int row = rows.first; row <= rows.last; row += 2) {
    const std::ptrdiff_t at = std::ptrdiff_t{row} * shape_.rowBytes + kFirstColumn;
    AddRow(reference + at, picture + at, touched_.data() + at, sum + at, shape_.rowBytes - kFirstColumn);
  }
}

void AddAgainstBackground(RowShape shape, const std::array<const std::uint8_t*, 4>& scenes, const std::uint8_t* picture,
                          bool currentField, std::uint8_t* sum) {
  const FieldRows rows = StrobeRows(shape.height, currentField);
  for (int row = rows.first; row <= rows.last; row += 2) {
    const std::ptrdiff_t at = std::ptrdiff_t{row} * shape.rowBytes + kFirstColumn;
    AddRowAgainstBackground({scenes[0] + at, scenes[1] + at, scenes[2] + at, scenes[3] + at}, picture + at, sum + at,
                            shape.rowBytes - kFirstColumn);
  }
}

}  // namespace kinalyx
