#pragma once

#include <string>

namespace kinalyx {

/// Sets how long the pictures of a film (MP4 and its kin) are shown, so that what is stored behind is hidden. For a
/// file that the library has just written: its one edit of the pictures is changed in place.
/// @param seconds  from the first picture that is shown to the end of the last
/// @return false when the file has no such edit, or cannot be written
bool EndEditAt(const std::string& path, double seconds);

}  // namespace kinalyx
