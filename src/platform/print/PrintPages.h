#pragma once

#include "platform/print/Printer.h"

namespace kinalyx {

/// Lays the pages out for what the printer reaches of its paper, and hands them over.
Outcome PrintToQueue(const IPrintout& printout, const PrintChoice& choice);

}  // namespace kinalyx
