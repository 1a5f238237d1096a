#pragma once

#include <cassert>
#include <cstring>
#include <optional>
#include <string>
#include <utility>

namespace kinalyx {

/// What stood in the way, where callers tell one from another.
enum class Fault {
  None,
  Failed,      ///< whatever nobody tells apart
  Refused,     ///< by a rule, or by somebody else who is at it: another place would not help
  Unwritable,  ///< in this place; another may serve
  Cancelled,   ///< by the user
  NotFound,    ///< there is no such file, or it cannot be read
  NoMedia,     ///< the file holds nothing that can be decoded as a video stream
  NoFrames,    ///< a video stream with not one picture
};

/// How an operation went: done, or not, and then why.
class [[nodiscard]] Outcome {
 public:
  /// Done.
  Outcome() = default;
  Outcome(Fault fault, std::string why) : fault_(fault), why_(std::move(why)) {}
  static Outcome Failed(std::string why) { return {Fault::Failed, std::move(why)}; }
  /// In the system's words for a value of errno.
  static Outcome FailedBySystem(int reason) { return Failed(std::strerror(reason)); }

  explicit operator bool() const { return fault_ == Fault::None; }
  Fault Kind() const { return fault_; }
  /// In words for the user; empty when it is done.
  const std::string& Why() const { return why_; }

 private:
  Fault fault_ = Fault::None;
  std::string why_;
};

/// What an operation has made, or why it has made nothing. Ask before you reach into it.
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : value_(std::move(value)) {}
  /// @param failure  an outcome that is not done
  Result(Outcome failure) : outcome_(std::move(failure)) { assert(!outcome_); }

  explicit operator bool() const { return value_.has_value(); }
  T& operator*() { return *value_; }
  const T& operator*() const { return *value_; }
  T* operator->() { return &*value_; }
  const T* operator->() const { return &*value_; }
  Fault Kind() const { return outcome_.Kind(); }
  /// Why there is nothing, to be handed on.
  const Outcome& Failure() const { return outcome_; }
  const std::string& Why() const { return outcome_.Why(); }

 private:
  std::optional<T> value_;
  Outcome outcome_;
};

/// A reason as a sentence of its own, for a message.
inline std::string AsSentence(std::string why) {
  if (why.empty()) return why;
  if (why.front() >= 'a' && why.front() <= 'z') why.front() = static_cast<char>(why.front() - 'a' + 'A');
  if (why.back() != '.') why += '.';
  return why;
}

}  // namespace kinalyx
