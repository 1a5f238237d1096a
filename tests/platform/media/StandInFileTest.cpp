#include "platform/media/StandInFile.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <map>
#include <memory>
#include <thread>

#include "platform/files/Folders.h"
#include "platform/media/PassTurn.h"
#include "platform/media/StandInShelf.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;

constexpr int kPictures = 50;
constexpr FileStamp kVideo{7, 1000, 123456789};

Bytes Packed(int picture, std::size_t size = 900) {
  Bytes bytes(size);
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::uint8_t>(picture * 31 + i * 7);
  return bytes;
}

class StandInFileTest : public testing::Test {
 protected:
  /// Opens the file of a video, and reads what it tells of.
  std::unique_ptr<StandInFile> Open(const FileStamp& video = kVideo) {
    found.clear();
    return StandInFile::Open(limits, video, kPictures,
                             [this](const StandInFile::Place& place) { found[place.picture] = place; });
  }
  void Fill(int pictures, const FileStamp& video = kVideo) {
    const auto file = Open(video);
    ASSERT_TRUE(file);
    for (int n = 0; n < pictures; ++n) ASSERT_TRUE(file->Append(n, 640, Packed(n)));
  }
  std::string OnlyFile() const {
    for (const auto& entry : fs::directory_iterator(limits.folder)) return entry.path().string();
    return {};
  }
  void Scribble(std::int64_t at, char byte) const {
    std::fstream file(OnlyFile(), std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(at);
    file.put(byte);
  }

  TempFolder folder;
  StandInLimits limits{folder.Path("cache/kinalyx")};
  std::map<int, StandInFile::Place> found;
};

TEST_F(StandInFileTest, IsFoundAgainByTheSameVideoAlone) {
  Fill(20);
  const auto again = Open();
  ASSERT_TRUE(again);
  ASSERT_EQ(found.size(), 20u);
  for (const auto& [n, place] : found) EXPECT_EQ(again->Read(place), Packed(n));
  ASSERT_TRUE(Open({7, 1000, 123456790}));
  EXPECT_TRUE(found.empty()) << "of a file that was replaced";

  // Another window with the same video reads, and leaves the writing to the first.
  const auto second = Open();
  ASSERT_TRUE(second);
  EXPECT_EQ(found.size(), 20u);
  EXPECT_FALSE(second->Append(30, 640, Packed(30)));
  EXPECT_TRUE(again->Append(30, 640, Packed(30)));
}

TEST_F(StandInFileTest, LosesOnlyWhatIsDamaged) {
  Fill(20);
  const auto size = static_cast<std::int64_t>(fs::file_size(OnlyFile()));
  // One byte of a picture: that one is lost.
  Scribble(size - 10 * 920 - 300, 'x');
  {
    const auto file = Open();
    int sound = 0;
    for (const auto& [n, place] : found) sound += file->Read(place) == Packed(n);
    EXPECT_EQ(found.size(), 20u);
    EXPECT_EQ(sound, 19);
  }
  // A cut in the middle of a picture, and the file goes on from there.
  fs::resize_file(OnlyFile(), static_cast<std::uintmax_t>(size - 500));
  {
    const auto file = Open();
    EXPECT_EQ(found.size(), 19u);
    EXPECT_TRUE(file->Append(19, 640, Packed(19)));
  }
  EXPECT_TRUE(Open());
  EXPECT_EQ(found.size(), 20u);
  // Every byte of the heading counts, and any other is survived.
  for (std::int64_t at = 0; at < 1000; at += 3) {
    Scribble(at, '\xA5');
    ASSERT_TRUE(Open());
    for (const auto& [n, place] : found) ASSERT_TRUE(n >= 0 && n < kPictures && place.longSide > 0);
  }
  std::ofstream(OnlyFile(), std::ios::binary) << "something else";
  ASSERT_TRUE(Open());
  EXPECT_TRUE(found.empty());
}

TEST_F(StandInFileTest, KeepsToItsBounds) {
  limits.one = 10 * 920;
  {
    const auto file = Open();
    int taken = 0;
    for (int n = 0; n < kPictures; ++n) taken += file->Append(n, 640, Packed(n)).has_value();
    EXPECT_EQ(taken, 9);
    EXPECT_LE(static_cast<std::int64_t>(fs::file_size(OnlyFile())), limits.one);
  }
  // Six videos where there is room for three: those that were opened longest ago go.
  limits.one = 1 << 20;
  std::vector<fs::path> files;
  for (std::uint64_t video = 100; video < 105; ++video) {
    Fill(10, {video, 1, 1});
    for (const auto& entry : fs::directory_iterator(limits.folder))
      if (std::ranges::find(files, entry.path()) == files.end()) files.push_back(entry.path());
    fs::last_write_time(files.back(), fs::file_time_type::clock::now() - std::chrono::hours(200 - video));
  }
  limits.all = 30'000;
  CleanStandIns(limits, files.back().string());
  ASSERT_EQ(files.size(), 6u);
  for (std::size_t i = 0; i < files.size(); ++i) EXPECT_EQ(fs::exists(files[i]), i == 0 || i > 3) << i;
  std::ofstream(folder.Path("taken")) << "a file where the folder should be";
  limits.folder = folder.Path("taken");
  EXPECT_FALSE(Open());
}

TEST_F(StandInFileTest, AShelfKeepsWhatLiesNearTheHandAndReadsTheRestFromTheDisk) {
  StandInShelf shelf(kPictures);
  shelf.Trim(10 * 900, 25);
  // Without a file there are ten at most, and nobody is sent to make what would be thrown away.
  int made = 0;
  while (const auto missing = shelf.Missing(0, kPictures, 640, 25)) {
    ASSERT_LT(++made, 200);
    shelf.Put(*missing, 640, Packed(*missing), 25);
  }
  int kept = 0;
  for (int n = 0; n < kPictures; ++n) kept += shelf.Has(n);
  EXPECT_EQ(kept, 10);
  EXPECT_TRUE(shelf.Has(25) && shelf.Has(22) && shelf.Has(28));
  EXPECT_TRUE(shelf.Missing(0, kPictures, 640, 45)) << "the hand has moved";

  StandInShelf onDisk(kPictures);
  onDisk.Trim(3 * 900, 0);
  onDisk.Attach(limits, kVideo);
  for (int n = 0; n < kPictures; ++n) onDisk.Put(n, 640, Packed(n), 0);
  EXPECT_FALSE(onDisk.Missing(0, kPictures, 640, 0));
  EXPECT_TRUE(onDisk.Missing(0, kPictures, 960, 0)) << "of a window that has grown";
  for (int n = 0; n < kPictures; ++n) {
    const auto bytes = onDisk.Get(n);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(*bytes, Packed(n));
  }
  fs::resize_file(OnlyFile(), 0);
  EXPECT_FALSE(onDisk.Get(40));
  EXPECT_EQ(onDisk.Missing(0, kPictures, 640, 0), 40) << "what was lost is made again";
}

TEST(PassTurn, AsksWhetherTheMachineRunsOnABattery) {
  TempFolder folder;
  const auto supply = [&](const std::string& name, const std::string& file, const std::string& text) {
    fs::create_directories(folder.Path(name));
    std::ofstream(folder.Path(name + "/" + file)) << text << "\n";
  };
  EXPECT_FALSE(OnBattery(folder.Path("none")));
  supply("BAT0", "type", "Battery");
  supply("BAT0", "status", "Discharging");
  EXPECT_TRUE(OnBattery(folder.Path()));
  supply("AC", "type", "Mains");
  supply("AC", "online", "1");
  EXPECT_FALSE(OnBattery(folder.Path()));
  supply("AC", "online", "0");
  EXPECT_TRUE(OnBattery(folder.Path()));
  supply("BAT0", "scope", "Device");  // a mouse
  EXPECT_FALSE(OnBattery(folder.Path()));
}

TEST(PassTurn, GoesToTheVideoThatWasInHandLastAndToNobodyWhileOthersWork) {
  PassTurn first;
  PassTurn second;
  first.Want(true);
  second.Want(true);
  first.Handle();
  PassTurn::GiveWay();
  EXPECT_GT(first.Delay().count(), 0);
  // What others do in this process ends at some time.
  while (first.Delay().count() > 0) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  EXPECT_GT(second.Delay().count(), 0);
  first.Want(false);
  EXPECT_EQ(second.Delay().count(), 0);
}

}  // namespace
}  // namespace kinalyx::test
