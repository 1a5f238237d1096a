#include "library/Profile.h"

#include <chrono>

#include "library/NotesKeeper.h"
#include "library/TempLibrary.h"
#include "platform/files/Folders.h"

namespace kinalyx {
namespace {

using test::TempLibrary;

class ProfileTest : public ::testing::Test {
 protected:
  ProfileTest() : fields(library.Data("fields.ini")) {
    fields.EnsureFile();
    fields.SetupFields();
  }

  std::string File(const std::string& name) const { return TempLibrary::Read(student + "/" + name); }
  bool Exists(const std::string& name) const { return std::filesystem::exists(student + "/" + name); }

  TempLibrary library;
  ProfileFields fields;
  std::string student = library.Folder("Demo/Sample, Erica");
};

TEST_F(ProfileTest, FieldCaptionsAreMadeOnceAndFieldZeroStaysName) {
  EXPECT_EQ(fields.Caption(0), "Name");
  EXPECT_EQ(fields.Caption(9), "Videos on File");
  EXPECT_EQ(fields.Caption(19), "Physical Restrictions");

  EXPECT_TRUE(fields.SetCaption(6, "Handicap = now").done);
  EXPECT_TRUE(fields.SetCaption(0, "Somebody").done);
  EXPECT_TRUE(fields.SetCaption(7, std::string(60, 'x')).done);
  EXPECT_TRUE(fields.SetCaption(8, "  ").done);
  EXPECT_FALSE(fields.SetCaption(5, "handicap  now").done);
  ProfileFields again(library.Data("fields.ini"));
  again.EnsureFile();
  again.SetupFields();
  EXPECT_EQ(again.Caption(0), "Name");
  EXPECT_EQ(again.Caption(5), "Years in Sport");
  EXPECT_EQ(again.Caption(6), "Handicap  now");
  EXPECT_EQ(again.Caption(7), std::string(49, 'x'));
  EXPECT_EQ(again.Caption(8), "R/L Handed");
}

TEST_F(ProfileTest, AFolderWithoutAProfileGainsOne) {
  const Profile profile = OpenProfile(student, fields.Captions());
  EXPECT_EQ(profile.values[0], "Sample, Erica");
  EXPECT_EQ(profile.values[1], "");
  EXPECT_FALSE(profile.missing[1]);
  const std::string text = File("profile.prf");
  EXPECT_TRUE(text.starts_with("[Profile]\nName=Sample, Erica\nAddress= \n")) << text;
  EXPECT_NE(text.find("\nStart=Notes\n"), std::string::npos);
}

TEST_F(ProfileTest, AFieldCalledLikeTheMarkerKeepsItsValue) {
  fields.SetCaption(5, "start");
  FieldTexts values;
  values[0] = "Tom";
  values[5] = "May 2024";
  ASSERT_TRUE(AddStudent(library.Path("Demo"), fields.Captions(), values, "student").done);
  EXPECT_EQ(OpenProfile(library.Path("Demo/Tom"), fields.Captions()).values[5], "May 2024");
}

TEST_F(ProfileTest, AFolderWithBlanksAroundItsNameIsNotWrittenAtEachLook) {
  const std::string blank = library.Folder("Demo/ Blank ");
  OpenProfile(blank, fields.Captions());
  const auto written = std::filesystem::last_write_time(blank + "/profile.prf") - std::chrono::hours(1);
  std::filesystem::last_write_time(blank + "/profile.prf", written);
  OpenProfile(blank, fields.Captions());
  EXPECT_EQ(std::filesystem::last_write_time(blank + "/profile.prf"), written);
}

TEST_F(ProfileTest, OldProfilesKeepTheirNameUnderItsPresentKey) {
  library.File("Demo/Sample, Erica/profile.prf",
               "[Profile]\r\nBowler Name=Second\r\nGolfer Name=Erica Sample\r\nAge=31\r\n");
  const Profile profile = OpenProfile(student, fields.Captions());
  EXPECT_EQ(profile.values[0], "Sample, Erica");  // the folder is the authority
  EXPECT_EQ(profile.values[6], "31");
  const std::string text = File("profile.prf");
  EXPECT_EQ(text.find("Golfer"), std::string::npos);
  EXPECT_NE(text.find("Bowler Name=Second"), std::string::npos);
}

TEST_F(ProfileTest, ARenamedFieldShowsTheFilesPathUntilSavedAgain) {
  FieldTexts values;
  values[6] = "31";
  ASSERT_TRUE(SaveProfile(student, fields.Captions(), values));
  fields.SetCaption(6, "Handicap");
  Profile profile = OpenProfile(student, fields.Captions());
  EXPECT_EQ(profile.values[6], (student + "/profile.prf").substr(0, 49));
  EXPECT_TRUE(profile.missing[6]);

  values[6] = "12";
  ASSERT_TRUE(SaveProfile(student, fields.Captions(), values));
  EXPECT_EQ(OpenProfile(student, fields.Captions()).values[6], "12");
  fields.SetCaption(6, "Age");
  EXPECT_EQ(OpenProfile(student, fields.Captions()).values[6], "31");
}

TEST_F(ProfileTest, ValuesComeBackCutAt49CharactersNotBytes) {
  FieldTexts values;
  values[12] = "";
  for (int i = 0; i < 60; ++i) values[12] += "ü";
  values[4] = "erica@example.org";
  values[9] = "17";
  ASSERT_TRUE(SaveProfile(student, fields.Captions(), values));
  const Profile profile = OpenProfile(student, fields.Captions());
  EXPECT_EQ(profile.values[12].size(), 2 * 49u);
  EXPECT_EQ(profile.values[9], "");  // the program counts the videos
  EXPECT_EQ(GetEmailAddress(student), "erica@example.org");
  EXPECT_EQ(GetEmailAddress(library.Folder("Demo/Nobody")), std::nullopt);
}

TEST_F(ProfileTest, AHandEditedListOfFieldsDoesNoHarm) {
  library.settings.UserName = "";
  std::ofstream(library.Data("fields.ini")) << "[Fields]\n0=Who\n1=[x]\n2=\n3=a=b\n";
  fields.EnsureFile();
  fields.SetupFields();
  EXPECT_EQ(fields.Caption(0), "Name");
  EXPECT_EQ(fields.Caption(2), "");
  FieldTexts values;
  values[1] = "one";
  values[3] = "three";
  ASSERT_TRUE(SaveProfile(student, fields.Captions(), values));
  const Profile profile = OpenProfile(student, fields.Captions());
  EXPECT_EQ(profile.values[1], "one");
  EXPECT_EQ(profile.values[2], "");
  EXPECT_EQ(profile.values[3], "three");
}

TEST_F(ProfileTest, NewStudentsAreCheckedInOrder) {
  const std::string folder = library.Path("Demo");
  const auto add = [&](const std::string& name) {
    FieldTexts values;
    values[0] = name;
    values[3] = "555";
    return AddStudent(folder, fields.Captions(), values, "golfer");
  };
  EXPECT_EQ(add("  ").message, "You must enter a name for the new golfer.");
  EXPECT_EQ(add("Sample, Erica").message, "The golfer name that you have chosen already exists on the system.");
  EXPECT_EQ(add("O'Brien").message, "Invalid character in name.");
  EXPECT_EQ(add("../Elsewhere").message, "Invalid character in name.");
  EXPECT_FALSE(std::filesystem::exists(library.Path("Elsewhere")));

  const Outcome added = add("Tom");
  EXPECT_TRUE(added.done);
  EXPECT_EQ(added.message, "New golfer successfully created.");
  EXPECT_EQ(OpenProfile(folder + "/Tom", fields.Captions()).values[3], "555");
  EXPECT_EQ(add(std::string(300, 'x')).message, "An error has occurred while creating the profile");
}

TEST_F(ProfileTest, NewInstructorsAreCheckedToo) {
  const auto add = [&](const char* name) { return AddInstructor(library.Root(), name).message; };
  EXPECT_EQ(add(""), "Invalid character in Name");
  EXPECT_EQ(add("50%"), "Invalid character in Name");
  EXPECT_EQ(add("   "), "You must type a name!");
  EXPECT_EQ(add("Anna"), "Anna successfully added!");
  EXPECT_TRUE(std::filesystem::is_directory(library.Path("Anna")));
  EXPECT_EQ(add("Anna"), "Anna already exists.");
  EXPECT_EQ(add("General Folder"), "General Folder already exists.");
}

TEST_F(ProfileTest, NotesComeBackAsTheyWereAndEmptyOnesLeaveNoFile) {
  EXPECT_EQ(LoadNotes(student), "");
  EXPECT_TRUE(Exists("profile.txt"));

  ASSERT_TRUE(SaveNotes(student, "Grip: schwächer\n\nMore"));
  EXPECT_EQ(File("profile.txt"), "Grip: schwächer\r\n\r\nMore\r\n");
  for (int i = 0; i < 3; ++i) ASSERT_TRUE(SaveNotes(student, *LoadNotes(student)));
  EXPECT_EQ(LoadNotes(student), "Grip: schwächer\r\n\r\nMore\r\n");

  ASSERT_TRUE(SaveNotes(student, ""));
  EXPECT_FALSE(Exists("profile.txt"));
  EXPECT_EQ(LoadNotes(student), "");
  EXPECT_TRUE(Exists("profile.txt"));

  library.File("Demo/Sample, Erica/profile.txt", "old \xE4nd\n");
  EXPECT_EQ(LoadNotes(student), "old änd\r\n");
}

TEST_F(ProfileTest, NotesThatCannotBeSavedWaitInMemory) {
  NotesKeeper notes([](const std::string&) { return true; });
  std::string error;
  EXPECT_EQ(notes.Open(student), "");
  EXPECT_TRUE(notes.Keep("first\n", &error));
  EXPECT_EQ(File("profile.txt"), "first\r\n");

  // A folder stands where the file should go: no save can succeed.
  std::filesystem::remove(student + "/profile.txt");
  std::filesystem::create_directories(student + "/profile.txt/x");
  EXPECT_FALSE(notes.Keep("second\n", &error));
  EXPECT_FALSE(error.empty());
  const std::string other = library.Folder("Demo/Tom");
  EXPECT_EQ(notes.Open(other), "");
  EXPECT_FALSE(notes.Keep("Tom's", &error));
  EXPECT_EQ(TempLibrary::Read(other + "/profile.txt"), "Tom's\r\n");
  EXPECT_EQ(notes.Open(student), "second\r\n");
  EXPECT_TRUE(notes.Keep("", &error));  // taken back: nothing waits any more
  EXPECT_FALSE(notes.Keep("second\n", &error));
  EXPECT_TRUE(notes.OpenIsUnsaved());

  std::filesystem::remove_all(student + "/profile.txt");
  EXPECT_TRUE(notes.Keep("second\n", &error));
  EXPECT_FALSE(notes.OpenIsUnsaved());
  EXPECT_EQ(File("profile.txt"), "second\r\n");

  // Somebody else renames the student: nothing is brought back under the old name, and the words are told.
  std::string lost;
  notes.Lost = [&](const std::string& folder, const std::string& text) { lost += LastName(folder) + ": " + text; };
  std::filesystem::rename(student, library.Path("Demo/Renamed"));
  EXPECT_TRUE(notes.Keep("third", &error));
  EXPECT_TRUE(notes.Keep("third", &error));
  EXPECT_EQ(lost, "Sample, Erica: third\r\n");
  EXPECT_FALSE(std::filesystem::exists(student));
}

}  // namespace
}  // namespace kinalyx
