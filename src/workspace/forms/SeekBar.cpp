#include "workspace/forms/SeekBar.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr double kKnob = 7.5;   // radius
constexpr double kTrack = 4.0;  // thickness
constexpr double kMarkReach = 4.0;

}  // namespace

SeekBar::SeekBar(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setFocusPolicy(Qt::NoFocus);
  setCursor(Qt::PointingHandCursor);
  setMouseTracking(true);
}

void SeekBar::SetBounds(int minimum, int maximum, int value) {
  SetRange(minimum, maximum);
  SetValue(value);
}

void SeekBar::SetRange(int minimum, int maximum) {
  if (minimum == minimum_ && maximum == maximum_) return;
  minimum_ = minimum;
  maximum_ = std::max(minimum, maximum);
  value_ = std::clamp(value_, minimum_, maximum_);
  update();
}

void SeekBar::SetValue(int value) {
  const int clamped = std::clamp(value, minimum_, maximum_);
  if (clamped == value_) return;
  value_ = clamped;
  update();
}

void SeekBar::SetMarks(std::vector<int> marks) {
  marks_ = std::move(marks);
  update();
}

void SeekBar::SetPlayRange(int first, int last) {
  if (first == playFirst_ && last == playLast_) return;
  playFirst_ = first;
  playLast_ = last;
  update();
}

double SeekBar::XOf(int position) const {
  const double span = width() - 2 * kKnob;
  return kKnob + (maximum_ > minimum_ ? span * (position - minimum_) / (maximum_ - minimum_) : 0);
}

int SeekBar::PositionAt(double x) const {
  const double span = std::max(1.0, width() - 2 * kKnob);
  return std::clamp(minimum_ + qRound((x - kKnob) / span * (maximum_ - minimum_)), minimum_, maximum_);
}

void SeekBar::SeekTo(double x) {
  if (maximum_ <= minimum_) return;
  const int position = PositionAt(x);
  if (position != value_) {
    SetValue(position);
    emit Sought(position);
  }
}

void SeekBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double y = height() / 2.0;
  const StageLook look = StageLook::Current();
  const bool live = isEnabled() && maximum_ > minimum_;
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.cardLine);
  painter.drawRoundedRect(QRectF(kKnob, y - kTrack / 2, width() - 2 * kKnob, kTrack), 2, 2);
  if (!live) return;
  const double x = XOf(value_);
  painter.setBrush(look.accent);
  painter.drawRoundedRect(QRectF(kKnob, y - kTrack / 2, x - kKnob, kTrack), 2, 2);
  painter.setBrush(look.mark);
  if (playFirst_ > minimum_ || (playLast_ < maximum_ && playLast_ > playFirst_)) {
    const double from = XOf(std::max(playFirst_, minimum_));
    const double to = XOf(std::min(playLast_, maximum_));
    painter.drawRect(QRectF(from, y + 5, to - from, 2));
    for (const double end : {from, to}) painter.drawRect(QRectF(end - 1, y + 2, 2, 5));
  }
  for (const int mark : marks_)
    if (mark >= minimum_ && mark <= maximum_) painter.drawRoundedRect(QRectF(XOf(mark) - 1.5, y - 6, 3, 12), 1, 1);
  painter.setBrush(Qt::white);
  painter.drawEllipse(QPointF(x, y), kKnob, kKnob);
}

void SeekBar::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  dragging_ = true;
  // A press on a mark means the mark, to the picture.
  for (const int mark : marks_) {
    if (std::abs(XOf(mark) - event->position().x()) > kMarkReach) continue;
    SeekTo(XOf(mark));
    return;
  }
  SeekTo(event->position().x());
}

void SeekBar::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_) SeekTo(event->position().x());
  // Under a drag the window itself shows the picture.
  if (dragging_ || !isEnabled() || maximum_ <= minimum_) emit Left();
  else emit Hovered(PositionAt(event->position().x()), qRound(event->position().x()));
}

void SeekBar::mouseReleaseEvent(QMouseEvent*) { dragging_ = false; }

/// A notch up or to the left goes one back, as in every scroll bar. Touchpads and fine wheels turn by parts
/// of a notch, which add up; a turn the other way begins anew.
void SeekBar::wheelEvent(QWheelEvent* event) {
  const QPoint turned = event->angleDelta();
  const int turn = std::abs(turned.x()) > std::abs(turned.y()) ? turned.x() : turned.y();
  if (event->phase() == Qt::ScrollBegin || (turn > 0) != (turned_ > 0)) turned_ = 0;
  turned_ += turn;
  const int notches = turned_ / QWheelEvent::DefaultDeltasPerStep;
  turned_ -= notches * QWheelEvent::DefaultDeltasPerStep;
  event->accept();
  const int position = std::clamp(value_ - notches, minimum_, maximum_);
  if (position == value_) return;
  SetValue(position);
  emit Sought(position);
}

}  // namespace kinalyx
