#pragma once

#include <string>

namespace kinalyx::test {

/// Writes an H.264 stream whose pictures are coded field by field, as cameras do and no encoder here does: 32 x 32,
/// without any compression. Every fifth picture is a key. The upper field of picture n has the brightness
/// 40 + 3 n, the lower 200 - 3 n.
///
/// `apart` gives each field a packet with a time of its own; else the two share one, which a container that does
/// not keep packets together parts again.
void MakeFieldStream(const std::string& path, int pictures, bool apart);

}  // namespace kinalyx::test
