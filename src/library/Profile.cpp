#include "library/Profile.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

#include "library/LibraryTree.h"
#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"
#include "platform/files/IniFile.h"
#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

constexpr const char* kFirstRunCaptions[kProfileFields] = {TrLater("Name"),
                                                           TrLater("Address"),
                                                           TrLater("City, State, Zip"),
                                                           TrLater("Phone #"),
                                                           TrLater("E-Mail Address"),
                                                           TrLater("Years in Sport"),
                                                           TrLater("Age"),
                                                           TrLater("Height"),
                                                           TrLater("R/L Handed"),
                                                           TrLater("Videos on File"),
                                                           TrLater("Strengths"),
                                                           TrLater("Weaknesses"),
                                                           TrLater("Short term Goals"),
                                                           TrLater("Long term Goals"),
                                                           TrLater("Practice per Month"),
                                                           TrLater("Play per Month"),
                                                           TrLater("Tournaments"),
                                                           TrLater("Past Injuries"),
                                                           TrLater("Current Injuries"),
                                                           TrLater("Physical Restrictions")};

constexpr const char* kOldNameKeys[] = {"Student Name", "Client Name", "Golfer Name", "Bowler Name", "Patient Name"};

constexpr const char* kFieldsSection = "Fields";
constexpr const char* kEarlierSection = "Earlier";
constexpr std::size_t kMostEarlier = 8;
constexpr const char* kProfileSection = "Profile";
constexpr const char* kEmailKey = "E-Mail Address";

std::size_t Index(int field) { return static_cast<std::size_t>(field); }

/// One blank stands for an empty value, so that the key can be seen in the file.
std::string Stored(const std::string& value) { return value.empty() ? " " : value; }

/// The name, and the fields that are wanted.
template <typename Wanted>
std::vector<ProfileEntry> Entries(const std::string& studentFolder, const FieldTexts& captions,
                                  const FieldTexts& values, Wanted wanted) {
  std::vector<ProfileEntry> entries{{kProfileSection, "Name", LastName(studentFolder)}};
  for (int field = 1; field < kProfileFields; ++field) {
    if (captions[Index(field)].empty() || !wanted(Index(field))) continue;
    entries.push_back(
        {kProfileSection, captions[Index(field)], field == kVideosOnFileField ? " " : Stored(values[Index(field)])});
  }
  return entries;
}

bool MakeProfile(const std::string& studentFolder, const FieldTexts& captions, const FieldTexts& values) {
  std::vector<ProfileEntry> entries = Entries(studentFolder, captions, values, [](std::size_t) { return true; });
  // A field that the user has called like the marker keeps its value.
  const bool taken = std::ranges::any_of(captions, [](const std::string& one) { return FoldCase(one) == "start"; });
  if (!taken) entries.push_back({kProfileSection, "Start", "Notes"});
  return WriteProfileEntries(entries, ProfilePath(studentFolder));
}

/// Brings the name to its present key and makes it that of the folder, which is the authority.
void MendName(const std::string& studentFolder) {
  const std::string path = ProfilePath(studentFolder);
  const ProfileReader reader(path);
  std::string name = reader.Value(kProfileSection, "Name").value_or("");
  if (name.empty()) {
    for (const char* key : kOldNameKeys) {
      if (!reader.Value(kProfileSection, key)) continue;
      name = reader.String(kProfileSection, key, "", kMaxFieldText + 1);
      DeleteProfileKey(kProfileSection, key, path);
      WritePrivateProfileString(kProfileSection, "Name", name, path);
      break;
    }
  }
  // Values come back without the blanks around them.
  if (name != WithoutOuterBlanks(LastName(studentFolder)))
    WritePrivateProfileString(kProfileSection, "Name", LastName(studentFolder), path);
}

/// What a key of an INI file can hold: no line ends and no "=", nothing at the beginning that opens a
/// section or a comment, no blanks around it.
std::string AsKey(std::string_view caption) {
  std::string key;
  for (const char c : caption) {
    if (c != '=') key += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
  }
  key.erase(0, std::min(key.find_first_not_of(" [;"), key.size()));
  key.erase(key.find_last_not_of(' ') + 1);
  return key;
}

/// Several captions in one value, held apart by what none of them can have in it.
std::string Joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : "=") + name;
  return text;
}

std::vector<std::string> NamesIn(std::string_view text) {
  std::vector<std::string> names;
  while (!text.empty() && names.size() < kMostEarlier) {
    const std::size_t end = std::min(text.find('='), text.size());
    if (std::string name = AsKey(text.substr(0, end)); !name.empty()) names.push_back(std::move(name));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return names;
}

/// The key under which a profile has the value of a field: its caption, or an earlier one; empty when it has none.
std::string KeyOf(const ProfileReader& reader, const ProfileFields& fields, int field) {
  const auto holds = [&](const std::string& key) { return !key.empty() && reader.Value(kProfileSection, key); };
  if (holds(fields.Caption(field))) return fields.Caption(field);
  const auto found = std::ranges::find_if(fields.Earlier(field), holds);
  return found == fields.Earlier(field).end() ? std::string() : *found;
}

}  // namespace

std::string ShownCaption(int field, const std::string& stored) {
  return stored == kFirstRunCaptions[static_cast<std::size_t>(field)] ? Tr(stored) : stored;
}

FieldTexts ShownCaptions(const FieldTexts& stored) {
  FieldTexts shown = stored;
  for (int field = 0; field < kProfileFields; ++field) {
    std::string& caption = shown[static_cast<std::size_t>(field)];
    caption = ShownCaption(field, caption);
  }
  return shown;
}

// ---------------------------------------------------------------- captions

void ProfileFields::EnsureFile() {
  if (FileExists(path_)) {
    WritePrivateProfileString(kFieldsSection, "0", kFirstRunCaptions[0], path_);
    return;
  }
  std::vector<ProfileEntry> entries;
  for (int field = 0; field < kProfileFields; ++field)
    entries.push_back({kFieldsSection, std::to_string(field), kFirstRunCaptions[field]});
  WriteProfileEntries(entries, path_);
}

void ProfileFields::SetupFields() {
  const ProfileReader reader(path_);
  for (int field = 0; field < kProfileFields; ++field) {
    // Without the file at all there is nothing to mend by hand: the first-run captions serve.
    const std::string fallback = reader.Open() ? path_ : std::string(kFirstRunCaptions[field]);
    captions_[Index(field)] = AsKey(reader.String(kFieldsSection, std::to_string(field), fallback, kMaxFieldText + 1));
    earlier_[Index(field)] = NamesIn(reader.Value(kEarlierSection, std::to_string(field)).value_or(""));
  }
}

Outcome ProfileFields::SetCaption(int field, std::string_view caption) {
  std::string key = field == kNameField ? std::string() : AsKey(caption);
  if (key.empty()) key = kFirstRunCaptions[field];
  const auto isKey = [&](const std::string& name) { return FoldCase(name) == FoldCase(key); };
  for (int other = 0; other < kProfileFields; ++other) {
    if (other == field) continue;
    if (isKey(captions_[Index(other)])) return Outcome::Failed(Tr("Another field has the name \"{}\" already.", key));
    if (std::ranges::any_of(Earlier(other), isKey))
      return Outcome::Failed(
          Tr("The values of the field \"{}\" are stored under \"{}\", its name of before. Please choose another name.",
             Caption(other), key));
  }
  std::vector<std::string> earlier = Earlier(field);
  if (!Caption(field).empty()) earlier.insert(earlier.begin(), Caption(field));
  std::erase_if(earlier, isKey);
  earlier.resize(std::min(earlier.size(), kMostEarlier));
  const std::string number = std::to_string(field);
  std::vector<ProfileEntry> entries{{kFieldsSection, number, key}};
  if (!earlier.empty() || !Earlier(field).empty()) entries.push_back({kEarlierSection, number, Joined(earlier)});
  const bool stored = WriteProfileEntries(entries, path_);
  SetupFields();
  return stored ? Outcome() : Outcome::Failed(Tr("The file {} cannot be written.", path_));
}

// ---------------------------------------------------------------- profiles

FieldTexts Profile::Stored() const {
  FieldTexts stored = values;
  for (std::size_t field = 0; field < stored.size(); ++field)
    if (missing[field]) stored[field].clear();
  return stored;
}

std::string ProfilePath(const std::string& studentFolder) { return JoinPath(studentFolder, "profile.prf"); }

Profile OpenProfile(const std::string& studentFolder, const ProfileFields& fields) {
  const std::string path = ProfilePath(studentFolder);
  if (!FileExists(path)) MakeProfile(studentFolder, fields.Captions(), {});
  MendName(studentFolder);
  const ProfileReader reader(path);
  Profile profile;
  if (!reader.Open()) {
    profile.values[kNameField] = LastName(studentFolder);
    return profile;
  }
  for (int field = 0; field < kProfileFields; ++field) {
    if (fields.Caption(field).empty()) continue;
    const std::string key = KeyOf(reader, fields, field);
    profile.missing[Index(field)] = key.empty();
    profile.values[Index(field)] = reader.String(kProfileSection, key, path, kMaxFieldText + 1);
  }
  return profile;
}

FieldTexts ReadFields(const std::string& studentFolder, const ProfileFields& fields) {
  const ProfileReader reader(ProfilePath(studentFolder));
  FieldTexts values;
  for (int field = 0; reader.Open() && field < kProfileFields; ++field) {
    const std::string key = KeyOf(reader, fields, field);
    if (!key.empty()) values[Index(field)] = reader.String(kProfileSection, key, "", kMaxFieldText + 1);
  }
  return values;
}

bool SaveProfile(const std::string& studentFolder, const ProfileFields& fields, const FieldTexts& values,
                 const FieldTexts& base) {
  const ProfileReader reader(ProfilePath(studentFolder));
  const auto changed = [&](std::size_t field) { return values[field] != base[field]; };
  std::vector<ProfileEntry> entries = Entries(studentFolder, fields.Captions(), values, [&](std::size_t field) {
    return changed(field) || !reader.Value(kProfileSection, fields.Captions()[field]);
  });
  // A name that a field has had is in use at another workstation, or may come back.
  for (int field = 1; field < kProfileFields; ++field) {
    for (const std::string& name : fields.Earlier(field))
      if (changed(Index(field)) && field != kVideosOnFileField && reader.Value(kProfileSection, name))
        entries.push_back({kProfileSection, name, Stored(values[Index(field)])});
  }
  return WriteProfileEntries(entries, ProfilePath(studentFolder));
}

std::optional<std::string> GetEmailAddress(const std::string& studentFolder) {
  auto address = ReadProfileValue(kProfileSection, kEmailKey, ProfilePath(studentFolder));
  if (!address || address->empty()) return std::nullopt;
  return address;
}

// ---------------------------------------------------------------- notes

std::string NotesPath(const std::string& studentFolder) { return JoinPath(studentFolder, "profile.txt"); }

std::string ReadNotes(const std::string& studentFolder) {
  return ReadTextFile(NotesPath(studentFolder)).value_or(std::string());
}

std::string WithLineEnds(std::string_view text) {
  std::string lines;
  lines.reserve(text.size() + 2);
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    lines.append(text.substr(0, end)).append("\r\n");
    const std::size_t skip = text.substr(end).starts_with("\r\n") ? 2 : 1;
    text.remove_prefix(std::min(end + skip, text.size()));
  }
  return lines;
}

std::optional<std::string> LoadNotes(const std::string& studentFolder) {
  const std::string path = NotesPath(studentFolder);
  if (!FileExists(path)) {
    (void)WriteWholeFile(path, std::string_view());
    return std::string();
  }
  const auto text = ReadTextFile(path);
  if (!text) return std::nullopt;
  return WithLineEnds(*text);
}

Outcome SaveNotes(const std::string& studentFolder, std::string_view notes) {
  const std::string path = NotesPath(studentFolder);
  if (!notes.empty()) return WriteWholeFile(path, std::string_view(WithLineEnds(notes)));
  return KillFile(path) ? Outcome() : Outcome::Failed(Tr("The file {} cannot be deleted.", path));
}

// ---------------------------------------------------------------- new entries

namespace {

/// Makes a folder that nobody else has: one that another workstation has just made is theirs.
Outcome MakeNewFolder(const std::string& path) {
  std::error_code failed;
  if (std::filesystem::create_directory(path, failed)) return {};
  return Outcome::Failed(failed ? failed.message() : Tr("it has just been made by somebody else"));
}

}  // namespace

Result<std::string> AddStudent(const std::string& instructorFolder, const FieldTexts& captions,
                               const FieldTexts& values, std::string_view noun) {
  const std::string& name = values[kNameField];
  const std::string person(noun);
  if (IsBlank(name)) return Outcome::Failed(Tr("You must enter a name for the new {}.", person));
  const std::string folder = JoinPath(instructorFolder, name);
  if (HasFolderNamed(instructorFolder, name))
    return Outcome::Failed(Tr("The {} name that you have chosen already exists on the system.", person));
  if (!IsValidName(name)) return Outcome::Failed(Tr("Invalid character in name."));
  if (!MakeNewFolder(folder) || !MakeProfile(folder, captions, values))
    return Outcome::Failed(Tr("An error has occurred while creating the profile"));
  return Tr("New {} successfully created.", person);
}

Result<std::string> AddInstructor(const std::string& root, std::string_view name) {
  if (!IsValidName(name)) return Outcome::Failed(Tr("Invalid character in Name"));
  if (IsBlank(name)) return Outcome::Failed(Tr("You must type a name!"));
  const std::string folder = JoinPath(root, name);
  if (SameName(name, kGeneralFolder) || HasFolderNamed(root, name))
    return Outcome::Failed(Tr("{} already exists.", std::string(name)));
  if (const Outcome made = MakeNewFolder(folder); !made)
    return Outcome::Failed(Tr("The folder {} cannot be made: {}.", folder, made.Why()));
  return Tr("{} successfully added!", std::string(name));
}

}  // namespace kinalyx
