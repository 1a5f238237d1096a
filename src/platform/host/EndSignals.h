#pragma once

#include <functional>
#include <memory>

namespace kinalyx {

/// Tells when the program is to end and nobody is asked any more: the desktop's session ends, or the process is told
/// to go by SIGTERM, SIGHUP or SIGINT.
class EndSignals {
 public:
  enum class Why {
    SessionEnds,  ///< the desktop waits for a moment; it ends the program itself, or the user stays after all
    Told,         ///< by a signal: the program ends now
  };

  /// @param ends  called in the event loop, whatever form is open. There is one of these objects at a time, within
  ///              the life of the application object
  explicit EndSignals(std::function<void(Why)> ends);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace kinalyx
