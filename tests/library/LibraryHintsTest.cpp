#include "library/LibraryHints.h"

#include <gtest/gtest.h>

#include "TempLibrary.h"

namespace kinalyx::test {
namespace {

using Kind = LibraryBrowser::Kind;

struct LibraryHintsTest : ::testing::Test {
  LibraryHintsTest() { EXPECT_TRUE(SetPrimaryName(library.settings, "Golfer")); }

  /// What the lists of a page say when these are chosen.
  LibraryHints Hints(Kind kind, std::string_view instructor = {}, std::string_view student = {}) {
    LastStudentInfo remembered;
    LibraryBrowser browser(library.host.Drives(), library.settings, remembered, kind);
    browser.CapfolderSetup();
    browser.SelectInstructor(instructor);
    browser.SelectStudent(student);
    return HintsOf(browser, Vocabulary(library.settings), false);
  }

  TempLibrary library;
};

TEST_F(LibraryHintsTest, EachEmptyListSaysWhatFillsIt) {
  EXPECT_EQ(Hints(Kind::Profiles).students, "Add the first instructor beneath the list on the left.");
  EXPECT_EQ(Hints(Kind::OpenVideo).students, "Add the first instructor on the page Golfer Profiles.");
  EXPECT_EQ(Hints(Kind::Exchange).students, "No instructors or databases here.");

  library.Folder("Demo/Tom");
  library.Folder("Quick Launch");
  const struct {
    Kind kind;
    const char *instructor, *student;
    const char *students, *videos;
  } kCases[] = {
      {Kind::Profiles, "", "", "Choose an instructor to see the golfers.",
       "No videos lie in the library folder itself."},
      {Kind::Profiles, "Demo", "", "No golfers here yet. Add the first one beneath this list.",
       "Choose a golfer to see the videos."},
      {Kind::OpenVideo, "Demo", "Tom", "No golfers here yet.",
       "No videos yet. Capture or import one, or copy video files into the folder of this golfer."},
      {Kind::OpenVideo, "Quick Launch", "", "Quick Launch keeps videos, no golfers.",
       "No videos yet. Copy one here with Quick Launch +."},
      {Kind::Exchange, "Demo", "", "No golfers here.", "Choose a golfer, or take the whole database."},
      {Kind::Exchange, "Demo", "Tom", "No golfers here.", "No videos here."},
  };
  for (const auto& one : kCases) {
    const LibraryHints hints = Hints(one.kind, one.instructor, one.student);
    EXPECT_EQ(hints.students, one.students);
    EXPECT_EQ(hints.videos, one.videos);
  }
}

}  // namespace
}  // namespace kinalyx::test
