#pragma once

#include <QWidget>

#include "platform/host/Host.h"

namespace kinalyx {

/// The picture shown while the program comes up, for a second at least, over the main form that is ready by then; the
/// first key or click sends it away. Takes the colours that the application wears.
class SplashForm : public QWidget {
  Q_OBJECT

 public:
  /// @param version  major.minor.revision
  explicit SplashForm(const QString& version, QWidget* parent = nullptr);

  /// Shows the form, and gives the events a turn.
  void Appear(IHost& host);
  /// Returns when the form has been up for `milliseconds`; events run meanwhile.
  void Stay(IHost& host, int milliseconds = kLeastMs);
  /// Has the form go when it has been up for `milliseconds`.
  void LeaveLater(IHost& host, int milliseconds = kLeastMs);

 protected:
  void paintEvent(QPaintEvent*) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static constexpr int kLeastMs = 1000;
  int LeftMs(IHost& host, int milliseconds) const;

  std::int64_t since_ = 0;
  HostTimer leaving_;
};

}  // namespace kinalyx
