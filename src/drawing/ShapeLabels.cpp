#include "drawing/ShapeLabels.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>
#include <utility>

namespace kinalyx {
namespace {

constexpr double kDegrees = 180 / std::numbers::pi;
constexpr double kMetresPerInch = 0.0254;
constexpr double kBeside = 20;     // pixels from a line to the middle of its figures above it
constexpr double kLetter = 9;      // and about so wide is each of them
constexpr double kInAngle = 38;    // from a corner into the angle, at least
constexpr double kHalfPlate = 28;  // and so far that the figures of a sharp one find room
constexpr double kDeepest = 90;

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

std::optional<ShapeLabel> LineLabel(std::span<const POINTAPI> points, const MeasureScale& scale) {
  const Way way = From(points[0], points[1]);
  const double length = way.Length();
  if (length == 0) return std::nullopt;
  const double level = std::atan2(std::abs(way.y), std::abs(way.x)) * kDegrees;
  // Above the line; beside one that stands.
  double x = way.y / length, y = -way.x / length;
  if (y > 0 || (y == 0 && x < 0)) x = -x, y = -y;
  std::string text = fmt::format("{}  {:.1f}°", LengthLabel(length, scale), scale.FromUpright ? 90 - level : level);
  const double aside = kBeside + kLetter / 2 * static_cast<double>(text.size());
  return ShapeLabel{At((points[0].x + points[1].x) / 2.0 + x * aside, (points[0].y + points[1].y) / 2.0 + y * kBeside),
                    std::move(text)};
}

std::optional<ShapeLabel> AngleLabel(std::span<const POINTAPI> points) {
  const Way a = From(points[1], points[0]);
  const Way b = From(points[1], points[2]);
  if (a.Length() == 0 || b.Length() == 0) return std::nullopt;
  const double opening = std::abs(std::atan2(a.x * b.y - a.y * b.x, a.x * b.x + a.y * b.y)) * kDegrees;
  Way middle{a.x / a.Length() + b.x / b.Length(), a.y / a.Length() + b.y / b.Length()};
  if (middle.Length() < 1e-6) middle = {-a.y, a.x};  // a straight angle opens to either side
  const double half = std::max(0.01, std::sin(opening / kDegrees / 2));
  const double far = std::clamp(kHalfPlate / half, kInAngle, kDeepest) / middle.Length();
  return ShapeLabel{At(points[1].x + middle.x * far, points[1].y + middle.y * far), fmt::format("{:.1f}°", opening)};
}

std::optional<ShapeLabel> PathLabel(std::span<const POINTAPI> points, const MeasureScale& scale) {
  if (scale.PixelsPerInch <= 0 || scale.PerSecond <= 0) return std::nullopt;
  double greatest = 0, last = 0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    last = From(points[i - 1], points[i]).Length() / scale.PixelsPerInch * scale.PerSecond;
    greatest = std::max(greatest, last);
  }
  std::string text = SpeedLabel(last, scale);
  if (points.size() > 2) text = fmt::format("{}  max {}", text, SpeedLabel(greatest, scale));
  return ShapeLabel{At(points.back().x, points.back().y - 2 * kBeside), std::move(text)};
}

}  // namespace

std::string LengthLabel(double pixels, const MeasureScale& scale) {
  if (scale.PixelsPerInch <= 0) return fmt::format("{:.0f} px", pixels);
  const double inches = pixels / scale.PixelsPerInch;
  switch (scale.Unit) {
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

std::optional<ShapeLabel> LabelOf(const Shape& shape, const MeasureScale& scale) {
  const auto points = PointsOf(shape);
  if (!shape.Text.empty() || points.size() < 2) return std::nullopt;
  if (shape.Kind == kLine || shape.Kind == kArrow) return LineLabel(points, scale);
  if (shape.Kind == kAngle && points.size() == 3) return AngleLabel(points);
  if (shape.Kind == kSwingPath) return PathLabel(points, scale);
  return std::nullopt;
}

}  // namespace kinalyx
