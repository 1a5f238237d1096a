#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace kinalyx {

/// The map of a video stream, made once when it is opened. Three countings meet here:
/// a *packet* is counted in the order in which the file holds them, a *picture* in the order in which
/// they are shown, and a *frame* is what the user counts: some frames have no picture of their own and
/// repeat the one before (an AVI file that leaves a frame out stores an empty chunk in its place).
///
/// Packets from one key packet to the next form a chunk. The pictures of a chunk are shown after all
/// of the chunk before and before all of the chunk after, so only their order within the chunk has to
/// be learnt from the packets themselves.
class PictureIndex {
 public:
  static constexpr std::int64_t kNoTime = std::numeric_limits<std::int64_t>::min();

  /// Takes the next packet of the file. `time` is the decoding time by which the demuxer knows it again,
  /// in units of the stream. `hidden` packets are decoded but not shown.
  void Add(std::int64_t time, bool key, bool hidden);
  /// Tells when the picture of the last packet added is shown, and for how long (0: not told), in units of the
  /// stream. Times of showing hold only when all packets have one.
  void TimeLast(std::int64_t shown, std::int64_t length);
  /// Tells the frame at which the last packet added stands; without a call they follow one another.
  void PlaceLast(int frame);
  /// Closes the index. `frames` counts trailing repeats as well and may not be below what was placed.
  /// With `dropBeforeKey` the packets before the first key packet are hidden: the decoder shows none.
  void Finish(int frames, bool dropBeforeKey);

  int PacketCount() const { return static_cast<int>(packets_.size()); }
  int PictureCount() const { return pictures_; }
  int FrameCount() const { return frames_; }
  bool EveryPacketIsKey() const { return keys_.size() == packets_.size(); }
  /// True when decoding times grow from packet to packet, so that a packet can be found by its time.
  bool TimesGrow() const { return timesGrow_; }

  /// The picture that frame n shows; frames before the first picture show that one.
  int PictureOfFrame(int frame) const;
  int FrameOfPicture(int picture) const;

  /// True when every picture has its own time of showing.
  bool HasShowTimes() const { return !showTimes_.empty(); }
  /// When picture n begins to be shown; the picture count gives the end of the last.
  std::int64_t ShowTime(int picture) const { return showTimes_[picture]; }

  std::int64_t Time(int packet) const { return packets_[packet].time; }
  bool IsHidden(int packet) const { return packets_[packet].hidden; }
  /// Number of pictures whose packets stand before this one; the packet count gives all.
  int PicturesBefore(int packet) const { return packet < PacketCount() ? packets_[packet].order : pictures_; }
  /// The packet that comes as the nth shown one in the order of the file.
  int PacketOfOrder(int order) const;
  /// The packet of this time; nothing when there is none.
  std::optional<int> FindPacket(std::int64_t time) const;

  int ChunkOfPacket(int packet) const;
  int ChunkOfPicture(int picture) const;
  /// Its first packet; the first chunk begins at packet 0 even where that is no key.
  int ChunkStart(int chunk) const { return keys_[chunk]; }
  int ChunkFirstPicture(int chunk) const { return packets_[keys_[chunk]].order; }

 private:
  struct Packet {
    std::int64_t time = 0;
    std::int32_t order = 0;
    bool key = false;
    bool hidden = false;
  };
  struct Showing {
    std::int64_t begin = kNoTime;
    std::int64_t length = 0;
  };
  void OrderShowTimes();

  std::vector<Packet> packets_;
  std::vector<std::int32_t> keys_;
  std::vector<Showing> showings_;           ///< of packets, until the index is finished
  std::vector<std::int64_t> showTimes_;     ///< of pictures, and the end of the last; empty when they are not known
  std::vector<std::int32_t> frameOfOrder_;  ///< empty while frames and pictures are the same
  int pictures_ = 0;
  int frames_ = 0;
  bool timesGrow_ = true;
};

}  // namespace kinalyx
