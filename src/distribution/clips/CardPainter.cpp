#include "distribution/clips/CardPainter.h"

#include <algorithm>

#include "platform/paint/Blend.h"
#include "platform/paint/Canvas.h"
#include "platform/paint/ImageFiles.h"

namespace kinalyx {
namespace {

constexpr Colour kGround = Rgb(18, 22, 28);
constexpr Colour kLetters = Rgb(240, 243, 246);
constexpr int kLines = 18;     // of letters between top and foot
constexpr int kLogoShare = 3;  // of the smaller side
constexpr double kLeading = 1.5;

}  // namespace

void PaintCard(const std::vector<std::string>& lines, const std::string& logoPath, Surface& target) {
  target.Clear(kGround);
  const int width = target.Width();
  const int side = std::min(width, target.Height());
  int letters = std::max(8, side / kLines);
  for (const std::string& line : lines)
    while (letters > 8 && Canvas::TextSize(line, letters).x > width * 9 / 10) --letters;
  const int leading = static_cast<int>(letters * kLeading);

  Surface logo;
  if (!logoPath.empty())
    if (auto loaded = LoadPicture(logoPath, side / kLogoShare, kGround)) logo = std::move(*loaded);
  const int gap = logo.Empty() || lines.empty() ? 0 : leading;
  int y = (target.Height() - logo.Height() - gap - leading * static_cast<int>(lines.size())) / 2;
  if (!logo.Empty()) CopyPart(logo, 0, 0, logo.Width(), logo.Height(), target, (width - logo.Width()) / 2, y);
  y += logo.Height() + gap;
  Canvas canvas(target);
  canvas.SetPen({.colour = kLetters, .width = 1, .style = 0});
  for (const std::string& line : lines) {
    canvas.Text({width / 2, y + leading / 2}, line, letters);
    y += leading;
  }
}

}  // namespace kinalyx
