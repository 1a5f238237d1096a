#pragma once

#include <string>

#include "core/Settings.h"

namespace kinalyx {

/// All texts in which the word for the person under analysis stands. The word is the user's: Student,
/// Golfer, Client, Patient; while it is the first of these, which settings start with, it is said in the user's
/// language. Texts are built afresh at every call, so that they follow a change at once.
class Vocabulary {
 public:
  explicit Vocabulary(const Settings& settings) : settings_(settings) {}

  std::string Noun() const;   ///< "Student"
  std::string noun() const;   ///< "student"
  std::string nouns() const;  ///< "students"
  std::string Nouns() const;  ///< "Students", heading of lists

  std::string Profiles() const;             ///< "Student Profiles"
  std::string Profile() const;              ///< "Student Profile"
  std::string Notes() const;                ///< "Student Notes"
  std::string Name() const;                 ///< "Student Name"
  std::string Select() const;               ///< "Select Student"
  std::string AddNew() const;               ///< "Add New Student"
  std::string Rename() const;               ///< "Rename Student"
  std::string MoveThis() const;             ///< "Move this student"
  std::string DeleteThis() const;           ///< "Delete this student"
  std::string ProfilesEditUtility() const;  ///< "Student Profiles Edit Utility"
  std::string MustSelect() const;           ///< "You must select a student first."

  /// Button and title of a page, by the index of `MainCmd`: 0 to 8.
  std::string PageButton(int index) const;
  std::string PageTitle(int index) const;

 private:
  /// Nobody has chosen a word yet.
  bool IsUsual() const;

  const Settings& settings_;
};

/// Takes a new word for the person under analysis: lower case and plural follow from it (with an s, without
/// exceptions), and all three are written. The language's own word for Student is stored as Student. False, and nothing
/// changed, when it is the present word, as it is stored or as the user's language has it.
bool SetPrimaryName(Settings& settings, const std::string& text);

}  // namespace kinalyx
