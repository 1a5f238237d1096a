#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files/Result.h"

namespace kinalyx {

/// What the keeper of notes asks and tells.
class INotesEvents {
 public:
  virtual ~INotesEvents() = default;
  /// False for a student's folder whose drive does not answer: it is not touched.
  virtual bool CanReachNotes(const std::string& folder) = 0;
  /// These were still to be stored when their folder had gone: somebody else has renamed, moved or deleted it.
  /// They wait no longer.
  virtual void NotesLost(const std::string& folder, const std::string& notes) = 0;
};

/// The notes of the student who is shown, from the moment at which they are read until they are safely
/// on the disk. Notes that could not be saved are kept in memory, shown again when the student comes
/// back, and tried again with every save.
class NotesKeeper {
 public:
  /// @param events  outlives it
  explicit NotesKeeper(INotesEvents& events) : events_(events) {}

  /// The notes of a student's folder; "" closes. What stood open before must have been handed to Keep.
  /// @return the text to show, lines ended by CR LF
  const std::string& Open(const std::string& studentFolder);
  /// False when the file cannot be read although it is there, or may be: nothing may then be typed over it.
  bool Readable() const { return readable_; }
  const std::string& StudentFolder() const { return folder_; }

  /// Stores what waits, each together with what somebody else has written there meanwhile. Fails when some of
  /// it, of whichever student, could not be stored.
  /// @param typed  what the user has made of the text of the open student; nothing when it was not touched,
  ///               and then nothing is written for it
  Outcome Keep(std::optional<std::string_view> typed);
  /// The notes of the open student as the user should see them: what Open gave or was typed last, and after
  /// Keep with what somebody else has written, lines ended by CR LF.
  const std::string& Text() const { return text_; }
  /// What waits to be stored, by student's folder.
  struct Waiting {
    std::string text;
    std::string base;  ///< what it was written upon

    friend bool operator==(const Waiting&, const Waiting&) = default;
  };
  const std::map<std::string, Waiting>& Unsaved() const { return unsaved_; }
  /// The notes of the open student are among it.
  bool OpenIsUnsaved() const { return unsaved_.contains(folder_); }

 private:
  Outcome Store(const std::string& folder, Waiting& notes);

  INotesEvents& events_;
  std::string folder_;
  std::string text_;
  std::string base_;  ///< what `text_` was written upon: the file as it was read or written last
  bool readable_ = true;
  std::map<std::string, Waiting> unsaved_;
};

}  // namespace kinalyx
