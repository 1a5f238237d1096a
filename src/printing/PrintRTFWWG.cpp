#include "printing/PrintRTFWWG.h"

namespace kinalyx {

void PrintRTF(IPage& page, const RichText& text, int LeftMargin, int TopMargin, int RightMargin, int BottomMargin) {
  if (text.Blank()) return;
  const auto inches = [](int twips) { return twips / kTwipsPerInch; };
  PageBox room{inches(LeftMargin) - kPhysicalOffset, inches(TopMargin) - kPhysicalOffset, 0, 0};
  room.width = kPaperWidth - inches(RightMargin) - kPhysicalOffset - room.left;
  room.height = kPaperHeight - inches(BottomMargin) - kPhysicalOffset - room.top;
  auto next = page.FormatRange(text, 0, room);
  while (next) {
    page.NewPage();
    next = page.FormatRange(text, *next, room);
  }
}

}  // namespace kinalyx
