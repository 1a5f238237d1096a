#include "library/NotesKeeper.h"

#include <iterator>
#include <optional>
#include <utility>

#include "library/Profile.h"
#include "library/TextMerge.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

/// True when a student's folder has gone although the folder above it is there. When both are gone, a drive
/// has been taken away.
bool HasGone(const std::string& folder) { return !dirExists(folder) && dirExists(FolderOf(folder)); }

}  // namespace

const std::string& NotesKeeper::Open(const std::string& studentFolder) {
  folder_ = studentFolder;
  text_.clear();
  base_.clear();
  readable_ = true;
  if (folder_.empty()) return text_;
  std::optional<std::string> notes;
  if (events_.CanReachNotes(folder_)) notes = LoadNotes(folder_);
  if (const auto waiting = unsaved_.find(folder_); waiting != unsaved_.end()) {
    text_ = waiting->second.text;
    base_ = waiting->second.base;
  } else {
    text_ = base_ = notes.value_or("");
    readable_ = notes.has_value();
  }
  return text_;
}

Outcome NotesKeeper::Store(const std::string& folder, Waiting& notes) {
  const auto theirs = LoadNotes(folder);
  if (!theirs) return Outcome::Failed(Tr("the notes that are there cannot be read"));
  std::string merged = WithLineEnds(MergeTexts(notes.base, notes.text, *theirs));
  if (merged != *theirs) {
    if (Outcome saved = SaveNotes(folder, merged); !saved) return saved;
  }
  notes.text = std::move(merged);
  return {};
}

Outcome NotesKeeper::Keep(std::optional<std::string_view> typed) {
  if (typed && !folder_.empty() && readable_) {
    text_ = WithLineEnds(*typed);
    if (text_ == base_) unsaved_.erase(folder_);  // taken back
    else unsaved_[folder_] = {text_, base_};
  }
  Outcome all;
  for (auto notes = unsaved_.begin(); notes != unsaved_.end();) {
    auto& [folder, waiting] = *notes;
    const bool reached = events_.CanReachNotes(folder);
    const bool gone = reached && HasGone(folder);
    const Outcome stored = gone      ? Outcome()
                           : reached ? Store(folder, waiting)
                                     : Outcome::Failed(Tr("the drive is not answering"));
    if (stored && folder == folder_) text_ = base_ = waiting.text;
    if (gone && !waiting.text.empty()) events_.NotesLost(folder, waiting.text);
    if (!stored) all = stored;
    notes = stored ? unsaved_.erase(notes) : std::next(notes);
  }
  return all;
}

}  // namespace kinalyx
