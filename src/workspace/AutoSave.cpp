#include "workspace/AutoSave.h"

#include "platform/host/DriveWatch.h"

namespace kinalyx {
namespace {

constexpr int kRest = 1000;  // milliseconds without a change before anything is written
constexpr int kAgain = 10000;  // after the disk has refused

}  // namespace

void AutoSave::Changed() {
  rest_ = HostTimer(host_, kRest, false, [this] { Save(); });
}

bool AutoSave::SaveSlot(int slot) {
  if (!workspace_.HasVideo(slot)) return true;
  const auto answers = [&] { return host_.Drives().AnswersAtOnce(settings_.LibraryPath, workspace_.At(slot).path); };
  std::string notice;
  const bool saved = !workspace_.HasUnsaved(slot) || (answers() && workspace_.SaveData(slot, &notice));
  workspace_.SetRefused(slot, !saved);
  if (saved && !notice.empty()) host_.Message(MessageKind::Warning, "", notice);  // something did not fit
  return saved;
}

/// Nobody is disturbed at work: what cannot be written is told beside the video's name, and tried again
/// and again. Closing the video asks.
void AutoSave::Save() {
  bool all = true;
  for (int slot = 1; slot <= kSlots; ++slot) all = SaveSlot(slot) && all;
  if (!all) rest_ = HostTimer(host_, kAgain, false, [this] { Save(); });
}

}  // namespace kinalyx
