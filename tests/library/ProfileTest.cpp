#include "library/Profile.h"

#include <chrono>

#include "LibraryFakes.h"
#include "library/NotesKeeper.h"
#include "library/TempLibrary.h"
#include "platform/files/Folders.h"

namespace kinalyx {
namespace {

using test::TempLibrary;

class ProfileTest : public ::testing::Test {
 protected:
  ProfileTest() { ReadFields(); }

  void ReadFields() {
    fields = ProfileFields(library.Data("fields.ini"));
    fields.EnsureFile();
    fields.SetupFields();
  }
  Profile Open() { return OpenProfile(student, fields); }
  bool Save(const FieldTexts& values) { return SaveProfile(student, fields, values, Open().Stored()); }
  std::string File(const std::string& name) const { return TempLibrary::Read(student + "/" + name); }
  bool Exists(const std::string& name) const { return std::filesystem::exists(student + "/" + name); }

  TempLibrary library;
  ProfileFields fields{""};
  FieldTexts values;
  std::string student = library.Folder("Demo/Sample, Erica");
};

TEST_F(ProfileTest, FieldCaptionsAreMadeOnceAndFieldZeroStaysName) {
  EXPECT_EQ(fields.Caption(0), "Name");
  EXPECT_EQ(fields.Caption(19), "Physical Restrictions");
  EXPECT_TRUE(fields.SetCaption(6, "Handicap = now"));
  EXPECT_TRUE(fields.SetCaption(0, "Somebody"));
  EXPECT_TRUE(fields.SetCaption(7, std::string(60, 'x')));
  EXPECT_TRUE(fields.SetCaption(8, "  "));
  EXPECT_FALSE(fields.SetCaption(5, "handicap  now"));
  ReadFields();
  EXPECT_EQ(fields.Caption(0), "Name");
  EXPECT_EQ(fields.Caption(5), "Years in Sport");
  EXPECT_EQ(fields.Caption(6), "Handicap  now");
  EXPECT_EQ(fields.Caption(7), std::string(49, 'x'));
  EXPECT_EQ(fields.Caption(8), "R/L Handed");
}

TEST_F(ProfileTest, AFolderWithoutAProfileGainsOne) {
  const Profile profile = Open();
  EXPECT_EQ(profile.values[0], "Sample, Erica");
  EXPECT_EQ(profile.values[1], "");
  EXPECT_FALSE(profile.missing[1]);
  const std::string text = File("profile.prf");
  EXPECT_TRUE(text.starts_with("[Profile]\nName=Sample, Erica\nAddress= \n")) << text;
  EXPECT_NE(text.find("\nStart=Notes\n"), std::string::npos);

  // Blanks around the name of a folder are no reason to write its profile at each look.
  student = library.Folder("Demo/ Blank ");
  Open();
  const auto written = std::filesystem::last_write_time(student + "/profile.prf") - std::chrono::hours(1);
  std::filesystem::last_write_time(student + "/profile.prf", written);
  Open();
  EXPECT_EQ(std::filesystem::last_write_time(student + "/profile.prf"), written);
}

TEST_F(ProfileTest, OldProfilesKeepTheirNameUnderItsPresentKey) {
  library.File("Demo/Sample, Erica/profile.prf",
               "[Profile]\r\nBowler Name=Second\r\nGolfer Name=Erica Sample\r\nAge=31\r\nAddress=Stra\xDF"
               "e 5\r\n");
  const Profile profile = Open();
  EXPECT_EQ(profile.values[0], "Sample, Erica");  // the folder is the authority
  EXPECT_EQ(profile.values[6], "31");
  const std::string text = File("profile.prf");
  EXPECT_EQ(text.find("Golfer"), std::string::npos);
  EXPECT_NE(text.find("Bowler Name=Second"), std::string::npos);
  // Letters of Windows-1252 stay beside those that it has not got.
  values = profile.Stored();
  values[10] = "Łydki, 腰";
  ASSERT_TRUE(Save(values));
  EXPECT_EQ(Open().values[1] + ", " + Open().values[10], "Straße 5, Łydki, 腰");
}

TEST_F(ProfileTest, ARenamedFieldKeepsItsValues) {
  values[6] = "31";
  ASSERT_TRUE(Save(values));
  ASSERT_TRUE(fields.SetCaption(6, "Handicap"));
  ASSERT_TRUE(fields.SetCaption(6, "Index"));
  ReadFields();
  EXPECT_EQ(Open().values[6], "31");
  EXPECT_FALSE(Open().missing[6]);
  EXPECT_EQ(
      fields.SetCaption(7, "age").Why(),
      "The values of the field \"Index\" are stored under \"age\", its name of before. Please choose another name.");

  // The workstation that calls it by the old name has the new value too, and so has who names it back.
  values = Open().Stored();
  values[6] = "12";
  ASSERT_TRUE(Save(values));
  EXPECT_NE(File("profile.prf").find("\nAge=12\n"), std::string::npos);
  EXPECT_NE(File("profile.prf").find("\nIndex=12\n"), std::string::npos);
  ASSERT_TRUE(fields.SetCaption(6, "Age"));
  EXPECT_EQ(Open().values[6], "12");
  EXPECT_TRUE(fields.SetCaption(6, "Years")) << "over and over";
  EXPECT_EQ(fields.Earlier(6).size(), 3u);
}

TEST_F(ProfileTest, AFieldThatAProfileHasNeverHadShowsThePathOfTheFile) {
  library.File("Demo/Sample, Erica/profile.prf", "[Profile]\nAddress=Rue 5\n");
  EXPECT_EQ(Open().values[6], (student + "/profile.prf").substr(0, 49));
  EXPECT_TRUE(Open().missing[6]);
}

TEST_F(ProfileTest, ValuesComeBackCutAt49CharactersNotBytes) {
  for (int i = 0; i < 60; ++i) values[12] += "ü";
  values[4] = "erica@example.org";
  values[9] = "17";
  ASSERT_TRUE(Save(values));
  const Profile profile = Open();
  EXPECT_EQ(profile.values[12].size(), 2 * 49u);
  EXPECT_EQ(profile.values[9], "");  // the program counts the videos
  EXPECT_EQ(GetEmailAddress(student), "erica@example.org");
  EXPECT_EQ(GetEmailAddress(library.Folder("Demo/Nobody")), std::nullopt);
}

TEST_F(ProfileTest, TwoWorkstationsKeepEachOthersFieldsAndLines) {
  values[6] = "44";
  values[7] = "180";
  ASSERT_TRUE(Save(values));
  FieldTexts here = Open().Stored();
  const FieldTexts base = here;
  FieldTexts there = here;
  there[7] = "181";
  there[10] = "Łydki";
  ASSERT_TRUE(Save(there));
  here[6] = "45";
  ASSERT_TRUE(SaveProfile(student, fields, here, base));
  EXPECT_EQ(Open().values[6] + Open().values[7] + Open().values[10], "45181Łydki");

  library.File("Demo/Sample, Erica/profile.txt", "grip\r\nhips\r\n");
  bool reached = true;
  test::FakeNotesEvents events;
  events.reach = [&](const std::string&) { return reached; };
  NotesKeeper notes(events);
  EXPECT_EQ(notes.Open(student), "grip\r\nhips\r\n");
  ASSERT_TRUE(SaveNotes(student, "grip\r\nhips\r\nfrom the other desk\r\n"));
  EXPECT_TRUE(notes.Keep(std::nullopt));
  EXPECT_EQ(notes.Text(), "grip\r\nhips\r\n") << "who only looks writes nothing";
  EXPECT_TRUE(notes.Keep("weak grip\nhips\n"));
  EXPECT_EQ(File("profile.txt"), "weak grip\r\nhips\r\nfrom the other desk\r\n");
  EXPECT_EQ(notes.Text(), File("profile.txt"));

  // While the drive is silent the other desk goes on, and so does this one.
  reached = false;
  EXPECT_TRUE(notes.Keep(notes.Text())) << "what has not changed asks nothing of the drive";
  EXPECT_EQ(notes.Keep("weak grip\nhips\nfrom the other desk\nmine\n").Why(), "the drive is not answering");
  notes.Open(library.Path("Demo/Ann"));
  EXPECT_FALSE(notes.Readable()) << "nothing is typed over notes that nobody has seen";
  notes.Open(student);
  ASSERT_TRUE(SaveNotes(student, "first\r\n" + File("profile.txt")));
  EXPECT_FALSE(notes.Keep("weak grip\nhips\nfrom the other desk\nmine\nmore\n"));
  reached = true;
  EXPECT_TRUE(notes.Keep(std::nullopt));
  EXPECT_EQ(File("profile.txt"), "first\r\nweak grip\r\nhips\r\nfrom the other desk\r\nmine\r\nmore\r\n");
  EXPECT_EQ(notes.Text(), File("profile.txt"));
}

TEST_F(ProfileTest, AHandEditedListOfFieldsDoesNoHarm) {
  std::ofstream(library.Data("fields.ini")) << "[Fields]\n0=Who\n1=[x]\n2=\n3=a=b\n5=start\n";
  ReadFields();
  EXPECT_EQ(fields.Caption(0), "Name");
  EXPECT_EQ(fields.Caption(2), "");
  values[0] = "Tom";
  for (const int field : {1, 3, 5}) values[static_cast<std::size_t>(field)] = "value";
  ASSERT_TRUE(AddStudent(library.Path("Demo"), fields.Captions(), values, "student"));
  student = library.Path("Demo/Tom");
  const Profile profile = Open();
  EXPECT_EQ(profile.values[1], "value");
  EXPECT_EQ(profile.values[2], "");
  EXPECT_EQ(profile.values[3], "value");
  EXPECT_EQ(profile.values[5], "value") << "a field that is called like the marker at the end of a profile";
}

/// What the user is told.
std::string Words(const Result<std::string>& added) { return added ? *added : added.Why(); }

TEST_F(ProfileTest, NewNamesAreCheckedInOrder) {
  values[3] = "555";
  const auto addStudent = [&](const std::string& name) {
    values[0] = name;
    return Words(AddStudent(library.Path("Demo"), fields.Captions(), values, "golfer"));
  };
  EXPECT_EQ(addStudent("  "), "You must enter a name for the new golfer.");
  EXPECT_EQ(addStudent("Sample, Erica"), "The golfer name that you have chosen already exists on the system.");
  EXPECT_EQ(addStudent("O'Brien"), "Invalid character in name.");
  EXPECT_EQ(addStudent("../Elsewhere"), "Invalid character in name.");
  EXPECT_FALSE(std::filesystem::exists(library.Path("Elsewhere")));
  EXPECT_EQ(addStudent("Tom"), "New golfer successfully created.");
  EXPECT_EQ(OpenProfile(library.Path("Demo/Tom"), fields).values[3], "555");
  EXPECT_EQ(addStudent(std::string(300, 'x')), "An error has occurred while creating the profile");

  const std::pair<const char*, const char*> instructors[] = {
      {"", "Invalid character in Name"}, {"50%", "Invalid character in Name"},
      {"   ", "You must type a name!"},  {"Anna", "Anna successfully added!"},
      {"Anna", "Anna already exists."},  {"General Folder", "General Folder already exists."}};
  for (const auto& [name, words] : instructors) EXPECT_EQ(Words(AddInstructor(library.Root(), name)), words);
  EXPECT_TRUE(std::filesystem::is_directory(library.Path("Anna")));
  const std::string file = library.File("no folder");
  EXPECT_EQ(AddInstructor(file, "Ben").Why(), "The folder " + file + "/Ben cannot be made: Not a directory.");
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
  test::FakeNotesEvents events;
  NotesKeeper notes(events);
  EXPECT_EQ(notes.Open(student), "");
  EXPECT_TRUE(notes.Keep("first\n"));
  EXPECT_EQ(File("profile.txt"), "first\r\n");

  // A folder stands where the file should go: no save can succeed.
  std::filesystem::remove(student + "/profile.txt");
  std::filesystem::create_directories(student + "/profile.txt/x");
  EXPECT_NE(notes.Keep("second\n").Why(), "");
  const std::string other = library.Folder("Demo/Tom");
  EXPECT_EQ(notes.Open(other), "");
  EXPECT_FALSE(notes.Keep("Tom's"));
  EXPECT_EQ(TempLibrary::Read(other + "/profile.txt"), "Tom's\r\n");
  EXPECT_EQ(notes.Open(student), "second\r\n");
  EXPECT_TRUE(notes.Keep(""));  // taken back: nothing waits any more
  EXPECT_FALSE(notes.Keep("second\n"));
  EXPECT_TRUE(notes.OpenIsUnsaved());

  std::filesystem::remove_all(student + "/profile.txt");
  EXPECT_TRUE(notes.Keep("second\n"));
  EXPECT_FALSE(notes.OpenIsUnsaved());
  EXPECT_EQ(File("profile.txt"), "second\r\n");

  // Somebody else renames the student: nothing is brought back under the old name, and the words are told.
  std::filesystem::rename(student, library.Path("Demo/Renamed"));
  EXPECT_TRUE(notes.Keep("third"));
  EXPECT_TRUE(notes.Keep("third"));
  EXPECT_EQ(events.lost, "Sample, Erica: third\r\n");
  EXPECT_FALSE(std::filesystem::exists(student));
}

}  // namespace
}  // namespace kinalyx
