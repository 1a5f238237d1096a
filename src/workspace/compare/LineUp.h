#pragma once

#include <string>
#include <vector>

#include "library/Sidecar.h"
#include "workspace/compare/LockedVideos.h"

namespace kinalyx {

/// Brings the videos of the layout to the same moment of the movement, by their marks: each goes to its mark of one
/// name, or where marks have none, to its first; without such marks to where it was locked last. Two or four that can
/// be locked then are.
class LineUp {
 public:
  LineUp(Stage& stage, LockedVideos& locks) : stage_(stage), locks_(locks) {}

  /// By the mark that two videos have in common and that is nearest to where the current video stands.
  void ByMark();
  /// Why that does nothing; empty when it does.
  std::string Obstacle() const;

 private:
  struct Place {
    int slot = 0;
    VideoMoment moment;
  };

  std::vector<int> Shown() const;
  std::vector<Place> Places(const std::string& name) const;
  std::vector<Place> Best() const;

  Stage& stage_;
  LockedVideos& locks_;
};

}  // namespace kinalyx
