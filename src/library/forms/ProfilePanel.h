#pragma once

#include <string>

#include "core/Vocabulary.h"
#include "library/NotesKeeper.h"
#include "platform/host/Host.h"
#include "platform/widgets/Panel.h"

class QPlainTextEdit;

namespace kinalyx {

class Button;
class FieldGrid;

/// The profile of the chosen student: the fields that are looked at most, on demand all twenty, and in the
/// complete view the notes as well.
class ProfilePanel : public Panel {
  Q_OBJECT

 public:
  enum class View { Brief, Details, Complete };

  ProfilePanel(IHost& host, const Settings& settings, QWidget* parent = nullptr);

  FieldGrid& Fields() { return *fields_; }
  void SetView(View view);
  View CurrentView() const { return view_; }
  /// Shows a student's notes, after those of the one before have been stored; "" for no student.
  void OpenStudent(const std::string& studentFolder);
  /// Stores the notes. False, after a message, when the disk refuses; they stay in the editor then.
  bool SaveNotes();
  void SetupVocabulary();

 signals:
  void EditWanted();
  /// The complete view is to be left.
  void BackWanted();
  void Said(const QString& text);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void ProBtn(int index);

  IHost& host_;
  Vocabulary vocabulary_;
  NotesKeeper notes_;
  View view_ = View::Brief;
  FieldGrid* fields_;
  QWidget* notesPart_;
  class QLabel* notesTitle_;
  QPlainTextEdit* editor_;
  Button* details_;
  Button* edit_;
  Button* print_;
  Button* back_;
};

}  // namespace kinalyx
