#pragma once

#include <functional>
#include <string>

#include "platform/files/Result.h"

namespace kinalyx {

/// One cut of a video.
struct TrimRequest {
  enum class Mode {
    Copy,        ///< the pictures keep their bits wherever the cut allows it
    Recompress,  ///< every picture is coded anew
  };

  std::string source;
  std::string destination;  ///< may be the source itself; any other file that is there is left alone
  int firstFrame = 0;       ///< counted from 0
  int lastFrame = 0;        ///< belongs to the cut; 0 stands for the last frame of the video
  int rate = 30;            ///< pictures per second, for a source that does not tell its own
  Mode mode = Mode::Copy;
};

/// What came of a cut.
struct TrimmedVideo {
  bool copied = false;  ///< the pictures kept their bits
  int frames = 0;       ///< in the new video
};

/// Cuts a video, exact to the frame, in the container that it has; a destination whose name ends in ".avi" gets
/// an AVI file unless it is the source itself.
///
/// AVI: pictures are copied as they are when each of them is a key frame, or when all are wanted; else they are
/// coded anew, in the source's own format where it is one that we can write. Sound is cut to the sample.
/// MP4 and its kin: pictures are copied, and an edit list hides those that are there only because others need them.
/// Other containers: pictures are copied when the first is a key frame and the cut ends where no picture needs a
/// later one; else they are coded anew. Sound is copied, and cut to its packets.
/// Frames keep their times, and the video its turn, shape, colours and notes.
///
/// The file is written beside its final name and renamed, so the destination is never half a video, and a source
/// that is trimmed in place is lost in no case.
/// @param progress  gets the part that is done, 0 to 1; false from it stops the work, leaves no trace, and makes
///                  the fault `Cancelled`
Result<TrimmedVideo> TrimVideo(const TrimRequest& request, const std::function<bool(double)>& progress = {});

}  // namespace kinalyx
