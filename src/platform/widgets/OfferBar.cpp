#include "platform/widgets/OfferBar.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

constexpr int kShownMs = 10000;
constexpr int kAboveFoot = 56;  // pixels, as designed: over a play bar

}  // namespace

OfferBar::OfferBar(const QString& name, const QString& action, QWidget* over) : QFrame(over) {
  setObjectName(name);
  setProperty("look", "panel");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kGap, 6, 6, 6);
  row->setSpacing(kGap);
  words_ = MakeLabel(name + "Words", {});
  auto* accept = new Button(name + "Accept", action);
  auto* dismiss = new Button(name + "Dismiss", tr("Dismiss"), {}, Look::Quiet);
  accept->setFocusPolicy(Qt::NoFocus);
  dismiss->setFocusPolicy(Qt::NoFocus);
  row->addWidget(words_);
  row->addWidget(accept);
  row->addWidget(dismiss);
  end_.setSingleShot(true);
  connect(&end_, &QTimer::timeout, this, &QWidget::hide);
  connect(dismiss, &QPushButton::clicked, this, &QWidget::hide);
  connect(accept, &QPushButton::clicked, this, [this] {
    hide();
    emit Accepted();
  });
  over->installEventFilter(this);
  hide();
}

void OfferBar::Offer(const QString& words) {
  words_->setText(words);
  end_.start(kShownMs);
  show();
  Place();
}

void OfferBar::Place() {
  adjustSize();
  const QWidget* over = parentWidget();
  move((over->width() - width()) / 2, over->height() - height() - Px(kAboveFoot));
  raise();
}

bool OfferBar::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) Place();
  return QFrame::eventFilter(watched, event);
}

}  // namespace kinalyx
