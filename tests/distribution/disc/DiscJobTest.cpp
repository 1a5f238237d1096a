#include "distribution/disc/DiscJob.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "distribution/disc/FolderJob.h"
#include "distribution/web/PlayerPage.h"
#include "library/Sidecar.h"
#include "platform/disc/DiscDrives.h"
#include "support/TempFolder.h"
#include "support/TestDisks.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

/// A drive that does what the test says.
class FakeDrive final : public IDiscDrive {
 public:
  struct Told {
    DiscTree tree;
    BurnWish wish;
    int burns = 0;
    int cancels = 0;
  };
  FakeDrive(Told& told, Outcome how, int steps) : told_(told), how_(std::move(how)), steps_(steps) {}

  Result<DriveReport> TestUnitReady() override { return DriveReport{}; }
  Outcome Eject() override { return {}; }
  std::unique_ptr<IBurnRun> Burn(const DiscTree& tree, const BurnWish& wish) override {
    told_.tree = tree;
    told_.wish = wish;
    ++told_.burns;
    return std::make_unique<Run>(told_, how_, steps_);
  }

 private:
  /// Prepares, writes step by step, and takes two more steps over a cancel.
  class Run final : public IBurnRun {
   public:
    Run(Told& told, Outcome how, int steps) : told_(told), how_(std::move(how)), steps_(steps) {}
    bool Step() override {
      if (++done_ < steps_) return true;
      return false;
    }
    void Cancel() override {
      ++told_.cancels;
      how_ = Outcome(Fault::Cancelled, "It was cancelled.");
      steps_ = done_ + 2;
    }
    DriveState State() const override {
      return told_.cancels > 0 ? DriveState::AbortingByUser : done_ < 2 ? DriveState::Preparing : DriveState::Writing;
    }
    std::int64_t BytesDone() const override { return done_ < 2 ? 0 : done_; }
    std::int64_t BytesTotal() const override { return steps_; }
    bool Written() const override { return done_ >= steps_ && how_; }
    const Outcome& How() const override { return how_; }

   private:
    Told& told_;
    Outcome how_;
    int steps_;
    int done_ = 0;
  };

  Told& told_;
  Outcome how_;
  int steps_;
};

class DiscJobTest : public testing::Test {
 protected:
  /// A video of one's own with a red line over it.
  std::string DrawnVideo(const std::string& name) {
    const std::string path = folder.Path(name);
    fs::copy_file(MakeTestVideo(RawVideo(12)), path);
    SlotData data;
    Shape line;
    line.NumBound = line.NumPts = 2;
    line.Kind = kLine;
    line.Locked = true;
    line.Pts = {{0, 30}, {90, 30}};
    line.Colour = 0x0000FF;
    data.Shapes.Shapes = {line};
    data.Shapes.NumShapes = 1;
    data.PictureWidth = 90;
    data.PictureHeight = 60;
    EXPECT_TRUE(WriteVideoData(SidecarPath(path), data));
    return path;
  }
  DiscOrder Order(std::vector<FileToSend> files, bool page = false) {
    fs::create_directories(folder.Path("Bin/deeper"));
    folder.Put("Bin/KinalyxViewer", "viewer");
    folder.Put("Bin/.hidden", "no");
    DiscOrder order;
    order.Files = std::move(files);
    order.ViewerFolder = folder.Path("Bin");
    order.Page = page;
    order.Label = "TEST";
    order.Coach = "Ben & Co";
    order.Student = "Clara";
    order.Today = "2026-11-26";
    order.WorkFolder = folder.Path("work");
    order.Look.Shapes.CadWidth = 3;
    return order;
  }
  bool Said(const std::string& line) const { return std::ranges::find(said, line) != said.end(); }
  template <typename Job>
  void Run(Job& job) {
    while (job.Step()) {
    }
    const auto lines = board->TakeLines();
    said.insert(said.end(), lines.begin(), lines.end());
  }
  /// Nothing of what was made on the way is left.
  bool WorkIsGone() const { return !fs::exists(folder.Path("work")) || fs::is_empty(folder.Path("work")); }

  TempFolder folder;
  std::shared_ptr<BurnBoard> board = std::make_shared<BurnBoard>();
  std::vector<std::string> said;
  FakeDrive::Told told;
};

TEST_F(DiscJobTest, TellsEachFileAndThenTheEnd) {
  const std::string video = folder.Put("Drive.avi", "video");
  folder.Put("Drive.ved", "drawings");
  fs::create_directory(folder.Path("lessons"));
  const std::string lesson = folder.Put("lessons/Chip.avi", "lesson");
  DiscJob job(Order({{lesson, true, 6}, {video, false, 5}}), std::make_unique<FakeDrive>(told, Outcome(), 5),
              {.Speed = 0, .Erase = false, .Check = true}, board);
  Run(job);
  EXPECT_TRUE(job.How());
  EXPECT_TRUE(job.Written());
  EXPECT_EQ(said, (std::vector<std::string>{">>> Adding File KinalyxViewer", ">>> Adding File Chip.avi",
                                            ">>> Adding File Drive.avi", ">>> Adding File Drive.ved",
                                            ">>> CD Burn Started", ">>> Burn Complete!"}));
  EXPECT_EQ(told.tree.Folders, (std::vector<std::string>{"Lessons", "Videos"}));
  EXPECT_EQ(told.tree.Files[1].To, "Lessons/Chip.avi");
  EXPECT_EQ(board->State(), DriveState::Idle);
}

TEST_F(DiscJobTest, TellsAFailureAtTheStartFromOneInTheMiddle) {
  const std::string video = folder.Put("Drive.avi", "video");
  DiscJob early(Order({{video, false, 5}}),
                std::make_unique<FakeDrive>(told, Outcome(Fault::Refused, "There is no disc in the drive."), 1), {},
                board);
  Run(early);
  EXPECT_TRUE(Said(">>> BURN CD FAILED There is no disc in the drive."));
  DiscJob late(Order({{video, false, 5}}),
               std::make_unique<FakeDrive>(told, Outcome::Failed("The disc could not be written."), 5), {}, board);
  Run(late);
  EXPECT_TRUE(Said(">>> Burn Failed The disc could not be written."));
  // The drive is not even asked for a file that is not there.
  fs::remove(video);
  told.burns = 0;
  DiscJob gone(Order({{video, false, 5}}), std::make_unique<FakeDrive>(told, Outcome(), 5), {}, board);
  Run(gone);
  EXPECT_EQ(gone.How().Kind(), Fault::NotFound);
  EXPECT_TRUE(Said(">>> BURN CD FAILED \"Drive.avi\" could not be found."));
  EXPECT_EQ(told.burns, 0);
}

TEST_F(DiscJobTest, StopsWhenTheDriveHasStopped) {
  const std::string video = folder.Put("Drive.avi", "video");
  DiscJob job(Order({{video, false, 5}}), std::make_unique<FakeDrive>(told, Outcome(), 100), {}, board);
  while (board->BytesDone() == 0) ASSERT_TRUE(job.Step());
  board->Stop();
  EXPECT_TRUE(job.Step());
  EXPECT_EQ(board->State(), DriveState::AbortingByUser);
  Run(job);
  EXPECT_EQ(told.cancels, 1);
  EXPECT_EQ(job.How().Kind(), Fault::Cancelled);
  EXPECT_TRUE(Said(">>> BURN CANCELLED"));
}

TEST_F(DiscJobTest, PutsAPageWithTheDrawingsOfEachVideoOnTheDisc) {
  const std::string drawn = DrawnVideo("Żółty <swing>.avi");
  const std::string plain = folder.Path("Plain.avi");
  fs::copy_file(MakeTestVideo(RawVideo(12)), plain);
  const std::string broken = folder.Put("Broken.avi", "no video at all");
  FolderJob job(Order({{drawn, false, 1}, {plain, true, 1}, {broken, false, 1}}, true), folder.Path("stick"), false,
                board);
  fs::create_directory(folder.Path("stick"));
  Run(job);
  ASSERT_TRUE(job.How()) << job.How().Why();
  const std::string stick = folder.Path("stick");
  EXPECT_EQ(BytesOf(stick + "/Videos/Żółty _swing_.avi"), BytesOf(drawn));
  EXPECT_EQ(BytesOf(stick + "/Videos/Broken.avi"), BytesOf(broken));

  const std::string page = BytesOf(stick + "/index.html");
  EXPECT_NE(page.find("Ben &amp; Co"), std::string::npos);
  EXPECT_NE(page.find("MP4/Plain.mp4"), std::string::npos);
  EXPECT_EQ(page.find("Broken"), std::string::npos);
  // The line is in the picture, and nothing red is in that of the other one.
  const auto redAt = [](const std::string& path) {
    const auto file = OpenedVideo(path);
    const FrameRows rows = file->Frame(5, 32);
    const std::uint8_t* pixel = rows.bits + static_cast<std::ptrdiff_t>(rows.height / 2) * rows.rowBytes +
                                static_cast<std::ptrdiff_t>(rows.width / 2) * 4;
    return pixel[2] > 150 && pixel[0] < 100 && pixel[1] < 100;
  };
  EXPECT_TRUE(redAt(stick + "/MP4/Żółty _swing_.mp4"));
  EXPECT_FALSE(redAt(stick + "/MP4/Plain.mp4"));
  EXPECT_EQ(OpenedVideo(stick + "/MP4/Żółty _swing_.mp4")->Info().frameCount, 12);
  EXPECT_TRUE(WorkIsGone());
}

TEST_F(DiscJobTest, StoppedInTheMiddleOfAVideoLeavesNothing) {
  const std::string drawn = DrawnVideo("Swing.avi");
  fs::create_directory(folder.Path("stick"));
  {
    FolderJob job(Order({{drawn, false, 1}}, true), folder.Path("stick"), false, board);
    while (board->Part() == 0) ASSERT_TRUE(job.Step());
    board->Stop();
    Run(job);
    EXPECT_EQ(job.How().Kind(), Fault::Cancelled);
  }
  EXPECT_TRUE(fs::is_empty(folder.Path("stick")));
  EXPECT_TRUE(WorkIsGone());
}

TEST_F(DiscJobTest, CopiesAllOrNothingAndReplacesOnlyWhenAsked) {
  const std::string video = folder.Put("Drive.avi", "new video");
  const std::string stick = folder.Path("stick");
  fs::create_directories(stick + "/Videos");
  folder.Put("stick/Videos/Drive.avi", "foreign");
  folder.Put("stick/mine.txt", "mine");
  FolderJob refused(Order({{video, false, 1}}), stick, false, board);
  Run(refused);
  EXPECT_EQ(refused.Existing(), (std::vector<std::string>{"Videos/Drive.avi"}));
  EXPECT_EQ(BytesOf(stick + "/Videos/Drive.avi"), "foreign");
  EXPECT_FALSE(fs::exists(stick + "/KinalyxViewer"));

  // A disk that fails at whatever call: what was there is there still, or all is new.
  for (int failing = 0;; ++failing) {
    FailingDisk disk(failing);
    bool well = false;
    {
      FolderJob job(Order({{video, false, 1}}), stick, true, std::make_shared<BurnBoard>(), std::nullopt, disk);
      while (job.Step()) {
      }
      well = static_cast<bool>(job.How());
    }
    const std::string there = BytesOf(stick + "/Videos/Drive.avi");
    EXPECT_TRUE(there == "foreign" || there == "new video") << failing;
    if (well) {
      EXPECT_EQ(there, "new video") << failing;
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(stick + "/Videos"), {}), 1) << failing;
    if (!disk.Failed()) {
      EXPECT_TRUE(well);
      break;
    }
    folder.Put("stick/Videos/Drive.avi", "foreign");
    fs::remove(stick + "/KinalyxViewer");
  }
  EXPECT_EQ(BytesOf(stick + "/KinalyxViewer"), "viewer");
  EXPECT_EQ(BytesOf(stick + "/mine.txt"), "mine");
  EXPECT_TRUE(fs::is_directory(stick + "/Lessons"));
}

TEST_F(DiscJobTest, TellsWhatAStickDoesNotTake) {
  const std::string video = folder.Put("Long.avi", "1234567");
  fs::create_directory(folder.Path("stick"));
  FolderJob large(Order({{video, false, 6}}), folder.Path("stick"), false, board, FolderLimits{6, "FAT32"});
  Run(large);
  EXPECT_NE(large.How().Why().find("\"Long.avi\" is larger than 4 GB"), std::string::npos);
  EXPECT_TRUE(fs::is_empty(folder.Path("stick")));

  folder.Put("stick/Videos", "a file");
  FolderJob blocked(Order({{video, false, 6}}), folder.Path("stick"), true, board);
  Run(blocked);
  EXPECT_NE(blocked.How().Why().find("a file named \"Videos\""), std::string::npos);

  FolderJob away(Order({{video, false, 6}}), folder.Path("nowhere"), false, board);
  Run(away);
  EXPECT_EQ(away.How().Kind(), Fault::NotFound);
}

TEST_F(DiscJobTest, BurnsAnImageFile) {
  const std::string video = folder.Put("Drive.avi", "video");
  DiscJob job(Order({{video, false, 5}}), DriveAt(AddressOfImage(folder.Path("disc.iso"))),
              {.Speed = 0, .Erase = false, .Check = true}, board);
  Run(job);
  EXPECT_TRUE(job.How()) << job.How().Why();
  EXPECT_TRUE(Said(">>> Checking the disc"));
  EXPECT_NE(BytesOf(folder.Path("disc.iso")).find("video"), std::string::npos);
}

}  // namespace
}  // namespace kinalyx::test
