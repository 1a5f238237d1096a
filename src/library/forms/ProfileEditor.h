#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/Vocabulary.h"
#include "library/Profile.h"
#include "platform/widgets/Panel.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace kinalyx {

class Button;

/// The panel `ProAddPnl`: the twenty fields as boxes, for a new student or for one who has a profile.
class ProfileEditor : public Panel {
  Q_OBJECT

 public:
  explicit ProfileEditor(const Settings& settings, QWidget* parent = nullptr);

  /// Empty boxes for a new student.
  void OpenNew(const FieldTexts& captions);
  /// The present values; the name and the count of videos cannot be changed here.
  void OpenEdit(const FieldTexts& captions, const FieldTexts& values);
  bool IsNew() const { return new_; }

  FieldTexts Values() const;
  /// The chosen entry of `Combo2`, empty when none is.
  std::string Instructor() const;
  void SetInstructors(const std::vector<std::string>& names);
  void SetInstructor(const std::string& name);
  void FocusName();

 signals:
  void SaveWanted();
  void CancelWanted();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void SetCaptions(const FieldTexts& captions);
  void Arrange();

  Vocabulary vocabulary_;
  bool new_ = true;
  int columns_ = 0;
  QLabel* text_;
  QWidget* instructorPart_;
  QComboBox* instructors_;
  class QGridLayout* grid_ = nullptr;
  std::array<QWidget*, kProfileFields> cells_{};
  std::array<QLabel*, kProfileFields> captions_{};
  std::array<QLineEdit*, kProfileFields> boxes_{};
  Button* save_;
  Button* cancel_;
};

}  // namespace kinalyx
