#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "platform/graph/IDevices.h"

class QVBoxLayout;

namespace kinalyx {

class Button;

/// The property page of a camera: its own knobs, as it lists them. Each takes effect at once.
class CameraControlsForm : public QDialog {
 public:
  /// The devices outlive it.
  CameraControlsForm(IDevices& devices, const std::string& camera, QWidget* over);

 private:
  void Look();
  void Fill();
  QWidget* MakeKnob(const CameraControl& control);
  void Set(std::uint32_t id, int value);

  IDevices& devices_;
  std::string camera_;
  QVBoxLayout* knobs_;
  Button* standard_;
  std::vector<CameraControl> shown_;
  int looks_ = 0;
};

}  // namespace kinalyx
