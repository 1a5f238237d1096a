#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "platform/graph/GstHandles.h"

namespace kinalyx {

/// One graph from samples to what sounds them, in step with the machine's clock. Only for the sources of this room.
class SoundGraph {
 public:
  using Clock = std::chrono::steady_clock;

  /// Null when the machine cannot sound anything.
  /// @param zero  when the sample of time 0 is to be heard
  static std::unique_ptr<SoundGraph> Make(const std::string& sink, Clock::time_point zero, int rate, int channels);
  ~SoundGraph();
  SoundGraph(const SoundGraph&) = delete;
  SoundGraph& operator=(const SoundGraph&) = delete;

  void SetVolume(int percent);
  /// It has sound for a while and wants no more yet.
  bool Full() const;
  /// Takes samples that are to be heard at a time; what comes too late is left out.
  void Push(std::span<const std::int16_t> samples, std::chrono::nanoseconds at);
  /// False once it has failed.
  bool Works();

 private:
  SoundGraph() = default;

  GstRef<GstElement> pipeline_;
  GstRef<GstElement> source_;
  GstRef<GstElement> volume_;
  GstRef<GstBus> bus_;
  int rate_ = 0;
  int channels_ = 0;
};

}  // namespace kinalyx
