#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "capture/BlockKeeper.h"
#include "capture/TriggerTimes.h"
#include "capture/WorkingFiles.h"
#include "platform/host/Host.h"

namespace kinalyx {

/// What is told of a microphone.
class IMeterEvents {
 public:
  virtual ~IMeterEvents() = default;
  /// The meter has moved, 0 to 1; `fired` when an impact was heard.
  virtual void SoundCame(double level, bool fired) = 0;
};

/// What a monitoring tells the session whose cameras it uses.
class IMonitoringEvents : public IMeterEvents {
 public:
  virtual void MonitoringSays(std::string status) = 0;
  /// A video was kept.
  virtual void MonitoringKept(const std::string& video) = 0;
};

/// How much the cameras' pictures of the last seconds take.
struct MemoryTally {
  double seconds = 0;  ///< of the camera that remembers least
  double wanted = 0;
  std::int64_t bytes = 0;  ///< of all cameras
  std::int64_t bound = 0;
};

/// The hands-free ways of capture: an impact that the microphone hears, or a click, has what surrounds it kept as a
/// video. The cameras' pictures are remembered all the time, and the next trigger counts as soon as the window of the
/// one before is over, whatever is still being written and kept.
class Monitoring : private IBlockEvents {
 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    CaptureSetup& setup;
    VideoNaming& naming;
    WorkingFiles& files;
    JobRunner& jobs;  ///< for the blocks alone
    IMonitoringEvents& events;
    std::string trimProgram;
  };
  /// All of it outlives this.
  explicit Monitoring(Parts parts);
  ~Monitoring() override;

  /// `MonitoringArmed`: the graph that is built next waits for triggers.
  bool Armed() const { return armed_; }
  void Arm(bool on);

  // --- around each run of an armed graph, by the session

  /// Between loading and running: windows, microphone, files.
  Outcome Prepare(IGraph& graph, int cameras, bool second);
  void Begin(IGraph& graph);
  /// The graph has been stopped and not been cleared: its last blocks are fetched.
  void End();
  void TriggerFired();
  void BlockWritten();

  /// The click at the end of the swing.
  /// @return  false where nothing waits for it, or the click before was just now
  bool Fire();
  /// Threshold and input level have changed.
  void TakeLevels();
  void SetThreshold(int percent);
  void SetInputLevel(int percent);

  /// `CapturedCount`: videos since the page opened.
  int CapturedCount() const { return CapturedCount_; }
  void ResetCount() { CapturedCount_ = 0; }
  /// `TriggerPending`: a trigger has fired, and its video is not kept yet.
  bool TriggerPending() const { return pending_ > 0; }
  /// Blocks are being written or kept of which the user does not see the run any more.
  bool Keeping() const { return keeper_.Busy() || !ending_.empty(); }
  /// Waits a while, pumping events, until there are none.
  void FinishKeeping();
  /// How many videos could not be kept.
  int LostCount() const { return lost_; }
  MemoryTally Memory() const;

 private:
  bool Sound() const { return parts_.setup.Method() == CaptureMethod::Sound; }
  TriggerWindow Window() const;
  IBlockRecordingFilter* Block(int camera) const;
  void Poll();
  void Fetch();
  void FetchEnding();
  void SayWaiting();

  void BlockKept(const SavedRecording& saved, int videos) override;
  void BlockLost(const std::string& why) override;

  Parts parts_;
  BlockKeeper keeper_;
  /// Of a run: what writes its blocks.
  struct Writers {
    int run = 0;
    std::array<std::shared_ptr<IBlockWriter>, 2> cameras;
  };

  IGraph* graph_ = nullptr;      ///< that runs
  Writers writers_;              ///< of that
  std::vector<Writers> ending_;  ///< of graphs that have been stopped, and still at it
  int cameras_ = 1;
  bool armed_ = false;
  int pending_ = 0;
  int CapturedCount_ = 0;
  int lost_ = 0;
  HostTimer UpdateAudioLevelTimer_;
  HostTimer windowTimer_;  ///< to the end of a trigger's window
  HostTimer restartTimer_;
  HostTimer endingTimer_;
};

}  // namespace kinalyx
