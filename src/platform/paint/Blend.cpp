#include "platform/paint/Blend.h"

#include <libyuv/planar_functions.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace kinalyx {
namespace {

/// A piece of the target that the edges of the two pictures do not cross.
struct Piece {
  int left;
  int top;
  int width;
  int height;
};

/// The pixel of a picture under a point of the target; null where the picture does not reach.
const std::uint8_t* At(const PlacedPicture& placed, int x, int y) {
  const int column = x - placed.left;
  const int row = y - placed.top;
  if (column < 0 || row < 0 || column >= placed.picture.Width() || row >= placed.picture.Height()) return nullptr;
  return placed.picture.Row(row) + static_cast<std::ptrdiff_t>(column) * 4;
}

/// The edges of both pictures along one side of the target, in order, with its own ends.
std::array<int, 6> Edges(int firstStart, int firstLength, int secondStart, int secondLength, int length) {
  std::array<int, 6> edges{0, firstStart, firstStart + firstLength, secondStart, secondStart + secondLength, length};
  for (int& edge : edges) edge = std::clamp(edge, 0, length);
  std::ranges::sort(edges);
  return edges;
}

void MixPiece(const PlacedPicture& under, const PlacedPicture& over, int alpha, const Piece& piece, Surface& target) {
  std::uint8_t* to = target.Row(piece.top) + static_cast<std::ptrdiff_t>(piece.left) * 4;
  const std::uint8_t* first = At(under, piece.left, piece.top);
  const std::uint8_t* second = At(over, piece.left, piece.top);
  // What does not reach here is black: the target itself stands in for it.
  if (!first || !second)
    libyuv::ARGBRect(target.Row(0), target.Stride(), piece.left, piece.top, piece.width, piece.height, 0xFF000000u);
  const int firstStride = first ? under.picture.Stride() : target.Stride();
  const int secondStride = second ? over.picture.Stride() : target.Stride();
  if (!first) first = to;
  if (!second) second = to;
  if (first == to && second == to) return;
  if (alpha <= 0) {
    if (first != to) libyuv::ARGBCopy(first, firstStride, to, target.Stride(), piece.width, piece.height);
  } else if (alpha >= 255) {
    if (second != to) libyuv::ARGBCopy(second, secondStride, to, target.Stride(), piece.width, piece.height);
  } else {
    // The library counts the weight in 256ths.
    libyuv::ARGBInterpolate(first, firstStride, second, secondStride, to, target.Stride(), piece.width, piece.height,
                            (alpha * 256 + 127) / 255);
  }
}

}  // namespace

void MixPictures(const PlacedPicture& under, const PlacedPicture& over, int alpha, Surface& target) {
  if (target.Empty()) return;
  const auto xs = Edges(under.left, under.picture.Width(), over.left, over.picture.Width(), target.Width());
  const auto ys = Edges(under.top, under.picture.Height(), over.top, over.picture.Height(), target.Height());
  for (std::size_t row = 0; row + 1 < ys.size(); ++row) {
    for (std::size_t column = 0; column + 1 < xs.size(); ++column) {
      const Piece piece{xs[column], ys[row], xs[column + 1] - xs[column], ys[row + 1] - ys[row]};
      if (piece.width > 0 && piece.height > 0) MixPiece(under, over, alpha, piece, target);
    }
  }
}

void CopyPart(const Surface& source, int x, int y, int width, int height, Surface& target, int toX, int toY) {
  const int skipX = std::max({0, -x, -toX});
  const int skipY = std::max({0, -y, -toY});
  width = std::min({width, source.Width() - x, target.Width() - toX}) - skipX;
  height = std::min({height, source.Height() - y, target.Height() - toY}) - skipY;
  if (width <= 0 || height <= 0) return;
  libyuv::ARGBCopy(source.Row(y + skipY) + static_cast<std::ptrdiff_t>(x + skipX) * 4, source.Stride(),
                   target.Row(toY + skipY) + static_cast<std::ptrdiff_t>(toX + skipX) * 4, target.Stride(), width,
                   height);
}

void ShiftLeft(Surface& surface, int columns) {
  if (columns < 1 || columns >= surface.Width()) return;
  const auto offset = static_cast<std::size_t>(columns) * 4;
  const auto bytes = static_cast<std::size_t>(surface.Stride()) - offset;
  for (int y = 0; y < surface.Height(); ++y) std::memmove(surface.Row(y), surface.Row(y) + offset, bytes);
}

DissolvePattern createDissolveBrush(int level) {
  // Each level has about two thirds of the pixels of the one before, and all of them lie in it.
  static constexpr std::array<DissolvePattern, kDissolveLevels> kRows{{
      {255, 255, 255, 255, 255, 255, 255, 255},
      {85, 255, 85, 255, 85, 255, 85, 255},
      {85, 170, 85, 170, 85, 170, 85, 170},
      {85, 34, 85, 136, 85, 34, 85, 136},
      {85, 0, 85, 0, 85, 0, 85, 0},
      {68, 0, 17, 0, 68, 0, 17, 0},
      {0, 0, 0, 0, 0, 0, 0, 0},
  }};
  return kRows[static_cast<std::size_t>(std::clamp(level, 0, kDissolveLevels - 1))];
}

void DissolveOver(const Surface& picture, const DissolvePattern& pattern, Surface& target) {
  if (picture.Width() != target.Width() || picture.Height() != target.Height()) return;
  for (int y = 0; y < target.Height(); ++y) {
    const int bits = pattern[static_cast<std::size_t>(y % 8)];
    std::array<std::uint32_t, 8> keep;  // all bits set where the target's pixel stays
    for (int x = 0; x < 8; ++x) keep[static_cast<std::size_t>(x)] = (bits >> (7 - x) & 1) != 0 ? 0 : 0xFFFFFFFFu;
    const std::uint8_t* from = picture.Row(y);
    std::uint8_t* to = target.Row(y);
    for (int x = 0; x < target.Width(); ++x) {
      std::uint32_t over;
      std::uint32_t under;
      std::memcpy(&over, from + static_cast<std::ptrdiff_t>(x) * 4, 4);
      std::memcpy(&under, to + static_cast<std::ptrdiff_t>(x) * 4, 4);
      const std::uint32_t mask = keep[static_cast<std::size_t>(x % 8)];
      under = (under & mask) | (over & ~mask);
      std::memcpy(to + static_cast<std::ptrdiff_t>(x) * 4, &under, 4);
    }
  }
}

}  // namespace kinalyx
