#include "distribution/lessons/forms/ClickRing.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QVariantAnimation>
#include <QWidget>

namespace kinalyx {
namespace {

constexpr int kSize = 64;
constexpr int kMs = 420;  // some pictures of a lesson
const QColor kColour(255, 196, 64);

}  // namespace

class ClickRing::Ring final : public QWidget {
 public:
  explicit Ring(QWidget* window) : QWidget(window) {
    setObjectName("ClickRing");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    resize(kSize, kSize);
    animation_.setStartValue(0.0);
    animation_.setEndValue(1.0);
    animation_.setDuration(kMs);
    connect(&animation_, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&animation_, &QVariantAnimation::finished, this, &QWidget::hide);
  }

  void ShowAt(QPoint at) {
    move(at - rect().center());
    raise();
    show();
    animation_.stop();
    animation_.start();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const double part = animation_.currentValue().toDouble();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = kSize * (0.22 + 0.24 * part);
    QColor inside = kColour, line = kColour;
    inside.setAlphaF(0.28f * static_cast<float>(1 - part));
    line.setAlphaF(static_cast<float>(1 - part * part));
    painter.setBrush(inside);
    painter.setPen(QPen(line, 3));
    painter.drawEllipse(QPointF(kSize / 2.0, kSize / 2.0), radius, radius);
  }

 private:
  QVariantAnimation animation_;
};

ClickRing::ClickRing(QObject* parent) : QObject(parent) {}

ClickRing::~ClickRing() { delete ring_; }

void ClickRing::SetOn(bool on) {
  if (on_ == on) return;
  on_ = on;
  if (on) qApp->installEventFilter(this);
  else qApp->removeEventFilter(this);
  if (!on) delete ring_;
}

bool ClickRing::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonPress) return false;
  auto* widget = qobject_cast<QWidget*>(watched);
  // A press that nobody takes goes on to the parents: one ring is enough.
  if (!widget || widget != QApplication::widgetAt(static_cast<QMouseEvent*>(event)->globalPosition().toPoint()))
    return false;
  QWidget* window = widget->window();
  if (window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip) return false;
  ShowAt(window, window->mapFromGlobal(static_cast<QMouseEvent*>(event)->globalPosition().toPoint()));
  return false;
}

void ClickRing::ShowAt(QWidget* window, QPoint at) {
  if (ring_ && ring_->parentWidget() != window) delete ring_;
  if (!ring_) ring_ = new Ring(window);
  ring_->ShowAt(at);
}

}  // namespace kinalyx
