#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/host/DriveWatch.h"
#include "platform/host/FileKinds.h"
#include "platform/host/Host.h"

namespace kinalyx::test {

/// A host whose clock is turned by hand and whose questions are answered beforehand. Timers run when the
/// clock passes them, in the order in which they fall due; DoEvents runs what is due and stands still. Drives
/// answer at once, on the caller's thread, until the test has them hang.
class TestHost final : public IHost {
 public:
  std::int64_t now = 1000;
  SystemInfo system{1920, 1080, 32, 2400, 8 << 20};

  std::vector<std::string> messages;  ///< texts of all message boxes, in order
  std::vector<std::string> titles;    ///< their titles
  std::vector<std::string> notes;     ///< what was written to the log
  std::vector<std::string> questions;
  std::deque<bool> answers;  ///< taken from the front; without one the answer is no
  std::deque<std::optional<std::string>> files;
  std::vector<std::string> manyFiles;  ///< what the next choice of several files gives
  std::vector<std::string> shownFolders;
  std::deque<std::optional<std::string>> newFiles;
  std::string suggested;  ///< the path that the last of them was asked with
  std::deque<std::optional<std::string>> folders;
  std::vector<std::vector<std::string>> started;  ///< program and arguments
  bool drivesHang = false;                        ///< what a drive is asked from now on waits for DrivesAnswer
  bool stopsWaiting = true;                       ///< the user presses "Stop Waiting" as soon as there is a card
  std::vector<std::string> waits;                 ///< texts of the cards that were shown
  std::function<void()> onDoEvents;               ///< what the user does while the program lets events run

  /// Turns the clock on, running every timer at its own moment.
  void Advance(std::int64_t milliseconds) {
    const std::int64_t end = now + milliseconds;
    while (RunNext(end)) {
    }
    now = end;
  }
  /// The drives are there again and do what they were asked meanwhile.
  void DrivesAnswer() {
    drivesHang = false;
    for (const auto& errand : std::exchange(hanging_, {})) errand->Finish();
  }
  std::size_t TimerCount() const { return timers_.size(); }

  std::int64_t timeGetTime() override { return now; }

  TimerId StartTimer(int milliseconds, bool repeat, std::function<void()> action) override {
    const TimerId id = ++last_;
    timers_[id] = {now + std::max(0, milliseconds), std::max(1, milliseconds), repeat, std::move(action)};
    return id;
  }
  void StopTimer(TimerId timer) override { timers_.erase(timer); }

  void DoEvents() override {
    while (RunNext(now)) {
    }
    if (onDoEvents) onDoEvents();
  }

  void Message(MessageKind, const std::string& title, const std::string& text) override {
    titles.push_back(title);
    messages.push_back(text);
  }
  void Note(MessageKind, const std::string& text) override { notes.push_back(text); }
  bool Question(const std::string& title, const std::string& text) override {
    titles.push_back(title);
    questions.push_back(text);
    return Take(answers).value_or(false);
  }
  std::unique_ptr<IWaitCard> ShowWait(const std::string&, const std::string& text) override {
    waits.push_back(text);
    return std::make_unique<Card>(*this);
  }
  std::optional<std::string> PickFile(const FileDialog&) override { return Take(files).value_or(std::nullopt); }
  std::vector<std::string> PickFiles(const FileDialog&) override { return std::exchange(manyFiles, {}); }
  bool ShowFolder(const std::string& folder) override {
    shownFolders.push_back(folder);
    return true;
  }
  std::optional<std::string> PickNewFile(const FileDialog& dialog) override {
    suggested = dialog.folder;
    auto chosen = Take(newFiles).value_or(std::nullopt);
    if (chosen) chosen = WithEnding(*chosen, dialog.filter);
    return chosen;
  }
  std::optional<std::string> PickFolder(const std::string&, const std::string&) override {
    return Take(folders).value_or(std::nullopt);
  }
  bool StartDetached(const std::string& program, const std::vector<std::string>& arguments) override {
    started.push_back({program});
    started.back().insert(started.back().end(), arguments.begin(), arguments.end());
    return true;
  }
  SystemInfo System() override { return system; }
  DriveWatch& Drives() override { return drives_; }

 private:
  struct Timer {
    std::int64_t due = 0;
    std::int64_t interval = 1;
    bool repeat = false;
    std::function<void()> action;
  };

  class Card final : public IWaitCard {
   public:
    explicit Card(const TestHost& host) : host_(host) {}
    bool Stopped() const override { return host_.stopsWaiting; }

   private:
    const TestHost& host_;
  };

  class Errand final : public IErrand {
   public:
    explicit Errand(DriveWatch::Work work) : work_(std::move(work)) {}
    bool Over(int) override { return !work_; }
    void Finish() { std::exchange(work_, nullptr)(); }

   private:
    DriveWatch::Work work_;
  };

  std::shared_ptr<IErrand> Send(DriveWatch::Work work) {
    auto errand = std::make_shared<Errand>(std::move(work));
    if (drivesHang) hanging_.push_back(errand);
    else errand->Finish();
    return errand;
  }

  template <typename T>
  static std::optional<T> Take(std::deque<T>& queue) {
    if (queue.empty()) return std::nullopt;
    T front = std::move(queue.front());
    queue.pop_front();
    return front;
  }

  bool RunNext(std::int64_t end) {
    auto next = timers_.end();
    for (auto timer = timers_.begin(); timer != timers_.end(); ++timer)
      if (timer->second.due <= end && (next == timers_.end() || timer->second.due < next->second.due)) next = timer;
    if (next == timers_.end()) return false;
    now = std::max(now, next->second.due);
    const auto action = next->second.action;  // the action may stop its own timer
    if (next->second.repeat) {
      next->second.due += next->second.interval;
    } else {
      timers_.erase(next);
    }
    action();
    return true;
  }

  std::vector<std::shared_ptr<Errand>> hanging_;
  DriveWatch drives_{*this, [this](DriveWatch::Work work) { return Send(std::move(work)); }};
  TimerId last_ = 0;
  std::map<TimerId, Timer> timers_;
};

}  // namespace kinalyx::test
