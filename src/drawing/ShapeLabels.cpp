#include "drawing/ShapeLabels.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <span>
#include <utility>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr double kDegrees = 180 / std::numbers::pi;
constexpr double kMetresPerInch = 0.0254;
constexpr double kBeside = 20;     // pixels from a line to the middle of its figures above it
constexpr double kLetter = 9;      // and about so wide is each of them
constexpr double kInAngle = 38;    // from a corner into the angle, at least
constexpr double kHalfPlate = 28;  // and so far that the figures of a sharp one find room
constexpr double kDeepest = 90;
constexpr double kHalfSpeeds = 84;  // about half as wide are two speeds
constexpr double kFarEnough = 12;   // pixels between a path and its figures; more is no better

struct Way {
  double x = 0;
  double y = 0;

  double Length() const { return std::hypot(x, y); }
};

Way From(POINTAPI a, POINTAPI b) { return {static_cast<double>(b.x) - a.x, static_cast<double>(b.y) - a.y}; }

POINTAPI At(double x, double y) {
  return {static_cast<std::int32_t>(std::lround(x)), static_cast<std::int32_t>(std::lround(y))};
}

/// Three figures, as many as a hand on a picture can mean.
std::string Figures(double value) {
  const int decimals = value < 9.995 ? 2 : value < 99.95 ? 1 : 0;
  return fmt::format("{:.{}f}", value, decimals);
}

/// The points of a drawing as they were drawn, in true pixels of the picture that is shown.
class Measured {
 public:
  Measured(const Shape& shape, int width, int height, const MeasureScale& scale) : points_(PointsOf(shape)) {
    if (width <= 0 || height <= 0 || scale.Width <= 0 || scale.Height <= 0) return;
    down_ = static_cast<double>(scale.Height) / height;
    across_ = (scale.Proportion > 0 ? scale.Height * scale.Proportion : scale.Width) / width;
  }

  Way Between(std::size_t from, std::size_t to) const {
    const Way way = From(points_[from], points_[to]);
    return {way.x * across_, way.y * down_};
  }
  std::size_t Count() const { return points_.size(); }

 private:
  std::span<const POINTAPI> points_;
  double across_ = 1;
  double down_ = 1;
};

std::optional<ShapeLabel> LineLabel(std::span<const POINTAPI> points, const Measured& measured,
                                    const MeasureScale& scale) {
  const Way seen = From(points[0], points[1]);
  const Way way = measured.Between(0, 1);
  if (seen.Length() == 0 || way.Length() == 0) return std::nullopt;
  const double level = std::atan2(std::abs(way.y), std::abs(way.x)) * kDegrees;
  std::string text = fmt::format("{:.1f}°", scale.FromUpright ? 90 - level : level);
  if (scale.PixelsPerInch > 0) text = LengthLabel(way.Length() / scale.PixelsPerInch, scale.Unit) + "  " + text;
  // Above the line; beside one that stands.
  double x = seen.y / seen.Length(), y = -seen.x / seen.Length();
  if (y > 0 || (y == 0 && x < 0)) x = -x, y = -y;
  const double aside = kBeside + kLetter / 2 * static_cast<double>(text.size());
  return ShapeLabel{At((points[0].x + points[1].x) / 2.0 + x * aside, (points[0].y + points[1].y) / 2.0 + y * kBeside),
                    std::move(text)};
}

std::optional<ShapeLabel> AngleLabel(std::span<const POINTAPI> points, const Measured& measured) {
  const Way a = From(points[1], points[0]);
  const Way b = From(points[1], points[2]);
  if (a.Length() == 0 || b.Length() == 0) return std::nullopt;
  const Way one = measured.Between(1, 0);
  const Way other = measured.Between(1, 2);
  const double opening =
      std::abs(std::atan2(one.x * other.y - one.y * other.x, one.x * other.x + one.y * other.y)) * kDegrees;
  Way middle{a.x / a.Length() + b.x / b.Length(), a.y / a.Length() + b.y / b.Length()};
  if (middle.Length() < 1e-6) middle = {-a.y, a.x};  // a straight angle opens to either side
  const double half = std::max(0.01, std::sin(opening / kDegrees / 2));
  const double far = std::clamp(kHalfPlate / half, kInAngle, kDeepest) / middle.Length();
  return ShapeLabel{At(points[1].x + middle.x * far, points[1].y + middle.y * far), fmt::format("{:.1f}°", opening)};
}

/// The step of a path that ends, or for the first point begins, at the position that is shown; else its last one.
std::size_t StepNow(const Shape& path, std::size_t points, const std::optional<PathTime>& now) {
  const std::size_t last = points - 1;
  if (!path.Steps || !now) return last;
  std::int64_t shown = now->First;
  if (now->Fields && !path.Steps->Fields) shown /= 2;
  if (!now->Fields && path.Steps->Fields) shown *= 2;
  const std::int64_t point = shown - path.Steps->First;
  return point >= 0 && point <= static_cast<std::int64_t>(last) ? std::max<std::size_t>(1, point) : last;
}

/// A place for figures about so wide beside the end of a path: of those round it the one that is farthest from the
/// path, when it has been moved into the picture.
POINTAPI BesidePath(std::span<const POINTAPI> points, const MeasureScale& scale) {
  const auto inside = [](double value, double margin, int limit) {
    return limit > 2 * margin ? std::clamp(value, margin, limit - margin) : value;
  };
  const POINTAPI end = points.back();
  POINTAPI best = end;
  double farthest = -1;
  for (const Way& to : {Way{0, -2}, Way{1, 0}, Way{-1, 0}, Way{0, 2}, Way{1, -1}, Way{-1, -1}, Way{1, 1}, Way{-1, 1}}) {
    const double x = inside(end.x + to.x * (kHalfSpeeds + kBeside), kHalfSpeeds, scale.Width);
    const double y = inside(end.y + to.y * kBeside, kBeside / 2, scale.Height);
    double nearest = kFarEnough;
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
      for (const double part : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        const double dx = std::abs(std::lerp(points[i].x, points[i + 1].x, part) - x) - kHalfSpeeds;
        const double dy = std::abs(std::lerp(points[i].y, points[i + 1].y, part) - y) - kBeside / 2;
        nearest = std::min(nearest, std::max(dx, dy));
      }
    if (nearest <= farthest) continue;
    farthest = nearest;
    best = At(x, y);
  }
  return best;
}

std::optional<ShapeLabel> PathLabel(const Shape& path, std::span<const POINTAPI> points, const Measured& measured,
                                    const MeasureScale& scale) {
  if (scale.PixelsPerInch <= 0 || scale.PerSecond <= 0) return std::nullopt;
  double perSecond = scale.PerSecond;
  if (path.Steps && scale.Now && path.Steps->Fields != scale.Now->Fields) perSecond *= path.Steps->Fields ? 2 : 0.5;
  const auto speed = [&](std::size_t step) {
    return measured.Between(step - 1, step).Length() / scale.PixelsPerInch * perSecond;
  };
  double greatest = 0;
  for (std::size_t step = 1; step < points.size(); ++step) greatest = std::max(greatest, speed(step));
  std::string text = SpeedLabel(speed(StepNow(path, points.size(), scale.Now)), scale);
  if (points.size() > 2) text = Tr("{}  max {}", text, SpeedLabel(greatest, scale));
  return ShapeLabel{BesidePath(points, scale), std::move(text)};
}

}  // namespace

std::string LengthLabel(double inches, int unit) {
  switch (unit) {
    case kFeet: return Figures(inches / 12) + " ft";
    case kCentimetres: return Figures(inches * kMetresPerInch * 100) + " cm";
    case kMetres: return Figures(inches * kMetresPerInch) + " m";
    default: return Figures(inches) + " in";
  }
}

std::string SpeedLabel(double inchesPerSecond, const MeasureScale& scale) {
  const bool metric = scale.Unit == kCentimetres || scale.Unit == kMetres;
  const double metres = inchesPerSecond * kMetresPerInch;
  switch (scale.Speed == kSpeedOfRuler ? (metric ? kKilometresPerHour : kMilesPerHour) : scale.Speed) {
    case kMetresPerSecond: return Figures(metres) + " m/s";
    case kKilometresPerHour: return Figures(metres * 3.6) + " km/h";
    default: return Figures(inchesPerSecond * 3600 / 63360) + " mph";
  }
}

bool HasLabel(const Shape& shape) {
  return shape.Text.empty() &&
         (shape.Kind == kLine || shape.Kind == kArrow || shape.Kind == kAngle || shape.Kind == kSwingPath);
}

std::optional<ShapeLabel> LabelOf(const Shape& shown, const MeasureScale& scale, const ExactDrawing* exact) {
  const auto points = PointsOf(shown);
  if (!HasLabel(shown) || points.size() < 2) return std::nullopt;
  const bool same = exact && PointsOf(exact->Shape).size() == points.size();
  const Measured measured = same ? Measured(exact->Shape, exact->Width, exact->Height, scale)
                                 : Measured(shown, scale.Width, scale.Height, scale);
  if (shown.Kind == kSwingPath) return PathLabel(shown, points, measured, scale);
  if (shown.Kind == kAngle) return points.size() == 3 ? AngleLabel(points, measured) : std::nullopt;
  return LineLabel(points, measured, scale);
}

}  // namespace kinalyx
