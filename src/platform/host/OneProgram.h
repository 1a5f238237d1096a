#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kinalyx {

/// What a second start of the program hands to the first.
struct StartWish {
  std::vector<std::string> paths;  ///< whole paths of what is to be opened; none: the window is to come forward
  std::string token;               ///< by which the desktop lets the window come forward; empty on X11
};

/// One running program for one user at one library: the first start holds a lock that goes with its process however
/// that ends, and listens; every further start finds the lock taken, hands over what it was asked to open, and goes.
class OneProgram {
 public:
  enum class Told {
    Taken,     ///< the first program has it
    NoAnswer,  ///< the first program is there and does not answer
  };

  /// Needs the application object.
  /// @param key  what the programs that are to be one have in common
  explicit OneProgram(const std::string& key);
  ~OneProgram();
  OneProgram(const OneProgram&) = delete;
  OneProgram& operator=(const OneProgram&) = delete;

  /// True when this is the first, or when nobody can tell: a machine without a place for the lock has each start by
  /// itself.
  bool First() const;
  /// Hands a wish to the first program and waits until it has it, at most so long.
  Told Tell(const StartWish& wish, int milliseconds) const;
  /// In the first program: calls `take` in the event loop for every wish, those that have come already first.
  void Serve(std::function<void(const StartWish&)> take);
  /// The next start is the first again, although this one still runs.
  void Release();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace kinalyx
