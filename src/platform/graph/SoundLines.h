#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/files/Result.h"

namespace kinalyx {

/// What can be plugged into a microphone of the sound server: "Front Microphone", "Line In".
struct SoundLines {
  std::vector<std::string> names;   ///< as the server knows them
  std::vector<std::string> titles;  ///< as people do, in the same order
  std::string active;               ///< title of the one that is heard
};

// Both ask the server on a line of their own, and give it up where it does not answer for two seconds. Any thread.
// Only for the sources of this room.

/// By the name of the microphone; empty where there is no server. Who has only one line has no choice, and is left out.
std::map<std::string, SoundLines> ReadSoundLines();
/// Has a line be heard.
/// @param title  one of those that were read
Outcome SetSoundLine(const std::string& microphone, const std::string& title);

}  // namespace kinalyx
