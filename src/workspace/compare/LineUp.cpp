#include "workspace/compare/LineUp.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"
#include "workspace/videos/PlayerMoves.h"

namespace kinalyx {
namespace {

/// What two names have in common that mean the same.
std::string Meant(const std::string& name) { return FoldCase(Trimmed(name, " \t")); }

}  // namespace

std::vector<int> LineUp::Shown() const {
  std::vector<int> slots;
  for (int slot = 1; slot <= kSlots; ++slot)
    if (stage_.IsShown(slot) && stage_.HasVideo(slot)) slots.push_back(slot);
  return slots;
}

/// The first mark of that name of each video that has one, however it is written.
std::vector<LineUp::Place> LineUp::Places(const std::string& name) const {
  std::vector<Place> places;
  const std::string meant = Meant(name);
  for (const int slot : Shown()) {
    const auto& marks = stage_.At(slot).data.Study.Marks;
    const auto mark = std::ranges::find_if(marks, [&](const VideoMark& each) { return Meant(each.Name) == meant; });
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
  if (!Best().empty()) return "";
  std::vector<int> bare = Shown();
  if (bare.size() < 2) return Tr("Needs videos in two windows or more");
  std::erase_if(bare, [this](int slot) { return !stage_.At(slot).data.Study.Marks.empty(); });
  if (bare.empty()) return Tr("No two videos have a mark of the same name: a right click on a mark names it");
  if (bare.size() == 1) return Tr("The video in window {} has no mark: M makes one", bare.front());
  return Tr("The videos have no marks yet: M makes one where each of them stands");
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
