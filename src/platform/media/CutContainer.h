#pragma once

#include <string>
#include <vector>

#include "platform/media/AvHandles.h"

namespace kinalyx {

/// How a container is written that is as good as the one of a source. Only for the sources of this room.
struct CutContainer {
  std::vector<const char*> muxers;  ///< the nearest first, as the library names them; empty: none is known
  bool hidesPictures = false;       ///< it has edit lists
  int packetBytes = 0;              ///< of a transport stream

  /// @param path  the new file, whose name decides between containers of one family
  static CutContainer Like(const AVFormatContext& input, const std::string& path);

  /// The first of the muxers that holds these codecs; null when none does.
  const AVOutputFormat* For(const std::vector<const AVCodecParameters*>& streams) const;
};

/// True when a container takes a codec, as far as it tells.
bool CanHold(const AVOutputFormat& format, AVCodecID codec);
/// A four-letter code of the codec that a container accepts, the wished one if possible; 0 leaves it to the container.
unsigned AcceptedTag(const AVOutputFormat& format, AVCodecID codec, unsigned wish);
/// The notes of a file or stream without those that the container makes itself.
void CopyNotes(AVDictionary*& to, const AVDictionary* from);

}  // namespace kinalyx
