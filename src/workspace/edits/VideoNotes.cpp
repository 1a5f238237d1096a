#include "workspace/edits/VideoNotes.h"

namespace kinalyx {

VideoNotes::VideoNotes(Stage& stage, Keeping& keeping, IStudyView& view)
    : stage_(stage), keeping_(keeping), view_(view) {}

void VideoNotes::ToggleNotes() {
  if (Shown()) {
    Close();
    return;
  }
  if (!stage_.HasVideo(stage_.CurrentWindow)) return;
  slot_ = stage_.CurrentWindow;
  stage_.SetFoot(slot_);
  SetupNotesPnl();
}

void VideoNotes::SetupNotesPnl() {
  if (!Shown()) return;
  if (!stage_.HasVideo(slot_)) return Close();
  const Slot& at = stage_.At(slot_);
  TwipRect place = at.panel;
  // Under the picture, which has made room: its feet and its ball stay in sight.
  place.Left += at.cell.Left;
  place.Top += at.cell.Top + at.panel.Height;
  place.Height = at.foot;
  view_.ShowNotesPnl(place, at.data.Notes);
}

void VideoNotes::Close() {
  if (!Shown()) return;
  slot_ = 0;
  view_.HideNotesPnl();
  stage_.SetFoot(0);
}

void VideoNotes::TakeNotes(const std::string& text) {
  if (Shown()) keeping_.SetNotes(slot_, text);
}

}  // namespace kinalyx
