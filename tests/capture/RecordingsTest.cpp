#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <random>
#include <thread>

#include "capture/CaptureData.h"
#include "capture/RecordingSaver.h"
#include "capture/UnfinishedRecordings.h"
#include "capture/WorkingFiles.h"
#include "library/Study.h"
#include "platform/files/Folders.h"
#include "support/Recordings.h"
#include "support/TempFolder.h"
#include "support/TestDisks.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;
constexpr auto kJpeg = RecordingFormat::Codec::Mjpeg;

std::vector<UnfinishedRecording> Find(const std::string& folder) {
  FindUnfinished job(folder);
  while (job.Step()) {
  }
  return job.Found();
}

/// Another window that records until it is killed, two pictures at a time, and tells how many it has handed over.
class OtherWindow {
 public:
  OtherWindow(const std::string& folder, const std::vector<std::string>& pictures) {
    int ends[2] = {};
    if (::pipe(ends) != 0) throw std::runtime_error("no pipe");
    child_ = ::fork();
    if (child_ == 0) RecordUntilKilled(folder, pictures, ends[1]);
    ::close(ends[1]);
    told_ = ends[0];
  }
  ~OtherWindow() {
    if (child_ > 0) Kill();
    ::close(told_);
  }

  /// Waits until so many pictures were handed over.
  int Wait(int pictures) {
    while (handed_ < pictures && ::read(told_, &handed_, sizeof handed_) == sizeof handed_) {
    }
    return handed_;
  }
  /// @return pictures that it had handed over
  int Kill() {
    ::kill(child_, SIGKILL);
    ::waitpid(child_, nullptr, 0);
    child_ = -1;
    return Wait(1 << 30);
  }

 private:
  [[noreturn]] static void RecordUntilKilled(const std::string& folder, const std::vector<std::string>& pictures,
                                             int tell) {
    WorkingFiles files(folder);
    if (!files.Prepare()) ::_exit(1);
    auto first = RecordingFile::Create(files.Path(0), CameraFormat(kJpeg, 30));
    auto second = RecordingFile::Create(files.Path(1), CameraFormat(kJpeg, 30));
    for (int n = 0; first && second && n < 100'000; ++n) {
      const std::string& picture = pictures[static_cast<std::size_t>(n) % pictures.size()];
      const auto ns = static_cast<std::int64_t>(n) * 40'000'000;
      if (!(*first)->Write(std::as_bytes(std::span(picture)), ns)) break;
      if (!(*second)->Write(std::as_bytes(std::span(picture)), ns)) break;
      const int handed = n + 1;
      if (::write(tell, &handed, sizeof handed) != sizeof handed) break;
    }
    ::_exit(1);
  }

  pid_t child_ = -1;
  int told_ = -1;
  int handed_ = 0;
};

TEST(UnfinishedRecordings, NothingOfAKilledRecordingIsLost) {
  std::vector<std::string> pictures;
  for (int n = 0; n < 50; ++n) pictures.push_back(CameraPicture(kJpeg, n));
  std::mt19937 dice(7);
  for (int kill = 0; kill < 30; ++kill) {
    const TempFolder folder;
    OtherWindow window(folder.Path(), pictures);
    window.Wait(1 + kill % 3);
    if (kill == 0) {
      EXPECT_TRUE(Find(folder.Path()).empty()) << "it is at work";
    }
    std::this_thread::sleep_for(std::chrono::microseconds(dice() % 10'000));
    const int handed = window.Kill();
    const auto found = Find(folder.Path());
    ASSERT_EQ(found.size(), 1u) << kill;
    for (const std::size_t camera : {0u, 1u}) {
      EXPECT_GE(found[0].tallies[camera].pictures, handed) << kill;
      EXPECT_LE(found[0].tallies[camera].pictures, handed + 1) << kill;
      if (kill % 5 > 0) continue;
      const std::vector<int> numbers = NumbersOf(found[0].paths[camera]);
      for (std::size_t n = 0; n < numbers.size(); ++n) ASSERT_EQ(numbers[n], static_cast<int>(n % 50)) << kill;
    }
    if (handed > 26) {
      EXPECT_NEAR(found[0].seconds, handed / 25.0, 0.05);
    }
    EXPECT_TRUE(ThrowAway(found[0]));
    EXPECT_TRUE(Find(folder.Path()).empty());
  }
}

class SavingTest : public testing::Test {
 protected:
  SavingTest() {
    EXPECT_TRUE(files.Prepare());
    fs::create_directories(student);
  }

  /// Both cameras record; the second has a picture less.
  SaveRequest Recorded() {
    SaveRequest request;
    for (const int camera : {0, 1}) {
      const auto i = static_cast<std::size_t>(camera);
      auto file = RecordingFile::Create(files.Path(camera), CameraFormat(kJpeg, 30));
      EXPECT_TRUE(file);
      for (int n = 0; n < 40 - camera; ++n) {
        // The tenth picture is lost.
        if (n == 10) continue;
        EXPECT_TRUE(Record(**file, kJpeg, n, n / 29.5));
      }
      EXPECT_TRUE((*file)->Close());
      request.tallies[i] = (*file)->Tally();
      request.recorded[i] = files.Path(camera);
    }
    request.videos = {student + "/(007) Łucja FO.avi", student + "/(007) Łucja Back.avi"};
    request.flags.SplitFields = true;
    request.trimProgram = KINALYX_AVITRIM;
    return request;
  }
  static SavedRecording Save(const SaveRequest& request, IDisk& disk = RealDisk()) {
    RecordingSaver job(request, disk);
    while (job.Step()) {
    }
    if (job.Saved().Done()) {
      EXPECT_EQ(job.Progress().part, 1);
    }
    return job.Saved();
  }
  /// Names in a folder but those of locks.
  static std::vector<std::string> Names(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
    std::erase_if(names, [](const std::string& name) { return name.ends_with(".lock"); });
    std::ranges::sort(names);
    return names;
  }

  TempFolder folder;
  std::string working = folder.Path("capture");
  std::string student = folder.Path("Anna");
  WorkingFiles files{working};
};

TEST_F(SavingTest, BothAreKeptUnderOneNumberAndNothingIsReplaced) {
  const SaveRequest request = Recorded();
  std::ofstream(student + "/(007) Łucja Back.avi") << "another window was quicker";
  std::ofstream(student + "/(008) ŁUCJA FO.AVI") << "this name is taken as well";
  std::ofstream(student + "/(009) Łucja FO.ved") << "notes without a video";
  fs::create_directory(working + "/capture2.ved");  // no sidecar can be written there
  const SavedRecording saved = Save(request);
  ASSERT_TRUE(saved.Done()) << saved.why;
  EXPECT_EQ(saved.videos[0], student + "/(009) Łucja FO.avi");
  EXPECT_EQ(saved.videos[1], student + "/(009) Łucja Back.avi");
  EXPECT_EQ(NumbersOf(saved.videos[0]).size(), 40u);
  EXPECT_EQ(BytesOf(student + "/(009) Łucja Back.ved"), "1XXSXXXX");
  EXPECT_EQ(BytesOf(student + "/(009) Łucja FO.ved.old"), "notes without a video");
  EXPECT_FALSE(fs::exists(StudyPath(saved.videos[0]))) << "the video tells its rate itself";
  EXPECT_EQ(Names(working), std::vector<std::string>{"capture2.ved"});
}

TEST_F(SavingTest, ACutKeepsPicturesPlacesAndRate) {
  SaveRequest request = Recorded();
  request.firstFrame = 8;
  request.lastFrame = 39;
  for (const bool recompress : {false, true}) {
    request.recompress = {recompress, recompress};
    const SavedRecording saved = Save(request);
    ASSERT_TRUE(saved.Done()) << saved.why;
    std::vector<int> expected;
    for (int n = 8; n < 40; ++n) expected.push_back(n == 10 ? 9 : n);
    EXPECT_EQ(NumbersOf(saved.videos[0]), expected);
    expected.pop_back();
    EXPECT_EQ(NumbersOf(saved.videos[1]), expected);
    const auto info = ReadVideoInfo(saved.videos[0]);
    EXPECT_NEAR(static_cast<double>(info->rate) / static_cast<double>(info->scale), 29.5, 0.03);
  }
  EXPECT_EQ(Names(student).size(), 8u) << "and their sidecars";
  EXPECT_EQ(Names(working), (std::vector<std::string>{"capture.avi", "capture2.avi"}));
  files.Discard();
  EXPECT_TRUE(Names(working).empty());
}

TEST_F(SavingTest, WhatFailsKeepsTheRecordingAndSaysWhy) {
  SaveRequest request = Recorded();
  for (int failing = 0;; ++failing) {
    FailingDisk disk(failing);
    TwoDrives drives(disk);
    const SavedRecording saved = Save(request, drives);
    if (saved.Done()) break;
    EXPECT_FALSE(saved.why.empty());
    EXPECT_EQ(FileSize(files.Path(0)), request.tallies[0].bytes);
    EXPECT_EQ(FileSize(files.Path(1)), request.tallies[1].bytes);
    EXPECT_TRUE(disk.Failed());
  }
  EXPECT_EQ(Names(student).size(), 4u);

  files.Discard();
  request = Recorded();
  request.lastFrame = 20;
  request.trimProgram = folder.Path("no such program");
  EXPECT_FALSE(Save(request).why.empty());
  request.trimProgram = KINALYX_AVITRIM;
  RecordingSaver job(request);
  EXPECT_TRUE(job.Step());
  job.Cancel();
  EXPECT_FALSE(job.Step());
  EXPECT_TRUE(job.Saved().cancelled);
  EXPECT_EQ(Names(student).size(), 4u);
  EXPECT_EQ(NumbersOf(files.Path(0)).size(), 40u);
}

TEST_F(SavingTest, AStudyTellsTheRateOnlyWhereTheVideoDoesNot) {
  const SaveRequest request = Recorded();
  RecordingTally tally = request.tallies[0];
  tally.rate = 59.3;
  ASSERT_TRUE(KeepCaptureData(files.Path(0), tally, request.flags));
  SlotData data;
  ReadStudy(StudyPath(files.Path(0)), data);
  EXPECT_NEAR(data.Study.TrueRate, 59.3, 1e-6);
}

TEST(WorkingFiles, EachWindowHasItsOwnAndWhatIsLeftMakesWay) {
  const TempFolder folder;
  const std::string old = folder.Put("capture2.avi", "left there");
  WorkingFiles one(folder.Path());
  EXPECT_EQ(LastName(one.Path(0)), "capture.avi");
  ASSERT_TRUE(one.Prepare());
  EXPECT_EQ(folder.Get("unfinished 1.avi"), "left there");
  WorkingFiles two(folder.Path());
  ASSERT_TRUE(two.Prepare());
  EXPECT_EQ(LastName(two.Path(0)), "capture (2).avi");
  EXPECT_EQ(LastName(two.Path(1)), "capture2 (2).avi");
}

}  // namespace
}  // namespace kinalyx::test
