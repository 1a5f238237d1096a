#include "library/forms/FieldBoxes.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>

#include "library/forms/BoxLimits.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kLeastColumn = 200;  // as designed
constexpr int kMostColumns = 4;

}  // namespace

FieldBoxes::FieldBoxes(const QString& captionName, const QString& boxName, QWidget* parent)
    : QWidget(parent), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(kGap);
  grid_->setVerticalSpacing(8);
  for (int field = 0; field < kProfileFields; ++field) {
    const auto at = static_cast<std::size_t>(field);
    cells_[at] = new QWidget(this);
    auto* cell = new QVBoxLayout(cells_[at]);
    cell->setContentsMargins(0, 0, 0, 0);
    cell->setSpacing(2);
    captions_[at] = MakeLabel(captionName + QString::number(field), {}, "caption");
    boxes_[at] = new QLineEdit;
    boxes_[at]->setObjectName(boxName + QString::number(field));
    notes_[at] = MakeLabel(boxName + "Note" + QString::number(field), {}, "caption");
    // The name is the program's, or that of a folder.
    if (field != kNameField) LimitLength(*boxes_[at], *notes_[at], kMaxFieldText);
    captions_[at]->setBuddy(boxes_[at]);
    auto* head = new QHBoxLayout;
    head->addWidget(captions_[at], 1);
    head->addWidget(notes_[at]);
    cell->addLayout(head);
    cell->addWidget(boxes_[at]);
  }
  Arrange();
}

void FieldBoxes::SetCaption(int field, const QString& caption) {
  captions_[static_cast<std::size_t>(field)]->setText(caption);
  Box(field).setAccessibleName(caption);
}

FieldTexts FieldBoxes::Texts() const {
  FieldTexts texts;
  for (std::size_t field = 0; field < texts.size(); ++field) texts[field] = Std(boxes_[field]->text());
  return texts;
}

void FieldBoxes::SetTexts(const FieldTexts& texts) {
  for (std::size_t field = 0; field < texts.size(); ++field) {
    boxes_[field]->setText(Q(texts[field]));
    boxes_[field]->setCursorPosition(0);  // a long one shows its beginning
  }
}

void FieldBoxes::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

/// Larger letters need wider columns.
void FieldBoxes::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::StyleChange) Arrange();
}

void FieldBoxes::Arrange() {
  const int columns = std::clamp(width() / Px(kLeastColumn), 1, kMostColumns);
  if (columns == columns_) return;
  columns_ = columns;
  const int rows = (kProfileFields + columns - 1) / columns;
  for (int column = 0; column < kMostColumns; ++column) grid_->setColumnStretch(column, column < columns ? 1 : 0);
  for (int field = 0; field < kProfileFields; ++field)
    grid_->addWidget(cells_[static_cast<std::size_t>(field)], field % rows, field / rows);
}

}  // namespace kinalyx
