#include "distribution/lessons/forms/LevelMeter.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/widgets/Scale.h"

namespace kinalyx {
namespace {

constexpr double kQuietest = -54;  // decibels at the left end
constexpr double kFall = 0.06;     // of the length that the bar goes back by each time
constexpr double kLoud = 0.85;     // of the length, about -8 decibels
const QColor kGround(255, 255, 255, 38), kGood(92, 190, 122), kTooLoud(224, 84, 72);

}  // namespace

LevelMeter::LevelMeter(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  setAccessibleName(tr("Level of the microphone"));
  setToolTip(accessibleName());
  FixHeight(this, 8);
  LeastWidth(this, 70);
}

void LevelMeter::SetLevel(double level) {
  const double decibels = 20 * std::log10(std::max(level, 1e-6));
  const double length = std::clamp(1 - decibels / kQuietest, 0.0, 1.0);
  const double next = std::max(length, shown_ - kFall);
  if (std::abs(next - shown_) < 0.002) return;
  shown_ = next;
  update();
}

void LevelMeter::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const double round = height() / 2.0;
  painter.setBrush(kGround);
  painter.drawRoundedRect(rect(), round, round);
  if (shown_ <= 0) return;
  painter.setBrush(shown_ > kLoud ? kTooLoud : kGood);
  painter.drawRoundedRect(QRectF(0, 0, std::max(shown_ * width(), 2 * round), height()), round, round);
}

}  // namespace kinalyx
