#include "capture/forms/CountPanel.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace kinalyx {

namespace {

constexpr double kHeight = 0.6;    // of the stage, that a digit takes
constexpr double kWidth = 0.8;     // at most, of all digits
constexpr double kOutline = 0.03;  // of a digit

}  // namespace

CountPanel::CountPanel(QWidget* stage) : QWidget(stage) {
  setObjectName("CountPnl");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  stage->installEventFilter(this);
  setGeometry(stage->rect());
  hide();
}

void CountPanel::Show(const QString& count) {
  count_ = count;
  setAccessibleDescription(count);
  setVisible(!count.isEmpty());
  raise();
  update();
}

bool CountPanel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  return QWidget::eventFilter(watched, event);
}

void CountPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QFont wide = font();
  wide.setPixelSize(200);
  wide.setWeight(QFont::Bold);
  QPainterPath path;
  path.addText(0, 0, wide, count_);
  const QRectF drawn = path.boundingRect();
  if (drawn.isEmpty()) return;
  const double scale = std::min(height() * kHeight / drawn.height(), width() * kWidth / drawn.width());
  painter.translate(width() / 2.0, height() / 2.0);
  painter.scale(scale, scale);
  painter.translate(-drawn.center());
  // White on a black outline is seen on any picture.
  painter.strokePath(
      path, QPen(QColor(0, 0, 0, 200), drawn.height() * kOutline * 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(path, Qt::white);
}

}  // namespace kinalyx
