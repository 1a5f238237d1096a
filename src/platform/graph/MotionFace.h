#pragma once

#include <gst/gst.h>

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/graph/IMotionDetectionFilter.h"
#include "platform/graph/MotionDetector.h"

namespace kinalyx {

/// What the user interface and the streaming thread of a motion detector say to each other. Lives as long as its graph
/// is loaded, and is shared with the threads of its runs.
class MotionFace final : public IMotionDetectionFilter {
 public:
  int AddRegion(const MotionRect& place) override;
  void MoveRegion(int region, const MotionRect& place) override;
  void DeleteRegion(int region) override;
  void KillRegions() override;
  void SetSensitivity(int sensitivity) override;
  std::vector<int> TakeFired() override;
  std::vector<int> Moving() const override;

  // For the streaming thread.
  /// Tells a detector what is to be looked at, if that is something else than it was told last.
  /// @param told  what it was told, 0 nothing yet; brought up to date
  void Brief(MotionDetector& detector, int& told) const;
  void Tell(const std::vector<int>& moving, std::int64_t ns);

 private:
  struct Motion {
    std::int64_t seenNs = 0;   ///< last
    std::int64_t firedNs = 0;  ///< likewise
  };

  void Changed() { ++version_; }

  mutable std::mutex mutex_;
  std::vector<MotionRegion> regions_;
  int sensitivity_ = kUsualSensitivity;
  int lastNumber_ = 0;
  int version_ = 1;  ///< of what a detector is told
  std::vector<int> moving_;
  std::vector<int> fired_;
  std::map<int, Motion> motions_;  ///< by region, of those in which something has moved
};

/// Has the pictures that leave a pad, whose brightness comes first and in whole rows, looked at.
void DetectMotion(GstPad* pad, std::shared_ptr<MotionFace> face);

}  // namespace kinalyx
