#include "workspace/compare/Transparency.h"

#include <algorithm>

#include "workspace/videos/PlayerMoves.h"
#include "workspace/stage/PlayerPlace.h"

namespace kinalyx {
namespace {

constexpr std::string_view kDouble = "2";  // the layout that shows windows 1 and 2 side by side
constexpr int kWalkStep = 15;              // of the slider on its way to a preset
constexpr int kWalkInterval = 20;          // milliseconds between two steps
constexpr int kDissolveInterval = 45;
constexpr int kHalf = 128;
constexpr int kFull = 255;

}  // namespace

Transparency::Transparency(IHost& host, Settings& settings, Stage& stage, LockedVideos& locks, ITransparencyView& view,
                           ICompareEvents& events)
    : host_(host), settings_(settings), stage_(stage), locks_(locks), view_(view), events_(events) {}

AVIControl* Transparency::Player(int window) { return stage_.HasVideo(window) ? &stage_.MP(window) : nullptr; }

// ---------------------------------------------------------------- entering and leaving

bool Transparency::CanShow() const { return on_ || (stage_.HasVideo(1) && stage_.HasVideo(2)); }

void Transparency::ToggleTransparency() {
  if (on_) {
    LeaveTransparency();
  } else if (CanShow()) {
    Enter();
  }
}

void Transparency::Enter() {
  events_.GiveWay();
  on_ = true;
  view_.ShowTransparency(true);
  stage_.BarHidden = true;  // it is beneath the mix
  stage_.TakeStage(kDouble, this);
  SetOption(ShowOption::Transparency);
  mix_ = TransTarget_ = kHalf;
  guard_ = true;
  view_.SetTransScroll(mix_, true);
  guard_ = false;
  ShowControls();
  CMDDISAct();
}

void Transparency::LeaveTransparency() {
  if (on_) stage_.ComeHome();
}

void Transparency::StageLost() {
  on_ = false;
  walk_.Stop();
  refresh_.Stop();
  dissolveTimer_.Stop();
  before_ = Surface();
  view_.ShowTransparency(false);
  stage_.BarHidden = false;
}

void Transparency::Resize(int width, int height) {
  if (width == TransPanel_.Width() && height == TransPanel_.Height()) return;
  TransPanel_ = Surface(width, height);
  dissolveTimer_.Stop();
  before_ = Surface();
  Refresh();
}

// ---------------------------------------------------------------- the picture

/// In the mix a picture stands as in its cell, with the middle of the cell in the middle of the panel.
POINTAPI Transparency::PictureCorner(int window) const {
  const Slot& slot = stage_.At(window);
  const Surface& picture = slot.MP->Picture();
  return {(TransPanel_.Width() - picture.Width()) / 2 + SurfacePixels(slot, slot.PanX * slot.VideoZoom),
          (TransPanel_.Height() - picture.Height()) / 2 + SurfacePixels(slot, slot.PanY * slot.VideoZoom)};
}

PlacedPicture Transparency::Placed(int window) const {
  if (!stage_.HasVideo(window)) return {none_};
  const POINTAPI corner = PictureCorner(window);
  return {stage_.MP(window).Picture(), corner.x, corner.y};
}

void Transparency::ComposeMix() { MixPictures(Placed(1), Placed(2), mix_, TransPanel_); }

/// The middle half of each cell, side by side around the middle of the panel: with two cells side by side
/// an eighth and five eighths of the stage are where the halves begin.
void Transparency::ComposeSplit() {
  TransPanel_.Clear(0);
  for (const int window : {1, 2}) {
    if (!stage_.HasVideo(window)) continue;
    const Surface& picture = stage_.MP(window).Picture();
    const SplitHalf half = HalfOf(window);
    CopyPart(picture, half.fromX, 0, half.width, picture.Height(), TransPanel_, half.toX, Placed(window).top);
  }
}

Transparency::SplitHalf Transparency::HalfOf(int window) const {
  const Slot& slot = stage_.At(window);
  const int half = SurfacePixels(slot, slot.cell.Width) / 2;
  const int fromX = SurfacePixels(slot, slot.cell.Width / 4.0 - slot.panel.Left - PlayerPlace(slot).Left);
  return {fromX, TransPanel_.Width() / 2 - (window == 1 ? half : 0), half};
}

int Transparency::WindowAt(POINTAPI point) const {
  const int side = point.x < TransPanel_.Width() / 2 ? 1 : 2;
  const int window = option_ == ShowOption::SplitScreen ? side : std::min(stage_.CurrentWindow, 2);
  return stage_.HasVideo(window) ? window : 0;
}

POINTAPI Transparency::InPicture(int window, POINTAPI point) const {
  const POINTAPI corner = PictureCorner(window);
  if (option_ != ShowOption::SplitScreen) return {point.x - corner.x, point.y - corner.y};
  const SplitHalf half = HalfOf(window);
  return {point.x - half.toX + half.fromX, point.y - corner.y};
}

void Transparency::CMDDISAct() {
  refresh_.Stop();
  if (!on_ || TransPanel_.Empty()) return;
  if (option_ == ShowOption::SplitScreen) {
    ComposeSplit();
  } else {
    ComposeMix();
  }
  if (dissolveTimer_.Running()) DissolveOver(before_, createDissolveBrush(dissolve_), TransPanel_);
  view_.PresentMix(TransPanel_);
}

void Transparency::Refresh() {
  if (!on_ || refresh_.Running()) return;
  refresh_ = HostTimer(host_, 0, false, [this] { CMDDISAct(); });
}

// ---------------------------------------------------------------- slider and presets

void Transparency::SetOption(ShowOption option) {
  option_ = option;
  guard_ = true;
  view_.SelectOptShow(option);
  guard_ = false;
}

void Transparency::SlideMix(int value) {
  if (guard_ || option_ == ShowOption::SplitScreen) return;
  walk_.Stop();
  mix_ = TransTarget_ = std::clamp(value, 0, kFull);
  SetOption(mix_ == 0 ? ShowOption::VideoWindow1 : mix_ == kFull ? ShowOption::VideoWindow2 : ShowOption::Transparency);
  Refresh();
}

void Transparency::SetMix(int value) {
  if (value != mix_) SlideMix(value);
}

void Transparency::Show(ShowOption option) {
  if (guard_) return;
  const bool wasSplit = option_ == ShowOption::SplitScreen;
  const bool split = option == ShowOption::SplitScreen;
  if (split != wasSplit) BeginDissolve();
  SetOption(option);
  walk_.Stop();
  guard_ = true;
  view_.SetTransScroll(mix_, !split);
  guard_ = false;
  if (split) return CMDDISAct();
  TransTarget_ = option == ShowOption::VideoWindow1 ? 0 : option == ShowOption::VideoWindow2 ? kFull : kHalf;
  if (mix_ != TransTarget_) walk_ = HostTimer(host_, kWalkInterval, true, [this] { Walk(); });
  CMDDISAct();
}

/// One step of the slide.
void Transparency::Walk() {
  mix_ += std::clamp(TransTarget_ - mix_, -kWalkStep, kWalkStep);
  if (mix_ == TransTarget_) walk_.Stop();
  guard_ = true;
  view_.SetTransScroll(mix_, true);
  guard_ = false;
  CMDDISAct();
}

/// What is shown now gives way to what comes in a pattern that thins out.
void Transparency::BeginDissolve() {
  if (!on_ || TransPanel_.Empty()) return;
  before_ = TransPanel_;
  dissolve_ = 1;
  dissolveTimer_ = HostTimer(host_, kDissolveInterval, true, [this] {
    if (++dissolve_ >= kDissolveLevels) {
      dissolveTimer_.Stop();
      before_ = Surface();
    }
    CMDDISAct();
  });
}

// ---------------------------------------------------------------- each video by itself

void Transparency::ControlVideo(int window, VideoControl control) {
  AVIControl* player = Player(window);
  if (!player) return;
  locks_.StopTogether();
  switch (control) {
    case VideoControl::Rewind: GoTo(*player, 0); break;
    case VideoControl::Back: StepBy(*player, -1); break;
    case VideoControl::Play: TogglePlay(*player); break;
    case VideoControl::Forward: StepBy(*player, 1); break;
    case VideoControl::Loop: SetLoop(*player, !player->Repeat()); break;
    case VideoControl::Slow: ToggleSlow(*player, settings_.SlomoSpeed); break;
  }
  ShowControls();
  Refresh();
}

void Transparency::SeekVideo(int window, int value) {
  if (!guard_ && Player(window)) locks_.Seek(window, value);
}

void Transparency::ShowControls() {
  if (!on_) return;
  guard_ = true;
  for (const int window : {1, 2}) {
    const AVIControl* player = Player(window);
    const auto [lowest, highest] = locks_.BarOf(window);
    view_.SetVideoScroll(window, lowest, highest, player ? player->Position() : 0);
    view_.SetVideoButtons(window, player && player->IsPlaying(), player && player->Repeat(),
                          player && player->Speed() != 100);
  }
  guard_ = false;
}

// ---------------------------------------------------------------- from outside

void Transparency::Signal(int slot) {
  if (!on_ || slot > 2) return;
  ShowControls();
  Refresh();
}

void Transparency::Notify(int slot) {
  if (slot <= 2) ShowControls();
}

void Transparency::StateChanged() {
  ShowControls();
  Refresh();
}

}  // namespace kinalyx
