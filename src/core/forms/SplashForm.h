#pragma once

#include <QWidget>

namespace kinalyx {

class IHost;

/// The picture shown while the program comes up. Takes the colours that the application wears.
class SplashForm : public QWidget {
  Q_OBJECT

 public:
  /// @param version  major.minor.revision
  explicit SplashForm(const QString& version, QWidget* parent = nullptr);

  /// Shows the form and lets events run until `milliseconds` have passed since.
  void Stay(IHost& host, int milliseconds = 1000);

 protected:
  void paintEvent(QPaintEvent*) override;
};

}  // namespace kinalyx
