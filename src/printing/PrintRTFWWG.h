#pragma once

#include "platform/print/Page.h"

namespace kinalyx {

/// Prints a text with its formats on the present page and, where it does not fit, on further ones with the same
/// margins. An empty text prints nothing. Margins are twips from the edges of the paper, 1440 to an inch.
void PrintRTF(IPage& page, const RichText& text, int LeftMargin, int TopMargin, int RightMargin, int BottomMargin);

}  // namespace kinalyx
