#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/media/Demuxer.h"
#include "platform/media/VideoTrim.h"

namespace kinalyx {

/// A cut that has been checked against its source.
struct CutOrder {
  std::string target;
  bool replaces = false;  ///< the target is the source
  int first = 0;
  int count = 0;
  AVRational rate{30, 1};  ///< pictures per second
  bool copy = true;        ///< the pictures keep their bits if that is possible
};

/// Cuts a video in the container that it has. Pictures are copied where the container can hide those that are
/// copied only because others need them, or where there are none of these; what was copied is believed when the
/// new file shows it. Else all are coded anew. Only for the sources of this room.
/// @param progress  as for TrimVideo
Result<TrimmedVideo> CutInOwnContainer(std::unique_ptr<Demuxer> demuxer, const CutOrder& order,
                                       const std::function<bool(double)>& progress);

}  // namespace kinalyx
