#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/media/AvHandles.h"
#include "platform/media/Demuxer.h"
#include "platform/media/ShowOrder.h"

namespace kinalyx {

/// Decodes a stretch of a video, packet by packet, and says of each picture that comes out which one it
/// is. A run begins at a chunk and goes on to the end of the file or the next Start.
///
/// Not every run is to be believed. Where a decoder that begins in the middle complains, or misses a picture, that
/// may be for want of what went before: a stream may heal only little by little behind its key pictures, or say
/// only once how it is to be read. What is doubtful is then kept back, and StartChunkFor leads to an earlier
/// chunk, in the end to the first: what a decoder makes of the whole stream is what the stream shows. A fault
/// behind a chunk without one is the stream's own.
class PictureDecoder {
 public:
  using Sink = std::function<void(int picture, FrameHandle frame)>;

  /// As many as there are processors, up to a few.
  static int UsualThreads();
  /// Fails when there is no decoder for the stream.
  /// @param threads  that may decode at once, each with a picture of its own; one more is fed before one comes out
  static Result<std::unique_ptr<PictureDecoder>> Open(std::unique_ptr<Demuxer> demuxer, int threads = UsualThreads());

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

  /// How a key picture is decoded that is wanted soon.
  enum class KeyLook {
    Exact,
    Rough,  ///< without what smooths the edges of blocks, of which nothing is seen where it is made much smaller
  };
  /// The key picture of a chunk alone, and its number, without waiting for those behind it; null when it cannot
  /// be decoded. Ends the run, and holds memory until Stop.
  FrameHandle KeyPicture(int chunk, int& picture, KeyLook look);

  /// True when this run may still give the picture.
  bool Reaches(int picture) const;
  /// True when this run should have given the picture and did not, and no other run would: it cannot be decoded.
  bool Lost(int picture) const;
  /// The next packet to be fed.
  int NextPacket() const { return next_; }
  /// The pictures from here on could not be read; PictureCount when all could.
  int ReadableEnd() const { return readableEnd_; }
  /// The chunk at which a run must begin to give this picture.
  int StartChunkFor(int picture) const;
  /// The first picture that a run from this chunk gives, as far as it is known yet: some pictures may be shown
  /// before the key picture and need the chunk before.
  int FirstOfRun(int chunk) const;

 private:
  PictureDecoder() = default;
  Outcome OpenCodec();
  Result<CodecHandle> NewCodec(int threads, int threadType, Complaints& complaints) const;
  bool Enter(AVCodecContext& codec, int chunk);
  std::optional<PlacedPacket> NextPlaced();
  bool Filter(AVPacket& packet);
  void Receive(const Sink& sink);
  void Settle(int settled);
  void HearComplaints();
  /// Takes notice of something strange about a picture. True when the stream is to blame, not the run; else the
  /// picture is in doubt.
  bool IsOwnFault(int picture);
  void Doubt(int picture, int entry);

  std::unique_ptr<Demuxer> demuxer_;
  int threads_ = 1;
  std::unique_ptr<ShowOrder> order_;
  Complaints complaints_{0};  ///< of the threads of the next
  CodecHandle codec_;
  Complaints keyComplaints_{0};
  CodecHandle keyCodec_;  ///< for key pictures alone: all threads work on the same one
  FilterHandle filter_;   ///< parts pictures that were packed together; null for most streams
  int lag_ = 0;           ///< packets that may go in before a picture comes out

  bool running_ = false;
  bool drained_ = false;
  bool careful_ = false;     ///< this run has one thread and leaves nothing out
  bool wasCareful_ = false;  ///< for such a run the codec was opened
  int chunk_ = 0;
  int next_ = 0;
  int firstPicture_ = 0;
  int wholeFrom_ = 0;
  int settled_ = 0;  ///< pictures below have come out or never will
  enum class Fate : std::uint8_t { Open, CameOut, Doubtful };
  std::vector<Fate> fates_;      ///< of the pictures, in this run
  std::set<int> strange_;        ///< chunks of this run in which something was strange
  std::set<int> ownFaults_;      ///< chunks that are strange in every run
  std::map<int, int> entries_;   ///< chunks for which a run begins at another
  std::set<int> carefulStarts_;  ///< chunks from which a run comes upon a fault of the stream
  bool standsAlone_ = false;     ///< no picture needs another
  int heardComplaints_ = 0;
  int readableEnd_ = 0;
  std::map<int, int> pictureOfPacket_;    ///< of the packets in the decoder
  std::map<int, int> keyPictureOfChunk_;  ///< of chunks that begin with leading pictures
};

}  // namespace kinalyx
