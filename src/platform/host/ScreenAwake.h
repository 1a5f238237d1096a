#pragma once

#include <memory>
#include <string>

namespace kinalyx {

/// Asks the desktop to leave the screen on, for as long as this lives; it asks in a thread of its own, and nobody
/// waits for the answer. A desktop that offers no such thing does as it likes.
class ScreenAwake {
 public:
  /// @param why  for the user, should the desktop tell
  explicit ScreenAwake(std::string why);
  ~ScreenAwake();
  ScreenAwake(const ScreenAwake&) = delete;
  ScreenAwake& operator=(const ScreenAwake&) = delete;

 private:
  struct Wish;
  std::shared_ptr<Wish> wish_;  ///< shared with the thread, which may outlive this
};

}  // namespace kinalyx
