#pragma once

#include <string_view>

namespace kinalyx {

/// Which cameras take part; the values are those of the setting.
enum class CameraUse { First, Second, Both };
/// How a recording is begun; the values are those of the setting.
enum class CaptureMethod { StartStop = 1, OneClick, Beep, Sound };

/// The text of the graph for the capture page.
/// @param armed   the trigger, a click or a sound, is being waited for
/// @param dvMode  the cameras are camcorders; two of them are written as they come all the same, unless armed
std::string_view CaptureTemplate(bool armed, CaptureMethod method, CameraUse use, bool dvMode);

}  // namespace kinalyx
