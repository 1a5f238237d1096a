#pragma once

#include <QFrame>

#include "distribution/mail/SnapshotDesk.h"

class QLabel;

namespace kinalyx {

/// A line over the stage that tells of a snapshot. It takes neither focus nor clicks, and no picture shows it.
class EmailPnl final : public QFrame, public ISnapshotView {
  Q_OBJECT

 public:
  /// @param stage  over whose pictures it stands
  explicit EmailPnl(QWidget* stage);

  void ShowEmailPnl(const std::string& words) override;
  void HideEmailPnl() override { hide(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Place();

  QLabel* words_;
};

}  // namespace kinalyx
