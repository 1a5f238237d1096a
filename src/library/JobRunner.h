#pragma once

#include <memory>
#include <string>

#include "platform/host/Host.h"

namespace kinalyx {

/// How far a long piece of work has come.
struct JobProgress {
  int done = 0;  ///< things done, of `total`
  int total = 0;
  double part = 0;      ///< 0 to 1
  std::string current;  ///< what is under way
};

/// A long piece of work, done in small steps. It owns all that it needs: where it runs on a worker,
/// it is nobody else's until it is over.
class IJob {
 public:
  virtual ~IJob() = default;
  /// Goes on for a moment; false when the work is over.
  virtual bool Step() = 0;
  /// Gives up between two steps and leaves nothing half done.
  virtual void Cancel() = 0;
  virtual JobProgress Progress() const = 0;
};

/// What becomes of a job, told to whoever started it.
class IJobEvents {
 public:
  virtual ~IJobEvents() = default;
  /// How far it is; several times a second.
  virtual void Progress(const JobProgress& progress) = 0;
  /// It is over; called once, and may start the next job. `job` is null when it did not answer to a cancel and
  /// was left to itself.
  virtual void Over(IJob* job) = 0;
};

/// Runs one job at a time beside the user's own work. All calls and all events are on the
/// user-interface thread.
class JobRunner {
 public:
  enum class On {
    Worker,     ///< a thread: a slow disk does not hold up the window
    HostTimer,  ///< one step at each turn of the event loop, in an order that does not change
  };

  JobRunner(IHost& host, On on) : host_(host), on_(on) {}
  JobRunner(const JobRunner&) = delete;
  JobRunner& operator=(const JobRunner&) = delete;
  /// Cancels, and waits a moment for the worker; one that hangs in a dead network folder is left behind.
  ~JobRunner();

  bool Busy() const { return state_ != nullptr; }
  /// Starts a job and keeps `events` until it is over; false when one is under way, and then nothing is told.
  bool Start(std::unique_ptr<IJob> job, std::unique_ptr<IJobEvents> events);
  /// Asks the job under way to give up; its end is told as always. A job that does not give up within three
  /// seconds, because the disk does not answer, is left to itself: it cleans up when the disk comes back.
  void Cancel();

 private:
  struct Shared;
  static void Work(std::shared_ptr<Shared> shared);
  void Poll();
  void Finish(bool abandoned);

  IHost& host_;
  On on_;
  std::shared_ptr<Shared> state_;
  std::unique_ptr<IJobEvents> events_;
  HostTimer timer_;
  std::int64_t cancelledAt_ = -1;
};

}  // namespace kinalyx
