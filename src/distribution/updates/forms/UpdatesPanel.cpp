#include "distribution/updates/forms/UpdatesPanel.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

UpdatesPanel::UpdatesPanel(Settings& settings, MailSettings& mail, UpdateCheck& check, QWidget* parent)
    : Panel("UpdatesTitle", tr("Updates"), parent), settings_(settings), mail_(mail), check_(check) {
  auto* body = new QWidget;
  auto* rows = new QVBoxLayout(body);
  rows->setContentsMargins(12, 10, 12, 12);
  rows->setSpacing(6);
  const auto addText = [&](const char* name, const QString& caption, const QString& hint, MailSettings::Text field) {
    auto* edit = new QLineEdit(Q(mail_.*field));
    edit->setObjectName(name);
    edit->setPlaceholderText(hint);
    QLabel* label = MakeLabel({}, caption, "caption");
    label->setBuddy(edit);
    rows->addWidget(label);
    rows->addWidget(edit);
    connect(edit, &QLineEdit::textEdited, this,
            [this, field](const QString& typed) { mail_.Set(field, Std(typed.trimmed())); });
  };
  addText("UpdateServer", tr("Server for updates"), "ftp.example.com", &MailSettings::UpdateServer);
  addText("UpdatePage", tr("Page from which a new version is fetched"), "https://www.example.com",
          &MailSettings::UpdatePage);
  auto* start = new QCheckBox(tr("Look for a new version at start"));
  start->setObjectName("UpdateCheck");
  start->setChecked(settings_.UpdateCheck == "1");
  connect(start, &QCheckBox::clicked, this,
          [this](bool on) { settings_.Set(settings_.UpdateCheck, std::string(on ? "1" : "0")); });
  rows->addWidget(start);
  auto* record = new QCheckBox(tr("Tell that server that Kinalyx is used"));
  record->setObjectName("UsageRecord");
  record->setToolTip(tr("With each check a line goes there: the day, and whether you or the start asked. No more."));
  record->setChecked(mail_.UsageRecord);
  connect(record, &QCheckBox::clicked, this, [this](bool on) { mail_.Set(&MailSettings::UsageRecord, on); });
  rows->addWidget(record);
  auto* words = MakeLabel("UpdatesLbl",
                          tr("With each check a line goes there: the day, and whether you or the start asked. No more, "
                             "and nothing where the box is empty. While no server stands here nothing is contacted."),
                          "muted");
  words->setWordWrap(true);
  rows->addWidget(words);
  now_ = new Button("UpdateNow", tr("Check for Updates"), "loop", Look::Quiet);
  connect(now_, &QPushButton::clicked, this, [this] { check_.CheckForUpdates(false); });
  rows->addSpacing(4);
  rows->addWidget(now_, 0, Qt::AlignLeft);
  Body()->addWidget(body);
  ShowState();
}

void UpdatesPanel::ShowState() {
  now_->setEnabled(!check_.Busy());
  now_->setText(check_.Busy() ? tr("Looking...") : tr("Check for Updates"));
}

}  // namespace kinalyx
