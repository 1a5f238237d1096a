#include "capture/mirror/forms/MirrorBar.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QScreen>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

constexpr int kRepeatMs = 90;

const char* const kSheet = R"(
QFrame#MirrorBar { background: rgba(18, 22, 27, 225); border: none; border-radius: 10px; }
QFrame#MirrorBar QLabel { color: #dfe5ea; }
QFrame#MirrorBar QLabel[look="caption"] { color: #a9b4bd; }
QFrame#MirrorBar QPushButton { min-height: @34-4; max-height: @34-4; padding: 0 @9; }
QFrame#MirrorBar QPushButton[square="true"] { padding: 0; }
)";

/// What is on is seen from the desk's other end.
void Repeats(Button* button) {
  button->setAutoRepeat(true);
  button->setAutoRepeatInterval(kRepeatMs);
}

}  // namespace

MirrorBar::MirrorBar(MirrorSession& session, QWidget* parent) : QFrame(parent), session_(session) {
  setObjectName("MirrorBar");
  setAttribute(Qt::WA_StyledBackground);
  WearSheet(this, kSheet);
  setMouseTracking(true);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(10, 6, 10, 6);
  rows->setSpacing(2);
  row_ = new QHBoxLayout;
  row_->setSpacing(2);
  rows->addLayout(row_);

  panes_ = AddChoice("MirrorPanes", {"1", "2", "3", "4"}, tr("Pictures side by side (1 to 4)"));
  connect(panes_, &QButtonGroup::idClicked, this, [this](int index) { session_.SetPanes(index + 1); });
  AddGap();
  const auto step = [this](double by) { session_.SetDelay(session_.Choices().Delay(session_.Chosen()) + by); };
  Button* less = Add("MirrorLess", {}, "chevron-down", tr("A shorter delay (Down; with Shift by 5 s)"));
  delay_ = MakeLabel("MirrorDelay", {}, "heading");
  delay_->setAlignment(Qt::AlignCenter);
  LeastWidth(delay_, 62);
  row_->addWidget(delay_);
  Button* more = Add("MirrorMore", {}, "chevron-up", tr("A longer delay (Up; with Shift by 5 s)"));
  for (Button* button : {less, more}) Repeats(button);
  connect(less, &QPushButton::clicked, this, [step] { step(-kDelayStep); });
  connect(more, &QPushButton::clicked, this, [step] { step(kDelayStep); });
  cameras_ =
      AddChoice("MirrorCamera", {tr("Camera 1"), tr("Camera 2")}, tr("Which camera the framed picture shows (C)"));
  connect(cameras_, &QButtonGroup::idClicked, this, [this](int index) { session_.SetCamera(index); });
  AddGap();
  loop_ = Add("MirrorLoop", tr("Loop"), "loop", tr("The last seconds again and again, slowly (L)"));
  loop_->setCheckable(true);
  connect(loop_, &QPushButton::clicked, this, [this] { session_.ToggleLoop(); });
  speeds_ =
      AddChoice("MirrorSpeed", {QString::fromUtf8("¼"), QString::fromUtf8("½"), "1"}, tr("Speed of the loop (S)"));
  connect(speeds_, &QButtonGroup::idClicked, this,
          [this](int index) { session_.SetSpeed(static_cast<LoopSpeed>(index)); });
  const auto seconds = [this](int by) { session_.SetLoopSeconds(session_.Choices().loopSeconds + by); };
  Button* fewer = Add("MirrorFewer", {}, "chevron-left", tr("Loop and keep fewer seconds (-)"));
  seconds_ = MakeLabel("MirrorSeconds", {});
  seconds_->setAlignment(Qt::AlignCenter);
  LeastWidth(seconds_, 34);
  row_->addWidget(seconds_);
  Button* longer = Add("MirrorLonger", {}, "chevron-right", tr("Loop and keep more seconds (+)"));
  for (Button* button : {fewer, longer}) Repeats(button);
  connect(fewer, &QPushButton::clicked, this, [seconds] { seconds(-1); });
  connect(longer, &QPushButton::clicked, this, [seconds] { seconds(1); });
  AddGap();
  freeze_ = Add("MirrorFreeze", {}, "pause", tr("Stand still (Space); Left and Right step"));
  freeze_->setCheckable(true);
  connect(freeze_, &QPushButton::clicked, this, [this] { session_.ToggleFreeze(); });
  keep_ =
      Add("MirrorKeep", tr("Keep"), "save", tr("What was seen becomes a video of the student (K, Return, Page Down)"));
  connect(keep_, &QPushButton::clicked, this, [this] { session_.Keep(); });
  AddGap();
  mirrored_ = Add("MirrorFlip", {}, "flip", tr("Change left and right, as in a mirror (F)"));
  mirrored_->setCheckable(true);
  connect(mirrored_, &QPushButton::clicked, this, [this] { session_.SetMirrored(!session_.Choices().mirrored); });
  screens_ = Add("MirrorScreens", {}, "rows", tr("Fill a monitor"));
  screenMenu_ = new QMenu(this);
  screenMenu_->setObjectName("MirrorScreenMenu");
  connect(screens_, &QPushButton::clicked, this, [this] {
    FillScreens();
    screenMenu_->popup(screens_->mapToGlobal(QPoint(0, -screenMenu_->sizeHint().height())));
  });
  full_ = Add("MirrorFull", {}, "maximize", tr("Full screen (F11)"));
  full_->setCheckable(true);
  connect(full_, &QPushButton::clicked, this, &MirrorBar::FullScreenWanted);
  row_->addStretch(1);
  Button* close = Add("MirrorClose", {}, "close", tr("Close the mirror (Esc)"));
  connect(close, &QPushButton::clicked, this, &MirrorBar::CloseWanted);

  auto* foot = new QHBoxLayout;
  foot->setSpacing(kGap);
  keys_ = MakeLabel("MirrorKeys",
                    (tr("1–4 pictures  ·  ↑ ↓ delay  ·  L loop  ·  Space still  ·  K keep  ·  F left-right"
                        "  ·  F11 full screen")),
                    "caption");
  keeps_ = MakeLabel("MirrorKeeps", {}, "caption");
  memory_ = MakeLabel("MirrorMemory", {}, "caption");
  foot->addWidget(keys_);
  foot->addStretch(1);
  foot->addWidget(keeps_);
  foot->addWidget(memory_);
  rows->addLayout(foot);
}

/// Keys belong to the window: no button takes them.
Button* MirrorBar::Add(const QString& name, const QString& caption, const QString& icon, const QString& tip) {
  auto* button = new Button(name, caption, icon, Look::Stage, this);
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  button->setFocusPolicy(Qt::NoFocus);
  row_->addWidget(button);
  return button;
}

void MirrorBar::AddGap() { row_->addSpacing(kGap); }

QButtonGroup* MirrorBar::AddChoice(const QString& name, const QStringList& captions, const QString& tip) {
  auto* group = new QButtonGroup(this);
  for (int index = 0; index < captions.size(); ++index) {
    Button* button = Add(name + QString::number(index + 1), captions[index], {}, tip);
    button->setCheckable(true);
    group->addButton(button, index);
  }
  return group;
}

void MirrorBar::FillScreens() {
  screenMenu_->clear();
  const QList<QScreen*> screens = QGuiApplication::screens();
  for (int i = 0; i < screens.size(); ++i) {
    const QSize size = screens[i]->size() * screens[i]->devicePixelRatio();
    const QString words =
        QString::fromUtf8("%1: %2, %3 × %4").arg(i + 1).arg(screens[i]->name()).arg(size.width()).arg(size.height());
    QAction* action = screenMenu_->addAction(words);
    action->setObjectName(QString("MirrorScreen%1").arg(i + 1));
    connect(action, &QAction::triggered, this, [this, i] { emit ScreenWanted(i); });
  }
}

bool MirrorBar::Busy() const { return screenMenu_->isVisible(); }

void MirrorBar::ShowAll(bool fullScreen) {
  const MirrorChoices& choices = session_.Choices();
  panes_->button(choices.panes - 1)->setChecked(true);
  const double delay = choices.Delay(session_.Chosen());
  delay_->setText(delay == 0 ? QString("now") : QString("%1 s").arg(delay));
  for (QAbstractButton* button : cameras_->buttons()) button->setVisible(session_.TwoCameras());
  cameras_->button(choices.cameras[static_cast<std::size_t>(session_.Chosen())])->setChecked(true);
  loop_->setChecked(session_.Looping());
  speeds_->button(static_cast<int>(choices.speed))->setChecked(true);
  seconds_->setText(QString("%1 s").arg(choices.loopSeconds));
  freeze_->setChecked(session_.Frozen());
  freeze_->SetIcon(session_.Frozen() ? "play" : "pause");
  mirrored_->setChecked(choices.mirrored);
  full_->setChecked(fullScreen);
  screens_->setVisible(QGuiApplication::screens().size() > 1);
  const QString student = Q(session_.StudentName());
  const QString name = Q(session_.NextName());
  keeps_->setText(name.isEmpty() ? tr("K: the next video has no name yet")
                                 : (tr("K keeps %1 in %2")).arg(name, student));
  memory_->setText(Q(session_.MemoryWords()));
}

void MirrorBar::FitTo(int width) {
  loop_->setText(tr("Loop"));
  keep_->setText(tr("Keep"));
  keys_->show();
  keeps_->show();
  if (sizeHint().width() <= width) return;
  keys_->hide();
  if (sizeHint().width() <= width) return;
  loop_->setText({});
  keep_->setText({});
  keeps_->hide();
}

}  // namespace kinalyx
