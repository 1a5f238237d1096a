#pragma once

namespace kinalyx {

/// Where the Go To menu leads: the other pages, and whoever owns them.
class INavigation {
 public:
  virtual ~INavigation() = default;
  virtual void GoToLibrary() = 0;
  virtual void GoToMainMenu() = 0;
  /// The analysis section is left: its videos are closed, and its window may go at the next turn of the
  /// event loop.
  virtual void ExitAnalysis() = 0;
};

}  // namespace kinalyx
