#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

#include "library/JobRunner.h"
#include "platform/files/Result.h"
#include "platform/net/ITransferWatch.h"

namespace kinalyx {

/// What becomes of an errand to a server; told on the user-interface thread.
class IServerEvents {
 public:
  virtual ~IServerEvents() = default;
  /// Several times a second.
  /// @param part  0 to 1 of what is sent; negative while nothing flows yet
  virtual void ServerProgress(double part) = 0;
  /// It is over, and the next one may start. Given up: Fault::Cancelled.
  virtual void ServerOver(const Outcome& outcome) = 0;
};

/// Has one errand to a server done at a time, on a worker: whoever ordered it never waits.
class ServerDesk {
 public:
  /// What is done; owns all that it needs, for it may go on when nobody waits any more.
  using Errand = std::function<Outcome(ITransferWatch& watch)>;

  /// All outlives the desk. An errand that is not over when it goes is given up, and told to nobody.
  ServerDesk(IHost& host, IServerEvents& events, JobRunner::On on) : events_(events), runner_(host, on) {}
  ~ServerDesk() { Cancel(); }

  /// False while another one is under way.
  bool Start(Errand errand);
  bool Busy() const { return runner_.Busy(); }
  void Cancel();

 private:
  class Line;
  class Job;
  class Told;

  IServerEvents& events_;
  std::shared_ptr<Line> line_;
  JobRunner runner_;
};

}  // namespace kinalyx
