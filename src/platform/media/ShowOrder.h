#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

#include "platform/media/AvHandles.h"
#include "platform/media/PictureIndex.h"

namespace kinalyx {

/// A packet that knows the picture it makes.
struct PlacedPacket {
  PacketHandle packet;
  int number = 0;        ///< in the order of the file
  int picture = -1;      ///< in the order of showing; -1 for a hidden packet
  bool leading = false;  ///< shown before the key picture of its chunk, and so made with help of the chunk before
};

/// Finds out in which order the packets of a stream are shown, by looking a few packets ahead: at the
/// times that the container tells, or at the picture numbers or types inside the packets themselves.
/// Nothing is decoded for it.
class ShowOrder {
 public:
  /// No stream shows a picture more than this many packets after or before its place in the file.
  static constexpr std::size_t kReach = 16;

  ShowOrder(const PictureIndex& index, const AVCodecParameters& codec, bool tellsShowTimes);

  /// True when pictures are shown in the order of their packets.
  bool AsStored() const { return rule_ == Rule::AsStored; }
  /// Forgets all packets: the next one begins a chunk.
  void Reset();
  /// Takes the packet that follows in the file.
  void Push(int number, PacketHandle packet);
  /// Tells that no packet follows.
  void Finish() { finished_ = true; }
  /// The oldest packet, as soon as its place is certain.
  std::optional<PlacedPacket> Pop();
  bool Empty() const { return waiting_.empty(); }

 private:
  enum class Rule { AsStored, ByTime, ByNumber, ByType };
  struct Key {
    int chunk = 0;
    int section = 0;  ///< numbers begin anew where the stream does
    std::int64_t rank = 0;
    auto operator<=>(const Key&) const = default;
  };
  struct Waiting {
    PacketHandle packet;
    int number = 0;
    Key key;
  };
  struct Past {
    Key key;
    bool hidden = false;
  };

  Key KeyOf(int number, const AVPacket& packet);
  bool FrontIsCertain() const;
  int PictureOfFront() const;

  const PictureIndex& index_;
  Rule rule_ = Rule::AsStored;
  CodecHandle parsing_;  ///< the parser's notes; never decodes
  ParserHandle parser_;
  std::deque<Waiting> waiting_;
  std::deque<Past> past_;
  bool finished_ = false;
  int section_ = 0;
  std::int64_t anchors_ = 0;
  std::int64_t between_ = 0;
  int keyChunk_ = -1;
  int keyPicture_ = 0;
};

}  // namespace kinalyx
