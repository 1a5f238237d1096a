#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/media/AvHandles.h"
#include "platform/media/FieldJoiner.h"
#include "platform/media/FileInput.h"
#include "platform/media/PictureIndex.h"
#include "platform/media/PictureShape.h"
#include "platform/media/Preamble.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {

/// What the container says about when frames are shown.
struct FrameTimes {
  double unitMs = 0;         ///< of the times in the index
  bool unitIsFrame = false;  ///< frames follow one another in units
  double meanMs = 0;         ///< from frame to frame, where the packets have no times

  /// Milliseconds from the start of the first frame to the start of this one; the frame count gives the end.
  double Of(int frame, const PictureIndex& index) const;
  /// The frame that is shown at a time in ms from the start of the first; the nearest one outside.
  int FrameAt(double ms, const PictureIndex& index) const;
  /// True when frames are shown for times that differ by more than the container's rounding.
  bool Vary(const PictureIndex& index) const;
};

/// The packets of a file's first video stream, each with its number in the index. All other streams
/// are passed over unread where the container allows it.
class Demuxer {
 public:
  /// Opens a file and indexes it. A failure is NotFound, NoMedia or NoFrames.
  static Result<std::unique_ptr<Demuxer>> Open(const std::string& path);

  /// A second reader of the same file, at its beginning; it shares the index and asks the file for little
  /// else. Null when the file has gone.
  std::unique_ptr<Demuxer> Again() const;

  const PictureIndex& Index() const { return *index_; }
  const AVCodecParameters& Codec() const { return *stream_->codecpar; }
  /// The container and our stream of it as the library found them.
  const AVFormatContext& Container() const { return *input_; }
  const AVStream& Stream() const { return *stream_; }
  /// The file once more, at its beginning, for its other streams; it is read through `file`, which must outlive it.
  /// Null when that cannot be.
  InputHandle OpenOthers(std::unique_ptr<FileInput>& file) const;
  /// What the file tells of itself.
  VideoInfo Describe() const;
  FrameTimes Times() const;
  /// What makes the decoded pictures upright ones.
  const PictureShape& Shape() const { return shape_; }
  /// What a decoder that begins in the middle has to be told first.
  const Preamble& FirstWords() const { return *preamble_; }
  /// True when the container itself says when each packet's picture is shown.
  bool TellsShowTimes() const { return tellsShowTimes_; }

  /// Goes to a packet, or to one before it where the file cannot be entered there.
  bool Seek(int packet);
  /// Reads the next packet of the stream and tells its number; -1 at the end of what can be read.
  int Read(AVPacket& packet);
  /// The packet that Read would give; a guess right after Seek.
  int NextPacket() const { return next_; }

 private:
  Demuxer() = default;
  /// `known` is the stream as an earlier reader of the file found it; null looks for it.
  Outcome OpenStream(std::unique_ptr<FileInput> file, const AVStream* known = nullptr);
  bool FindStream();
  void FindShape(AVRational pixelOfContainer);
  void DiscardOthers();
  bool IndexFromContainer();
  /// What the headers of an AVI file tell of its packets; false when that is not all.
  bool IndexFromAvi();
  /// A walk through the packets of a film whose headers tell where they are; false when there are others.
  bool IndexFromMov();
  double CaptureRate() const;
  /// Learns from the first packet which field is first, and whether fields come in packets of their own.
  void FindFields(const AVPacket& first);
  /// Reads our stream's next packet; false at the end.
  bool ReadNext(AVPacket& packet);
  AVRational Rate() const;
  int CountChunksOfFrame() const;
  bool LastIndexedIsLast();
  int CountTrailingRepeats(std::int64_t afterLast) const;
  void IndexByReading();
  /// A key packet by which a reader knows where it is in a stream without times.
  struct Landmark {
    int packet = 0;
    std::int64_t place = 0;  ///< in the file, as the library tells it
    int size = 0;
    std::int64_t before = 0;  ///< the place of the packet before: entered there, this one comes out whole
  };
  /// Takes all packets that `read` still gives.
  void ReadIndex(const std::function<bool(AVPacket&)>& read, PictureIndex& index);
  /// Goes to a landmark at or before a packet; false when there is none.
  bool SeekLandmark(int packet);
  /// Tells which packet this is, and counts on from it; false for one that cannot be told.
  bool Recognise(const AVPacket& packet);
  bool Rewind();
  /// Reads the packet with which the stream begins, and goes back to the beginning; null when there is none.
  PacketHandle FirstPacket();
  bool KnowsFirstPacket();
  /// The colours of a picture of 8 bits or less stand in the file's header; a decoder takes them from a packet.
  void FindPalette();
  void AddPalette(AVPacket& packet);

  std::unique_ptr<FileInput> file_;
  InputHandle input_;
  AVStream* stream_ = nullptr;
  bool isAvi_ = false;
  bool tellsTimes_ = true;
  bool tellsShowTimes_ = false;
  bool hasSound_ = false;
  PictureShape shape_;
  AVFieldOrder fields_ = AV_FIELD_UNKNOWN;
  FieldParser::Structure firstField_ = FieldParser::Structure::Unknown;  ///< of fields in packets of their own
  std::unique_ptr<FieldJoiner> joiner_;                                  ///< of such a stream
  int chunksOfFrame_ = 1;  ///< of an AVI file: the picture's own and empty ones behind it
  std::shared_ptr<const PictureIndex> index_;
  std::shared_ptr<const Preamble> preamble_;
  std::shared_ptr<const std::vector<Landmark>> landmarks_;  ///< of a stream without times
  const Landmark* sought_ = nullptr;                        ///< the one to which the last seek went
  int strangers_ = 0;                                       ///< packets since then that were not it
  int next_ = 0;
  bool synced_ = true;                        ///< false after a seek, until a packet has been recognised
  std::vector<std::uint32_t> headerPalette_;  ///< opaque; empty for codecs that have none
  std::vector<std::uint32_t> palette_;        ///< at the place of the next packet
};

}  // namespace kinalyx
