#include "VideoMaker.h"

#include <algorithm>
#include <cstddef>
#include <memory>

#include "SwingMovie.h"
#include "library/Sidecar.h"
#include "platform/media/VideoWriter.h"

namespace kinalyx::demo {
namespace {

// The camera runs a little before the swing and after it, in seconds.
constexpr double kBefore = 0.55;
constexpr double kAfter = 0.45;

VideoFormat FormatOf(DemoFormat format) {
  VideoFormat result;
  const auto set = [&result](VideoFormat::Codec codec, int width, int height, int rate, int scale = 1) {
    result.codec = codec;
    result.width = width;
    result.height = height;
    result.rate = rate;
    result.scale = scale;
  };
  switch (format) {
    case DemoFormat::DvInterlaced:
      set(VideoFormat::Codec::Dv, 720, 480, 30000, 1001);
      result.bottomFieldFirst = true;
      break;
    case DemoFormat::Mjpeg: set(VideoFormat::Codec::Mjpeg, 640, 480, 60); break;
    case DemoFormat::H264: set(VideoFormat::Codec::H264, 640, 480, 30); break;
    case DemoFormat::H264Large: set(VideoFormat::Codec::H264, 1280, 720, 60); break;
    case DemoFormat::Uncompressed: set(VideoFormat::Codec::RawRgb, 320, 240, 30); break;
  }
  return result;
}

/// Takes every second row of `field` from row `first` on.
void WeaveField(const Surface& field, int first, Surface& picture) {
  for (int y = first; y < picture.Height(); y += 2) std::copy_n(field.Row(y), picture.Stride(), picture.Row(y));
}

/// Two fields in one picture, the lower one first, each filmed at its own time.
const Surface& InterlacedAt(SwingMovie& movie, double time, double fieldTime, Surface& picture) {
  WeaveField(movie.At(time), 1, picture);
  WeaveField(movie.At(time + fieldTime), 0, picture);
  return picture;
}

bool WriteNotes(const DemoVideo& video, const std::string& path) {
  if (video.notes.empty()) return true;
  SlotData data;
  data.Notes = video.notes;
  data.SplitFields = data.ReverseFields = video.format == DemoFormat::DvInterlaced;
  return static_cast<bool>(WriteVideoData(SidecarPath(path), data));
}

}  // namespace

std::string MakeVideo(const DemoVideo& video, const std::string& path, const std::atomic<bool>& stop) {
  const VideoFormat format = FormatOf(video.format);
  const bool interlaced = video.format == DemoFormat::DvInterlaced;
  // Digital video tape has 720 pixels where a 4:3 picture of square ones would have 640.
  const double stretch = interlaced ? 720.0 / 640 : 1;
  const auto writer = VideoWriter::Create(path, format);
  if (!writer) return writer.Why();

  SwingMovie movie(video.style, video.view, format.width, format.height, stretch, video.place);
  const double frameTime = static_cast<double>(format.scale) / format.rate;
  const double end = movie.SwingEnd() + kAfter;
  Surface woven(format.width, format.height);
  for (int frame = 0;; ++frame) {
    if (stop) return "Stopped.";
    const double time = frame * frameTime - kBefore;
    if (time > end) break;
    const Surface& picture = interlaced ? InterlacedAt(movie, time, frameTime / 2, woven) : movie.At(time);
    if (!(*writer)->Write(RowsOf(picture))) return "The disk is full or refuses a video.";
  }
  if (!(*writer)->Close()) return "The disk is full or refuses a video.";
  return WriteNotes(video, path) ? "" : "The disk is full or refuses the notes of a video.";
}

}  // namespace kinalyx::demo
