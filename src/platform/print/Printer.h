#pragma once

#include <climits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/Result.h"
#include "platform/paint/Surface.h"
#include "platform/print/Page.h"

namespace kinalyx {

/// A text as it comes on paper: A4 or whatever the printer holds, over as many pages as it needs.
struct PrintedText {
  std::string title;     ///< large, on the first page
  std::string subtitle;  ///< beneath it; may be empty
  std::string text;      ///< lines end in LF or CR LF; a long one is broken, and blanks stay
  std::string footer;    ///< at the foot of every page, beside its number; may be empty
};

struct PrintChoice {
  std::string printer;  ///< one of Printers()
  kinalyx::Paper Paper = kinalyx::Paper::Letter;
  int copies = 1;
};

/// Where texts and pages are printed.
class IPrinter {
 public:
  virtual ~IPrinter() = default;
  /// Asks the user for the printer, the pages and the copies, and prints. A failure is told in a whole sentence.
  virtual Outcome Print(const PrintedText& text) = 0;

  /// The printers that can be had, the usual one first, as they were told last; nothing until somebody has answered
  /// for them. Never waits: what it asks is answered at a later call.
  virtual std::optional<std::vector<std::string>> Printers() = 0;
  /// Hands the pages to a printer, without asking; a failure is told in whole sentences, which say so where
  /// something may still come out. Windows are painted while the printer is waited for.
  virtual Outcome Print(const IPrintout& printout, const PrintChoice& choice) = 0;
};

/// The printers of the desktop. Needs the running application; on its thread only.
std::unique_ptr<IPrinter> MakePrinter();

/// Prints into a PDF file without asking. One of that name is replaced; where that fails it stays as it was.
Outcome PrintToPdf(const PrintedText& text, const std::string& path);
Outcome PrintToPdf(const IPrintout& printout, Paper paper, const std::string& path);

/// How the pages will look: one picture for each sheet of paper, but of no more than `most`.
/// @param count  if given, the number of all sheets
std::vector<Surface> PicturesOf(const IPrintout& printout, Paper paper, int dotsPerInch, int most = INT_MAX,
                                int* count = nullptr);

/// What lies in the printers of the user's country.
Paper UsualPaper();

}  // namespace kinalyx
