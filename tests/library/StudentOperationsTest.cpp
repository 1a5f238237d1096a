#include "OperationsFixture.h"

#include "platform/files/IniFile.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

struct StudentOperations : OperationsFixture {
  OperationResult Move(const char* instructor, const char* student, const char* target) {
    return Run(&LibraryOperations::MoveStudent, instructor, student, target);
  }
  OperationResult Delete(const char* instructor, const char* student) {
    return Run(&LibraryOperations::DeleteStudent, instructor, student);
  }
};

TEST_F(StudentOperations, NothingHappensWithoutAChoiceOrWhileAVideoIsOpenInAnalysis) {
  const std::string noStudent = "You must select a student first.";
  EXPECT_EQ(Ops().RenameStudent("Ann", "", "x").Status(), noStudent);
  EXPECT_EQ(Move("General Folder", "", "Bob").Status(), noStudent);
  EXPECT_EQ(Delete("Ann", "").Status(), noStudent);
  EXPECT_EQ(Ops().RenameInstructor("General Folder", "X").Status(), "You must select an Instructor or Database first.");
  const std::string student =
      "A video from this database is open in the Analysis section. You must close the video before you can ";
  for (const char* name : {"Ann/Joe Doe/(001) DL.avi", "Ann/Joe Doe/lessons/First.avi"}) {
    open = {library.Path(name)};
    EXPECT_EQ(Ops().RenameStudent("Ann", "Joe Doe", "Jim").Status(), student + "rename this student.");
    EXPECT_EQ(Move("Ann", "Joe Doe", "Bob").Status(), student + "move this student.");
    EXPECT_EQ(Delete("Ann", "Joe Doe").Status(), student + "delete this student.");
    EXPECT_EQ(Message(), student + "delete this student.");
    EXPECT_EQ(Ops().RenameInstructor("Ann", "Anna").Status(), student + "rename this database.");
  }
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.avi"), "video 1");
}

TEST_F(StudentOperations, RenamesAStudentAndTheNameInTheProfile) {
  library.Folder("Ann/Jim");
  const std::pair<const char*, const char*> refused[] = {
      {"O'Brien", "Invalid character in Student Name."},
      {"  ", "You must type a name!"},
      {"Joe Doe", "Student rename cancelled."},
      {"Jim", "The name you have chosen already exists in the database."}};
  for (const auto& [name, words] : refused) EXPECT_EQ(Ops().RenameStudent("Ann", "Joe Doe", name).Status(), words);

  const OperationResult result = Ops().RenameStudent("Ann", "Joe Doe", "Doe, Joe Jr.");
  EXPECT_EQ(result.Status(), "Student successfully renamed.");
  EXPECT_FALSE(Exists("Ann/Joe Doe"));
  const std::string profile = library.Path("Ann/Doe, Joe Jr./profile.prf");
  EXPECT_EQ(ReadProfileValue("Profile", "Name", profile), "Doe, Joe Jr.");
  EXPECT_EQ(ReadProfileValue("Profile", "Age", profile), "44");
  // A name that differs in its case only, with blanks that nobody would see.
  EXPECT_EQ(Ops().RenameStudent("Ann", "Doe, Joe Jr.", " doe, joe jr.  ").student, "doe, joe jr.");
  EXPECT_TRUE(Exists("Ann/doe, joe jr./(001) DL.ved"));
}

TEST_F(StudentOperations, MovesAStudent) {
  library.File("Bob/Joe Doe/other.avi", "another Joe");
  EXPECT_EQ(Move("Ann", "Joe Doe", "Bob").Status(),
            "The Database that you have chosen already contains a student with the same name.");
  EXPECT_FALSE(Move("Ann", "Joe Doe", "General Folder").Done());
  EXPECT_TRUE(Exists("Ann/Joe Doe/(001) DL.avi"));

  library.Folder("Carl");
  EXPECT_EQ(Move("Ann", "Joe Doe", "Carl").Status(), "Student Successfully Moved to Carl .");
  EXPECT_EQ(analysis.moved.at(0), std::pair(library.Path("Ann/Joe Doe"), library.Path("Carl/Joe Doe")));
  EXPECT_FALSE(Exists("Ann/Joe Doe"));
  EXPECT_EQ(Read("Carl/Joe Doe/lessons/First.avi"), "lesson");
  EXPECT_EQ(Read("Carl/Joe Doe/(001) DL.ved"), "1XXXSXXX");
}

TEST_F(StudentOperations, AnotherWorkstationHasBeenQuicker) {
  // The target has been renamed: it must not come back as a bare folder.
  EXPECT_FALSE(Move("Ann", "Joe Doe", "Carl").Done());
  EXPECT_TRUE(Told("cannot be found. The student was not moved."));
  EXPECT_FALSE(Exists("Carl"));
  EXPECT_TRUE(Exists("Ann/Joe Doe"));

  // The student has been renamed: the lists are read again.
  const std::string gone = ". It is not there any more: somebody else has renamed, moved or deleted it.";
  fs::rename(library.Path("Ann/Joe Doe"), library.Path("Ann/Jim"));
  const OperationResult renamed = Ops().RenameStudent("Ann", "Joe Doe", "Jack");
  EXPECT_EQ(renamed.Status(), "The student could not be renamed" + gone);
  EXPECT_TRUE(renamed.refill);
  EXPECT_EQ(Move("Ann", "Joe Doe", "Bob").Status(), "The student was not moved" + gone);
  EXPECT_FALSE(Exists("Bob/Joe Doe"));
}

TEST_F(StudentOperations, AddsAStudentWhereNobodyElseIs) {
  FieldTexts captions;
  captions[kNameField] = "Name";
  FieldTexts values;
  values[kNameField] = " Tom ";
  EXPECT_EQ(Ops().AddStudent("Ann", captions, values).student, "Tom");
  EXPECT_EQ(ReadProfileValue("Profile", "Name", library.Path("Ann/Tom/profile.prf")), "Tom");
  for (const char* nowhere : {"", "General Folder", "Carl"})
    EXPECT_FALSE(Ops().AddStudent(nowhere, captions, values).Done());
  EXPECT_FALSE(Exists("Tom") || Exists("Carl"));
}

TEST_F(StudentOperations, ALibraryOfThisMachineBeginsWithWhatIsFirstPutIn) {
  const std::string stick = library.settings.DataPath + "/stick";
  fs::create_directories(stick + "/Ann/Joe Doe");
  fs::copy_file(DL().path, stick + "/Ann/Joe Doe/Swing.avi");
  fs::remove_all(library.Root());
  Import({{"Ann", "Joe Doe", stick + "/Ann/Joe Doe/Swing.avi"}});
  EXPECT_TRUE(Exists("Ann/Joe Doe/Swing.avi")) << Message();
  fs::remove_all(library.Root());
  EXPECT_EQ(Ops().AddInstructor("Łucja").Status(), "Łucja successfully added!");
  EXPECT_TRUE(Exists("Łucja"));

  // One that was there comes back only when the user says so.
  fs::remove_all(library.Root());
  library.settings.LastInstructor = "Łucja";
  EXPECT_FALSE(Ops().AddInstructor("Ann").Done());
  EXPECT_FALSE(EntryExists(library.Root()));
  library.host.answers = {true};
  EXPECT_TRUE(Ops().AddInstructor("Ann").Done());

  // One of the user's own choice is never made, nor one without its data folder, nor where something stands.
  const auto gone = [&] {
    EXPECT_FALSE(Ops().AddInstructor("Ann").Done());
    EXPECT_TRUE(Told("cannot be reached")) << Message();
    EXPECT_FALSE(fs::exists(library.Root()));
  };
  fs::remove_all(library.Root());
  library.settings.UseNetwork = true;
  gone();
  library.settings.UseNetwork = false;
  fs::create_symlink("/nowhere/at all", library.Root());
  gone();
  fs::remove_all(library.settings.DataPath);
  gone();
}

/// On a stick the two would become one.
TEST_F(StudentOperations, NamesThatDifferInCaseAloneAreTaken) {
  library.Folder("Ann/Zoë");
  library.Folder("Bob/JOE DOE");
  FieldTexts values;
  values[kNameField] = "ZOË";
  EXPECT_EQ(Ops().AddStudent("Ann", values, values).Status(),
            "The student name that you have chosen already exists on the system.");
  EXPECT_FALSE(Ops().AddInstructor("ANN").Done());
  EXPECT_FALSE(Ops().AddInstructor("general folder").Done());
  EXPECT_FALSE(Ops().RenameInstructor("Bob", "ann").Done());
  EXPECT_EQ(Ops().RenameStudent("Ann", "Joe Doe", "zoë").Status(),
            "The name you have chosen already exists in the database.");
  EXPECT_FALSE(Move("Ann", "Joe Doe", "Bob").Done());
  EXPECT_EQ(Ops().RenameVideo(DL(), "(002) fo").Status(),
            "The video name you have chosen already exists, please try again.");
  EXPECT_EQ(ListFolders(library.Path("Ann")), (std::vector<std::string>{"Joe Doe", "Zoë"}));
  EXPECT_TRUE(Ops().RenameVideo(DL(), "(001) dl").Done()) << "its own name in another case is free for it";
}

TEST_F(StudentOperations, RenamesAnInstructorAndRemovesOneWhoIsEmpty) {
  for (const char* taken : {"Bob", "General Folder", "Quick Launch"})
    EXPECT_EQ(Ops().RenameInstructor("Ann", taken).Status(),
              "There is already an Instructor or Database with this name.");
  EXPECT_EQ(Ops().RenameInstructor("Ann", "A:B").Status(), "Invalid character in Name");
  library.Folder("Quick Launch");
  EXPECT_FALSE(Ops().RenameInstructor("Quick Launch", "X").Done());
  EXPECT_EQ(Ops().RenameInstructor("Ann", " Anna B. ").instructor, "Anna B.");
  EXPECT_EQ(Read("Anna B./Joe Doe/(001) DL.ved"), "1XXXSXXX");

  EXPECT_EQ(Ops().DeleteInstructor("Bob").Status(), "Bob still has students or videos. Move or delete them first.");
  fs::remove_all(library.Path("Bob/Sue"));
  library.File("Bob/loose.avi", "a video without a student");
  EXPECT_FALSE(Ops().DeleteInstructor("Bob").Done());
  fs::rename(library.Path("Bob/loose.avi"), library.Path("Bob/.picture cache"));  // as of another program
  EXPECT_EQ(Ops().DeleteInstructor("Bob").Status(),
            "There are other files in the folder " + library.Path("Bob") + ". Move or delete them first.");
  fs::remove(library.Path("Bob/.picture cache"));
  EXPECT_TRUE(Ops().DeleteInstructor("Bob").Done());
  EXPECT_FALSE(Exists("Bob"));
}

TEST_F(StudentOperations, DeletesAStudentWholeOrNotAtAll) {
  // Nothing can be removed for the whole time.
  class Stubborn final : public TwoDrives {
   public:
    int Remove(const std::string&) override {
      errno = EBUSY;
      return -1;
    }
  } stubborn;
  Use(stubborn);
  EXPECT_FALSE(Delete("Ann", "Joe Doe").Done());
  EXPECT_TRUE(Told("could not be removed"));
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.avi"), "video 1");

  Use(RealDisk());
  EXPECT_EQ(Delete("Ann", "Joe Doe").Status(), "Student Successfully removed from the system.");
  EXPECT_TRUE(fs::is_empty(library.Path("Ann")));
}

TEST_F(StudentOperations, WhatIsDeletedIsSaidBeforeAndGoesToTheTrash) {
  FakeTrash bin;
  trash = &bin;
  library.File("Ann/Joe Doe/contract.pdf");
  library.File("Ann/Joe Doe/plans/2026/week 1.avi");
  const std::string contents =
      "There are 8 files in the folder: 2 videos with all drawings and notes, 1 lesson, the profile and 2 files that "
      "the lists do not show: ";
  std::string told = Ops().DeletionText(DL(), true);
  EXPECT_TRUE(told.starts_with(contents)) << told;
  EXPECT_NE(told.find("plans/2026/week 1.avi"), std::string::npos);
  EXPECT_TRUE(told.ends_with("It goes to the trash of the desktop, from where it can be taken back."));

  EXPECT_TRUE(Ops().DeleteVideo(DL()).Done());
  EXPECT_EQ(bin.taken, (std::vector<std::string>{"(001) DL.avi", "(001) DL.ved"}));
  EXPECT_EQ(Delete("Ann", "Joe Doe").Status(), "Student Successfully removed from the system.");
  EXPECT_EQ(bin.taken.back(), "Joe Doe");
  EXPECT_TRUE(library.host.questions.empty());
}

TEST_F(StudentOperations, ATrashThatDoesNotTakeItIsAskedAbout) {
  FakeTrash bin;
  bin.full = true;
  trash = &bin;
  EXPECT_EQ(Delete("Ann", "Joe Doe").Status(), "Operation Cancelled");
  EXPECT_FALSE(Ops().DeleteVideo(DL()).Done());
  EXPECT_EQ(library.host.questions.size(), 2u);
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.avi"), "video 1");
  library.host.answers = {true, true};
  EXPECT_TRUE(Ops().DeleteVideo(DL()).Done());
  EXPECT_EQ(Delete("Ann", "Joe Doe").Status(), "Student Successfully removed from the system.");
  EXPECT_TRUE(fs::is_empty(library.Path("Ann")));

  bin.there = false;
  EXPECT_EQ(Ops().DeletionText(Video("Bob", "Sue", "Swing"), false),
            "This drive has no trash: what is deleted is gone.");
  EXPECT_EQ(Delete("Bob", "Sue").Status(), "Student Successfully removed from the system.");
}

}  // namespace
}  // namespace kinalyx::test
