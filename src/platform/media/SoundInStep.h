#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

struct SwrContext;

namespace kinalyx {

/// Brings the samples of a microphone, which has a clock of its own, to the clock of the pictures: sample n of what it
/// gives is heard at n / rate. A clock that is fast or slow is followed by stretching, by two thousandths at most,
/// which nobody hears; a gap of a tenth of a second becomes silence, and what is said twice goes. Only for the sources
/// of this room.
class SoundInStep {
 public:
  /// @param rate  samples per second, one channel
  explicit SoundInStep(int rate);
  ~SoundInStep();

  bool Usable() const { return context_ != nullptr; }
  /// @param ns  at which the first of them was heard; before 0 nothing is
  void Take(std::span<const std::int16_t> samples, std::int64_t ns);
  /// What has been brought into step since it was taken away last.
  std::vector<std::int16_t>& Ready() { return ready_; }
  /// Gives what is still inside, and silence up to a time.
  void End(std::int64_t ns);

 private:
  void Convert(const std::uint8_t* samples, int count);

  struct Deleter {
    void operator()(SwrContext* context) const;
  };
  std::unique_ptr<SwrContext, Deleter> context_;
  int rate_;
  std::int64_t given_ = 0;
  std::vector<std::int16_t> ready_;
};

}  // namespace kinalyx
