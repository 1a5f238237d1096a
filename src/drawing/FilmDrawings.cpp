#include "drawing/FilmDrawings.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "drawing/ShapeHistory.h"

namespace kinalyx {
namespace {

constexpr int kFull = 255;

std::int16_t Grown(int pixels, double by) {
  return static_cast<std::int16_t>(
      std::clamp<long>(std::lround(pixels * by), 1, std::numeric_limits<std::int16_t>::max()));
}

}  // namespace

void FilmPainter::Fit(const FilmPlace& place) {
  if (fitted_ == place) return;
  fitted_ = place;
  grown_ = film_.Scale.Height > 0 ? static_cast<double>(place.Height) / film_.Scale.Height : 1;
  seen_.clear();
  shapes_.clear();
  colours_.clear();
  for (const ExactDrawing& drawing : film_.Drawings) {
    const DrawnShapes drawn{{drawing.Shape}, {drawing.Width, drawing.Height, false}};
    seen_.push_back(drawn.In({film_.Scale.Width, film_.Scale.Height, place.Mirrored}).front());
    shapes_.push_back(drawn.In({place.Width, place.Height, place.Mirrored}).front());
    Shape& shape = shapes_.back();
    // Letters have grown with the picture.
    if (!IsText(shape) && shape.Width > 0) shape.Width = Grown(shape.Width, grown_);
    const std::size_t points = PointsOf(shape).size();
    for (POINTAPI& point : std::span(shape.Pts).first(points)) point = {point.x + place.Left, point.y + place.Top};
    colours_.push_back(shape.Colour);
  }
  look_ = film_.Look;
  look_.CadWidth = Grown(look_.CadWidth, grown_);
}

void FilmPainter::Paint(Surface& surface, const FilmPlace& place, int frame, const PathTime& now) {
  if (surface.Empty()) return;
  Fit(place);
  opacities_.clear();
  if (!std::ranges::all_of(shapes_, [](const Shape& shape) { return shape.Time.Always(); }))
    for (const Shape& shape : shapes_) opacities_.push_back(static_cast<std::uint8_t>(shape.Time.OpacityOn(frame)));
  Canvas canvas(surface);
  canvas.SetPen({.width = look_.CadWidth});
  painter_.Paint(canvas, shapes_, colours_, film_.Grid, look_, opacities_);
  if (!film_.Labels) return;

  MeasureScale scale = film_.Scale;
  scale.Now = now;
  std::vector<ShapeLabel> labels;
  const auto grown = [this](int pixels) { return static_cast<int>(std::lround(pixels * grown_)); };
  for (std::size_t i = 0; i < seen_.size(); ++i) {
    if (!HasLabel(seen_[i]) || (!opacities_.empty() && opacities_[i] < kFull)) continue;
    auto label = LabelOf(seen_[i], scale, &film_.Drawings[i]);
    if (!label) continue;
    label->Middle = {grown(label->Middle.x) + place.Left, grown(label->Middle.y) + place.Top};
    labels.push_back(std::move(*label));
  }
  labels_.Paint(canvas, labels, LabelPainter::LettersFor(film_.Scale.Height) * grown_);
}

}  // namespace kinalyx
