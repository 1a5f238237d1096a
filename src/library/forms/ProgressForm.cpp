#include "library/forms/ProgressForm.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <memory>
#include <utility>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

/// What is over sooner shows no window.
constexpr int kPatienceMs = 300;
constexpr int kParts = 1000;

}  // namespace

ProgressForm::ProgressForm(IHost& host, LibraryOperations& operations, QWidget* over)
    : QDialog(over), host_(host), operations_(operations) {
  setObjectName("ProgressForm");
  setWindowModality(Qt::ApplicationModal);
  FixWidth(this, 440);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(24, 20, 24, 20);
  rows->setSpacing(8);
  title_ = MakeLabel("ProgressTitle", {}, "title");
  words_ = MakeLabel("ProgressWords", {});
  words_->setWordWrap(true);
  gauge_ = new QProgressBar;
  gauge_->setObjectName("ProgressGauge");
  gauge_->setRange(0, kParts);
  gauge_->setTextVisible(false);
  current_ = MakeLabel("ProgressCurrent", {}, "muted");
  cancel_ = new Button("ProgressCancel", tr("Cancel"), {}, Look::Quiet);
  auto* actions = new QHBoxLayout;
  actions->addStretch(1);
  actions->addWidget(cancel_);
  for (QWidget* row : {static_cast<QWidget*>(title_), static_cast<QWidget*>(words_), static_cast<QWidget*>(gauge_),
                       static_cast<QWidget*>(current_)})
    rows->addWidget(row);
  rows->addSpacing(6);
  rows->addLayout(actions);
  connect(cancel_, &QPushButton::clicked, this, &ProgressForm::reject);
}

ProgressForm::~ProgressForm() = default;

/// An operation that shows in the window for as long as there is one.
class ProgressForm::Shown final : public IOperationEvents {
 public:
  Shown(ProgressForm& window, LibraryOperations::Events page) : window_(&window), page_(std::move(page)) {}

  void ShowStatus(const std::string& words) override {
    if (window_) window_->ShowWords(words);
    page_->ShowStatus(words);
  }
  void ShowProgress(const JobProgress& progress) override {
    if (window_) window_->ShowProgress(progress);
    page_->ShowProgress(progress);
  }
  void WorkOver() override {
    if (window_) window_->End();
    page_->WorkOver();
  }
  void Ended(const OperationResult& result) override {
    if (window_) window_->End();
    page_->Ended(result);
  }

 private:
  QPointer<ProgressForm> window_;
  LibraryOperations::Events page_;
};

LibraryOperations::Events ProgressForm::Begin(const QString& title, LibraryOperations::Events page) {
  // The one under way keeps its window; the new one is about to be refused.
  if (operations_.Busy()) return page;
  title_->setText(title);
  setWindowTitle(title);
  words_->clear();
  words_->hide();
  current_->clear();
  gauge_->setValue(0);
  cancel_->setText(tr("Cancel"));
  cancel_->setEnabled(true);
  began_ = -1;
  return std::make_shared<Shown>(*this, std::move(page));
}

void ProgressForm::ShowWords(const std::string& words) {
  words_->setText(Q(words));
  words_->setVisible(!words.empty());
}

void ProgressForm::ShowProgress(const JobProgress& progress) {
  // The work begins with its first word: a question that was asked before it does not count.
  if (began_ < 0) began_ = host_.timeGetTime();
  if (!isVisible() && operations_.Busy() && host_.timeGetTime() - began_ >= kPatienceMs) {
    if (parentWidget()) ScaleForm(*this, *parentWidget());
    show();
  }
  gauge_->setValue(qRound(progress.part * kParts));
  QString current = Q(progress.current);
  if (progress.total > 1)
    current = tr("%1 of %2   %3").arg(qMin(progress.done + 1, progress.total)).arg(progress.total).arg(current);
  current_->setText(current_->fontMetrics().elidedText(current, Qt::ElideMiddle, width() - 48));
}

void ProgressForm::End() {
  began_ = -1;
  hide();
}

/// The window stays until the operation has let go of what it was doing.
void ProgressForm::reject() {
  cancel_->setText(tr("Cancelling..."));
  cancel_->setEnabled(false);
  operations_.Cancel();
}

}  // namespace kinalyx
