#include "workspace/forms/PlayBar.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QStyle>
#include <algorithm>

#include "platform/widgets/Icons.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

// As designed.
constexpr int kOneRowWidth = 892;
constexpr int kMargin = 10;
constexpr int kButton = 32;
constexpr int kPlayWidth = 44;
constexpr int kTinyWidth = 300;      // below it the buttons draw together
constexpr int kSmallestWidth = 232;  // and below this one even more
constexpr int kCounter = 46;

}  // namespace

PlayBar::PlayBar(Transport& transport, QWidget* parent) : QFrame(parent), transport_(transport) {
  setObjectName("Playbar");
  seek_ = new SeekBar(this);
  seek_->setObjectName("PlayBarHScroll");
  connect(seek_, &SeekBar::Sought, this, [this](int position) { transport_.Seek(position); });

  buttons_ = new QWidget(this);
  auto* row = new QHBoxLayout(buttons_);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  rewind_ = Button("CmdButton0", tr("Rewind (Up Arrow)"));
  back_ = Button("CmdButton1", tr("Back one picture (Left Arrow); hold to go on"));
  play_ = Button("CmdButton2", tr("Play / Pause (P)"));
  next_ = Button("CmdButton3", tr("Next picture (Right Arrow); hold to go on"));
  slomo_ = Button("SlomoButton", tr("Slow motion (S)"));
  loop_ = Button("LoopButton", tr("Loop (L)"));
  slomo_->setCheckable(true);
  loop_->setCheckable(true);
  for (QToolButton* button : {rewind_, back_, play_, next_, slomo_, loop_}) row->addWidget(button);

  detach_ = new QToolButton(this);
  detach_->setObjectName("PlayBarDetachBtn");
  detach_->setToolTip(tr("Undock the Play Bar"));
  detach_->setFocusPolicy(Qt::NoFocus);
  FixSize(detach_, {22, 22});
  FixIcon(detach_, 14);
  connect(detach_, &QToolButton::clicked, this, [this] { ToggleDock(); });

  line_ = new FigureLabel("DisplayPanel", {}, this);
  counter_ = new FigureLabel("FrameCounter", {}, this);
  counter_->setToolTip(tr("Number of the picture that is shown"));
  counter_->hide();

  markBox_ = new QWidget(this);
  markBox_->setObjectName("MarkBox");
  auto* markRow = new QHBoxLayout(markBox_);
  markRow->setContentsMargins(0, 0, 0, 0);
  markRow->setSpacing(3);
  for (int i = 0; i < 10; ++i) {
    auto* mark = new QToolButton(markBox_);
    mark->setObjectName(QString("Mark%1").arg(i));
    mark->setFocusPolicy(Qt::NoFocus);
    mark->setToolTip(tr("Go to this mark"));
    FixHeight(mark, 22);
    mark->hide();
    connect(mark, &QToolButton::clicked, this, [this, i] { transport_.Mark_Click(i); });
    markRow->addWidget(mark);
    marks_[static_cast<std::size_t>(i)] = mark;
  }
  markBox_->hide();

  connect(rewind_, &QToolButton::clicked, this, [this] { transport_.cmdREwind(); });
  connect(play_, &QToolButton::clicked, this, [this] { transport_.cmdPlay(); });
  connect(slomo_, &QToolButton::clicked, this, [this] { transport_.ToggleSlomo(); });
  connect(loop_, &QToolButton::clicked, this, [this] { transport_.ToggleLoop(); });
  for (QToolButton* step : {back_, next_}) step->installEventFilter(this);

  Dress();
  SetState(false, false);
}

void PlayBar::Dress() {
  WearStageSheet(this,
                 "#Playbar { background: @ground; border: none; }"
                 "#Playbar[floating=\"true\"] { background: @card; border: 1px solid @cardLine; border-radius: 8px; }"
                 "#Playbar QLabel { color: @ink; background: transparent; font-size: @13; }"
                 "#Playbar QLabel[small=\"true\"] { font-size: @11; }"
                 "#Playbar #FrameCounter { color: @mark; }"
                 "#Playbar QToolButton { border: none; border-radius: 6px; background: transparent; color: @ink;"
                 "  padding: 0; }"
                 "#Playbar QToolButton:hover { background: @hover; }"
                 "#Playbar QToolButton:pressed, #Playbar QToolButton:checked { background: @accentFill; }"
                 "#Playbar #CmdButton2 { background: @accentFill; }"
                 "#Playbar #CmdButton2:hover { background: @accentHover; }"
                 "#Playbar #CmdButton2:disabled { background: @card; }"
                 "#Playbar #MarkBox QToolButton { background: @card; color: @mark; padding: 0 6px; font-size: @11; }"
                 "#Playbar #MarkBox QToolButton:hover { background: @hover; }");
  const StageLook look = StageLook::Current();
  const auto icon = [&](const char* name) { return Icon(name, look.ink, look.ink, look.faintInk); };
  rewind_->setIcon(icon("rewind"));
  back_->setIcon(icon("step-back"));
  play_->setIcon(icon(playing_ ? "pause" : "play"));
  next_->setIcon(icon("step-forward"));
  slomo_->setIcon(icon("slow"));
  loop_->setIcon(icon("loop"));
  detach_->setIcon(icon("undock"));
}

void PlayBar::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::StyleChange && detach_) {
    Dress();
    Arrange();
  }
}

void PlayBar::SetState(bool hasVideo, bool locked) {
  if (hasVideo == hasVideo_ && locked == locked_) return;
  hasVideo_ = hasVideo;
  locked_ = locked;
  const QString noVideo = hasVideo ? QString() : tr("Open a video first");
  const QString refused = hasVideo && locked ? tr("The videos are locked: use the bar below") : noVideo;
  const auto set = [](QToolButton* button, const QString& obstacle) {
    button->setEnabled(obstacle.isEmpty());
    button->setToolTip(button->accessibleName() + (obstacle.isEmpty() ? "" : " \u2014 ") + obstacle);
  };
  for (QToolButton* button : {back_, next_}) set(button, noVideo);
  for (QToolButton* button : {rewind_, play_, slomo_, loop_}) set(button, refused);
  seek_->setEnabled(hasVideo);
  for (QWidget* part : {buttons_, static_cast<QWidget*>(seek_)}) part->setToolTip(noVideo);
}

QToolButton* PlayBar::Button(const char* name, const QString& tip) {
  auto* button = new QToolButton(buttons_);
  button->setObjectName(name);
  FixIcon(button, 20);
  FixSize(button, {kButton, kButton});
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  button->setFocusPolicy(Qt::NoFocus);
  return button;
}

void PlayBar::SetPlayPicture(bool playing) {
  if (playing == playing_) return;
  playing_ = playing;
  const StageLook look = StageLook::Current();
  play_->setIcon(Icon(playing ? "pause" : "play", look.ink, look.ink, look.faintInk));
}

void PlayBar::SetLine(const QString& line, const QString& counter) {
  if (line_->text() != line) line_->setText(line);
  const bool rearrange = counter.size() != counter_->text().size();
  counter_->setText(counter);
  if (rearrange) Arrange();
}

void PlayBar::SetMarks(const std::vector<int>& marks) {
  seek_->SetMarks(marks);
  for (std::size_t i = 0; i < marks_.size(); ++i) {
    if (i < marks.size()) marks_[i]->setText(QString::number(marks[i]));
  }
  markCount_ = static_cast<int>(marks.size());
  markBox_->setVisible(!marks.empty());
  Arrange();
}

void PlayBar::resizeEvent(QResizeEvent*) { Arrange(); }

void PlayBar::Arrange() {
  counter_->setVisible(!counter_->text().isEmpty());
  line_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  counter_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  detach_->raise();
  width() >= Px(kOneRowWidth) ? ArrangeWide() : ArrangeNarrow();
}

void PlayBar::SizeButtons(int side, int playWidth) {
  for (QToolButton* button : {rewind_, back_, next_, slomo_, loop_}) button->setFixedSize(side, Px(kButton));
  play_->setFixedSize(playWidth, Px(kButton));
  buttons_->layout()->setSpacing(side < Px(kButton) ? 1 : 4);
  buttons_->layout()->activate();
}

/// Shows as many marks as fit into the room and gives the width that they take. Marks that find no button
/// still stand in the line of the film and are reached by a click there.
int PlayBar::ShowMarks(int room) {
  int taken = 0;
  for (std::size_t i = 0; i < marks_.size(); ++i) {
    const int width = static_cast<int>(i) < markCount_ ? marks_[i]->sizeHint().width() + 3 : 0;
    const bool fits = width > 0 && taken + width <= room;
    marks_[i]->setVisible(fits);
    if (!fits) room = 0;
    taken += fits ? width : 0;
  }
  return taken;
}

/// One row: buttons, the line of the film, marks, counter, words.
void PlayBar::ArrangeWide() {
  SetSmallWords(false);
  detach_->show();
  SizeButtons(Px(kButton), Px(kPlayWidth));
  const int buttonsWidth = buttons_->sizeHint().width();
  const int lineWidth = FiguresWidth(line_->fontMetrics(), "888.88 seconds | 8888/8888 frames");
  const int y = height() / 2;
  buttons_->setGeometry(kMargin, y - Px(kButton) / 2, buttonsWidth, Px(kButton));
  detach_->move(width() - kMargin - detach_->width(), y - detach_->height() / 2);
  int end = detach_->x() - 6 - lineWidth;
  line_->setGeometry(end, y - Px(12), lineWidth, Px(24));
  line_->show();
  if (!counter_->isHidden()) {
    end -= Px(kCounter);
    counter_->setGeometry(end, y - Px(12), Px(kCounter), Px(24));
  }
  const int start = kMargin + buttonsWidth + 6;
  if (!markBox_->isHidden()) {
    const int taken = ShowMarks((end - start) / 2);
    end -= taken + 8;
    markBox_->setGeometry(end, y - Px(11), taken, Px(22));
  }
  seek_->setGeometry(start, y - Px(12), std::max(40, end - start - 6), Px(24));
}

/// Two rows: the line of the film with its marks above, the buttons and the words below. In small windows
/// the words take a row of their own, and in the smallest the bar cannot be undocked.
void PlayBar::ArrangeNarrow() {
  const bool smallest = width() < Px(kSmallestWidth);
  const bool tiny = width() < Px(kTinyWidth);
  SizeButtons(Px(smallest ? 24 : tiny ? 30 : kButton), Px(smallest ? 30 : tiny ? 36 : kPlayWidth));
  const int buttonsWidth = buttons_->sizeHint().width();
  const int words = FiguresWidth(QFontMetrics(UiFont(kTextPixels)), "88.88 seconds | 888/888 frames");
  const int left = kMargin - 6 + buttonsWidth + 4;
  int end = width() - kMargin - detach_->width();
  const bool own = end - left < words;
  const int y = own ? Px(36) : Px(24) + (height() - Px(24)) / 2;  // middle of the buttons
  seek_->setGeometry(kMargin - 2, own ? 0 : 2, width() - 2 * kMargin + 4, Px(22));
  buttons_->setGeometry(kMargin - 6, y - Px(kButton) / 2, buttonsWidth, Px(kButton));
  detach_->setVisible(!smallest);
  detach_->move(width() - kMargin - detach_->width() + 4, y - detach_->height() / 2);
  SetSmallWords(own && width() < Px(kTinyWidth));
  if (own) {
    line_->setGeometry(4, height() - Px(20), width() - 8, Px(18));
  } else {
    line_->setGeometry(end - words - 4, y - Px(12), words, Px(24));
    end = line_->x();
  }
  line_->show();
  counter_->setVisible(!counter_->text().isEmpty() && end - left >= Px(kCounter));
  if (!counter_->isHidden()) {
    counter_->setGeometry(end - Px(kCounter), y - Px(12), Px(kCounter), Px(24));
    end -= Px(kCounter);
  }
  markBox_->setGeometry(left, y - Px(11), ShowMarks(end - left - 4), Px(22));
}

void PlayBar::SetSmallWords(bool on) {
  if (line_->property("small").toBool() == on) return;
  line_->setProperty("small", on);
  line_->style()->unpolish(line_);
  line_->style()->polish(line_);
}

void PlayBar::ToggleDock() {
  docked_ = !docked_;
  setProperty("floating", !docked_);
  style()->unpolish(this);
  style()->polish(this);
  setCursor(docked_ ? Qt::ArrowCursor : Qt::SizeAllCursor);
  detach_->setToolTip(docked_ ? tr("Undock the Play Bar") : tr("Redock the Play Bar"));
  if (docked_) {
    emit Redocked();
  } else {
    raise();
  }
}

void PlayBar::KeepInside() {
  const QSize room = parentWidget()->size();
  move(std::clamp(x(), 0, std::max(0, room.width() - width())), std::clamp(y(), 0, std::max(0, room.height() - height())));
}

void PlayBar::mousePressEvent(QMouseEvent* event) { grab_ = event->pos(); }

void PlayBar::mouseMoveEvent(QMouseEvent* event) {
  if (docked_ || !(event->buttons() & Qt::LeftButton)) return;
  move(mapToParent(event->pos() - grab_));
  KeepInside();
}

bool PlayBar::eventFilter(QObject* watched, QEvent* event) {
  if (watched != back_ && watched != next_) return false;
  const auto pointer = [event] {
    return static_cast<float>(static_cast<QMouseEvent*>(event)->position().x() * kTwipsPerPixel);
  };
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        transport_.StepPressed(watched == next_, pointer());
      break;
    case QEvent::MouseMove: transport_.StepDragged(pointer()); break;
    case QEvent::MouseButtonRelease:
    case QEvent::Hide: transport_.StepReleased(); break;
    default: break;
  }
  return false;
}

}  // namespace kinalyx
