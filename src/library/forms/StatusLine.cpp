#include "library/forms/StatusLine.h"

#include <QBoxLayout>
#include <QCursor>
#include <QFocusEvent>
#include <QLabel>

#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

StatusLine::StatusLine(const QString& name, QWidget* parent) : QFrame(parent) {
  setProperty("look", "status");
  FixHeight(this, 28);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kGap, 0, kGap, 0);
  words_ = MakeLabel(name, {}, "muted");
  LeastWidth(words_, 40);
  row->addWidget(words_);
}

void StatusLine::Say(const QString& text) {
  said_ = text;
  words_->setText(text);
  words_->repaint();  // what is told before a piece of work is seen while it goes on
}

void StatusLine::Explain(QWidget* part, const QString& words) {
  if (parts_.insert_or_assign(part, words).second) part->installEventFilter(this);
}

void StatusLine::Rest() { restingMouse_ = QCursor::pos(); }

bool StatusLine::ComesToPart(const QEvent& event) const {
  if (event.type() == QEvent::Enter) return restingMouse_ != QCursor::pos();
  return event.type() == QEvent::FocusIn &&
         static_cast<const QFocusEvent&>(event).reason() != Qt::ActiveWindowFocusReason;
}

bool StatusLine::eventFilter(QObject* object, QEvent* event) {
  if (const auto part = parts_.find(object); part != parts_.end()) {
    if (ComesToPart(*event)) words_->setText(part->second);
    if (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut) words_->setText(said_);
  }
  return QFrame::eventFilter(object, event);
}

}  // namespace kinalyx
