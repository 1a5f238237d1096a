#include "workspace/transport/AllVideos.h"

#include <algorithm>

#include "workspace/videos/PlayerMoves.h"

namespace kinalyx {

std::vector<int> AllVideos::Leads() const {
  std::vector<int> leads;
  for (int slot = 1; slot <= kSlots; ++slot) {
    if (!stage_.IsShown(slot) || !stage_.HasVideo(slot)) continue;
    const std::vector<int> together = locks_.LockedWith(slot);
    const bool moved =
        std::ranges::any_of(together, [&](int each) { return std::ranges::find(leads, each) != leads.end(); });
    if (!moved) leads.push_back(slot);
  }
  return leads;
}

bool AllVideos::Plays(int slot) const { return stage_.MP(slot).IsPlaying() || locks_.PlayingTogether(slot); }

bool AllVideos::Playing() const {
  return std::ranges::any_of(Leads(), [this](int slot) { return Plays(slot); });
}

bool AllVideos::Several() const {
  int count = 0;
  for (int slot = 1; slot <= kSlots; ++slot) count += stage_.IsShown(slot) && stage_.HasVideo(slot);
  return count > 1;
}

void AllVideos::TogglePlay() {
  if (Playing()) return Pause();
  for (const int slot : Leads())
    locks_.IsLocked(slot) ? locks_.PlayTogether(slot, true) : kinalyx::TogglePlay(stage_.MP(slot));
}

void AllVideos::Pause() {
  for (const int slot : Leads()) {
    locks_.StopTogether(slot);
    stage_.MP(slot).StopPlay();
  }
}

void AllVideos::PlayBack() {
  Pause();
  for (const int slot : Leads()) locks_.IsLocked(slot) ? locks_.PlayTogether(slot, false) : stage_.MP(slot).PlayBack();
}

void AllVideos::Rewind() {
  for (const int slot : Leads()) locks_.IsLocked(slot) ? locks_.RewindTogether(slot) : GoTo(stage_.MP(slot), 0);
}

void AllVideos::Step(bool forward) {
  for (const int slot : Leads())
    locks_.IsLocked(slot) ? locks_.StepTogether(slot, forward) : StepBy(stage_.MP(slot), forward ? 1 : -1);
}

void AllVideos::Move(int positions) {
  for (const int slot : Leads()) locks_.Seek(slot, stage_.MP(slot).Position() + positions);
}

void AllVideos::SetSpeed(int percent) {
  for (const int slot : Leads())
    locks_.IsLocked(slot) ? locks_.setTogetherSpeed(percent) : stage_.MP(slot).setSpeed(percent);
}

/// "Loop all" takes the videos in sight that move by themselves.
bool AllVideos::CanLoop(int slot) const {
  return stage_.IsShown(slot) && stage_.HasVideo(slot) && !locks_.IsLocked(slot);
}

bool AllVideos::Looping() const {
  bool any = false;
  for (int slot = 1; slot <= kSlots; ++slot) {
    if (!CanLoop(slot)) continue;
    if (!stage_.MP(slot).Repeat()) return false;
    any = true;
  }
  return any;
}

void AllVideos::ToggleLoop() {
  const bool on = !Looping();
  for (int slot = 1; slot <= kSlots; ++slot)
    if (CanLoop(slot)) SetLoop(stage_.MP(slot), on);
}

}  // namespace kinalyx
