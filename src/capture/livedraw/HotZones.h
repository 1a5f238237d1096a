#pragma once

#include <optional>
#include <vector>

#include "platform/graph/IMotionDetectionFilter.h"

namespace kinalyx {

/// A region of the picture that is watched.
struct HotZone {
  int id = 0;
  MotionRect place;

  friend bool operator==(const HotZone&, const HotZone&) = default;
};

/// What of a zone is under the mouse: edges, of which two meet in a corner; none of them means all of it.
struct ZonePart {
  int id = 0;
  bool left = false, right = false, top = false, bottom = false;

  bool Whole() const { return !left && !right && !top && !bottom; }
  friend bool operator==(const ZonePart&, const ZonePart&) = default;
};

/// A place or a distance in parts of the picture.
struct PicturePoint {
  double x = 0;
  double y = 0;
};

/// The hot zones of a picture: drawn by a drag, moved and resized by the mouse, one of them taken. They never leave
/// the picture, and are never so small that nobody could take hold of them.
class HotZones {
 public:
  static constexpr int kMost = 12;
  static constexpr double kLeast = 0.03;  ///< of the picture, each side

  const std::vector<HotZone>& All() const { return zones_; }
  bool Full() const { return zones_.size() >= kMost; }
  /// Null for none of that number.
  const HotZone* Find(int id) const;
  /// Those of before, as an undo or a file has them; what is out of its range is put right or left out.
  void Replace(const std::vector<HotZone>& zones);
  /// @return  the number; 0 where it is too small, or there are too many
  int Add(PicturePoint from, PicturePoint to);
  bool Remove(int id);
  /// As in a mirror.
  void Mirror();

  int Taken() const { return taken_; }
  void Take(int id) { taken_ = Find(id) ? id : 0; }

  /// The part that lies under a point: an edge within `reach`, else all; of zones that lie over each other, the one
  /// that is taken, else the smallest.
  std::optional<ZonePart> At(PicturePoint point, PicturePoint reach) const;

  // --- a drag
  void Grab(const ZonePart& part, PicturePoint from);
  bool Held() const { return held_.has_value(); }
  /// @return  the zone has changed
  bool DragTo(PicturePoint to);
  /// Ends it. @return  the zone is another one than when it was grabbed
  bool Release();

 private:
  struct Hold {
    ZonePart part;
    PicturePoint from;
    MotionRect before;
  };

  HotZone* Mutable(int id);

  std::vector<HotZone> zones_;
  int taken_ = 0;
  std::optional<Hold> held_;
};

/// The rectangle between two corners, as far as it lies on the picture.
MotionRect RectBetween(PicturePoint a, PicturePoint b);

}  // namespace kinalyx
