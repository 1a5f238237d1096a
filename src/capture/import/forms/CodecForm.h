#pragma once

#include <QDialog>

namespace kinalyx {

/// Tells which kinds of video the libraries of this machine read and write, and what to install where one is missing.
class CodecForm : public QDialog {
  Q_OBJECT

 public:
  explicit CodecForm(QWidget* over);
};

}  // namespace kinalyx
