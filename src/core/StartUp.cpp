#include "core/StartUp.h"

#include "platform/files/Folders.h"

namespace kinalyx {

bool StartUp(Settings& settings, MailSettings& mail, ColorSchemes& schemes, const StartUpSteps& steps) {
  const auto run = [](const std::function<void()>& step) {
    if (step) step();
  };
  const bool firstStart = !FileExists(settings.ConfigFile());
  settings.LoadSettings();
  mail.LoadMailSettings();
  schemes.ApplyDesign(settings.Design);
  run(steps.applyScheme);
  run(steps.ensureFields);
  run(steps.showSplash);
  run(steps.loadMain);
  if (firstStart) run(steps.showFirstForm);
  run(steps.closeSplash);
  return firstStart;
}

}  // namespace kinalyx
