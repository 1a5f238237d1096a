#pragma once

#include <string>
#include <vector>

#include "platform/paint/Surface.h"

namespace kinalyx {

/// Fills a picture with the instructor's logo and lines of words, in its middle. A logo that cannot be read is left
/// out.
void PaintCard(const std::vector<std::string>& lines, const std::string& logoPath, Surface& target);

}  // namespace kinalyx
