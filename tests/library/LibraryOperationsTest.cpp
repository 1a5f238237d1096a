#include "library/LibraryOperations.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <map>
#include <set>
#include <thread>

#include "library/DiskSpace.h"
#include "library/LibraryActions.h"
#include "library/LibraryBrowser.h"
#include "library/TempLibrary.h"
#include "platform/files/Folders.h"
#include "platform/files/IniFile.h"
#include "support/CopyDisks.h"

namespace kinalyx {
namespace {

namespace fs = std::filesystem;
using test::TempLibrary;

/// A library with two instructors, and an analysis section in which some videos are open.
class LibraryOperationsTest : public testing::Test {
 public:
  LibraryOperationsTest() { Fill(); }

  void Fill() {
    library.File("Ann/Joe Doe/(001) DL.avi", "video 1");
    library.File("Ann/Joe Doe/(001) DL.ved", "1XXXSXXX");
    library.File("Ann/Joe Doe/(002) FO.avi", "video 2");
    library.File("Ann/Joe Doe/lessons/First.avi", "lesson");
    library.File("Ann/Joe Doe/profile.prf", "[Profile]\nName=Joe Doe\nAge=44\n");
    library.File("Ann/Joe Doe/profile.txt", "keeps his head down\r\n");
    library.File("Bob/Sue/Swing.avi", "Sue's");
  }

  LibraryOperations& Ops() {
    if (!operations) {
      operations = std::make_unique<LibraryOperations>(
          library.host, library.settings,
          AnalysisLink{[this](const std::string& path) { return open.contains(path); },
                       [this](const std::string&, const std::function<void(const std::string&)>& tell) {
                         tell("Loading Analysis Section...");
                         tell(slotsFree > 0 ? "Current video was sent to Analysis."
                                            : "All 8 windows already have videos in them. Send to analysis failed.");
                         return slotsFree;
                       }},
          LibraryOperations::Environment{JobRunner::On::HostTimer, disk});
      operations->ShowStatus = [this](const std::string& words) { statuses.push_back(words); };
    }
    return *operations;
  }

  LibraryVideo Video(const std::string& instructor, const std::string& student, const std::string& name) {
    const std::string folder = instructor == kGeneralFolder ? "" : instructor + "/" + (student.empty() ? "" : student + "/");
    return {instructor, student, library.Path(folder + name + ".avi")};
  }
  LibraryVideo DL() { return Video("Ann", "Joe Doe", "(001) DL"); }

  /// Takes the result of a long operation.
  LibraryOperations::Done Into() {
    results.emplace_back();
    ended = false;
    return [this](const OperationResult& result) {
      results.back() = result;
      ended = true;
    };
  }
  const OperationResult& Ended() {
    for (int turn = 0; !ended && turn < 10000; ++turn) library.host.Advance(1);
    EXPECT_TRUE(ended);
    return results.back();
  }
  std::string Message() const { return library.host.messages.empty() ? "" : library.host.messages.back(); }
  bool Exists(const std::string& name) const { return EntryExists(library.Path(name)); }
  std::string Read(const std::string& name) const { return TempLibrary::Read(library.Path(name)); }

  TempLibrary library;
  ICopyDisk* disk = &RealCopyDisk();
  std::unique_ptr<LibraryOperations> operations;
  std::set<std::string> open;
  int slotsFree = 1;
  std::vector<std::string> statuses;
  std::vector<OperationResult> results;
  bool ended = false;
};

// ---------------------------------------------------------------- guards

TEST_F(LibraryOperationsTest, NothingHappensWithoutAChoice) {
  const std::string noStudent = "You must select a student first.";
  EXPECT_EQ(Ops().RenameStudent("Ann", "", "x").status, noStudent);
  Ops().MoveStudent("General Folder", "", "Bob", Into());
  EXPECT_EQ(Ended().status, noStudent);
  Ops().DeleteStudent("Ann", "", Into());
  EXPECT_EQ(Ended().status, noStudent);
  EXPECT_TRUE(Exists("Ann/Joe Doe"));

  const std::string noVideo = "You must select a video first.";
  EXPECT_EQ(Ops().SendToAnalysis({}).status, noVideo);
  EXPECT_EQ(Ops().RenameVideo({}, "x").status, noVideo);
  EXPECT_EQ(Ops().DeleteVideo({}).status, noVideo);
  Ops().MoveVideo({}, "Bob", "Sue", Into());
  EXPECT_EQ(Ended().status, noVideo);
  Ops().CopyToDisk({}, library.Root(), Into());
  EXPECT_EQ(Ended().status, noVideo);
  Ops().QuickLaunch({}, Into());
  EXPECT_EQ(Ended().status, noVideo);
  Ops().Trim({}, 0, 0, 30, Into());
  EXPECT_EQ(Ended().status, noVideo);
  Ops().ImportVideos({}, Into());
  EXPECT_EQ(Ended().status, "No Videos Selected");
}

TEST_F(LibraryOperationsTest, AVideoThatIsOpenInAnalysisStaysWhereItIs) {
  const std::string student =
      "A video from this database is open in the Analysis section. You must close the video before you can ";
  const std::string video =
      "This video is open in the Analysis section. You must close the video before you can continue.";
  for (const char* name : {"Ann/Joe Doe/(001) DL.avi", "Ann/Joe Doe/lessons/First.avi"}) {
    open = {library.Path(name)};
    EXPECT_EQ(Ops().RenameStudent("Ann", "Joe Doe", "Jim").status, student + "rename this student.");
    Ops().MoveStudent("Ann", "Joe Doe", "Bob", Into());
    EXPECT_EQ(Ended().status, student + "move this student.");
    Ops().DeleteStudent("Ann", "Joe Doe", Into());
    EXPECT_EQ(Ended().status, student + "delete this student.");
    EXPECT_EQ(Message(), student + "delete this student.");
  }
  open = {DL().path};
  EXPECT_EQ(Ops().RenameVideo(DL(), "x").status, video);
  EXPECT_EQ(Ops().DeleteVideo(DL()).status, video);
  for (int operation = 0; operation < 3; ++operation) {
    if (operation == 0) Ops().MoveVideo(DL(), "Bob", "Sue", Into());
    if (operation == 1) Ops().CopyToDisk({DL()}, library.Root(), Into());
    if (operation == 2) Ops().Trim(DL(), 1, 2, 30, Into());
    EXPECT_EQ(Ended().status, video);
  }
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.avi"), "video 1");
  EXPECT_TRUE(Ops().RenameVideo(Video("Ann", "Joe Doe", "(002) FO"), "x").done);
}

TEST_F(LibraryOperationsTest, ALibraryThatCannotBeReachedIsLeftAlone) {
  fs::rename(library.Root(), library.Root() + " away");
  EXPECT_FALSE(Ops().AddInstructor("Carl").done);
  EXPECT_NE(Message().find("cannot be reached"), std::string::npos);
  EXPECT_FALSE(Ops().RenameStudent("Ann", "Joe Doe", "Jim").done);
  EXPECT_FALSE(Ops().DeleteVideo(DL()).done);
  Ops().ImportVideos({DL()}, Into());
  EXPECT_NE(Ended().status.find("cannot be reached"), std::string::npos);
  EXPECT_FALSE(EntryExists(library.Root()));
  fs::rename(library.Root() + " away", library.Root());
}

// ---------------------------------------------------------------- students

TEST_F(LibraryOperationsTest, RenamesAStudentAndTheNameInTheProfile) {
  EXPECT_EQ(Ops().RenameStudent("Ann", "Joe Doe", "O'Brien").status, "Invalid character in Student Name.");
  EXPECT_EQ(Ops().RenameStudent("Ann", "Joe Doe", "  ").status, "You must type a name!");
  EXPECT_EQ(Ops().RenameStudent("Ann", "Joe Doe", "Joe Doe").status, "Student rename cancelled.");
  library.Folder("Ann/Jim");
  EXPECT_EQ(Ops().RenameStudent("Ann", "Joe Doe", "Jim").status,
            "The name you have chosen already exists in the database.");

  const OperationResult result = Ops().RenameStudent("Ann", "Joe Doe", "Doe, Joe Jr.");
  EXPECT_TRUE(result.done && result.refill);
  EXPECT_EQ(result.status, "Student successfully renamed.");
  EXPECT_EQ(result.student, "Doe, Joe Jr.");
  EXPECT_FALSE(Exists("Ann/Joe Doe"));
  const std::string profile = library.Path("Ann/Doe, Joe Jr./profile.prf");
  EXPECT_EQ(ReadProfileValue("Profile", "Name", profile), "Doe, Joe Jr.");
  EXPECT_EQ(ReadProfileValue("Profile", "Age", profile), "44");
  // A name that differs in its case only.
  EXPECT_TRUE(Ops().RenameStudent("Ann", "Doe, Joe Jr.", "doe, joe jr.").done);
  EXPECT_TRUE(Exists("Ann/doe, joe jr./(001) DL.ved"));
}

TEST_F(LibraryOperationsTest, MovesAStudent) {
  library.File("Bob/Joe Doe/other.avi", "another Joe");
  Ops().MoveStudent("Ann", "Joe Doe", "Bob", Into());
  EXPECT_EQ(Ended().status, "The Database that you have chosen already contains a student with the same name.");
  EXPECT_TRUE(Exists("Ann/Joe Doe/(001) DL.avi"));
  Ops().MoveStudent("Ann", "Joe Doe", "General Folder", Into());
  EXPECT_FALSE(Ended().done);

  library.Folder("Carl");
  Ops().MoveStudent("Ann", "Joe Doe", "Carl", Into());
  EXPECT_EQ(Ended().status, "Student Successfully Moved to Carl .");
  EXPECT_TRUE(Ended().refill);
  EXPECT_FALSE(Exists("Ann/Joe Doe"));
  EXPECT_EQ(Read("Carl/Joe Doe/lessons/First.avi"), "lesson");
  EXPECT_EQ(Read("Carl/Joe Doe/(001) DL.ved"), "1XXXSXXX");
}

TEST_F(LibraryOperationsTest, RenamesAnInstructorAndRemovesOneWhoIsEmpty) {
  open = {library.Path("Ann/Joe Doe/lessons/First.avi")};
  EXPECT_TRUE(Ops().RenameInstructor("Ann", "Anna").status.ends_with("before you can rename this database."));
  open.clear();
  for (const char* taken : {"Bob", "General Folder", "Quick Launch"})
    EXPECT_EQ(Ops().RenameInstructor("Ann", taken).status, "There is already an Instructor or Database with this name.");
  EXPECT_EQ(Ops().RenameInstructor("Ann", "A:B").status, "Invalid character in Name");
  EXPECT_EQ(Ops().RenameInstructor("General Folder", "X").status, "You must select an Instructor or Database first.");
  library.Folder("Quick Launch");
  EXPECT_FALSE(Ops().RenameInstructor("Quick Launch", "X").done);
  const OperationResult renamed = Ops().RenameInstructor("Ann", "Anna B.");
  EXPECT_EQ(renamed.instructor, "Anna B.");
  EXPECT_EQ(Read("Anna B./Joe Doe/(001) DL.ved"), "1XXXSXXX");

  EXPECT_EQ(Ops().DeleteInstructor("Bob").status, "Bob still has students or videos. Move or delete them first.");
  fs::remove_all(library.Path("Bob/Sue"));
  library.File("Bob/loose.avi", "a video without a student");
  EXPECT_FALSE(Ops().DeleteInstructor("Bob").done);
  fs::remove(library.Path("Bob/loose.avi"));
  EXPECT_TRUE(Ops().DeleteInstructor("Bob").done);
  EXPECT_FALSE(Exists("Bob"));
}

TEST_F(LibraryOperationsTest, DeletesAStudentWholeOrNotAtAll) {
  // Nothing can be removed for the whole time.
  class Stubborn final : public test::TwoDrives {
   public:
    Stubborn() : TwoDrives(RealCopyDisk()) {}
    int Remove(const std::string&) override {
      errno = EBUSY;
      return -1;
    }
  } stubborn;
  disk = &stubborn;
  Ops().DeleteStudent("Ann", "Joe Doe", Into());
  EXPECT_FALSE(Ended().done);
  EXPECT_NE(Message().find("could not be removed"), std::string::npos);
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.avi"), "video 1");

  operations.reset();
  disk = &RealCopyDisk();
  Ops().DeleteStudent("Ann", "Joe Doe", Into());
  EXPECT_EQ(Ended().status, "Student Successfully removed from the system.");
  EXPECT_TRUE(fs::is_empty(library.Path("Ann")));
}

TEST_F(LibraryOperationsTest, TakesTheUsersWord) {
  library.settings.PrimaryName = {"Golfer", "golfer", "golfers"};
  EXPECT_EQ(Ops().RenameStudent("Ann", "", "x").status, "You must select a golfer first.");
  EXPECT_EQ(Ops().RenameStudent("Ann", "Joe Doe", "Jim").status, "Golfer successfully renamed.");
  EXPECT_EQ(Ops().RenameVideo(Video("Bob", "Sue", "Swing"), "a/b").status, "Invalid character in golfer name.");
  EXPECT_EQ(LibraryActionTip(LibraryAction::DeleteStudent, library.settings),
            "Delete the current golfer database, profile, and all videos.");
  EXPECT_NE(LibraryTextsFor(library.settings).deleteWarning.find("the golfer profile"), std::string::npos);
  EXPECT_EQ(QuickLaunchCaption("Quick Launch"), "Quick Launch -");
  EXPECT_EQ(QuickLaunchCaption("Ann"), "Quick Launch +");
}

// ---------------------------------------------------------------- videos

TEST_F(LibraryOperationsTest, SendsAVideoToAnalysis) {
  EXPECT_TRUE(Ops().SendToAnalysis(DL()).done);
  EXPECT_EQ(statuses.back(), "Current video was sent to Analysis.");
  slotsFree = 0;
  const OperationResult full = Ops().SendToAnalysis(DL());
  EXPECT_FALSE(full.done);
  EXPECT_EQ(full.status, "All 8 windows already have videos in them. Send to analysis failed.");
}

TEST_F(LibraryOperationsTest, RenamesAVideoWithItsSidecar) {
  EXPECT_EQ(Ops().RenameVideo(DL(), "50%").status, "Invalid character in student name.");
  EXPECT_EQ(Ops().RenameVideo(DL(), "").status, "Invalid character in student name.");
  EXPECT_EQ(Ops().RenameVideo(DL(), "(002) FO").status,
            "The video name you have chosen already exists, please try again.");
  // Drawings that lost their video must not turn up on another.
  library.File("Ann/Joe Doe/a.b.ved", "orphan");
  const OperationResult result = Ops().RenameVideo(DL(), "a.b");
  EXPECT_EQ(result.status, "Video renamed successfully.");
  EXPECT_EQ(result.video, "a.b");
  EXPECT_EQ(Read("Ann/Joe Doe/a.b.avi"), "video 1");
  EXPECT_EQ(Read("Ann/Joe Doe/a.b.ved"), "1XXXSXXX");
  EXPECT_EQ(Read("Ann/Joe Doe/a.b.ved.old"), "orphan");
  EXPECT_FALSE(Exists("Ann/Joe Doe/(001) DL.ved"));
  // One without a sidecar goes alone and gains none.
  library.File("Ann/Joe Doe/free.ved", "orphan");
  EXPECT_TRUE(Ops().RenameVideo(Video("Ann", "Joe Doe", "(002) FO"), "free").done);
  EXPECT_FALSE(Exists("Ann/Joe Doe/free.ved"));
}

TEST_F(LibraryOperationsTest, ASidecarThatTwoVideosShareIsLeftToTheOther) {
  library.File("Ann/Joe Doe/(001) DL.AVI", "video in capitals");
  LibraryVideo capitals = DL();
  capitals.path = library.Path("Ann/Joe Doe/(001) DL.AVI");
  Ops().MoveVideo(capitals, "Bob", "Sue", Into());
  EXPECT_TRUE(Ended().done);
  EXPECT_EQ(Read("Bob/Sue/(001) DL.AVI"), "video in capitals");
  EXPECT_EQ(Read("Bob/Sue/(001) DL.ved"), "1XXXSXXX");
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.ved"), "1XXXSXXX");
  library.File("Ann/Joe Doe/(001) DL.AVI", "again");
  EXPECT_TRUE(Ops().DeleteVideo(capitals).done);
  EXPECT_TRUE(Exists("Ann/Joe Doe/(001) DL.ved"));
}

TEST_F(LibraryOperationsTest, DeletesAVideoAndItsSidecar) {
  EXPECT_EQ(Ops().DeleteVideo(DL()).status, "Video Successfully Deleted!");
  EXPECT_FALSE(Exists("Ann/Joe Doe/(001) DL.avi"));
  EXPECT_FALSE(Exists("Ann/Joe Doe/(001) DL.ved"));
  EXPECT_TRUE(Ops().DeleteVideo(Video("Ann", "Joe Doe", "(002) FO")).done);
}

TEST_F(LibraryOperationsTest, MovesAVideo) {
  Ops().MoveVideo(DL(), "Bob", "", Into());
  EXPECT_EQ(Ended().status, "You must select a Database and student for the video.");
  Ops().MoveVideo(DL(), "Ann", "Joe Doe", Into());
  EXPECT_EQ(Ended().status, "The source and destination folders are the same. The video was not moved.");
  library.File("Bob/Sue/(001) DL.AVI", "Sue's own");
  Ops().MoveVideo(DL(), "Bob", "Sue", Into());
  EXPECT_EQ(Ended().status,
            "A video with the name \"(001) DL\" already exists in the folder named Sue. Please rename the video and try again.");
  Ops().MoveVideo(DL(), "Bob", "Nobody", Into());
  EXPECT_FALSE(Ended().done);
  EXPECT_FALSE(Exists("Bob/Nobody"));

  library.Folder("Bob/Tim");
  Ops().MoveVideo(DL(), "Bob", "Tim", Into());
  EXPECT_EQ(Ended().status, "Selected video successfully moved.");
  EXPECT_EQ(Read("Bob/Tim/(001) DL.avi"), "video 1");
  EXPECT_EQ(Read("Bob/Tim/(001) DL.ved"), "1XXXSXXX");
  EXPECT_FALSE(Exists("Ann/Joe Doe/(001) DL.avi"));
  EXPECT_FALSE(Exists("Ann/Joe Doe/(001) DL.ved"));
}

TEST_F(LibraryOperationsTest, QuickLaunchTakesCopiesAndGivesThemUp) {
  Ops().QuickLaunch(DL(), Into());  // the question is answered with no
  EXPECT_FALSE(Ended().done);
  EXPECT_FALSE(Exists("Quick Launch"));
  library.host.answers = {true, true, false, true};
  Ops().QuickLaunch(DL(), Into());
  EXPECT_EQ(Ended().status, "The current video was copied to the Quick Launch folder.");
  EXPECT_TRUE(Ended().refill);
  EXPECT_EQ(library.host.titles.back(), "Copy video to Quick Launch Folder");
  EXPECT_EQ(Read("Quick Launch/(001) DL.ved"), "1XXXSXXX");
  EXPECT_TRUE(Exists("Ann/Joe Doe/(001) DL.avi"));
  Ops().QuickLaunch(DL(), Into());
  EXPECT_EQ(Ended().status,
            "There is already a video with the same name in the Quick Launch folder. The copy process will be cancelled.");

  const LibraryVideo there = Video("Quick Launch", "", "(001) DL");
  Ops().QuickLaunch(there, Into());
  EXPECT_EQ(library.host.questions.back(),
            "Are you sure that you want to delete the current video from the Quick Launch folder?");
  EXPECT_TRUE(Exists("Quick Launch/(001) DL.avi"));
  Ops().QuickLaunch(there, Into());
  EXPECT_EQ(Ended().status, "The current video was removed from the Quick Launch folder.");
  EXPECT_TRUE(fs::is_empty(library.Path("Quick Launch")));
}

// ---------------------------------------------------------------- to other drives and back

TEST_F(LibraryOperationsTest, CopiesToADiskAndCounts) {
  test::TempFolder stick;
  Ops().CopyToDisk({DL(), Video("Ann", "Joe Doe", "(002) FO")}, stick.Path(), Into());
  EXPECT_EQ(statuses.back(), "Copying Videos, Please Wait.....");
  EXPECT_EQ(Ended().status, "3 Files Copied Successfully.");
  EXPECT_EQ(stick.Get("(001) DL.avi"), "video 1");
  Ops().CopyToDisk({DL()}, stick.Path("gone"), Into());
  EXPECT_EQ(Ended().status, "Drive Error");
  Ops().CopyToDisk({Video("Ann", "Joe Doe", "never")}, stick.Path(), Into());
  EXPECT_EQ(Ended().status, "0 Files Copied Successfully.");
  EXPECT_FALSE(Ended().done);
}

TEST_F(LibraryOperationsTest, ADatabaseGoesOutAndComesBack) {
  test::TempFolder drive;
  library.File("loose.avi", "loose");
  const std::vector<LibraryVideo> all = {DL(), Video("Ann", "Joe Doe", "(002) FO"), Video("General Folder", "", "loose")};
  library.host.answers = {true, true};  // the drive of the tests may be the system's
  Ops().ExportVideos(all, drive.Path(), Into());
  EXPECT_EQ(statuses.back(), "Exporting Videos, Please Wait.....");
  EXPECT_EQ(Ended().status, "3 File(s) exported successfully!");
  EXPECT_EQ(statuses.back(), "3 of 3 Videos Successfully exported.....Please wait...");
  EXPECT_EQ(drive.Get("Ann/Joe Doe/(001) DL.ved"), "1XXXSXXX");
  EXPECT_EQ(drive.Get("Ann/Joe Doe/profile.txt"), "keeps his head down\r\n");
  EXPECT_EQ(drive.Get("loose.avi"), "loose");

  // A second time every name is taken; so is that of the first copy at the third time.
  Ops().ExportVideos({DL()}, drive.Path(), Into());
  EXPECT_TRUE(Ended().done);
  library.host.answers = {true};
  Ops().ExportVideos({DL()}, drive.Path(), Into());
  EXPECT_TRUE(Ended().done);
  EXPECT_EQ(drive.Get("Ann/Joe Doe/(001) DLd.ved"), "1XXXSXXX");
  EXPECT_EQ(drive.Get("Ann/Joe Doe/(001) DLdd.avi"), "video 1");

  fs::remove_all(library.Path("Ann"));
  const auto abroad = [&](const std::string& name) { return LibraryVideo{"Ann", "Joe Doe", drive.Path("Ann/Joe Doe/" + name)}; };
  Ops().ImportVideos({abroad("(001) DL.avi"), abroad("(002) FO.avi")}, Into());
  EXPECT_EQ(statuses.back(), "Importing Videos... Please Wait.....");
  EXPECT_EQ(Ended().status, "2 File(s) Imported successfully!");
  EXPECT_EQ(statuses.back(), "2 of 2 Videos Successfully Imported.");
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.ved"), "1XXXSXXX");
  EXPECT_EQ(ReadProfileValue("Profile", "Age", library.Path("Ann/Joe Doe/profile.prf")), "44");
}

TEST_F(LibraryOperationsTest, AnExportCanBeStoppedAndKeepsWhatHasArrived) {
  test::TempFolder drive;
  library.host.answers = {true};
  std::vector<LibraryVideo> many(20, DL());
  Ops().ShowProgress = [this](const JobProgress& progress) {
    if (progress.done == 2) Ops().Cancel();
  };
  Ops().ExportVideos(many, drive.Path(), Into());
  EXPECT_TRUE(Ops().Busy());
  EXPECT_NE(Ops().DeleteVideo(DL()).status.find("still at work"), std::string::npos);
  EXPECT_EQ(Ended().status, "Export Cancelled");
  EXPECT_EQ(Message(), "Operation Cancelled");
  EXPECT_FALSE(Ops().Busy());
  EXPECT_EQ(ListFiles(drive.Path("Ann/Joe Doe"), ".avi").size(), 2u);
  std::size_t hidden = 0;
  for (const auto& entry : fs::directory_iterator(drive.Path("Ann/Joe Doe"))) hidden += entry.path().filename().string()[0] == '.';
  EXPECT_EQ(hidden, 0u);
  EXPECT_EQ(library.host.titles.front() == "Export to C?", IsSystemDrive(drive.Path()));
}

TEST_F(LibraryOperationsTest, TheListsFollow) {
  LastStudentInfo remembered;
  LibraryBrowser browser(library.host.Drives(), library.settings, remembered, LibraryBrowser::Kind::Profiles);
  browser.CapfolderSetup();
  browser.SelectInstructor("Ann");
  browser.SelectStudent("Joe Doe");
  browser.SelectVideo("(002) FO");
  const auto chosen = [&] { return browser.Instructor() + "/" + browser.Student() + "/" + browser.Video(); };

  ShowResult(Ops().RenameVideo(ChosenVideo(browser), "(003) Back"), browser);
  EXPECT_EQ(chosen(), "Ann/Joe Doe/(003) Back");
  ShowResult(Ops().RenameStudent("Ann", "Joe Doe", "Jim"), browser);
  EXPECT_EQ(chosen(), "Ann/Jim/(001) DL");
  Ops().MoveStudent("Ann", "Jim", "Bob", Into());
  ShowResult(Ended(), browser);
  EXPECT_EQ(chosen(), "Bob/Jim/(001) DL");
  ShowResult(Ops().DeleteVideo(ChosenVideo(browser)), browser);
  EXPECT_EQ(chosen(), "Bob/Jim/(003) Back");
  library.host.answers = {true};
  Ops().QuickLaunch(ChosenVideo(browser), Into());
  ShowResult(Ended(), browser);
  EXPECT_EQ(browser.InstructorList(), (std::vector<std::string>{"General Folder", "Ann", "Bob", "Quick Launch"}));
  EXPECT_EQ(chosen(), "Bob/Jim/(003) Back");
  Ops().DeleteStudent("Bob", "Jim", Into());
  ShowResult(Ended(), browser);
  EXPECT_EQ(chosen(), "Bob//");
  ShowResult(Ops().AddInstructor("Carl"), browser);
  EXPECT_EQ(chosen(), "Carl//");
}

// ---------------------------------------------------------------- trim

TEST_F(LibraryOperationsTest, TrimsByTheSmallProgram) {
  fs::create_directories(library.settings.AppPath);
  const auto program = [&](const std::string& script) {
    const std::string path = library.settings.AppPath + "/avitrim";
    std::ofstream(path) << "#!/bin/sh\n" << script;
    fs::permissions(path, fs::perms::owner_all);
  };
  Ops().Trim(DL(), 8, 4, 30, Into());
  EXPECT_EQ(Ended().status,
            "Your TRIM Start and End times are not correct. Please check your Start and End times and try again.");
  Ops().Trim(DL(), 1, 4, 30, Into());  // there is no program
  EXPECT_EQ(Ended().status, "Last Video WAS NOT SAVED");
  EXPECT_EQ(Message().substr(0, 39), "There was a problem saving this video.\n");

  program("echo 50\nprintf '%s' \"$1\" > \"$(dirname \"$0\")/asked\"\necho 100\n");
  double part = 0;
  Ops().ShowProgress = [&](const JobProgress& progress) { part = progress.part; };
  Ops().Trim(DL(), 3, 17, 25, Into());
  EXPECT_EQ(statuses.back(), "Saving Video.... Please Wait.");
  EXPECT_EQ(Ended().status, "Last Video Saved Successfully");
  EXPECT_EQ(part, 1);
  EXPECT_EQ(TempLibrary::Read(library.settings.AppPath + "/asked"), DL().path + "*" + DL().path + "*3*17*25*0*");
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.ved"), "1XXXSXXX");

  program("echo 'disk full' >&2\nexit 1\n");
  Ops().Trim(DL(), 3, 17, 25, Into());
  EXPECT_EQ(Ended().status, "Last Video WAS NOT SAVED");
  EXPECT_NE(Message().find("disk full"), std::string::npos);

  program("trap 'exit 3' TERM\necho 10\nwhile :; do sleep 0.01; done\n");
  Ops().ShowProgress = [&](const JobProgress& progress) {
    if (progress.part > 0) Ops().Cancel();
  };
  Ops().Trim(DL(), 3, 17, 25, Into());
  EXPECT_EQ(Ended().status, "Operation Cancelled");
}

// ---------------------------------------------------------------- faults

// Whichever call to the disk fails, both videos, the drawings and the profile are somewhere, and drawings
// never stand beside another video than theirs.
TEST_F(LibraryOperationsTest, LoseNothingWhicheverCallFails) {
  using Operation = std::function<void(LibraryOperationsTest&)>;
  const std::map<std::string, Operation> operations = {
      {"rename video", [](auto& t) { t.results.push_back(t.Ops().RenameVideo(t.DL(), "new")); t.ended = true; }},
      {"move video", [](auto& t) { t.Ops().MoveVideo(t.DL(), "Bob", "Sue", t.Into()); }},
      {"quick launch", [](auto& t) { t.library.host.answers = {true}; t.Ops().QuickLaunch(t.DL(), t.Into()); }},
      {"rename student", [](auto& t) { t.results.push_back(t.Ops().RenameStudent("Ann", "Joe Doe", "new")); t.ended = true; }},
      {"move student", [](auto& t) { t.Ops().MoveStudent("Ann", "Joe Doe", "Bob", t.Into()); }},
      {"import", [](auto& t) { t.Ops().ImportVideos({{"Carl", "Joe Doe", t.DL().path}}, t.Into()); }},
  };
  class Fixture : public LibraryOperationsTest {
    void TestBody() override {}
  };
  for (const auto& [name, operation] : operations) {
    for (const bool twoDrives : {false, true}) {
      Fixture t;
      int call = 0;
      for (bool failed = true; failed && call < 100; ++call) {
        SCOPED_TRACE(name + (twoDrives ? " between drives" : "") + ", call " + std::to_string(call));
        fs::remove_all(t.library.Root());
        t.Fill();
        t.library.host.messages.clear();
        t.operations.reset();
        test::FailingDisk failing(call);
        test::TwoDrives drives(failing);
        t.disk = twoDrives ? static_cast<ICopyDisk*>(&drives) : &failing;
        operation(t);
        t.Ended();
        failed = failing.Failed();
        int videos = 0;
        int drawings = 0;
        int profiles = 0;
        for (const auto& entry : fs::recursive_directory_iterator(t.library.Root())) {
          const fs::path path = entry.path();
          if (path.filename().string()[0] == '.') ADD_FAILURE() << "left behind: " << path;
          const std::string bytes = entry.is_regular_file() ? TempLibrary::Read(path.string()) : "";
          videos += bytes == "video 1";
          profiles += bytes.find("Age=44") != std::string::npos;
          if (path.extension() != ".ved") continue;
          ++drawings;
          EXPECT_EQ(bytes, "1XXXSXXX");
          // What a finished move could not take away is told of, and does no harm.
          const std::string video = TempLibrary::Read(fs::path(path).replace_extension(".avi").string());
          const bool told = t.results.back().done && !t.library.host.messages.empty();
          EXPECT_TRUE(video == "video 1" || (video.empty() && told)) << path;
        }
        const OperationResult& result = t.results.back();
        // A copy of a move whose source could not be removed is there twice.
        EXPECT_GE(videos, 1) << result.status;
        EXPECT_GE(drawings, 1) << result.status;
        EXPECT_GE(profiles, 1) << result.status;
        EXPECT_TRUE(result.done || t.Exists("Ann/Joe Doe/(001) DL.avi")) << result.status;
        EXPECT_TRUE(result.done || !t.library.host.messages.empty());
      }
      EXPECT_LT(call, 100) << name;
    }
  }
}

// ---------------------------------------------------------------- disks and workers

TEST(DiskSpaceTest, TellsWhatIsFreeAndWhatFails) {
  test::TempFolder folder;
  const DiskSpace here = DiskSpaceGauge(folder.Path());
  EXPECT_TRUE(here.available);
  EXPECT_EQ(here.Label6, std::to_string(here.percentFree) + " % Free");
  EXPECT_EQ(RemoveableDiskText(folder.Path()), "Available space on removeable disk " + here.Label6);
  const DiskSpace gone = DiskSpaceGauge(folder.Path("gone"));
  EXPECT_EQ(gone.Label6, "0% Free");
  EXPECT_EQ(gone.message, "Disk Full or Not Available");
  EXPECT_EQ(RemoveableDiskText(folder.Path("gone")), "Drive Error");
  EXPECT_EQ(RemoveableDrivesIn("/dev/sda1 / ext4 rw 0 0\n/dev/sdb1 /media/ann/MY\\040STICK vfat rw 0 0\n"
                               "/dev/sda1 /mnt/etc/hosts ext4 rw 0 0\ntmpfs /mnt/tools tmpfs rw 0 0\n"
                               "server:/lib /mnt/lib nfs rw 0 0\nbroken\n"),
            (std::vector<std::string>{"/media/ann/MY STICK", "/mnt/lib"}));
}

/// Counts its steps; hangs at the third until it is let go.
class CountingJob final : public IJob {
 public:
  struct Seen {
    std::atomic<int> steps = 0;
    std::atomic<bool> cancelled = false;
    std::atomic<bool> hangs = false;
    std::atomic<bool> gone = false;
  };
  CountingJob(std::shared_ptr<Seen> seen, int last) : seen_(std::move(seen)), last_(last) {}
  ~CountingJob() override { seen_->gone = true; }
  bool Step() override {
    while (seen_->hangs) std::this_thread::yield();
    return ++seen_->steps < last_;
  }
  void Cancel() override { seen_->cancelled = true; }
  JobProgress Progress() const override { return {seen_->steps, last_, 0, {}}; }

 private:
  std::shared_ptr<Seen> seen_;
  int last_;
};

TEST(JobRunnerTest, AWorkerEndsIsCancelledAndIsLeftBehindWhenItHangs) {
  test::TestHost host;
  JobRunner runner(host, JobRunner::On::Worker);
  bool ended = false;
  bool abandoned = false;
  const auto end = [&](IJob* job) {
    ended = true;
    abandoned = job == nullptr;
  };
  const auto wait = [&](const auto& until) {
    while (!until()) {
      host.Advance(1);
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  };
  auto seen = std::make_shared<CountingJob::Seen>();
  ASSERT_TRUE(runner.Start(std::make_unique<CountingJob>(seen, 5), {}, end));
  EXPECT_FALSE(runner.Start(std::make_unique<CountingJob>(seen, 5), {}, end));
  wait([&] { return ended; });
  EXPECT_EQ(seen->steps, 5);
  EXPECT_FALSE(abandoned || runner.Busy());

  seen = std::make_shared<CountingJob::Seen>();
  ended = false;
  runner.Start(std::make_unique<CountingJob>(seen, 1 << 30), {}, end);
  runner.Cancel();
  // The turns of a worker are not those of the clock: this one is given all the time it needs.
  while (!seen->cancelled) std::this_thread::yield();
  wait([&] { return ended; });
  EXPECT_FALSE(abandoned);

  // A disk that does not answer.
  seen = std::make_shared<CountingJob::Seen>();
  seen->hangs = true;
  ended = false;
  runner.Start(std::make_unique<CountingJob>(seen, 1 << 30), {}, end);
  runner.Cancel();
  host.Advance(5000);
  EXPECT_TRUE(ended && abandoned);
  EXPECT_FALSE(runner.Busy());
  seen->hangs = false;
  while (!seen->gone) std::this_thread::yield();
  EXPECT_TRUE(seen->cancelled);
}

}  // namespace
}  // namespace kinalyx
