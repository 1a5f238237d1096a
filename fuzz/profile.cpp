// Opens any bytes as a student's profile, then as notes, and saves them again.

#include <filesystem>

#include "InputFile.h"
#include "library/Profile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  using namespace kinalyx;
  static const fuzz::InputFolder folder;
  std::filesystem::create_directories(folder.Path("Sample, Erica"));
  ProfileFields fields(folder.Path("fields.ini"));
  fields.SetupFields();

  folder.Write("Sample, Erica/profile.prf", bytes, count);
  const std::string student = folder.Path("Sample, Erica");
  const Profile profile = OpenProfile(student, fields);
  fuzz::Require(profile.values[kNameField] == "Sample, Erica");
  (void)GetEmailAddress(student);
  fuzz::Require(SaveProfile(student, fields, profile.values, profile.Stored()));

  folder.Write("Sample, Erica/profile.txt", bytes, count);
  if (const auto notes = LoadNotes(student)) {
    fuzz::Require(static_cast<bool>(SaveNotes(student, *notes)));
    fuzz::Require(LoadNotes(student).has_value());
  }
  return 0;
}
