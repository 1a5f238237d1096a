#include "workspace/AutoSave.h"

namespace kinalyx {
namespace {

constexpr int kRest = 1000;  // milliseconds without a change before anything is written

}  // namespace

void AutoSave::Changed() {
  rest_ = HostTimer(host_, kRest, false, [this] { Save(); });
}

/// What the disk refuses is tried again with the next change, and told when the video closes.
void AutoSave::Save() {
  for (int slot = 1; slot <= kSlots; ++slot) {
    // A video that stands in two slots has two sets of drawings, which become one only when one of them
    // closes: until then a drawing that is deleted here would come back from what was written there.
    if (workspace_.HasVideo(slot) && !workspace_.ShownTwice(slot) && workspace_.HasUnsaved(slot)) workspace_.SaveData(slot);
  }
}

}  // namespace kinalyx
