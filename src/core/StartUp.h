#pragma once

#include <functional>

#include "core/ColorSchemes.h"
#include "core/MailSettings.h"
#include "core/Settings.h"

namespace kinalyx {

/// What the start asks of the rooms above, in the order in which it calls them. An empty one is skipped.
struct StartUpSteps {
  std::function<void()> applyScheme;   ///< dress the application in the present colours
  std::function<void()> ensureFields;  ///< see that the profile fields have their captions
  std::function<void()> showSplash;    ///< show the splash and leave it up for a second
  std::function<void()> loadMain;      ///< make and show the main form
  std::function<void()> showFirstForm; ///< ask for name and company
  std::function<void()> closeSplash;
};

/// Brings the workstation up: settings, mail settings and colours before any form, then the splash, the
/// main form, and on the very first start the form that asks for name and company.
/// @return true when this was a first start
bool StartUp(Settings& settings, MailSettings& mail, ColorSchemes& schemes, const StartUpSteps& steps);

}  // namespace kinalyx
