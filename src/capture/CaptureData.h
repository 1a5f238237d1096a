#pragma once

#include <string>

#include "library/Sidecar.h"
#include "platform/files/Result.h"
#include "platform/media/RecordingTally.h"

namespace kinalyx {

class Settings;

/// What the sidecar of a recording says of its pictures: the field options come from the settings for cameras.
SlotData CaptureFlags(const Settings& settings, bool wide);

/// Writes the first sidecar of a recording beside it. The rate that was measured goes into its study file where the
/// video itself does not tell it: speeds and the timer then go by what the camera did.
Outcome KeepCaptureData(const std::string& videoPath, const RecordingTally& tally, const SlotData& flags);

}  // namespace kinalyx
