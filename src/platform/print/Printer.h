#pragma once

#include <memory>
#include <string>

#include "platform/files/Result.h"

namespace kinalyx {

/// A text as it comes on paper: A4 or whatever the printer holds, over as many pages as it needs.
struct PrintedText {
  std::string title;     ///< large, on the first page
  std::string subtitle;  ///< beneath it; may be empty
  std::string text;      ///< lines end in LF or CR LF; a long one is broken, and blanks stay
  std::string footer;    ///< at the foot of every page, beside its number; may be empty
};

/// Where texts are printed.
class IPrinter {
 public:
  virtual ~IPrinter() = default;
  /// Asks the user for the printer, the pages and the copies, and prints. A failure is told in a whole sentence.
  virtual Outcome Print(const PrintedText& text) = 0;
};

/// The printers of the desktop, behind its dialog. Needs the running application; on its thread only.
std::unique_ptr<IPrinter> MakePrinter();

/// Prints into a PDF file without asking. One of that name is replaced.
Outcome PrintToPdf(const PrintedText& text, const std::string& path);

}  // namespace kinalyx
