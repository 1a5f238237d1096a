#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kinalyx {

/// The keys that remote controls for presentations send, as the key `RemoteKeys` names them: "PageDown", "B", "F5",
/// "Period". What is no such name is passed over; where none is left, the first two are meant.
std::span<const std::string_view> RemoteKeyNames();
/// Whether each of them fires a trigger, in that order.
std::vector<bool> RemoteKeysOf(std::string_view setting);
std::string RemoteKeysText(const std::vector<bool>& on);

}  // namespace kinalyx
