#include "distribution/mail/forms/EmailPnl.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>

#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {
constexpr int kFromTop = 44;  // as designed: below the names of the videos
}

EmailPnl::EmailPnl(QWidget* stage) : QFrame(stage) {
  setObjectName("EmailPnl");
  setProperty("look", "panel");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(14, 9, 14, 9);
  words_ = MakeLabel("EmailPnlWords", {});
  row->addWidget(words_);
  stage->installEventFilter(this);
  hide();
}

void EmailPnl::ShowEmailPnl(const std::string& words) {
  words_->setText(Q(words));
  show();
  Place();
}

void EmailPnl::Place() {
  adjustSize();
  move((parentWidget()->width() - width()) / 2, Px(kFromTop));
  raise();
}

bool EmailPnl::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) Place();
  return QFrame::eventFilter(watched, event);
}

}  // namespace kinalyx
