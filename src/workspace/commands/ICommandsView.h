#pragma once

namespace kinalyx {

/// What the commands ask of the window: the forms that they open, and that menus and buttons show them anew.
class ICommandsView {
 public:
  virtual ~ICommandsView() = default;
  virtual void ShowOpenPanel() = 0;
  /// Asks for videos that lie anywhere, and opens them.
  virtual void OpenFromDisk() = 0;
  /// Opens the menu of the current window at the mouse.
  virtual void ShowWindowMenu() = 0;
  /// False when it was not open.
  virtual bool CloseOpenPanel() = 0;
  /// Closes what was opened over the stage for a moment, as the list of marks; false when nothing was.
  virtual bool CloseMomentary() = 0;
  /// Offers names for the mark that was made last.
  virtual void NameLastMark() = 0;
  /// The rate at which the current video was taken.
  virtual void ShowRateForm() = 0;
  /// Enable rules, checks and pressed buttons may have changed.
  virtual void CommandsChanged() = 0;
};

}  // namespace kinalyx
