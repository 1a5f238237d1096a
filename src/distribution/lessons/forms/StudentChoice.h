#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "core/Vocabulary.h"
#include "library/LibraryBrowser.h"

class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace kinalyx {

class Button;
class LibraryLists;
class ProfileFields;

struct StudentPick {
  std::string instructor;
  std::string student;
};

/// Two lists, `InstructorList` and `StudentList`, and a box that narrows the second one: who is meant.
class StudentChoice : public QDialog {
  Q_OBJECT

 public:
  /// All that is passed outlives the form.
  /// @param chosen  who is chosen now
  StudentChoice(const QString& name, const QString& title, IHost& host, const Settings& settings,
                const StudentPick& chosen, QWidget* over);

  /// Once it was accepted.
  StudentPick Pick() const;

 protected:
  /// Another student is chosen, or none.
  virtual void ChoiceChanged();
  LibraryBrowser& Browser() { return browser_; }
  IHost& Host() { return host_; }
  /// Above the lists, and beneath them.
  QVBoxLayout* Head() { return head_; }
  QVBoxLayout* Foot() { return foot_; }
  void showEvent(QShowEvent* event) override;

 private:
  void ReadAll();
  void Narrow(const QString& text);
  int ShowFitting(const QString& wanted);

  Vocabulary vocabulary_;
  LastStudentInfo remembered_;
  LibraryBrowser browser_;
  IHost& host_;
  LibraryTree tree_;
  std::vector<StudentPick> all_;  ///< of all instructors
  LibraryLists* lists_;
  QLineEdit* find_;
  QVBoxLayout* head_;
  QVBoxLayout* foot_;
  Button* select_;
};

/// "Select Student to Record": whose lesson it will be, with the address to which it can be sent.
class RecorderSelectForm final : public StudentChoice {
  Q_OBJECT

 public:
  RecorderSelectForm(IHost& host, const Settings& settings, const ProfileFields& fields, const StudentPick& chosen,
                     QWidget* over);

 private:
  void ChoiceChanged() override;
  void AddAddress();

  const ProfileFields& fields_;
  QLabel* address_ = nullptr;
  Button* add_ = nullptr;
};

/// The same for a lesson that has been recorded.
class StudentSelectForm final : public StudentChoice {
  Q_OBJECT

 public:
  StudentSelectForm(IHost& host, const Settings& settings, const StudentPick& chosen, QWidget* over);
};

}  // namespace kinalyx
