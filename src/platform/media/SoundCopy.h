#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/media/AvHandles.h"
#include "platform/media/Demuxer.h"
#include "platform/media/VideoOutput.h"

namespace kinalyx {

/// All sound of a stretch of a video, packet by packet as it is stored, each at its own time. Only for the
/// sources of this room.
class SoundCopy {
 public:
  /// Null when the file has no sound.
  static std::unique_ptr<SoundCopy> Open(const Demuxer& demuxer);

  /// What is to be stored, stream by stream.
  std::vector<const AVCodecParameters*> Codecs() const;
  /// Adds the streams to an output, and goes to the stretch; may be called again for another output.
  /// @param start, end  of the stretch, seconds of the file's own clock
  /// @param hidesStart  the container hides what lies before the start: then a little of it comes along, so that
  ///                    the sound is whole from its first sample
  bool Begin(VideoOutput& output, double start, double end, bool hidesStart);
  /// Writes sound up to a time, seconds from the start of the stretch; a negative result is an error of
  /// the output. Sound that cannot be read ends the streams.
  int WriteUntil(double seconds);

 private:
  struct Track {
    const AVStream* source = nullptr;
    AVStream* target = nullptr;
    std::int64_t next = AV_NOPTS_VALUE;  ///< time of a packet that tells none
    std::int64_t last = INT64_MIN;       ///< time of the last one written
    bool ended = false;
  };
  SoundCopy() = default;
  Track* TrackOf(int stream);
  /// Reads the next packet that belongs to the stretch into packet_; false at its end.
  bool ReadNext();
  /// True for a packet of the stretch, whose times are then those of the cut.
  bool Take(Track& track);
  /// The same for plain samples, which are cut exactly. `time` is the packet's, in units of the stream.
  bool TakePlain(Track& track, std::int64_t time, int sampleBytes);

  std::unique_ptr<FileInput> file_;
  InputHandle input_;
  std::vector<Track> tracks_;
  VideoOutput* output_ = nullptr;
  double start_ = 0;
  double end_ = 0;
  bool hidesStart_ = false;
  PacketHandle packet_ = NewPacket();
  Track* waiting_ = nullptr;  ///< to which the packet belongs that is not yet due
};

}  // namespace kinalyx
