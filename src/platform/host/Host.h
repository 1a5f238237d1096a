#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kinalyx {

class DriveWatch;

enum class MessageKind { Information, Warning, Critical };

/// What a file dialog is asked for. `filter` has the form "Name (*.a;*.b)|*.a; *.b", and further such pairs for
/// further kinds of files.
struct FileDialog {
  std::string title;
  std::string folder;  ///< where it begins, empty: where something was picked last; for a new file its suggested path
  std::string filter;
};

/// What the machine tells of itself, for the system test and the window layouts.
struct SystemInfo {
  int screenWidth = 0;   ///< pixels
  int screenHeight = 0;  ///< pixels
  int bitsPerPixel = 0;
  int processorMHz = 0;  ///< 0 when the system does not tell
  std::int64_t ramKilobytes = 0;
};

/// A card that tells what the program is waiting for, until it goes out of scope. While it stands, nothing
/// else takes clicks or keys.
class IWaitCard {
 public:
  virtual ~IWaitCard() = default;
  /// The user would rather not wait.
  virtual bool Stopped() const = 0;
};

/// Everything that reaches the logic from outside: clock, timers, event pump, messages, questions,
/// dialogs, other programs, the log and drives that may not answer. The program passes one over Qt; tests pass
/// one whose clock they turn by hand and whose questions they answer.
class IHost {
 public:
  using TimerId = int;  ///< 0 is no timer

  virtual ~IHost() = default;

  /// Milliseconds of a clock that never goes back; its zero is arbitrary.
  virtual std::int64_t timeGetTime() = 0;

  /// Calls `action` on the user-interface thread after `milliseconds` (0: at the next turn of the
  /// event loop), again and again when `repeat`. Timers also run while a message box is open, but a timer
  /// whose own action is still running is passed over.
  virtual TimerId StartTimer(int milliseconds, bool repeat, std::function<void()> action) = 0;
  /// Unknown and finished timers are ignored; safe inside the timer's own action.
  virtual void StopTimer(TimerId timer) = 0;

  /// Lets queued window events, timers and repaints run, and returns.
  virtual void DoEvents() = 0;

  /// Shows a message and waits until it is read.
  virtual void Message(MessageKind kind, const std::string& title, const std::string& text) = 0;
  /// Asks a question with the buttons yes and no; true for yes.
  virtual bool Question(const std::string& title, const std::string& text) = 0;
  /// Shows a card with the one button "Stop Waiting", and returns at once.
  virtual std::unique_ptr<IWaitCard> ShowWait(const std::string& title, const std::string& text) = 0;
  /// The path of an existing file, or nothing when the user cancels.
  virtual std::optional<std::string> PickFile(const FileDialog& dialog) = 0;
  /// The paths of existing files, several if the user likes; none when the user cancels.
  virtual std::vector<std::string> PickFiles(const FileDialog& dialog) = 0;
  /// The path of a file to be written, or nothing when the user cancels. A name without an ending gets the first
  /// one of the kind that was chosen. Where the file exists already, the user has agreed to replace it.
  virtual std::optional<std::string> PickNewFile(const FileDialog& dialog) = 0;
  /// The path of an existing folder, or nothing when the user cancels.
  virtual std::optional<std::string> PickFolder(const std::string& title, const std::string& folder) = 0;

  /// Shows a folder in the desktop's file manager; false when there is none.
  virtual bool ShowFolder(const std::string& folder) = 0;
  /// Starts a program that outlives this one; false when it cannot be started.
  virtual bool StartDetached(const std::string& program, const std::vector<std::string>& arguments) = 0;

  virtual SystemInfo System() = 0;

  /// Writes down what went wrong, for whoever is asked to help later. Any thread may call it, and nobody waits
  /// for it. The text names no student and no video; paths are left out of it.
  virtual void Note(MessageKind kind, const std::string& text) = 0;

  /// The way to folders on drives that may not answer.
  virtual DriveWatch& Drives() = 0;
};

/// A timer that stops when it goes out of scope. Movable, not copyable.
class HostTimer {
 public:
  HostTimer() = default;
  HostTimer(IHost& host, int milliseconds, bool repeat, std::function<void()> action)
      : host_(&host), id_(host.StartTimer(milliseconds, repeat, std::move(action))) {}
  HostTimer(HostTimer&& other) noexcept : host_(other.host_), id_(std::exchange(other.id_, 0)) {}
  HostTimer& operator=(HostTimer&& other) noexcept {
    if (this != &other) {
      Stop();
      host_ = other.host_;
      id_ = std::exchange(other.id_, 0);
    }
    return *this;
  }
  ~HostTimer() { Stop(); }

  void Stop() {
    if (host_ && id_) host_->StopTimer(std::exchange(id_, 0));
  }
  bool Running() const { return id_ != 0; }

 private:
  IHost* host_ = nullptr;
  IHost::TimerId id_ = 0;
};

}  // namespace kinalyx
