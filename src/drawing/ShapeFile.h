#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "drawing/Shape.h"

namespace kinalyx {

// The form in which shapes stand in files. Integers are little-endian, booleans 16 bits of 0 or -1.

/// Takes one shape body (NumBound to Colour) off the front of `bytes`. Bytes that are missing read as
/// zeros; a count that promises more points than the rest can hold gives those that are there. The shape
/// that comes out is sound: its counts never exceed its points.
Shape ReadShapeBody(std::span<const std::uint8_t>& bytes);
/// Appends one shape body.
void WriteShapeBody(const Shape& shape, std::vector<std::uint8_t>& bytes);

/// What a shape file holds: the lists, and behind them perhaps the names of macros.
struct ShapeFileContent {
  std::vector<ShapeList> Lists;
  std::vector<std::string> MacroNames;  ///< UTF-8, in the order of the lists
  int lowerBound = 0;                   ///< number of the first list
};

/// The largest file that other programs read whole.
constexpr std::size_t kShapeFileLimit = 32767;

/// Half the screen in twips stands in for the canvas size of records that have none.
struct ScreenTwips {
  int width = 0;
  int height = 0;
};

/// Reads a container. False when it is empty or does not begin as one; `content` stands then. Files
/// beyond kShapeFileLimit end where the 16-bit length that they were made with says, unless they were
/// written whole by this program: then all is read.
bool ReadShapeFile(std::span<const std::uint8_t> bytes, ScreenTwips screen, ShapeFileContent& content);
/// The bytes of a container. `names` writes the block of macro names also when it is empty.
std::vector<std::uint8_t> WriteShapeFile(const ShapeFileContent& content, bool names);

}  // namespace kinalyx
