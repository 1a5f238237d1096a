#pragma once

#include <map>
#include <string>

#include "core/Vocabulary.h"
#include "library/NotesKeeper.h"
#include "platform/host/Host.h"
#include "platform/print/Printer.h"
#include "platform/widgets/Panel.h"

class QPlainTextEdit;

namespace kinalyx {

class Button;
class FieldGrid;

/// The profile of the chosen student: the fields that are looked at most, on demand all twenty, and in the
/// complete view the notes as well.
class ProfilePanel : public Panel, private INotesEvents {
  Q_OBJECT

 public:
  enum class View { Brief, Details, Complete };

  /// All that is passed outlives the panel.
  ProfilePanel(IHost& host, IPrinter& printer, const Settings& settings, QWidget* parent = nullptr);

  FieldGrid& Fields() { return *fields_; }
  void SetView(View view);
  View CurrentView() const { return view_; }
  /// Shows a student's notes, after those of the one before have been stored; "" for no student.
  void OpenStudent(const std::string& studentFolder);
  /// Stores the notes. False, after a message, when the disk refuses. The same notes and the same reason are told
  /// in a box once, and by `Said` from then on; the user may then go on, for the notes are kept in memory.
  bool SaveNotes();
  /// Stores the notes before another student is shown. False when the open student's must be kept in sight until
  /// the user knows; why is told as soon as the click is over.
  bool LeaveNotes();
  /// Some notes are in memory alone.
  bool HasUnsavedNotes() const { return !notes_.Unsaved().empty(); }
  void FocusNotes();
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
  std::string TypedNotes() const;
  void ShowNotes(const std::string& text);
  void PrintNotes();
  Outcome KeepNotes();
  bool Told(const std::string& reason) const;
  void KeepTypedNotes();

  // --- INotesEvents
  bool CanReachNotes(const std::string& folder) override;
  void NotesLost(const std::string& folder, const std::string& notes) override;

  IHost& host_;
  IPrinter& printer_;
  const Settings& settings_;
  Vocabulary vocabulary_;
  bool resting_ = false;  ///< it is the clock that stores the notes
  NotesKeeper notes_;
  HostTimer telling_;
  HostTimer rest_;          ///< runs while notes have been typed that the disk has not got yet
  std::string toldReason_;  ///< why notes could not be stored, as the last box told it
  std::map<std::string, NotesKeeper::Waiting> toldNotes_;  ///< and which
  View view_ = View::Brief;
  FieldGrid* fields_;
  QWidget* notesPart_;
  class QLabel* notesTitle_;
  QPlainTextEdit* editor_;
  bool typed_ = false;  ///< something has been changed in it since it was filled or stored
  Button* details_;
  Button* edit_;
  Button* print_;
  Button* back_;
};

}  // namespace kinalyx
