#include "distribution/disc/forms/BurnForm.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <utility>

#include <fmt/format.h>

#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"

namespace kinalyx {
namespace {

constexpr int kTickMs = 150;
/// After which a drive that has been asked to stop may be left to itself.
constexpr int kPatienceMs = 15'000;
constexpr int kWide = 560;
constexpr int kHigh = 240;
constexpr int kWhole = 1000;

}  // namespace

class BurnForm::BurnEnd final : public IJobEvents {
 public:
  explicit BurnEnd(BurnForm& form) : form_(form) {}
  void Progress(const JobProgress&) override {}
  void Over(IJob* job) override { form_.BurnOver(static_cast<const DiscJob*>(job)); }

 private:
  BurnForm& form_;
};

class BurnForm::CopyEnd final : public IJobEvents {
 public:
  explicit CopyEnd(BurnForm& form) : form_(form) {}
  void Progress(const JobProgress&) override {}
  void Over(IJob* job) override { form_.CopyOver(static_cast<const FolderJob*>(job)); }

 private:
  BurnForm& form_;
};

BurnForm::BurnForm(IHost& host, QWidget* over, JobRunner::On on) : QDialog(over), host_(host), runner_(host, on) {
  setObjectName("BurnForm");
  setModal(true);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(20, 18, 20, 18);
  rows->setSpacing(10);
  heading_ = MakeLabel("BurnHeading", {}, "title", this);
  heading_->setWordWrap(true);
  rows->addWidget(heading_);
  auto* line = new QHBoxLayout;
  state_ = MakeLabel("BurnState", {}, "muted", this);
  progress_ = new FigureLabel("BurnProgress", {}, this);
  progress_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  line->addWidget(state_);
  line->addWidget(progress_, 1);
  rows->addLayout(line);
  gauge_ = new QProgressBar(this);
  gauge_->setObjectName("BurnGauge");
  gauge_->setTextVisible(false);
  gauge_->setRange(0, kWhole);
  rows->addWidget(gauge_);
  status_ = new QListWidget(this);
  status_->setObjectName("BurnStatus");
  status_->setAccessibleName(tr("What has been done"));
  status_->setSelectionMode(QAbstractItemView::NoSelection);
  status_->setWordWrap(true);
  LeastWidth(status_, kWide);
  LeastHeight(status_, kHigh);
  rows->addWidget(status_, 1);
  auto* actions = new QHBoxLayout;
  leave_ = new Button("BurnLeave", tr("Do Not Wait"), {}, Look::Quiet, this);
  leave_->setToolTip(tr("The drive does not stop. It is left to itself."));
  show_ = new Button("BurnShowFolder", tr("Show in Folder"), "open", Look::Quiet, this);
  cmdCancel_ = new Button("cmdCancel", tr("Cancel"), {}, Look::Filled, this);
  actions->addStretch(1);
  for (Button* button : {leave_, show_, cmdCancel_}) {
    button->setAutoDefault(false);
    actions->addWidget(button);
  }
  rows->addLayout(actions);

  Timer1_.setInterval(kTickMs);
  Timer2_.setInterval(kTickMs);
  patience_.setSingleShot(true);
  patience_.setInterval(kPatienceMs);
  connect(&Timer1_, &QTimer::timeout, this, &BurnForm::Timer1_Timer);
  connect(&Timer2_, &QTimer::timeout, this, &BurnForm::Timer2_Timer);
  connect(&patience_, &QTimer::timeout, leave_, &QWidget::show);
  connect(leave_, &QPushButton::clicked, this, [this] { runner_.Cancel(); });
  connect(show_, &QPushButton::clicked, this, [this] { emit FolderWanted(Q(folder_)); });
  connect(cmdCancel_, &QPushButton::clicked, this, [this] {
    if (over_) accept();
    else Cancel();
  });
}

BurnForm::~BurnForm() {
  if (board_) board_->Stop();
}

void BurnForm::Begin(const QString& caption) {
  caption_ = caption;
  board_ = std::make_shared<BurnBoard>();
  cancelled_ = over_ = false;
  status_->clear();
  leave_->hide();
  show_->hide();
  cmdCancel_->setText(tr("Cancel"));
  cmdCancel_->setEnabled(true);
  gauge_->setValue(0);
  progress_->setText({});
  Timer2_Timer();
  Timer1_.start();
  Timer2_.start();
  if (isVisible()) return;
  open();
  if (parentWidget()) ScaleForm(*this, *parentWidget()->window());
  cmdCancel_->setFocus();
}

void BurnForm::Burn(DiscOrder order, std::unique_ptr<IDiscDrive> drive, const BurnWish& wish) {
  folder_.clear();
  heading_->setText(tr("Starting to burn CD"));
  Begin(tr("CD/DVD Burner [%1]"));
  runner_.Start(std::make_unique<DiscJob>(std::move(order), std::move(drive), wish, board_),
                std::make_unique<BurnEnd>(*this));
}

void BurnForm::Copy(DiscOrder order, const std::string& folder) {
  order_ = std::move(order);
  folder_ = folder;
  BeginCopy(false);
}

void BurnForm::BeginCopy(bool replace) {
  heading_->setText(tr("Copying to %1").arg(Q(folder_)));
  Begin(tr("Copy to Folder [%1]"));
  runner_.Start(std::make_unique<FolderJob>(order_, folder_, replace, board_), std::make_unique<CopyEnd>(*this));
}

void BurnForm::Cancel() {
  if (std::exchange(cancelled_, true)) return;
  heading_->setText(folder_.empty() ? tr("Cancelling the burning process") : tr("Cancelling the copy"));
  status_->addItem(heading_->text());
  board_->Stop();
  cmdCancel_->setEnabled(false);
  patience_.start();
}

void BurnForm::reject() {
  if (over_) QDialog::reject();
  else Cancel();
}

void BurnForm::Timer1_Timer() {
  for (const std::string& line : board_->TakeLines()) {
    status_->addItem(Q(line));
    status_->scrollToBottom();
  }
  const std::int64_t total = board_->BytesTotal();
  if (total > 0) {
    progress_->setText(Q(ProgressText(board_->BytesDone(), total)));
    gauge_->setValue(static_cast<int>(static_cast<double>(board_->BytesDone()) / static_cast<double>(total) * kWhole));
  } else {
    gauge_->setValue(static_cast<int>(board_->Part() * kWhole));
  }
}

void BurnForm::Timer2_Timer() {
  state_->setText(Q(Tr(StateText(board_->State()))));
  setWindowTitle(caption_.arg(state_->text()));
}

void BurnForm::ShowEnd(const QString& words, bool well) {
  over_ = true;
  Timer1_.stop();
  Timer2_.stop();
  patience_.stop();
  board_->SetState(DriveState::Idle);
  Timer1_Timer();
  Timer2_Timer();
  if (well) gauge_->setValue(kWhole);
  heading_->setText(words);
  leave_->hide();
  show_->setVisible(well && !folder_.empty());
  cmdCancel_->setText(tr("Close"));
  cmdCancel_->setEnabled(true);
  cmdCancel_->setFocus();
  emit Ended();
}

void BurnForm::BurnOver(const DiscJob* job) {
  if (!job) return ShowEnd(tr("The drive does not answer. It was left to itself."), false);
  if (job->How()) return ShowEnd(tr("Burn Completed Successfully!"), true);
  host_.Note(MessageKind::Warning, fmt::format("A disc was not burnt: {}", job->How().Why()));
  if (job->How().Kind() != Fault::Cancelled) return ShowEnd(tr("Burn Failed"), false);
  ShowEnd(job->Written() ? Q(job->How().Why()) : tr("Burn Cancelled"), job->Written());
}

void BurnForm::CopyOver(const FolderJob* job) {
  if (!job) return ShowEnd(tr("The drive does not answer. It was left to itself."), false);
  if (job->How()) return ShowEnd(tr("Copied. You can take the stick out now."), true);
  if (!job->Existing().empty()) {
    const auto count = job->Existing().size();
    const QString words = count == 1 ? tr("\"%1\" is there already. Do you want to replace it?")
                                     : tr("%2 of these files are there already, \"%1\" among them. Do you want to "
                                          "replace them?");
    const QString asked =
        count == 1 ? words.arg(Q(job->Existing().front())) : words.arg(Q(job->Existing().front())).arg(count);
    if (host_.Question(Std(tr("Files Are There Already")), Std(asked))) return BeginCopy(true);
    return ShowEnd(tr("Nothing was copied."), false);
  }
  if (job->How().Kind() == Fault::Cancelled) return ShowEnd(tr("Copy Cancelled"), false);
  host_.Note(MessageKind::Warning, fmt::format("A disc's files were not copied: {}", job->How().Why()));
  ShowEnd(tr("Copy Failed"), false);
}

}  // namespace kinalyx
