#pragma once

#include <string>

#include "video/cDIBSection.h"

namespace kinalyx {

/// Writes a bitmap as a JPEG file of 0 to 100 percent quality; a snapshot is written with 70. An older
/// file stands until the new one is complete. On failure the result is false, and `error` (may be null)
/// gets "Failed to save to JPG " and the number of the fault.
bool WriteJpegFile(const cDIBSection& Dib, const std::string& FileName, long Quality, std::string* error = nullptr);

}  // namespace kinalyx
