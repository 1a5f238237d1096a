#include "workspace/forms/MacroNameForm.h"

#include <QBoxLayout>
#include <QLineEdit>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/MacroForm.h"
#include "workspace/forms/StageParts.h"

namespace kinalyx {

MacroNameForm::MacroNameForm(const ShapeList& drawing, const ShapeLook& look, QWidget* parent) : QDialog(parent) {
  setObjectName("MacroNameForm");
  setWindowTitle(tr("New macro"));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(kGap);
  auto* picture = new SurfaceView("MacroNamePic", this);
  FixSize(picture, {320, 200});
  picture->show();
  ShowDrawing(*picture, drawing, look);
  rows->addWidget(picture);
  rows->addWidget(MakeLabel("MacroNamePrompt", tr("Please enter the name of this macro"), nullptr, this));
  name_ = new QLineEdit(this);
  name_->setObjectName("MacroName");
  name_->setMaxLength(60);
  rows->addWidget(name_);

  auto* actions = new QHBoxLayout;
  actions->setSpacing(8);
  actions->addStretch(1);
  auto* ok = new Button("MacroNameOK", tr("OK"), {}, Look::Filled, this);
  auto* cancel = new Button("MacroNameCancel", tr("Cancel"), {}, Look::Quiet, this);
  ok->setDefault(true);
  ok->setEnabled(false);
  actions->addWidget(ok);
  actions->addWidget(cancel);
  rows->addLayout(actions);
  connect(name_, &QLineEdit::textChanged, this, [this, ok] { ok->setEnabled(!Name().isEmpty()); });
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  name_->setFocus();
  if (parent) ScaleForm(*this, *parent);
}

QString MacroNameForm::Name() const { return name_->text().trimmed(); }

}  // namespace kinalyx
