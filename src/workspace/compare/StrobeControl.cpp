#include "workspace/compare/StrobeControl.h"

#include <algorithm>

#include "platform/files/Tr.h"
#include "workspace/compare/PictureExport.h"

namespace kinalyx {
namespace {

/// The words of the captions, in the order of StrobeCaption; some take a number.
constexpr std::array<const char*, 6> kCaptions{TrLater("Start Here"), TrLater("Start at {}"), TrLater("End Here"),
                                               TrLater("End at {}"),  TrLater("Strobe"),      TrLater("Stop")};

/// The frame that a player shows, where its positions may be fields.
int RawFrame(const AVIControl& player) {
  return player.SplitFields() ? player.CurrentFrame() / 2 : player.CurrentFrame();
}

}  // namespace

StrobeControl::StrobeControl(Settings& settings, Stage& stage, LockedVideos& locks)
    : settings_(settings), stage_(stage), locks_(locks) {}

AVIControl* StrobeControl::Player() {
  return stage_.HasVideo(stage_.CurrentWindow) ? &stage_.MP(stage_.CurrentWindow) : nullptr;
}

// ---------------------------------------------------------------- the window

void StrobeControl::SetWindow(IStrobeView* view) {
  view_ = view;
  if (view_) ResetStrobe();
}

void StrobeControl::Caption(StrobeButton button, StrobeCaption caption, int frame) {
  if (!view_) return;
  view_->SetCaption(button, Tr(kCaptions[static_cast<std::size_t>(caption)], frame));
}

void StrobeControl::ShowSlider() {
  if (!view_) return;
  const AVIControl* player = Player();
  view_->SetObstacle(Obstacle());
  const auto [lowest, highest] = locks_.BarOf(stage_.CurrentWindow);
  view_->SetSlider(lowest, highest, player ? player->Position() : 0);
}

void StrobeControl::ShowResult() {
  if (view_) view_->SetResult(HasResult());
}

void StrobeControl::ResetStrobe() {
  Stop();
  window_ = stage_.CurrentWindow;
  StartFrame_ = EndFrame_ = 0;
  ShowSlider();
  Caption(StrobeButton::Start, StrobeCaption::StartHere);
  Caption(StrobeButton::End, StrobeCaption::EndHere);
  Caption(StrobeButton::Strobe, StrobeCaption::Strobe);
  ShowResult();
}

void StrobeControl::SeekTo(int value) {
  AVIControl* player = Player();
  if (!player || value == player->Position()) return;
  Stop();
  locks_.Seek(stage_.CurrentWindow, value);
}

void StrobeControl::PressButton(StrobeButton button) {
  AVIControl* player = Player();
  if (!player) return;
  switch (button) {
    case StrobeButton::Start:
      StartFrame_ = RawFrame(*player);
      Caption(StrobeButton::Start, StrobeCaption::StartAt, player->CurrentFrame());
      break;
    case StrobeButton::End:
      EndFrame_ = RawFrame(*player);
      Caption(StrobeButton::End, StrobeCaption::EndAt, player->CurrentFrame());
      break;
    case StrobeButton::Strobe:
      if (StrobeRunning()) {
        Stop();
      } else if (Obstacle().empty()) {
        const int length = player->SplitFields() ? player->VideoLength() / 2 : player->VideoLength();
        const int end = EndFrame_ == 0 ? length : EndFrame_;
        if (end < StartFrame_) return;
        Run(StartFrame_, end);
      }
      break;
  }
}

void StrobeControl::ChooseStep(int ListIndex) {
  if (ListIndex >= 0 && ListIndex < kSteps) settings_.Set(settings_.StrobeStep, ListIndex + 1);
}

int StrobeControl::StrobeStep() const { return std::clamp<int>(settings_.StrobeStep, 1, kSteps); }

// ---------------------------------------------------------------- strobing

std::string StrobeControl::Obstacle() const {
  if (!stage_.HasVideo(stage_.CurrentWindow)) return Tr("Open a video first");
  if (locks_.IsLocked(stage_.CurrentWindow)) return Tr("Unlock the videos first");
  if (stage_.MultiFrame()) return Tr("Leave multi-picture mode first (Esc)");
  return {};
}

void StrobeControl::ToggleStrobe() {
  if (StrobeRunning()) return Stop();
  if (Obstacle().empty()) Run(RawFrame(*Player()), RawFrame(*Player()));
}

void StrobeControl::Run(int start, int end) {
  const int slot = stage_.CurrentWindow;
  AVIControl& player = stage_.MP(slot);
  player.StopPlay();
  running_ = slot;
  result_ = 0;
  Caption(StrobeButton::Strobe, StrobeCaption::Stop);
  ShowResult();
  stage_.News().Note(kCommandsChanged);
  player.Strobeframes(start, end, StrobeStep());
}

void StrobeControl::Stop() {
  if (running_ != 0) stage_.MP(running_).StopStrobe();
}

void StrobeControl::StrobeEnded(int slot) {
  if (slot != running_ || stage_.MP(slot).StrobeRunning()) return;
  running_ = 0;
  result_ = slot;
  Caption(StrobeButton::Strobe, StrobeCaption::Strobe);
  ShowResult();
  stage_.News().Note(kCommandsChanged);
}

Outcome StrobeControl::SavePicture(const std::string& path) const {
  if (!HasResult()) return Outcome::Failed(Tr("There is no strobe picture to save."));
  return ExportPicture(stage_.MP(result_).Picture(), path);
}

// ---------------------------------------------------------------- from outside

void StrobeControl::Signal(int slot) {
  if (slot == stage_.CurrentWindow) ShowSlider();
  if (slot != result_ || slot == running_) return;
  result_ = 0;  // another picture has taken its place
  ShowResult();
}

void StrobeControl::VideoClosing(int slot) {
  if (slot == running_) Stop();
  if (slot == result_) result_ = 0;
  ShowResult();
}

void StrobeControl::LocksChanged() {
  if (running_ != 0 && locks_.IsLocked(running_)) Stop();
  ShowSlider();
}

void StrobeControl::VideoOpened(int slot) {
  if (view_ && slot == stage_.CurrentWindow) ResetStrobe();
}

void StrobeControl::FocusChanged() {
  if (view_ && stage_.CurrentWindow != window_) ResetStrobe();
}

void StrobeControl::StateChanged() {
  if (!view_) return;
  Player() ? ShowSlider() : ResetStrobe();
}

}  // namespace kinalyx
