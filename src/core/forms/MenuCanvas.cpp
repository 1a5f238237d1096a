#include "core/forms/MenuCanvas.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "core/Heading.h"
#include "core/MenuPicture.h"
#include "platform/files/Folders.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

// The second line carries the name, and the others lead to it.
constexpr int kNameLine = 1;
constexpr double kSideMargin = 0.055;  // in parts of the width
constexpr int kNarrow = 1000;
constexpr int kNarrowMargin = 20;

QFont HeadingFont(int line, double pixels) {
  QFont font = UiFont(12, line == kNameLine ? 700 : 300);
  font.setPixelSize(std::max(1, qRound(pixels)));
  return font;
}

double WidestLine(const QStringList& lines, double pixels) {
  double widest = 0;
  for (int i = 0; i < lines.size(); ++i)
    widest = std::max(widest, QFontMetricsF(HeadingFont(i, pixels)).horizontalAdvance(lines[i]));
  return widest;
}

/// The ground of a page without a picture: three arcs on the scheme's colours.
QPixmap SchemeGround(const QSize& pixels) {
  const Theme theme = CurrentTheme();
  QPixmap result(pixels);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  QLinearGradient ground(result.rect().topLeft(), result.rect().bottomRight());
  ground.setColorAt(0, Mix(theme.accent, Qt::black, 0.45));
  ground.setColorAt(0.5, theme.accent);
  ground.setColorAt(1, Mix(theme.accent, theme.panel, 0.45));
  painter.fillRect(result.rect(), ground);
  const QPointF pivot(pixels.width() * 0.72, pixels.height() * 0.72);
  for (int i = 0; i < 3; ++i) {
    const double radius = pixels.height() * (0.32 + 0.09 * i);
    QColor ink = theme.panel;
    ink.setAlphaF(0.45 - 0.12 * i);
    painter.setPen(QPen(ink, pixels.height() / 260.0 * (i == 1 ? 1.4 : 0.8), Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(pivot.x() - radius, pivot.y() - radius, 2 * radius, 2 * radius), (34 - 4 * i) * 16,
                    146 * 16);
  }
  return result;
}

/// Full under letters of that size, and fading out around them.
void PaintVeil(QPainter& painter, const QRectF& letters, const HeadingInk& ink, double pixels) {
  if (ink.strength <= 0) return;
  constexpr int kSide = 96;
  const double reach = pixels * 1.5;
  const QRectF area = letters.adjusted(-reach, -reach, reach, reach);
  QImage veil(kSide, kSide, QImage::Format_ARGB32);
  const auto outside = [](double at, double low, double high) { return std::max({low - at, at - high, 0.0}); };
  for (int y = 0; y < kSide; ++y) {
    const double down = outside(area.top() + (y + 0.5) / kSide * area.height(), letters.top(), letters.bottom());
    for (int x = 0; x < kSide; ++x) {
      const double across = outside(area.left() + (x + 0.5) / kSide * area.width(), letters.left(), letters.right());
      const double away = std::min(std::hypot(across, down) / reach, 1.0);
      QColor colour = ink.veil;
      colour.setAlphaF(static_cast<float>(ink.strength * (1 - away * away * (3 - 2 * away))));
      veil.setPixelColor(x, y, colour);
    }
  }
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(area, veil);
}

}  // namespace

MenuCanvas::MenuCanvas(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void MenuCanvas::SetupMenu(IHost& host, Settings& settings) {
  again_.Stop();
  Background background = CheckBackground(host, settings);
  if (background.file != file_ || picture_.isNull()) {
    std::optional<QImage> picture;
    if (!background.standsIn && !background.file.empty()) {
      picture = reader_.Read(host.Drives(), background.file);
      if (!picture) background = {DefaultBackground(settings), true};
    }
    // The program's own picture lies where the program lies.
    if (!picture) picture = ReadPicture(background.file);
    file_ = background.file;
    picture_ = QPixmap::fromImage(*picture);
    ground_ = QPixmap();
  }
  standsIn_ = background.standsIn;
  if (const std::string place = FolderOf(settings.BackgroundPic); standsIn_ && host.Drives().Silent(place))
    again_ = host.Drives().WhenAnswers(place, [this, &host, &settings] { SetupMenu(host, settings); });
  SetupCaptionLabels(settings);
}

void MenuCanvas::SetupCaptionLabels(const Settings& settings) {
  lines_.clear();
  for (const std::string& line : ShownHeading(settings)) lines_ << Q(line).trimmed();
  position_ = settings.CaptionPosition;
  setAccessibleName(lines_.join(' ').simplified());
  update();
}

void MenuCanvas::SetSample(bool on) {
  sample_ = on;
  update();
}

int MenuCanvas::SideMargin(int width) {
  const bool narrow = width > kNarrow / 2 && width < kNarrow;  // the small window; below that it is a sample
  return narrow ? kNarrowMargin : qRound(width * kSideMargin);
}

void MenuCanvas::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::StyleChange) ground_ = QPixmap();  // without a picture it wears the scheme's colours
}

void MenuCanvas::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QSize wanted = size() * devicePixelRatioF();
  if (ground_.size() != wanted) {
    ground_ = MakeGround(wanted);
    inked_ = QRect();
  }
  painter.drawPixmap(rect(), ground_);
  PaintHeading(painter);
  if (sample_) PaintSample(painter);
}

QPixmap MenuCanvas::MakeGround(const QSize& pixels) const {
  if (picture_.isNull()) return SchemeGround(pixels);
  // Filling the page and cut at the edges: a face must not grow wide with the window.
  const QPixmap filled = picture_.scaled(pixels, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
  QRect middle(QPoint(), pixels);
  middle.moveCenter(filled.rect().center());
  return filled.copy(middle);
}

void MenuCanvas::PaintHeading(QPainter& painter) {
  const int count = static_cast<int>(lines_.size());
  const double side = SideMargin(width());
  const QRectF room(side, height() * 0.09, width() - 2 * side, height() * (1 - 0.09 - kButtonRoom - 0.05));
  double pixels = std::min(height() * 0.053, 72.0);
  const double widest = WidestLine(lines_, pixels);
  if (widest > room.width()) pixels *= room.width() / widest;

  const CaptionPlace place = PlaceOfCaption(position_);
  const double lineHeight = pixels * 1.25;
  const double blockWidth = WidestLine(lines_, pixels);
  const double left = room.left() + place.across * (room.width() - blockWidth);
  const double top = room.top() + place.down * (room.height() - lineHeight * count);
  const QRectF block(left, top, blockWidth, lineHeight * count);
  const qreal ratio = devicePixelRatioF();
  const QRect beneath = QRectF(block.topLeft() * ratio, block.size() * ratio).toAlignedRect() & ground_.rect();
  if (beneath != inked_) {
    inked_ = beneath;
    ink_ = InkOver(ground_.copy(beneath).toImage());
  }
  PaintVeil(painter, block, ink_, pixels);

  const Qt::Alignment side3 = place.across < 0.4   ? Qt::AlignLeft
                              : place.across > 0.6 ? Qt::AlignRight
                                                   : Qt::AlignHCenter;
  QColor shadow = ink_.veil;
  shadow.setAlpha(55);
  for (int i = 0; i < count; ++i) {
    painter.setFont(HeadingFont(i, pixels));
    const QRectF line(left - 2, top + i * lineHeight, blockWidth + 4, lineHeight);
    const auto flags = static_cast<int>(side3 | Qt::AlignVCenter | Qt::TextDontClip | Qt::TextSingleLine);
    painter.setPen(shadow);
    for (const double away : {0.07, 0.035})
      painter.drawText(line.translated(pixels * away / 2, pixels * away), flags, lines_[i]);
    painter.setPen(ink_.letters);
    painter.drawText(line, flags, lines_[i]);
  }
}

void MenuCanvas::PaintSample(QPainter& painter) const {
  QColor fill = CurrentTheme().panel;
  fill.setAlphaF(0.85);
  painter.setPen(Qt::NoPen);
  painter.setBrush(fill);
  constexpr int kButtons = 7;
  const double side = SideMargin(width());
  const double gap = width() * 0.011;
  const double box = (width() - 2 * side - (kButtons - 1) * gap) / kButtons;
  for (int i = 0; i < kButtons; ++i) {
    painter.drawRoundedRect(QRectF(side + i * (box + gap), height() * 0.76, box, height() * 0.17), 3, 3);
  }
}

}  // namespace kinalyx
