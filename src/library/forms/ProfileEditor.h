#pragma once

#include <string>
#include <vector>

#include "core/Vocabulary.h"
#include "library/Profile.h"
#include "platform/widgets/Panel.h"

class QComboBox;
class QLabel;

namespace kinalyx {

class Button;
class FieldBoxes;

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
  QString Title() const;

  /// Fields have other names now: each box that nobody has typed in takes the value under its new name.
  void Rename(const FieldTexts& captions, const FieldTexts& values);

  FieldTexts Values() const;
  /// The values as they were before anything was typed.
  const FieldTexts& Opened() const { return opened_; }
  /// Something has been typed since it was opened.
  bool Changed() const;
  /// The chosen entry of `Combo2`, empty when none is.
  std::string Instructor() const;
  void SetInstructors(const std::vector<std::string>& names);
  void SetInstructor(const std::string& name);
  /// Goes to the first box that can be changed; for an editor that is shown.
  void FocusFirst();

 signals:
  void SaveWanted();
  void CancelWanted();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Fill(const FieldTexts& captions, const FieldTexts& values);

  const Settings& settings_;
  Vocabulary vocabulary_;
  bool new_ = true;
  FieldTexts captions_;
  FieldTexts opened_;
  QLabel* text_;
  QWidget* instructorPart_;
  QComboBox* instructors_;
  FieldBoxes* boxes_;
};

}  // namespace kinalyx
