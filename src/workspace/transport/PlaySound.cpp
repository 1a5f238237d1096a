#include "workspace/transport/PlaySound.h"

#include <algorithm>
#include <cmath>

namespace kinalyx {
namespace {

/// Sound and picture may be as far apart before the sound begins anew, milliseconds.
constexpr double kInStep = 120;

}  // namespace

bool PlaySound::CanBeHeard() const {
  const int slot = stage_.CurrentWindow;
  return output_ && stage_.HasVideo(slot) && stage_.MP(slot).Info() && stage_.MP(slot).Info()->hasSound;
}

/// The slot whose video is to be heard now; 0 for none.
int PlaySound::SlotHeard() const {
  if (!output_ || !audible_ || settings_.SoundVolume <= 0) return 0;
  int slot = stage_.CurrentWindow;
  if (!stage_.HasVideo(slot)) return 0;
  if (const int lead = locks_.LeadOf(slot); lead != 0) {
    if (locks_.TogetherSpeed() != 100 || locks_.PlaysBack(slot)) return 0;
    slot = lead;
  } else {
    const AVIControl& player = stage_.MP(slot);
    if (!player.IsPlaying() || player.PlaysBack() || player.Speed() != 100) return 0;
  }
  const VideoInfo* info = stage_.MP(slot).Info();
  return info && info->hasSound ? slot : 0;
}

void PlaySound::Follow() {
  const int slot = SlotHeard();
  if (slot == 0) return Stop();
  const AVIControl& player = stage_.MP(slot);
  const double shown = player.TimeOf(player.Position());
  const std::int64_t now = host_.timeGetTime();
  const double heard = fromMs_ + static_cast<double>(now - since_);
  if (path_ == player.filename() && std::abs(heard - shown) <= std::max(kInStep, 2 * player.PositionTime())) return;
  path_ = player.filename();
  fromMs_ = shown;
  since_ = now;
  output_->Play(path_, shown, settings_.SoundVolume);
}

void PlaySound::Stop() {
  if (path_.empty()) return;
  path_.clear();
  output_->Stop();
}

void PlaySound::SetAudible(bool on) {
  audible_ = on;
  Follow();
}

void PlaySound::SetVolume(int percent) {
  settings_.Set(settings_.SoundVolume, std::clamp(percent, 0, 100));
  if (output_) output_->SetVolume(settings_.SoundVolume);
  Follow();
}

}  // namespace kinalyx
