#include "workspace/videos/PlayerMoves.h"

#include <algorithm>

namespace kinalyx {

void GoTo(AVIControl& player, int position) {
  player.StopPlay();
  player.Play(std::clamp(position, 0, player.VideoLength() - 1));
}

void StepBy(AVIControl& player, int positions) {
  player.StopPlay();
  const int position = player.Position() + positions;
  if (position >= 0 && position < player.VideoLength()) player.Play(position);
}

void TogglePlay(AVIControl& player) {
  if (player.IsPlaying()) return player.StopPlay();
  const int last = player.VideoLength() - 1;
  player.Play(player.Position() >= last - 1 ? 0 : player.Position(), last);
}

void SetLoop(AVIControl& player, bool on) {
  player.StopPlay();
  player.setRepeat(on);
  if (on) player.Play(player.Position(), player.VideoLength() - 1);
}

void ToggleSlow(AVIControl& player, int slow) {
  player.setSpeed(player.Speed() == 100 ? std::clamp(slow, 1, 100) : 100);
}

}  // namespace kinalyx
