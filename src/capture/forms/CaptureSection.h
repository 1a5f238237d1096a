#pragma once

#include <array>

#include "capture/CaptureSetup.h"
#include "capture/VideoNaming.h"
#include "core/forms/SetupSection.h"
#include "platform/host/Host.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace kinalyx {

class Button;

/// The section Capture of Program Setup: kinds of sources, cameras and their defaults, the microphone, how videos are
/// named and what is done to their fields.
class CaptureSection : public SetupSection {
  Q_OBJECT

 public:
  /// All that is passed outlives the section.
  CaptureSection(IHost& host, Settings& settings, CaptureSetup& setup, VideoNaming& naming, QWidget* parent = nullptr);

  void SetupProgram() override;

  // --- handlers
  void DVorAnOpt_Click(int index);
  void CamConfig_Camera_Click(int index);

 signals:
  /// The user wants to see the camera.
  void CaptureWanted();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void AddKinds();
  void AddCameras();
  void AddDefault(QVBoxLayout& rows, int camera);
  void AddNetwork();
  void AddMicrophone();
  void AddNaming();
  void AddFields();
  void ShowKind();
  void ShowCameras();
  void ShowMicrophone();

  IHost& host_;
  CaptureSetup& setup_;
  VideoNaming& naming_;
  QButtonGroup* DVorAnOpt_ = nullptr;
  QLabel* wizardPicture_ = nullptr;
  QLabel* wizardTitle_ = nullptr;
  QLabel* wizardText_ = nullptr;
  Button* toCapture_ = nullptr;
  Button* folderButton_ = nullptr;
  QLabel* folder_ = nullptr;
  QButtonGroup* count_ = nullptr;
  std::array<QLabel*, 2> shown_{};
  std::array<QLabel*, 2> status_{};
  std::array<Button*, 2> store_{};
  std::array<QLineEdit*, 4> network_{};
  QComboBox* microphone_ = nullptr;
  QWidget* line_ = nullptr;
  QComboBox* AudioInputPinCombo_ = nullptr;
  QButtonGroup* AutoNameOpt_ = nullptr;
  QButtonGroup* Cam2Ext_ = nullptr;
  QLineEdit* txtSetup_ = nullptr;
  std::array<QCheckBox*, 9> CapChoice_{};
};

}  // namespace kinalyx
