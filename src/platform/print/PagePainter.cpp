#include "platform/print/PagePainter.h"

#include <QFontMetricsF>
#include <QImage>
#include <algorithm>

#include "platform/print/TextColumn.h"

namespace kinalyx {

namespace {

/// What a page may be printed on, in its own inches: nothing of it is to be cut off.
constexpr QRectF kLive(0.25, 0.25, 7.5, 10.1);

QString Text(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

QColor ColorOf(Colour colour) { return {Red(colour), Green(colour), Blue(colour)}; }

double Dots(double inches) { return inches * kDotsPerInch; }
QPointF Dots(PagePoint point) { return {Dots(point.x), Dots(point.y)}; }
QRectF Dots(const PageBox& box) { return {Dots(box.left), Dots(box.top), Dots(box.width), Dots(box.height)}; }

/// Where a stretch of `length` begins that wants to be at `wanted`, between two ends between which it fits.
double Within(double wanted, double length, double from, double to) {
  return std::max(from, std::min(wanted, to - length));
}

}  // namespace

bool RichText::Blank() const {
  return std::ranges::all_of(runs, [](const TextRun& run) { return Text(run.text).trimmed().isEmpty(); });
}

QSizeF SizeOf(Paper paper) {
  return paper == Paper::A4 ? QSizeF(210 / 25.4, 297 / 25.4) : QSizeF(kPaperWidth, kPaperHeight);
}

PagePlace PlaceOfPage(QSizeF paper, const QRectF& printable) {
  PagePlace place;
  place.scale = std::min({1.0, printable.width() / kLive.width(), printable.height() / kLive.height()});
  const QSizeF live = kLive.size() * place.scale;
  // From side to side in the middle of the paper, and below its upper edge as on a Letter page.
  const double left = Within((paper.width() - live.width()) / 2, live.width(), printable.left(), printable.right());
  const double top =
      Within((kLive.top() + kPhysicalOffset) * place.scale, live.height(), printable.top(), printable.bottom());
  place.left = left - kLive.left() * place.scale;
  place.top = top - kLive.top() * place.scale;
  return place;
}

PagePainter::PagePainter(const PagePlace& place) : place_(place) { SetFont({}); }

PagePainter::~PagePainter() = default;

void PagePainter::BeginSheet(QPaintDevice& sheet, double dotsPerInch) {
  painter_.begin(&sheet);
  painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
  painter_.scale(dotsPerInch / kDotsPerInch, dotsPerInch / kDotsPerInch);
  painter_.translate(Dots(place_.left), Dots(place_.top));
  painter_.scale(place_.scale, place_.scale);
  Dress();
}

void PagePainter::Dress() {
  if (!painter_.isActive()) return;
  painter_.setFont(font_);
  painter_.setPen(QPen(ink_, dots_, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
}

void PagePainter::SetFont(const PageFont& font) {
  const bool serif = font.family.starts_with("Times");
  // What the old names stand for, where they are not installed.
  font_ = QFont(QStringList{Text(font.family), serif ? "Liberation Serif" : "Liberation Sans"});
  font_.setStyleHint(serif ? QFont::Serif : QFont::SansSerif);
  font_.setHintingPreference(QFont::PreferNoHinting);
  font_.setPixelSize(std::max(1, qRound(font.points * kDotsPerInch / 72)));
  font_.setBold(font.bold);
  Dress();
}

void PagePainter::SetInk(Colour colour) {
  ink_ = ColorOf(colour);
  Dress();
}

void PagePainter::SetDrawWidth(int dots) {
  dots_ = std::max(1, dots);
  Dress();
}

void PagePainter::Line(PagePoint from, PagePoint to) { painter_.drawLine(Dots(from), Dots(to)); }

void PagePainter::Box(const PageBox& box) {
  painter_.setBrush(Qt::NoBrush);
  painter_.drawRect(Dots(box));
}

void PagePainter::Fill(const PageBox& box, Colour colour) { painter_.fillRect(Dots(box), ColorOf(colour)); }

void PagePainter::PaintPicture(const Surface& picture, const PageBox& box) {
  if (picture.Empty()) return;
  QImage image(picture.Row(0), picture.Width(), picture.Height(), picture.Stride(), QImage::Format_RGB32);
  // On a small sheet of a preview thin lines would fall between the pixels.
  const QSize shown = painter_.transform().mapRect(Dots(box)).size().toSize();
  if (2 * shown.width() < 3 * image.width() && !shown.isEmpty())
    image = image.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  painter_.drawImage(Dots(box), image);
}

double PagePainter::TextWidth(std::string_view text) {
  return QFontMetricsF(font_).horizontalAdvance(Text(text)) / kDotsPerInch;
}

double PagePainter::LineHeight() { return QFontMetricsF(font_).height() / kDotsPerInch; }

void PagePainter::Print(PagePoint at, std::string_view line) {
  painter_.drawText(Dots(at) + QPointF(0, QFontMetricsF(font_).ascent()), Text(line));
}

std::optional<std::size_t> PagePainter::FormatRange(const RichText& text, std::size_t first, const PageBox& box) {
  const QRectF room = Dots(box);
  if (!column_ || !column_->Holds(text, font_, room.width()))
    column_ = std::make_unique<TextColumn>(text, font_, room.width());
  painter_.save();
  painter_.translate(room.topLeft());
  const auto next = column_->Paint(painter_, first, room.height());
  painter_.restore();
  return next;
}

void PagePainter::NewPage() {
  NextSheet();
  Dress();
}

}  // namespace kinalyx
