#include "core/forms/FirstForm.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <string>
#include <tuple>

#include "core/ColorSchemes.h"
#include "core/Heading.h"
#include "core/MailSettings.h"
#include "core/Settings.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

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

/// A row of choices under a caption; each has a number, words and a tip, and is called after its number.
QButtonGroup* AddChoice(QWidget& form, QVBoxLayout& rows, const QString& name, const QString& caption,
                        std::initializer_list<std::tuple<int, const char*, const char*>> choices, int chosen) {
  rows.addWidget(MakeLabel(name + "Lbl", caption, "caption"));
  auto* row = new QHBoxLayout;
  row->setSpacing(18);
  auto* group = new QButtonGroup(&form);
  for (const auto& [number, words, tip] : choices) {
    auto* button = new QRadioButton(QObject::tr(words));
    button->setObjectName(QString("%1Opt%2").arg(name).arg(number));
    button->setToolTip(QObject::tr(tip));
    button->setChecked(number == chosen);
    group->addButton(button, number);
    row->addWidget(button);
  }
  row->addStretch(1);
  rows.addLayout(row);
  return group;
}

}  // namespace

FirstForm::FirstForm(Settings& settings, MailSettings& mail, ColorSchemes& schemes, QWidget* over)
    : QDialog(over), settings_(settings), mail_(mail), schemes_(schemes) {
  setObjectName("FirstForm");
  setWindowTitle(tr("Kinalyx Initial Setup"));
  setModal(true);
  FixWidth(this, 440);

  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(28, 26, 28, 24);
  rows->setSpacing(5);
  rows->addWidget(MakeLabel("TitleLbl", tr("Welcome to Kinalyx"), "title"));
  QLabel* words = MakeLabel("IntroLbl",
                            tr("Name and company appear on printouts and in your mails. All of this can be changed "
                               "at any time under Program Setup."),
                            "muted");
  words->setWordWrap(true);
  rows->addWidget(words);
  rows->addSpacing(12);
  name_ = AddBox(*rows, "UserInfo0", tr("Enter Your Name Here"));
  company_ = AddBox(*rows, "UserInfo1", tr("Enter Your Company Name Here"));
  AddLook(*rows);
  rows->addSpacing(6);
  AddKeys(*rows);
  rows->addSpacing(10);
  auto* actions = new QHBoxLayout;
  actions->addStretch(1);
  auto* finished = new Button("SSCommand1", tr("Finished"));
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

/// A new user begins in the dark room, where the film is the only color.
void FirstForm::AddLook(QVBoxLayout& rows) {
  looks_ = AddChoice(*this, rows, "Look", tr("Look"),
                     {{kDarkRoom, TrLater("Dark Room"), TrLater("Dark: the film is the only color")},
                      {kBlueWhite, TrLater("Blue White"), TrLater("Light, as it has always been")}},
                     kDarkRoom);
  connect(looks_, &QButtonGroup::idClicked, this, &FirstForm::WearLook);
}

void FirstForm::AddKeys(QVBoxLayout& rows) {
  const QButtonGroup* ways =
      AddChoice(*this, rows, "Keys", tr("Keys and tools"),
                {{kClassicKeys, TrLater("Classic"), TrLater("Keys and drawing tools as they have always been")},
                 {kEditorKeys, TrLater("Editor"),
                  TrLater("What was drawn is taken at once; soft lines in colors that stand out")}},
                settings_.KeysAndTools == kEditorKeys ? kEditorKeys : kClassicKeys);
  connect(ways, &QButtonGroup::idClicked, this, [this](int way) { settings_.Set(settings_.KeysAndTools, way); });
}

void FirstForm::WearLook(int design) {
  if (design != schemes_.Design() && schemes_.ApplyDesign(std::to_string(design))) emit DesignChanged();
}

void FirstForm::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;  // it comes back from being minimised
  WearLook(looks_->checkedId());
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
  settings_.Set(settings_.Design, std::to_string(looks_->checkedId()));
  mail_.TakeSender(settings_.UserName, settings_.CompanyName);
  accept();
}

void FirstForm::reject() {
  if (schemes_.ApplyDesign(settings_.Design)) emit DesignChanged();
  QDialog::reject();
}

}  // namespace kinalyx
