#include "drawing/ShapePainting.h"

#include <array>
#include <cstdint>
#include <span>
#include <utility>

#include "drawing/ShapeGeometry.h"

namespace kinalyx {
namespace {

constexpr int kMarkerRadius = 2;       // of the newest point of an unfinished shape
constexpr double kNotchPart = 0.6;     // how far back from the tip the barbs meet, of their length
constexpr double kHeadRadius = 30;     // of a stick man
constexpr double kSoftBarb = 14;       // the same where heads grow with their line,
constexpr double kSoftBarbGrowth = 3;  // for each pixel of its width
constexpr double kSoftSpread = 24;     // degrees
constexpr int kPathStep = 20;
constexpr double kPathTension = 0.2;
constexpr int kFeather = 2;  // pixels of soft shadow round the rim
constexpr int kFeatherOpacity = 70;
constexpr int kGlow = 9;  // pixels of shadow round letters, in steps
constexpr int kGlowStep = 3;
constexpr int kGlowOpacity = 40;
constexpr int kGlass = 105;                    // opacity of a zone that is laid on as glass
constexpr int kGlassEdge = 2;                  // pixels
constexpr double kStrokeStep = 4;              // pixels between the points of a stroke that runs smoothly
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

/// A triangle of coloured glass with an edge.
bool DrawGlass(Canvas& hDC, std::span<const POINTAPI> points) {
  const Pen pen = hDC.CurrentPen();
  hDC.SetPen({pen.colour, 1, 5, kGlass});
  hDC.SetBrush(pen.colour);
  bool drawn = hDC.Polygon(points);
  hDC.SetBrush(std::nullopt);
  hDC.SetPen({pen.colour, kGlassEdge, 0});
  drawn = hDC.Polygon(points) && drawn;
  hDC.SetPen(pen);
  return drawn;
}

/// A tint over the video: the filled triangle is merged into the picture.
bool DrawZone(Canvas& hDC, std::span<const POINTAPI> points, const ShapeLook& look) {
  if (look.Soft) return DrawGlass(hDC, points);
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

/// `width` is that of the line itself: its rim goes round the same head.
bool DrawArrow(Canvas& hDC, POINTAPI tail, POINTAPI tip, int width, const ShapeLook& look) {
  const Pen pen = hDC.CurrentPen();
  const auto head =
      look.Soft ? ArrowHead(tail, tip, kSoftBarb + kSoftBarbGrowth * width, kSoftSpread) : ArrowHead(tail, tip);
  if (head.empty()) return true;
  const POINTAPI shaft[] = {head[0], tail};
  if (look.Soft) hDC.SetBrush(pen.colour);
  const bool drawn = EvalDrawShape(hDC, look.Soft ? std::span(head).first(4) : std::span(head), look.Soft, look);
  hDC.SetBrush(std::nullopt);
  return hDC.Polyline(shaft) && drawn;
}

bool DrawStickMan(Canvas& hDC, std::span<const POINTAPI> points, const ShapeLook& look) {
  const double x = points[0].x, y = points[0].y;
  bool drawn = DrawEllipse(hDC, x - kHeadRadius, y - kHeadRadius, x + kHeadRadius, y + kHeadRadius);
  for (const auto& limb : StickManLines(points))
    if (limb.size() == 2) drawn = APILine(hDC, limb[0], limb[1], look) && drawn;
  return drawn;
}

/// A stroke of the free hand without the stairs of its single pixels.
std::vector<POINTAPI> WithoutStairs(std::span<const POINTAPI> points) {
  std::vector<POINTAPI> line{points.front()};
  for (const POINTAPI& point : points.subspan(1))
    if (Distance(line.back(), point) >= kStrokeStep) line.push_back(point);
  if (line.size() > 1 && line.back() != points.back()) line.back() = points.back();
  if (line.size() < 2) line.push_back(points.back());
  return line;
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
    hDC.SetPen({HighlightColour(i, count), shape.Width > 0 ? shape.Width : look.CadWidth, 0});
    const auto at = static_cast<std::size_t>(stretch.LongStart + i);
    drawn = APILine(hDC, smooth.Pts[at], smooth.Pts[at + 1], look) && drawn;
  }
  if (count > 0) hDC.SetPen(pen);
  return drawn;
}

bool DrawLetters(Canvas& hDC, const Shape& shape, POINTAPI at) { return hDC.Text(at, shape.Text, LetterHeight(shape)); }

}  // namespace

std::vector<POINTAPI> ArrowHead(POINTAPI tail, POINTAPI tip, double barb, double degrees) {
  const double length = Distance(tail, tip);
  if (length == 0) return {};
  const double angle = PointAngle(tip, tail);
  const double t = 1 / (length / barb) * kNotchPart;
  const POINTAPI notch = Rounded(Lerp(tip.x, tail.x, t), Lerp(tip.y, tail.y, t));
  const double spread = DegToRad(Round16(degrees));
  const auto end = [&](double direction) {
    return Rounded(tip.x + std::cos(direction) * barb, tip.y + std::sin(direction) * barb);
  };
  return {notch, end(angle - spread), tip, end(angle + spread), notch};
}

std::vector<std::vector<POINTAPI>> StickManLines(std::span<const POINTAPI> points) {
  constexpr int kHeadSides = 24;
  const double x = points[0].x, y = points[0].y;
  std::vector<std::vector<POINTAPI>> lines(1);
  for (int i = 0; i <= kHeadSides; ++i) {
    const double turn = kTwoPi * i / kHeadSides;
    lines[0].push_back(Rounded(x + std::cos(turn) * kHeadRadius, y + std::sin(turn) * kHeadRadius));
  }
  if (points.size() < 2) return lines;
  const double neck = PointAngle(points[0], points[1]);
  lines.push_back({Rounded(x + std::cos(neck) * kHeadRadius, y + std::sin(neck) * kHeadRadius), points[1]});
  static constexpr std::array<std::array<std::size_t, 2>, 11> kLimbs{
      {{1, 2}, {2, 3}, {3, 4}, {1, 5}, {5, 6}, {6, 7}, {1, 8}, {8, 9}, {9, 10}, {8, 11}, {11, 12}}};
  for (const auto& [from, to] : kLimbs)
    if (to < points.size()) lines.push_back({points[from], points[to]});
  return lines;
}

std::vector<POINTAPI> SmoothedPath(const Shape& path) {
  Shape smooth = path;
  smooth.NumBound = static_cast<std::int16_t>(PointsOf(path).size());
  SmoothLine(smooth, kPathStep, kPathTension, false);
  const auto points = PointsOf(smooth);
  return {points.begin(), points.end()};
}

bool DrawShape(const Shape& shape, Canvas& hDC, const ShapeLook& look) {
  const auto points = PointsOf(shape);
  if (points.empty() || !InfOf(shape.Kind).Drawable) return true;
  bool marked = true;
  if (!shape.Locked && !look.Soft) {
    const double x = points.back().x, y = points.back().y;
    marked = DrawEllipse(hDC, x - kMarkerRadius, y - kMarkerRadius, x + kMarkerRadius, y + kMarkerRadius);
  }
  const auto drawKind = [&] {
    if (IsText(shape)) return DrawLetters(hDC, shape, points[0]);
    if (shape.Kind == kFlag) return DrawFlag(hDC, points[0], look);
    if (shape.Kind == kStickMan) return DrawStickMan(hDC, points, look);
    if (points.size() < 2) return true;
    switch (shape.Kind) {
      case kFreehand:
        if (look.Soft) return EvalDrawShape(hDC, WithoutStairs(points), false, look);
        [[fallthrough]];
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
      case kArrow: return DrawArrow(hDC, points[0], points[1], shape.Width > 0 ? shape.Width : look.CadWidth, look);
      default: return true;
    }
  };
  return drawKind() && marked;
}

bool PaintShape(const Shape& shape, Colour colour, Canvas& hDC, const ShapeLook& look) {
  const Pen pen = hDC.CurrentPen();
  const bool isText = IsText(shape);
  const int width = isText ? 1 : shape.Width > 0 ? shape.Width : pen.width;
  const int black = isText ? 2 + LetterHeight(shape) / 10 : width + 2;
  bool drawn = true;
  if (look.CadOutline && shape.Kind != kZone) {
    ShapeLook rim = look;
    rim.PathHighlight = false;
    // Letters are thinner than lines: on a bright sky it is their shadow that makes them stand out.
    for (int glow = isText ? kGlow : 0; glow > 0; glow -= kGlowStep) {
      hDC.SetPen({0, black + glow, pen.style, kGlowOpacity});
      drawn = DrawShape(shape, hDC, rim) && drawn;
    }
    if (look.Soft && !isText) {
      hDC.SetPen({0, black + kFeather, pen.style, kFeatherOpacity});
      drawn = DrawShape(shape, hDC, rim);
    }
    hDC.SetPen({0, black, pen.style});
    drawn = DrawShape(shape, hDC, rim) && drawn;
  }
  hDC.SetPen({colour, width, pen.style});
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
