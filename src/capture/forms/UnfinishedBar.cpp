#include "capture/forms/UnfinishedBar.h"

#include <QBoxLayout>
#include <QDateTime>
#include <QLabel>
#include <QLocale>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

/// What the search finds, for as long as there is a bar.
class UnfinishedBar::Finding final : public IJobEvents {
 public:
  explicit Finding(UnfinishedBar& bar) : bar_(bar) {}
  void Progress(const JobProgress&) override {}
  void Over(IJob* job) override {
    if (const auto* found = dynamic_cast<FindUnfinished*>(job)) bar_.found_ = found->Found();
    bar_.ShowLatest();
  }

 private:
  UnfinishedBar& bar_;
};

UnfinishedBar::UnfinishedBar(IHost& host, std::string folder, QWidget* parent)
    : QFrame(parent), host_(host), folder_(std::move(folder)), finder_(host, JobRunner::On::Worker) {
  setObjectName("UnfinishedBar");
  setProperty("look", "panel");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kGap, 6, 8, 6);
  row->setSpacing(8);
  words_ = MakeLabel("UnfinishedWords", {});
  auto* away = new Button("UnfinishedAway", tr("Throw Away"), "trash", Look::Quiet);
  auto* look = new Button("UnfinishedLook", tr("Look at It"), "play");
  row->addWidget(words_, 1);
  row->addWidget(away);
  row->addWidget(look);
  hide();
  connect(look, &QPushButton::clicked, this, &UnfinishedBar::Look);
  connect(away, &QPushButton::clicked, this, &UnfinishedBar::Throw);
}

void UnfinishedBar::LookForThem() {
  if (std::exchange(looked_, true)) return;
  finder_.Start(std::make_unique<FindUnfinished>(folder_), std::make_unique<Finding>(*this));
}

void UnfinishedBar::LookAgain() {
  looked_ = false;
  LookForThem();
}

void UnfinishedBar::SetUsable(bool usable) {
  usable_ = usable;
  ShowLatest();
}

/// What it is: how long, and from when.
void UnfinishedBar::ShowLatest() {
  setVisible(usable_ && !found_.empty());
  if (found_.empty()) return;
  const QDateTime written = QDateTime::fromSecsSinceEpoch(found_.front().written);
  const QString when = QLocale().toString(written, written.date() == QDate::currentDate() ? "HH:mm" : "d MMM, HH:mm");
  words_->setText(tr("An unfinished recording was found: %1 s, %2").arg(found_.front().seconds, 0, 'f', 1).arg(when));
}

void UnfinishedBar::Look() {
  const UnfinishedRecording recording = found_.front();
  found_.erase(found_.begin());
  emit LookWanted(recording);
}

void UnfinishedBar::Throw() {
  if (!host_.Question("", Tr("Do you want to throw the unfinished recording away?"))) return;
  if (const Outcome gone = ThrowAway(found_.front()); !gone) emit Told(Q(gone.Why()));
  found_.erase(found_.begin());
  ShowLatest();
}

}  // namespace kinalyx
