#include "distribution/mail/forms/MailForm.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <algorithm>
#include <utility>

#include "distribution/mail/forms/EmailListForm.h"
#include "distribution/mail/forms/MailPicture.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

/// `EmailBtn` and `SSCommand1`: what their indexes do.
enum EmailButton { kSend, kClose, kDelete, kClear };
enum Turn { kPrevious, kNext };

constexpr QSize kPictureRoom{500, 380};
constexpr int kMailWidth = 340;
constexpr int kLongestSubject = 250;
constexpr int kWhole = 1000;
constexpr double kMegabyte = 1e6;

}  // namespace

MailForm::MailForm(Parts parts, QWidget* over)
    : QDialog(over), host_(parts.host), desk_(parts.desk), reader_(std::move(parts.reader)) {
  setObjectName("MailForm");
  setWindowModality(Qt::WindowModal);
  setWindowTitle(tr("Send Pictures to %1").arg(Q(reader_.student)).trimmed());
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(20, 18, 20, 18);
  rows->setSpacing(14);
  QLabel* title = MakeLabel("MailTitle", windowTitle(), "title");
  title->setMinimumWidth(20);
  rows->addWidget(title);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(20);
  columns->addWidget(MakePictures(), 1);
  columns->addWidget(MakeMail());
  rows->addLayout(columns, 1);
  rows->addWidget(MakeFoot());
  desk_.Tell(this);
  ScaleForm(*this, *over->window());
  ShowPicture();
  ShowState();
  if (reader_.addresses.empty()) address_[0]->setFocus();
  else EmailBtn_[kSend]->setFocus();
}

MailForm::~MailForm() { desk_.Tell(nullptr); }

QWidget* MailForm::MakePictures() {
  auto* part = new QWidget;
  auto* rows = new QVBoxLayout(part);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(8);
  picture_ = new MailPicture("MailPicture");
  LeastWidth(picture_, kPictureRoom.width());
  LeastHeight(picture_, kPictureRoom.height());
  rows->addWidget(picture_, 1);
  auto* bar = new QHBoxLayout;
  bar->setSpacing(8);
  SSCommand1_[kPrevious] = IconButton("SSCommand1_0", "chevron-left", tr("Previous picture"), Look::Quiet);
  SSCommand1_[kNext] = IconButton("SSCommand1_1", "chevron-right", tr("Next picture"), Look::Quiet);
  count_ = MakeLabel("MailCountLbl", tr("Picture 0 of 0"));
  bytes_ = MakeLabel("MailBytesLbl", {}, "muted");
  EmailBtn_[kDelete] = new Button("EmailBtn2", tr("Delete Picture"), "trash", Look::Quiet);
  EmailBtn_[kClear] = new Button("EmailBtn3", tr("Delete All and Close"), {}, Look::Quiet);
  bar->addWidget(SSCommand1_[kPrevious]);
  bar->addWidget(SSCommand1_[kNext]);
  bar->addWidget(count_);
  bar->addWidget(bytes_);
  bar->addStretch(1);
  bar->addWidget(EmailBtn_[kDelete]);
  bar->addWidget(EmailBtn_[kClear]);
  rows->addLayout(bar);
  for (const int turn : {kPrevious, kNext})
    connect(SSCommand1_[static_cast<std::size_t>(turn)], &QPushButton::clicked, this,
            [this, turn] { SSCommand1_Click(turn); });
  return part;
}

QWidget* MailForm::MakeMail() {
  auto* part = new QWidget;
  FixWidth(part, kMailWidth);
  auto* rows = new QVBoxLayout(part);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(6);
  AddAddresses(*rows);
  rows->addSpacing(6);
  const auto caption = [&](const QString& words, QWidget* box) {
    QLabel* label = MakeLabel({}, words, "caption");
    label->setBuddy(box);
    rows->addWidget(label);
    rows->addWidget(box);
  };
  subject_ = new QLineEdit(Q(desk_.Settings().Subject));
  subject_->setObjectName("MailSubject");
  subject_->setMaxLength(kLongestSubject);
  caption(tr("Subject"), subject_);
  body_ = new QPlainTextEdit(tr("Here are the pictures of your video analysis."));
  body_->setObjectName("MailBody");
  body_->setTabChangesFocus(true);
  caption(tr("A few words"), body_);
  rows->setStretchFactor(body_, 1);
  return part;
}

void MailForm::AddAddresses(QVBoxLayout& rows) {
  auto* head = new QHBoxLayout;
  head->addWidget(MakeLabel({}, tr("To, up to three addresses"), "caption"), 1);
  list_ = new Button("EmailListBtn", tr("Choose..."), {}, Look::Quiet);
  list_->setToolTip(tr("The addresses in the profile"));
  list_->setEnabled(!reader_.addresses.empty());
  head->addWidget(list_);
  rows.addLayout(head);
  for (std::size_t index = 0; index < address_.size(); ++index) {
    auto* box = new QComboBox;
    box->setObjectName(QString("EmailCombo%1").arg(index));
    box->setAccessibleName(tr("Email %1").arg(index + 1));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->addItems(Q(reader_.addresses));
    box->setCurrentIndex(-1);
    box->lineEdit()->setPlaceholderText(box->accessibleName());
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    rows.addWidget(box);
    address_[index] = box;
  }
  if (!reader_.addresses.empty()) address_[0]->setEditText(Q(reader_.addresses.front()));
  connect(list_, &QPushButton::clicked, this, &MailForm::ChooseAddresses);
}

QWidget* MailForm::MakeFoot() {
  auto* part = new QWidget;
  auto* row = new QHBoxLayout(part);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  auto* news = new QVBoxLayout;
  news->setSpacing(6);
  status_ = MakeLabel("MailStatusLbl", {});
  status_->setWordWrap(true);
  gauge_ = new QProgressBar;
  gauge_->setObjectName("MailGauge");
  gauge_->setTextVisible(false);
  QSizePolicy keeps = gauge_->sizePolicy();
  keeps.setRetainSizeWhenHidden(true);
  gauge_->setSizePolicy(keeps);
  gauge_->hide();
  news->addWidget(status_);
  news->addWidget(gauge_);
  EmailBtn_[kClose] = new Button("EmailBtn1", tr("Close"), {}, Look::Quiet);
  EmailBtn_[kSend] = new Button("EmailBtn0", tr("Send"), "send");
  row->addLayout(news, 1);
  row->addWidget(EmailBtn_[kClose], 0, Qt::AlignBottom);
  row->addWidget(EmailBtn_[kSend], 0, Qt::AlignBottom);
  for (std::size_t index = 0; index < EmailBtn_.size(); ++index) {
    EmailBtn_[index]->setAutoDefault(false);
    connect(EmailBtn_[index], &QPushButton::clicked, this, [this, index] { EmailBtn_Click(static_cast<int>(index)); });
  }
  return part;
}

// ---------------------------------------------------------------- pictures

void MailForm::SSCommand1_Click(int index) {
  shown_ += index == kNext ? 1 : -1;
  ShowPicture();
}

void MailForm::ShowPicture() {
  const std::vector<std::string> pictures = desk_.Queue().Pictures();
  const int count = static_cast<int>(pictures.size());
  shown_ = std::clamp(shown_, 0, std::max(0, count - 1));
  picture_->ShowFile(count ? pictures[static_cast<std::size_t>(shown_)] : std::string());
  count_->setText(tr("Picture %1 of %2").arg(count ? shown_ + 1 : 0).arg(count));
  bytes_->setText(count ? tr("%1 MB in all").arg(static_cast<double>(desk_.Queue().Bytes()) / kMegabyte, 0, 'f', 1)
                        : QString());
  ShowState();
}

void MailForm::DeletePicture() {
  const std::vector<std::string> pictures = desk_.Queue().Pictures();
  if (shown_ >= static_cast<int>(pictures.size())) return ShowPicture();
  const Outcome gone = desk_.Queue().Delete(pictures[static_cast<std::size_t>(shown_)]);
  if (!gone) host_.Message(MessageKind::Warning, "", gone.Why());
  ShowPicture();
}

void MailForm::ClearEmailQueue() {
  const int count = desk_.Queue().Count();
  const std::string question = count == 1 ? Tr("Do you want to delete the picture without sending?")
                                          : Tr("Do you want to delete all {} pictures without sending?", count);
  if (count && !host_.Question("", question)) return;
  const Outcome cleared = desk_.Queue().ClearEmailQueue();
  if (cleared) return done(QDialog::Rejected);
  host_.Message(MessageKind::Warning, "", cleared.Why());
  ShowPicture();
}

// ---------------------------------------------------------------- the mail

void MailForm::ChooseAddresses() {
  std::vector<std::string> typed;
  for (const QComboBox* box : address_) typed.push_back(Std(box->currentText().trimmed()));
  EmailListForm form(Q(reader_.student), reader_.addresses, typed, this);
  if (form.exec() != QDialog::Accepted) return;
  std::vector<std::string> chosen = form.Chosen();
  // What was typed and is not in the list stays.
  for (const std::string& address : typed)
    if (!address.empty() && chosen.size() < address_.size() &&
        std::ranges::find(reader_.addresses, address) == reader_.addresses.end())
      chosen.push_back(address);
  for (std::size_t index = 0; index < address_.size(); ++index)
    address_[index]->setEditText(index < chosen.size() ? Q(chosen[index]) : QString());
}

void MailForm::EmailBtn_Click(int index) {
  switch (index) {
    case kSend: return Send();
    case kClose: return reject();
    case kDelete: return DeletePicture();
    case kClear: return ClearEmailQueue();
    default: return;
  }
}

void MailForm::Send() {
  MailWish wish;
  for (std::size_t index = 0; index < address_.size(); ++index) wish.to[index] = Std(address_[index]->currentText());
  wish.subject = Std(subject_->text());
  wish.body = Std(body_->toPlainText());
  const Outcome begun = desk_.Send(wish);
  if (!begun) host_.Message(MessageKind::Information, "", begun.Why());
  ShowState();
}

/// What can be done now. A mail under way is made of what stands in the form.
void MailForm::ShowState() {
  const bool busy = desk_.Busy();
  const int count = desk_.Queue().Count();
  EmailBtn_[kSend]->setEnabled(!busy && count > 0);
  EmailBtn_[kDelete]->setEnabled(!busy && count > 0);
  EmailBtn_[kClear]->setEnabled(!busy && count > 0);
  EmailBtn_[kClose]->setText(busy ? tr("Cancel") : tr("Close"));
  SSCommand1_[kPrevious]->setEnabled(shown_ > 0);
  SSCommand1_[kNext]->setEnabled(shown_ + 1 < count);
  for (QComboBox* box : address_) box->setEnabled(!busy && !sent_);
  list_->setEnabled(!busy && !sent_ && !reader_.addresses.empty());
  subject_->setEnabled(!busy && !sent_);
  body_->setEnabled(!busy && !sent_);
  gauge_->setVisible(busy);
}

void MailForm::MailStatus(const std::string& words, double part) {
  status_->setText(Q(words));
  gauge_->setRange(0, part < 0 ? 0 : kWhole);
  if (part >= 0) gauge_->setValue(static_cast<int>(part * kWhole));
}

void MailForm::MailSent(const std::string& words) {
  status_->setText(Q(words));
  sent_ = true;
  shown_ = 0;
  ShowPicture();
  EmailBtn_[kClose]->setFocus();
}

void MailForm::MailFailed(const std::string& words) {
  status_->setText(tr("Not sent. The pictures stay in the queue."));
  ShowState();
  host_.Message(MessageKind::Warning, "", words);
}

void MailForm::MailCancelled() {
  status_->setText(tr("Cancelled. The pictures stay in the queue."));
  ShowState();
}

void MailForm::reject() {
  if (!desk_.Busy()) return done(sent_ ? QDialog::Accepted : QDialog::Rejected);
  status_->setText(tr("Cancelling..."));
  desk_.Cancel();
}

}  // namespace kinalyx
