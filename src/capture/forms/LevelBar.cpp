#include "capture/forms/LevelBar.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kFull = 100;
constexpr int kInset = 10;  // half of a grip
constexpr int kBarHeight = 16;
constexpr int kGripHeight = 15;
constexpr int kFlashMs = 500;
constexpr int kPeakMs = 2000;  // for which the mark stays
constexpr QColor kHeard(0x2E, 0xA0, 0x43);

/// The ground of the bar.
QColor TrackOf(const Theme& theme) { return Mix(theme.field, theme.line, 0.6); }

}  // namespace

LevelBar::LevelBar(const QString& name, QWidget* parent) : QProgressBar(parent) {
  setObjectName(name);
  setRange(0, kFull);
  setValue(0);
  setTextVisible(false);
  setAccessibleName(tr("Level of the microphone"));
  flash_.setSingleShot(true);
  connect(&flash_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
}

double LevelBar::XOf(double level, int width) {
  const double inset = Px(kInset);
  return inset + std::clamp(level, 0.0, 1.0) * std::max(1.0, width - 2 * inset);
}

double LevelBar::LevelAt(double x, int width) {
  const double inset = Px(kInset);
  return std::clamp((x - inset) / std::max(1.0, width - 2 * inset), 0.0, 1.0);
}

void LevelBar::ShowLevel(double level) {
  level = std::isfinite(level) ? std::clamp(std::abs(level), 0.0, 1.0) : 0;
  const bool over = peak_ > 0 && peakSince_.hasExpired(kPeakMs);
  bool changed = std::lround(XOf(level, width())) != std::lround(XOf(level_, width()));
  if (level >= peak_ || over) {
    changed |= over || level > peak_;
    peak_ = level;
    peakSince_.start();
  }
  level_ = level;
  setValue(static_cast<int>(std::lround(level * kFull)));
  if (changed) update();
}

void LevelBar::SetThreshold(double level) {
  threshold_ = level;
  update();
}

void LevelBar::Flash() {
  flash_.start(kFlashMs);
  update();
}

void LevelBar::paintEvent(QPaintEvent*) {
  const Theme theme = CurrentTheme();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const double height = std::min<double>(this->height(), Px(kBarHeight));
  const double top = (this->height() - height) / 2;
  const double left = XOf(0, width());
  const double round = 4;
  const QRectF track(left, top, XOf(1, width()) - left, height);
  const QColor ground = TrackOf(theme);
  const QColor heard = Readable(kHeard, ground, 3);
  painter.setBrush(ground);
  painter.drawRoundedRect(track, round, round);
  painter.setClipRect(track);
  const auto fill = [&](double from, double to, const QColor& colour) {
    if (to <= from) return;
    painter.setBrush(colour);
    painter.drawRect(QRectF(QPointF(XOf(from, width()), top), QPointF(XOf(to, width()), top + height)));
  };
  const QColor quiet = isEnabled() ? Readable(theme.accent, ground, 3) : theme.faint;
  const bool lit = flash_.isActive() && isEnabled();
  if (lit) fill(0, 1, Mix(ground, heard, 0.35));
  fill(0, std::min(level_, threshold_), lit ? heard : quiet);
  fill(threshold_, level_, isEnabled() ? heard : theme.faint);
  painter.setClipping(false);
  if (peak_ > 0.01 && isEnabled()) {
    painter.setBrush(peak_ > threshold_ ? heard : quiet);
    painter.drawRect(QRectF(XOf(peak_, width()) - 1.5, top, 3, height));
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(lit ? heard : theme.outline, lit ? 2 : 1));
  painter.drawRoundedRect(track.adjusted(0.5, 0.5, -0.5, -0.5), round, round);
}

ThresholdHandle::ThresholdHandle(const QString& name, QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setObjectName(name);
  setRange(0, kFull);
  setPageStep(10);
  setAccessibleName(tr("Trigger level"));
  setToolTip(tr("A sound that crosses this line fires. At the right end none does."));
  setCursor(Qt::SizeHorCursor);
}

QSize ThresholdHandle::sizeHint() const { return {Px(160), Px(kBarHeight + 2 * kGripHeight + 2)}; }

void ThresholdHandle::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  setSliderDown(true);
  mouseMoveEvent(event);
}

void ThresholdHandle::mouseMoveEvent(QMouseEvent* event) {
  if (!isSliderDown()) return;
  setValue(static_cast<int>(std::lround(LevelBar::LevelAt(event->position().x(), width()) * kFull)));
}

void ThresholdHandle::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) setSliderDown(false);
}

void ThresholdHandle::paintEvent(QPaintEvent*) {
  const Theme theme = CurrentTheme();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double x = LevelBar::XOf(static_cast<double>(value()) / kFull, width());
  const double half = Px(kInset) - 2;
  const double bar = (height() - Px(kBarHeight)) / 2.0;
  const QColor ink = isEnabled() ? theme.text : theme.faint;
  const QColor grip = isEnabled() ? (underMouse() ? theme.accentHover : theme.accent) : theme.faint;
  painter.setPen(Qt::NoPen);
  // The line has an edge of the ground's colour: it is seen on the bar, and where the bar is lit.
  painter.setBrush(theme.field);
  painter.drawRect(QRectF(x - 2.5, bar - 2, 5, height() - 2 * bar + 4));
  painter.setBrush(ink);
  painter.drawRect(QRectF(x - 1, bar - 4, 2, height() - 2 * bar + 8));
  // The grip points at it from below.
  const double tip = height() - bar + 2;
  const double base = height() - 2.0;
  QPainterPath shape;
  shape.moveTo(x, tip);
  shape.lineTo(x + half, tip + half * 0.7);
  shape.lineTo(x + half, base);
  shape.lineTo(x - half, base);
  shape.lineTo(x - half, tip + half * 0.7);
  shape.closeSubpath();
  painter.setBrush(hasFocus() ? theme.field : grip);
  painter.setPen(QPen(hasFocus() ? theme.ring : theme.field, hasFocus() ? 2.5 : 1));
  painter.drawPath(shape);
}

}  // namespace kinalyx
