#include "library/LibraryHints.h"

#include "library/LibraryReading.h"

namespace kinalyx {

namespace {

using Kind = LibraryBrowser::Kind;

bool HasInstructors(const LibraryBrowser& browser) { return browser.InstructorList().size() > 1; }

/// The hints of the import and export page.
LibraryHints ExchangeHints(const LibraryBrowser& browser, const Vocabulary& words) {
  LibraryHints hints;
  if (!HasInstructors(browser)) hints.students = "No instructors or databases here.";
  else if (browser.IsGeneralFolder()) hints.students = "Choose an instructor to see the " + words.nouns() + ".";
  else hints.students = "No " + words.nouns() + " here.";

  const bool listsVideos = browser.IsGeneralFolder() || browser.IsQuickLaunch() || browser.HasStudent();
  hints.videos = listsVideos ? "No videos here." : "Choose a " + words.noun() + ", or take the whole database.";
  return hints;
}

}  // namespace

LibraryHints HintsOf(const LibraryBrowser& browser, const Vocabulary& words, bool gone) {
  const std::string& root = browser.Tree().Root();
  if (browser.Silent()) {
    const std::string silent = SilentLibraryText(root) + " The lists fill as soon as it does.";
    return {silent, browser.StudentList().empty() ? "" : silent};
  }
  const bool exchange = browser.Purpose() == Kind::Exchange;
  if (exchange && root.empty()) return {"Choose a drive or folder first.", ""};
  if (gone && exchange) return {"The folder " + root + " cannot be reached.", ""};
  if (gone)
    return {"The library folder " + root + " cannot be reached; choose another in Program Setup, under General.", ""};
  if (exchange) return ExchangeHints(browser, words);

  // Only the profiles page has the buttons that add somebody.
  const bool adds = browser.Purpose() == Kind::Profiles;
  LibraryHints hints;
  if (!HasInstructors(browser)) {
    hints.students = adds ? "Add the first instructor beneath the list on the left."
                          : "Add the first instructor on the page " + words.Profiles() + ".";
  } else if (browser.IsGeneralFolder()) {
    hints.students = "Choose an instructor to see the " + words.nouns() + ".";
  } else if (browser.IsQuickLaunch()) {
    hints.students = "Quick Launch keeps videos, no " + words.nouns() + ".";
  } else {
    hints.students = "No " + words.nouns() + " here yet." + (adds ? " Add the first one beneath this list." : "");
  }

  if (browser.IsGeneralFolder()) hints.videos = "No videos lie in the library folder itself.";
  else if (browser.IsQuickLaunch()) hints.videos = "No videos yet. Copy one here with Quick Launch +.";
  else if (!browser.HasStudent()) hints.videos = "Choose a " + words.noun() + " to see the videos.";
  else
    hints.videos =
        "No videos yet. Capture or import one, or copy video files into the folder of this " + words.noun() + ".";
  return hints;
}

}  // namespace kinalyx
