#pragma once

#include <cstdint>
#include <string>

namespace kinalyx {

/// What a video file says of itself.
struct VideoInfo {
  int width = 0;          ///< pixels of the upright picture, which are square
  int height = 0;         ///< pixels, likewise
  int frameCount = 0;     ///< pictures, in the order in which they are shown
  std::int64_t rate = 0;  ///< pictures per `scale` seconds, on the average; 0 when the file does not tell
  std::int64_t scale = 1;
  bool rateVaries = false;     ///< pictures are shown for unequal times: only VideoFile::SampleToTime tells them
  double captureRate = 0;      ///< pictures per second when it was taken, of slow motion that tells it; else 0
  double durationMs = 0;       ///< playing time of all pictures
  std::string compressor;      ///< the four-character code as found ("dvsd", "MJPG"), or the codec's name
  bool interlaced = false;     ///< the rows of a picture belong to two fields in turn
  bool topFieldFirst = false;  ///< of an interlaced video: rows 0, 2, 4 (from the top) were taken first
  bool hasSound = false;
  bool everyFrameIsKey = false;
  std::int64_t fileBytes = 0;
};

}  // namespace kinalyx
