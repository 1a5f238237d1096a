#pragma once

#include <QWidget>
#include <array>

#include "library/Profile.h"

class QGridLayout;
class QLabel;
class QLineEdit;

namespace kinalyx {

/// The twenty profile fields as boxes beneath their captions, in as many columns as have room, read downward
/// like a form on paper.
class FieldBoxes : public QWidget {
 public:
  /// @param captionName, boxName  what the labels and boxes are called, before the number of their field
  FieldBoxes(const QString& captionName, const QString& boxName, QWidget* parent = nullptr);

  /// @param field  0 to kProfileFields - 1
  QLineEdit& Box(int field) { return *boxes_[static_cast<std::size_t>(field)]; }
  /// Beside the caption, for what the box does not take.
  QLabel& Note(int field) { return *notes_[static_cast<std::size_t>(field)]; }
  void SetCaption(int field, const QString& caption);
  FieldTexts Texts() const;
  void SetTexts(const FieldTexts& texts);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Arrange();

  QGridLayout* grid_;
  int columns_ = 0;
  std::array<QWidget*, kProfileFields> cells_{};
  std::array<QLabel*, kProfileFields> captions_{};
  std::array<QLabel*, kProfileFields> notes_{};
  std::array<QLineEdit*, kProfileFields> boxes_{};
};

}  // namespace kinalyx
