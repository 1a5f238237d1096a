#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <mutex>
#include <random>
#include <thread>

#include "platform/media/VideoFile.h"
#include "support/TempFolder.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

using namespace std::chrono_literals;

/// Somebody who waits for news, a minute at most.
class Listener {
 public:
  void Hear() {
    const std::lock_guard lock(mutex_);
    ++news_;
    came_.notify_one();
  }
  bool Wait() {
    std::unique_lock lock(mutex_);
    if (!came_.wait_for(lock, 60s, [&] { return news_ > 0; })) return false;
    news_ = 0;
    return true;
  }

 private:
  std::mutex mutex_;
  std::condition_variable came_;
  int news_ = 0;
};

TestVideo LongGop(int frames) {
  TestVideo video = H264Video(frames);
  video.format.keyInterval = 250;
  return video;
}

/// Asks for a frame until it is exact; every stand-in on the way shows the frame that it says it shows.
void ExpectBecomesExact(VideoFile& file, Listener& listener, int n) {
  for (;;) {
    const FrameAtHand now = file.FrameNow(n, 32);
    ASSERT_TRUE(now.rows) << n;
    ASSERT_EQ(ReadNumber(now.rows), now.frame) << "asked for " << n;
    if (now.exact) {
      ASSERT_EQ(now.frame, n);
      return;
    }
    ASSERT_TRUE(listener.Wait()) << "no news of " << n;
  }
}

TEST(FrameNow, GivesWhatThereIsAndTellsWhenTheExactPictureHasCome) {
  const auto file = OpenedVideo(MakeTestVideo(LongGop(500)));
  Listener listener;
  file->OnBetterPicture([&] { listener.Hear(); });
  ASSERT_TRUE(file->Frame(0, 32));
  for (const int n : {499, 3, 249, 250, 120, 121, 119, 0})
    ASSERT_NO_FATAL_FAILURE(ExpectBecomesExact(*file, listener, n));
  EXPECT_FALSE(file->FrameNow(-1, 32).rows || file->FrameNow(500, 32).rows || file->FrameNow(0, 16).rows);
}

/// Large enough, and its key pictures far enough apart, for stand-ins to be worth their making.
TestVideo Large(int frames) {
  TestVideo video = H264Video(frames);
  video.format.width = 1280;
  video.format.height = 720;
  video.format.keyInterval = 60;
  return video;
}

void WaitForPass(const VideoFile& file) {
  for (int waited = 0; waited < 6000 && !file.EveryFrameIsAtHand(); ++waited) std::this_thread::sleep_for(10ms);
  ASSERT_TRUE(file.EveryFrameIsAtHand());
}

/// Every frame at once, its own, in any order.
void ExpectAllAtHand(VideoFile& file, int frames) {
  std::mt19937 random(3);
  for (int i = 0; i < 100; ++i) {
    const int n = static_cast<int>(random() % static_cast<unsigned>(frames));
    const FrameAtHand now = file.FrameNow(n, i % 2 ? 24 : 32);
    ASSERT_TRUE(now.rows);
    ASSERT_EQ(now.frame, n);
    ASSERT_EQ(ReadNumber(now.rows), n) << (now.exact ? "exact" : "stand-in");
  }
}

class Cache {
 public:
  Cache() { setenv("XDG_CACHE_HOME", folder_.Path().c_str(), 1); }
  ~Cache() { setenv("XDG_CACHE_HOME", TestPath("cache").c_str(), 1); }
  std::vector<std::filesystem::path> Files() const {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.Path()))
      if (entry.is_regular_file()) files.push_back(entry.path());
    return files;
  }

 private:
  TempFolder folder_;
};

TEST(FrameNow, HasEveryFrameAtHandAfterThePassAndReplacesItByTheExactOne) {
  const Cache cache;
  const auto file = OpenedVideo(MakeTestVideo(Large(200)));
  Listener listener;
  file->OnBetterPicture([&] { listener.Hear(); });
  file->SetShownSize(320, 180);
  ASSERT_NO_FATAL_FAILURE(WaitForPass(*file));
  ASSERT_NO_FATAL_FAILURE(ExpectAllAtHand(*file, 200));
  const FrameAtHand small = file->FrameNow(63, 32);
  ASSERT_FALSE(small.exact);
  EXPECT_EQ(std::pair(small.rows.width, small.rows.height), std::pair(480, 270));
  for (const int n : {63, 199, 0, 64, 62, 61}) ASSERT_NO_FATAL_FAILURE(ExpectBecomesExact(*file, listener, n));

  file->SetShownSize(1000, 600);
  ASSERT_NO_FATAL_FAILURE(WaitForPass(*file));
  EXPECT_EQ(file->FrameNow(150, 32).rows.width, 1280) << "the window has grown";
}

TEST(FrameNow, GoesBackThroughAVideoThatHasJustBeenOpened) {
  const Cache cache;
  const auto file = OpenedVideo(MakeTestVideo(Large(200)));
  Listener listener;
  file->OnBetterPicture([&] { listener.Hear(); });
  ASSERT_TRUE(file->Frame(199, 32));
  for (int n = 198; n >= 0; --n) {
    for (;;) {
      const FrameAtHand now = file->FrameNow(n, 32);
      ASSERT_TRUE(now.rows);
      ASSERT_EQ(ReadNumber(now.rows), now.frame);
      if (now.frame == n) break;
      ASSERT_TRUE(listener.Wait()) << n;
    }
  }
}

TEST(FrameNow, RemembersAVideoAndTrustsNothingThatIsDamaged) {
  const Cache cache;
  const std::string path = TestPath("remembered.avi");
  std::filesystem::copy_file(MakeTestVideo(Large(200)), path, std::filesystem::copy_options::overwrite_existing);
  {
    const auto file = OpenedVideo(path);
    ASSERT_NO_FATAL_FAILURE(WaitForPass(*file));
  }
  ASSERT_EQ(cache.Files().size(), 1u);
  const auto kept = cache.Files().front();
  const auto size = std::filesystem::file_size(kept);
  {
    std::fstream bytes(kept, std::ios::in | std::ios::out | std::ios::binary);
    for (std::uintmax_t at = size / 2; at < size; at += 4000) {
      bytes.seekp(static_cast<std::streamoff>(at));
      bytes.put('x');
    }
  }
  {
    const auto file = OpenedVideo(path);
    Listener listener;
    file->OnBetterPicture([&] { listener.Hear(); });
    ASSERT_TRUE(file->Frame(0, 32));
    for (const int n : {20, 190, 90, 150}) ASSERT_NO_FATAL_FAILURE(ExpectBecomesExact(*file, listener, n));
  }
  // Another video takes its place under the same name.
  TestVideo other = Large(150);
  other.format.keyInterval = 250;
  std::filesystem::copy_file(MakeTestVideo(other), path, std::filesystem::copy_options::overwrite_existing);
  const auto file = OpenedVideo(path);
  ASSERT_NO_FATAL_FAILURE(WaitForPass(*file));
  ASSERT_NO_FATAL_FAILURE(ExpectAllAtHand(*file, 150));
}

TEST(FrameNow, EightVideosCloseInTheMiddleOfTheirPasses) {
  const Cache cache;
  const Budget budget(2 << 20);
  std::vector<std::unique_ptr<VideoFile>> files;
  for (int i = 0; i < 8; ++i) files.push_back(OpenedVideo(MakeTestVideo(Large(200))));
  std::mt19937 random(9);
  for (int round = 0; !files.empty(); ++round) {
    for (const auto& file : files) {
      const FrameAtHand now = file->FrameNow(static_cast<int>(random() % 200), 24);
      ASSERT_TRUE(!now.rows || ReadNumber(now.rows) == now.frame);
    }
    std::this_thread::sleep_for(round % 4 == 3 ? 400ms : 20ms);
    if (round % 3 == 2) files.erase(files.begin() + static_cast<std::ptrdiff_t>(random() % files.size()));
  }
}

}  // namespace
}  // namespace kinalyx::test
