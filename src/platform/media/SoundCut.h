#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/media/AvHandles.h"
#include "platform/media/VideoOutput.h"

struct SwrContext;

namespace kinalyx {

/// The sound of a stretch of a video, as 16-bit samples, exact to the sample: what comes before the
/// stretch is cut off, what is missing is silence, so that every sample stands where its picture does.
/// Only for the sources of this room.
class SoundCut {
 public:
  /// Adds a stream for the sound of a file to an output. Null when the file has no sound that can be
  /// decoded.
  /// @param start, end  of the stretch, seconds from the first picture
  static std::unique_ptr<SoundCut> Open(const std::string& path, double start, double end, VideoOutput& output);

  /// Writes sound up to a time, seconds from the start of the stretch; a negative result is an error of
  /// the output. Sound that cannot be read ends the stream.
  int WriteUntil(double seconds);

 private:
  explicit SoundCut(VideoOutput& output) : output_(output) {}
  bool OpenSource(const std::string& path, double start);
  bool OpenConverter();
  bool Decode();
  void Take(const AVFrame& frame);
  void Append(std::int64_t position, std::vector<std::int16_t>& samples);

  struct ResamplerDeleter {
    void operator()(SwrContext* context) const;
  };

  VideoOutput& output_;
  AVStream* target_ = nullptr;
  InputHandle input_;
  const AVStream* stream_ = nullptr;
  CodecHandle codec_;
  std::unique_ptr<SwrContext, ResamplerDeleter> converter_;
  PacketHandle packet_ = NewPacket();
  FrameHandle frame_ = NewFrame();

  int rate_ = 0;  ///< samples per second
  int channels_ = 0;
  double zero_ = 0;            ///< seconds of the file's clock at which the stretch begins
  std::int64_t end_ = 0;       ///< samples of the stretch
  std::int64_t position_ = 0;  ///< samples taken so far, from the start of the stretch
  std::int64_t written_ = 0;
  std::vector<std::int16_t> pending_;  ///< taken and not written
  bool begun_ = false;
  bool ended_ = false;
};

}  // namespace kinalyx
