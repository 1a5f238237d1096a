#pragma once

#include <QWidget>

#include "capture/CaptureSetup.h"

class QComboBox;

namespace kinalyx {

/// One camera of the capture page: which one it is, the size and the form of its pictures, and the way to its knobs.
class CameraLine : public QWidget {
  Q_OBJECT

 public:
  /// @param camera  0 or 1
  CameraLine(CaptureSetup& setup, int camera, QWidget* parent = nullptr);

  /// Shows what there is and what is chosen.
  void Fill();
  /// What is being recorded is not changed under way.
  void SetUsable(bool usable);

 private:
  CaptureSetup& setup_;
  const int camera_;
  QComboBox* source_;
  QComboBox* size_;
  QComboBox* format_;
};

}  // namespace kinalyx
