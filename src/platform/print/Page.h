#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/paint/Geometry.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

// A page is that of a Letter printer, which leaves the outermost sixth of an inch of the paper white. Its origin is the
// corner of what can be printed; lengths are inches, x to the right and y downward. The page comes to lie in the middle
// of whatever paper there is; on a printer that reaches less it is made smaller as a whole: nothing is cut off.

inline constexpr double kPaperWidth = 8.5;
inline constexpr double kPaperHeight = 11.0;
/// From the edges of the paper to the origin.
inline constexpr double kPhysicalOffset = 1.0 / 6;
inline constexpr double kTwipsPerInch = 1440;

struct PagePoint {
  double x = 0;
  double y = 0;
};

/// A place on a page, in inches.
struct PageBox {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  double Right() const { return left + width; }
  double Bottom() const { return top + height; }
};

struct PageFont {
  std::string family;
  double points = 12;
  bool bold = false;
};

/// A stretch of text in one format. UTF-8; lines end in LF.
struct TextRun {
  std::string text;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  double points = 0;  ///< 0: as the page's font

  friend bool operator==(const TextRun&, const TextRun&) = default;
};

/// Text with formats, stretch after stretch.
struct RichText {
  std::vector<TextRun> runs;

  /// True where there are no letters to be seen.
  bool Blank() const;
};

/// What is printed on: one page after the other.
class IPage {
 public:
  virtual ~IPage() = default;

  virtual void SetFont(const PageFont& font) = 0;
  /// Of lines and letters; black at first.
  virtual void SetInk(Colour colour) = 0;
  /// Dots of a line, 600 to an inch.
  virtual void SetDrawWidth(int dots) = 0;

  virtual void Line(PagePoint from, PagePoint to) = 0;
  virtual void Box(const PageBox& box) = 0;
  virtual void Fill(const PageBox& box, Colour colour) = 0;
  /// Stretches a picture over the whole of the box; an empty one prints nothing.
  virtual void PaintPicture(const Surface& picture, const PageBox& box) = 0;

  virtual double TextWidth(std::string_view text) = 0;
  /// Of a line in the present font.
  virtual double LineHeight() = 0;
  /// One line with its upper left corner there.
  virtual void Print(PagePoint at, std::string_view line) = 0;
  /// Prints as much of a text as fits into a box, lines broken at its width, beginning with the character `first`.
  /// At least one line is printed, so that who goes on with the answer comes to an end. Letters are the page font's,
  /// in the formats of their runs.
  /// @return the first character that found no room, as `first` of the next call; nothing at the end of the text
  virtual std::optional<std::size_t> FormatRange(const RichText& text, std::size_t first, const PageBox& box) = 0;

  /// Ends the page and begins another; font, ink and width stay.
  virtual void NewPage() = 0;
};

/// Something to print: it can be printed as often as one likes, and is the same each time.
class IPrintout {
 public:
  virtual ~IPrintout() = default;
  /// What queues and files are told that it is.
  virtual std::string Title() const = 0;
  virtual void PrintOn(IPage& page) const = 0;
};

/// The paper on which a page is put.
enum class Paper { Letter, A4 };

}  // namespace kinalyx
