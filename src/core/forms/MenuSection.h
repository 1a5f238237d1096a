#pragma once

#include "core/forms/PictureFile.h"
#include "core/forms/SetupSection.h"
#include "platform/host/Host.h"

class QCheckBox;
class QLabel;

namespace kinalyx {

class MenuCanvas;

/// The main menu's picture and heading lines, with the page in small beside them, and the logo of printouts.
class MenuSection : public SetupSection {
  Q_OBJECT

 public:
  MenuSection(IHost& host, Settings& settings, QWidget* parent = nullptr);

  void SetupProgram() override;

 signals:
  /// Picture, heading lines or their place have changed.
  void MenuChanged();

 private:
  void AddHeading();
  void AddPicture();
  void AddLogo();
  void MenuSetupBtn_Click(int index);
  void ShowLogo();
  void SSCommand14_Click();

  IHost& host_;
  PictureReader reader_;
  HostTimer again_;  ///< runs while the drive of the logo does not answer
  QLineEdit* lines_[5] = {};
  MenuCanvas* sample_ = nullptr;
  QCheckBox* UseLogochk_ = nullptr;
  QLabel* logo_ = nullptr;
  QLabel* logoName_ = nullptr;
};

}  // namespace kinalyx
