#include "workspace/forms/EditKnobs.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/widgets/Icons.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr int kKnob = 26;     // pixels; large enough for a hurried hand
constexpr int kStem = 34;     // from the box up to the knob that turns
constexpr double kRing = 46;  // radius of the guide
constexpr const char* kHandleProperty = "handle";

}  // namespace

/// A disc with the icon of what it does.
class EditKnobs::Knob : public QWidget {
 public:
  Knob(EditHandle handle, const char* icon, const QString& tip, Qt::CursorShape cursor, QWidget* stage)
      : QWidget(stage), icon_(icon) {
    setObjectName(QString("EditKnob%1").arg(handle));
    setProperty(kHandleProperty, handle);
    setToolTip(tip);
    setAccessibleName(tip);
    setCursor(cursor);
    resize(kKnob, kKnob);
    hide();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const StageLook look = StageLook::Current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(underMouse() ? look.accent : look.accentFill);
    painter.drawEllipse(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
    constexpr int kIcon = 14;
    painter.drawPixmap((width() - kIcon) / 2, (height() - kIcon) / 2,
                       IconPixmap(icon_, Qt::white, kIcon, devicePixelRatioF()));
  }
  void enterEvent(QEnterEvent*) override { update(); }
  void leaveEvent(QEvent*) override { update(); }

 private:
  const char* icon_;
};

EditKnobs::EditKnobs(QWidget* stage) : QWidget(stage) {
  setObjectName("EditMarks");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
  knobs_ = {new Knob(kMoveHandle, "pan", tr("Drag to move the drawing"), Qt::SizeAllCursor, stage),
            new Knob(kScaleHandle, "scale", tr("Drag to change the size"), Qt::SizeFDiagCursor, stage),
            new Knob(kRotateHandle, "rotate", tr("Drag to turn the drawing"), Qt::OpenHandCursor, stage)};
  for (QWidget* knob : knobs_) knob->installEventFilter(this);
}

POINTAPI EditKnobs::PicturePoint(QPointF onStage) const {
  const QPointF at = (onStage - corner_) * devicePixelRatioF();
  return {qRound(at.x()), qRound(at.y())};
}

/// Inside the picture's part of the stage, so that every knob can be reached; a held one is where the
/// mouse is.
void EditKnobs::PlaceKnob(EditHandle handle, QPointF centre) {
  QWidget* knob = KnobOf(handle);
  knob->setVisible(enabled_[static_cast<std::size_t>(handle - kMoveHandle)]);
  if (held_ == handle) {
    centre = mouse_;
  } else {
    constexpr double kHalf = kKnob / 2.0;
    centre.setX(std::clamp(centre.x(), room_.left() + kHalf, std::max(room_.left() + kHalf, room_.right() - kHalf)));
    centre.setY(std::clamp(centre.y(), room_.top() + kHalf, std::max(room_.top() + kHalf, room_.bottom() - kHalf)));
  }
  if (handle == kRotateHandle) stem_ = centre;
  knob->move(qRound(centre.x()) - kKnob / 2, qRound(centre.y()) - kKnob / 2);
}

void EditKnobs::ShowRound(const QRectF& box, QPointF pivot, const QRect& room, QPointF corner) {
  room_ = room;
  corner_ = corner;
  pivot_ = pivot;
  box_ = box.adjusted(-8, -8, 8, 8);
  // Thin and small shapes leave room between the knobs.
  const double wider = std::max(0.0, (2.2 * kKnob - box_.width()) / 2);
  const double higher = std::max(0.0, (1.4 * kKnob - box_.height()) / 2);
  box_.adjust(-wider, -higher, wider, higher);
  shown_ = true;
  PlaceKnob(kMoveHandle, box_.center());
  PlaceKnob(kScaleHandle, box_.bottomRight());
  PlaceKnob(kRotateHandle, {box_.center().x(), box_.top() - kStem});
  Cover();
}

void EditKnobs::SetEnabled(EditHandle handle, bool enabled) {
  if (handle < kMoveHandle || handle > kRotateHandle) return;
  enabled_[static_cast<std::size_t>(handle - kMoveHandle)] = enabled;
  if (shown_) KnobOf(handle)->setVisible(enabled);
  update();
}

void EditKnobs::HideAll() {
  shown_ = false;
  held_.reset();
  for (QWidget* knob : knobs_) knob->hide();
  Cover();
}

void EditKnobs::ShowGuide(QPointF centre, QPointF pointer) {
  guide_ = {centre, pointer};
  raise();
  Cover();
}

void EditKnobs::HideGuide() {
  guide_.reset();
  stackUnder(knobs_[0]);
  Cover();
}

/// Covers what is painted, not the whole stage, which would be composed anew with each frame.
void EditKnobs::Cover() {
  QRectF all;
  if (shown_) all = box_.united(QRectF(stem_, QSizeF(1, 1))) & QRectF(room_);
  if (guide_) all = all.united(QRectF(guide_->first - QPointF(kRing, kRing), QSizeF(2 * kRing, 2 * kRing)));
  setVisible(!all.isEmpty());
  const QRect place = all.toAlignedRect().adjusted(-3, -3, 3, 3);
  if (place != geometry()) setGeometry(place);
  update();
}

void EditKnobs::paintEvent(QPaintEvent*) {
  const StageLook look = StageLook::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-geometry().topLeft());
  if (shown_) {
    const auto twice = [&](auto draw) {
      // Dark under light: it stands out on grass and on sky.
      painter.setPen(QPen(QColor(0, 0, 0, 150), 3));
      draw();
      painter.setPen(QPen(Qt::white, 1.4, Qt::DashLine));
      draw();
    };
    twice([&] { painter.drawRect(box_); });
    if (enabled_[kRotateHandle - kMoveHandle]) {
      const QPointF foot = held_ == kRotateHandle ? pivot_ : QPointF(box_.center().x(), box_.top());
      twice([&] { painter.drawLine(foot, stem_); });
    }
  }
  if (guide_) {
    painter.setPen(QPen(look.accent, 2));
    painter.drawEllipse(guide_->first, kRing - 2, kRing - 2);
    const QPointF way = guide_->second - guide_->first;
    const double length = std::hypot(way.x(), way.y());
    if (length > 1) painter.drawLine(guide_->first, guide_->first + way * ((kRing - 2) / length));
  }
}

bool EditKnobs::eventFilter(QObject* watched, QEvent* event) {
  const auto type = event->type();
  if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove && type != QEvent::MouseButtonRelease) return false;
  auto* mouse = static_cast<QMouseEvent*>(event);
  auto* knob = static_cast<QWidget*>(watched);
  mouse_ = knob->mapToParent(mouse->position());
  if (type == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton) {
    held_ = static_cast<EditHandle>(knob->property(kHandleProperty).toInt());
    edits_->HandlePressed(*held_, PicturePoint(mouse_));
  } else if (type == QEvent::MouseMove && held_) {
    edits_->HandleDragged(PicturePoint(mouse_));
  } else if (type == QEvent::MouseButtonRelease && mouse->button() == Qt::LeftButton && held_) {
    held_.reset();
    edits_->HandleReleased();
    edits_->ShowSelection();
  }
  return true;
}

}  // namespace kinalyx
