#include "workspace/forms/PlayBar.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "platform/widgets/Icons.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

// As designed.
constexpr int kOneRowWidth = 952;
constexpr int kMargin = 10;
constexpr int kButton = 32;
constexpr int kPlayWidth = 44;
constexpr QSize kButtonSizes[] = {{kButton, kPlayWidth}, {30, 36}, {24, 30}};  // others, and the one that plays
constexpr int kSpeedWidth = 46;
constexpr int kSpeedLeast = 38;
constexpr int kCounter = 46;
constexpr int kMarks = 22;  // height
constexpr int kLeastSeek = 80;
constexpr int kAmpleSeek = 420;  // of the film's line, before the plain words get room

/// The longest line that a video will bring, so that nothing moves while it plays: its last position, at ten
/// pictures a second or more. A slower one makes room as it goes.
QString LongestLine(const QString& line) {
  const QString last = line.section('/', 1).section(' ', 0, 0);
  const QString seconds(std::max<qsizetype>(1, last.size() - 1), '8');
  const QString longest = QObject::tr("%1.88 seconds | %2%3%4 frames").arg(seconds).arg(last).arg('/').arg(last);
  return longest.size() > line.trimmed().size() ? longest : line.trimmed();
}

}  // namespace

PlayBar::PlayBar(Transport& transport, QWidget* parent) : StagePanel("Playbar", parent), transport_(transport) {
  setLayoutDirection(Qt::LeftToRight);  // time runs so in every language
  seek_ = new SeekBar(this);
  seek_->setObjectName("PlayBarHScroll");
  connect(seek_, &SeekBar::Sought, this, [this](int position) { transport_.Seek(position); });
  connect(seek_, &SeekBar::Hovered, this,
          [this](int position, int x) { emit Hovered(position, QPoint(this->x() + seek_->x() + x, this->y())); });
  connect(seek_, &SeekBar::Left, this, &PlayBar::Left);

  buttons_ = new QWidget(this);
  auto* row = new QHBoxLayout(buttons_);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  rewind_ = Button("CmdButton0", tr("Rewind (Up Arrow)"));
  back_ = Button("CmdButton1", tr("Back one picture (Left Arrow); hold to go on"));
  play_ = Button("CmdButton2", tr("Play / Pause (Space or P)"));
  next_ = Button("CmdButton3", tr("Next picture (Right Arrow); hold to go on"));
  slomo_ = Button("SlomoButton", tr("Slow motion (S)"));
  loop_ = Button("LoopButton", tr("Loop (L)"));
  slomo_->setCheckable(true);
  loop_->setCheckable(true);
  speed_ = new SpeedButton(buttons_);
  speed_->setAccessibleName(tr("Speed ([ and ]); the wheel turns it"));
  all_ = Button("AllVideosBtn", tr("These buttons and their keys move all videos (A)"));
  all_->setCheckable(true);
  all_->hide();
  sound_ = new SoundButton(buttons_);
  sound_->hide();
  connect(sound_, &SoundButton::Chosen, this, &PlayBar::VolumeChosen);
  for (QToolButton* button :
       std::initializer_list<QToolButton*>{rewind_, back_, play_, next_, slomo_, speed_, loop_, all_, sound_})
    row->addWidget(button);

  detach_ = new QToolButton(this);
  detach_->setObjectName("PlayBarDetachBtn");
  detach_->setToolTip(tr("Undock the Play Bar"));
  detach_->setAccessibleName(detach_->toolTip());
  detach_->setFocusPolicy(Qt::NoFocus);
  FixSize(detach_, {22, 22});
  FixIcon(detach_, 14);
  connect(detach_, &QToolButton::clicked, this, [this] { ToggleDock(); });

  line_ = new PositionLine("DisplayPanel", {}, this);
  plain_ = new FigureLabel("PlainLine", {}, this);
  counter_ = new FigureLabel("FrameCounter", {}, this);
  counter_->setToolTip(tr("Number of the picture that is shown"));
  counter_->hide();

  markBox_ = new MarkBox(this);
  connect(markBox_, &MarkBox::Chosen, this, [this](int mark) { transport_.GoToMark(mark); });
  connect(markBox_, &MarkBox::Named, this,
          [this](int mark, const QString& name) { transport_.NameMark(mark, Std(name)); });
  connect(markBox_, &MarkBox::Removed, this, [this](int mark) { transport_.RemoveMark(mark); });
  marksButton_ = new QToolButton(this);
  marksButton_->setObjectName("MarksBtn");
  marksButton_->setToolTip(tr("Marks of this video"));
  marksButton_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  marksButton_->setCheckable(true);
  marksButton_->setFocusPolicy(Qt::NoFocus);
  FixIcon(marksButton_, 14);
  FixHeight(marksButton_, kMarks);
  connect(marksButton_, &QToolButton::toggled, this, [this] { PlaceCard(); });

  connect(rewind_, &QToolButton::clicked, this, [this] { transport_.Rewind(); });
  connect(play_, &QToolButton::clicked, this, [this] { transport_.TogglePlay(); });
  connect(slomo_, &QToolButton::clicked, this, [this] { transport_.ToggleSlomo(); });
  connect(loop_, &QToolButton::clicked, this, [this] { transport_.ToggleLoop(); });
  connect(speed_, &SpeedButton::Chosen, this, [this](int percent) { transport_.SetSpeed(percent); });
  connect(all_, &QToolButton::clicked, this, [this] { transport_.ToggleMovesAll(); });
  for (QToolButton* step : {back_, next_}) step->installEventFilter(this);

  FirstDress();
  SetState(false, false);
}

void PlayBar::Dress() {
  WearStageSheet(this,
                 "#Playbar { background: @ground; border: none; }"
                 "#Playbar[floating=\"true\"] { background: @card; border: 1px solid @cardLine; border-radius: 8px; }"
                 "#Playbar QLabel { color: @ink; background: transparent; font-size: @13; }"
                 "#Playbar QLabel[small=\"true\"] { font-size: @11; }"
                 "#Playbar #FrameCounter { color: @mark; }"
                 "#Playbar #PlainLine { color: @faintInk; }"
                 "#Playbar QToolButton { border: none; border-radius: 6px; background: transparent; color: @ink;"
                 "  padding: 0; }"
                 "#Playbar QToolButton:hover { background: @hover; }"
                 "#Playbar QToolButton:pressed, #Playbar QToolButton:checked { background: @accentFill; }"
                 "#Playbar #CmdButton2 { background: @accentFill; }"
                 "#Playbar #CmdButton2:hover { background: @accentHover; }"
                 "#Playbar #CmdButton2:disabled { background: @card; }"
                 "#Playbar #SpeedButton { font-size: @13; }"
                 "#Playbar #SpeedButton[slow=\"true\"] { color: @mark; }"
                 "#Playbar #MarksBtn { background: @card; color: @mark; padding: 0 5px; font-size: @11; }"
                 "#Playbar #MarksBtn:hover { background: @hover; }"
                 "#Playbar #MarksBtn:checked { background: @accentFill; }");
  markBox_->Dress();
  const StageLook look = StageLook::Current();
  const auto icon = [&](const char* name) { return Icon(name, look.ink, look.ink, look.faintInk); };
  rewind_->setIcon(icon("rewind"));
  back_->setIcon(icon("step-back"));
  play_->setIcon(icon(playing_ ? "pause" : "play"));
  next_->setIcon(icon("step-forward"));
  slomo_->setIcon(icon("slow"));
  loop_->setIcon(icon("loop"));
  all_->setIcon(icon("all-videos"));
  sound_->Dress();
  detach_->setIcon(icon("undock"));
  marksButton_->setIcon(Icon("mark", look.mark, look.mark, look.faintInk));
  Arrange();
}

void PlayBar::SetState(bool hasVideo, bool locked) {
  if (hasVideo == hasVideo_ && locked == locked_) return;
  hasVideo_ = hasVideo;
  locked_ = locked;
  ShowTips();
  Arrange();
}

void PlayBar::SetLoopKey(const QString& key) {
  const QString name = tr("Loop (%1)").arg(key);
  if (loop_->accessibleName() == name) return;
  loop_->setAccessibleName(name);
  ShowTips();
}

void PlayBar::SetMovesAll(bool on, bool possible) {
  all_->setChecked(on);
  if (std::exchange(several_, possible) == possible) return;
  all_->setVisible(possible);
  Arrange();
}

void PlayBar::SetSound(bool possible, int volume) {
  sound_->SetVolume(volume);
  if (std::exchange(hasSound_, possible) == possible) return;
  sound_->setVisible(possible);
  Arrange();
}

/// What each button does, and why it does not.
void PlayBar::ShowTips() {
  const QString noVideo = hasVideo_ ? QString() : tr("Open a video first");
  const QString refused = hasVideo_ && locked_ ? tr("The videos are locked: use the bar below") : noVideo;
  const auto set = [](QToolButton* button, const QString& obstacle) {
    button->setEnabled(obstacle.isEmpty());
    button->setToolTip(button->accessibleName() + (obstacle.isEmpty() ? "" : " \u2014 ") + obstacle);
  };
  for (QToolButton* button : std::initializer_list<QToolButton*>{back_, next_, speed_, all_}) set(button, noVideo);
  for (QToolButton* button : {rewind_, play_, slomo_, loop_}) set(button, refused);
  seek_->setEnabled(hasVideo_);
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
  const QString longest = LongestLine(line);
  const bool rearrange = longest.section('/', 1) != longest_.section('/', 1) || longest.size() > longest_.size() ||
                         counter.size() != counter_->text().size();
  if (rearrange) longest_ = longest;
  if (line_->text() != line) line_->setText(line);
  plain_->setText(PlainLine(line));
  counter_->setText(counter);
  if (rearrange) Arrange();
}

void PlayBar::SetMarks(const std::vector<ShownMark>& marks) {
  QStringList names;
  for (const std::string& name : transport_.NamesElsewhere()) names << Q(name);
  if (marks == marks_ && names == names_) return;
  marks_ = marks;
  names_ = names;
  std::vector<int> positions;
  for (const ShownMark& mark : marks) positions.push_back(mark.position);
  seek_->SetMarks(std::move(positions));
  markBox_->SetMarks(marks, names);
  marksButton_->setText(QString::number(markBox_->Count()));
  if (marks.empty()) marksButton_->setChecked(false);
  Arrange();
}

bool PlayBar::CloseMarks() {
  const bool open = marksButton_->isVisible() && marksButton_->isChecked();
  if (open) marksButton_->setChecked(false);
  return open;
}

void PlayBar::moveEvent(QMoveEvent*) { PlaceCard(); }
void PlayBar::showEvent(QShowEvent*) { PlaceCard(); }
void PlayBar::hideEvent(QHideEvent*) { PlaceCard(); }

void PlayBar::resizeEvent(QResizeEvent*) { Arrange(); }

void PlayBar::Arrange() {
  counter_->setVisible(!counter_->text().isEmpty());
  line_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  counter_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  plain_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  plain_->hide();
  detach_->raise();
  width() >= Px(kOneRowWidth) ? ArrangeWide() : ArrangeNarrow();
  PlaceCard();
}

/// Whether all marks stand in a row of this width; otherwise the button that opens their card is shown.
bool PlayBar::MarksFit(int room) {
  markBox_->Dress();  // its widths hang on it
  const bool fit = marks_.empty() || markBox_->RowWidth() <= room;
  marksButton_->setVisible(!fit);
  marksButton_->resize(marksButton_->sizeHint().width(), Px(kMarks));
  return fit;
}

/// The card stands over the right end of the bar, or under it where there is no room above.
void PlayBar::PlaceCard() {
  if (marksButton_->isHidden() && !marks_.empty()) return;  // they are in the row
  if (!isVisible() || !marksButton_->isChecked() || marks_.empty()) {
    markBox_->hide();
    return;
  }
  const QSize stage = parentWidget()->size();
  markBox_->ShowCard(parentWidget(), std::min(stage.width(), width()) - 8);
  const int above = y() - markBox_->height() - 4;
  markBox_->move(
      std::clamp(geometry().right() - 4 - markBox_->width(), 0, std::max(0, stage.width() - markBox_->width())),
      above >= 0 ? above : geometry().bottom() + 4);
}

int PlayBar::CounterWidth() const {
  return counter_->text().isEmpty()
             ? 0
             : std::max(Px(kCounter), FiguresWidth(counter_->fontMetrics(), counter_->text()) + 10);
}

/// What gives way in the smallest windows.
void PlayBar::ShowSpares() {
  speed_->show();
  all_->setVisible(several_);
  sound_->setVisible(hasSound_);
}

void PlayBar::SizeButtons(int side, int playWidth) {
  for (QToolButton* button : {rewind_, back_, next_, slomo_, loop_, all_, static_cast<QToolButton*>(sound_)})
    button->setFixedSize(side, Px(kButton));
  speed_->setFixedSize(side < Px(kButton) ? Px(kSpeedLeast) : Px(kSpeedWidth), Px(kButton));
  play_->setFixedSize(playWidth, Px(kButton));
  buttons_->layout()->setSpacing(side < Px(kButton) ? 1 : 4);
  buttons_->layout()->activate();
}

/// One row: buttons, the line of the film, marks, counter, words.
void PlayBar::ArrangeWide() {
  SetSmallWords(false);
  ShowSpares();
  detach_->show();
  SizeButtons(Px(kButton), Px(kPlayWidth));
  const int buttonsWidth = buttons_->sizeHint().width();
  const int y = height() / 2;
  buttons_->setGeometry(kMargin, y - Px(kButton) / 2, buttonsWidth, Px(kButton));
  detach_->move(width() - kMargin - detach_->width(), y - detach_->height() / 2);
  const int start = kMargin + buttonsWidth + 6;
  int end = detach_->x() - 6;
  const auto take = [&](QWidget* part, int wide, int high) {
    end -= wide;
    part->setGeometry(end, y - high / 2, wide, high);
  };
  take(line_, std::min(FiguresWidth(line_->fontMetrics(), longest_), end - start - Px(kLeastSeek)), Px(24));
  const QString plain = hasVideo_ ? PlainLine(longest_) : QString();
  if (const int wide = FiguresWidth(plain_->fontMetrics(), plain) + 14;
      !plain.isEmpty() && end - start - wide > Px(kAmpleSeek)) {
    take(plain_, wide, Px(24));
    plain_->show();
    end -= 14;
  }
  take(counter_, CounterWidth(), Px(24));
  if (MarksFit((end - start) / 2)) {
    if (!marks_.empty()) {
      end -= markBox_->RowWidth() + 8;
      markBox_->ShowRow(this, {end, y - Px(kMarks) / 2});
    }
  } else {
    end -= 8;
    take(marksButton_, marksButton_->width(), Px(kMarks));
  }
  seek_->setGeometry(start, y - Px(12), std::max(40, end - start - 6), Px(24));
}

/// Two rows: the line of the film above, the buttons and the words below. In small windows the words take a
/// row of their own, and what finds no place beside the buttons stands at the end of the film's line.
void PlayBar::ArrangeNarrow() {
  int left = 0;  // behind the buttons
  int end = width() - kMargin - detach_->width();
  const auto fits = [&] {
    left = kMargin - 6 + buttons_->sizeHint().width() + 4;
    return left <= end;
  };
  ShowSpares();
  for (const QSize& size : kButtonSizes) {
    SizeButtons(Px(size.width()), Px(size.height()));
    if (fits()) break;
  }
  // In the smallest windows the keys and menus are left.
  for (QToolButton* spare : std::initializer_list<QToolButton*>{sound_, all_, speed_}) {
    if (left <= end) break;
    spare->hide();
    buttons_->layout()->activate();
    fits();
  }
  detach_->setVisible(left <= end);
  if (detach_->isHidden()) end = width() - kMargin;
  const int words = FiguresWidth(QFontMetrics(UiFont(kTextPixels)), longest_) + 4;
  const bool own = end - left < words;
  const int y = own ? Px(36) : Px(24) + (height() - Px(24)) / 2;  // middle of the buttons
  buttons_->setGeometry(kMargin - 6, y - Px(kButton) / 2, buttons_->sizeHint().width(), Px(kButton));
  detach_->move(width() - kMargin - detach_->width() + 4, y - detach_->height() / 2);
  SetSmallWords(own && words > width() - 8);
  if (own) {
    line_->setGeometry(4, height() - Px(20), width() - 8, Px(18));
  } else {
    line_->setGeometry(end - words, y - Px(12), words - 4, Px(24));
    end = line_->x();
  }
  int seekEnd = width() - kMargin + 2;
  const auto beside = [&](QWidget* part, int wide) {
    seekEnd -= wide;
    part->setGeometry(seekEnd, own ? 0 : 2, wide, Px(kMarks));
    seekEnd -= 4;
  };
  if (const int wide = CounterWidth(); wide > 0 && end - left >= wide) {
    counter_->setGeometry(end - wide, y - Px(12), wide, Px(24));
    end -= wide;
  } else if (wide > 0) {
    beside(counter_, wide);
  }
  if (!MarksFit(end - left - 4)) {
    beside(marksButton_, marksButton_->width());
  } else if (!marks_.empty()) {
    markBox_->ShowRow(this, {left, y - Px(kMarks) / 2});
  }
  seek_->setGeometry(kMargin - 2, own ? 0 : 2, seekEnd - kMargin + 2, Px(22));
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
  detach_->setAccessibleName(detach_->toolTip());
  if (docked_) {
    emit Redocked();
  } else {
    raise();
    if (marksButton_->isChecked()) markBox_->raise();
  }
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
