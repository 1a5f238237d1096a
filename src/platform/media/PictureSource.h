#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <thread>
#include <utility>
#include <vector>

#include "platform/media/BudgetShare.h"
#include "platform/media/PictureDecoder.h"
#include "platform/media/PictureStore.h"

namespace kinalyx {

/// Decoded pictures of one file by their number. A worker decodes what is asked for and, between the
/// questions, what will be asked for next: going forward the pictures ahead; going back, or standing
/// still, the stretch below, which has to be decoded from its key picture upward before its last
/// picture can be shown.
class PictureSource {
 public:
  explicit PictureSource(std::unique_ptr<PictureDecoder> decoder);
  ~PictureSource();

  /// Waits for a picture. One that cannot be decoded is replaced by the nearest below that can; null
  /// when there is none. For one thread at a time.
  FrameHandle Picture(int picture);

 private:
  /// Pictures to be decoded upward, without a break.
  struct Stretch {
    int next = 0;
    int end = 0;
  };
  struct Task {
    bool back = false;  ///< for the decoder that works on stretches
    int target = 0;
    int wholeFrom = 0;
  };
  using Decoded = std::vector<std::pair<int, FrameHandle>>;

  void MoveFocus(int picture);
  bool IsKnown(int picture) const { return store_.Has(picture) || IsLost(picture); }
  bool IsLost(int picture) const { return picture >= readableEnd_ || lost_.contains(picture); }

  void Work();
  void TakeShare();
  std::optional<Task> Choose();
  std::optional<int> NextAhead();
  bool WantsStretch();
  Stretch StretchBelow(int end) const;
  std::optional<Task> NextOfStretch();
  PictureDecoder& DecoderFor(const Task& task);
  /// Brings the target one packet nearer; false when it has turned out to be lost.
  bool Advance(const Task& task, Decoded& decoded);

  const std::unique_ptr<PictureDecoder> forward_;  ///< the worker's own, like the next
  std::unique_ptr<PictureDecoder> backward_;
  const PictureIndex& index_;
  const bool immediate_;

  std::mutex mutex_;
  std::condition_variable work_;
  std::condition_variable arrived_;
  PictureStore store_;
  std::set<int> lost_;
  int readableEnd_;
  int focus_ = 0;
  int step_ = 1;  ///< from the last picture asked for to the next, as far as can be foreseen
  int lastDelta_ = 0;
  int wanted_ = -1;
  bool thorough_ = false;  ///< the wanted picture stands in for a lost one: leave nothing out on the way
  bool fillingAhead_ = true;
  std::optional<Stretch> stretch_;
  std::size_t share_ = 0;
  bool shareChanged_ = true;
  bool stop_ = false;

  std::thread worker_;
  BudgetShare budget_;  ///< last: nobody calls when the rest has gone
};

}  // namespace kinalyx
