#pragma once

#include <string>
#include <vector>

#include "platform/files/Result.h"

namespace kinalyx {

/// The parts of a path on a server; fails in words for the user where one of them is no name.
Result<std::vector<std::string>> PartsOf(const std::string& path);
/// A name beside another one for what is still on its way: it belongs to nobody else.
std::string PartNameOnServer(const std::string& name);
/// Whether PartNameOnServer has made it of this name, here or on another computer.
bool IsPartNameOf(const std::string& part, const std::string& name);

}  // namespace kinalyx
