#include "platform/widgets/Panel.h"

#include <QBoxLayout>
#include <QLabel>
#include <QStyle>

#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

Panel::Panel(const QString& name, const QString& title, QWidget* parent) : QFrame(parent) {
  setProperty("look", "panel");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(1, 1, 1, 1);
  rows->setSpacing(0);

  headFrame_ = MakeFrame("panelHead");
  FixHeight(headFrame_, 32);
  head_ = new QHBoxLayout(headFrame_);
  head_->setContentsMargins(kGap, 0, 6, 0);
  head_->setSpacing(6);
  title_ = MakeLabel(name, title, "heading");
  title_->setTextFormat(Qt::PlainText);
  title_->setMinimumWidth(20);
  head_->addWidget(title_, 1);
  rows->addWidget(headFrame_);
  headFrame_->setVisible(!title.isEmpty());

  body_ = new QVBoxLayout;
  body_->setContentsMargins(0, 0, 0, 0);
  body_->setSpacing(0);
  rows->addLayout(body_, 1);
}

void Panel::SetTitle(const QString& title) {
  title_->setText(title);
  headFrame_->setVisible(!title.isEmpty());
}

QHBoxLayout* Panel::Foot() {
  if (!foot_) {
    QFrame* frame = MakeFrame("panelFoot");
    foot_ = new QHBoxLayout(frame);
    foot_->setContentsMargins(8, 8, 8, 8);
    foot_->setSpacing(5);
    layout()->addWidget(frame);
  }
  return foot_;
}

QLabel* MakeLabel(const QString& name, const QString& text, const char* look, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  if (look) label->setProperty("look", look);
  return label;
}

QFrame* MakeFrame(const char* look, QWidget* parent) {
  auto* frame = new QFrame(parent);
  frame->setProperty("look", look);
  return frame;
}

void SetLook(QWidget* widget, const char* look) {
  if (widget->property("look").toString() == QLatin1String(look)) return;
  widget->setProperty("look", look);
  widget->style()->unpolish(widget);
  widget->style()->polish(widget);
  widget->update();
}

}  // namespace kinalyx
