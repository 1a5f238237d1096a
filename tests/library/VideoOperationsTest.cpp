#include "OperationsFixture.h"

#include <fstream>

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

using VideoOperations = OperationsFixture;

TEST_F(VideoOperations, NothingHappensWithoutAChoice) {
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
}

TEST_F(VideoOperations, OneThatIsOpenInAnalysisStaysWhereItIs) {
  const std::string refusal =
      "This video is open in the Analysis section. You must close the video before you can continue.";
  open = {DL().path};
  EXPECT_EQ(Ops().RenameVideo(DL(), "x").status, refusal);
  EXPECT_EQ(Ops().DeleteVideo(DL()).status, refusal);
  for (int operation = 0; operation < 3; ++operation) {
    if (operation == 0) Ops().MoveVideo(DL(), "Bob", "Sue", Into());
    if (operation == 1) Ops().CopyToDisk({DL()}, library.Root(), Into());
    if (operation == 2) Ops().Trim(DL(), 1, 2, 30, Into());
    EXPECT_EQ(Ended().status, refusal);
  }
  EXPECT_EQ(Read("Ann/Joe Doe/(001) DL.avi"), "video 1");
  EXPECT_TRUE(Ops().RenameVideo(FO(), "x").done);
}

TEST_F(VideoOperations, SendsAVideoToAnalysis) {
  EXPECT_TRUE(Ops().SendToAnalysis(DL()).done);
  EXPECT_EQ(statuses.back(), "Current video was sent to Analysis.");
  slotsFree = 0;
  const OperationResult full = Ops().SendToAnalysis(DL());
  EXPECT_FALSE(full.done);
  EXPECT_EQ(full.status, "All 8 windows already have videos in them. Send to analysis failed.");
}

TEST_F(VideoOperations, RenamesAVideoWithItsSidecar) {
  EXPECT_EQ(Ops().RenameVideo(DL(), "50%").status, "Invalid character in student name.");
  EXPECT_EQ(Ops().RenameVideo(DL(), "").status, "Invalid character in student name.");
  EXPECT_EQ(Ops().RenameVideo(DL(), "(002) FO").status,
            "The video name you have chosen already exists, please try again.");
  // Drawings that lost their video must not turn up on another.
  library.File("Ann/Joe Doe/a.b.ved", "orphan");
  const OperationResult result = Ops().RenameVideo(DL(), " a.b ");
  EXPECT_EQ(result.status, "Video renamed successfully.");
  EXPECT_EQ(result.video, "a.b");
  EXPECT_EQ(Read("Ann/Joe Doe/a.b.avi"), "video 1");
  EXPECT_EQ(Read("Ann/Joe Doe/a.b.ved"), "1XXXSXXX");
  EXPECT_EQ(Read("Ann/Joe Doe/a.b.ved.old"), "orphan");
  EXPECT_FALSE(Exists("Ann/Joe Doe/(001) DL.ved"));
  // One without a sidecar goes alone and gains none.
  library.File("Ann/Joe Doe/free.ved", "orphan");
  EXPECT_TRUE(Ops().RenameVideo(FO(), "free").done);
  EXPECT_FALSE(Exists("Ann/Joe Doe/free.ved"));
  // Where the orphan cannot be moved out of the way, the video stays.
  library.File("Ann/Joe Doe/next.ved", "orphan");
  FailingDisk failing(0);
  Use(failing);
  EXPECT_FALSE(Ops().RenameVideo(Video("Ann", "Joe Doe", "free"), "next").done);
  EXPECT_TRUE(failing.Failed());
  EXPECT_FALSE(Exists("Ann/Joe Doe/next.avi"));

  fs::remove(library.Path("Ann/Joe Doe/free.avi"));
  EXPECT_TRUE(Ops().RenameVideo(Video("Ann", "Joe Doe", "free"), "x").refill);
  EXPECT_TRUE(Told("It is not there any more"));
}

TEST_F(VideoOperations, ASidecarThatTwoVideosShareIsLeftToTheOther) {
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

TEST_F(VideoOperations, DeletesAVideoAndItsSidecar) {
  EXPECT_EQ(Ops().DeleteVideo(DL()).status, "Video Successfully Deleted!");
  EXPECT_FALSE(Exists("Ann/Joe Doe/(001) DL.avi"));
  EXPECT_FALSE(Exists("Ann/Joe Doe/(001) DL.ved"));
  EXPECT_TRUE(Ops().DeleteVideo(FO()).done);
}

TEST_F(VideoOperations, MovesAVideo) {
  Ops().MoveVideo(DL(), "Bob", "", Into());
  EXPECT_EQ(Ended().status, "You must select a Database and student for the video.");
  Ops().MoveVideo(DL(), "Ann", "Joe Doe", Into());
  const std::string same = "The source and destination folders are the same. The video was not moved.";
  EXPECT_EQ(Ended().status, same);
  fs::create_directory_symlink(library.Path("Ann/Joe Doe"), library.Path("Bob/Link"));
  Ops().MoveVideo(DL(), "Bob", "Link", Into());
  EXPECT_EQ(Ended().status, same);
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

TEST_F(VideoOperations, QuickLaunchTakesCopiesAndGivesThemUp) {
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

TEST_F(VideoOperations, TrimsByTheSmallProgram) {
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

}  // namespace
}  // namespace kinalyx::test
