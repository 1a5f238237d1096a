#include "distribution/mail/SnapshotDesk.h"

#include <fmt/format.h>

#include <algorithm>

#include "platform/files/Tr.h"
#include "platform/paint/Blend.h"

namespace kinalyx {
namespace {

/// A picture without the white around what is in it: a reader has no use for the paper of the stage.
Surface WithoutPaper(const Surface& picture) {
  const auto white = [](const std::uint8_t* pixel) { return pixel[0] == 255 && pixel[1] == 255 && pixel[2] == 255; };
  int left = picture.Width(), right = 0, top = picture.Height(), bottom = 0;
  for (int y = 0; y < picture.Height(); ++y) {
    const std::uint8_t* row = picture.Row(y);
    int first = 0, last = picture.Width();
    while (first < last && white(row + std::ptrdiff_t{4} * first)) ++first;
    while (last > first && white(row + std::ptrdiff_t{4} * (last - 1))) --last;
    if (first == last) continue;
    left = std::min(left, first);
    right = std::max(right, last);
    top = std::min(top, y);
    bottom = y + 1;
  }
  if (right <= left) return picture;
  Surface cut(right - left, bottom - top);
  CopyPart(picture, left, top, cut.Width(), cut.Height(), cut, 0, 0);
  return cut;
}

}  // namespace

void SnapshotDesk::TTES_Click(const Surface& picture) {
  EmailTimer_.Stop();
  view_.HideEmailPnl();
  sounds_.Play(sound_);
  const std::string path = queue_.NextPath();
  const auto saved =
      picture.Empty() ? Outcome::Failed(Tr("There is no picture.")) : queue_.Add(RowsOf(WithoutPaper(picture)));
  if (!saved && saved.Kind() == Fault::Refused) return host_.Message(MessageKind::Information, "", saved.Why());
  if (!saved) {
    host_.Note(MessageKind::Warning, fmt::format("A snapshot for mail was not saved: {}", saved.Why()));
    return host_.Message(MessageKind::Warning, "",
                         Tr("Failed to save the picture to the file: '{}'\n{}", path, saved.Why()));
  }
  view_.ShowEmailPnl(Tr("Picture Saved... You now have {} pictures queued for emailing.", queue_.Count()));
  EmailTimer_ = HostTimer(host_, kShownMs, false, [this] { EmailTimer_Timer(); });
}

void SnapshotDesk::EmailTimer_Timer() {
  EmailTimer_.Stop();
  view_.HideEmailPnl();
}

}  // namespace kinalyx
