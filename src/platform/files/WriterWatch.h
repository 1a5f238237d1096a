#pragma once

#include <string>

namespace kinalyx {

/// True when a program of this machine has the file open to write to it; false also where the disk does not tell, as a
/// share, or another user's file.
bool IsOpenForWriting(const std::string& path);

}  // namespace kinalyx
