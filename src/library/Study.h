#pragma once

#include <string>
#include <string_view>

#include "library/Sidecar.h"
#include "platform/files/FileStore.h"

namespace kinalyx {

// The file of what was found in a video: marks, true rate, ruler, lock, and the times and words of drawings, which
// it knows by their records in the sidecar. What the sidecar can say stands there alone. The file is JSON; members
// that this version does not know are kept.

/// "X.study" beside "X.avi", "X.mp4.study" beside "X.mp4".
std::string StudyPath(std::string_view videoPath);

/// Adds to what the sidecar says of a video what its study file says. A missing file says nothing. Members of the
/// wrong kind or out of their range are passed over; a file that is no JSON object gives nothing and makes the
/// study `Unread`. Drawings that have changed since are seen always, and without words.
void ReadStudy(const std::string& path, SlotData& data);

/// Replaces the file; it is the old or the new one, whole. With nothing to say, and nothing kept for later versions,
/// there is none. What could not be read is kept beside, see KeptPath.
Outcome WriteStudy(const std::string& path, const SlotData& data, IDisk& disk = RealDisk());

/// Brings the study of a video that was cut to frames `first` to `last` along: moments move, and those that were
/// cut off go. Nothing happens to a video without one.
Outcome TrimStudy(const std::string& path, int first, int last);

}  // namespace kinalyx
