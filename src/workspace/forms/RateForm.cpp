#include "workspace/forms/RateForm.h"

#include <QBoxLayout>
#include <QLineEdit>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "workspace/forms/StageParts.h"
#include "workspace/transport/Transport.h"

namespace kinalyx {

namespace {
constexpr int kGap = 16;
}  // namespace

RateForm::RateForm(double rate, double ofFile, QWidget* parent) : QDialog(parent) {
  setObjectName("RateForm");
  setWindowTitle(tr("True Frame Rate"));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(kGap);
  auto* words = MakeLabel("RateHelp",
                          tr("With how many pictures a second was this video taken? Slow motion plays more slowly "
                             "than it was taken; times and speeds go by this rate."),
                          nullptr, this);
  words->setWordWrap(true);
  FixWidth(words, 340);
  rows->addWidget(words);
  rate_ = new QComboBox(this);
  rate_->setObjectName("TrueRate");
  rate_->setEditable(true);
  rate_->addItem(tr("As the file says (%1)").arg(ofFile, 0, 'g', 4), 0.0);
  for (const int usual : {25, 30, 50, 60, 100, 120, 200, 240, 480, 960}) rate_->addItem(QString::number(usual), usual);
  if (rate > 0) rate_->setEditText(QString::number(rate, 'g', 8));
  rows->addWidget(rate_);

  auto* actions = new QHBoxLayout;
  actions->setSpacing(8);
  actions->addStretch(1);
  auto* ok = new Button("RateOK", tr("OK"), {}, Look::Filled, this);
  auto* cancel = new Button("RateCancel", tr("Cancel"), {}, Look::Quiet, this);
  ok->setDefault(true);
  actions->addWidget(ok);
  actions->addWidget(cancel);
  rows->addLayout(actions);
  const auto enable = [this, ok] { ok->setEnabled(rate_->currentText() == rate_->itemText(0) || Rate() > 0); };
  connect(rate_, &QComboBox::editTextChanged, this, enable);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  rate_->lineEdit()->selectAll();
  rate_->setFocus();
  if (parent) ScaleForm(*this, *parent);
}

double RateForm::Rate() const {
  bool number = false;
  const double typed = rate_->currentText().trimmed().replace(',', '.').toDouble(&number);
  return number && typed > 0 && typed <= Transport::kFastestRate ? typed : 0;
}

}  // namespace kinalyx
