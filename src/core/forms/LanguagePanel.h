#pragma once

#include <vector>

#include "core/Settings.h"
#include "platform/files/Languages.h"
#include "platform/widgets/Panel.h"

namespace kinalyx {

/// The choice of the language in which the program speaks, on the setup page.
class LanguagePanel : public Panel {
  Q_OBJECT

 public:
  /// @param languages  that can be chosen, besides the desktop's own
  LanguagePanel(Settings& settings, const std::vector<Language>& languages, QWidget* parent = nullptr);

 signals:
  /// Another language has been chosen, which the next start speaks.
  void RestartWanted();
};

}  // namespace kinalyx
