#include "distribution/clips/forms/ClipCard.h"

#include <QBoxLayout>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

constexpr int kShownMs = 20000;
constexpr int kAboveFoot = 56;  // pixels, as designed: over a play bar
constexpr int kWidth = 380;
constexpr int kWhole = 1000;

}  // namespace

ClipCard::ClipCard(QWidget* over) : QFrame(over) {
  setObjectName("ClipCard");
  setProperty("look", "panel");
  FixWidth(this, kWidth);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, 12, kGap, 12);
  rows->setSpacing(8);
  words_ = MakeLabel("ClipCardWords", {});
  words_->setWordWrap(true);
  gauge_ = new QProgressBar;
  gauge_->setObjectName("ClipCardGauge");
  gauge_->setRange(0, kWhole);
  gauge_->setTextVisible(false);
  rows->addWidget(words_);
  rows->addWidget(gauge_);
  auto* actions = new QHBoxLayout;
  actions->setSpacing(8);
  actions->addStretch(1);
  const auto add = [&](const char* name, const QString& caption, const char* icon, Look look) {
    auto* button = new Button(name, caption, icon, look);
    button->setFocusPolicy(Qt::NoFocus);
    actions->addWidget(button);
    return button;
  };
  play_ = add("ClipCardPlay", tr("Look at It"), "play", Look::Filled);
  folder_ = add("ClipCardFolder", tr("Show in Folder"), "open", Look::Quiet);
  cancel_ = add("ClipCardCancel", tr("Cancel"), "", Look::Quiet);
  dismiss_ = add("ClipCardDismiss", tr("Dismiss"), "", Look::Quiet);
  rows->addLayout(actions);
  end_.setSingleShot(true);
  connect(&end_, &QTimer::timeout, this, &QWidget::hide);
  connect(dismiss_, &QPushButton::clicked, this, &QWidget::hide);
  connect(cancel_, &QPushButton::clicked, this, &ClipCard::CancelWanted);
  connect(folder_, &QPushButton::clicked, this, [this] { emit FolderWanted(path_); });
  connect(play_, &QPushButton::clicked, this, [this] {
    hide();
    emit PlayWanted(path_);
  });
  over->installEventFilter(this);
  hide();
}

void ClipCard::Arrange(const QString& words, bool running, bool saved) {
  words_->setText(words);
  gauge_->setVisible(running);
  cancel_->setVisible(running);
  play_->setVisible(saved);
  folder_->setVisible(saved);
  dismiss_->setVisible(!running);
  show();
  Place();
}

void ClipCard::ShowProgress(const std::string& path, double part, int waiting) {
  end_.stop();
  const QString name = QFileInfo(Q(path)).fileName();
  const QString percent = QString::number(static_cast<int>(part * 100));
  const QString words = waiting < 1 ? tr("Saving \"%1\", %2 %").arg(name, percent)
                        : waiting == 1
                            ? tr("Saving \"%1\", %2 %; another one waits").arg(name, percent)
                            : tr("Saving \"%1\", %2 %; %3 others wait").arg(name, percent, QString::number(waiting));
  gauge_->setValue(static_cast<int>(part * kWhole));
  Arrange(words, true, false);
}

void ClipCard::ShowSaved(const std::string& path) {
  path_ = Q(path);
  const QFileInfo file(path_);
  Arrange(tr("\"%1\" was saved, %2 MB.").arg(file.fileName()).arg(file.size() / 1e6, 0, 'f', 1), false, true);
  // A picture is looked at elsewhere.
  play_->setVisible(file.suffix() == "mp4");
  end_.start(kShownMs);
}

void ClipCard::ShowFailed(const std::string& words) {
  end_.stop();
  Arrange(Q(words), false, false);
}

void ClipCard::Place() {
  // A text that wraps has its height from its width.
  setFixedHeight(layout()->totalHeightForWidth(width()));
  const QWidget* over = parentWidget();
  move(over->width() - width() - kGap, over->height() - height() - Px(kAboveFoot));
  raise();
}

bool ClipCard::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) Place();
  return QFrame::eventFilter(watched, event);
}

}  // namespace kinalyx
