#include "platform/paint/Canvas.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "platform/paint/FigureClip.h"
#include "platform/paint/RasterModes.h"

namespace kinalyx {
namespace {

/// How far beyond the surface figures are cut. Wide enough that what is seen of a line keeps its exact
/// direction, narrow enough for the rasteriser's own limit of 32767.
constexpr double kBand = 8192;
constexpr int kWidestPen = 1000;

QColor ToQt(Colour colour, int opacity = 255) {
  return QColor(Red(colour), Green(colour), Blue(colour), std::clamp(opacity, 0, 255));
}

QPen ToQt(const Pen& pen) {
  if (pen.style == 5) return QPen(Qt::NoPen);
  QPen result(ToQt(pen.colour, pen.opacity), pen.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  if (pen.style < 1 || pen.style > 4) return result;
  // Dash lengths count in pen widths; thin pens take them as if they were three pixels wide. Round
  // ends would close the gaps.
  result.setCapStyle(Qt::FlatCap);
  const double unit = std::max(1.0, 3.0 / pen.width);
  static const QVector<qreal> kDashes[] = {{5, 2}, {1, 1.5}, {5, 2, 1, 2}, {5, 2, 1, 2, 1, 2}};
  QVector<qreal> dashes = kDashes[pen.style - 1];
  for (qreal& dash : dashes) dash *= unit;
  result.setDashPattern(dashes);
  return result;
}

/// Half-bold letters of the program's own face; a line of them is `height` pixels high.
QFont Letters(int height) {
  QFont font("Inter");
  font.setPixelSize(std::clamp(height * 4 / 5, 1, 4000));
  font.setWeight(QFont::DemiBold);
  return font;
}

bool HasFonts() { return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr; }

RealPoint ToReal(POINTAPI point) { return {static_cast<double>(point.x), static_cast<double>(point.y)}; }

QPolygonF ToQt(std::span<const RealPoint> points) {
  QPolygonF result;
  result.reserve(static_cast<qsizetype>(points.size()));
  for (const RealPoint& p : points) result.append(QPointF(p.x, p.y));
  return result;
}

RealBox BoundsOf(std::span<const RealPoint> points) {
  RealBox box{points[0].x, points[0].y, points[0].x, points[0].y};
  for (const RealPoint& p : points) {
    box.left = std::min(box.left, p.x);
    box.right = std::max(box.right, p.x);
    box.top = std::min(box.top, p.y);
    box.bottom = std::max(box.bottom, p.y);
  }
  return box;
}

}  // namespace

struct Canvas::Engine {
  Surface* surface = nullptr;
  IFigureRecorder* recorder = nullptr;
  Pen pen;
  Rop2 mode = Rop2::CopyPen;
  std::optional<Colour> brush;

  QImage image;      // over the surface's own memory
  QPainter painter;  // open on `image`, in copy mode
  bool penIsSet = false;
  std::vector<std::uint32_t> figure;  // pen pixels of a figure that is merged
  std::vector<RealPoint> points;
  std::vector<RealPoint> area;
  LinePieces pieces;

  Engine(Surface& target, IFigureRecorder* follower) : surface(&target), recorder(follower) {}

  bool HasPen() const { return pen.style != 5; }

  RealBox Band() const { return {-kBand, -kBand, surface->Width() + kBand, surface->Height() + kBand}; }

  /// The pixels of the surface that a figure within `bounds` can touch.
  QRect Reach(const RealBox& bounds) const {
    const double margin = pen.width + 2.0;
    const auto pixel = [](double value, int limit) {
      return static_cast<int>(std::clamp(std::floor(value), -1.0, static_cast<double>(limit)));
    };
    const QRect box(
        QPoint(pixel(bounds.left - margin, surface->Width()), pixel(bounds.top - margin, surface->Height())),
        QPoint(pixel(bounds.right + margin, surface->Width()), pixel(bounds.bottom + margin, surface->Height())));
    return box & QRect(0, 0, surface->Width(), surface->Height());
  }

  void OpenPainter() {
    std::uint8_t* bits = surface->Row(0);
    if (painter.isActive() && image.constBits() == bits && image.width() == surface->Width() &&
        image.height() == surface->Height())
      return;
    if (painter.isActive()) painter.end();
    image = QImage(bits, surface->Width(), surface->Height(), surface->Stride(),
                   recorder ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    penIsSet = false;
  }

  void SetUpPainter() {
    if (penIsSet) return;
    penIsSet = true;
    const double middle = pen.width % 2 ? 0.5 : 0.0;
    painter.setTransform(QTransform::fromTranslate(middle, middle));
    painter.setPen(ToQt(pen));
    painter.setBrush(brush ? QBrush(ToQt(*brush, pen.opacity)) : QBrush(Qt::NoBrush));
  }

  /// Runs `draw` on a painter set up for the current mode; all that it touches lies in `reach`.
  template <typename Draw>
  bool Paint(const QRect& reach, Draw draw) {
    if (surface->Empty()) return false;
    if (reach.isEmpty()) return true;
    if (mode == Rop2::CopyPen) {
      OpenPainter();
      SetUpPainter();
      draw(painter);
      if (recorder) recorder->Drawn(reach.top(), reach.bottom());
    } else {
      PaintMerged(reach, draw);
    }
    return true;
  }

  /// Draws the figure's own colours on an empty picture first, whole pixels only, and merges them into
  /// the surface in one go.
  template <typename Draw>
  void PaintMerged(const QRect& reach, Draw draw) {
    const auto width = static_cast<std::size_t>(reach.width());
    figure.assign(width * reach.height(), 0);
    {
      QImage picture(reinterpret_cast<uchar*>(figure.data()), reach.width(), reach.height(), reach.width() * 4,
                     QImage::Format_ARGB32_Premultiplied);
      QPainter own(&picture);
      own.setTransform(QTransform::fromTranslate(-reach.left(), -reach.top()));
      own.setPen(ToQt(pen));
      own.setBrush(brush ? QBrush(ToQt(*brush)) : QBrush(Qt::NoBrush));
      draw(own);
    }
    if (recorder) {
      recorder->Merged({reach.left(), reach.top(), reach.width(), reach.height(), figure.data()});
      return;
    }
    for (int y = 0; y < reach.height(); ++y)
      MergePixels(surface->Row(reach.top() + y) + reach.left() * 4, figure.data() + y * width, width);
  }

  bool Dot(RealPoint at) {
    if (!HasPen() || !Band().Holds(at)) return !surface->Empty();
    return Paint(Reach({at.x, at.y, at.x, at.y}), [&](QPainter& on) {
      if (pen.width <= 2) {
        // A disc this small would come out as a shadow of a pixel, or not at all.
        const double middle = mode == Rop2::CopyPen ? pen.width / 2.0 : std::floor(pen.width / 2.0);
        on.fillRect(QRectF(at.x - middle, at.y - middle, pen.width, pen.width), ToQt(pen.colour, pen.opacity));
        return;
      }
      const QPen before = on.pen();
      QPen round(ToQt(pen.colour, pen.opacity), pen.width, Qt::SolidLine, Qt::RoundCap);
      on.setPen(round);
      on.drawPoint(QPointF(at.x, at.y));
      on.setPen(before);
    });
  }

  static void DrawPieces(QPainter& on, const LinePieces& line) {
    if (line.starts.size() == 1) {
      on.drawPolyline(ToQt(line.Piece(0)));
      return;
    }
    QPainterPath path;
    for (std::size_t i = 0; i < line.starts.size(); ++i) path.addPolygon(ToQt(line.Piece(i)));
    on.strokePath(path, on.pen());
  }

  bool Stroke(std::span<const RealPoint> line) {
    if (!HasPen()) return !surface->Empty();
    if (std::all_of(line.begin(), line.end(), [&](const RealPoint& p) { return p.x == line[0].x && p.y == line[0].y; }))
      return Dot(line[0]);
    ClipLine(line, Band(), pieces);
    if (pieces.starts.empty()) return !surface->Empty();
    return Paint(Reach(BoundsOf(pieces.points)), [&](QPainter& on) { DrawPieces(on, pieces); });
  }

  /// A closed figure of at least three points; `outline` is given its first point again at the end.
  bool Closed(std::vector<RealPoint>& outline) {
    const RealBox bounds = BoundsOf(outline);
    const RealBox band = Band();
    if (band.Holds({bounds.left, bounds.top}) && band.Holds({bounds.right, bounds.bottom})) {
      return Paint(Reach(bounds), [&](QPainter& on) { on.drawPolygon(ToQt(outline), Qt::OddEvenFill); });
    }
    // The filling and the outline are cut apart: the cut filling has edges that must not be stroked.
    area = outline;
    ClipArea(area, band);
    outline.push_back(outline.front());
    ClipLine(outline, band, pieces);
    RealBox touched{0, 0, -1, -1};
    if (brush && !area.empty()) {
      touched = BoundsOf(area);
    } else if (HasPen() && !pieces.points.empty()) {
      touched = BoundsOf(pieces.points);
    } else {
      return !surface->Empty();
    }
    return Paint(Reach(touched), [&](QPainter& on) {
      if (brush && !area.empty()) {
        const QPen before = on.pen();
        on.setPen(Qt::NoPen);
        on.drawPolygon(ToQt(area), Qt::OddEvenFill);
        on.setPen(before);
      }
      if (HasPen() && !pieces.starts.empty()) DrawPieces(on, pieces);
    });
  }
};

Canvas::Canvas(Surface& surface) : engine_(std::make_unique<Engine>(surface, nullptr)) {}
Canvas::Canvas(Surface& surface, IFigureRecorder& recorder) : engine_(std::make_unique<Engine>(surface, &recorder)) {}
Canvas::Canvas(Canvas&&) noexcept = default;
Canvas& Canvas::operator=(Canvas&&) noexcept = default;
Canvas::~Canvas() = default;

void Canvas::SetPen(const Pen& pen) {
  engine_->pen = pen;
  engine_->pen.width = std::clamp(pen.width, 1, kWidestPen);
  engine_->penIsSet = false;
}

const Pen& Canvas::CurrentPen() const { return engine_->pen; }

void Canvas::SetROP2(Rop2 mode) { engine_->mode = mode == Rop2::MergePen ? mode : Rop2::CopyPen; }

Rop2 Canvas::CurrentROP2() const { return engine_->mode; }

void Canvas::SetBrush(std::optional<Colour> brush) {
  engine_->brush = brush;
  engine_->penIsSet = false;
}

bool Canvas::Polyline(std::span<const POINTAPI> points) {
  if (engine_->surface->Empty()) return false;
  if (points.size() < 2) return true;
  std::vector<RealPoint>& line = engine_->points;
  line.clear();
  for (const POINTAPI& point : points) line.push_back(ToReal(point));
  return engine_->Stroke(line);
}

bool Canvas::Polygon(std::span<const POINTAPI> points) {
  if (points.size() < 3) return Polyline(points);
  if (engine_->surface->Empty()) return false;
  std::vector<RealPoint>& outline = engine_->points;
  outline.clear();
  for (const POINTAPI& point : points) outline.push_back(ToReal(point));
  const bool isDot = std::all_of(points.begin(), points.end(), [&](POINTAPI p) { return p == points[0]; });
  return isDot ? engine_->Dot(outline[0]) : engine_->Closed(outline);
}

bool Canvas::Ellipse(POINTAPI corner, POINTAPI opposite) {
  if (corner.x == opposite.x || corner.y == opposite.y) return Line(corner, opposite);
  if (engine_->surface->Empty()) return false;
  const RealPoint corners[] = {ToReal(corner), ToReal(opposite)};
  const RealBox box = BoundsOf(corners);
  const RealBox band = engine_->Band();
  if (band.Holds({box.left, box.top}) && band.Holds({box.right, box.bottom})) {
    return engine_->Paint(engine_->Reach(box), [&](QPainter& on) {
      on.drawEllipse(QRectF(box.left, box.top, box.right - box.left, box.bottom - box.top));
    });
  }
  FlattenEllipse(box, band, engine_->points);
  return engine_->Closed(engine_->points);
}

bool Canvas::Line(POINTAPI from, POINTAPI to) {
  const POINTAPI points[] = {from, to};
  return Polyline(points);
}

POINTAPI Canvas::TextSize(std::string_view words, int height) {
  const QString text = QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
  const double width = HasFonts() ? QFontMetricsF(Letters(height)).horizontalAdvance(text)
                                  : 0.5 * height * static_cast<double>(text.size());
  return {static_cast<std::int32_t>(std::ceil(std::min(width, 1e6))), height};
}

bool Canvas::Text(POINTAPI middle, std::string_view words, int height) {
  if (engine_->surface->Empty()) return false;
  const RealPoint at = ToReal(middle);
  if (words.empty() || !HasFonts() || !engine_->Band().Holds(at)) return true;
  const POINTAPI size = TextSize(words, height);
  const QFont font = Letters(height);
  const QFontMetricsF metrics(font);
  QPainterPath letters;
  letters.addText(at.x - size.x / 2.0, at.y + (metrics.ascent() - metrics.descent()) / 2, font,
                  QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size())));
  const QRectF box = letters.boundingRect();
  return engine_->Paint(engine_->Reach({box.left(), box.top(), box.right(), box.bottom()}), [&](QPainter& on) {
    const Pen& pen = engine_->pen;
    // The rim grows outward alone.
    if (pen.width > 1)
      on.strokePath(letters,
                    QPen(ToQt(pen.colour, pen.opacity), pen.width - 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    on.fillPath(letters, ToQt(pen.colour, pen.opacity));
  });
}

Surface& Canvas::Target() { return *engine_->surface; }

}  // namespace kinalyx
