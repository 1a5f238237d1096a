#include "workspace/VideoNotes.h"

#include <algorithm>

namespace kinalyx {
namespace {

constexpr int kHeight = 150 * kTwipsPerPixel;

}  // namespace

VideoNotes::VideoNotes(Workspace& workspace, IWorkspaceView& view) : workspace_(workspace), view_(view) {}

void VideoNotes::ToggleNotes() {
  if (Shown()) {
    Close();
    return;
  }
  if (!workspace_.HasVideo(workspace_.CurrentWindow)) return;
  slot_ = workspace_.CurrentWindow;
  workspace_.FormReset();
  SetupNotesPnl();
}

int VideoNotes::FootHeight(int slot, int height) const {
  return Shown() && slot == slot_ ? std::min(kHeight, height / 2) : 0;
}

void VideoNotes::SetupNotesPnl() {
  if (!Shown()) return;
  if (!workspace_.HasVideo(slot_)) return Close();
  const Slot& at = workspace_.At(slot_);
  TwipRect place = at.panel;
  // Under the picture, which has made room: its feet and its ball stay in sight.
  place.Left += at.cell.Left;
  place.Top += at.cell.Top + at.panel.Height;
  place.Height = std::min(kHeight, at.panel.Height);
  view_.ShowNotesPnl(place, at.data.Notes);
}

void VideoNotes::Close() {
  if (!Shown()) return;
  slot_ = 0;
  view_.HideNotesPnl();
  workspace_.FormReset();
}

void VideoNotes::TakeNotes(const std::string& text) {
  if (Shown()) workspace_.SetNotes(slot_, text);
}

}  // namespace kinalyx
