#pragma once

#include <string>

namespace kinalyx {

/// The names under which the next videos of the capture page are kept, and the way to change them.
class IVideoNaming {
 public:
  virtual ~IVideoNaming() = default;
  /// Works the next names out from the folder as it is now.
  virtual void GetVideoName() = 0;
  /// Path of the next video; of camera 2's, for the second. Empty while the user has still to type a name.
  virtual const std::string& CapturedVideoPath() const = 0;
  virtual const std::string& CapturedVideoPath2() const = 0;
  /// Opens the editor of the name.
  virtual void ChangeName() = 0;
};

}  // namespace kinalyx
