#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "capture/VideoNaming.h"
#include "platform/graph/IShortSounds.h"
#include "platform/host/Host.h"

namespace kinalyx {

class Settings;

/// What a timed capture has done with the cameras.
class ITimedEvents {
 public:
  virtual ~ITimedEvents() = default;
  /// The recording is a video in the folder of the student, and the cameras are live again.
  /// @param note  what the user must know although it was; mostly empty
  virtual void TimedKept(const std::string& note) = 0;
  /// It is not: the cycle is over, and the user has been told why.
  virtual void TimedFailed() = 0;
};

/// Records without a look at what came.
class ITimedCapture {
 public:
  virtual ~ITimedCapture() = default;
  /// @param events  told of the end of it
  /// @return  false, told in the status, where nothing can be recorded
  virtual bool StartTimed(ITimedEvents& events) = 0;
  virtual void StopTimed() = 0;
  /// Says in the status what is going on.
  virtual void Say(std::string status) = 0;
};

/// What a cycle tells its page.
class IBeepEvents {
 public:
  virtual ~IBeepEvents() = default;
  /// Running or not, and what `CountPnl` shows.
  virtual void BeepChanged() = 0;
};

/// As far as the choices of a cycle go.
constexpr int kMostBeepSeconds = 60;
constexpr int kMostBeepCycles = 50;

/// A timed cycle of countdown, capture and save, with sounds: the coach may be far from the desk.
class BeepCapture : private ITimedEvents {
 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    VideoNaming& naming;
    ITimedCapture& cameras;
    IShortSounds& sounds;
    IBeepEvents& events;
    std::string soundFolder;  ///< where `typing1.wav` and the others lie
  };
  /// All of it outlives this.
  explicit BeepCapture(Parts parts) : parts_(std::move(parts)) {}

  /// `BeepCaptureStart`: begins, or stops what runs.
  void Press();
  /// Stops what runs; a video in hand is kept.
  void Stop();
  bool Running() const { return BeepState_ != State::Idle; }
  /// "Start Beep Capture", "Stop Beep Capture".
  std::string Caption() const;
  /// What `CountPnl` shows: the seconds that are left, "0" while it records, nothing else.
  const std::string& Count() const { return count_; }

 private:
  enum class State { Idle, Counting = 1, Starting = 2, Capturing = 3, Saving };

  int Cycles() const;
  void Begin();
  void Wait(int milliseconds);
  void Tick();
  void CountDown();
  void StartVideo();
  void EndVideo();
  void Finish();
  void Play(const char* sound) const;
  void Show(std::string count);

  void TimedKept(const std::string& note) override;
  void TimedFailed() override;

  Parts parts_;
  State BeepState_ = State::Idle;
  int BeepCycleNumber_ = 1;
  int BeepCountdown_ = 0;
  bool stopped_ = false;  ///< by the operator
  int kept_ = 0;
  std::string note_;  ///< of the last video that has one
  std::string count_;
  HostTimer BeepTimer_;
};

}  // namespace kinalyx
