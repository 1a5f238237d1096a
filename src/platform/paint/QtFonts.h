#pragma once

class QFont;

namespace kinalyx {

struct FontFace;

/// The program's font with lines of `height` pixels, ascent and descent together. Needs HasFonts.
QFont FontOfHeight(int height);

/// Needs HasFonts.
QFont ToQtFont(const FontFace& face);

}  // namespace kinalyx
