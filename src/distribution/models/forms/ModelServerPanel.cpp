#include "distribution/models/forms/ModelServerPanel.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "platform/files/Tr.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"

namespace kinalyx {
namespace {

struct ServerBox {
  const char* name;
  const char* caption;
  const char* hint;
  MailSettings::Text text;
};
constexpr ServerBox kBoxes[] = {
    {"ModelServer", TrLater("Server for model videos"), "ftp.example.com", &MailSettings::ModelServer},
    {"ModelLogin", TrLater("Login"), TrLater("Empty: as a guest"), &MailSettings::ModelLogin},
    {"ModelPassword", TrLater("Password"), "", &MailSettings::ModelPassword},
};
constexpr int kLongest = 512;

}  // namespace

ModelServerPanel::ModelServerPanel(MailSettings& mail, QWidget* parent)
    : Panel("ModelServerTitle", tr("Model Videos"), parent), mail_(mail) {
  auto* body = new QWidget;
  auto* rows = new QVBoxLayout(body);
  rows->setContentsMargins(12, 10, 12, 12);
  rows->setSpacing(6);
  for (const ServerBox& box : kBoxes) {
    auto* edit = new QLineEdit(Q(mail_.*box.text));
    edit->setObjectName(box.name);
    edit->setPlaceholderText(tr(box.hint));
    edit->setMaxLength(kLongest);
    if (box.text == &MailSettings::ModelPassword) {
      edit->setEchoMode(QLineEdit::Password);
      edit->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
    }
    QLabel* caption = MakeLabel({}, tr(box.caption), "caption");
    caption->setBuddy(edit);
    rows->addWidget(caption);
    rows->addWidget(edit);
    connect(edit, &QLineEdit::textEdited, this, [this, field = box.text](const QString& typed) {
      fault_->setVisible(!mail_.Set(field, Std(typed.trimmed())));
    });
  }
  auto* words = MakeLabel("ModelServerLbl",
                          tr("Your club or association tells it, if it has one. While nothing stands here nothing is "
                             "contacted."),
                          "muted");
  words->setWordWrap(true);
  fault_ =
      MakeLabel("ModelServerFault", tr("The disk refuses to keep what you typed. It counts until Kinalyx closes."));
  fault_->setWordWrap(true);
  fault_->hide();
  rows->addWidget(words);
  rows->addWidget(fault_);
  Body()->addWidget(body);
}

}  // namespace kinalyx
