#include "drawing/Measurement.h"

#include <cmath>
#include <cstdint>

#include <fmt/format.h>

#include "core/Numbers.h"
#include "drawing/ShapeGeometry.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr int kReference = 60;  // pixels from the corner to the point that stands for level or upright
constexpr double kDegrees = 180 / 3.141592653;
constexpr std::size_t kFigures = 5;  // characters of a length
constexpr double kCmPerInch = 2.54;
constexpr double kMetresPerInch = 0.0254;
constexpr std::int64_t kInchesPerMile = 63360;
constexpr double kFieldsPerHour60 = 216000;
constexpr double kFieldsPerHour50 = 180000;

/// Exact for all points of a picture, so that right angles come out right.
double SquaredDistance(POINTAPI a, POINTAPI b) {
  const double dx = static_cast<double>(b.x) - a.x;
  const double dy = static_cast<double>(b.y) - a.y;
  return dx * dx + dy * dy;
}

bool Calibrated(const Calibration& calibration) {
  return calibration.CalibNumber != 0 && calibration.CalibNumberOut > 0;
}

std::string Figures(double value) { return NumberText(value).substr(0, kFigures); }

std::string LineCaption(std::span<const POINTAPI> points, const Calibration& calibration) {
  const double a = GetAngle(points[0], points[0], points[1], AngleMode::ToHorizontal);
  const double b = GetAngle(points[0], points[0], points[1], AngleMode::ToVertical);
  const double length = LineLength(points[0], points[1]);
  return Tr("{}°- {}° angle H-V     {}", std::abs(a - 90), std::abs(b - 90),
            Calibrated(calibration) ? LengthText(length, calibration) : NumberText(length) + " px");
}

std::string AngleCaption(std::span<const POINTAPI> points) {
  const double a = GetAngle(points[0], points[1], points[2], AngleMode::Opening);
  const double sharp = a > 90 ? 180 - a : a;
  return Tr(" {}° - {}° angle I-O     {}° - {}° angle H-V ", a, 360 - a, std::abs(sharp), std::abs(a - 90));
}

/// What moved from the last click to the mouse did so in one field.
std::string SpeedCaption(POINTAPI from, POINTAPI to, const Calibration& calibration) {
  const double inches = ReadNumber(Figures(LineLength(from, to) / calibration.CalibNumberOut));
  const double fieldsPerHour = calibration.pal ? kFieldsPerHour50 : kFieldsPerHour60;
  const auto miles = [&](double perHour) { return std::llrint(inches * perHour) / kInchesPerMile; };
  std::string text = fmt::format("{}MPH", miles(fieldsPerHour));
  // Rates such as 59.94 count as what they are called by.
  constexpr double kSecondsPerHour = 3600, kSame = 0.01;
  const double perHour = calibration.perSecond * kSecondsPerHour;
  if (perHour > 0 && std::abs(perHour / fieldsPerHour - 1) > kSame)
    text += Tr(" at {:.0f} a second, in truth {}MPH at {:.4g}", fieldsPerHour / kSecondsPerHour, miles(perHour),
               calibration.perSecond);
  return text;
}

}  // namespace

float GetAngle(POINTAPI P0, POINTAPI P1, POINTAPI P2, AngleMode Mode) {
  if (Mode == AngleMode::ToHorizontal) P0 = {Round(static_cast<double>(P1.x) - kReference), P1.y};
  if (Mode == AngleMode::ToVertical) P0 = {P1.x, Round(static_cast<double>(P1.y) - kReference)};
  const double a2 = SquaredDistance(P0, P2);
  const double b2 = SquaredDistance(P0, P1);
  const double c2 = SquaredDistance(P1, P2);
  if (a2 == 0 || b2 == 0 || c2 == 0) return 0;
  const double x = (b2 + c2 - a2) / (2 * std::sqrt(b2) * std::sqrt(c2));
  // In one line with the corner: the formula below would divide by nothing.
  constexpr double kInLine = 1 - 1e-12;
  if (x >= kInLine) return 0;
  if (x <= -kInLine) return 180;
  const double angle = std::atan(-x / std::sqrt(1 - x * x)) + 2 * std::atan(1.0);
  return static_cast<float>(std::floor(kDegrees * angle));
}

double LineLength(POINTAPI from, POINTAPI to) { return std::floor(std::sqrt(SquaredDistance(from, to)) * 10) / 10; }

std::string NumberText(double value) {
  std::string text = fmt::format("{:.6f}", value);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

std::string LengthText(double pixels, const Calibration& calibration) {
  const double inches = pixels / calibration.CalibNumberOut;
  switch (calibration.CalibOutput) {
    case kFeet: return Figures(inches / 12) + "'";
    case kCentimetres: return Figures(inches * kCmPerInch) + "cm";
    case kMetres: return Figures(inches * kMetresPerInch) + "m";
    default: return Figures(inches) + "\"";
  }
}

std::optional<std::string> ShapeCaption(const Shape& shape, const Calibration& calibration) {
  const auto points = PointsOf(shape);
  if (shape.Kind == kLine && points.size() >= 2) return LineCaption(points, calibration);
  if (shape.Kind == kAngle && points.size() == 3) return AngleCaption(points);
  if (shape.Kind == kSwingPath && points.size() >= 2 && shape.NumPts > shape.NumBound && Calibrated(calibration))
    return SpeedCaption(points[points.size() - 2], points.back(), calibration);
  return std::nullopt;
}

std::optional<float> PixelsPerInch(int pixels, double typed, LengthUnit unit) {
  if (typed == 0 || !std::isfinite(typed)) return std::nullopt;
  constexpr double kInchesPerUnit[] = {1, 12, 0.3937, 39.37};
  return static_cast<float>(pixels / typed / kInchesPerUnit[unit]);
}

}  // namespace kinalyx
