#include "printing/AnalysisPrintout.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/files/Tr.h"
#include "printing/PrintRTFWWG.h"

namespace kinalyx {
namespace {

constexpr double kLeftRule = 0.5;
constexpr double kRightRule = 7.5;
constexpr double kRulesTop = 0.4;
constexpr double kRulesBottom = 10.2;
constexpr double kRulesAbovePicture[] = {2.0, 2.25};
constexpr PagePoint kPictureCorner{0.51, 2.26};
constexpr double kPictureWidth = 6.98;
constexpr double kNotesTitleLeft = 3.5;
constexpr double kNotesTitleDown = 0.25;  // below the picture
constexpr double kNotesDown = 0.7;
constexpr double kNotesPoints = 10;
constexpr int kNotesLeft = 1100;  // twips
constexpr int kNotesRight = 1300;
constexpr int kNotesBottom = 1080;

// Where a picture ends that would reach further.
constexpr double kLowestWithNotes = 7.75;
constexpr double kLowestWithoutNotes = 10.0;

constexpr double kTitlePoints = 16;
constexpr PagePoint kTitleCorner{0.51, 0.5};
constexpr int kTextUnderTitle = 1440;  // twips

}  // namespace

RichText WithoutTail(RichText text) {
  while (!text.runs.empty()) {
    std::string& last = text.runs.back().text;
    last.erase(last.find_last_not_of(" \t\r\n") + 1);
    if (!last.empty()) break;
    text.runs.pop_back();
  }
  return text;
}

AnalysisPrintout::AnalysisPrintout(std::string title, PageHeading heading, Surface picture, RichText notes)
    : title_(std::move(title)),
      heading_(std::move(heading)),
      picture_(std::move(picture)),
      notes_(WithoutTail(std::move(notes))) {
  const double proportion = picture_.Empty() ? 0 : static_cast<double>(picture_.Height()) / picture_.Width();
  pictureBottom_ =
      std::min(proportion * kPictureWidth + kPictureCorner.y, notes_.Blank() ? kLowestWithoutNotes : kLowestWithNotes);
}

void AnalysisPrintout::PrintOn(IPage& page) const {
  PrintHeading(page, heading_);
  PrintPicture(page);  // beneath the rules, which it touches
  page.Line({kLeftRule, kRulesTop}, {kLeftRule, kRulesBottom});
  page.Line({kRightRule, kRulesTop}, {kRightRule, kRulesBottom});
  for (const double y : kRulesAbovePicture) page.Line({kLeftRule, y}, {kRightRule, y});
  page.Box({kLeftRule, pictureBottom_, kRightRule - kLeftRule, kRulesBottom - pictureBottom_});
  if (notes_.Blank()) return;
  page.Print({kNotesTitleLeft, pictureBottom_ + kNotesTitleDown}, Tr("Analysis Notes"));
  page.SetFont(PrintFont(kNotesPoints));
  PrintRTF(page, notes_, kNotesLeft, static_cast<int>(std::lround((pictureBottom_ + kNotesDown) * kTwipsPerInch)),
           kNotesRight, kNotesBottom);
}

/// One that had to be made smaller stands in the middle.
void AnalysisPrintout::PrintPicture(IPage& page) const {
  if (picture_.Empty()) return;
  const double height = pictureBottom_ - kPictureCorner.y;
  const double width = std::min(kPictureWidth, height * picture_.Width() / picture_.Height());
  page.PaintPicture(picture_, {kPictureCorner.x + (kPictureWidth - width) / 2, kPictureCorner.y, width, height});
}

NotesPrintout::NotesPrintout(std::string title, RichText notes)
    : title_(std::move(title)), notes_(WithoutTail(std::move(notes))) {}

void NotesPrintout::PrintOn(IPage& page) const {
  page.SetFont(PrintFont(kTitlePoints, true));
  page.Print(kTitleCorner, title_);
  page.SetFont(PrintFont(kNotesPoints));
  PrintRTF(page, notes_, kNotesLeft, kTextUnderTitle, kNotesRight, kNotesBottom);
}

}  // namespace kinalyx
