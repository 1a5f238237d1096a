#pragma once

#include <QDialog>

namespace kinalyx {

/// A saved camera is missing: "Retry Connection" accepts, "Close and Continue" rejects.
class FindCamForm : public QDialog {
 public:
  /// @param camera  0 or 1
  FindCamForm(int camera, QWidget* over);
};

}  // namespace kinalyx
