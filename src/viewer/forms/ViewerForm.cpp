#include "viewer/forms/ViewerForm.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>
#include <cmath>

#include "distribution/clips/FileScene.h"
#include "distribution/clips/forms/ClipPicture.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/NameList.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"

namespace kinalyx {
namespace {

constexpr int kTickMs = 8;
constexpr int kListWide = 250;
constexpr int kFull = 100;  // percent
constexpr double kSlow = 0.5;

QString TimeText(double ms) {
  const auto hundredths = static_cast<qint64>(std::llround(ms / 10));
  return QString("%1:%2.%3")
      .arg(hundredths / 6000)
      .arg(hundredths / 100 % 60, 2, 10, QChar('0'))
      .arg(hundredths % 100, 2, 10, QChar('0'));
}

}  // namespace

ViewerForm::ViewerForm(const std::string& folder, ISoundOutput& sound, QWidget* parent)
    : QWidget(parent), sound_(sound) {
  setObjectName("ViewerForm");
  setWindowTitle(tr("Kinalyx Viewer"));
  auto* all = new QHBoxLayout(this);
  all->setContentsMargins(12, 12, 12, 12);
  all->setSpacing(12);
  all->addWidget(MakeList());
  all->addWidget(MakeStage(), 1);
  tick_.setInterval(kTickMs);
  tick_.setTimerType(Qt::PreciseTimer);
  connect(&tick_, &QTimer::timeout, this, &ViewerForm::NextPicture);
  Fill(folder);
  const auto first = std::ranges::find_if(paths_, [](const std::string& path) { return !path.empty(); });
  Enable();
  if (first != paths_.end()) list_->setCurrentRow(static_cast<int>(first - paths_.begin()));
}

ViewerForm::~ViewerForm() { sound_.Stop(); }

QWidget* ViewerForm::MakeList() {
  list_ = new NameList("ViewerList", this);
  list_->SetHint(tr("There are no videos on this disc."));
  list_->setAccessibleName(tr("Lessons and videos"));
  FixWidth(list_, kListWide);
  list_->installEventFilter(this);
  connect(list_, &QListWidget::currentRowChanged, this, &ViewerForm::OpenRow);
  connect(list_, &QListWidget::itemActivated, this, [this] { Play(true); });
  return list_;
}

QWidget* ViewerForm::MakeStage() {
  auto* stage = new QWidget(this);
  auto* rows = new QVBoxLayout(stage);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(10);
  picture_ = new ClipPicture("ViewerPicture", stage);
  picture_->setMinimumSize(320, 180);
  rows->addWidget(picture_, 1);
  fault_ = MakeLabel("ViewerFault", {}, nullptr, stage);
  fault_->setWordWrap(true);
  fault_->hide();
  rows->addWidget(fault_);
  seek_ = new QSlider(Qt::Horizontal, stage);
  seek_->setObjectName("ViewerSeek");
  seek_->setAccessibleName(tr("Picture"));
  rows->addWidget(seek_);
  auto* actions = new QHBoxLayout;
  actions->setSpacing(8);
  const auto add = [&](const char* name, const QString& caption, Look look) {
    auto* button = new Button(name, caption, {}, look, stage);
    button->setFocusPolicy(Qt::TabFocus);
    actions->addWidget(button);
    return button;
  };
  play_ = add("ViewerPlay", tr("Play"), Look::Filled);
  LeastWidth(play_, 90);
  back_ = add("ViewerBack", tr("Step Back"), Look::Quiet);
  forward_ = add("ViewerForward", tr("Step"), Look::Quiet);
  slow_ = add("ViewerSlow", tr("Half Speed"), Look::Quiet);
  slow_->setCheckable(true);
  back_->setAutoRepeat(true);
  forward_->setAutoRepeat(true);
  play_->setToolTip(tr("Space"));
  back_->setToolTip(tr("Left arrow"));
  forward_->setToolTip(tr("Right arrow"));
  slow_->setToolTip("H");
  actions->addStretch(1);
  time_ = new FigureLabel("ViewerTime", {}, stage);
  actions->addWidget(time_);
  rows->addLayout(actions);

  connect(picture_, &ClipPicture::Resized, this, &ViewerForm::ShowPosition);
  connect(play_, &QPushButton::clicked, this, [this] { Play(!Playing()); });
  connect(back_, &QPushButton::clicked, this, [this] { Step(-1); });
  connect(forward_, &QPushButton::clicked, this, [this] { Step(1); });
  connect(slow_, &QPushButton::toggled, this, &ViewerForm::SetSlow);
  connect(seek_, &QSlider::sliderPressed, this, [this] { Play(false); });
  connect(seek_, &QSlider::valueChanged, this, &ViewerForm::ShowPosition);
  return stage;
}

void ViewerForm::Fill(const std::string& folder) {
  AddFolder(tr("Lessons"), JoinPath(folder, "Lessons"));
  AddFolder(tr("Videos"), JoinPath(folder, "Videos"));
  if (paths_.empty()) AddFolder({}, folder);
}

void ViewerForm::AddFolder(const QString& heading, const std::string& folder) {
  const std::vector<std::string> names = ListVideos(folder);
  if (names.empty()) return;
  if (!heading.isEmpty()) {
    auto* item = new QListWidgetItem(heading, list_);
    item->setData(NameDelegate::kHeadingRole, true);
    item->setFlags(Qt::NoItemFlags);
    paths_.emplace_back();
  }
  for (const std::string& name : names) {
    list_->addItem(Q(VideoName(name)));
    paths_.push_back(JoinPath(folder, name));
  }
}

void ViewerForm::OpenRow(int row) {
  if (row < 0 || row >= static_cast<int>(paths_.size())) return;
  const std::string& path = paths_[static_cast<std::size_t>(row)];
  if (!path.empty()) Open(path);
}

void ViewerForm::Open(const std::string& path) {
  Play(false);
  painter_.reset();
  times_ = nullptr;
  picture_->Show({});
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const auto scene = SceneOfFile(path, {});
  Outcome how = scene ? Outcome() : scene.Failure();
  if (scene) {
    auto painter = ScenePainter::Open(*scene, {});
    if (painter) painter_ = std::move(*painter);
    else how = painter.Failure();
  }
  QApplication::restoreOverrideCursor();
  fault_->setVisible(!how);
  fault_->setText(how ? QString() : tr("\"%1\" cannot be shown: %2").arg(Q(VideoName(path)), Q(how.Why())));
  if (painter_) times_ = painter_->Times().front();
  const QSignalBlocker quiet(seek_);
  seek_->setRange(0, times_ ? std::max(0, times_->Count() - 1) : 0);
  seek_->setValue(0);
  setWindowTitle(times_ ? tr("%1 - Kinalyx Viewer").arg(Q(VideoName(path))) : tr("Kinalyx Viewer"));
  Enable();
  ShowPosition();
}

void ViewerForm::Enable() {
  for (QWidget* part : {static_cast<QWidget*>(play_), static_cast<QWidget*>(back_), static_cast<QWidget*>(forward_),
                        static_cast<QWidget*>(slow_), static_cast<QWidget*>(seek_)})
    part->setEnabled(times_ != nullptr);
}

int ViewerForm::Position() const { return seek_->value(); }
double ViewerForm::Speed() const { return slow_->isChecked() ? kSlow : 1; }
double ViewerForm::Now() const { return playedFrom_ + static_cast<double>(clock_.elapsed()) * Speed(); }

void ViewerForm::ShowPosition() {
  if (!times_) {
    time_->setText({});
    return;
  }
  const double proportion = painter_->Scene().Proportion();
  const QSize size = picture_->PixelsFor(proportion);
  Surface picture = picture_->Take();
  if (picture.Width() != size.width() || picture.Height() != size.height())
    picture = Surface(size.width(), size.height());
  painter_->Paint({Position()}, picture);
  picture_->Show(std::move(picture));
  time_->setText(TimeText(times_->TimeOf(Position())) + " / " + TimeText(times_->TimeOf(times_->Count())));
}

void ViewerForm::SoundFrom() {
  // Slowed down, a voice cannot be understood.
  if (Playing() && !slow_->isChecked()) sound_.Play(painter_->Scene().LeadVideo().Path, Now(), kFull);
  else sound_.Stop();
}

void ViewerForm::Play(bool on) {
  if (!times_) on = false;
  if (on && Position() >= seek_->maximum()) seek_->setValue(0);
  play_->setText(on ? tr("Pause") : tr("Play"));
  if (!on) {
    tick_.stop();
    sound_.Stop();
    return;
  }
  playedFrom_ = times_->TimeOf(Position());
  clock_.start();
  tick_.start();
  SoundFrom();
}

void ViewerForm::SetSlow(bool) {
  if (!Playing()) return;
  playedFrom_ = times_->TimeOf(Position());
  clock_.start();
  SoundFrom();
}

void ViewerForm::Step(int positions) {
  Play(false);
  seek_->setValue(Position() + positions);
}

void ViewerForm::NextPicture() {
  const double now = Now();
  const int at = std::clamp(times_->PositionAt(now), 0, seek_->maximum());
  if (at != Position()) seek_->setValue(at);
  if (now >= times_->TimeOf(times_->Count())) Play(false);
}

bool ViewerForm::TakeKey(int key) {
  switch (key) {
    case Qt::Key_Space: Play(!Playing()); return true;
    case Qt::Key_Left: Step(-1); return true;
    case Qt::Key_Right: Step(1); return true;
    case Qt::Key_H: slow_->toggle(); return true;
    default: return false;
  }
}

bool ViewerForm::eventFilter(QObject* watched, QEvent* event) {
  if (watched == list_ && event->type() == QEvent::KeyPress && TakeKey(static_cast<QKeyEvent*>(event)->key()))
    return true;
  return QWidget::eventFilter(watched, event);
}

void ViewerForm::keyPressEvent(QKeyEvent* event) {
  if (!TakeKey(event->key())) QWidget::keyPressEvent(event);
}

void ViewerForm::closeEvent(QCloseEvent* event) {
  Play(false);
  QWidget::closeEvent(event);
}

}  // namespace kinalyx
