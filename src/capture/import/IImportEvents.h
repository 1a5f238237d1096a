#pragma once

#include <string>

namespace kinalyx {

/// What an import tells its page.
class IImportEvents {
 public:
  virtual ~IImportEvents() = default;
  /// The list, a status, the trim, how far it is, or what can be done: anything that the page shows.
  virtual void ImportChanged() = 0;
  /// A new video is in the library.
  virtual void VideoImported(const std::string& path) = 0;
  /// A folder must be chosen first: Program Setup, section Capture.
  virtual void GoToCaptureSetup() = 0;
};

}  // namespace kinalyx
