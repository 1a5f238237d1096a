#include "platform/host/DriveWatch.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

/// A wait that nobody notices; a drive that works answers in a small part of it.
constexpr int kUnnoticedMs = 400;
/// Between two turns of the window while a card is shown.
constexpr int kTurnMs = 10;
/// How often a silent drive is looked after.
constexpr int kLookMs = 1000;

class ThreadErrand final : public IErrand {
 public:
  bool Over(int milliseconds) override {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, std::chrono::milliseconds(milliseconds), [this] { return over_; });
  }
  void Finish() {
    const std::lock_guard lock(mutex_);
    over_ = true;
    changed_.notify_all();
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  bool over_ = false;
};

}  // namespace

DriveWatch::DriveWatch(IHost& host, Send send) : host_(host), send_(std::move(send)) {}

std::shared_ptr<IErrand> DriveWatch::SendWorker(Work work) {
  auto errand = std::make_shared<ThreadErrand>();
  std::thread([errand, work = std::move(work)] {
    work();
    errand->Finish();
  }).detach();
  return errand;
}

bool DriveWatch::Answers(const std::string& place, const std::string& path) {
  return Ask(place, [path] { return TouchPath(path); }).has_value();
}

bool DriveWatch::AnswersAtOnce(const std::string& place, const std::string& path) {
  return AskAtOnce(place, [path] { return TouchPath(path); }).has_value();
}

bool DriveWatch::Silent(const std::string& place) {
  const auto found = silent_.find(place);
  if (found == silent_.end()) return false;
  if (!found->second->Over(0)) return true;
  silent_.erase(found);
  return false;
}

HostTimer DriveWatch::WhenAnswers(const std::string& place, std::function<void()> action) {
  return {host_, kLookMs, true, [this, place, action = std::move(action)] {
            if (!Silent(place)) action();
          }};
}

bool DriveWatch::Carry(const std::string& place, Work work, Patience patience) {
  if (Silent(place)) return false;
  const std::shared_ptr<IErrand> errand = send_(std::move(work));
  if (errand->Over(kUnnoticedMs)) return true;
  // Silent already while it is waited for: a handler that runs meanwhile must not wait for it as well.
  silent_[place] = errand;
  if (patience == Patience::None) {
    host_.Note(MessageKind::Warning, "a drive does not answer");
    return false;
  }
  if (!WaitUnderCard(place, *errand)) {
    host_.Note(MessageKind::Warning, "a drive does not answer and was given up");
    return false;
  }
  silent_.erase(place);
  return true;
}

bool DriveWatch::WaitUnderCard(const std::string& place, IErrand& errand) {
  if (cardShown_) return false;
  cardShown_ = true;
  const auto card = host_.ShowWait(Tr("Waiting for a Drive"),
                                   Tr("The drive with the folder {} is not answering yet. It may be switched off, or "
                                      "out of reach.\n\nAs soon as it answers, the program goes on.",
                                      place));
  do host_.DoEvents();
  while (!card->Stopped() && !errand.Over(kTurnMs));
  cardShown_ = false;
  return errand.Over(0);
}

}  // namespace kinalyx
