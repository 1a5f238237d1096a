#include "distribution/mail/SnapshotDesk.h"

#include <fmt/format.h>

namespace kinalyx {

void SnapshotDesk::TTES_Click(const Surface& picture) {
  EmailTimer_.Stop();
  view_.HideEmailPnl();
  sounds_.Play(sound_);
  const std::string path = queue_.NextPath();
  const auto saved = picture.Empty() ? Outcome::Failed("There is no picture.") : queue_.Add(RowsOf(picture));
  if (!saved && saved.Kind() == Fault::Refused) return host_.Message(MessageKind::Information, "", saved.Why());
  if (!saved) {
    host_.Note(MessageKind::Warning, "A snapshot for mail was not saved: " + saved.Why());
    return host_.Message(MessageKind::Warning, "",
                         "Failed to save the picture to the file: '" + path + "'\n" + saved.Why());
  }
  view_.ShowEmailPnl(fmt::format("Picture Saved... You now have {} pictures queued for emailing.", queue_.Count()));
  EmailTimer_ = HostTimer(host_, kShownMs, false, [this] { EmailTimer_Timer(); });
}

void SnapshotDesk::EmailTimer_Timer() {
  EmailTimer_.Stop();
  view_.HideEmailPnl();
}

}  // namespace kinalyx
