#pragma once

#include <QImage>
#include <QWidget>
#include <string>

#include "platform/paint/Surface.h"

namespace kinalyx {

/// One picture of the queue, as large as its place allows.
class MailPicture final : public QWidget {
  Q_OBJECT

 public:
  explicit MailPicture(const QString& name, QWidget* parent = nullptr);

  /// A file; one that cannot be read shows why. Empty shows nothing.
  void ShowFile(const std::string& path);

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  Surface picture_;
  QString words_;
};

}  // namespace kinalyx
