#pragma once

#include <QWidget>
#include <array>

#include "library/Sidecar.h"

class QLabel;

namespace kinalyx {

/// A mark that is lit when the selected video has drawings (`VidInfoPanel0`) or notes (`VidInfoPanel1`).
class SidecarMarkLabels : public QWidget {
 public:
  explicit SidecarMarkLabels(QWidget* parent = nullptr);
  void Show(const SidecarMarks& marks);

 private:
  std::array<QLabel*, 2> marks_;
};

}  // namespace kinalyx
