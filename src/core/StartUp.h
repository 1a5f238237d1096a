#pragma once

#include "core/ColorSchemes.h"
#include "core/MailSettings.h"
#include "core/Settings.h"

namespace kinalyx {

/// What the start asks of the rooms above, in the order in which it calls them.
class IStartUpSteps {
 public:
  virtual ~IStartUpSteps() = default;
  /// Speak the language of the settings.
  virtual void TakeLanguage() = 0;
  /// Dress the application in the present colours.
  virtual void ApplyScheme() = 0;
  /// See that the profile fields have their captions.
  virtual void EnsureFields() = 0;
  /// Show the splash and leave it up for a second.
  virtual void ShowSplash() = 0;
  /// Make and show the main form.
  virtual void LoadMain() = 0;
  /// Ask for name and company; on the very first start only.
  virtual void ShowFirstForm() = 0;
  virtual void CloseSplash() = 0;
};

/// Brings the workstation up: settings, mail settings and colours before any form, then the splash, the
/// main form, and on the very first start the form that asks for name and company.
/// @return true when this was a first start
bool StartUp(Settings& settings, MailSettings& mail, ColorSchemes& schemes, IStartUpSteps& steps);

}  // namespace kinalyx
