#include "workspace/AutoSave.h"

#include "platform/host/DriveWatch.h"

namespace kinalyx {
namespace {

constexpr int kRest = 1000;  // milliseconds without a change before anything is written

}  // namespace

void AutoSave::Changed() {
  rest_ = HostTimer(host_, kRest, false, [this] { Save(); });
}

/// A video that stands in two slots has two sets of drawings, which become one only when one of them
/// closes: until then a drawing that is deleted here would come back from what was written there.
bool AutoSave::Wanted(int slot) {
  return workspace_.HasVideo(slot) && !workspace_.ShownTwice(slot) && workspace_.HasUnsaved(slot);
}

/// What the disk refuses, or a drive that does not answer, is tried again with the next change, and told
/// when the video closes: nobody is disturbed at work.
void AutoSave::Save() {
  for (int slot = 1; slot <= kSlots; ++slot)
    if (Wanted(slot) && host_.Drives().AnswersAtOnce(settings_.LibraryPath, workspace_.At(slot).path))
      workspace_.SaveData(slot);
}

}  // namespace kinalyx
