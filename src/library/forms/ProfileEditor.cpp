#include "library/forms/ProfileEditor.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>

#include "library/forms/Text.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kLeastColumn = 200;

}  // namespace

ProfileEditor::ProfileEditor(const Settings& settings, QWidget* parent)
    : Panel("ProAddTitle", " ", parent), vocabulary_(settings) {
  setObjectName("ProAddPnl");
  auto* scroll = new QScrollArea;
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
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
  auto* caption = MakeLabel("Combo2Lbl", "Instructor or Database", "caption");
  instructors_ = new QComboBox;
  instructors_->setObjectName("Combo2");
  instructors_->setAccessibleName("Instructor or Database");
  instructors_->setPlaceholderText("Select an Instructor or Database");
  LeastHeight(instructors_, kButtonHeight);
  MostWidth(instructors_, 420);
  instructor->addWidget(caption);
  instructor->addWidget(instructors_);
  rows->addWidget(instructorPart_);

  grid_ = new QGridLayout;
  grid_->setHorizontalSpacing(kGap);
  grid_->setVerticalSpacing(8);
  for (int field = 0; field < kProfileFields; ++field) {
    const auto at = static_cast<std::size_t>(field);
    cells_[at] = new QWidget(body);
    auto* cell = new QVBoxLayout(cells_[at]);
    cell->setContentsMargins(0, 0, 0, 0);
    cell->setSpacing(2);
    captions_[at] = MakeLabel(QString("ProAddlbl%1").arg(field), {}, "caption");
    boxes_[at] = new QLineEdit;
    boxes_[at]->setObjectName(QString("ProInfoBox%1").arg(field));
    boxes_[at]->setMaxLength(kMaxFieldText);
    captions_[at]->setBuddy(boxes_[at]);
    cell->addWidget(captions_[at]);
    cell->addWidget(boxes_[at]);
  }
  boxes_[kVideosOnFileField]->setReadOnly(true);
  boxes_[kVideosOnFileField]->setFocusPolicy(Qt::NoFocus);
  boxes_[kVideosOnFileField]->setPlaceholderText("counted by the program");
  rows->addLayout(grid_);
  rows->addStretch(1);
  scroll->setWidget(body);
  Body()->addWidget(scroll);

  cancel_ = new Button("ProAddCancelBtn", "Cancel", {}, Look::Quiet);
  save_ = new Button("ProAddSaveBtn", "Save", "check");
  Foot()->addStretch(1);
  Foot()->addWidget(cancel_);
  Foot()->addWidget(save_);
  connect(save_, &QPushButton::clicked, this, &ProfileEditor::SaveWanted);
  connect(cancel_, &QPushButton::clicked, this, &ProfileEditor::CancelWanted);
}

void ProfileEditor::SetCaptions(const FieldTexts& captions) {
  for (std::size_t field = 0; field < captions.size(); ++field) {
    captions_[field]->setText(Q(captions[field]));
    boxes_[field]->setAccessibleName(Q(captions[field]));
    boxes_[field]->clear();
  }
}

void ProfileEditor::OpenNew(const FieldTexts& captions) {
  new_ = true;
  SetTitle(Q(vocabulary_.AddNew()));
  text_->setText(QString("First select an Instructor or Database from the list below. Then, fill out the New %1 "
                         "information and choose \"Save\".")
                     .arg(Q(vocabulary_.noun())));
  SetCaptions(captions);
  instructorPart_->show();
  boxes_[kNameField]->setReadOnly(false);
  // A folder name may be longer than a value.
  boxes_[kNameField]->setMaxLength(120);
}

void ProfileEditor::OpenEdit(const FieldTexts& captions, const FieldTexts& values) {
  new_ = false;
  SetTitle(Q(vocabulary_.ProfilesEditUtility()));
  text_->setText(
      QString("Edit the fields of the %1 and choose \"Save\" to modify.").arg(Q(vocabulary_.noun())));
  SetCaptions(captions);
  instructorPart_->hide();
  for (std::size_t field = 0; field < values.size(); ++field) {
    boxes_[field]->setText(Q(values[field]));
    boxes_[field]->setCursorPosition(0);  // a long value shows its beginning
  }
  boxes_[kNameField]->setReadOnly(true);
  boxes_[1]->setFocus();
}

FieldTexts ProfileEditor::Values() const {
  FieldTexts values;
  for (std::size_t field = 0; field < values.size(); ++field) values[field] = Std(boxes_[field]->text());
  return values;
}

std::string ProfileEditor::Instructor() const { return Std(instructors_->currentText()); }

void ProfileEditor::SetInstructors(const std::vector<std::string>& names) {
  instructors_->clear();
  instructors_->addItems(Q(names));
}

void ProfileEditor::SetInstructor(const std::string& name) { instructors_->setCurrentIndex(instructors_->findText(Q(name))); }

void ProfileEditor::FocusName() { boxes_[kNameField]->setFocus(); }

void ProfileEditor::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    emit CancelWanted();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    emit SaveWanted();
  } else {
    Panel::keyPressEvent(event);
  }
}

void ProfileEditor::resizeEvent(QResizeEvent* event) {
  Panel::resizeEvent(event);
  Arrange();
}

void ProfileEditor::changeEvent(QEvent* event) {
  Panel::changeEvent(event);
  if (event->type() == QEvent::StyleChange && grid_) Arrange();
}

/// As many columns as have room, read downward like a form on paper.
void ProfileEditor::Arrange() {
  const int columns = std::clamp((width() - 2 * kGap) / Px(kLeastColumn), 1, 4);
  if (columns == columns_) return;
  columns_ = columns;
  const int rows = (kProfileFields + columns - 1) / columns;
  for (int column = 0; column < 4; ++column) grid_->setColumnStretch(column, column < columns ? 1 : 0);
  for (int field = 0; field < kProfileFields; ++field)
    grid_->addWidget(cells_[static_cast<std::size_t>(field)], field % rows, field / rows);
}

}  // namespace kinalyx
