#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include "platform/host/Host.h"

namespace kinalyx {

/// Work that has been sent to a drive, and may be long in coming back.
class IErrand {
 public:
  virtual ~IErrand() = default;
  /// Waits at most so long; true when the work is over.
  virtual bool Over(int milliseconds) = 0;
};

/// Keeps the window alive when a drive does not answer. A share whose server has gone, or a disk that is
/// failing, holds up every call that touches it, often for minutes; so what the interface wants of a drive
/// is done by a worker, and the interface waits for it: unnoticed at first, then under a card that lets the
/// user stop the wait. A drive that was given up is silent: asked again it is not waited for, until the
/// work that hangs in it comes back.
///
/// A drive goes by the folder where it begins for the user, its place: the root of the library, or the
/// folder that was chosen for an export. All calls are on the user-interface thread.
class DriveWatch {
 public:
  using Work = std::function<void()>;
  /// How work gets to the drive; a test passes one that hangs when it wants.
  using Send = std::function<std::shared_ptr<IErrand>(Work work)>;

  explicit DriveWatch(IHost& host, Send send = SendWorker);
  DriveWatch(const DriveWatch&) = delete;
  DriveWatch& operator=(const DriveWatch&) = delete;

  /// Does `work` and returns what it returns, or nothing when the drive of `place` does not answer. Windows
  /// and timers run while the user is waiting; who asks from one of their handlers is not kept waiting a
  /// second time.
  /// @param work  owns all that it uses, for it may go on when nobody waits any more. It should read: what
  ///              writes asks with Answers first, so that nothing is written long after it was given up.
  template <typename Reading>
  std::optional<std::invoke_result_t<Reading&>> Ask(const std::string& place, Reading work) {
    return Ask(place, std::move(work), Patience::Card);
  }
  /// The same for what nobody has asked for just now: without a card. A drive that takes longer than a wait
  /// that nobody notices is silent.
  template <typename Reading>
  std::optional<std::invoke_result_t<Reading&>> AskAtOnce(const std::string& place, Reading work) {
    return Ask(place, std::move(work), Patience::None);
  }

  /// True when the drive of `place` answers for a file or folder on it, whether or not there is one.
  bool Answers(const std::string& place, const std::string& path);
  bool Answers(const std::string& place) { return Answers(place, place); }
  /// The same without a card.
  bool AnswersAtOnce(const std::string& place, const std::string& path);

  /// True while work hangs in the drive of `place`.
  bool Silent(const std::string& place);
  /// The next one who asks shall wait again.
  void TryAgain(const std::string& place) { silent_.erase(place); }
  /// Calls `action` once the drive of `place` is silent no more, and every second from then on until the
  /// caller lets go of the timer, which it may do in the action.
  [[nodiscard]] HostTimer WhenAnswers(const std::string& place, std::function<void()> action);

  /// Has a thread of its own do the work. The thread is left to itself with what the work owns, so nobody
  /// ever waits for a thread that hangs: not the next question, and not the end of the program.
  static std::shared_ptr<IErrand> SendWorker(Work work);

 private:
  enum class Patience { None, Card };

  template <typename Reading>
  std::optional<std::invoke_result_t<Reading&>> Ask(const std::string& place, Reading work, Patience patience) {
    const auto answer = std::make_shared<std::optional<std::invoke_result_t<Reading&>>>();
    if (!Carry(
            place, [answer, work = std::move(work)]() mutable { *answer = work(); }, patience))
      return std::nullopt;
    return std::move(*answer);
  }
  bool Carry(const std::string& place, Work work, Patience patience);
  bool WaitUnderCard(const std::string& place, IErrand& errand);

  IHost& host_;
  Send send_;
  std::map<std::string, std::shared_ptr<IErrand>> silent_;  ///< by place: what hangs there
  bool cardShown_ = false;
};

}  // namespace kinalyx
