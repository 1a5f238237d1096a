#pragma once

#include <string>

#include "workspace/edits/IStudyView.h"
#include "workspace/keeping/Keeping.h"

namespace kinalyx {

/// The notes panel `NotesPnl`: text that belongs to the current video and lives in its sidecar.
class VideoNotes {
 public:
  VideoNotes(Stage& stage, Keeping& keeping, IStudyView& view);

  /// Opens the panel, or closes it.
  void ToggleNotes();
  /// Places the open panel at the current video and shows its notes. It stays for the next video of its
  /// window, and closes with the last.
  void SetupNotesPnl();
  void Close();
  bool Shown() const { return slot_ != 0; }

  /// The text was changed by the user.
  void TakeNotes(const std::string& text);

 private:
  Stage& stage_;
  Keeping& keeping_;
  IStudyView& view_;
  int slot_ = 0;  ///< whose notes are shown; 0 while the panel is closed
};

}  // namespace kinalyx
