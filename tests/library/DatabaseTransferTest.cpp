#include "OperationsFixture.h"

#include "library/DiskSpace.h"
#include "platform/files/IniFile.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

using DatabaseTransfer = OperationsFixture;

TEST_F(DatabaseTransfer, CopiesToADiskAndCounts) {
  TempFolder stick;
  Ops().CopyToDisk({DL(), FO()}, stick.Path(), Into());
  EXPECT_EQ(statuses.back(), "Copying Videos, Please Wait.....");
  EXPECT_EQ(Ended().status, "3 Files Copied Successfully.");
  EXPECT_EQ(stick.Get("(001) DL.avi"), "video 1");
  Ops().ImportVideos({}, Into());
  EXPECT_EQ(Ended().status, "No Videos Selected");
  Ops().CopyToDisk({DL()}, stick.Path("gone"), Into());
  EXPECT_EQ(Ended().status, "Drive Error");
  Ops().CopyToDisk({Video("Ann", "Joe Doe", "never")}, stick.Path(), Into());
  EXPECT_EQ(Ended().status, "0 Files Copied Successfully.");
  EXPECT_FALSE(Ended().done);
}

TEST_F(DatabaseTransfer, ADatabaseGoesOutAndComesBack) {
  TempFolder drive;
  library.File("loose.avi", "loose");
  const std::vector<LibraryVideo> all = {DL(), FO(), Video("General Folder", "", "loose")};
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

TEST_F(DatabaseTransfer, AnImportTwiceOverKeepsWhatIsThere) {
  TempFolder drive;
  fs::copy(library.Path("Ann"), drive.Path("Ann"), fs::copy_options::recursive);
  const LibraryVideo abroad{"Ann", "Joe Doe", drive.Path("Ann/Joe Doe/(001) DL.avi")};
  library.File("Ann/Joe Doe/profile.prf", "[Profile]\nName=Joe Doe\nAge=45\n");
  fs::remove(library.Path("Ann/Joe Doe/profile.txt"));
  for (const char* name : {"(001) DLd", "(001) DLdd"}) {
    Ops().ImportVideos({abroad}, Into());
    EXPECT_TRUE(Ended().done);
    EXPECT_EQ(Read(std::string("Ann/Joe Doe/") + name + ".ved"), "1XXXSXXX");
  }
  EXPECT_EQ(ReadProfileValue("Profile", "Age", library.Path("Ann/Joe Doe/profile.prf")), "45");
  EXPECT_FALSE(Exists("Ann/Joe Doe/profile.txt")) << "the notes go with the profile that they belong to";
}

TEST_F(DatabaseTransfer, StudentsWithoutVideosGoWithTheirDatabase) {
  TempFolder drive;
  library.File("Ann/New Nell/profile.prf", "[Profile]\nName=New Nell\nAge=9\n");
  library.File("Ann/New Nell/profile.txt", "begins in May\r\n");
  library.host.answers = {true, true};
  Ops().ExportVideos(VideosOf(LibraryTree(library.settings), "Ann"), drive.Path(), Into());
  EXPECT_EQ(Ended().status,
            "2 File(s) exported successfully! 1 student without videos went along with profile and notes.");
  EXPECT_EQ(statuses.back(), "2 of 2 Videos Successfully exported.....Please wait...");
  EXPECT_EQ(drive.Get("Ann/New Nell/profile.txt"), "begins in May\r\n");
  EXPECT_EQ(ReadProfileValue("Profile", "Age", drive.Path("Ann/New Nell/profile.prf")), "9");
  EXPECT_TRUE(ListFiles(drive.Path("Ann/New Nell"), ".avi").empty());
}

TEST_F(DatabaseTransfer, APlainFolderComesToTheChosenStudentAndWhatIsNoVideoIsNamed) {
  TempFolder stick;
  stick.Put("good.avi", "");
  fs::copy_file(MakeTestVideo(MjpegVideo(4)), stick.Path("good.avi"), fs::copy_options::overwrite_existing);
  stick.Put("letter.avi", "no video");
  const auto loose = [&](const char* name) { return LibraryVideo{"General Folder", "", stick.Path(name)}; };
  Ops().ImportVideos({loose("good.avi"), loose("letter.avi")}, Into(), {"Bob", "Sue"});
  EXPECT_EQ(Ended().status, "2 File(s) Imported successfully!");
  EXPECT_EQ(Ended().instructor + "/" + Ended().student, "Bob/Sue");
  EXPECT_EQ(Ended().arrived, (std::vector<std::string>{"good", "letter"}));
  EXPECT_TRUE(Exists("Bob/Sue/letter.avi")) << "nothing that was chosen is left behind";
  EXPECT_TRUE(Told("cannot be opened") && Told("letter"));
  EXPECT_FALSE(Told("good"));

  Ops().ImportVideos({loose("good.avi")}, Into());
  EXPECT_EQ(Ended().instructor, "General Folder");
  EXPECT_TRUE(Exists("good.avi"));
  // What lies directly with an instructor would be in no list.
  Ops().ImportVideos({{"Range Day", "", stick.Path("good.avi")}}, Into(), {"Ann", "Joe Doe"});
  EXPECT_TRUE(Ended().done);
  EXPECT_TRUE(Exists("Ann/Joe Doe/good.avi"));
  EXPECT_FALSE(Exists("Range Day"));
  Ops().ImportVideos({loose("good.avi")}, Into(), {"Bob", "Gone"});
  EXPECT_FALSE(Ended().done);
  EXPECT_FALSE(Exists("Bob/Gone"));
}

TEST_F(DatabaseTransfer, TheLibraryIsNoDriveOfItsOwn) {
  library.host.answers = {true, true};
  fs::create_directory_symlink(library.Root(), library.Root() + " link");
  for (const std::string& own : {library.Root(), library.Path("Bob"), library.Root() + " link"}) {
    Ops().ExportVideos({DL()}, own, Into());
    EXPECT_EQ(Ended().status, "The folder " + own + " belongs to this library. Choose a drive or folder outside of it.");
  }
  Ops().ImportVideos({DL()}, Into());
  EXPECT_EQ(Ended().status, "The source and destination folders are the same. No videos were copied.");
  EXPECT_FALSE(Exists("Bob/Ann") || Exists("Ann/Joe Doe/(001) DLd.avi"));
}

TEST_F(DatabaseTransfer, WhatStandsInTheWayIsNamed) {
  TempFolder drive;
  drive.Put("Ann", "a file");
  library.host.answers = {true};
  Ops().ExportVideos({DL()}, drive.Path(), Into());
  EXPECT_EQ(Ended().status, "0 File(s) exported successfully!");
  EXPECT_EQ(Message(), "There is a file named \"Ann\" where a folder is needed.");
  library.File("Quick Launch", "a file");
  library.host.answers = {true};
  Ops().QuickLaunch(DL(), Into());
  EXPECT_EQ(Ended().status, "There is a file named \"Quick Launch\" where a folder is needed.");

  // A folder with the name of a video is none, and its name is taken all the same.
  TempFolder stick;
  const LibraryVideo capitals{"Ann", "Joe Doe", library.Path("Ann/Joe Doe/(002) FO.AVI")};
  fs::rename(FO().path, capitals.path);
  fs::create_directory(stick.Path("(002) FO.AVI"));
  Ops().CopyToDisk({capitals}, stick.Path(), Into());
  EXPECT_TRUE(Ended().done);
  EXPECT_EQ(stick.Get("(002) FOd.AVI"), "video 2");
}

TEST_F(DatabaseTransfer, AnExportCanBeStoppedAndKeepsWhatHasArrived) {
  TempFolder drive;
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

}  // namespace
}  // namespace kinalyx::test
