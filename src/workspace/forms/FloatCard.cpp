#include "workspace/forms/FloatCard.h"

#include <QBoxLayout>
#include <QPropertyAnimation>
#include <QStyle>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "platform/widgets/Icons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/CardDesk.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr int kEdge = 14;          // between a card and the edge of its parent
constexpr int kBelowCaption = 52;  // of a tool, which stands at the top right
constexpr int kSlide = 28;         // pixels that it comes in by
constexpr int kSlideMs = 120;

}  // namespace

FloatCard::FloatCard(const QString& name, const QString& title, QWidget* parent) : StagePanel(name, parent) {
  setProperty("look", "card");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(14, 8, 14, 14);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->setSpacing(8);
  auto* head = new QHBoxLayout;
  QLabel* caption = MakeLabel(name + "Title", title, nullptr, this);
  FixFont(caption, kTextPixels, 600);
  caption->setAttribute(Qt::WA_TransparentForMouseEvents);
  head->addWidget(caption, 1);
  close_ = new QToolButton(this);
  close_->setObjectName(name + "Close");
  close_->setToolTip(tr("Close"));
  close_->setAccessibleName(tr("Close"));
  FixSize(close_, {24, 24});
  FixIcon(close_, 14);
  close_->setFocusPolicy(Qt::NoFocus);
  connect(close_, &QToolButton::clicked, this, &FloatCard::CloseWanted);
  head->addWidget(close_);
  head->setContentsMargins(0, 0, 0, 0);
  rows->addLayout(head);
  body_ = new QVBoxLayout;
  body_->setSpacing(8);
  rows->addLayout(body_);
  hide();
}

void FloatCard::Open(Place first) {
  if (!Dressed()) FirstDress();
  const bool comes = isHidden();
  ScaleForm(*this, *parentWidget());
  const auto kept = desk_ ? desk_->PlaceOf(objectName(), size(), parentWidget()->contentsRect()) : std::nullopt;
  moved_ = moved_ || kept;
  if (kept) move(*kept);
  else if (!moved_) move(FirstCorner(first));
  MakeRoom();
  KeepInside();
  show();
  raise();
  if (comes) SlideIn();
}

QPoint FloatCard::FirstCorner(Place first) const {
  const QRect room = parentWidget()->contentsRect();
  if (first == Place::Middle) return room.center() - rect().center();
  const int top = first == Place::Top ? room.top() + kBelowCaption : room.bottom() - height() - kEdge;
  const QPoint left(room.left() + kEdge, top), right(room.right() - width() - kEdge, top);
  const QRect athlete = desk_ ? desk_->Athlete() : QRect();
  const auto covered = [&](QPoint corner) { return athlete.intersected({corner, size()}).width(); };
  return covered(left) < covered(right) ? left : right;
}

/// From the nearer edge to its place, at once where the desktop wants nothing to move.
void FloatCard::SlideIn() {
  if (style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) <= 0) return;
  if (!slide_) {
    slide_ = new QPropertyAnimation(this, "pos", this);
    slide_->setDuration(kSlideMs);
    slide_->setEasingCurve(QEasingCurve::OutCubic);
  }
  const bool fromLeft = geometry().center().x() < parentWidget()->rect().center().x();
  slide_->setStartValue(pos() + QPoint(fromLeft ? -kSlide : kSlide, 0));
  slide_->setEndValue(pos());
  slide_->start();
}

void FloatCard::MakeRoom() {
  if (moved_) return;
  for (const FloatCard* other : parentWidget()->findChildren<FloatCard*>(Qt::FindDirectChildrenOnly)) {
    if (other == this || other->isHidden() || !other->geometry().intersects(geometry())) continue;
    const int below = other->geometry().bottom() + 10;
    move(x(), below + height() <= parentWidget()->height() ? below : std::max(0, other->y() - height() - 10));
  }
}

void FloatCard::MovedTo(QPoint corner) {
  moved_ = dragged_ = true;
  if (slide_) slide_->stop();
  MoveInside(corner);
}

void FloatCard::mouseReleaseEvent(QMouseEvent* event) {
  StagePanel::mouseReleaseEvent(event);
  if (std::exchange(dragged_, false) && desk_) desk_->Keep(objectName(), geometry(), parentWidget()->contentsRect());
}

void FloatCard::hideEvent(QHideEvent* event) {
  if (slide_ && slide_->state() == QAbstractAnimation::Running) slide_->setCurrentTime(kSlideMs);
  StagePanel::hideEvent(event);
}

void FloatCard::Dress() {
  WearStageSheet(this, kCardSheet);
  close_->setIcon(Icon("close", StageLook::Current().ink));
}

}  // namespace kinalyx
