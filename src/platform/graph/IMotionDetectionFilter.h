#pragma once

#include <vector>

#include "platform/graph/IGraph.h"

namespace kinalyx {

/// A rectangle of a picture, in parts of it: 0 is its left or upper edge, 1 the other one.
struct MotionRect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  friend bool operator==(const MotionRect&, const MotionRect&) = default;
};

/// `MV Motion Detection`: tells in which of its regions something moves that is worth telling: a club, a hand, a
/// person; not a leaf, a cloud, the camera's noise or its exposure. Regions lie in the picture as it leaves the filter,
/// which is as it is seen. What is outside of them is not looked at.
class IMotionDetectionFilter : public IGraphFilter {
 public:
  static constexpr int kUsualSensitivity = 50;

  /// What reaches beyond the picture is cut off; a region without any extent never fires.
  /// @return  its number, by which it is called from now on; above 0
  virtual int AddRegion(const MotionRect& place) = 0;
  /// It begins anew there: what it has seen elsewhere is forgotten. Unknown numbers do nothing, here and below.
  virtual void MoveRegion(int region, const MotionRect& place) = 0;
  virtual void DeleteRegion(int region) = 0;
  virtual void KillRegions() = 0;
  /// @param sensitivity  0 to 100, others count as the nearest: from what nobody overlooks to a finger
  virtual void SetSensitivity(int sensitivity) = 0;
  /// The regions in which motion began since this was asked last, or has gone on for another second.
  virtual std::vector<int> TakeFired() = 0;
  /// Those in which something moves in the picture that came last.
  virtual std::vector<int> Moving() const = 0;
};

}  // namespace kinalyx
