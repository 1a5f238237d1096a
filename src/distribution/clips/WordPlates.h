#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/paint/Canvas.h"

namespace kinalyx {

// Words on dark plates, which can be read on any picture. `letters` is the height of a line in pixels.

int PlateHeight(int letters);
int PlateWidth(std::string_view words, int letters);
/// One line with its plate; `corner` is the plate's, at the top on the left.
void PaintPlateAt(Canvas& canvas, POINTAPI corner, std::string_view words, int letters);
/// Breaks a text into lines that are at most so wide, with their plates. What does not fit into `most` lines ends in
/// dots; blank lines are left out.
std::vector<std::string> WrapWords(std::string_view text, int width, int letters, int most);

}  // namespace kinalyx
