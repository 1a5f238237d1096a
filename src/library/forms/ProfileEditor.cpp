#include "library/forms/ProfileEditor.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>

#include "library/LibraryActions.h"
#include "library/LibraryTree.h"
#include "library/forms/BoxLimits.h"
#include "library/forms/FieldBoxes.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

ProfileEditor::ProfileEditor(const Settings& settings, QWidget* parent)
    : Panel("ProAddTitle", " ", parent), settings_(settings), vocabulary_(settings) {
  setObjectName("ProAddPnl");
  auto* scroll = new QScrollArea;
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  auto* body = new QWidget;
  body->setProperty("look", "clear");
  auto* rows = new QVBoxLayout(body);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(kGap);
  text_ = MakeLabel("ProAddText", {});
  text_->setWordWrap(true);
  rows->addWidget(text_);

  instructorPart_ = new QWidget;
  auto* instructor = new QVBoxLayout(instructorPart_);
  instructor->setContentsMargins(0, 0, 0, 0);
  instructor->setSpacing(2);
  auto* caption = MakeLabel("Combo2Lbl", tr("Instructor or Database"), "caption");
  instructors_ = new QComboBox;
  instructors_->setObjectName("Combo2");
  instructors_->setAccessibleName(tr("Instructor or Database"));
  instructors_->setPlaceholderText(tr("Select an Instructor or Database"));
  LeastHeight(instructors_, kButtonHeight);
  MostWidth(instructors_, 420);
  instructor->addWidget(caption);
  instructor->addWidget(instructors_);
  rows->addWidget(instructorPart_);

  boxes_ = new FieldBoxes("ProAddlbl", "ProInfoBox");
  QLineEdit& count = boxes_->Box(kVideosOnFileField);
  count.setReadOnly(true);
  count.setFocusPolicy(Qt::NoFocus);
  count.setPlaceholderText(tr("counted by the program"));
  LimitToNames(boxes_->Box(kNameField), boxes_->Note(kNameField));
  rows->addWidget(boxes_);
  rows->addStretch(1);
  scroll->setWidget(body);
  Body()->addWidget(scroll);

  auto* cancel = new Button("ProAddCancelBtn", tr("Cancel"), {}, Look::Quiet);
  auto* save = new Button("ProAddSaveBtn", tr("Save"), "check");
  Foot()->addStretch(1);
  Foot()->addWidget(cancel);
  Foot()->addWidget(save);
  connect(save, &QPushButton::clicked, this, &ProfileEditor::SaveWanted);
  connect(cancel, &QPushButton::clicked, this, &ProfileEditor::CancelWanted);
}

void ProfileEditor::Fill(const FieldTexts& captions, const FieldTexts& values) {
  for (int field = 0; field < kProfileFields; ++field)
    boxes_->SetCaption(field, Q(captions[static_cast<std::size_t>(field)]));
  captions_ = captions;
  boxes_->SetTexts(values);
  opened_ = boxes_->Texts();
}

QString ProfileEditor::Title() const { return Q(new_ ? vocabulary_.AddNew() : vocabulary_.ProfilesEditUtility()); }

bool ProfileEditor::Changed() const { return boxes_->Texts() != opened_; }

void ProfileEditor::OpenNew(const FieldTexts& captions) {
  new_ = true;
  SetTitle(Title());
  text_->setText(Q(LibraryTextsFor(settings_).addHelp));
  boxes_->Box(kNameField).setReadOnly(false);
  Fill(captions, {});
  instructorPart_->show();
}

void ProfileEditor::OpenEdit(const FieldTexts& captions, const FieldTexts& values) {
  new_ = false;
  SetTitle(Title());
  text_->setText(tr("Edit the fields of the %1 and choose \"Save\" to modify.").arg(Q(vocabulary_.noun())));
  boxes_->Box(kNameField).setReadOnly(true);
  Fill(captions, values);
  instructorPart_->hide();
}

void ProfileEditor::Rename(const FieldTexts& captions, const FieldTexts& values) {
  FieldTexts texts = Values();
  for (std::size_t field = 0; field < texts.size(); ++field) {
    if (captions[field] != captions_[field] && texts[field] == opened_[field]) texts[field] = values[field];
    if (captions[field] != captions_[field]) opened_[field] = values[field];
  }
  const FieldTexts opened = opened_;
  Fill(captions, texts);
  opened_ = opened;
}

FieldTexts ProfileEditor::Values() const { return boxes_->Texts(); }

std::string ProfileEditor::Instructor() const { return Std(instructors_->currentData().toString()); }

void ProfileEditor::SetInstructors(const std::vector<std::string>& names) {
  instructors_->clear();
  for (const std::string& name : names) instructors_->addItem(Q(ShownInstructor(name)), Q(name));
}

void ProfileEditor::SetInstructor(const std::string& name) {
  instructors_->setCurrentIndex(instructors_->findData(Q(name)));
}

void ProfileEditor::FocusFirst() { boxes_->Box(new_ ? kNameField : kNameField + 1).setFocus(); }

void ProfileEditor::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    emit CancelWanted();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    emit SaveWanted();
  } else {
    Panel::keyPressEvent(event);
  }
}

}  // namespace kinalyx
