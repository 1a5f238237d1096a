#pragma once

#include "workspace/commands/INavigation.h"

namespace kinalyx::bench {

/// Other pages for an analysis section that stands alone.
struct Nowhere final : INavigation {
  void GoToLibrary() override {}
  void GoToCapture() override {}
  void OpenLiveDraw() override {}
  void OpenMirror() override {}
  void GoToMainMenu() override {}
  void GoToHelp() override {}
  void ExitAnalysis() override {}
  void OfferReopen(const std::string&) override {}
  void QuitProgram() override {}
  IHandouts& Handouts() override { return none; }

  IHandouts none;
};

}  // namespace kinalyx::bench
