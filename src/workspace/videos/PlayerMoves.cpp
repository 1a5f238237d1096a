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
  const auto [first, last] = player.PlayRange();
  const int position = player.Position();
  player.Play(position < first || position >= last - 1 ? first : position, last);
}

void SetLoop(AVIControl& player, bool on) {
  player.StopPlay();
  player.setRepeat(on);
  if (!on) return;
  const auto [first, last] = player.PlayRange();
  const int position = player.Position();
  player.Play(position < first || position > last ? first : position, last);
}

void ToggleSlow(AVIControl& player, int slow) {
  player.setSpeed(player.Speed() == 100 ? std::clamp(slow, 1, 100) : 100);
}

}  // namespace kinalyx
