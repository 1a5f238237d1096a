#include "drawing/LabelPainter.h"

#include <algorithm>
#include <utility>

namespace kinalyx {
namespace {

constexpr int kLeastFigures = 14;  // pixels of a line of figures, in a small picture
constexpr int kMostFigures = 19;
constexpr int kLinesOfPicture = 25;  // as many as a picture is high between
constexpr int kMargin = 4;           // of a plate, above and below together
constexpr int kPlateOpacity = 190;
constexpr Colour kPlateColour = Rgb(12, 16, 22);
constexpr Colour kLetterColour = Rgb(255, 255, 255);

void PaintPlate(Canvas& canvas, const ShapeLabel& label, int letters) {
  const Surface& surface = canvas.Target();
  const int plate = letters + kMargin;
  const int half = Canvas::TextSize(label.Text, letters).x / 2;
  const int edge = half + plate / 2;
  const auto inside = [](int value, int margin, int limit) {
    return std::clamp(value, std::min(margin, limit / 2), std::max(limit - margin, limit / 2));
  };
  const POINTAPI middle{inside(label.Middle.x, edge, surface.Width()),
                        inside(label.Middle.y, plate / 2 + 1, surface.Height())};
  // A broad line with round ends is a plate.
  canvas.SetPen({.colour = kPlateColour, .width = plate, .style = 0, .opacity = kPlateOpacity});
  canvas.Line({middle.x - half, middle.y}, {middle.x + half, middle.y});
  canvas.SetPen({.colour = kLetterColour, .width = 1, .style = 0});
  canvas.Text(middle, label.Text, letters);
}

}  // namespace

int LabelPainter::LettersFor(int height) { return std::clamp(height / kLinesOfPicture, kLeastFigures, kMostFigures); }

void LabelPainter::Paint(Canvas& canvas, std::span<const ShapeLabel> labels, double letters) {
  Surface& surface = canvas.Target();
  if (surface.Empty()) return;
  const int size = letters > 0 ? std::max(1, static_cast<int>(letters)) : LettersFor(surface.Height());
  if (surface.Width() != width_ || surface.Height() != height_ || size != letters_) plates_.clear();
  letters_ = size;
  width_ = surface.Width();
  height_ = surface.Height();
  plates_.resize(labels.size());
  for (std::size_t i = 0; i < labels.size(); ++i) {
    Plate& plate = plates_[i];
    if (plate.label != labels[i] || plate.layer.Empty()) {
      // What was removed before it has moved the others up: their plates are still there.
      const auto kept = std::find_if(plates_.begin() + static_cast<std::ptrdiff_t>(i), plates_.end(),
                                     [&](const Plate& other) { return other.label == labels[i]; });
      if (kept != plates_.end() && !kept->layer.Empty()) {
        std::swap(plate, *kept);
      } else {
        plate.label = labels[i];
        plate.layer = Layer::Record(width_, height_, [&](Canvas& on) { PaintPlate(on, labels[i], size); });
      }
    }
    plate.layer.LayOver(surface);
  }
}

}  // namespace kinalyx
