#pragma once

#include "core/MailSettings.h"
#include "core/Settings.h"
#include "distribution/updates/UpdateCheck.h"
#include "platform/widgets/Panel.h"

class QCheckBox;

namespace kinalyx {

class Button;

/// The server of updates and when it is asked. What is typed is written at once.
class UpdatesPanel final : public Panel {
  Q_OBJECT

 public:
  /// All outlives the panel.
  UpdatesPanel(Settings& settings, MailSettings& mail, UpdateCheck& check, QWidget* parent = nullptr);

  /// Shows whether a check is under way.
  void ShowState();

 private:
  Settings& settings_;
  MailSettings& mail_;
  UpdateCheck& check_;
  Button* now_ = nullptr;
};

}  // namespace kinalyx
