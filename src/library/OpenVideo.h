#pragma once

#include <string>
#include <vector>

namespace kinalyx {

/// What the forms that open videos ask of the analysis section.
class IOpenVideo {
 public:
  virtual ~IOpenVideo() = default;
  /// Opens a video in the current window; false when it could not be opened (the user has been told).
  virtual bool OpenVideo(const std::string& path) = 0;
  /// Opens several videos in successive windows, beginning with the current one. Returns how many there were.
  virtual int OpenFamily(const std::vector<std::string>& paths) = 0;
  /// Asks for videos that lie anywhere and opens them, likewise.
  virtual int PickAndOpen() = 0;
  /// Takes the last opened video out again.
  virtual void UndoLastOpen() = 0;
  /// The form is no longer wanted; it may be hidden, but not deleted before the call has returned.
  virtual void OpenVideoDone() = 0;
};

}  // namespace kinalyx
