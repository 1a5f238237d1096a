#include "library/forms/FieldsEditor.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "library/forms/Text.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

FieldsEditor::FieldsEditor(IHost& host, ProfileFields& fields, std::function<void()> changed, QWidget* parent)
    : QWidget(parent), host_(host), fields_(fields), changed_(std::move(changed)) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
  grid_ = new QGridLayout(this);
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(kGap);
  grid_->setVerticalSpacing(8);
  for (int field = 0; field < kProfileFields; ++field) {
    const auto at = static_cast<std::size_t>(field);
    cells_[at] = new QWidget(this);
    auto* cell = new QVBoxLayout(cells_[at]);
    cell->setContentsMargins(0, 0, 0, 0);
    cell->setSpacing(2);
    auto* caption = MakeLabel(QString("SPEditlbl%1").arg(field), QString("Field %1").arg(field + 1), "caption");
    auto* box = new QLineEdit;
    box->setObjectName(QString("SPEdittext%1").arg(field));
    box->setAccessibleName(caption->text());
    box->setMaxLength(kMaxFieldText);
    caption->setBuddy(box);
    cell->addWidget(caption);
    cell->addWidget(box);
    boxes_[at] = box;
    connect(box, &QLineEdit::editingFinished, this, [this, field] { Store(field); });
  }
  boxes_[kNameField]->setReadOnly(true);
  boxes_[kNameField]->setToolTip("The name is always the first field.");
  ShowCaptions();
  Arrange();
}

void FieldsEditor::ShowCaptions() {
  for (int field = 0; field < kProfileFields; ++field)
    boxes_[static_cast<std::size_t>(field)]->setText(Q(fields_.Caption(field)));
}

void FieldsEditor::Store(int field) {
  QLineEdit* box = boxes_[static_cast<std::size_t>(field)];
  if (Std(box->text()) == fields_.Caption(field)) return;
  const Outcome stored = fields_.SetCaption(field, Std(box->text()));
  box->setText(Q(fields_.Caption(field)));
  if (!stored.done) {
    host_.Message(MessageKind::Warning, "Profile Fields", stored.message);
    return;
  }
  if (changed_) changed_();
}

void FieldsEditor::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

void FieldsEditor::Arrange() {
  const int columns = std::clamp(width() / 210, 1, 4);
  if (columns == columns_) return;
  columns_ = columns;
  const int rows = (kProfileFields + columns - 1) / columns;
  for (int column = 0; column < 4; ++column) grid_->setColumnStretch(column, column < columns ? 1 : 0);
  for (int field = 0; field < kProfileFields; ++field)
    grid_->addWidget(cells_[static_cast<std::size_t>(field)], field % rows, field / rows);
}

}  // namespace kinalyx
