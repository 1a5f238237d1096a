#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
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

/// Whom the worker of a PictureSource tells, without waiting for an answer.
struct PictureListener {
  std::function<void()> news = [] {};  ///< a picture that was wanted, or one nearer to it, has come
  /// Keeps a small picture of one that there is no room for, and tells of which there is one. Null for neither.
  std::function<void(int, const AVFrame&)> keepSmall = nullptr;
  std::function<bool(int)> hasSmall = nullptr;
};

/// Decoded pictures of one file by their number. A worker decodes what is asked for and, between the
/// questions, what will be asked for next: going forward the pictures ahead; going back, or standing
/// still, the stretch below, which has to be decoded from its key picture upward before its last
/// picture can be shown.
class PictureSource {
 public:
  using Clock = std::chrono::steady_clock;

  explicit PictureSource(std::unique_ptr<PictureDecoder> decoder, PictureListener listener = {});
  ~PictureSource();
  /// Ends the worker: nobody is told anything any more, and nothing may be asked.
  void Stop();

  /// Waits for a picture. One that cannot be decoded is replaced by the nearest below that can; null
  /// when there is none. For one thread at a time.
  FrameHandle Picture(int picture);

  /// The same without waiting: null when it has not been decoded.
  FrameHandle PictureNow(int picture);
  /// The user is at this picture, and wants no other any more.
  void MoveTo(int picture);
  /// How a picture is to be brought that somebody wants without waiting for it.
  enum class Way {
    Now,
    AfterRest,       ///< when the hand has not moved for a moment: it sees a small one meanwhile
    KeyFirst,        ///< the key picture below at once, the picture itself after a rest
    WithThoseBelow,  ///< now, and with small pictures of all below it that hang together with it
  };
  /// Has a picture decoded, unless another is wanted before; the news tell when it is there.
  void Want(int picture, Way way);
  /// The nearest picture that has been decoded; -1 when there is none.
  int Nearest(int picture);

 private:
  /// Pictures to be decoded upward, without a break.
  struct Stretch {
    int next = 0;
    int end = 0;
    bool small = false;  ///< small pictures will do
    int chunk = 0;       ///< of small ones: where the decoder begins
  };
  struct Task {
    bool back = false;  ///< for the decoder that works on stretches
    bool small = false;
    int key = -1;        ///< a chunk of which only the key picture is wanted; -1 for the target
    bool exact = false;  ///< that picture as it is, not for looking alone
    int target = 0;
    int wholeFrom = 0;
    bool awaited = false;  ///< somebody stands still until it comes
  };
  using Decoded = std::vector<std::pair<int, FrameHandle>>;

  void MoveFocus(int picture);
  /// The picture itself, or where it is lost the one that stands in for it; -1 for none.
  int Standing(int picture) const;
  bool Rests() const { return awaited_ || Clock::now() >= notBefore_; }
  bool HasSmall(int picture) const { return listener_.hasSmall && listener_.hasSmall(picture); }
  bool IsKnown(int picture) const { return store_.Has(picture) || IsLost(picture); }
  bool IsLost(int picture) const { return picture >= readableEnd_ || lost_.contains(picture); }

  void Work();
  void TakeShare();
  void TellNews(std::unique_lock<std::mutex>& lock);
  void GiveDecodersBack(std::unique_lock<std::mutex>& lock);
  std::size_t DecoderBytes() const;
  std::optional<Task> Choose();
  std::optional<int> NextAhead();
  std::optional<Task> ChooseWanted();
  bool WantsSmallStretch();
  bool WantsStretch();
  Stretch StretchBelow(int end) const;
  Stretch SmallStretchTo(int picture) const;
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
  bool awaited_ = false;         ///< somebody stands still until the wanted picture comes; else the news tell it
  Clock::time_point notBefore_;  ///< until then the hand may go on
  bool opened_ = false;          ///< the first picture has been tried for
  Clock::time_point aheadFrom_;  ///< until then nothing is decoded ahead, unless the hand has moved
  int keyFirst_ = -1;            ///< the chunk whose key picture comes before the wanted one
  bool withThoseBelow_ = false;
  bool yield_ = false;     ///< another file needs the memory of the decoders
  bool yielded_ = false;   ///< and has it: nothing is decoded ahead until the next question
  bool thorough_ = false;  ///< the wanted picture stands in for a lost one: leave nothing out on the way
  bool fillingAhead_ = true;
  std::optional<Stretch> stretch_;
  std::size_t share_ = 0;
  bool shareChanged_ = true;
  bool stop_ = false;

  const PictureListener listener_;
  const int least_;  ///< pictures that are kept in any case

  std::thread worker_;
  DecoderSeat seat_;
  BudgetShare budget_;  ///< last: nobody calls when the rest has gone
};

}  // namespace kinalyx
