#include "distribution/clips/WordPlates.h"

#include <algorithm>
#include <utility>

namespace kinalyx {
namespace {

constexpr int kPlateOpacity = 190;
constexpr Colour kPlateColour = Rgb(12, 16, 22);
constexpr Colour kLetterColour = Rgb(255, 255, 255);
constexpr std::string_view kDots = "\u2026";

}  // namespace

int PlateHeight(int letters) { return letters + letters / 3; }

int PlateWidth(std::string_view words, int letters) {
  return Canvas::TextSize(words, letters).x + PlateHeight(letters);
}

void PaintPlateAt(Canvas& canvas, POINTAPI corner, std::string_view words, int letters) {
  const int plate = PlateHeight(letters);
  const int wide = Canvas::TextSize(words, letters).x;
  const int left = corner.x + plate / 2;
  const int middle = corner.y + plate / 2;
  // A broad line with round ends.
  canvas.SetPen({.colour = kPlateColour, .width = plate, .style = 0, .opacity = kPlateOpacity});
  canvas.Line({left, middle}, {left + wide, middle});
  canvas.SetPen({.colour = kLetterColour, .width = 1, .style = 0});
  canvas.Text({left + wide / 2, middle}, words, letters);
}

std::vector<std::string> WrapWords(std::string_view text, int width, int letters, int most) {
  std::vector<std::string> lines;
  std::string line;
  const auto end = [&] {
    if (!line.empty()) lines.push_back(std::exchange(line, {}));
  };
  std::size_t at = 0;
  while (at < text.size() && static_cast<int>(lines.size()) <= most) {
    const std::size_t stop = std::min(text.find_first_of(" \t\r\n", at), text.size());
    const std::string word(text.substr(at, stop - at));
    if (!word.empty()) {
      const std::string longer = line.empty() ? word : line + " " + word;
      if (!line.empty() && PlateWidth(longer, letters) > width) {
        end();
        line = word;
      } else {
        line = longer;
      }
    }
    if (stop < text.size() && text[stop] == '\n') end();
    at = stop + 1;
  }
  end();
  if (static_cast<int>(lines.size()) > most) {
    lines.resize(static_cast<std::size_t>(most));
    lines.back() += kDots;
  }
  return lines;
}

}  // namespace kinalyx
