#include <sys/resource.h>

#include <cmath>
#include <csignal>
#include <random>
#include <functional>
#include <span>

#include "platform/media/RecordingFile.h"
#include "platform/media/RecordingParts.h"
#include "platform/media/VideoFile.h"
#include "support/Recordings.h"
#include "support/TempFolder.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;
using Codec = RecordingFormat::Codec;

TEST(RecordingFile, EveryPictureStandsInItsPlace) {
  for (const Codec codec : {Codec::Mjpeg, Codec::RawBgr24}) {
    const TempFolder folder;
    const std::string path = folder.Path("x.avi");
    auto file = RecordingFile::Create(path, CameraFormat(codec, 30));
    ASSERT_TRUE(file) << file.Why();
    std::vector<int> expected;
    for (int n = 0; n < 90; ++n) {
      const bool lost = (n > 20 && n <= 23) || n == 50;
      const double late = n == 35 ? 1.4 : n == 36 ? 0.9 : 0;
      if (!lost) {
        EXPECT_TRUE(Record(**file, codec, n, (n + late) / 29.5));
      }
      expected.push_back(lost ? expected.back() : n);
    }
    EXPECT_TRUE(Record(**file, codec, 7, 1)) << "a stamp from before: left out";
    if (codec == Codec::RawBgr24) {
      EXPECT_TRUE((*file)->Write(std::as_bytes(std::span("cut")), 9'000'000'000));
    }
    ASSERT_TRUE((*file)->Close());
    const RecordingTally& tally = (*file)->Tally();
    EXPECT_EQ(tally.pictures, 86);
    EXPECT_EQ(tally.lost, 4);
    EXPECT_EQ(tally.bytes, static_cast<std::int64_t>(fs::file_size(path)));
    EXPECT_FALSE(tally.open);
    EXPECT_FALSE(Record(**file, codec, 90, 4)) << "closed";
    EXPECT_FALSE(IsUnfinishedRecording(path));
    EXPECT_EQ(NumbersOf(path), expected);
    const auto info = ReadVideoInfo(path);
    EXPECT_NEAR(static_cast<double>(info->rate) / static_cast<double>(info->scale), 29.5, 29.5e-3);
    EXPECT_FALSE(RecordingFile::Create(path, CameraFormat(codec, 30))) << "never replaces one that is there";
  }
}

double Punctual(int) { return 0; }
bool Whole(int) { return false; }

/// What a camera does to its stamps.
struct Camera {
  const char* what;
  double promised;
  double real;
  double tremble;  ///< part of a picture time by which stamps are off, at most
  double written;  ///< the rate that the file has
  std::int64_t lost = 0;
  std::function<double(int)> bend = Punctual;  ///< seconds by which picture n comes late
  std::function<bool(int)> loses = Whole;
  int pictures = 1150;
};

/// By how much what is taken at a time comes late when, every 20 seconds, all is held up for a while and then comes in
/// so much less time than it took.
double HeldUp(double at, double seconds, double pace) {
  const double since = std::fmod(at + 10, 20);
  return std::max(0.0, seconds + since * pace - since);
}

TEST(RecordingFile, RateAndGapsAreThoseOfTheStamps) {
  const Camera cameras[] = {
      {"keeps its word", 30, 30, 0, 30},
      {"trembles", 60, 60, 0.3, 60},
      {"television", 30, 30000 / 1001.0, 0.2, 30000 / 1001.0},
      {"slower than promised", 30, 29.5, 0.2, 29.5},
      {"much slower", 30, 25, 0.1, 25},
      {"half in the dark", 30, 15.01, 0.1, 15.01},
      {"faster", 30, 59.3, 0, 59.3},
      {"promises nothing", 0, 47.9, 0.1, 47.9},
      {"loses the second", 30, 29.5, 0.1, 29.5, 1, Punctual, [](int n) { return n == 1; }},
      {"loses many", 120, 120, 0.2, 120, 116, Punctual, [](int n) { return n % 10 == 5 || n == 96; }},
      {"drifts", 30, 30, 0.1, 30 / 1.02, 0, [](int n) { return n * 0.02 / 30; }},
      {"becomes faster in the light", 30, 30, 0.1, 30, 0, [](int n) { return std::min(n, 40) / 30.0; }},
      {"becomes slower in the dark", 30, 30, 0.1, 30, 199, [](int n) { return std::max(n - 950, 0) / 30.0; }},
      {"trembles for ten minutes", 30, 30, 0.6, 30, 0, Punctual, Whole, 18000},
      {"trembles and loses one, two, ten, and three seconds", 60, 60, 0.6, 60, 193, Punctual,
       [](int n) { return n == 5000 || n / 2 == 4500 || n / 10 == 1200 || n / 180 == 100; }, 36000},
      {"slow, trembles and promises nothing", 0, 14.3, 0.6, 14.3, 0, Punctual, Whole, 8600},
      {"bursts after waiting", 30, 30, 0.1, 30, 0, [](int n) { return HeldUp(n / 30.0, 0.7, 0.1); }, Whole, 18000},
      {"is long in catching up", 60, 60, 0.1, 60, 0, [](int n) { return HeldUp(n / 60.0, 3, 0.6); }, Whole, 36000},
      {"loses while it is held up", 30, 30, 0.1, 30, 56, [](int n) { return HeldUp(n / 30.0, 0.7, 0.1); },
       [](int n) { return n >= 300 && n % 600 < 2 && n + 600 < 18000; }, 18000},
      {"begins with a burst", 30, 30, 0.1, 30, 0, [](int n) { return std::max(0.0, 1 - n / 33.0); }},
  };
  for (const Camera& camera : cameras) {
    const TempFolder folder;
    auto file = RecordingFile::Create(folder.Path("x.avi"), CameraFormat(Codec::Mjpeg, camera.promised));
    ASSERT_TRUE(file);
    std::mt19937 dice(1);
    std::uniform_real_distribution<> tremble(-camera.tremble, camera.tremble);
    double last = -1;
    for (int n = 0; n < camera.pictures; ++n) {
      const double at = (n + tremble(dice)) / camera.real + camera.bend(n);
      if (camera.loses(n)) continue;
      last = std::max(at, last + 1e-4);  // nothing arrives before what was sent before
      EXPECT_TRUE((*file)->Write(std::as_bytes(std::span("picture")), std::llround(last * 1e9) + 1'000'000'000));
    }
    ASSERT_TRUE((*file)->Close());
    const RecordingTally& tally = (*file)->Tally();
    EXPECT_NEAR(tally.rate, camera.written, 0.001 * camera.written) << camera.what;
    EXPECT_EQ(tally.lost, camera.lost) << camera.what;
  }
}

/// What is on the disk when the program is killed now.
std::string BreakOff(const TempFolder& folder, const std::string& path) {
  fs::copy_file(path, folder.Path("broken.avi"), fs::copy_options::overwrite_existing);
  return folder.Path("broken.avi");
}

TEST(RecordingFile, WhatIsBrokenOffIsMadeWhole) {
  const TempFolder folder;
  const std::string path = folder.Path("x.avi");
  auto file = RecordingFile::Create(path, CameraFormat(Codec::Mjpeg, 30));
  ASSERT_TRUE(file);
  EXPECT_FALSE(IsUnfinishedRecording(path)) << "somebody is at it";
  EXPECT_EQ(MendRecording(path).Kind(), Fault::Refused);
  const std::string empty = BreakOff(folder, path);
  EXPECT_TRUE(IsUnfinishedRecording(empty));
  EXPECT_EQ(MendRecording(empty).Kind(), Fault::NoFrames);

  std::vector<int> expected;
  for (int n = 0; n < 100; ++n) {
    const bool lost = n % 9 == 4;
    if (!lost) {
      EXPECT_TRUE(Record(**file, Codec::Mjpeg, n, n / 25.0));
    }
    expected.push_back(lost ? expected.back() : n);
    if (n % 11 != 10 || lost) continue;
    const std::string broken = BreakOff(folder, path);
    // The last picture was on its way.
    fs::resize_file(broken, fs::file_size(broken) - static_cast<std::uintmax_t>(n));
    ASSERT_TRUE(IsUnfinishedRecording(broken));
    const auto mended = MendRecording(broken);
    ASSERT_TRUE(mended) << mended.Why();
    EXPECT_FALSE(IsUnfinishedRecording(broken));
    auto whole = expected;
    whole.pop_back();
    EXPECT_EQ(mended->pictures + mended->lost, static_cast<std::int64_t>(whole.size()));
    EXPECT_EQ(NumbersOf(broken), whole) << n;
    if (n > 30) {
      EXPECT_NEAR(mended->rate, 25, 0.03);
    }
  }
}

TEST(RecordingFile, TheOrderOfFieldsIsKept) {
  using Fields = RecordingFormat::Fields;
  for (const Codec codec : {Codec::Mjpeg, Codec::RawBgr24}) {
    for (const Fields fields : {Fields::None, Fields::TopFirst, Fields::BottomFirst}) {
      const TempFolder folder;
      RecordingFormat format = CameraFormat(codec, 25);
      format.fields = fields;
      auto file = RecordingFile::Create(folder.Path("x.avi"), format);
      ASSERT_TRUE(file);
      EXPECT_TRUE(Record(**file, codec, 1, 0));
      ASSERT_TRUE((*file)->Close());
      const auto info = ReadVideoInfo(folder.Path("x.avi"));
      EXPECT_EQ(info->interlaced, fields != Fields::None);
      EXPECT_EQ(info->topFieldFirst, fields == Fields::TopFirst);
    }
  }
}

TEST(RecordingFile, ADamagedByteCostsOnePicture) {
  const TempFolder folder;
  const std::string path = folder.Path("x.avi");
  std::size_t at = 0;
  {
    auto file = RecordingFile::Create(path, CameraFormat(Codec::Mjpeg, 30));
    ASSERT_TRUE(file);
    for (int n = 0; n < 40; ++n) {
      if (n == 20) at = fs::file_size(path);
      EXPECT_TRUE(Record(**file, Codec::Mjpeg, n, n / 30.0));
    }
    BreakOff(folder, path);
  }
  const std::string whole = folder.Get("broken.avi");
  for (std::size_t i = 0; i < 12; ++i) {
    std::string damaged = whole;
    damaged[at + i] = static_cast<char>(damaged[at + i] ^ 0x16);
    const std::string broken = folder.Put("damaged.avi", damaged);
    ASSERT_TRUE(MendRecording(broken)) << i;
    const std::vector<int> numbers = NumbersOf(broken);
    ASSERT_EQ(numbers.size(), 40u) << i;
    for (int n = 0; n < 40; ++n) EXPECT_TRUE(n == 20 || numbers[static_cast<std::size_t>(n)] == n) << i << ": " << n;
  }
}

TEST(RecordingFile, ADamagedByteInAFinishedPartCostsOnePictureToo) {
  const TempFolder folder;
  const std::string path = folder.Path("x.avi");
  constexpr int kPictures = 60;
  std::vector<std::size_t> heads;
  std::size_t secondPart = 0;
  {
    auto opened = PlacedFile::Open(path, PlacedFile::Which::New);
    ASSERT_TRUE(opened);
    RecordingParts parts(std::move(*opened), RecordingHead(CameraFormat(Codec::Mjpeg, 30)), 60'000);
    ASSERT_TRUE(parts.Begin());
    for (int n = 0; n < kPictures; ++n) {
      const std::string bytes = CameraPicture(Codec::Mjpeg, n);
      const std::size_t before = parts.PartCount();
      EXPECT_TRUE(parts.Append(std::as_bytes(std::span(bytes)), 0, n % 7 == 3 ? 1 : 0, 0));
      EXPECT_TRUE(parts.Settle(0));
      heads.push_back(static_cast<std::size_t>(parts.Bytes()) - bytes.size() - bytes.size() % 2 - 8);
      if (before == 1 && parts.PartCount() == 2) secondPart = heads.back() - (n % 7 == 3 ? 8 : 0) - 24;
    }
    ASSERT_TRUE(parts.Note(30));
    ASSERT_GE(parts.PartCount(), 2u) << parts.Bytes();
  }
  const std::string whole = folder.Get("x.avi");
  std::mt19937 dice(5);
  const auto number = [&](std::size_t below) { return std::uniform_int_distribution<std::size_t>(0, below - 1)(dice); };
  // Every other one hits the head of a picture, where it does most; then the head of a part, and all of its indexes.
  std::vector<std::size_t> places;
  for (int i = 0; i < 20; ++i)
    places.push_back(i % 2 ? heads[number(heads.size() / 2)] + number(8)
                           : RecordingHead::kBytes + number(whole.size() - RecordingHead::kBytes));
  for (std::size_t i = 0; i < 24; i += 2) places.push_back(secondPart + i);
  for (std::size_t index = whole.find("ix00", RecordingHead::kBytes); index != std::string::npos;
       index = whole.find("ix00", index + 1))
    for (std::size_t i = 0; i < 44; ++i) places.push_back(index + i);
  for (const std::size_t at : places) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ (1 << number(8)));
    const std::string broken = folder.Put("damaged.avi", damaged);
    const auto mended = MendRecording(broken);
    ASSERT_TRUE(mended) << at;
    const std::vector<int> numbers = NumbersOf(broken);
    ASSERT_EQ(numbers.size(), static_cast<std::size_t>(kPictures)) << at;
    int wrong = 0;
    for (int n = 0; n < kPictures; ++n) wrong += numbers[static_cast<std::size_t>(n)] != n;
    EXPECT_LE(wrong, 1) << at;
  }
}

/// A disk on which no file grows beyond a size.
class FullDisk {
 public:
  explicit FullDisk(std::uintmax_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit now{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &now);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

TEST(RecordingFile, AFullDiskCostsNoMoreThanTheLastPictures) {
  const TempFolder folder;
  const std::string path = folder.Path("x.avi");
  auto file = RecordingFile::Create(path, CameraFormat(Codec::Mjpeg, 30));
  ASSERT_TRUE(file);
  std::vector<int> taken;
  std::string broken;
  {
    const FullDisk full(200'000);
    Outcome written;
    for (int n = 0; written; ++n) {
      written = Record(**file, Codec::Mjpeg, n, n / 30.0);
      if (written) taken.push_back(n);
    }
    broken = BreakOff(folder, path);
    EXPECT_FALSE(Record(**file, Codec::Mjpeg, 0, 100)) << "it has ended";
    EXPECT_TRUE((*file)->Close());
    EXPECT_TRUE(MendRecording(broken));
  }
  EXPECT_FALSE((*file)->Tally().fault.empty());
  EXPECT_EQ((*file)->Tally().bytes, static_cast<std::int64_t>(fs::file_size(path)));
  const std::vector<int> kept = NumbersOf(path);
  EXPECT_GT(kept.size() + 5, taken.size());
  EXPECT_TRUE(std::equal(kept.begin(), kept.end(), taken.begin()));
  EXPECT_EQ(NumbersOf(broken), kept);
}

}  // namespace
}  // namespace kinalyx::test
