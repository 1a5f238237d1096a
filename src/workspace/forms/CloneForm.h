#pragma once

#include <QDialog>
#include <vector>

class QButtonGroup;

namespace kinalyx {

/// "Clone Drawings to another Window": a small plan of the layout in which the target is chosen.
class CloneForm : public QDialog {
  Q_OBJECT

 public:
  /// One window of the layout.
  struct Window {
    int number = 0;
    QRect place;    ///< in any unit, the same for all
    QString video;  ///< empty: none
    bool source = false;
  };
  CloneForm(const std::vector<Window>& windows, QWidget* parent);

  /// The chosen window, 0 for none.
  int Target() const;

 private:
  QButtonGroup* windows_ = nullptr;
};

}  // namespace kinalyx
