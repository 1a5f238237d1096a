#include "drawing/ShapePainting.h"

#include <array>
#include <cstdint>
#include <span>
#include <utility>

#include "drawing/ShapeGeometry.h"

namespace kinalyx {
namespace {

constexpr int kMarkerRadius = 2;    // of the newest point of an unfinished shape
constexpr double kBarbLength = 30;  // of an arrow
constexpr double kNotchPart = 0.6;  // how far back from the tip the barbs meet, of their length
constexpr double kHeadRadius = 30;  // of a stick man
constexpr int kPathStep = 20;
constexpr double kPathTension = 0.2;
constexpr Colour kHighlightEnds = 255;         // red
constexpr Colour kHighlightMiddle = 0xFFFFFF;  // white

POINTAPI Rounded(double x, double y) { return {Round(x), Round(y)}; }

/// Centre and radii of the box that a circle's or clock's points span.
struct RoundBox {
  double left;
  double top;
  double right;
  double bottom;
  double rx;
  double ry;
};

RoundBox BoxOf(POINTAPI first, POINTAPI second, bool fromCentre) {
  const double x0 = first.x, y0 = first.y, x1 = second.x, y1 = second.y;
  if (fromCentre) return {2 * x0 - x1, 2 * y0 - y1, x1, y1, x1 - x0, y1 - y0};
  return {x0, y0, x1, y1, Round((x1 + x0) / 2) - x0, Round((y1 + y0) / 2) - y0};
}

bool DrawEllipse(Canvas& hDC, double left, double top, double right, double bottom) {
  return hDC.Ellipse(Rounded(left, top), Rounded(right, bottom));
}

template <typename... Args>
void Tell(const ShapeLook& look, fmt::format_string<Args...> format, Args&&... args) {
  if (look.Log) look.Log->Tell(format, std::forward<Args>(args)...);
}

/// A polygon, or an open line.
bool EvalDrawShape(Canvas& hDC, std::span<const POINTAPI> Points, bool ZoneFill, const ShapeLook& look) {
  Tell(look, "Calling EvalDrawShape({}, {})", fmt::ptr(&hDC), Points.size());
  return ZoneFill ? hDC.Polygon(Points) : hDC.Polyline(Points);
}

bool APILine(Canvas& hDC, POINTAPI P1, POINTAPI P2, const ShapeLook& look) {
  Tell(look, "Calling APILine(({}, {} ), ({}, {}))", P1.x, P1.y, P2.x, P2.y);
  return hDC.Line(P1, P2);
}

bool DrawFlag(Canvas& hDC, POINTAPI at, const ShapeLook& look) {
  const double x = at.x, y = at.y;
  const POINTAPI level[] = {Rounded(x - kFlagReach, y), Rounded(x + kFlagReach, y)};
  const POINTAPI upright[] = {Rounded(x, y - kFlagReach), Rounded(x, y + kFlagReach)};
  const bool drawn = EvalDrawShape(hDC, level, false, look);
  return EvalDrawShape(hDC, upright, false, look) && drawn;
}

bool DrawSquare(Canvas& hDC, POINTAPI a, POINTAPI b) {
  const POINTAPI corners[] = {a, {a.x, b.y}, b, {b.x, a.y}};
  return hDC.Polygon(corners);
}

bool DrawParallelogram(Canvas& hDC, std::span<const POINTAPI> points) {
  if (points.size() < 3) return hDC.Polygon(points);
  const POINTAPI& p = points[0];
  const POINTAPI& q = points[1];
  const POINTAPI& r = points[2];
  const POINTAPI corners[] = {p, q, r,
                              Rounded(static_cast<double>(r.x) - q.x + p.x, static_cast<double>(r.y) - q.y + p.y)};
  return hDC.Polygon(corners);
}

/// A tint over the video: the filled triangle is merged into the picture.
bool DrawZone(Canvas& hDC, std::span<const POINTAPI> points, const ShapeLook& look) {
  hDC.SetROP2(Rop2::MergePen);
  hDC.SetBrush(hDC.CurrentPen().colour);
  bool drawn;
  if (points.size() >= 3) {
    const POINTAPI triangle[] = {points[0], points[2], points[1]};
    drawn = EvalDrawShape(hDC, triangle, true, look);
  } else {
    drawn = EvalDrawShape(hDC, points, true, look);
  }
  hDC.SetBrush(std::nullopt);
  hDC.SetROP2(Rop2::CopyPen);
  return drawn;
}

bool DrawClock(Canvas& hDC, const Shape& shape, std::span<const POINTAPI> points, const ShapeLook& look) {
  const RoundBox box = BoxOf(points[0], points[1], look.EllipseFromCentre);
  const double mx = Round(box.rx / 10);
  const double my = Round(box.ry / 10);
  bool drawn = DrawEllipse(hDC, box.left + mx, box.top + my, box.right - mx, box.bottom - my);
  for (int degrees = 0; degrees <= 360; degrees += 30) {
    const double t = DegToRad(static_cast<std::int16_t>(degrees + ClockRotation(shape)));
    const auto onRay = [&](double part) {
      return Rounded(box.rx * part * std::cos(t) + box.left + box.rx, box.ry * part * std::sin(t) + box.top + box.ry);
    };
    drawn = hDC.Line(onRay(0.8), onRay(1)) && drawn;
  }
  return drawn;
}

bool DrawArrow(Canvas& hDC, POINTAPI tail, POINTAPI tip, const ShapeLook& look) {
  const double length = Distance(tail, tip);
  if (length == 0) return true;
  const double angle = PointAngle(tip, tail);
  const double t = 1 / (length / kBarbLength) * kNotchPart;
  const POINTAPI notch = Rounded(Lerp(tip.x, tail.x, t), Lerp(tip.y, tail.y, t));
  const double spread = DegToRad(20);
  const auto barb = [&](double direction) {
    return Rounded(tip.x + std::cos(direction) * kBarbLength, tip.y + std::sin(direction) * kBarbLength);
  };
  const POINTAPI head[] = {notch, barb(angle - spread), tip, barb(angle + spread), notch};
  const POINTAPI shaft[] = {notch, tail};
  const bool drawn = EvalDrawShape(hDC, head, false, look);
  return hDC.Polyline(shaft) && drawn;
}

bool DrawStickMan(Canvas& hDC, std::span<const POINTAPI> points, const ShapeLook& look) {
  const double x = points[0].x, y = points[0].y;
  bool drawn = DrawEllipse(hDC, x - kHeadRadius, y - kHeadRadius, x + kHeadRadius, y + kHeadRadius);
  if (points.size() < 2) return drawn;
  const double neck = PointAngle(points[0], points[1]);
  drawn = APILine(hDC, Rounded(x + std::cos(neck) * kHeadRadius, y + std::sin(neck) * kHeadRadius), points[1], look) &&
          drawn;
  static constexpr std::array<std::array<std::size_t, 2>, 11> kLimbs{
      {{1, 2}, {2, 3}, {3, 4}, {1, 5}, {5, 6}, {6, 7}, {1, 8}, {8, 9}, {9, 10}, {8, 11}, {11, 12}}};
  for (const auto& [from, to] : kLimbs)
    if (to < points.size()) drawn = APILine(hDC, points[from], points[to], look) && drawn;
  return drawn;
}

/// Red at both ends of the stretch, white in its middle.
Colour HighlightColour(int i, int count) {
  const int half = count / 2;
  double m = 0;
  if (half > 1) {
    const double along = static_cast<double>(i) / half;
    const double u = i <= half ? along : 1 - (along - 1);
    m = std::abs(std::cos((u - 1) * kHalfPi));
  }
  const auto mix = [m](int a, int b) { return static_cast<int>(std::nearbyint((1 - m) * a + m * b)); };
  return Rgb(mix(Red(kHighlightEnds), Red(kHighlightMiddle)), mix(Green(kHighlightEnds), Green(kHighlightMiddle)),
             mix(Blue(kHighlightEnds), Blue(kHighlightMiddle)));
}

bool DrawSwingPath(Canvas& hDC, const Shape& shape, std::span<const POINTAPI> points, const ShapeLook& look) {
  if (points.size() == 2) return EvalDrawShape(hDC, points, false, look);
  // Smoothing works on a copy: what is kept of a path is its clicks.
  Shape smooth = shape;
  smooth.NumBound = static_cast<std::int16_t>(points.size());
  Tell(look, "Calling SmoothLine({}, {})", kPathStep, kPathTension);
  const LongStretch stretch = SmoothLine(smooth, kPathStep, kPathTension, look.PathHighlight);
  bool drawn = EvalDrawShape(hDC, PointsOf(smooth), false, look);
  if (!shape.Locked) return drawn;
  const int count = stretch.LongEnd - stretch.LongStart;
  const Pen pen = hDC.CurrentPen();
  for (int i = 0; i < count; ++i) {
    hDC.SetPen({HighlightColour(i, count), look.CadWidth, 0});
    const auto at = static_cast<std::size_t>(stretch.LongStart + i);
    drawn = APILine(hDC, smooth.Pts[at], smooth.Pts[at + 1], look) && drawn;
  }
  if (count > 0) hDC.SetPen(pen);
  return drawn;
}

}  // namespace

bool DrawShape(const Shape& shape, Canvas& hDC, const ShapeLook& look) {
  const auto points = PointsOf(shape);
  if (points.empty() || !InfOf(shape.Kind).Drawable) return true;
  bool marked = true;
  if (!shape.Locked) {
    const double x = points.back().x, y = points.back().y;
    marked = DrawEllipse(hDC, x - kMarkerRadius, y - kMarkerRadius, x + kMarkerRadius, y + kMarkerRadius);
  }
  const auto drawKind = [&] {
    if (shape.Kind == kFlag) return DrawFlag(hDC, points[0], look);
    if (shape.Kind == kStickMan) return DrawStickMan(hDC, points, look);
    if (points.size() < 2) return true;
    switch (shape.Kind) {
      case kFreehand:
      case kAngle: return EvalDrawShape(hDC, points, false, look);
      case kSquare: return DrawSquare(hDC, points[0], points[1]);
      case kLine: return hDC.Polyline(points);
      case kEllipse: {
        const RoundBox box = BoxOf(points[0], points[1], look.EllipseFromCentre);
        return DrawEllipse(hDC, box.left, box.top, box.right, box.bottom);
      }
      case kSwingPath: return DrawSwingPath(hDC, shape, points, look);
      case kParallelogram: return DrawParallelogram(hDC, points);
      case kZone: return DrawZone(hDC, points, look);
      case kClock: return DrawClock(hDC, shape, points, look);
      case kArrow: return DrawArrow(hDC, points[0], points[1], look);
      default: return true;
    }
  };
  return drawKind() && marked;
}

bool PaintShape(const Shape& shape, Colour colour, Canvas& hDC, const ShapeLook& look) {
  const Pen pen = hDC.CurrentPen();
  bool drawn = true;
  if (look.CadOutline && shape.Kind != kZone) {
    ShapeLook rim = look;
    rim.PathHighlight = false;
    hDC.SetPen({0, pen.width + 2, pen.style});
    drawn = DrawShape(shape, hDC, rim);
  }
  hDC.SetPen({colour, pen.width, pen.style});
  drawn = DrawShape(shape, hDC, look) && drawn;
  hDC.SetPen(pen);
  return drawn;
}

bool DrawGrid(Canvas& hDC, int Width, int Height, int Divisions) {
  if (Divisions < 1 || Divisions > Width) return true;
  const int cell = Width / Divisions;
  int rest = Width % Divisions;
  if (rest > cell) {
    Divisions += rest / cell;
    rest %= cell;
  }
  bool drawn = true;
  for (int i = 0; i <= Divisions; ++i) {
    const int x = rest / 2 + i * cell;
    drawn = hDC.Line({x, 0}, {x, Height}) && drawn;
  }
  for (int y = 0; y <= Height; y += cell) drawn = hDC.Line({0, y}, {Width, y}) && drawn;
  return drawn;
}

}  // namespace kinalyx
