#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "platform/graph/GstHandles.h"

namespace kinalyx {

/// A graph that sounds what it is given block by block, a few hundredths of a second later, at the pace of the sound
/// card. Only for the sources of this room.
class SoundFeed {
 public:
  static constexpr int kBlock = 480;                    ///< samples of a channel
  static constexpr std::chrono::milliseconds kLook{4};  ///< between two looks whether it wants another one

  /// Null when the machine cannot sound anything.
  static std::unique_ptr<SoundFeed> Make(const std::string& sink, int rate, int channels);
  ~SoundFeed();
  SoundFeed(const SoundFeed&) = delete;
  SoundFeed& operator=(const SoundFeed&) = delete;

  /// False until the card is at work: what it is given before is lost.
  bool Begun();
  /// Whether the next block is due.
  bool Wants();
  void Push(std::span<const std::int16_t> block);
  /// False once it has failed.
  bool Works();

 private:
  SoundFeed() = default;

  GstRef<GstElement> pipeline_;
  GstRef<GstElement> source_;
  GstRef<GstBus> bus_;
  bool begun_ = false;
  GstClockTime blockTime_ = 0;
  GstClockTime next_ = 0;  ///< when the next block begins, in the time of the graph
};

}  // namespace kinalyx
