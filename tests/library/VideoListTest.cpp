// What a list of videos shows besides their names, and how it is sorted.

#include <chrono>
#include <fstream>
#include <thread>

#include "TempLibrary.h"
#include "library/GlanceReader.h"
#include "library/LibraryBrowser.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

class VideoListTest : public ::testing::Test, private IGlanceEvents {
 protected:
  /// A video of this age in hours.
  std::string Add(const std::string& name, int hours, const std::string& bytes = "no video") {
    const std::string path = library.File("Demo/Tom/" + name, bytes);
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(hours));
    return path;
  }
  std::string AddVideo(const std::string& name, int frames) {
    const std::string path = Add(name, 1);
    fs::copy_file(MakeTestVideo(MjpegVideo(frames)), path, fs::copy_options::overwrite_existing);
    return path;
  }
  /// Lets the worker run to its end.
  void Wait() {
    for (int turn = 0; !all && turn < 2000; ++turn) {
      library.host.Advance(50);
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    ASSERT_TRUE(all);
    all = false;
  }
  void FactsCame(const std::vector<std::string>& paths) override {
    came.insert(came.end(), paths.begin(), paths.end());
  }
  void AllFactsCame() override { all = true; }

  TempLibrary library;
  LastStudentInfo remembered{"Demo", "Tom", ""};
  LibraryBrowser browser{library.host.Drives(), library.settings, remembered, LibraryBrowser::Kind::Profiles};
  GlanceStore store{library.Data("glances"), 20};
  GlanceReader reader{library.host, DriveWatch::SendWorker, *this, store};
  std::vector<std::string> came;
  bool all = false;
};

using Names = std::vector<std::string>;

TEST_F(VideoListTest, IsSortedByNameDateOrSizeEitherWay) {
  Add("b.avi", 1, "1");
  Add("a.avi", 3, "333");
  Add("c.avi", 2, "22");
  browser.CapfolderSetup();
  EXPECT_EQ(browser.VideoList(), (Names{"a", "b", "c"}));
  browser.ChooseVideo(2);
  using By = VideoSort::By;
  const std::pair<VideoSort, Names> orders[] = {{{By::Name, true}, {"c", "b", "a"}},
                                                {{By::Date, false}, {"b", "c", "a"}},
                                                {{By::Date, true}, {"a", "c", "b"}},
                                                {{By::Size, false}, {"a", "c", "b"}}};
  for (const auto& [sort, names] : orders) {
    browser.SortVideos(sort);
    EXPECT_EQ(browser.VideoList(), names);
    EXPECT_EQ(browser.Video(), "c") << "what is chosen stays chosen";
    EXPECT_EQ(browser.VideoPath(), library.Path("Demo/Tom/c.avi"));
  }
  EXPECT_EQ(OrderBy({0, 5, 0, 7}, false), (std::vector<std::size_t>{3, 1, 0, 2})) << "what is not known comes last";

  ListChoices choices(library.Data("lists.ini"));
  choices.SetSort({By::Size, true});
  choices.SetPictures(false);
  const ListChoices again(library.Data("lists.ini"));
  EXPECT_EQ(again.Sort(), (VideoSort{By::Size, true}));
  EXPECT_TRUE(!again.Pictures() && again.GoesAlong());
}

TEST_F(VideoListTest, AGlanceIsTakenOnceForEachStateOfAFile) {
  const std::string good = AddVideo("good.avi", 8);
  const std::string bad = Add("bad.avi", 1);
  const std::string gone = library.Path("Demo/Tom/gone.avi");
  reader.Want({good, bad, gone});
  Wait();
  EXPECT_GT(reader.Known(good)->glance.seconds, 0);
  EXPECT_FALSE(reader.Known(good)->glance.picture.Empty());
  EXPECT_TRUE(reader.Known(bad)->seen && !reader.Known(bad)->glance.opens);
  EXPECT_FALSE(reader.Known(gone)->glance.opens);
  EXPECT_GE(came.size(), 6u);

  // The next run takes what the store has, without a look at the video.
  const FileStamp stamp = *StampOf(good);
  const auto kept = store.Load(stamp);
  ASSERT_TRUE(kept);
  EXPECT_EQ(kept->seconds, reader.Known(good)->glance.seconds);
  EXPECT_EQ(kept->picture.Pixel(3, 3), reader.Known(good)->glance.picture.Pixel(3, 3));
  EXPECT_FALSE(store.Load(*StampOf(bad)));

  AddVideo("bad.avi", 4);
  reader.Want({good, bad});
  Wait();
  EXPECT_TRUE(reader.Known(bad)->glance.opens) << "it has become whole";
}

TEST_F(VideoListTest, AStoreThatIsDamagedOrFullLosesGlancesAndNothingElse) {
  const VideoGlance glance{true, 2.5, Surface(40, 30)};
  for (std::uint64_t number = 1; number <= 25; ++number) store.Save({number, 10, 20}, glance);
  EXPECT_EQ(store.Load({7, 10, 20})->seconds, 2.5);
  EXPECT_FALSE(store.Load({7, 11, 20}));
  store.Tidy();
  int left = 0;
  for (const auto& file : fs::directory_iterator(library.Data("glances"))) {
    fs::resize_file(file, 100);
    ++left;
  }
  EXPECT_LE(left, 20);
  EXPECT_GE(left, 15);
  for (std::uint64_t number = 1; number <= 25; ++number) EXPECT_FALSE(store.Load({number, 10, 20}));
}

}  // namespace
}  // namespace kinalyx::test
