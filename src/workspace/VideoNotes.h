#pragma once

#include <string>

#include "workspace/Workspace.h"

namespace kinalyx {

/// The notes panel `NotesPnl`: text that belongs to the current video and lives in its sidecar.
class VideoNotes {
 public:
  VideoNotes(Workspace& workspace, IWorkspaceView& view);

  /// Opens the panel, or closes it.
  void ToggleNotes();
  /// Places the open panel at the current video and shows its notes. It stays for the next video of its
  /// window, and closes with the last.
  void SetupNotesPnl();
  void Close();
  bool Shown() const { return slot_ != 0; }
  /// What the open panel takes of a slot's picture of this height, both in twips.
  int FootHeight(int slot, int height) const;

  /// The text was changed by the user.
  void TakeNotes(const std::string& text);

 private:
  Workspace& workspace_;
  IWorkspaceView& view_;
  int slot_ = 0;  ///< whose notes are shown; 0 while the panel is closed
};

}  // namespace kinalyx
