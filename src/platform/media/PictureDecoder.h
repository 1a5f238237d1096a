#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/media/AvHandles.h"
#include "platform/media/Demuxer.h"
#include "platform/media/ShowOrder.h"

namespace kinalyx {

/// Decodes a stretch of a video, packet by packet, and says of each picture that comes out which one it
/// is. A run begins at a chunk and goes on to the end of the file or the next Start.
class PictureDecoder {
 public:
  using Sink = std::function<void(int picture, FrameHandle frame)>;

  /// Null when there is no decoder for the stream; `message` then tells why.
  static std::unique_ptr<PictureDecoder> Open(std::unique_ptr<Demuxer> demuxer, std::string& message);

  const Demuxer& Source() const { return *demuxer_; }
  const PictureIndex& Index() const { return demuxer_->Index(); }
  /// True when every picture stands for itself and comes out as soon as its packet went in.
  bool IsImmediate() const { return lag_ == 0 && Index().EveryPacketIsKey(); }

  /// Begins a run; false when the file cannot be read there.
  bool Start(int chunk);
  /// Ends the run and gives all pictures' memory back.
  void Stop();
  /// Feeds the next packet. Pictures below `wholeFrom` may be left out as far as later ones can be
  /// decoded without them.
  void Step(int wholeFrom, const Sink& sink);

  /// True when this run may still give the picture.
  bool Reaches(int picture) const;
  /// True when this run should have given the picture and did not: it cannot be decoded.
  bool Lost(int picture) const;
  /// The next packet to be fed.
  int NextPacket() const { return next_; }
  /// The pictures from here on could not be read; PictureCount when all could.
  int ReadableEnd() const { return readableEnd_; }
  /// The chunk at which a run must begin to give this picture.
  int StartChunkFor(int picture) const;

 private:
  PictureDecoder() = default;
  bool OpenCodec(std::string& message);
  std::optional<PlacedPacket> NextPlaced();
  bool Filter(AVPacket& packet);
  void Receive(const Sink& sink);
  void Settle();

  std::unique_ptr<Demuxer> demuxer_;
  std::unique_ptr<ShowOrder> order_;
  CodecHandle codec_;
  FilterHandle filter_;  ///< parts pictures that were packed together; null for most streams
  int lag_ = 0;          ///< packets that may go in before a picture comes out

  bool running_ = false;
  bool drained_ = false;
  int chunk_ = 0;
  int next_ = 0;
  int firstPicture_ = 0;
  int wholeFrom_ = 0;
  int settled_ = 0;              ///< pictures below have come out or never will
  std::vector<bool> cameOut_;    ///< of this run
  int readableEnd_ = 0;
  std::map<int, int> pictureOfPacket_;   ///< of the packets in the decoder
  std::map<int, int> keyPictureOfChunk_; ///< of chunks that begin with leading pictures
};

}  // namespace kinalyx
