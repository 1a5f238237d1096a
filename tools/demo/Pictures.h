#pragma once

#include <string>

namespace kinalyx::demo {

/// Draws `Logo.jpg` and the pictures of the main menu, in `backgrounds`, into a folder.
/// @return empty when all went well, else the reason
std::string DrawPictures(const std::string& folder);

}  // namespace kinalyx::demo
