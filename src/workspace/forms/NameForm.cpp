#include "workspace/forms/NameForm.h"

#include <QBoxLayout>
#include <QLineEdit>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

NameForm::NameForm(const QString& name, const QString& title, const QString& prompt, int longest, QWidget* parent)
    : QDialog(parent) {
  setObjectName(name + "Form");
  setWindowTitle(title);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(kGap);
  rows->addWidget(MakeLabel(name + "Prompt", prompt, nullptr, this));
  name_ = new QLineEdit(this);
  name_->setObjectName(name);
  name_->setAccessibleName(prompt);
  name_->setMaxLength(longest);
  LeastWidth(name_, 320);
  rows->addWidget(name_);

  auto* actions = new QHBoxLayout;
  actions->setSpacing(8);
  actions->addStretch(1);
  auto* ok = new Button(name + "OK", tr("OK"), {}, Look::Filled, this);
  auto* cancel = new Button(name + "Cancel", tr("Cancel"), {}, Look::Quiet, this);
  ok->setDefault(true);
  ok->setEnabled(false);
  actions->addWidget(ok);
  actions->addWidget(cancel);
  rows->addLayout(actions);
  connect(name_, &QLineEdit::textChanged, this, [this, ok] { ok->setEnabled(!Name().isEmpty()); });
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  name_->setFocus();
}

void NameForm::ShowAbove(QWidget* picture) {
  auto* rows = static_cast<QVBoxLayout*>(layout());
  rows->insertWidget(0, picture, 0, Qt::AlignHCenter);
}

void NameForm::BeginWith(const QString& name) {
  name_->setText(name);
  name_->selectAll();
}

QString NameForm::Name() const { return name_->text().trimmed(); }

void NameForm::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous() && parentWidget()) ScaleForm(*this, *parentWidget()->window());
}

}  // namespace kinalyx
