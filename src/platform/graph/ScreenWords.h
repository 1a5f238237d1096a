#pragma once

#include <string>

namespace kinalyx {

/// What a graph says of a camera, said of a screen that it takes for one.
std::string SaidOfScreen(const std::string& ofCamera);

}  // namespace kinalyx
