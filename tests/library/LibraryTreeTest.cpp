#include "library/LibraryTree.h"

#include "library/LibraryBrowser.h"
#include "library/Sidecar.h"
#include "library/TodayText.h"
#include "library/VideoNames.h"
#include "library/VideoStats.h"
#include "platform/files/Folders.h"
#include "support/TempFolder.h"
#include "library/TempLibrary.h"

namespace kinalyx {
namespace {

using test::TempLibrary;
using Names = std::vector<std::string>;

TEST(IsValidName, TakesWhatAFolderOnEveryMachineCanHave) {
  for (const char* name : {"Smith, Jr.", "a.b", "Müller-Lüdenscheid", "(001) DTL driver", "x_1 2", "   "})
    EXPECT_TRUE(IsValidName(name)) << name;
  for (const char* name : {"", "O'Brien", "A&B", "50%", "../x", "a\tb", ".hidden", "..", "a\\b", "a:b", "a?", "a*"})
    EXPECT_FALSE(IsValidName(name)) << name;
}

struct LibraryBrowserTest : ::testing::Test {
  TempLibrary library;
  LastStudentInfo remembered;
  LibraryBrowser browser{library.host.Drives(), library.settings, remembered, LibraryBrowser::Kind::Profiles};
};

TEST_F(LibraryBrowserTest, ShowsEveryVideoUnderItsOwnFolderOnly) {
  for (const char* name :
       {"loose.avi", "notes.txt", "Demo/stray.avi", "Demo/Sample, Erica/a.b.avi", "Demo/Sample, Erica/(10) FO.AVI",
        "Demo/Sample, Erica/(9) FO.avi", "Demo/Sample, Erica/(9) FO.ved", "Quick Launch/fast.avi"})
    library.File(name);
  browser.CapfolderSetup();
  EXPECT_EQ(browser.InstructorList(), (Names{"General Folder", "Demo", "Quick Launch"}));
  EXPECT_TRUE(browser.IsGeneralFolder());
  EXPECT_TRUE(browser.StudentList().empty());
  EXPECT_EQ(browser.VideoList(), Names{"loose"});
  EXPECT_EQ(browser.VideoPath(), library.Path("loose.avi"));

  browser.ChooseInstructor(1);
  EXPECT_EQ(browser.StudentList(), Names{"Sample, Erica"});
  EXPECT_FALSE(browser.HasStudent());
  EXPECT_TRUE(browser.VideoList().empty());
  EXPECT_TRUE(browser.SelectStudent("Sample, Erica"));
  EXPECT_EQ(browser.VideoList(), (Names{"(9) FO", "(10) FO", "a.b"}));
  EXPECT_EQ(browser.VideoIndex(), 0);
  EXPECT_TRUE(browser.SelectVideo("(10) FO"));
  EXPECT_EQ(browser.VideoPath(), library.Path("Demo/Sample, Erica/(10) FO.AVI"));

  browser.ChooseInstructor(2);
  EXPECT_EQ(browser.VideoPath(), library.Path("Quick Launch/fast.avi"));
  browser.ChooseInstructor(99);
  EXPECT_EQ(browser.VideoPath(), "");
  EXPECT_TRUE(browser.VideoList().empty());
}

TEST_F(LibraryBrowserTest, ListsVideosOfEveryKindWithTheMarkOfTheirFormat) {
  for (const char* name : {"Demo/Tom/swing.avi", "Demo/Tom/swing.mp4", "Demo/Tom/Żółw.MOV", "Demo/Tom/a.b.m2ts",
                           "Demo/Tom/swing.mp4.ved", "Demo/Tom/.hidden.mp4", "Demo/Tom/letter.doc", "Demo/Tom/mp4"})
    library.File(name);
  browser.CapfolderSetup();
  browser.ChooseInstructor(1);
  ASSERT_TRUE(browser.SelectStudent("Tom"));
  EXPECT_EQ(browser.VideoList(), (Names{"a.b \u00B7 M2TS", "swing", "swing \u00B7 MP4", "Żółw \u00B7 MOV"}));
  ASSERT_TRUE(browser.SelectVideo("swing \u00B7 MP4"));
  EXPECT_EQ(browser.VideoPath(), library.Path("Demo/Tom/swing.mp4"));
  EXPECT_EQ(SidecarPath(library.Path("Demo/Tom/swing.avi")), library.Path("Demo/Tom/swing.ved"));
  EXPECT_EQ(SidecarPath(library.Path("Demo/Tom/swing.mp4")), library.Path("Demo/Tom/swing.mp4.ved"));
  EXPECT_EQ(SidecarPath(library.Path("Demo/Tom/a.b.m2ts")), library.Path("Demo/Tom/a.b.m2ts.ved"));
}

// As file managers hand them over, which know drawings as files of the program's own.
TEST(VideosAmong, TakesDrawingsAndStudiesForTheirVideo) {
  const test::TempFolder folder;
  for (const char* file : {"Żaba.AVI", "Żaba.ved", "Żaba.study", "b.mp4", "b.mp4.ved", "gone.ved", "b.ved"})
    folder.Put(file, "");
  const auto among = [&](std::vector<std::string> files) {
    for (std::string& file : files) file = folder.Path(file);
    std::vector<std::string> videos = VideosAmong(files);
    for (std::string& video : videos) video = LastName(video);
    return videos;
  };
  EXPECT_EQ(among({"b.mp4.ved", "Żaba.study", "Żaba.ved", "Żaba.AVI"}), (Names{"b.mp4", "Żaba.AVI"}));
  EXPECT_EQ(among({"gone.ved", "b.ved", "nowhere.ved"}), Names{});
}

TEST_F(LibraryBrowserTest, OneListRestoresWhatAnotherChose) {
  library.File("Demo/Tom/one.avi");
  library.Folder("Demo/Model Swings");
  library.Folder("Demo/Professionals");
  LibraryBrowser open(library.host.Drives(), library.settings, remembered, LibraryBrowser::Kind::OpenVideo);
  browser.CapfolderSetup();
  browser.SelectInstructor("Demo");
  browser.SelectStudent("Tom");
  EXPECT_EQ(remembered, (LastStudentInfo{"Demo", "Tom", library.Path("Demo/Tom")}));

  open.CapfolderSetup();
  EXPECT_EQ(open.Student(), "Tom");
  EXPECT_EQ(open.Video(), "one");
  // Who looks at model swings in passing comes back to the student.
  for (const char* passing : {"Professionals", "Model Swings"}) {
    EXPECT_TRUE(open.SelectStudent(passing));
    EXPECT_EQ(remembered[1], "Tom") << passing;
  }
  browser.SelectStudent("Professionals");
  EXPECT_EQ(remembered[1], "Tom");
  browser.SelectStudent("Model Swings");
  EXPECT_EQ(remembered[1], "Model Swings");

  browser.SelectInstructor("General Folder");
  EXPECT_EQ(remembered[0] + remembered[1], "");
  open.CapfolderSetup();
  EXPECT_TRUE(open.IsGeneralFolder());
}

TEST_F(LibraryBrowserTest, KeepsItsPlaceWhenTheFoldersChange) {
  library.File("Demo/Tom/one.avi");
  library.File("Demo/Tom/two.avi");
  browser.CapfolderSetup();
  browser.SelectInstructor("Demo");
  browser.SelectStudent("Tom");
  browser.SelectVideo("two");

  library.File("Anna/Bob/x.avi");
  library.File("Demo/Tom/new.avi");
  browser.Refresh();
  EXPECT_EQ(browser.InstructorIndex(), 2);
  EXPECT_EQ(browser.Video(), "two");

  std::filesystem::remove(library.Path("Demo/Tom/two.avi"));
  browser.Refresh();
  EXPECT_EQ(browser.Video(), "new");
  std::filesystem::remove_all(library.Path("Demo/Tom"));
  browser.Refresh();
  EXPECT_EQ(browser.Instructor(), "Demo");
  EXPECT_FALSE(browser.HasStudent());
  std::filesystem::remove_all(library.Path("Demo"));
  browser.CapfolderSetup();
  EXPECT_TRUE(browser.IsGeneralFolder());

  // An instructor can be held while a student is added to it.
  browser.SelectInstructor("Anna");
  browser.CapfolderSetup(true);
  EXPECT_EQ(browser.Instructor(), "Anna");
}

TEST(ShortGame, OpensTheFilesOfAFamilyThatAreThere) {
  TempLibrary library;
  for (const char* name : {"Distance Wedge Day 1", "Distance Wedge Day 3", "Putting Down The Line", "Chip"})
    library.File(std::string("D/S/") + name + ".avi");
  const std::string folder = library.Path("D/S");
  EXPECT_EQ(ShortGameFamily(folder, "Distance Wedge Day 3"),
            (Names{folder + "/Distance Wedge Day 1.avi", folder + "/Distance Wedge Day 3.avi"}));
  EXPECT_EQ(ShortGameFamily(folder, "Putting Face On"), Names{folder + "/Putting Down The Line.avi"});
  EXPECT_TRUE(ShortGameFamily(folder, "Chip").empty());
  EXPECT_TRUE(ShortGameFamily(folder, "FO driver").empty());
}

TEST(TodayText, IsAlwaysMonthFirst) {
  using namespace std::chrono;
  const year_month_day day = year(2025) / 3 / 9;
  EXPECT_EQ(DateText(day, "%m/%d/%Y"), "03/09/2025");
  EXPECT_EQ(DateText(day, "%m/%d/%y"), "03/09/25");
  EXPECT_EQ(DateText(day, "%d.%m.%Y"), "03/09/25");
}

TEST(VideoStats, ReadsLikeASentence) {
  VideoInfo video;
  video.compressor = "dvsd";
  video.width = 720;
  video.height = 480;
  video.rate = 30000;
  video.scale = 1001;
  video.frameCount = 90;
  video.durationMs = 3003;
  video.fileBytes = 11'534'336;
  EXPECT_EQ(StatsOf(video, 24),
            (VideoStats{"dvsd", "720", "480", "29.97 FPS", "90 Frames", "3 Seconds", "11.0 MB", "24 BPP", "No sound"}));
  EXPECT_EQ(StatsOf({}, 0)[3], "0 FPS");
}

TEST(VideoStats, FileSizesTakeTheUnitThatReadsBest) {
  const std::pair<std::int64_t, const char*> sizes[] = {{-1, "0 bytes"},
                                                        {1023, "1023 bytes"},
                                                        {1024, "1.00 KB"},
                                                        {10'239, "10.0 KB"},
                                                        {1'048'575, "1.00 MB"},
                                                        {1'500'000'000, "1.40 GB"},
                                                        {std::int64_t(1) << 52, "4096.0 TB"}};
  for (const auto& [bytes, text] : sizes) EXPECT_EQ(FormatFileSize(bytes), text);
}

}  // namespace
}  // namespace kinalyx
