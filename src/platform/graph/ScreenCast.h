#pragma once

#include <atomic>
#include <memory>
#include <string>

#include "platform/files/Result.h"

namespace kinalyx {

/// A screen that the desktop has let us see.
struct GrantedScreen {
  int connection = -1;  ///< to PipeWire; whoever gets it closes it
  unsigned node = 0;    ///< there
  std::string session;  ///< for EndScreenCast
  std::string token;    ///< with which the desktop need not ask again while the program runs; may be empty
};

/// A question to the desktop's portal that can be taken back.
class ScreenQuestion {
 public:
  ScreenQuestion();
  ~ScreenQuestion();
  /// From any thread: Ask comes back soon, and fails with Cancelled.
  void TakeBack();

  /// Asks the user, in a window of the desktop, for a screen with its pointer, and waits for the answer. Cancelled when
  /// the user has said no. Not on the user-interface thread.
  /// @param token  of the last time; empty for none
  Result<GrantedScreen> Ask(const std::string& token);

 private:
  struct Line;
  std::unique_ptr<Line> line_;
};

/// The desktop shows no more that the screen is seen. May take as long as the desktop takes to answer.
void EndScreenCast(const std::string& session);

}  // namespace kinalyx
