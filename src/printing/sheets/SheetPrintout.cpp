#include "printing/sheets/SheetPrintout.h"

#include <algorithm>
#include <utility>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr const char* kFamily = "MS Sans Serif";
constexpr double kTitlePoints = 18;
constexpr double kHeadPoints = 12;
constexpr double kCentre = 4.0;
constexpr double kTitleTop = 0.27;
constexpr double kHeadsTop = 0.75;
constexpr double kRowLeft = 0.25;
constexpr double kRowWidth = 7.5;
constexpr double kRowHeight = 2.8125;

struct RowPlace {
  double top;
  double labelTop;
};
constexpr RowPlace kRows[] = {{0.9375, 3.77}, {4.125, 6.94}, {7.3125, 10.1}};

constexpr const char* kHeads[] = {TrLater("BACKSWING"), TrLater("ADDRESS"), TrLater("FOLLOWTHROUGH")};

void PrintCentred(IPage& page, double x, double y, const std::string& words) {
  page.Print({x - page.TextWidth(words) / 2, y}, words);
}

/// As large as the row allows, in the picture's own proportions.
PageBox FitIn(const Surface& picture, double top) {
  const double scale = std::min(kRowWidth / picture.Width(), kRowHeight / picture.Height());
  const double width = picture.Width() * scale;
  const double height = picture.Height() * scale;
  return {kRowLeft + (kRowWidth - width) / 2, top + (kRowHeight - height) / 2, width, height};
}

}  // namespace

SheetPrintout::SheetPrintout(std::string title, Rows rows) : title_(std::move(title)), rows_(std::move(rows)) {}

void SheetPrintout::PrintOn(IPage& page) const {
  page.SetInk(0);
  page.SetFont({kFamily, kTitlePoints, false});
  PrintCentred(page, kCentre, kTitleTop, title_);
  page.SetFont({kFamily, kHeadPoints, false});
  for (int column = 0; column < 3; ++column)
    PrintCentred(page, kRowLeft + kRowWidth * (column + 0.5) / 3, kHeadsTop, Tr(kHeads[column]));
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const Row& row = rows_[i];
    if (row.label.empty()) continue;
    if (!row.picture.Empty()) page.PaintPicture(row.picture, FitIn(row.picture, kRows[i].top));
    PrintCentred(page, kCentre, kRows[i].labelTop, row.label);
  }
}

}  // namespace kinalyx
