#pragma once

#include "workspace/transport/VideoTimer.h"
#include "workspace/forms/FloatCard.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace kinalyx {

/// "Video Timer": the reading, the rate that it is computed with, and the button that sets its zero.
class VideoTimerForm : public FloatCard {
  Q_OBJECT

 public:
  VideoTimerForm(VideoTimer& timer, QWidget* parent);

  void SetReading(const QString& reading, bool negative, const QString& rate);

 private:
  VideoTimer& timer_;
  QLabel* reading_;
  QLineEdit* rate_;
  QPushButton* zero_;
};

}  // namespace kinalyx
