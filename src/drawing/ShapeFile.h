#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "drawing/Shape.h"
#include "platform/files/Result.h"

namespace kinalyx {

// The form in which shapes stand in files. Integers are little-endian, booleans 16 bits of 0 or -1.

/// Takes one shape body (NumBound to Colour) off the front of `bytes`. Bytes that are missing read as
/// zeros; a count that promises more points than the rest can hold gives those that are there. The shape
/// that comes out is sound: its counts lie between 0 and its points.
Shape ReadShapeBody(std::span<const std::uint8_t>& bytes);
/// Appends one shape body.
void WriteShapeBody(const Shape& shape, std::vector<std::uint8_t>& bytes);

/// What a shape file holds: lists, and behind them perhaps a name for each.
struct ShapeFileContent {
  int lowerBound = 0;  ///< number of the first list
  std::vector<ShapeList> Lists;
  std::vector<std::string> Names;  ///< UTF-8
};

/// The file counts its lists in one byte, from 0.
constexpr int kMostShapeLists = 256;
/// The length of a file is held in 16 bits, signed, by whoever reads one: beyond this it is not read whole.
constexpr std::size_t kShapeFileLimit = 32767;

/// Size of the screen in twips. Half of it is the canvas of records that store none.
struct ScreenTwips {
  int width = 0;
  int height = 0;
};

/// Reads a file as the 16-bit length has it: one of 32768 bytes or more ends after its first record or
/// wherever the wrapped length says, one of a multiple of 65536 bytes is empty. False, with `content` as it
/// was, when the file is empty or does not begin as a shape file.
bool ReadShapeFile(std::span<const std::uint8_t> bytes, ScreenTwips screen, ShapeFileContent& content);

/// True when nothing in a file is missing, out of its range, unknown or left over: what is read of it, written
/// again, gives the same bytes.
bool ComesOutEven(std::span<const std::uint8_t> bytes);

/// The bytes of a file: all lists from `lowerBound` on, then the names when there are any. Lists whose
/// number does not fit into a byte are left out. A caller that stores the bytes minds kShapeFileLimit.
std::vector<std::uint8_t> WriteShapeFile(const ShapeFileContent& content);

// The drawings of all windows under a name, and those of one window beside its video.

/// Stores all eight lists.
Outcome SaveShapeList(const std::string& path, const ShapeLists& lists);
/// Reads all eight lists back; a missing or foreign file leaves them as they are, with false.
bool LoadShapeList(const std::string& path, ScreenTwips screen, ShapeLists& lists);
/// Stores one list beside a video, under its name with ".dat"; a list without shapes leaves no file.
Outcome SaveVideoSL(const std::string& videoPath, const ShapeList& list);
bool LoadVideoSL(const std::string& videoPath, ScreenTwips screen, ShapeList& list);

}  // namespace kinalyx
