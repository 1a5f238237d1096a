#pragma once

#include <memory>
#include <string>

#include "platform/graph/IShortSounds.h"

namespace kinalyx {

/// Over the sound card or server that the machine offers. One thread reads the files, once each, and mixes what is
/// heard; it opens the card with a sound and closes it when nothing has been heard for a while, so that the clicks of
/// a countdown come at once. One that hangs on a silent server or disk is left to itself.
/// @param sink  where the sound ends, as the library for graphs describes it
std::unique_ptr<IShortSounds> MakeShortSounds(std::string sink = "autoaudiosink");

}  // namespace kinalyx
