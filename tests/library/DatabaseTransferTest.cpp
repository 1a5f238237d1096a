#include "OperationsFixture.h"

#include "library/DiskSpace.h"
#include "platform/files/IniFile.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

struct DatabaseTransfer : OperationsFixture {
  /// The drive of the tests may be the system's, and then an export to it is asked about.
  OperationResult Export(const Videos& videos, const std::string& root) {
    library.host.answers = {true};
    return Run(&LibraryOperations::ExportVideos, videos, root);
  }
  std::optional<std::string> AgeIn(const std::string& profile) { return ReadProfileValue("Profile", "Age", profile); }

  TempFolder drive;
};

TEST_F(DatabaseTransfer, CopiesToADiskAndCounts) {
  const auto copy = [&](const Videos& videos, const std::string& folder) {
    return Run(&LibraryOperations::CopyToDisk, videos, folder).Status();
  };
  EXPECT_EQ(copy({DL(), FO()}, drive.Path()), "3 Files Copied Successfully.");
  EXPECT_EQ(heard->statuses.back(), "Copying Videos, Please Wait.....");
  EXPECT_EQ(drive.Get("(001) DL.avi"), "video 1");
  EXPECT_EQ(copy({DL()}, drive.Path("gone")), "Drive Error");
  EXPECT_EQ(copy({Video("Ann", "Joe Doe", "never")}, drive.Path()), "0 Files Copied Successfully.");
  EXPECT_EQ(Import({}).Status(), "No Videos Selected");

  // A folder with the name of a video is none, and its name is taken all the same.
  const LibraryVideo capitals{"Ann", "Joe Doe", library.Path("Ann/Joe Doe/(002) FO.AVI")};
  fs::rename(FO().path, capitals.path);
  fs::create_directory(drive.Path("(002) FO.AVI"));
  copy({capitals}, drive.Path());
  EXPECT_EQ(drive.Get("(002) FOd.AVI"), "video 2");
}

TEST_F(DatabaseTransfer, ADatabaseGoesOutAndComesBackAgainAndAgain) {
  library.File("loose.avi", "loose");
  EXPECT_EQ(Export({DL(), FO(), Video("General Folder", "", "loose")}, drive.Path()).Status(),
            "3 File(s) exported successfully!");
  EXPECT_EQ(heard->statuses.front(), "Exporting Videos, Please Wait.....");
  EXPECT_EQ(heard->statuses.back(), "3 of 3 Videos Successfully exported.....Please wait...");
  EXPECT_EQ(drive.Get("Ann/Joe Doe/(001) DL.ved"), "1XXXSXXX");
  EXPECT_EQ(drive.Get("Ann/Joe Doe/profile.txt"), "keeps his head down\r\n");
  EXPECT_EQ(drive.Get("loose.avi"), "loose");

  fs::remove_all(library.Path("Ann"));
  heard->statuses.clear();
  const auto abroad = [&](const char* name) {
    return LibraryVideo{"Ann", "Joe Doe", drive.Path("Ann/Joe Doe/") + name};
  };
  EXPECT_EQ(Import({abroad("(001) DL.avi"), abroad("(002) FO.avi")}).Status(), "2 File(s) Imported successfully!");
  EXPECT_EQ(heard->statuses.front(), "Importing Videos... Please Wait.....");
  EXPECT_EQ(heard->statuses.back(), "2 of 2 Videos Successfully Imported.");
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.ved"), "1XXXSXXX");
  const std::string profile = library.Path("Ann/Joe Doe/profile.prf");
  EXPECT_EQ(AgeIn(profile), "44");

  // What has been changed at home meanwhile stays, and so does each earlier copy.
  WritePrivateProfileString("Profile", "Age", "45", profile);
  fs::remove(library.Path("Ann/Joe Doe/profile.txt"));
  for (const char* name : {"(001) DLd", "(001) DLdd"}) {
    EXPECT_TRUE(Import({abroad("(001) DL.avi")}).Done());
    EXPECT_EQ(Read(std::string("Ann/Joe Doe/") + name + ".ved"), "1XXXSXXX");
  }
  EXPECT_EQ(AgeIn(profile), "45");
  EXPECT_FALSE(Exists("Ann/Joe Doe/profile.txt")) << "the notes go with the profile that they belong to";
}

TEST_F(DatabaseTransfer, StudentsWithoutVideosGoWithTheirDatabase) {
  library.File("Ann/New Nell/profile.prf", "[Profile]\nName=New Nell\nAge=9\n");
  library.File("Ann/New Nell/profile.txt", "begins in May\r\n");
  EXPECT_EQ(Export(VideosOf(LibraryTree(library.settings), "Ann"), drive.Path()).Status(),
            "2 File(s) exported successfully! 1 student without videos went along with profile and notes.");
  EXPECT_EQ(heard->statuses.back(), "2 of 2 Videos Successfully exported.....Please wait...");
  EXPECT_EQ(drive.Get("Ann/New Nell/profile.txt"), "begins in May\r\n");
  EXPECT_EQ(AgeIn(drive.Path("Ann/New Nell/profile.prf")), "9");
}

TEST_F(DatabaseTransfer, APlainFolderComesToTheChosenStudentAndWhatIsNoVideoIsNamed) {
  fs::copy_file(MakeTestVideo(MjpegVideo(4)), drive.Path("good.avi"));
  drive.Put("letter.avi", "no video");
  const auto loose = [&](const char* name) { return LibraryVideo{"General Folder", "", drive.Path(name)}; };
  const OperationResult both = Import({loose("good.avi"), loose("letter.avi")}, {"Bob", "Sue"});
  EXPECT_EQ(both.Status(), "2 File(s) Imported successfully!");
  EXPECT_EQ(both.instructor + "/" + both.student, "Bob/Sue");
  EXPECT_EQ(both.arrived, (std::vector<std::string>{"good", "letter"}));
  EXPECT_TRUE(Exists("Bob/Sue/letter.avi")) << "nothing that was chosen is left behind";
  EXPECT_TRUE(Told("cannot be opened") && Told("letter"));
  EXPECT_FALSE(Told("good"));

  EXPECT_EQ(Import({loose("good.avi")}).instructor, "General Folder");
  EXPECT_TRUE(Exists("good.avi"));
  // What lies directly with an instructor would be in no list.
  EXPECT_TRUE(Import({{"Range Day", "", drive.Path("good.avi")}}, {"Ann", "Joe Doe"}).Done());
  EXPECT_TRUE(Exists("Ann/Joe Doe/good.avi"));
  EXPECT_FALSE(Exists("Range Day"));
  EXPECT_FALSE(Import({loose("good.avi")}, {"Bob", "Gone"}).Done());
  EXPECT_FALSE(Exists("Bob/Gone"));
}

TEST_F(DatabaseTransfer, OneFileThatCannotBeReadKeepsNoOtherBack) {
  for (const char* name : {"a.avi", "c.avi"}) fs::copy_file(MakeTestVideo(MjpegVideo(4)), drive.Path(name));
  const auto loose = [&](const char* name) { return LibraryVideo{"Bob", "Sue", drive.Path(name)}; };
  const OperationResult result = Import({loose("gone.avi"), loose("a.avi"), loose("lost.avi"), loose("c.avi")});
  EXPECT_FALSE(result.Done());
  EXPECT_EQ(result.Status(), "2 File(s) Imported successfully!");
  EXPECT_EQ(result.arrived, (std::vector<std::string>{"a", "c"}));
  EXPECT_EQ(result.student, "Sue");
  EXPECT_TRUE(Exists("Bob/Sue/a.avi") && Exists("Bob/Sue/c.avi"));
  EXPECT_TRUE(Told("2 videos could not be taken") && Told("gone.avi") && Told("lost.avi"));
}

TEST_F(DatabaseTransfer, FilesAndFoldersOfATelephoneComeToOneStudent) {
  for (const char* folder : {"DCIM/100", "DCIM/.thumbnails"}) fs::create_directories(drive.Path(folder));
  drive.Put("DCIM/100/IMG_1.MOV", "portrait");
  drive.Put("DCIM/100/IMG_1.MOV.ved", "1XXXSXXX");
  drive.Put("DCIM/100/IMG_2.jpg", "a picture");
  drive.Put("DCIM/.thumbnails/IMG_1.mp4", "hidden");
  drive.Put("loose.mp4", "m");
  const auto add = [&](const std::vector<std::string>& paths, const ImportTarget& target) {
    return Run(&LibraryOperations::AddVideos, paths, target);
  };
  const std::string all = drive.Path("DCIM");
  EXPECT_FALSE(add({all}, {"Bob", ""}).Done());
  EXPECT_EQ(add({all, drive.Path("loose.mp4"), drive.Path("loose.mp4")}, {"Bob", "Sue"}).Status(),
            "2 File(s) Imported successfully!");
  EXPECT_EQ(Read("Bob/Sue/IMG_1.MOV.ved"), "1XXXSXXX");
  EXPECT_EQ(Read("Bob/Sue/loose.mp4"), "m");
  EXPECT_FALSE(Exists("Bob/Sue/IMG_2.jpg"));
  EXPECT_FALSE(add({library.Path("Bob/Sue")}, {"Bob", "Sue"}).Done()) << "they are here already";

  // A video of the same name in another format is another video.
  library.File("Bob/Sue/IMG_1.avi", "a");
  library.File("Bob/Sue/IMG_1.ved", "1XXXXNXX");
  const LibraryVideo movie{"Bob", "Sue", library.Path("Bob/Sue/IMG_1.MOV")};
  EXPECT_EQ(Ops().RenameVideo(movie, "Swing").video, "Swing \u00B7 MOV") << "Swing.avi is no MOV";
  EXPECT_EQ(Read("Bob/Sue/Swing.MOV.ved"), "1XXXSXXX");
  EXPECT_EQ(Read("Bob/Sue/IMG_1.ved"), "1XXXXNXX");
  EXPECT_TRUE(Ops().DeleteVideo({"Bob", "Sue", library.Path("Bob/Sue/Swing.MOV")}).Done());
  EXPECT_FALSE(Exists("Bob/Sue/Swing.MOV.ved"));
  EXPECT_TRUE(Exists("Bob/Sue/Swing.avi"));
}

TEST_F(DatabaseTransfer, TheLibraryIsNoDriveOfItsOwn) {
  fs::create_directory_symlink(library.Root(), library.Root() + " link");
  for (const std::string& own : {library.Root(), library.Path("Bob"), library.Root() + " link"}) {
    EXPECT_EQ(Export({DL()}, own).Status(),
              "The folder " + own + " belongs to this library. Choose a drive or folder outside of it.");
  }
  EXPECT_EQ(Import({DL()}).Status(), "The source and destination folders are the same. No videos were copied.");
  EXPECT_FALSE(Exists("Bob/Ann") || Exists("Ann/Joe Doe/(001) DLd.avi"));
}

TEST_F(DatabaseTransfer, AFileInTheWayOfAFolderIsNamed) {
  drive.Put("Ann", "a file");
  EXPECT_EQ(Export({DL()}, drive.Path()).Status(), "0 File(s) exported successfully!");
  EXPECT_EQ(Message(), "There is a file named \"Ann\" where a folder is needed.");
}

TEST_F(DatabaseTransfer, AnExportCanBeStoppedAndKeepsWhatHasArrived) {
  heard->onProgress = [this](const JobProgress& progress) {
    EXPECT_TRUE(Ops().Busy());
    EXPECT_NE(Ops().DeleteVideo(DL()).Status().find("still at work"), std::string::npos);
    if (progress.done == 2) Ops().Cancel();
  };
  EXPECT_EQ(Export(Videos(20, DL()), drive.Path()).Status(), "Export Cancelled");
  EXPECT_EQ(Message(), "Operation Cancelled");
  EXPECT_FALSE(Ops().Busy());
  EXPECT_EQ(ListFiles(drive.Path("Ann/Joe Doe"), ".avi").size(), 2u);
  for (const auto& entry : fs::directory_iterator(drive.Path("Ann/Joe Doe")))
    EXPECT_NE(entry.path().filename().string()[0], '.') << "nothing half done is left";
  EXPECT_EQ(library.host.titles.front() == "Export to C?", IsSystemDrive(drive.Path()));
}

}  // namespace
}  // namespace kinalyx::test
