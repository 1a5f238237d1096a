#include "capture/forms/ReviewDesk.h"

#include <algorithm>
#include <utility>

#include <QBoxLayout>
#include <QShortcut>
#include <QSignalBlocker>

#include "capture/CaptureSession.h"
#include "library/forms/PreviewPlayer.h"
#include "library/forms/TrimSlider.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/Panel.h"

namespace kinalyx {

namespace {

constexpr int kStride = 10;  // pictures that a larger step goes

}  // namespace

/// A recording under review, counted by frames whether it is shown by frames or by fields.
class ReviewDesk::Video final : public IReviewPlayer {
 public:
  explicit Video(PreviewPlayer& player) : player_(player) {}
  bool Load(const std::string& path) override { return player_.Load(path); }
  void Unload() override { player_.Unload(); }
  int CurrentFrame() override { return player_.Frame(); }
  int FrameCount() override { return player_.FrameCount(); }
  void ShowFrame(int frame) override { player_.ShowFrame(frame); }
  RecordingFacts Facts() override {
    const VideoInfo* info = player_.Control().Info();
    return info ? FactsOf(*info) : RecordingFacts();
  }

 private:
  PreviewPlayer& player_;
};

ReviewDesk::ReviewDesk(PlayerServices& services, CaptureSession& session, QWidget& page)
    : QObject(&page), session_(session), videos_(MakeVideos(services)), bar_(MakeBar()) {
  TakeKeys(page);
}

ReviewDesk::~ReviewDesk() = default;

QWidget* ReviewDesk::MakeVideos(PlayerServices& services) {
  QWidget* videos = MakeFrame("stage");
  auto* row = new QHBoxLayout(videos);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  for (int camera = 0; camera < 2; ++camera) {
    players_[camera] = new PreviewPlayer(services);
    players_[camera]->setObjectName(camera == 0 ? "VidPlayer" : "TestPlayer");
    players_[camera]->SetBarShown(false);
    row->addWidget(players_[camera], 1);
    reviewed_[camera] = std::make_unique<Video>(*players_[camera]);
  }
  connect(players_[0], &PreviewPlayer::Moved, this, &ReviewDesk::Show);
  connect(players_[0], &PreviewPlayer::StateChanged, this,
          [this] { play_->SetIcon(players_[0]->Control().IsPlaying() ? "pause" : "play"); });
  return videos;
}

QWidget* ReviewDesk::MakeBar() {
  auto* bar = new QWidget;
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  play_ = IconButton("ReviewPlay", "play", tr("Play or pause (P)"), Look::Quiet);
  VidScroll_ = new TrimSlider("VidScroll");
  VidScroll_->setToolTip(tr("Drag the two ends. Arrow keys step, I starts and O ends here, P plays."));
  frame_ = new FigureLabel("VidFrameLbl");
  row->addWidget(play_);
  row->addWidget(VidScroll_, 1);
  row->addWidget(frame_);
  connect(play_, &QPushButton::clicked, this, &ReviewDesk::Play);
  connect(VidScroll_, &TrimSlider::Sought, this, &ReviewDesk::Seek);
  connect(VidScroll_, &TrimSlider::StartWanted, this, &ReviewDesk::StartWanted);
  connect(VidScroll_, &TrimSlider::EndWanted, this, &ReviewDesk::EndWanted);
  connect(VidScroll_, &TrimSlider::PlayWanted, this, &ReviewDesk::Play);
  connect(VidScroll_, &TrimSlider::RangeChanged, this, [this] {
    session_.Trim(VidScroll_->Start(), VidScroll_->End() < VidScroll_->Frames() - 1 ? VidScroll_->End() : 0);
  });
  return bar;
}

/// What moves in a recording under review works from whatever button has the keys.
void ReviewDesk::TakeKeys(QWidget& page) {
  const auto key = [&](const char* keys, auto action) {
    auto* shortcut = new QShortcut(QKeySequence(keys), &page, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    shortcut->setEnabled(false);
    connect(shortcut, &QShortcut::activated, this, action);
    connect(this, &ReviewDesk::Switched, shortcut, &QShortcut::setEnabled);
  };
  key("Left", [this] { Seek(Frame() - 1); });
  key("Right", [this] { Seek(Frame() + 1); });
  key("Shift+Left", [this] { Seek(Frame() - kStride); });
  key("Shift+Right", [this] { Seek(Frame() + kStride); });
  key("Home", [this] { Seek(0); });
  key("End", [this] { Seek(reviewed_[0]->FrameCount() - 1); });
  key("I", [this] { emit StartWanted(); });
  key("O", [this] { emit EndWanted(); });
  key("P", [this] { Play(); });
}

IReviewPlayer& ReviewDesk::Player(int camera) { return *reviewed_[camera]; }

int ReviewDesk::Cameras() const { return session_.TwoCameras() ? 2 : 1; }

int ReviewDesk::Frame() const { return reviewed_[0]->CurrentFrame(); }

void ReviewDesk::SetOn(bool on) {
  if (on != std::exchange(on_, on)) emit Switched(on);
}

void ReviewDesk::ShowSecond(bool shown) { players_[1]->setVisible(shown); }

void ReviewDesk::Show() {
  const int count = reviewed_[0]->FrameCount();
  const QSignalBlocker quiet(VidScroll_);
  if (VidScroll_->Frames() != count) VidScroll_->SetFrames(count);
  const int end = session_.TrimEndFrame();
  VidScroll_->SetEnd(end > 0 ? end : count - 1);
  VidScroll_->SetStart(session_.TrimStartFrame());
  VidScroll_->SetPosition(Frame());
  frame_->setText(tr("%1 of %2").arg(Frame() + 1).arg(count));
}

void ReviewDesk::Play() {
  for (int camera = 0; camera < Cameras(); ++camera) {
    const int last = reviewed_[camera]->FrameCount() - 1;
    const int end = session_.TrimEndFrame();
    players_[camera]->TogglePlay(session_.TrimStartFrame(), end > 0 ? std::min(end, last) : last);
  }
}

void ReviewDesk::Seek(int frame) {
  for (int camera = 0; camera < Cameras(); ++camera)
    reviewed_[camera]->ShowFrame(std::clamp(frame, 0, std::max(0, reviewed_[camera]->FrameCount() - 1)));
  Show();
}

void ReviewDesk::FocusBar() { VidScroll_->setFocus(); }

}  // namespace kinalyx
