#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <random>

#include "library/Sidecar.h"
#include "platform/files/FileStore.h"
#include "support/TempFolder.h"

namespace kinalyx {
namespace {

/// A lesson's worth of work: notes and two hundred drawings, all of one length of points.
SlotData Work(int points, const std::string& note) {
  SlotData data;
  for (int i = 0; i < 2000; ++i) data.Notes += note;
  for (int i = 0; i < 200; ++i) {
    Shape shape;
    shape.Kind = 0;
    shape.Locked = true;
    for (int p = 0; p < points; ++p) shape.Pts.push_back({p, i});
    shape.NumPts = shape.NumBound = static_cast<std::int16_t>(points);
    data.Shapes.Shapes.push_back(shape);
  }
  data.Shapes.NumShapes = 200;
  data.PictureWidth = 640;
  data.PictureHeight = 480;
  return data;
}

std::vector<std::uint8_t> BytesOf(const test::TempFolder& folder, const SlotData& data) {
  const std::string path = folder.Path("whole.ved");
  EXPECT_TRUE(WriteVideoData(path, data));
  return ReadWholeFile(path).value_or(std::vector<std::uint8_t>());
}

// The power goes, or somebody ends the program, while a sidecar is being saved: whatever the moment, the
// file holds the work of before or the work of after, to the last byte.
TEST(SidecarLoss, SurvivesTwoHundredKilledSaves) {
  const test::TempFolder folder;
  const SlotData before = Work(3, "Grip. ");
  const SlotData after = Work(40, "Turn the hips first.\r\n");
  const auto old = BytesOf(folder, before);
  const auto fresh = BytesOf(folder, after);
  ASSERT_NE(old, fresh);
  const std::string path = folder.Path("swing.ved");
  ASSERT_TRUE(WriteVideoData(path, before));

  std::mt19937 random(7);
  int foundOld = 0;
  int foundNew = 0;
  for (int kill = 0; kill < 200; ++kill) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      for (;;) {
        (void)WriteVideoData(path, after);
        (void)WriteVideoData(path, before);
      }
    }
    usleep(std::uniform_int_distribution<unsigned>(0, 8000)(random));
    ASSERT_EQ(::kill(child, SIGKILL), 0);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    const auto found = ReadWholeFile(path);
    ASSERT_TRUE(found) << "after kill " << kill;
    foundOld += *found == old;
    foundNew += *found == fresh;
    ASSERT_EQ(foundOld + foundNew, kill + 1) << "half a file of " << found->size() << " bytes";
  }
  // Both were caught, or the saves never got anywhere and nothing was tried.
  EXPECT_GT(foundOld, 0);
  EXPECT_GT(foundNew, 0);
  std::printf("200 killed saves: %d times the old file, %d times the new one, never half of one\n", foundOld, foundNew);

  // The next save goes through, whatever the killed ones left beside.
  EXPECT_TRUE(WriteVideoData(path, after));
  EXPECT_EQ(ReadWholeFile(path), fresh);
}

}  // namespace
}  // namespace kinalyx
