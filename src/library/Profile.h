#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/files/Result.h"

namespace kinalyx {

inline constexpr int kProfileFields = 20;
inline constexpr int kNameField = 0;          ///< always "Name": the student's folder
inline constexpr int kVideosOnFileField = 9;  ///< filled by the program
inline constexpr int kMaxFieldText = 49;      ///< characters of a value or a caption

using FieldTexts = std::array<std::string, kProfileFields>;

/// A field's caption as it is shown: in the user's language while it is the one that a first run stores.
std::string ShownCaption(int field, const std::string& stored);
/// The same for all fields.
FieldTexts ShownCaptions(const FieldTexts& stored);

/// The captions of the profile fields, the same for the whole workstation, kept in `fields.ini`. They are
/// also the keys of every profile. A field that is renamed remembers its earlier captions there, and finds the
/// values under them: no profile is rewritten for it, and another workstation that knows only the old name still
/// has its values.
class ProfileFields {
 public:
  /// `path` is that of fields.ini.
  explicit ProfileFields(std::string path) : path_(std::move(path)) {}

  /// At start: makes the file with all first-run captions, or sets field 0 of an existing one.
  void EnsureFile();
  /// Reads the captions.
  void SetupFields();
  const FieldTexts& Captions() const { return captions_; }
  const std::string& Caption(int field) const { return captions_[static_cast<std::size_t>(field)]; }
  /// What a field was called before, the latest first.
  const std::vector<std::string>& Earlier(int field) const { return earlier_[static_cast<std::size_t>(field)]; }
  /// Renames a field and stores it. What an INI key cannot hold is left out, an empty caption gives the
  /// first-run one back, field 0 stays "Name". Refused, with a message, when another field has the
  /// caption already, or had it earlier, for both would then share one value, and when the disk refuses.
  Outcome SetCaption(int field, std::string_view caption);

 private:
  std::string path_;
  FieldTexts captions_;
  std::array<std::vector<std::string>, kProfileFields> earlier_;
};

/// The values of one student.
struct Profile {
  FieldTexts values;
  /// The file has the key under none of its names, and `values` shows the file's path: the profile was made by
  /// a workstation with other fields.
  std::array<bool, kProfileFields> missing{};

  /// What the file holds: the missing ones are empty.
  FieldTexts Stored() const;
};

/// `profile.prf` of a student's folder.
std::string ProfilePath(const std::string& studentFolder);

/// Reads a profile, and mends it on the way: a folder without one gains one, the name moves to its
/// present key from the old ones, and is that of the folder. Values are cut at 49 characters. Where
/// nothing can be read or made, the name is all there is.
Profile OpenProfile(const std::string& studentFolder, const ProfileFields& fields);

/// The values of a profile as they stand, without mending or making anything; empty where there are none.
FieldTexts ReadFields(const std::string& studentFolder, const ProfileFields& fields);

/// Writes the values that are not those of `base`, and those that the file has not got; the others stay as
/// they are on the disk, where somebody else may have changed them. An empty value is stored as one blank. Name
/// and count of videos are the program's: the folder's name and a blank stand for them. False when the disk
/// refuses. Where the file has an earlier name of a field too, that gets the same value.
/// @param base  the values as they were read before they were changed
bool SaveProfile(const std::string& studentFolder, const ProfileFields& fields, const FieldTexts& values,
                 const FieldTexts& base);

/// `profile.txt` of a student's folder.
std::string NotesPath(const std::string& studentFolder);
/// The notes of a student as they stand; empty where there are none. Nothing is made.
std::string ReadNotes(const std::string& studentFolder);
/// The notes of a student, UTF-8, each line ended by CR LF. A missing file is made, empty. Nothing when
/// there is a file that cannot be read: it must not be written over.
std::optional<std::string> LoadNotes(const std::string& studentFolder);
/// The lines of a text, each ended by CR LF, however they were ended before.
std::string WithLineEnds(std::string_view text);
/// Stores the notes; empty notes remove the file.
Outcome SaveNotes(const std::string& studentFolder, std::string_view notes);

/// The address in a student's profile; nothing when there is none. Longer than other values it may be: one that was cut
/// would be somebody else's.
std::optional<std::string> GetEmailAddress(const std::string& studentFolder);

// --- new entries

/// Makes a student's folder and profile under an instructor's folder. The student's name is field 0.
/// @param noun  `PrimaryName1`, as the messages use it
/// @return what to tell the user
Result<std::string> AddStudent(const std::string& instructorFolder, const FieldTexts& captions,
                               const FieldTexts& values, std::string_view noun);

/// Makes the folder of an instructor or database under the library root.
/// @return what to tell the user
Result<std::string> AddInstructor(const std::string& root, std::string_view name);

}  // namespace kinalyx
