#pragma once

#include <atomic>
#include <functional>
#include <string>

namespace kinalyx::demo {

/// Makes a library of instructors, students and videos. Everything is made beside the place and put there
/// at the end, so that a library stands there whole or not at all.
/// @param folder    must not exist, or be empty
/// @param progress  gets a line for each finished video; called from one thread at a time
/// @param stop      may be set from outside to give up
/// @return empty when the library stands, else one line that says why not; nothing is left then
std::string MakeDemoLibrary(const std::string& folder, const std::function<void(const std::string&)>& progress,
                            const std::atomic<bool>& stop);

}  // namespace kinalyx::demo
