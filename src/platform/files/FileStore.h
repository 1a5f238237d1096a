#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/Disk.h"
#include "platform/files/Result.h"

namespace kinalyx {

/// Replaces a whole file: writes beside it under a name of its own, flushes, renames over it. The file holds
/// either the old or the new bytes, whatever happens and whoever else saves it; of two saves at once one
/// stands whole. After a power cut within seconds of the call the old bytes may stand again, but a file that
/// is new stays. On failure nothing is left behind, and the old file stands. Files that are read-only or links
/// are treated as an editor would: a link's target is replaced, read-only is refused.
Outcome WriteWholeFile(const std::string& path, std::span<const std::uint8_t> bytes, IDisk& disk = RealDisk());
Outcome WriteWholeFile(const std::string& path, std::string_view text, IDisk& disk = RealDisk());

/// Has a file that holds secrets be its owner's alone, and makes an empty one where there is none; every later save by
/// WriteWholeFile keeps it so. False where the drive knows no such rights, or the file is somebody else's.
bool KeepForOwner(const std::string& path);

/// All bytes of a file of at most `limit` bytes; nothing when it cannot be read or is larger.
std::optional<std::vector<std::uint8_t>> ReadWholeFile(const std::string& path, std::int64_t limit = 64 << 20);
/// The same as text, UTF-8 as it stands and anything else taken as Windows-1252.
std::optional<std::string> ReadTextFile(const std::string& path, std::int64_t limit = 64 << 20);

}  // namespace kinalyx
