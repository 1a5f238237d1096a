#pragma once

#include <array>

#include "core/MailSettings.h"
#include "platform/widgets/Panel.h"

class QLabel;
class QLineEdit;

namespace kinalyx {

/// The server of model videos. What is typed is written at once.
class ModelServerPanel final : public Panel {
  Q_OBJECT

 public:
  /// `mail` outlives the panel.
  explicit ModelServerPanel(MailSettings& mail, QWidget* parent = nullptr);

 private:
  MailSettings& mail_;
  QLabel* fault_ = nullptr;
};

}  // namespace kinalyx
