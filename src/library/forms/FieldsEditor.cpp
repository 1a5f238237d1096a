#include "library/forms/FieldsEditor.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "library/forms/FieldBoxes.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

FieldsEditor::FieldsEditor(IHost& host, ProfileFields& fields, QWidget* parent)
    : QWidget(parent), host_(host), fields_(fields) {
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 6, 0);
  auto* panel = new Panel("FieldsTitle", tr("Profile Fields"));
  whole->addWidget(panel);
  whole->addStretch(1);
  auto* rows = new QVBoxLayout;
  rows->setContentsMargins(kGap, 10, kGap, 14);
  rows->setSpacing(10);
  rows->addWidget(MakeLabel("FieldsText", tr("What each line of a profile is called"), "caption"));
  QLabel* note = MakeLabel("FieldsNote", tr("A field that is renamed keeps its values."), "muted");
  note->setWordWrap(true);
  rows->addWidget(note);
  boxes_ = new FieldBoxes("SPEditlbl", "SPEdittext");
  rows->addWidget(boxes_);
  panel->Body()->addLayout(rows);
  for (int field = 0; field < kProfileFields; ++field) {
    boxes_->SetCaption(field, tr("Field %1").arg(field + 1));
    connect(&boxes_->Box(field), &QLineEdit::editingFinished, this, [this, field] { Store(field); });
  }
  boxes_->Box(kNameField).setReadOnly(true);
  boxes_->Box(kNameField).setToolTip(tr("The name is always the first field."));
  boxes_->SetTexts(ShownCaptions(fields_.Captions()));
}

void FieldsEditor::Store(int field) {
  QLineEdit& box = boxes_->Box(field);
  const std::string shown = ShownCaption(field, fields_.Caption(field));
  if (Std(box.text()) == shown) return;
  const Outcome stored = fields_.SetCaption(field, Std(box.text()));
  box.setText(Q(ShownCaption(field, fields_.Caption(field))));
  if (!stored) {
    host_.Message(MessageKind::Warning, Tr("Profile Fields"), stored.Why());
    return;
  }
  emit FieldsChanged();
}

}  // namespace kinalyx
