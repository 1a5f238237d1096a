#include "distribution/web/forms/FTPUploadForm.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"

namespace kinalyx {
namespace {

constexpr int kWide = 520;
constexpr int kParts = 1000;

}  // namespace

FTPUploadForm::FTPUploadForm(IHost& host, std::shared_ptr<ISendServers> servers, QWidget* over, JobRunner::On on)
    : QDialog(over), host_(host), session_(host, *this, std::move(servers), on) {
  setObjectName("FTPUploadForm");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(24, 20, 24, 20);
  rows->setSpacing(10);
  title_ = MakeLabel("FTPTitle", {}, "title", this);
  whose_ = MakeLabel("FTPWhose", {}, "muted", this);
  whose_->setWordWrap(true);
  rows->addWidget(title_);
  rows->addWidget(whose_);
  rows->addSpacing(4);
  MakeSteps(*rows);
  rows->addSpacing(4);
  gauge_ = new QProgressBar(this);
  gauge_->setObjectName("FTPProgress");
  gauge_->setRange(0, kParts);
  gauge_->setTextVisible(false);
  words_ = MakeLabel("FTPStatus", {}, nullptr, this);
  detail_ = MakeLabel("FTPDetail", {}, "muted", this);
  for (QLabel* label : {words_, detail_}) {
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    FixWidth(label, kWide);
  }
  rows->addWidget(gauge_);
  rows->addWidget(words_);
  rows->addWidget(detail_);
  rows->addStretch(1);
  auto* actions = new QHBoxLayout;
  close_ = new Button("FTPClose", tr("Close"), {}, Look::Quiet, this);
  close_->setAutoDefault(false);
  FTPGObtn_ = new Button("FTPGObtn", Q(Tr(ButtonOf(SendPhase::Ready))), {}, Look::Filled, this);
  FTPGObtn_->setDefault(true);
  actions->addStretch(1);
  actions->addWidget(close_);
  actions->addWidget(FTPGObtn_);
  rows->addLayout(actions);
  connect(FTPGObtn_, &QPushButton::clicked, this, [this] { session_.Press(); });
  connect(close_, &QPushButton::clicked, this, &FTPUploadForm::reject);
}

FTPUploadForm::~FTPUploadForm() = default;

/// The steps, each with a mark that says how it stands.
void FTPUploadForm::MakeSteps(QVBoxLayout& rows) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(8);
  grid->setColumnStretch(1, 1);
  for (std::size_t i = 0; i < steps_.size(); ++i) {
    const int row = static_cast<int>(i);
    marks_[i] = MakeLabel(QString("FTPMark%1").arg(row), {}, nullptr, this);
    FixWidth(marks_[i], 20);
    marks_[i]->setAlignment(Qt::AlignCenter);
    steps_[i] = MakeLabel(QString("FTPStep%1").arg(row), {}, nullptr, this);
    grid->addWidget(marks_[i], row, 0);
    grid->addWidget(steps_[i], row, 1);
  }
  rows.addLayout(grid);
}

void FTPUploadForm::Open(SendOrder order) {
  if (!session_.Busy()) {
    if (const Outcome taken = session_.Take(std::move(order)); !taken)
      return host_.Message(MessageKind::Information, "", taken.Why());
    const SendOrder& what = session_.Order();
    const SendWords words = WordsOf(what.mode);
    title_->setText(Q(Tr(words.title)));
    setWindowTitle(Q(Tr(words.title)));
    QStringList readers;
    for (const std::string& address : what.addresses) readers << Q(address);
    const auto count = what.files.size();
    whose_->setText((count == 1 ? tr("%1 file for %2, to %3") : tr("%1 files for %2, to %3"))
                        .arg(QString::number(count), Q(what.student), readers.join(", ")));
    for (std::size_t i = 0; i < steps_.size(); ++i) steps_[i]->setText(Q(Tr(words.steps[i])));
    SendChanged();
    if (parentWidget()) ScaleForm(*this, *parentWidget()->window());
  }
  show();
  raise();
  activateWindow();
  FTPGObtn_->setFocus();
}

void FTPUploadForm::SendChanged() {
  if (!FTPGObtn_) return;
  const SendPhase phase = session_.Phase();
  const SendNews news = session_.News();
  const bool failed = phase == SendPhase::Failed;
  for (std::size_t i = 0; i < steps_.size(); ++i) {
    const int step = static_cast<int>(i) + 1;
    const bool present = news.step == step;
    const QString mark = news.step > step ? "\u2713" : !present ? "\u2022" : failed ? "!" : "\u25B8";
    marks_[i]->setText(mark);
    SetLook(steps_[i], present ? "heading" : news.step > step ? nullptr : "muted");
  }
  gauge_->setVisible(session_.Busy() || phase == SendPhase::Done);
  gauge_->setValue(phase == SendPhase::Done ? kParts : qRound(news.part * kParts));
  words_->setText(failed ? Q(session_.Fault()) : Q(news.words));
  const bool begun = news.step > 1 || news.part > 0;
  const QString comfort = begun ? tr("What has been converted and sent already is not done again.") : QString();
  detail_->setText(failed ? comfort : Q(news.detail));
  if (std::exchange(shownPhase_, static_cast<int>(phase)) == static_cast<int>(phase)) return;
  FTPGObtn_->setText(Q(Tr(ButtonOf(phase))));
  FTPGObtn_->setEnabled(phase != SendPhase::Cancelling);
  close_->setVisible(phase == SendPhase::Ready || failed);
  if (!isVisible()) return;
  adjustSize();
  // What went wrong, or well, is to be seen also by somebody who has turned to other work.
  if (failed || phase == SendPhase::Done) raise();
}

void FTPUploadForm::SendLeaves() {
  session_.Leave();
  hide();
}

void FTPUploadForm::GiveUp() { SendLeaves(); }

void FTPUploadForm::reject() {
  if (session_.Phase() == SendPhase::Running) {
    if (host_.Question(Std(windowTitle()), Tr("The videos are still being sent. Do you want to cancel that?")) &&
        session_.Phase() == SendPhase::Running)
      session_.Press();
    return;
  }
  if (session_.Busy()) return;
  SendLeaves();
}

}  // namespace kinalyx
