#pragma once

#include <string>

#include "platform/files/Disk.h"

namespace kinalyx {

/// A name beside `path` for what is being written to it, or is on its way out: hidden, so that no list shows
/// it, short enough for every file system, and used by nobody else, not even another workstation at the same
/// folder.
std::string PartNameBeside(const std::string& path);

/// Removes from a folder the parts that were left there by a program that was killed or cut off. Those that
/// anybody has touched meanwhile stay, by the clock of the drive itself; so does everything where the folder
/// cannot be written to. Folders below are not looked into.
void RemoveDeadParts(const std::string& folder, IDisk& disk = RealDisk());

}  // namespace kinalyx
