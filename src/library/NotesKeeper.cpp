#include "library/NotesKeeper.h"

#include <iterator>
#include <optional>
#include <utility>

#include "library/Profile.h"
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
  if (const auto unsaved = unsaved_.find(folder_); unsaved != unsaved_.end()) return unsaved->second;
  readable_ = notes.has_value();
  return text_;
}

bool NotesKeeper::Keep(std::string_view text, std::string* error) {
  if (!folder_.empty() && readable_) {
    std::string lines = WithLineEnds(text);
    if (lines != text_) unsaved_[folder_] = std::move(lines);
    else unsaved_.erase(folder_);  // taken back: the file holds it already
  }
  for (auto notes = unsaved_.begin(); notes != unsaved_.end();) {
    const bool reached = reachable_(notes->first);
    if (!reached && error) *error = "the drive is not answering";
    const bool gone = reached && HasGone(notes->first);
    const bool settled = gone || (reached && SaveNotes(notes->first, notes->second, error));
    if (settled && notes->first == folder_) text_ = notes->second;
    if (gone && Lost && !notes->second.empty()) Lost(notes->first, notes->second);
    notes = settled ? unsaved_.erase(notes) : std::next(notes);
  }
  return unsaved_.empty();
}

}  // namespace kinalyx
