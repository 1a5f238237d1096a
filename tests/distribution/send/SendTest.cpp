#include "distribution/send/FilesToSend.h"
#include "distribution/send/SendWish.h"
#include "support/TempFolder.h"

namespace kinalyx {
namespace {

TEST(FilesToSend, ListsEachVideoAndLessonOnce) {
  test::TempFolder folder;
  for (const char* name : {"Anna", "Ben", "Anna/Lessons", "Ben/Lessons"})
    std::filesystem::create_directories(folder.Path(name));
  for (const char* name : {"Anna/Swing.avi", "Ben/Swing.avi", "Anna/Lessons/Swing.avi", "Ben/Lessons/Swing.avi"})
    folder.Put(name, std::string(1000, 'x'));
  FilesToSend files;
  EXPECT_EQ(files.Add(folder.Path("Anna/Swing.avi"), false), "Video successfully added to the Files to Send list.");
  EXPECT_EQ(files.Add(folder.Path("Ben/Swing.avi"), false), "This video is already in the Files to Send list.");
  EXPECT_EQ(files.Add(folder.Path("Anna/Lessons/Swing.avi"), true),
            "Lesson successfully added to the Files to Send list.");
  EXPECT_EQ(files.Add(folder.Path("Ben/../Anna/Lessons/Swing.avi"), true),
            "This lesson is already in the Files to Send list.");
  EXPECT_EQ(files.Add(folder.Path("Ben/Lessons/Swing.avi"), true),
            "Lesson successfully added to the Files to Send list.")
      << "of another student";
  EXPECT_EQ(files.Add(folder.Path("Anna/gone.avi"), false), "\"gone.avi\" could not be found.");
  ASSERT_EQ(files.Files().size(), 3U);
  EXPECT_EQ(files.Files()[0].Entry(), "Swing.avi");
  EXPECT_EQ(files.Files()[1].Entry(), "(Lesson)-Swing.avi");
  EXPECT_EQ(files.Bytes(), 3000);
  std::filesystem::remove(folder.Path("Anna/Swing.avi"));
  EXPECT_EQ(files.Bytes(), 2000);
  EXPECT_EQ(files.Remove(9), "");
  EXPECT_EQ(files.Remove(0), "File successfully removed from Files to Send list.");
  EXPECT_EQ(files.Files().size(), 2U);
}

TEST(FilesToSend, SizesAreWholeMegabytes) {
  const std::int64_t mega = 1 << 20;
  EXPECT_EQ(MegabytesText(0), "0MB");
  EXPECT_EQ(MegabytesText(1), "1MB");
  EXPECT_EQ(MegabytesText(999 * mega), "999MB");
  EXPECT_EQ(MegabytesText(1234567 * mega), "1,234,567MB");
}

TEST(SendWish, SaysWhatIsMissingInItsOrder) {
  test::TempFolder folder;
  FilesToSend files;
  SendWish wish{.mode = SendMode::Web, .student = "", .addresses = {}};
  EXPECT_EQ(CheckWish(wish, files, {"a@b.org"}, "golfer"), "You must add a video before continuing.");
  files.Add(folder.Put("Swing.avi", "x"), false);
  EXPECT_EQ(CheckWish(wish, files, {"", " "}, "golfer"), "You must add a email address before continuing.");
  EXPECT_EQ(CheckWish(wish, files, {"nobody"}, "golfer"), "\"nobody\" is not an email address.");
  EXPECT_EQ(CheckWish(wish, files, {"a@b.org"}, "golfer"), "You must select a golfer before continuing.");
  wish.student = "Anna";
  EXPECT_EQ(CheckWish(wish, files, {"", " a@b.org ", "a@b.org", "c@d.org"}, "golfer"), "");
  EXPECT_EQ(wish.addresses, (std::vector<std::string>{"a@b.org", "c@d.org"}));
}

}  // namespace
}  // namespace kinalyx
