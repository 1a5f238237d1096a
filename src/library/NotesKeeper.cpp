#include "library/NotesKeeper.h"

#include <iterator>
#include <optional>
#include <utility>

#include "library/Profile.h"
#include "library/TextMerge.h"
#include "platform/files/Folders.h"

namespace kinalyx {

namespace {

/// True when a student's folder has gone although the folder above it is there. When both are gone, a drive
/// has been taken away.
bool HasGone(const std::string& folder) {
  return !dirExists(folder) && dirExists(FolderOf(folder));
}

}  // namespace

const std::string& NotesKeeper::Open(const std::string& studentFolder) {
  folder_ = studentFolder;
  text_.clear();
  readable_ = true;
  if (folder_.empty()) return text_;
  std::optional<std::string> notes;
  if (reachable_(folder_)) notes = LoadNotes(folder_);
  text_ = notes.value_or("");
  if (const auto unsaved = unsaved_.find(folder_); unsaved != unsaved_.end()) return unsaved->second.text;
  readable_ = notes.has_value();
  return text_;
}

/// Leaves in `notes` what is on the disk then.
bool NotesKeeper::Store(const std::string& folder, Waiting& notes, std::string* error) {
  const auto theirs = LoadNotes(folder);
  if (!theirs) {
    if (error) *error = "The notes that are there cannot be read.";
    return false;
  }
  notes.text = WithLineEnds(MergeTexts(notes.base, notes.text, *theirs));
  notes.base = *theirs;
  return notes.text == *theirs || SaveNotes(folder, notes.text, error);
}

bool NotesKeeper::Keep(std::optional<std::string_view> text, std::string* error) {
  if (text && !folder_.empty() && readable_) {
    std::string lines = WithLineEnds(*text);
    const auto waiting = unsaved_.try_emplace(folder_, Waiting{{}, text_}).first;
    waiting->second.text = std::move(lines);
    if (waiting->second.text == waiting->second.base) unsaved_.erase(waiting);  // the file holds it already
  }
  for (auto notes = unsaved_.begin(); notes != unsaved_.end();) {
    const bool reached = reachable_(notes->first);
    if (!reached && error) *error = "the drive is not answering";
    const bool gone = reached && HasGone(notes->first);
    const bool settled = gone || (reached && Store(notes->first, notes->second, error));
    if (settled && notes->first == folder_) text_ = notes->second.text;
    if (gone && Lost && !notes->second.text.empty()) Lost(notes->first, notes->second.text);
    notes = settled ? unsaved_.erase(notes) : std::next(notes);
  }
  return unsaved_.empty();
}

}  // namespace kinalyx
