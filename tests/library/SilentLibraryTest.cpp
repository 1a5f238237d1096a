#include <gtest/gtest.h>

#include "LibraryFakes.h"
#include "TempLibrary.h"
#include "library/LibraryBrowser.h"
#include "library/LibraryOperations.h"

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
  FakeAnalysis analysis;
  LibraryOperations operations{host, library.settings, analysis, {JobRunner::On::HostTimer}};
  const LibraryVideo video{"Demo", "Tom", library.Path("Demo/Tom/one.avi")};
  const std::shared_ptr<HeardOperation> heard = std::make_shared<HeardOperation>();
};

TEST_F(SilentOperationsTest, EveryChangeIsRefusedInWords) {
  std::optional<OperationResult>& last = heard->ended;
  const std::function<OperationResult()> changes[] = {
      [&] { return operations.AddInstructor("New"); },
      [&] { return operations.RenameInstructor("Else", "New"); },
      [&] { return operations.DeleteInstructor("Else"); },
      [&] { return operations.RenameStudent("Demo", "Tom", "Jim"); },
      [&] { return operations.MoveStudent("Demo", "Tom", "Else", heard), last.value(); },
      [&] { return operations.DeleteStudent("Demo", "Tom", heard), last.value(); },
      [&] { return operations.SendToAnalysis(video, [](const std::string&) {}); },
      [&] { return operations.RenameVideo(video, "new"); },
      [&] { return operations.DeleteVideo(video); },
      [&] { return operations.QuickLaunch(video, heard), last.value(); },
      [&] { return operations.Trim(video, 0, 1, 30, heard), last.value(); },
      [&] { return operations.ImportVideos({video}, heard), last.value(); }};
  const auto expectRefusals = [&] {
    for (const auto& change : changes) {
      last.reset();
      const OperationResult result = change();
      EXPECT_FALSE(result.Done());
      EXPECT_TRUE(result.Status().ends_with("Nothing was changed.")) << result.Status();
    }
    EXPECT_TRUE(host.questions.empty());
    EXPECT_TRUE(analysis.sent.empty());
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
  EXPECT_TRUE(operations.RenameVideo(video, "new").Done());
}

TEST_F(SilentOperationsTest, ADriveThatTakesNoCopiesIsNamed) {
  const TempFolder disk;
  host.drivesHang = true;
  operations.ExportVideos({video}, disk.Path(), heard);
  ASSERT_TRUE(heard->ended);
  EXPECT_NE(heard->ended->Status().find(disk.Path()), std::string::npos) << heard->ended->Status();
  EXPECT_FALSE(operations.Busy());
  host.DrivesAnswer();
  EXPECT_TRUE(std::filesystem::is_empty(disk.Path()));
}

}  // namespace
}  // namespace kinalyx::test
