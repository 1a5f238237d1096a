#include <gtest/gtest.h>

#include "TempLibrary.h"
#include "library/LibraryBrowser.h"
#include "library/LibraryOperations.h"
#include "library/NotesKeeper.h"

namespace kinalyx::test {
namespace {

/// A library on a drive that hangs when the test wants it to.
struct SilentLibraryTest : ::testing::Test {
  SilentLibraryTest() {
    library.File("Demo/Tom/one.avi", "video");
    library.File("Demo/Ann/two.avi", "video");
    library.Folder("Else");
  }

  TempLibrary library;
  TestHost& host = library.host;
  LastStudentInfo remembered{"Demo", "Tom", ""};
  LibraryBrowser browser{host.Drives(), library.settings, remembered, LibraryBrowser::Kind::Profiles};
};

TEST_F(SilentLibraryTest, WhoHadChosenOtherwiseComesBackToThat) {
  browser.CapfolderSetup();
  host.drivesHang = true;
  browser.SelectInstructor("Else");
  EXPECT_TRUE(browser.Silent());
  host.DrivesAnswer();
  browser.TryAgain();
  EXPECT_EQ(browser.Instructor(), "Else");

  browser.SelectInstructor("Demo");
  host.drivesHang = true;
  browser.SelectStudent("Ann");
  EXPECT_TRUE(browser.VideoList().empty());
  host.DrivesAnswer();
  browser.TryAgain();
  EXPECT_EQ(browser.Video(), "two");
}

struct SilentOperationsTest : SilentLibraryTest {
  std::vector<std::string> sent;
  LibraryOperations operations{host, library.settings,
                               {[](const std::string&) { return false; },
                                [this](const std::string& path, const auto&) {
                                  sent.push_back(path);
                                  return 1;
                                }},
                               {JobRunner::On::HostTimer}};
  const LibraryVideo video{"Demo", "Tom", library.Path("Demo/Tom/one.avi")};
  OperationResult last;
  const LibraryOperations::Done into = [this](const OperationResult& result) { last = result; };
};

TEST_F(SilentOperationsTest, EveryChangeIsRefusedInWords) {
  const std::function<OperationResult()> changes[] = {
      [&] { return operations.AddInstructor("New"); },
      [&] { return operations.RenameInstructor("Else", "New"); },
      [&] { return operations.DeleteInstructor("Else"); },
      [&] { return operations.RenameStudent("Demo", "Tom", "Jim"); },
      [&] { return operations.MoveStudent("Demo", "Tom", "Else", into), last; },
      [&] { return operations.DeleteStudent("Demo", "Tom", into), last; },
      [&] { return operations.SendToAnalysis(video); },
      [&] { return operations.RenameVideo(video, "new"); },
      [&] { return operations.DeleteVideo(video); },
      [&] { return operations.QuickLaunch(video, into), last; },
      [&] { return operations.Trim(video, 0, 1, 30, into), last; },
      [&] { return operations.ImportVideos({video}, into), last; }};
  const auto expectRefusals = [&] {
    for (const auto& change : changes) {
      last = {};
      const OperationResult result = change();
      EXPECT_FALSE(result.done);
      EXPECT_TRUE(result.status.ends_with("Nothing was changed.")) << result.status;
    }
    EXPECT_TRUE(host.questions.empty());
    EXPECT_TRUE(sent.empty());
  };
  host.drivesHang = true;
  expectRefusals();
  EXPECT_EQ(host.waits.size(), 1u);
  host.DrivesAnswer();
  EXPECT_EQ(TempLibrary::Read(video.path), "video") << "what was given up changes nothing when the drive comes back";

  // The drive answers, and the library of the user's choice is not there: it is not begun anew.
  library.settings.UseNetwork = true;
  std::filesystem::rename(library.Root(), library.Root() + " away");
  expectRefusals();
  EXPECT_FALSE(std::filesystem::exists(library.Root()));
  std::filesystem::rename(library.Root() + " away", library.Root());
  EXPECT_TRUE(operations.RenameVideo(video, "new").done);
}

TEST_F(SilentOperationsTest, ADriveThatTakesNoCopiesIsNamed) {
  const TempFolder disk;
  host.drivesHang = true;
  operations.ExportVideos({video}, disk.Path(), into);
  EXPECT_NE(last.status.find(disk.Path()), std::string::npos) << last.status;
  EXPECT_FALSE(operations.Busy());
  host.DrivesAnswer();
  EXPECT_TRUE(std::filesystem::is_empty(disk.Path()));
}

TEST_F(SilentLibraryTest, NotesWaitUntilTheDriveAnswers) {
  const std::string tom = library.Path("Demo/Tom");
  library.File("Demo/Tom/profile.txt", "old\r\n");
  NotesKeeper notes([&](const std::string& folder) { return host.Drives().Answers(library.Root(), folder); });
  EXPECT_EQ(notes.Open(tom), "old\r\n");
  host.drivesHang = true;
  std::string error;
  EXPECT_TRUE(notes.Keep("old\n", &error)) << "what has not changed asks nothing of the drive";
  EXPECT_FALSE(notes.Keep("new\n", &error));
  EXPECT_EQ(error, "the drive is not answering");
  notes.Open(library.Path("Demo/Ann"));
  EXPECT_FALSE(notes.Readable()) << "nothing is typed over notes that nobody has seen";

  host.DrivesAnswer();
  EXPECT_EQ(notes.Open(tom), "new\r\n");
  EXPECT_TRUE(notes.Keep("new\n", &error));
  EXPECT_EQ(TempLibrary::Read(tom + "/profile.txt"), "new\r\n");
}

}  // namespace
}  // namespace kinalyx::test
