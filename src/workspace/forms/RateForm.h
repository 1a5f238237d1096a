#pragma once

#include <QComboBox>
#include <QDialog>

namespace kinalyx {

/// Asks how many pictures a second a video was taken with: slow motion often plays with 30 what was taken with 240,
/// and speeds and times then come out wrong.
class RateForm : public QDialog {
  Q_OBJECT

 public:
  /// @param rate    what the user has said before; 0 nothing
  /// @param ofFile  what the file says
  RateForm(double rate, double ofFile, QWidget* parent);

  /// Pictures per second; 0: as the file says.
  double Rate() const;

 private:
  QComboBox* rate_;
};

}  // namespace kinalyx
