#include "core/StartUp.h"

#include "platform/files/Folders.h"

namespace kinalyx {

bool StartUp(Settings& settings, MailSettings& mail, ColorSchemes& schemes, IStartUpSteps& steps) {
  const bool firstStart = !FileExists(settings.ConfigFile());
  settings.LoadSettings();
  mail.LoadMailSettings();
  schemes.ApplyDesign(settings.Design);
  steps.TakeLanguage();
  steps.ApplyScheme();
  steps.EnsureFields();
  steps.ShowSplash();
  steps.LoadMain();
  if (firstStart) steps.ShowFirstForm();
  steps.CloseSplash();
  return firstStart;
}

}  // namespace kinalyx
