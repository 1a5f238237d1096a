#pragma once

#include <string>

#include "core/Settings.h"
#include "platform/host/Host.h"

namespace kinalyx {

/// The root of a library that is kept on this machine.
std::string LocalLibraryPath(const Settings& settings);

/// Asks whether the library is to lie in a folder of the user's choice, then for the folder, and takes it.
/// The root of a drive gives a folder "Video Library" on it. A folder that does not exist yet is made, with
/// "Amateurs" and "Models" inside. True when the settings now name that folder. The user is told of a folder that
/// cannot be used. If the user cancels the choice of a folder, the network flag is cleared.
bool SwitchNetworkOn(IHost& host, Settings& settings);

/// Back to the library on this machine.
void SwitchNetworkOff(Settings& settings);

/// The folder part of SwitchNetworkOn, for a folder that has been picked. Empty, or why it cannot be taken.
std::string TakeLibraryFolder(Settings& settings, std::string folder);

}  // namespace kinalyx
