#pragma once

class QFont;

namespace kinalyx {

/// True when the program can draw text: fonts come with a graphical application only.
bool HasFonts();

/// The program's font with lines of `height` pixels, ascent and descent together. Needs HasFonts.
QFont FontOfHeight(int height);

}  // namespace kinalyx
