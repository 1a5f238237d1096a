#pragma once

#include <string>

#include "workspace/commands/IHandouts.h"

namespace kinalyx {

/// Where the Go To menu leads: the other pages, and whoever owns them.
class INavigation {
 public:
  virtual ~INavigation() = default;
  virtual void GoToLibrary() = 0;
  virtual void GoToCapture() = 0;
  virtual void GoToMainMenu() = 0;
  virtual void GoToHelp() = 0;
  /// "Live Draw & Hot Zones" opens in a window of its own, or comes to the front.
  virtual void OpenLiveDraw() = 0;
  /// The window of the delayed mirror.
  virtual void OpenMirror() = 0;
  /// The analysis section is left: its videos are closed, and its window may go at the next turn of the
  /// event loop.
  virtual void ExitAnalysis() = 0;
  /// Offers for a while, on whichever page, to bring back what was closed; `words` say what that is. Who accepts
  /// comes to the analysis section, and its command "ReopenVideos" runs.
  virtual void OfferReopen(const std::string& words) = 0;
  /// The program ends, as if its window were closed.
  virtual void QuitProgram() = 0;
  /// What makes something to take home of the stage; it outlives the analysis section.
  virtual IHandouts& Handouts() = 0;
};

}  // namespace kinalyx
