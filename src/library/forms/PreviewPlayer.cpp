#include "library/forms/PreviewPlayer.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>

#include "library/Sidecar.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

/// A slider for a place in time: a press anywhere jumps there.
class SeekSlider final : public QSlider {
 public:
  SeekSlider() : QSlider(Qt::Horizontal) {
    setObjectName("PreviewSeek");
    setAccessibleName(tr("Position in the video"));
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
    FixHeight(this, 20);
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) SeekTo(event->position().x());
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    if (event->buttons() & Qt::LeftButton) SeekTo(event->position().x());
  }
  void mouseReleaseEvent(QMouseEvent*) override {}
  void paintEvent(QPaintEvent*) override {
    const Theme theme = CurrentTheme();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double y = height() / 2.0;
    painter.setBrush(theme.stageLine);
    painter.drawRoundedRect(QRectF(kKnob, y - 2, width() - 2 * kKnob, 4), 2, 2);
    if (!isEnabled() || maximum() == 0) return;
    const double x = kKnob + (width() - 2 * kKnob) * value() / maximum();
    painter.setBrush(theme.stageFrame);
    painter.drawRoundedRect(QRectF(kKnob, y - 2, x - kKnob, 4), 2, 2);
    painter.setBrush(theme.stageText);
    painter.drawEllipse(QPointF(x, y), kKnob, kKnob);
  }

 private:
  static constexpr double kKnob = 6;

  void SeekTo(double x) {
    const double span = width() - 2 * kKnob;
    if (span > 0) setValue(qRound((x - kKnob) / span * maximum()));
  }
};

}  // namespace

PreviewPlayer::PreviewPlayer(PlayerServices& services, QWidget* parent) : QFrame(parent) {
  setProperty("look", "stage");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  stage_ = new QWidget;
  LeastHeight(stage_, 60);
  view_ = new VideoView(services, stage_);
  view_->setObjectName("VideoPlay1");
  view_->setCursor(Qt::PointingHandCursor);
  view_->hide();
  words_ = MakeLabel("PreviewWords", {}, nullptr, stage_);
  words_->setAlignment(Qt::AlignCenter);
  words_->setWordWrap(true);
  words_->setStyleSheet("color: " + CurrentTheme().stageText.name());
  words_->hide();
  rows->addWidget(stage_, 1);

  bar_ = new QFrame;
  bar_->setObjectName("PreviewBar");
  auto* bar = new QHBoxLayout(bar_);
  bar->setContentsMargins(6, 0, 12, 4);
  bar->setSpacing(6);
  play_ = IconButton("PreviewPlay", "play", tr("Play or pause (Space)"), Look::Stage);
  play_->setFocusPolicy(Qt::NoFocus);
  seek_ = new SeekSlider;
  time_ = new FigureLabel("PreviewTime");
  time_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // The stage is the same in every scheme.
  time_->setStyleSheet("color: " + CurrentTheme().stageText.name());
  bar->addWidget(play_);
  bar->addWidget(seek_, 1);
  bar->addWidget(time_);
  rows->addWidget(bar_);

  connect(play_, &QPushButton::clicked, this, [this] { TogglePlay(); });
  connect(seek_, &QSlider::valueChanged, this, [this](int position) {
    if (Control().IsPlaying()) Control().StopPlay();
    Control().DrawFrame(position);
  });
  Control().SetFrameInterface(this);
  Control().SetMouseKeyboardInterface(this);
  Control().setID(1);
  ShowState();
}

PreviewPlayer::~PreviewPlayer() {
  Control().ReleaseFrameInterface();
  Control().ReleaseMouseKeyboardInterface();
}

bool PreviewPlayer::Load(const std::string& path) {
  ShowWords({});
  const bool opened = Control().Load(path, false, false);
  if (opened) {
    const SlotData fields = DefaultVideoData(*Control().Info());
    Control().setSplitFields(fields.SplitFields);
    Control().setReverseFields(fields.ReverseFields);
  }
  const QSignalBlocker quiet(seek_);
  seek_->setRange(0, qMax(0, Control().VideoLength() - 1));
  seek_->setValue(0);
  view_->setVisible(opened);
  PlaceView();
  if (opened) Control().DrawFrame(0);
  ShowState();
  return opened;
}

void PreviewPlayer::Unload() {
  Control().Unload();
  view_->hide();
  ShowWords({});
  const QSignalBlocker quiet(seek_);
  seek_->setRange(0, 0);
  ShowState();
}

void PreviewPlayer::ShowWords(const QString& words) {
  words_->setText(words);
  words_->setVisible(!words.isEmpty());
}

void PreviewPlayer::TogglePlay() {
  const int last = Control().VideoLength() - 1;
  StopOrPlay(Control().Position() >= last ? 0 : Control().Position(), last);
}

void PreviewPlayer::TogglePlay(int first, int last) {
  const bool inside = Frame() >= first && Frame() < last;
  StopOrPlay((inside ? Frame() : first) * FieldsOfFrame(), (last + 1) * FieldsOfFrame() - 1);
}

void PreviewPlayer::StopOrPlay(int from, int last) {
  if (!Control().Info()) return;
  if (Control().IsPlaying()) Control().StopPlay();
  else Control().Play(from, last);
  ShowState();
}

int PreviewPlayer::FrameCount() { return Control().VideoLength() / FieldsOfFrame(); }

int PreviewPlayer::Frame() { return Control().Position() / FieldsOfFrame(); }

void PreviewPlayer::ShowFrame(int frame) {
  if (Control().IsPlaying()) Control().StopPlay();
  Control().DrawFrame(frame * FieldsOfFrame());
}

void PreviewPlayer::SetBarShown(bool shown) { bar_->setVisible(shown); }

void PreviewPlayer::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  PlaceView();
}

void PreviewPlayer::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  painter.fillRect(rect(), CurrentTheme().stage);
}

/// The largest place on the stage that has the picture's proportions.
void PreviewPlayer::PlaceView() {
  layout()->activate();
  const int width = Control().Info() ? Control().VideoWidth() : 4;
  const int height = Control().Info() ? Control().VideoHeight() : 3;
  const QSize place = QSize(width, height).scaled(stage_->size(), Qt::KeepAspectRatio);
  view_->setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, place, stage_->rect()));
  words_->setGeometry(stage_->rect().marginsRemoved({kGap, kGap, kGap, kGap}));
}

void PreviewPlayer::ShowState() {
  const bool open = Control().Info() != nullptr;
  const bool playing = Control().IsPlaying();
  play_->SetIcon(playing ? "pause" : "play");
  play_->setEnabled(open);
  seek_->setEnabled(open);
  time_->setVisible(open);
  ShowTime();
  emit StateChanged();
}

void PreviewPlayer::ShowTime() {
  const VideoInfo* info = Control().Info();
  if (!info || Control().VideoLength() <= 0) return;
  const double position = info->durationMs / 1000 * Control().Position() / Control().VideoLength();
  const auto text = [](double seconds) { return QString::number(seconds, 'f', 2); };
  time_->setText(QString("%1 / %2 s").arg(text(position), text(info->durationMs / 1000)));
}

void PreviewPlayer::Signal(int Frame, int) {
  const QSignalBlocker quiet(seek_);
  seek_->setValue(Frame);
  ShowTime();
  emit Moved();
}

void PreviewPlayer::Notify(int, int) { ShowState(); }

void PreviewPlayer::MouseDown(int Button, int, float, float, int) {
  if (Button == 1) TogglePlay();
}

}  // namespace kinalyx
