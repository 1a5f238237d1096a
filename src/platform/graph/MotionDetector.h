#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "platform/graph/IMotionDetectionFilter.h"

namespace kinalyx {

/// A region under its number.
struct MotionRegion {
  int number = 0;
  MotionRect place;

  friend bool operator==(const MotionRegion&, const MotionRegion&) = default;
};

/// The brightness of a picture.
struct LumaPicture {
  const std::uint8_t* bytes = nullptr;
  int width = 0;
  int height = 0;
  int stride = 0;       ///< bytes from one row to the next
  std::int64_t ns = 0;  ///< when it was taken, by a clock that does not go back
};

/// Looks for motion in regions of a stream of pictures. Each region costs its own pixels; of the rest of the picture a
/// few hundred are read, which tell how the light has changed.
///
/// Two questions are asked of every cell of a region. Does it differ from the picture before? That is the club, whose
/// head leaves a solid patch where a leaf only leaves the rim that it has moved by. And does it differ from what it
/// was during the last second? That is what comes slowly but is large. Cells that are restless, for noise or for
/// leaves, must differ by more.
///
/// One thread at a time.
class MotionDetector {
 public:
  MotionDetector();
  ~MotionDetector();
  MotionDetector(MotionDetector&&) noexcept;
  MotionDetector& operator=(MotionDetector&&) noexcept;

  /// What a region has seen is kept while it stays where it is.
  void SetRegions(std::span<const MotionRegion> regions);
  /// 0 to 100.
  void SetSensitivity(int sensitivity);
  /// @return  the numbers of the regions in which something moves. Pictures that follow each other faster than the
  ///          eye would tell are not looked at, and nothing has changed since
  const std::vector<int>& Look(const LumaPicture& picture);

 private:
  struct Eye;
  std::unique_ptr<Eye> eye_;
};

}  // namespace kinalyx
