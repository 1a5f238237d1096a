// Reads any bytes as a file of shape lists; what was read must be written in a form that reads the same.

#include <algorithm>
#include <span>

#include "InputFile.h"
#include "drawing/ShapeFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  using namespace kinalyx;
  const ScreenTwips screen{28800, 16200};
  ShapeFileContent content;
  if (!ReadShapeFile(std::span(bytes, count), screen, content)) return 0;
  const std::vector<std::uint8_t> written = WriteShapeFile(content);
  if (written.size() > kShapeFileLimit) return 0;
  ShapeFileContent again;
  fuzz::Require(ReadShapeFile(written, screen, again));
  if (content.lowerBound >= 0) fuzz::Require(ComesOutEven(written));
  const std::size_t lists = std::min(content.Lists.size(), again.Lists.size());
  for (std::size_t i = 0; i < lists; ++i) fuzz::Require(again.Lists[i].NumShapes == content.Lists[i].NumShapes);
  return 0;
}
