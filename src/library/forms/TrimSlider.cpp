#include "library/forms/TrimSlider.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr double kMargin = 16;  ///< room for the ends
constexpr double kHandleWidth = 12;
constexpr double kTrackTop = 14;
constexpr double kTrackHeight = 22;
constexpr int kLargeStep = 10;

}  // namespace

TrimSlider::TrimSlider(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  setAccessibleName(tr("Frames of the video"));
  setToolTip(tr("Drag the two ends. Arrow keys step, S starts and E ends here, Space plays."));
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TrimSlider::SetFrames(int count) {
  frames_ = qMax(0, count);
  start_ = position_ = 0;
  end_ = qMax(0, frames_ - 1);
  held_ = Part::None;
  update();
}

void TrimSlider::SetStart(int frame) {
  frame = qBound(0, frame, qMax(0, frames_ - 1));
  if (frame == start_) return;
  start_ = frame;
  end_ = qMax(end_, start_);
  update();
  emit RangeChanged();
}

void TrimSlider::SetEnd(int frame) {
  // An end of 0 would stand for the end of the video.
  frame = qBound(qMin(1, qMax(0, frames_ - 1)), frame, qMax(0, frames_ - 1));
  if (frame == end_) return;
  end_ = frame;
  start_ = qMin(start_, end_);
  update();
  emit RangeChanged();
}

void TrimSlider::SetPosition(int frame) {
  position_ = qBound(0, frame, qMax(0, frames_ - 1));
  update();
}

void TrimSlider::Seek(int frame) {
  SetPosition(frame);
  emit Sought(position_);
}

double TrimSlider::XOf(int frame) const {
  return kMargin + (frames_ > 1 ? (width() - 2 * kMargin) * frame / (frames_ - 1) : 0);
}

int TrimSlider::FrameAt(double x) const {
  const double span = width() - 2 * kMargin;
  return span > 0 ? qBound(0, static_cast<int>(std::lround((x - kMargin) / span * (frames_ - 1))), frames_ - 1) : 0;
}

/// The ends stand outside what they keep, so that both can be grasped where they meet.
TrimSlider::Part TrimSlider::PartAt(double x) const {
  const double start = XOf(start_);
  const double end = XOf(end_);
  if (x <= start + 2 && x >= start - kHandleWidth - 4) return Part::Start;
  if (x >= end - 2 && x <= end + kHandleWidth + 4) return Part::End;
  return Part::Position;
}

void TrimSlider::Drag(double x) {
  const int frame = FrameAt(x);
  if (held_ == Part::Start) SetStart(qMin(frame, end_));
  if (held_ == Part::End) SetEnd(qMax(frame, start_));
  Seek(held_ == Part::Start ? start_ : held_ == Part::End ? end_ : frame);
}

void TrimSlider::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || frames_ == 0) return;
  held_ = PartAt(event->position().x());
  // A press on an end shows its frame and does not yet move it.
  if (held_ == Part::Start) Seek(start_);
  else if (held_ == Part::End) Seek(end_);
  else Drag(event->position().x());
}

void TrimSlider::mouseMoveEvent(QMouseEvent* event) {
  if (held_ != Part::None && event->buttons() & Qt::LeftButton) Drag(event->position().x());
}

void TrimSlider::keyPressEvent(QKeyEvent* event) {
  const int step = event->modifiers() & Qt::ShiftModifier ? kLargeStep : 1;
  switch (event->key()) {
    case Qt::Key_Left: Seek(position_ - step); break;
    case Qt::Key_Right: Seek(position_ + step); break;
    case Qt::Key_PageUp: Seek(position_ - kLargeStep); break;
    case Qt::Key_PageDown: Seek(position_ + kLargeStep); break;
    case Qt::Key_Home: Seek(0); break;
    case Qt::Key_End: Seek(frames_ - 1); break;
    case Qt::Key_S: emit StartWanted(); break;
    case Qt::Key_E: emit EndWanted(); break;
    case Qt::Key_Space: emit PlayWanted(); break;
    default: QWidget::keyPressEvent(event);
  }
}

void TrimSlider::paintEvent(QPaintEvent*) {
  const Theme theme = CurrentTheme();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const double start = XOf(start_);
  const double end = XOf(end_);
  const double bottom = kTrackTop + kTrackHeight;
  painter.setBrush(Mix(theme.panel, theme.line, 0.5));
  painter.drawRoundedRect(QRectF(kMargin, kTrackTop, width() - 2 * kMargin, kTrackHeight), 4, 4);
  if (frames_ == 0) return;

  painter.setBrush(Mix(theme.panel, theme.accent, 0.45));
  painter.drawRect(QRectF(start, kTrackTop, end - start, kTrackHeight));
  painter.setBrush(theme.accent);
  painter.drawRect(QRectF(start, kTrackTop, end - start, 2));
  painter.drawRect(QRectF(start, bottom - 2, end - start, 2));
  const QRectF handles[] = {QRectF(start - kHandleWidth, kTrackTop, kHandleWidth, kTrackHeight),
                            QRectF(end, kTrackTop, kHandleWidth, kTrackHeight)};
  for (const QRectF& handle : handles) {
    painter.setBrush(theme.accent);
    painter.drawRoundedRect(handle, 4, 4);
    painter.setBrush(theme.accentText);
    painter.drawRect(QRectF(handle.center().x() - 0.75, handle.top() + 6, 1.5, handle.height() - 12));
  }

  const double x = XOf(position_);
  painter.setBrush(theme.text);
  painter.drawRect(QRectF(x - 1, kTrackTop - 4, 2, kTrackHeight + 8));
  painter.drawEllipse(QPointF(x, kTrackTop - 7), 5, 5);
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme.ring, 2));
    painter.drawEllipse(QPointF(x, kTrackTop - 7), 6, 6);
  }
}

}  // namespace kinalyx
