#pragma once

#include <string>
#include <vector>

#include "platform/media/RecordingFile.h"

namespace kinalyx::test {

/// Of 90 x 60 pixels.
RecordingFormat CameraFormat(RecordingFormat::Codec codec, double promisedRate);
/// A picture as such a camera gives it, with its number in it; raw or as a JPEG.
std::string CameraPicture(RecordingFormat::Codec codec, int number);
/// Has a file take the picture of a number, stamped so many seconds after the start.
Outcome Record(RecordingFile& file, RecordingFormat::Codec codec, int number, double seconds);
/// The numbers that the frames of a video carry, looked at backward.
std::vector<int> NumbersOf(const std::string& path);

}  // namespace kinalyx::test
