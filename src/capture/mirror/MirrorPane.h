#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "capture/mirror/PaneTime.h"
#include "capture/mirror/PictureMemory.h"
#include "platform/graph/PictureUnpacker.h"

namespace kinalyx {

/// One picture of a mirror. The user interface says what it is to show, and asks for what it shows; a thread of its
/// own, or a test, has it go on by steps. Times are nanoseconds of CLOCK_MONOTONIC.
class MirrorPane {
 public:
  /// What it shows now.
  struct Sight {
    LivePicture picture;  ///< null pixels: nothing yet
    /// What it is to show is not remembered, or not yet: in its place stands what the camera gives now.
    bool standIn = false;
  };

  /// @param shown  told, in the thread that goes on, once until Show is asked
  explicit MirrorPane(std::function<void()> shown) : shown_(std::move(shown)) {}

  // --- any thread

  /// Some time ago.
  void Behind(std::shared_ptr<const PictureMemory> memory, std::int64_t delayNs);
  /// These pictures again and again; at least one.
  void Loop(std::vector<PackedPicture> pictures, double speed, std::int64_t nowNs);
  /// A loop stands still at the picture that is shown, and goes on with it.
  void Freeze(bool on, std::int64_t nowNs);
  /// Stands still at the last of these pictures; at least one.
  void Hold(std::vector<PackedPicture> pictures, std::int64_t nowNs);
  /// The picture before or after the one that is shown, of those that are looped or held.
  void StepBy(int pictures, std::int64_t nowNs);
  void SetSpeed(double speed, std::int64_t nowNs);
  void WantSize(int width, int height);
  void Mirror(bool on);
  PaneTime Time() const;
  /// Nothing more is shown, and what was shown last is forgotten.
  void Forget();
  /// Something is looped or held.
  bool Holds() const;
  /// What is looped or held; none else.
  std::vector<PackedPicture> Held() const;
  Sight Show();

  // --- its own thread

  /// Shows what is due, and makes ready what comes next.
  /// @return  when the next step is worth it
  std::int64_t Step(std::int64_t nowNs);

 private:
  struct Order {
    PaneTime time;
    std::shared_ptr<const PictureMemory> memory;                 ///< null in a loop
    std::shared_ptr<const std::vector<PackedPicture>> pictures;  ///< of a loop
    PictureUnpacker::Wish wish;
    int number = 0;  ///< another one for every change

    std::optional<PackedPicture> At(std::int64_t ns) const;
    std::optional<PackedPicture> After(std::int64_t ns) const;
    void Loop(std::vector<PackedPicture> looped, double speed, std::int64_t nowNs);
  };
  /// A picture that is ready before its time.
  struct Ready {
    LivePicture picture;
    std::int64_t ns = 0;
    std::int64_t dueNs = 0;
  };

  Order TakeOrder();
  void Publish(LivePicture picture, std::int64_t ns, bool standIn);

  const std::function<void()> shown_;
  mutable std::mutex mutex_;
  Order order_;
  Sight sight_;
  bool told_ = false;

  // Of its own thread.
  PictureUnpacker unpacker_;
  std::optional<Ready> ready_;
  int orderSeen_ = -1;
  std::optional<std::int64_t> shownNs_;  ///< the picture that is shown, or that could not be
  bool standIn_ = false;
};

}  // namespace kinalyx
