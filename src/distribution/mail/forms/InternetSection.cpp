#include "distribution/mail/forms/InternetSection.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QShowEvent>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

/// `txtEmail`, `ckEmail` and `WebIn`: what their indexes hold.
enum Email { kServer, kName, kAddress, kSubject, kLogin, kPassword, kPort };
enum Check { kTls, kSsl, kLoginWanted };
enum Web { kWebAddress, kWebLogin, kWebPassword, kFtpAddress };
/// `btnFTPISPSetup`.
enum SetupButton { kTestConnection, kReset, kTestSend };

constexpr MailSettings::Text kEmailTexts[] = {&MailSettings::SMTPServer,  &MailSettings::SenderName,
                                              &MailSettings::SenderEmail, &MailSettings::Subject,
                                              &MailSettings::Login,       &MailSettings::Password};
constexpr MailSettings::Flag kEmailFlags[] = {&MailSettings::UseTLS, &MailSettings::UseSSL,
                                              &MailSettings::LoginRequired};
constexpr MailSettings::Text kWebTexts[] = {&MailSettings::WebAddress, &MailSettings::WLogin, &MailSettings::WPassword,
                                            &MailSettings::FTPAddress};

constexpr int kLongestPassword = 512;
constexpr int kMostPort = 65535;
constexpr int kPortWidth = 70;

struct Service {
  const char* caption;
  const char* server;
  int port;
  bool ssl;  ///< else TLS
  const char* hint;
};

constexpr Service kServices[] = {
    {TrLater("Other"), "", 0, false,
     TrLater("The server, the port and the way of encryption are told by who keeps your mailbox.")},
    {"Yahoo", "smtp.mail.yahoo.com", 465, true,
     TrLater("Yahoo takes no password of the account here but an app password: a long one for this program alone. Your "
             "Yahoo "
             "account makes it under Security, Generate app password.")},
    {"GMail", "smtp.gmail.com", 465, true,
     TrLater("Google takes no password of the account here but an app password: a long one for this program alone. "
             "Switch on "
             "2-Step Verification, then make one at myaccount.google.com/apppasswords.")},
    {"HotMail", "smtp-mail.outlook.com", 587, false,
     TrLater(
         "Microsoft lets no other program send from Hotmail and Outlook.com with a password any more. Choose another "
         "service, "
         "or Other with the mailbox of your club.")},
};

/// Shows a text without moving the cursor of somebody who is typing the same. What stands for nothing is shown as such.
void ShowText(QLineEdit* box, const std::string& text, const char* nothing = "") {
  const QString shown = text == nothing ? QString() : Q(text);
  if (box->text() != shown) box->setText(shown);
}

}  // namespace

InternetSection::InternetSection(IHost& host, Settings& settings, MailSettings& mail, MakeSender makeSender,
                                 MakeServer makeServer, JobRunner::On on, QWidget* parent)
    : SetupSection("InternetSection", settings, parent),
      host_(host),
      mail_(mail),
      tests_(host, mail, *this, std::move(makeSender), std::move(makeServer), on) {
  AddMail();
  AddWebSpace();
  AddWords();
  Finish();
  Fill();
}

void InternetSection::AddMail() {
  QVBoxLayout* rows = AddPanel(0, tr("Mail"));
  auto* services = new QGridLayout;
  services->setSpacing(6);
  optMailService_ = new QButtonGroup(this);
  for (int index = 0; const Service& service : kServices) {
    auto* radio = new QRadioButton(tr(service.caption));
    radio->setObjectName(QString("optMailService%1").arg(index));
    optMailService_->addButton(radio, index);
    services->addWidget(radio, index / 2, index % 2);
    ++index;
  }
  rows->addWidget(MakeLabel({}, tr("Mail service"), "caption"));
  rows->addLayout(services);
  AddServer(*rows);
  AddLogin(*rows);
  serviceHint_ = MakeLabel("MailServiceHint", {}, "muted");
  serviceHint_->setWordWrap(true);
  rows->addWidget(serviceHint_);
  rows->addSpacing(4);
  txtEmail_[kName] = AddText(*rows, "txtEmail1", tr("Your name"));
  txtEmail_[kAddress] = AddText(*rows, "txtEmail2", tr("Your e-mail address"));
  txtEmail_[kAddress]->setPlaceholderText(kNoSender);
  txtEmail_[kSubject] = AddText(*rows, "txtEmail3", tr("Subject of your mails"));
  for (int index = kServer; index <= kPort; ++index)
    connect(txtEmail_[static_cast<std::size_t>(index)], &QLineEdit::textChanged, this,
            [this, index] { txtEmail_Change(index); });
  connect(optMailService_, &QButtonGroup::idClicked, this, &InternetSection::optMailService_Click);
  mailTest_ = AddTest(*rows, kTestSend, tr("Send a Test Mail"), "MailTest");
}

void InternetSection::AddServer(QVBoxLayout& rows) {
  auto* both = new QHBoxLayout;
  both->setSpacing(kGap);
  auto* server = new QVBoxLayout;
  auto* port = new QVBoxLayout;
  for (QVBoxLayout* column : {server, port}) column->setSpacing(rows.spacing());
  txtEmail_[kServer] = AddText(*server, "txtEmail0", tr("Mail server (SMTP)"));
  txtEmail_[kServer]->setPlaceholderText("mail.example.com");
  txtEmail_[kPort] = AddText(*port, "txtEmail6", tr("Port"));
  txtEmail_[kPort]->setValidator(new QIntValidator(1, kMostPort, txtEmail_[kPort]));
  FixWidth(txtEmail_[kPort], kPortWidth);
  both->addLayout(server, 1);
  both->addLayout(port);
  rows.addLayout(both);
  const char* const captions[] = {TrLater("Encrypted after the greeting (TLS)"),
                                  TrLater("Encrypted from the start (SSL)"), TrLater("The server asks for a login")};
  for (int index = kTls; index <= kLoginWanted; ++index) {
    auto* box = new QCheckBox(tr(captions[index]));
    box->setObjectName(QString("ckEmail%1").arg(index));
    connect(box, &QCheckBox::clicked, this, [this, index] { ckEmail_Click(index); });
    ckEmail_[static_cast<std::size_t>(index)] = box;
    rows.addWidget(box);
  }
}

void InternetSection::AddLogin(QVBoxLayout& rows) {
  txtEmail_[kLogin] = AddText(rows, "txtEmail4", tr("Login"));
  txtEmail_[kLogin]->setPlaceholderText(tr("Most often your e-mail address"));
  txtEmail_[kPassword] = AddPassword(rows, "txtEmail5", tr("Password"));
}

QLineEdit* InternetSection::AddPassword(QVBoxLayout& rows, const QString& name, const QString& caption) {
  auto* row = new QHBoxLayout;
  auto* column = new QVBoxLayout;
  column->setSpacing(rows.spacing());
  QLineEdit* box = AddText(*column, name, caption);
  box->setMaxLength(kLongestPassword);
  box->setEchoMode(QLineEdit::Password);
  box->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
  auto* eye = IconButton(name + "Eye", "eye", tr("Show the password"), Look::Quiet);
  eye->setCheckable(true);
  connect(eye, &QPushButton::toggled, box,
          [box](bool shown) { box->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password); });
  row->addLayout(column, 1);
  if (!passwordEye_) passwordEye_ = eye;  // that of the mail comes first
  row->addWidget(eye, 0, Qt::AlignBottom);
  rows.addLayout(row);
  return box;
}

void InternetSection::AddWebSpace() {
  QVBoxLayout* rows = AddPanel(1, tr("Web Space"));
  WebIn_[kWebAddress] = AddText(*rows, "WebIn0", tr("Web address, as a browser finds it"));
  WebIn_[kWebAddress]->setPlaceholderText("https://www.example.com");
  WebIn_[kFtpAddress] = AddText(*rows, "WebIn3", tr("FTP address"));
  WebIn_[kFtpAddress]->setPlaceholderText("ftp.example.com");
  WebIn_[kFtpAddress]->setToolTip(
      tr("Also ftps://, ftpes:// or sftp:// and the server, with a folder behind it if you like"));
  WebIn_[kWebLogin] = AddText(*rows, "WebIn1", tr("Login"));
  WebIn_[kWebPassword] = AddPassword(*rows, "WebIn2", tr("Password"));
  for (int index = kWebAddress; index <= kFtpAddress; ++index)
    connect(WebIn_[static_cast<std::size_t>(index)], &QLineEdit::textChanged, this,
            [this, index] { WebIn_Change(index); });
  FTPCombo_ = new QComboBox;
  FTPCombo_->setObjectName("FTPCombo");
  FTPCombo_->addItems({tr("Passive"), tr("Active")});
  FTPCombo_->setToolTip(tr("Passive goes through most routers"));
  QLabel* caption = MakeLabel({}, tr("Way of transfer"), "caption");
  caption->setBuddy(FTPCombo_);
  rows->addWidget(caption);
  rows->addWidget(FTPCombo_);
  connect(FTPCombo_, &QComboBox::currentIndexChanged, this, &InternetSection::FTPCombo_Click);
  webTest_ = AddTest(*rows, kTestConnection, tr("Test Connection"), "WebTest");
}

InternetSection::TestRow InternetSection::AddTest(QVBoxLayout& rows, int index, const QString& caption,
                                                  const QString& name) {
  TestRow test;
  const auto add = [&](QHBoxLayout& row, int button, const QString& words, const char* icon) {
    auto* made = new Button(QString("btnFTPISPSetup%1").arg(button), words, icon, Look::Quiet);
    connect(made, &QPushButton::clicked, this, [this, button] { btnFTPISPSetup_Click(button); });
    row.addWidget(made);
    return made;
  };
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  test.start = add(*row, index, caption, index == kTestSend ? "send" : "network");
  test.cancel = new Button(name + "Cancel", tr("Cancel"), {}, Look::Quiet);
  connect(test.cancel, &QPushButton::clicked, this, [this] { tests_.Cancel(); });
  row->addWidget(test.cancel);
  row->addStretch(1);
  if (index == kTestConnection) add(*row, kReset, tr("Reset"), "undo");
  rows.addSpacing(4);
  rows.addLayout(row);
  test.gauge = new QProgressBar;
  test.gauge->setObjectName(name + "Gauge");
  test.gauge->setRange(0, 0);
  test.gauge->setTextVisible(false);
  test.status = MakeLabel(name + "Status", {});
  test.status->setWordWrap(true);
  test.status->setTextInteractionFlags(Qt::TextSelectableByMouse);
  rows.addWidget(test.gauge);
  rows.addWidget(test.status);
  for (QWidget* part :
       {static_cast<QWidget*>(test.cancel), static_cast<QWidget*>(test.gauge), static_cast<QWidget*>(test.status)})
    part->hide();
  return test;
}

void InternetSection::AddWords() {
  QVBoxLayout* rows = AddPanel(1, tr("Your Passwords"));
  const QString who = mail_.OwnersAlone() ? tr("you alone can read the file")
                                          : tr("this drive cannot keep others from reading the file");
  auto* words = MakeLabel("MailFileLbl",
                          tr("The passwords lie in the file mail.ini of your data folder. They are scrambled there, "
                             "which hides them from a glance and no more; %1. Do not give it away.")
                              .arg(who),
                          "muted");
  words->setWordWrap(true);
  rows->addWidget(words);
  fault_ = MakeLabel("MailFault",
                     tr("The disk refuses to keep what you typed. It counts until Kinalyx closes, and is written with "
                        "your next change."));
  fault_->setWordWrap(true);
  fault_->hide();
  rows->addWidget(fault_);
}

// ---------------------------------------------------------------- what the settings hold

void InternetSection::showEvent(QShowEvent* event) {
  SetupSection::showEvent(event);
  // The name of a first run goes into them as well.
  if (!event->spontaneous()) Fill();
}

void InternetSection::Fill() {
  const bool before = std::exchange(settings_.Loading, true);
  SetupProgram();
  settings_.Loading = before;
}

void InternetSection::SetupProgram() {
  ShowText(txtEmail_[kServer], mail_.SMTPServer, kNoServer);
  ShowText(txtEmail_[kName], mail_.SenderName);
  ShowText(txtEmail_[kAddress], mail_.SenderEmail, kNoSender);
  ShowText(txtEmail_[kSubject], mail_.Subject);
  ShowText(txtEmail_[kLogin], mail_.Login, kNoMailLogin);
  ShowText(txtEmail_[kPassword], mail_.Password);
  ShowText(txtEmail_[kPort], std::to_string(mail_.SMTPPort));
  ShowText(WebIn_[kWebAddress], mail_.WebAddress);
  ShowText(WebIn_[kWebLogin], mail_.WLogin, kNoWebLogin);
  ShowText(WebIn_[kWebPassword], mail_.WPassword);
  ShowText(WebIn_[kFtpAddress], mail_.FTPAddress);
  FTPCombo_->setCurrentIndex(mail_.NextFTPMode);
  for (std::size_t index = 0; index < ckEmail_.size(); ++index) ckEmail_[index]->setChecked(mail_.*kEmailFlags[index]);
  optMailService_->button(mail_.EmailLock)->setChecked(true);
  ShowService();
}

/// What a provider has fixed cannot be typed.
void InternetSection::ShowService() {
  const bool other = mail_.EmailLock == 0;
  for (QWidget* box : {static_cast<QWidget*>(txtEmail_[kServer]), static_cast<QWidget*>(txtEmail_[kPort]),
                       static_cast<QWidget*>(ckEmail_[kTls]), static_cast<QWidget*>(ckEmail_[kSsl])})
    box->setEnabled(other);
  for (QWidget* box : {static_cast<QWidget*>(txtEmail_[kLogin]), static_cast<QWidget*>(txtEmail_[kPassword]),
                       static_cast<QWidget*>(passwordEye_)})
    box->setEnabled(mail_.LoginRequired);
  QString hint = tr(kServices[mail_.EmailLock].hint);
  if (mail_.LoginRequired && !mail_.UseTLS && !mail_.UseSSL)
    hint += ' ' + tr("Without encryption anybody on the way can read your password.");
  serviceHint_->setText(hint);
}

void InternetSection::Wrote(bool written) { fault_->setVisible(!written); }

// ---------------------------------------------------------------- handlers

void InternetSection::optMailService_Click(int index) {
  if (settings_.Loading) return;
  Wrote(mail_.Set(&MailSettings::EmailLock, index));
  const Service& service = kServices[index];
  if (service.port) {
    Wrote(mail_.Set(&MailSettings::UseTLS, !service.ssl));
    Wrote(mail_.Set(&MailSettings::UseSSL, service.ssl));
    Wrote(mail_.Set(&MailSettings::LoginRequired, true));
    txtEmail_[kServer]->setText(service.server);
    txtEmail_[kPort]->setText(QString::number(service.port));
    for (std::size_t each = 0; each < ckEmail_.size(); ++each) ckEmail_[each]->setChecked(mail_.*kEmailFlags[each]);
  }
  ShowService();
}

void InternetSection::txtEmail_Change(int index) {
  if (settings_.Loading) return;
  ForgetResult(mailTest_);
  const QString text = txtEmail_[static_cast<std::size_t>(index)]->text();
  if (index != kPort) return Wrote(mail_.Set(kEmailTexts[index], Std(text)));
  // Half a number is none yet.
  if (txtEmail_[kPort]->hasAcceptableInput())
    Wrote(mail_.Set(&MailSettings::SMTPPort, txtEmail_[kPort]->locale().toInt(text)));
}

/// A connection is encrypted in one way.
void InternetSection::ckEmail_Click(int index) {
  if (settings_.Loading) return;
  ForgetResult(mailTest_);
  const auto store = [this](int each) {
    const auto at = static_cast<std::size_t>(each);
    Wrote(mail_.Set(kEmailFlags[each], ckEmail_[at]->isChecked()));
  };
  store(index);
  const int otherWay = index == kTls ? kSsl : kTls;
  if (index != kLoginWanted && ckEmail_[static_cast<std::size_t>(index)]->isChecked()) {
    ckEmail_[static_cast<std::size_t>(otherWay)]->setChecked(false);
    store(otherWay);
  }
  ShowService();
}

void InternetSection::WebIn_Change(int index) {
  if (settings_.Loading) return;
  ForgetResult(webTest_);
  Wrote(mail_.Set(kWebTexts[index], Std(WebIn_[static_cast<std::size_t>(index)]->text())));
}

void InternetSection::FTPCombo_Click() {
  if (settings_.Loading) return;
  Wrote(mail_.Set(&MailSettings::NextFTPMode, FTPCombo_->currentIndex()));
  host_.Message(MessageKind::Information, "", Tr("You must restart Kinalyx for this change to take effect."));
}

/// What a test has found holds no longer once something is changed.
void InternetSection::ForgetResult(const TestRow& row) {
  if (row.gauge->isHidden()) row.status->hide();
}

void InternetSection::btnFTPISPSetup_Click(int index) {
  if (index == kTestSend || index == kTestConnection) {
    if (tests_.Busy()) return;
    RowOf(index == kTestSend ? ServerTest::Mail : ServerTest::WebSpace).status->clear();
    index == kTestSend ? tests_.TestSend() : tests_.TestConnection();
    ShowTests();
    return;
  }
  if (!host_.Question(
          Tr("Reset to Default?"),
          Tr("This will reset your ftp settings to the test site. None comes with Kinalyx: the addresses, the "
             "login and the password are emptied.\n\nDo you want to continue?")))
    return;
  WebIn_[kWebAddress]->clear();
  WebIn_[kFtpAddress]->clear();
  WebIn_[kWebPassword]->clear();
  Wrote(mail_.Set(&MailSettings::WLogin, kNoWebLogin));
  const bool before = std::exchange(settings_.Loading, true);
  WebIn_[kWebLogin]->clear();
  settings_.Loading = before;
}

// ---------------------------------------------------------------- tests

/// One test at a time; that under way can be cancelled.
void InternetSection::ShowTests() {
  const bool busy = tests_.Busy();
  for (TestRow* row : {&mailTest_, &webTest_}) {
    // A button that goes hands the keys to its neighbour, which is not what was meant.
    if (busy && row->start->hasFocus()) {
      row->cancel->show();
      row->cancel->setFocus();
    }
    row->start->setEnabled(!busy);
    if (busy) continue;
    if (row->cancel->hasFocus()) row->start->setFocus();
    row->cancel->hide();
    row->gauge->hide();
  }
}

void InternetSection::TestStatus(ServerTest test, const std::string& words) {
  TestRow& row = RowOf(test);
  row.status->setText(Q(words));
  for (QWidget* part :
       {static_cast<QWidget*>(row.cancel), static_cast<QWidget*>(row.gauge), static_cast<QWidget*>(row.status)})
    part->show();
}

void InternetSection::TestOver(ServerTest test, const std::string& words, bool good) {
  TestRow& row = RowOf(test);
  row.status->setText(Q(words));
  row.status->setProperty("good", good);
  row.status->show();
  ShowTests();
}

}  // namespace kinalyx
