#pragma once

#include "platform/media/AvHandles.h"

namespace kinalyx {

/// What the packets of an interlaced stream say of their fields, without decoding them.
class FieldParser {
 public:
  enum class Structure { Unknown, TopField, BottomField, Frame };

  explicit FieldParser(const AVCodecParameters& codec);
  /// Looks into a packet. A field is what it begins with: the other may follow in the same packet.
  Structure Look(const AVPacket& packet);
  /// What the last packet told.
  AVFieldOrder Order() const;

 private:
  CodecHandle notes_;
  ParserHandle parser_;
};

/// Reads the packets of one stream. Cameras that code each field for itself may store it in a packet of its own,
/// often without a time: here the two of a picture come as one packet, with the time of the first.
class FieldJoiner {
 public:
  /// `first` is the field with which the pictures of the stream begin.
  FieldJoiner(const AVCodecParameters& codec, FieldParser::Structure first);

  /// Forgets what was read ahead: the input stands elsewhere now.
  void Reset() { held_.reset(); }
  /// Reads the next packet, or the next two; false at the end.
  bool Read(AVFormatContext& input, int stream, AVPacket& packet);
  /// True once two packets have become one.
  bool HasJoined() const { return joined_; }

 private:
  FieldParser parser_;
  FieldParser::Structure first_;
  FieldParser::Structure second_;
  PacketHandle held_;  ///< read ahead; null for none
  bool joined_ = false;
};

/// Reads the next packet of a stream that holds something; false at the end.
bool ReadPacket(AVFormatContext& input, int stream, AVPacket& packet);

}  // namespace kinalyx
