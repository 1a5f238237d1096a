#include "library/forms/InstructorsPanel.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include "library/forms/BoxLimits.h"
#include "library/forms/HeadButton.h"
#include "platform/widgets/NameList.h"

namespace kinalyx {

InstructorsPanel::InstructorsPanel(NameList* list, QWidget* parent)
    : Panel("InstructorsTitle", tr("Instructors"), parent), list_(list) {
  LeastWidth(this, 144);
  Body()->addWidget(list_, 1);

  nameBox_ = new QWidget;
  auto* rows = new QVBoxLayout(nameBox_);
  rows->setContentsMargins(8, 8, 8, 0);
  Text2_ = new QLineEdit;
  Text2_->setObjectName("Text2");
  Text2_->setPlaceholderText(tr("Name"));
  Text2_->setAccessibleName(tr("Name of the new instructor or database"));
  QLabel* note = MakeLabel("Text2Note", {}, "muted");
  note->setWordWrap(true);
  note->setContentsMargins(0, 0, 0, 4);
  rows->addWidget(Text2_);
  rows->addWidget(note);
  LimitToNames(*Text2_, *note);
  nameBox_->hide();
  Body()->addWidget(nameBox_);

  add_ = new Button("SSCommand2", tr("Add New"));
  add_->setToolTip(tr("Add an instructor or database to the library"));
  Foot()->addWidget(add_);
  Foot()->addStretch(1);
  rename_ = HeadButton("RenameInstructorBtn", {}, "rename");
  rename_->setToolTip(tr("Rename the current instructor or database"));
  delete_ = HeadButton("DeleteInstructorBtn", {}, "trash");
  delete_->setToolTip(tr("Delete the current instructor or database, which must be empty"));
  auto* tools = new QHBoxLayout;
  tools->setSpacing(0);
  for (Button* button : {rename_, delete_}) {
    button->setAccessibleName(button->toolTip());
    tools->addWidget(button);
  }
  Head()->addLayout(tools);
  connect(rename_, &QPushButton::clicked, this, &InstructorsPanel::RenameWanted);
  connect(delete_, &QPushButton::clicked, this, &InstructorsPanel::DeleteWanted);
  connect(add_, &QPushButton::clicked, this, &InstructorsPanel::SSCommand2);
  connect(Text2_, &QLineEdit::returnPressed, this, &InstructorsPanel::SSCommand2);
}

void InstructorsPanel::ShowNameBox(bool shown) {
  nameBox_->setVisible(shown);
  add_->setText(shown ? tr("Save") : tr("Add New"));
  Text2_->clear();
  if (shown) Text2_->setFocus();
}

void InstructorsPanel::SetChangeable(bool changeable) {
  rename_->setEnabled(changeable);
  delete_->setEnabled(changeable);
}

void InstructorsPanel::SetUsable(bool usable) {
  list_->setEnabled(usable);
  add_->setEnabled(usable);
}

/// The first press asks for a name, the second adds it.
void InstructorsPanel::SSCommand2() {
  if (nameBox_->isHidden()) ShowNameBox(true);
  else emit AddWanted(Text2_->text());
}

/// Escape takes the box away from wherever the keys are in the panel.
void InstructorsPanel::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape || nameBox_->isHidden()) return Panel::keyPressEvent(event);
  ShowNameBox(false);
  list_->setFocus();
  emit AddCancelled();
}

}  // namespace kinalyx
