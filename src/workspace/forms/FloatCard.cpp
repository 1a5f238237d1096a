#include "workspace/forms/FloatCard.h"

#include <QBoxLayout>
#include <QToolButton>
#include <algorithm>

#include "platform/widgets/Icons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr int kEdge = 14;          // between a card and the edge of its parent
constexpr int kBelowCaption = 52;  // of a tool, which stands at the top right

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
  ScaleForm(*this, *parentWidget());
  const QRect room = parentWidget()->contentsRect();
  const int right = room.right() - width() - kEdge;
  if (!moved_)
    move(first == Place::Middle     ? room.center() - rect().center()
         : first == Place::TopRight ? QPoint(right, room.top() + kBelowCaption)
                                    : QPoint(right, room.bottom() - height() - kEdge));
  MakeRoom();
  KeepInside();
  show();
  raise();
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
  moved_ = true;
  MoveInside(corner);
}

void FloatCard::Dress() {
  WearStageSheet(this, kCardSheet);
  close_->setIcon(Icon("close", StageLook::Current().ink));
}

}  // namespace kinalyx
