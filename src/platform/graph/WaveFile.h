#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kinalyx {

/// Reads the beginning of a WAV file of any kind. Only for the sources of this room; may take as long as the disk.
/// @param most  samples that are read at most
/// @return  samples of two channels in turn, as many a second as asked for; none where it cannot be read
std::vector<std::int16_t> ReadWave(const std::string& path, int rate, std::size_t most);

}  // namespace kinalyx
