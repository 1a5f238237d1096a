#pragma once

#include "platform/print/Page.h"

class QTextDocument;

namespace kinalyx {

/// What the printer gets of a text box: its letters with bold, italic, underline and size. Pictures are left out.
RichText RichTextOf(const QTextDocument& document);

}  // namespace kinalyx
