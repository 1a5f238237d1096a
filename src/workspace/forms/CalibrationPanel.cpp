#include "workspace/forms/CalibrationPanel.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

double Typed(const QString& text) {
  bool good = false;
  const double value = QString(text).replace(',', '.').toDouble(&good);
  return good ? value : 0;
}

}  // namespace

CalibrationPanel::CalibrationPanel(RulerCalibration& ruler, const Settings& settings, QWidget* parent)
    : FloatCard("TransFrame5", tr("Calibrate Ruler"), parent), ruler_(ruler), settings_(settings) {
  QLabel* words = MakeLabel(
      "CalibHelp", tr("Draw a line along something whose length you know, then type that length."), nullptr, this);
  words->setWordWrap(true);
  FixWidth(words, 280);
  Body()->addWidget(words);

  auto* row = new QHBoxLayout;
  row->addWidget(MakeLabel("Label3", tr("Line drawn"), nullptr, this));
  length_ = MakeLabel("Label4", "", nullptr, this);
  LeastWidth(length_, 64);
  FixFont(length_, kTextPixels, 600);
  row->addWidget(length_, 1);
  row->addWidget(MakeLabel("Label5", tr("Length"), nullptr, this));
  typed_ = new QLineEdit(this);
  typed_->setObjectName("Text2");
  typed_->setAccessibleName(tr("Length"));
  FixWidth(typed_, 84);
  typed_->setMaxLength(12);
  row->addWidget(typed_);
  Body()->addLayout(row);

  auto* columns = new QHBoxLayout;
  columns->setSpacing(24);
  columns->addLayout(Units(tr("Length is in"), 0));
  columns->addLayout(Units(tr("Show lines in"), 4));
  Body()->addLayout(columns);

  auto* present = new QHBoxLayout;
  rulerWords_ = MakeLabel("VideoRuler", "", nullptr, this);
  rulerWords_->setProperty("muted", true);
  present->addWidget(rulerWords_, 1);
  remove_ = new QPushButton(tr("Remove"), this);
  remove_->setObjectName("RemoveRuler");
  remove_->setToolTip(tr("This video is measured in pixels again"));
  remove_->setFocusPolicy(Qt::TabFocus);
  connect(remove_, &QPushButton::clicked, this, [this] { ruler_.RemoveRuler(); });
  present->addWidget(remove_);
  Body()->addLayout(present);

  auto* buttons = new QHBoxLayout;
  ok_ = new QPushButton(tr("OK"), this);
  ok_->setObjectName("CalibBtn0");
  ok_->setProperty("main", true);
  auto* cancel = new QPushButton(tr("Cancel"), this);
  cancel->setObjectName("CalibBtn1");
  for (QPushButton* button : {ok_, cancel}) {
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoDefault(true);  // Return presses the one that has the keys
    buttons->addWidget(button, 1);
  }
  Body()->addLayout(buttons);
  connect(typed_, &QLineEdit::textChanged, this, [this] { Enable(); });
  connect(typed_, &QLineEdit::returnPressed, this, [this] {
    if (ok_->isEnabled()) Calibrate();
  });
  connect(ok_, &QPushButton::clicked, this, [this] { Calibrate(); });
  connect(cancel, &QPushButton::clicked, this, [this] { ruler_.CancelCalibration(); });
  connect(this, &FloatCard::CloseWanted, this, [this] { ruler_.CancelCalibration(); });
  Enable();
}

QLayout* CalibrationPanel::Units(const QString& title, int first) {
  auto* column = new QVBoxLayout;
  column->setSpacing(4);
  QLabel* caption = MakeLabel(QString("UnitsTitle%1").arg(first), title, nullptr, this);
  caption->setProperty("muted", true);
  column->addWidget(caption);
  auto* group = new QButtonGroup(this);
  const QString names[] = {tr("Inches"), tr("Feet"), tr("Centimeters"), tr("Meters")};
  for (int i = 0; i < 4; ++i) {
    auto* unit = new QRadioButton(names[i], this);
    unit->setObjectName(QString("SSOption1_%1").arg(first + i));
    group->addButton(unit);
    column->addWidget(unit);
    units_[static_cast<std::size_t>(first + i)] = unit;
  }
  return column;
}

int CalibrationPanel::UnitFrom(int first) const {
  for (int i = 0; i < 4; ++i)
    if (units_[static_cast<std::size_t>(first + i)]->isChecked()) return i;
  return kFeet;
}

void CalibrationPanel::Begin() {
  typed_->clear();
  length_->clear();
  units_[static_cast<std::size_t>(std::clamp(settings_.CalibInput, 0, 3))]->setChecked(true);
  units_[static_cast<std::size_t>(4 + std::clamp(settings_.CalibOutput, 0, 3))]->setChecked(true);
  Enable();
  Open(Place::Top);
}

void CalibrationPanel::SetLength(const QString& length) {
  length_->setText(length);
  Enable();
  // The next thing that is wanted is a number, and its figures must not be taken for commands.
  if (!length.isEmpty()) typed_->setFocus();
}

void CalibrationPanel::SetVideoRuler(const QString& words) {
  rulerWords_->setText(words.isEmpty() ? tr("This video has no ruler yet.") : words);
  remove_->setEnabled(!words.isEmpty());
}

void CalibrationPanel::Enable() {
  const bool drawn = !length_->text().isEmpty();
  ok_->setEnabled(drawn && Typed(typed_->text()) > 0);
  ok_->setToolTip(!drawn ? tr("Draw a line first") : ok_->isEnabled() ? "" : tr("Type the length of the line first"));
}

void CalibrationPanel::Calibrate() {
  ruler_.Calibrate(Typed(typed_->text()), static_cast<LengthUnit>(UnitFrom(0)), static_cast<LengthUnit>(UnitFrom(4)));
}

}  // namespace kinalyx
