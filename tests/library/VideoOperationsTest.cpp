#include "OperationsFixture.h"

#include <fstream>
#include <functional>

#include "platform/media/Films.h"
#include "platform/media/VideoFile.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

using VideoOperations = OperationsFixture;

TEST_F(VideoOperations, NothingHappensWithoutAChoiceOrToAVideoThatIsOpenInAnalysis) {
  const std::function<OperationResult(const LibraryVideo&)> operations[] = {
      [this](const LibraryVideo& video) { return Ops().RenameVideo(video, "x"); },
      [this](const LibraryVideo& video) { return Ops().DeleteVideo(video); },
      [this](const LibraryVideo& video) { return Run(&LibraryOperations::MoveVideo, video, "Bob", "Sue"); },
      [this](const LibraryVideo& video) { return Run(&LibraryOperations::CopyToDisk, Videos{video}, library.Root()); },
      [this](const LibraryVideo& video) { return Run(&LibraryOperations::Trim, video, 1, 2, 30); }};
  const std::string noVideo = "You must select a video first.";
  open = {DL().path};
  for (const auto& operation : operations) {
    EXPECT_EQ(operation({}).Status(), noVideo);
    EXPECT_EQ(operation(DL()).Status(),
              "This video is open in the Analysis section. You must close the video before you can continue.");
  }
  EXPECT_EQ(Ops().SendToAnalysis(LibraryVideo(), [](const std::string&) {}).Status(), noVideo);
  EXPECT_EQ(Run(&LibraryOperations::QuickLaunch, LibraryVideo()).Status(), noVideo);
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.avi"), "video 1");
  EXPECT_TRUE(Ops().RenameVideo(FO(), "x").Done());
}

TEST_F(VideoOperations, RenamesAVideoWithItsSidecar) {
  for (const char* bad : {"50%", ""})
    EXPECT_EQ(Ops().RenameVideo(DL(), bad).Status(), "Invalid character in student name.");
  EXPECT_EQ(Ops().RenameVideo(DL(), "(002) FO").Status(),
            "The video name you have chosen already exists, please try again.");
  // Drawings that lost their video must not turn up on another.
  library.File("Ann/Joe Doe/a.b.ved", "orphan");
  const OperationResult result = Ops().RenameVideo(DL(), " a.b ");
  EXPECT_EQ(result.Status(), "Video renamed successfully.");
  EXPECT_EQ(result.video, "a.b");
  EXPECT_EQ(Read("Ann/Joe Doe/a.b.avi"), "video 1");
  EXPECT_EQ(Read("Ann/Joe Doe/a.b.ved"), "1XXXSXXX");
  EXPECT_EQ(Read("Ann/Joe Doe/a.b.ved.old"), "orphan");
  EXPECT_FALSE(Exists("Ann/Joe Doe/(001) DL.ved"));
  // One without a sidecar goes alone and gains none.
  library.File("Ann/Joe Doe/free.ved", "orphan");
  EXPECT_TRUE(Ops().RenameVideo(FO(), "free").Done());
  EXPECT_FALSE(Exists("Ann/Joe Doe/free.ved"));
  // Where the orphan cannot be moved out of the way, the video stays.
  library.File("Ann/Joe Doe/next.ved", "orphan");
  FailingDisk failing(0);
  Use(failing);
  EXPECT_FALSE(Ops().RenameVideo(Video("Ann", "Joe Doe", "free"), "next").Done());
  EXPECT_TRUE(failing.Failed());
  EXPECT_FALSE(Exists("Ann/Joe Doe/next.avi"));

  EXPECT_TRUE(Ops().RenameVideo(Video("Ann", "Joe Doe", "gone"), "x").refill);
  EXPECT_TRUE(Told("It is not there any more"));
}

TEST_F(VideoOperations, ASidecarThatTwoVideosShareIsLeftToTheOther) {
  LibraryVideo capitals = DL();
  capitals.path = library.File("Ann/Joe Doe/(001) DL.AVI", "video in capitals");
  EXPECT_TRUE(Run(&LibraryOperations::MoveVideo, capitals, "Bob", "Sue").Done());
  EXPECT_EQ(Read("Bob/Sue/(001) DL.AVI"), "video in capitals");
  EXPECT_EQ(Read("Bob/Sue/(001) DL.ved"), "1XXXSXXX");
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.ved"), "1XXXSXXX");
  library.File("Ann/Joe Doe/(001) DL.AVI", "again");
  EXPECT_TRUE(Ops().RenameVideo(capitals, "again").Done());
  EXPECT_EQ(Read("Ann/Joe Doe/again.ved") + Read("Ann/Joe Doe/(001) DL.ved"), "1XXXSXXX1XXXSXXX");
  library.File("Ann/Joe Doe/(001) DL.AVI", "and again");
  EXPECT_EQ(Ops().DeleteVideo(capitals).Status(), "Video Successfully Deleted!");
  EXPECT_TRUE(Exists("Ann/Joe Doe/(001) DL.ved"));
  EXPECT_TRUE(Ops().DeleteVideo(DL()).Done());
  EXPECT_FALSE(Exists("Ann/Joe Doe/(001) DL.avi") || Exists("Ann/Joe Doe/(001) DL.ved"));
}

TEST_F(VideoOperations, MovesAVideo) {
  const auto move = [&](const char* instructor, const char* student) {
    return Run(&LibraryOperations::MoveVideo, DL(), instructor, student).Status();
  };
  EXPECT_EQ(move("Bob", ""), "You must select a Database and student for the video.");
  const std::string same = "The source and destination folders are the same. The video was not moved.";
  EXPECT_EQ(move("Ann", "Joe Doe"), same);
  fs::create_directory_symlink(library.Path("Ann/Joe Doe"), library.Path("Bob/Link"));
  EXPECT_EQ(move("Bob", "Link"), same);
  library.File("Bob/Sue/(001) DL.AVI", "Sue's own");
  EXPECT_EQ(move("Bob", "Sue"),
            "A video with the name \"(001) DL\" already exists in the folder named Sue. Please rename the video and "
            "try again.");
  move("Bob", "Nobody");
  EXPECT_TRUE(Told("cannot be found"));
  EXPECT_FALSE(Exists("Bob/Nobody"));

  library.Folder("Bob/Tim");
  EXPECT_TRUE(analysis.moved.empty());
  EXPECT_EQ(move("Bob", "Tim"), "Selected video successfully moved.");
  EXPECT_EQ(analysis.moved.at(0),
            std::pair(library.Path("Ann/Joe Doe/(001) DL.avi"), library.Path("Bob/Tim/(001) DL.avi")));
  EXPECT_EQ(Read("Bob/Tim/(001) DL.avi"), "video 1");
  EXPECT_EQ(Read("Bob/Tim/(001) DL.ved"), "1XXXSXXX");
  EXPECT_FALSE(Exists("Ann/Joe Doe/(001) DL.avi") || Exists("Ann/Joe Doe/(001) DL.ved"));
}

TEST_F(VideoOperations, QuickLaunchTakesCopiesAndGivesThemUp) {
  const auto quickLaunch = [&](const LibraryVideo& video, bool answer) {
    library.host.answers = {answer};
    return Run(&LibraryOperations::QuickLaunch, video).Status();
  };
  EXPECT_EQ(quickLaunch(DL(), false), "");
  EXPECT_FALSE(Exists("Quick Launch"));
  EXPECT_EQ(quickLaunch(DL(), true), "The current video was copied to the Quick Launch folder.");
  EXPECT_EQ(library.host.titles.back(), "Copy video to Quick Launch Folder");
  EXPECT_EQ(Read("Quick Launch/(001) DL.ved"), "1XXXSXXX");
  EXPECT_TRUE(Exists("Ann/Joe Doe/(001) DL.avi"));
  EXPECT_EQ(
      quickLaunch(DL(), true),
      "There is already a video with the same name in the Quick Launch folder. The copy process will be cancelled.");

  const LibraryVideo there = Video("Quick Launch", "", "(001) DL");
  EXPECT_EQ(quickLaunch(there, false), "");
  EXPECT_EQ(library.host.questions.back(),
            "Are you sure that you want to delete the current video from the Quick Launch folder?");
  EXPECT_TRUE(Exists("Quick Launch/(001) DL.avi"));
  EXPECT_EQ(quickLaunch(there, true), "The current video was removed from the Quick Launch folder.");
  EXPECT_TRUE(fs::is_empty(library.Path("Quick Launch")));
}

TEST_F(VideoOperations, TrimsByTheSmallProgram) {
  fs::create_directories(library.settings.AppPath);
  const auto program = [&](const std::string& script) {
    const std::string path = library.settings.AppPath + "/avitrim";
    std::ofstream(path) << "#!/bin/sh\n" << script;
    fs::permissions(path, fs::perms::owner_all);
  };
  const auto trim = [&](int first, int last) { return Run(&LibraryOperations::Trim, DL(), first, last, 25).Status(); };
  EXPECT_EQ(trim(8, 4),
            "Your TRIM Start and End times are not correct. Please check your Start and End times and try again.");
  EXPECT_EQ(trim(1, 4), "Last Video WAS NOT SAVED");  // there is no program
  EXPECT_EQ(Message().substr(0, 39), "There was a problem saving this video.\n");

  program("echo 50\nprintf '%s' \"$1\" > \"$(dirname \"$0\")/asked\"\necho 100\n");
  double part = 0;
  heard->onProgress = [&](const JobProgress& progress) { part = progress.part; };
  EXPECT_EQ(trim(3, 17), "Last Video Saved Successfully");
  EXPECT_EQ(heard->statuses.back(), "Saving Video.... Please Wait.");
  EXPECT_EQ(part, 1);
  EXPECT_EQ(TempLibrary::Read(library.settings.AppPath + "/asked"), DL().path + "*" + DL().path + "*3*17*25*0*");
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.ved"), "1XXXSXXX");

  program("echo 'disk full' >&2\nexit 1\n");
  EXPECT_EQ(trim(3, 17), "Last Video WAS NOT SAVED");
  EXPECT_TRUE(Told("Disk full."));

  program("trap 'exit 3' TERM\necho 10\nwhile :; do sleep 0.01; done\n");
  heard->onProgress = [&](const JobProgress& progress) {
    if (progress.part > 0) Ops().Cancel();
  };
  EXPECT_EQ(trim(3, 17), "Operation Cancelled");
}

TEST_F(VideoOperations, TrimsAFilmInItsOwnContainerAndLeavesItsSidecar) {
  const std::string film = library.File("Ann/Joe Doe/swing.mp4");
  MakeFilm({"swing.mp4", "mpeg4", 50, 12}, film);
  if (HasFatalFailure() || IsSkipped()) return;
  library.File("Ann/Joe Doe/swing.mp4.ved", "1XXXSXXX");
  fs::create_directories(library.settings.AppPath);
  fs::create_symlink(KINALYX_AVITRIM, library.settings.AppPath + "/avitrim");
  const OperationResult trimmed = Run(&LibraryOperations::Trim, LibraryVideo{"Ann", "Joe Doe", film}, 15, 34, 25);
  EXPECT_EQ(trimmed.Status(), "Last Video Saved Successfully") << Message();
  const auto cut = VideoFile::Open(film);
  ASSERT_TRUE(cut) << cut.Why();
  ASSERT_EQ((*cut)->Info().frameCount, 20);
  EXPECT_EQ((*cut)->Info().compressor, "mp4v");
  for (const int n : {0, 7, 19}) EXPECT_EQ(ReadNumber((*cut)->Frame(n, 24)), 15 + n);
  EXPECT_EQ(Read("Ann/Joe Doe/swing.mp4.ved"), "1XXXSXXX");
  // A film that is none is told, and stays.
  library.File("Ann/Joe Doe/swing.mp4", "no film");
  EXPECT_EQ(Run(&LibraryOperations::Trim, LibraryVideo{"Ann", "Joe Doe", film}, 15, 34, 25).Status(),
            "Last Video WAS NOT SAVED");
  EXPECT_EQ(Read("Ann/Joe Doe/swing.mp4"), "no film");
}

}  // namespace
}  // namespace kinalyx::test
