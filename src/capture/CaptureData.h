#pragma once

#include <string>

#include "library/Sidecar.h"
#include "platform/files/Result.h"
#include "platform/media/RecordingTally.h"

namespace kinalyx {

class Settings;

struct VideoInfo;

/// What counts of the pictures of a recording.
struct RecordingFacts {
  bool raw = false;     ///< they are not compressed
  bool fields = false;  ///< each is of two
  bool wide = false;    ///< of 16 by 9, or wider
};
RecordingFacts FactsOf(const VideoInfo& info);

/// What the sidecar of a recording says of its pictures. The options about fields, from the settings for cameras, are
/// made for camcorders; what another camera gives as whole pictures has none.
/// @param dv  from a camcorder
SlotData CaptureFlags(const Settings& settings, bool dv, const RecordingFacts& facts);

/// Writes the first sidecar of a recording beside it. The rate that was measured goes into its study file where the
/// video itself does not tell it: speeds and the timer then go by what the camera did.
Outcome KeepCaptureData(const std::string& videoPath, const RecordingTally& tally, const SlotData& flags);

}  // namespace kinalyx
