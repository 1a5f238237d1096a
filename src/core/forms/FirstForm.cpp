#include "core/forms/FirstForm.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <tuple>

#include "core/MailSettings.h"
#include "core/Settings.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

/// What the settings hold before anybody has given a company.
constexpr const char* kNoCompany = "Company Name";

QLineEdit* AddBox(QVBoxLayout& rows, const QString& name, const QString& words) {
  QLabel* label = MakeLabel(name + "Lbl", words, "caption");
  auto* box = new QLineEdit;
  box->setObjectName(name);
  box->setMaxLength(149);
  label->setBuddy(box);
  rows.addWidget(label);
  rows.addWidget(box);
  rows.addSpacing(6);
  return box;
}

}  // namespace

FirstForm::FirstForm(Settings& settings, MailSettings& mail, QWidget* over)
    : QDialog(over), settings_(settings), mail_(mail) {
  setObjectName("FirstForm");
  setWindowTitle("Kinalyx Initial Setup");
  setModal(true);
  FixWidth(this, 440);

  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(28, 26, 28, 24);
  rows->setSpacing(5);
  rows->addWidget(MakeLabel("TitleLbl", "Welcome to Kinalyx", "title"));
  QLabel* words = MakeLabel("IntroLbl",
                            "Both appear on printouts and in your mails. They can be changed at any time "
                            "under Program Setup.",
                            "muted");
  words->setWordWrap(true);
  rows->addWidget(words);
  rows->addSpacing(12);
  name_ = AddBox(*rows, "UserInfo0", "Enter Your Name Here");
  company_ = AddBox(*rows, "UserInfo1", "Enter Your Company Name Here");
  AddKeys(*rows);
  rows->addSpacing(10);
  auto* actions = new QHBoxLayout;
  actions->addStretch(1);
  auto* finished = new Button("SSCommand1", "Finished");
  finished->setDefault(true);
  actions->addWidget(finished);
  rows->addLayout(actions);

  // Known already when the settings of an older version were taken over.
  if (!settings_.UserName.empty()) {
    name_->setText(Q(settings_.UserName));
    settings_.Set(settings_.UserName, settings_.UserName);
  }
  if (!settings_.CompanyName.empty() && settings_.CompanyName != kNoCompany) {
    company_->setText(Q(settings_.CompanyName));
    settings_.Set(settings_.CompanyName, settings_.CompanyName);
  }

  connect(name_, &QLineEdit::textChanged, this,
          [this](const QString& text) { settings_.Set(settings_.UserName, Std(text)); });
  connect(company_, &QLineEdit::textChanged, this, [this](const QString& text) {
    settings_.Set(settings_.CompanyName, Std(text));
    emit CompanyChanged(text);
  });
  connect(finished, &QPushButton::clicked, this, &FirstForm::Finish);
}

void FirstForm::AddKeys(QVBoxLayout& rows) {
  rows.addWidget(MakeLabel("KeysLbl", "Keys and tools", "caption"));
  auto* choice = new QHBoxLayout;
  choice->setSpacing(18);
  auto* ways = new QButtonGroup(this);
  for (const auto& [way, words, tip] :
       {std::tuple{kClassicKeys, "Classic", "Keys and drawing tools as they have always been"},
        {kEditorKeys, "Editor", "What was drawn is taken at once; soft lines in colors that stand out"}}) {
    auto* button = new QRadioButton(words);
    button->setObjectName(QString("KeysOpt%1").arg(way));
    button->setToolTip(tip);
    button->setChecked((settings_.KeysAndTools == kEditorKeys) == (way == kEditorKeys));
    ways->addButton(button, way);
    choice->addWidget(button);
  }
  choice->addStretch(1);
  rows.addLayout(choice);
  connect(ways, &QButtonGroup::idClicked, this, [this](int way) { settings_.Set(settings_.KeysAndTools, way); });
}

void FirstForm::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;  // it comes back from being minimised
  ScaleForm(*this, parentWidget() ? *parentWidget() : *this);
  name_->setFocus();
}

void FirstForm::paintEvent(QPaintEvent*) {
  // Its own ground and edge: in full screen there may be no frame around it.
  const Theme theme = CurrentTheme();
  QPainter painter(this);
  painter.fillRect(rect(), theme.field);
  painter.setPen(Mix(theme.line, theme.text, 0.3));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

/// Enter goes on to the next box; only in the last one it finishes the form.
void FirstForm::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && name_->hasFocus()) company_->setFocus(Qt::TabFocusReason);
  else QDialog::keyPressEvent(event);
}

void FirstForm::Finish() {
  mail_.TakeSender(settings_.UserName, settings_.CompanyName);
  accept();
}

}  // namespace kinalyx
