#pragma once

#include "core/forms/SetupSection.h"

namespace kinalyx {

class IHost;
class MenuCanvas;

/// The main menu's picture and heading lines, with the page in small beside them.
class MenuSection : public SetupSection {
  Q_OBJECT

 public:
  MenuSection(IHost& host, Settings& settings, QWidget* parent = nullptr);

  void SetupProgram() override;

 signals:
  /// Picture, heading lines or their place have changed.
  void MenuChanged();

 private:
  void MenuSetupBtn_Click(int index);

  IHost& host_;
  QLineEdit* lines_[5] = {};
  MenuCanvas* sample_ = nullptr;
};

}  // namespace kinalyx
