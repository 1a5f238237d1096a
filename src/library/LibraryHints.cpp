#include "library/LibraryHints.h"

#include "library/LibraryReading.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

using Kind = LibraryBrowser::Kind;

bool HasInstructors(const LibraryBrowser& browser) { return browser.InstructorList().size() > 1; }

/// The hints of the import and export page.
LibraryHints ExchangeHints(const LibraryBrowser& browser, const Vocabulary& words) {
  LibraryHints hints;
  if (!HasInstructors(browser)) hints.students = Tr("No instructors or databases here.");
  else if (browser.IsGeneralFolder()) hints.students = Tr("Choose an instructor to see the {}.", words.nouns());
  else hints.students = Tr("No {} here.", words.nouns());

  const bool listsVideos = browser.IsGeneralFolder() || browser.IsQuickLaunch() || browser.HasStudent();
  hints.videos = listsVideos ? Tr("No videos here.") : Tr("Choose a {}, or take the whole database.", words.noun());
  return hints;
}

}  // namespace

LibraryHints HintsOf(const LibraryBrowser& browser, const Vocabulary& words, bool gone) {
  const std::string& root = browser.Tree().Root();
  if (browser.Silent()) {
    const std::string silent = Tr("{} The lists fill as soon as it does.", SilentLibraryText(root));
    return {silent, browser.StudentList().empty() ? "" : silent};
  }
  const bool exchange = browser.Purpose() == Kind::Exchange;
  if (exchange && root.empty()) return {Tr("Choose a drive or folder first."), ""};
  if (gone && exchange) return {Tr("The folder {} cannot be reached.", root), ""};
  if (gone)
    return {Tr("The library folder {} cannot be reached; choose another in Program Setup, under General.", root), ""};
  if (exchange) return ExchangeHints(browser, words);

  // Only the profiles page has the buttons that add somebody.
  const bool adds = browser.Purpose() == Kind::Profiles;
  LibraryHints hints;
  if (!HasInstructors(browser)) {
    hints.students = adds ? Tr("Add the first instructor beneath the list on the left.")
                          : Tr("Add the first instructor on the page {}.", words.Profiles());
  } else if (browser.IsGeneralFolder()) {
    hints.students = Tr("Choose an instructor to see the {}.", words.nouns());
  } else if (browser.IsQuickLaunch()) {
    hints.students = Tr("Quick Launch keeps videos, no {}.", words.nouns());
  } else {
    hints.students = adds ? Tr("No {} here yet. Add the first one beneath this list.", words.nouns())
                          : Tr("No {} here yet.", words.nouns());
  }

  if (browser.IsGeneralFolder()) hints.videos = Tr("No videos lie in the library folder itself.");
  else if (browser.IsQuickLaunch()) hints.videos = Tr("No videos yet. Copy one here with Quick Launch +.");
  else if (!browser.HasStudent()) hints.videos = Tr("Choose a {} to see the videos.", words.noun());
  else
    hints.videos =
        Tr("No videos yet. Capture or import one, or copy video files into the folder of this {}.", words.noun());
  return hints;
}

}  // namespace kinalyx
