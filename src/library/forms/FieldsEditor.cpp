#include "library/forms/FieldsEditor.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "library/forms/Text.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kLeastColumn = 210;  // as designed

}  // namespace

FieldsEditor::FieldsEditor(IHost& host, ProfileFields& fields, std::function<void()> changed, QWidget* parent)
    : QWidget(parent), host_(host), fields_(fields), changed_(std::move(changed)) {
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 6, 0);
  auto* panel = new Panel("FieldsTitle", "Profile Fields");
  whole->addWidget(panel);
  whole->addStretch(1);
  auto* rows = new QVBoxLayout;
  rows->setContentsMargins(kGap, 10, kGap, 14);
  rows->setSpacing(10);
  rows->addWidget(MakeLabel("FieldsText", "What each line of a profile is called", "caption"));
  grid_ = new QGridLayout;
  grid_->setHorizontalSpacing(kGap);
  grid_->setVerticalSpacing(8);
  rows->addLayout(grid_);
  panel->Body()->addLayout(rows);
  for (int field = 0; field < kProfileFields; ++field) {
    const auto at = static_cast<std::size_t>(field);
    cells_[at] = new QWidget(panel);
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

void FieldsEditor::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::StyleChange && grid_) Arrange();
}

void FieldsEditor::Arrange() {
  const int columns = std::clamp(width() / Px(kLeastColumn), 1, 4);
  if (columns == columns_) return;
  columns_ = columns;
  const int rows = (kProfileFields + columns - 1) / columns;
  for (int column = 0; column < 4; ++column) grid_->setColumnStretch(column, column < columns ? 1 : 0);
  for (int field = 0; field < kProfileFields; ++field)
    grid_->addWidget(cells_[static_cast<std::size_t>(field)], field % rows, field / rows);
}

}  // namespace kinalyx
