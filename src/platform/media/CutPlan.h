#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "platform/media/Demuxer.h"

namespace kinalyx {

/// A packet that a cut takes over.
struct PlannedPacket {
  int number = 0;          ///< in the file
  int picture = -1;        ///< that it makes; -1 for one that the file hides
  bool leading = false;    ///< shown before the key picture of its chunk
  std::int64_t shown = 0;  ///< its times in the cut, in the plan's unit; the first picture is shown at 0
  std::int64_t decoded = 0;
};

/// Which packets make the pictures of a cut, and when, in the order of the file. Only for the sources of this room.
class CutPlan {
 public:
  /// Reads the stretch once.
  /// @param frameLength  seconds, where the file does not tell when pictures are shown
  /// @param goOn         asked now and then; false ends the planning
  /// @return false when the packets cannot be had
  bool Make(Demuxer& demuxer, int firstPicture, int count, AVRational frameLength, const std::function<bool()>& goOn);

  /// True when the planning met the end of the file before the end of the cut.
  bool FileEndsEarly() const { return fileEndsEarly_; }
  /// Of all times of the cut.
  AVRational Unit() const { return unit_; }
  /// When picture n of the cut begins to be shown; their count gives the end.
  std::int64_t TimeOf(int n) const;

  const std::vector<PlannedPacket>& Packets() const { return packets_; }
  /// Leaves out the pictures before the first one that no wanted picture needs.
  void DropLeading();
  /// True when the packets make the pictures of the cut and no other.
  bool IsExact() const;
  /// True when all other pictures lie before the start or behind the end, where an edit list can hide them.
  bool CanHideOthers() const;

 private:
  bool IsWanted(const PlannedPacket& packet) const {
    return packet.picture >= first_ && packet.picture < first_ + count_;
  }
  void InventDecodingTimes();

  const PictureIndex* index_ = nullptr;
  int first_ = 0;
  int count_ = 0;
  bool timed_ = false;
  bool fileEndsEarly_ = false;
  AVRational unit_{1, 25};
  std::vector<PlannedPacket> packets_;
};

}  // namespace kinalyx
