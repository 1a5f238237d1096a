#include "workspace/compare/LineUp.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "workspace/videos/PlayerMoves.h"

namespace kinalyx {

std::vector<int> LineUp::Shown() const {
  std::vector<int> slots;
  for (int slot = 1; slot <= kSlots; ++slot)
    if (stage_.IsShown(slot) && stage_.HasVideo(slot)) slots.push_back(slot);
  return slots;
}

/// The first mark of that name of each video that has one.
std::vector<LineUp::Place> LineUp::Places(const std::string& name) const {
  std::vector<Place> places;
  for (const int slot : Shown()) {
    const auto& marks = stage_.At(slot).data.Study.Marks;
    const auto mark = std::ranges::find(marks, name, &VideoMark::Name);
    if (mark != marks.end()) places.push_back({slot, mark->Moment});
  }
  return places;
}

std::vector<LineUp::Place> LineUp::Best() const {
  std::vector<Place> best;
  int least = std::numeric_limits<int>::max();
  for (const int slot : Shown()) {
    const Slot& at = stage_.At(slot);
    for (const VideoMark& mark : at.data.Study.Marks) {
      const auto places = Places(mark.Name);
      if (places.size() < 2) continue;
      // Only the current video tells which of several is meant; more videos in one are better than fewer.
      const int away = slot == stage_.CurrentWindow
                           ? std::abs(mark.Moment.Position(at.MP->SplitFields()) - at.MP->Position())
                           : std::numeric_limits<int>::max() - 1;
      if (places.size() < best.size() || (places.size() == best.size() && away >= least)) continue;
      best = places;
      least = away;
    }
  }
  if (!best.empty()) return best;
  for (const int slot : Shown())
    if (const auto& locked = stage_.At(slot).data.Study.LockedAt) best.push_back({slot, *locked});
  return best.size() < 2 ? std::vector<Place>() : best;
}

std::string LineUp::Obstacle() const {
  return Best().empty() ? "Needs two videos of the layout with a mark of the same name, or that were locked before"
                        : "";
}

void LineUp::ByMark() {
  const auto places = Best();
  if (places.empty()) return;
  locks_.StopTogether();
  for (const Place& place : places) {
    locks_.DualUnlock(place.slot);
    AVIControl& player = stage_.MP(place.slot);
    GoTo(player, place.moment.Position(player.SplitFields()));
  }
  const auto holds = [&](int slot) { return std::ranges::find(places, slot, &Place::slot) != places.end(); };
  if (holds(1) && holds(2) && holds(3) && holds(4)) {
    locks_.DualLock(3);
  } else {
    if (holds(1) && holds(2)) locks_.DualLock(1);
    if (holds(3) && holds(4)) locks_.DualLock(2);
  }
  stage_.News().Note(kVideoChanged);
}

}  // namespace kinalyx
