#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace kinalyx {

/// How the rows of 24-bit pictures lie in memory, bottom row first.
struct RowShape {
  int rowBytes = 0;
  int height = 0;
};

/// The rows of a field in which a compositor works: every second one from `first` up to `last`. With
/// `currentField` the field of rows 0, 2, 4 and so on, else that of 1, 3, 5.
struct FieldRows {
  int first = 0;
  int last = 0;
};
FieldRows StrobeRows(int height, bool currentField);

/// Lays the moving parts of later pictures over a start picture, so that a movement appears as a chain
/// of poses. What differs from a reference picture of the scene by more than camera noise has moved;
/// where poses fall on each other, scene and poses are blended.
class StrobeLayers {
 public:
  /// Differences of a colour up to this are noise.
  static constexpr int kNoise = 20;

  /// Begins a strobe: no place has been touched yet.
  explicit StrobeLayers(RowShape shape);
  /// Adds what moves in `picture` against `reference` to `sum`. All blocks have the shape's size.
  void Add(const std::uint8_t* reference, const std::uint8_t* picture, bool currentField, std::uint8_t* sum);

 private:
  RowShape shape_;
  std::vector<std::uint8_t> touched_;  ///< 255 where a pose stands
};

/// The same against a background that is estimated from four pictures spread over the video, of which
/// the one that stands out most at a place is left out: what does not look like the background is laid
/// over `sum`.
void AddAgainstBackground(RowShape shape, const std::array<const std::uint8_t*, 4>& scenes, const std::uint8_t* picture,
                          bool currentField, std::uint8_t* sum);

}  // namespace kinalyx
