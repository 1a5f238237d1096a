#include "printing/report/ReportPrintout.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "platform/files/Tr.h"
#include "printing/AnalysisPrintout.h"

namespace kinalyx {
namespace {

constexpr double kLeft = 0.5;
constexpr double kWidth = 7.0;
constexpr double kUnderHeading = 2.0;  // where the title of the first page stands
constexpr double kFurtherTop = 0.9;    // where the other pages begin
constexpr double kBottom = 9.95;
constexpr double kFootTop = 10.05;
constexpr double kTitlePoints = 18;
constexpr double kSectionPoints = 13;
constexpr double kTextPoints = 10;
constexpr double kSmallPoints = 9;
constexpr double kGapBelow = 0.25;
constexpr double kPictureHeight = 3.3;  // two of them find room on a page
constexpr double kPairHeight = 4.2;
constexpr double kPairGap = 0.2;
constexpr double kTitleRoom = 0.35;
constexpr double kRowPadding = 0.05;
constexpr Colour kGrey = Rgb(96, 96, 96);
constexpr Colour kLightGrey = Rgb(232, 232, 232);
constexpr int kHairline = 4;

/// Columns of the table: where they begin, and how wide they are.
struct Column {
  const char* title;
  double left;
  double width;
};
constexpr Column kColumns[] = {
    {TrLater("Video"), 0.5, 3.1}, {TrLater("Drawing"), 3.6, 1.7}, {TrLater("Measure"), 5.3, 2.2}};

/// A line that is too long loses its end.
std::string Fitting(IPage& page, const std::string& line, double width) {
  if (page.TextWidth(line) <= width) return line;
  std::string cut = line;
  while (!cut.empty() && page.TextWidth(cut + "\u2026") > width) {
    std::size_t end = cut.size() - 1;
    while (end > 0 && (cut[end] & 0xC0) == 0x80) --end;  // a letter goes with all its bytes
    cut.resize(end);
  }
  return cut + "\u2026";
}

/// Goes down the pages.
class Flow {
 public:
  Flow(IPage& page, const std::string& title, const std::string& date) : page_(page), running_(title + ", " + date) {}

  void Begin(const PageHeading& heading, const std::string& title, const std::string& date) {
    PrintHeading(page_, heading);
    page_.SetFont(PrintFont(kTitlePoints, true));
    const double height = page_.LineHeight();
    page_.Print({kLeft, kUnderHeading}, Fitting(page_, title, kWidth));
    page_.SetFont(PrintFont(kTextPoints));
    page_.SetInk(kGrey);
    page_.Print({kLeft, kUnderHeading + height}, date);
    page_.SetInk(0);
    y_ = kUnderHeading + height + page_.LineHeight() + kGapBelow;
    Foot();
  }

  void Add(const ReportPicture& section) {
    if (section.picture.Empty()) return;
    Need(HeightOf(section, kWidth, kPictureHeight));
    y_ += PlacePicture(section, kLeft, kWidth, kPictureHeight) + kGapBelow;
  }

  void Add(const ReportPair& section) {
    const double half = (kWidth - kPairGap) / 2;
    Need(std::max(HeightOf(section.then, half, kPairHeight), HeightOf(section.now, half, kPairHeight)) + kTitleRoom);
    SectionTitle(section.title);
    const double left = PlacePicture(section.then, kLeft, half, kPairHeight);
    const double right = PlacePicture(section.now, kLeft + half + kPairGap, half, kPairHeight);
    y_ += std::max(left, right) + kGapBelow;
  }

  void Add(const ReportMeasures& section) {
    if (section.rows.empty()) return;
    page_.SetFont(PrintFont(kTextPoints));
    const double row = page_.LineHeight() + 2 * kRowPadding;
    Need(4 * row);
    SectionTitle(Tr("Measures"));
    TableHead(row);
    for (const ReportMeasures::Row& each : section.rows) {
      if (y_ + row > kBottom) {
        NextPage();
        TableHead(row);
      }
      const std::string* cells[] = {&each.video, &each.drawing, &each.figure};
      for (int i = 0; i < 3; ++i)
        page_.Print({kColumns[i].left + kRowPadding, y_ + kRowPadding},
                    Fitting(page_, *cells[i], kColumns[i].width - 2 * kRowPadding));
      y_ += row;
      page_.Line({kLeft, y_}, {kLeft + kWidth, y_});
    }
    y_ += kGapBelow;
  }

  /// How far a text reaches down its last page is not known, so what follows begins on another one.
  void Add(const ReportNotes& section) {
    if (section.text.Blank()) return;
    Need(1.5);
    SectionTitle(Tr("Notes"));
    page_.SetFont(PrintFont(kTextPoints));
    auto next = page_.FormatRange(section.text, 0, Rest());
    while (next) {
      NextPage();
      page_.SetFont(PrintFont(kTextPoints));
      next = page_.FormatRange(section.text, *next, Rest());
    }
    y_ = kBottom;
  }

 private:
  PageBox Rest() const { return {kLeft, y_, kWidth, kBottom - y_}; }

  void Need(double height) {
    if (y_ + height > kBottom) NextPage();
  }

  void NextPage() {
    page_.NewPage();
    ++number_;
    page_.SetInk(kGrey);
    page_.SetFont(PrintFont(kSmallPoints));
    page_.Print({kLeft, 0.5}, Fitting(page_, running_, kWidth));
    page_.SetDrawWidth(kHairline);
    page_.Line({kLeft, 0.5 + page_.LineHeight() + 0.04}, {kLeft + kWidth, 0.5 + page_.LineHeight() + 0.04});
    page_.SetInk(0);
    Foot();
    page_.SetFont(PrintFont(kTextPoints));
    y_ = kFurtherTop;
  }

  void Foot() {
    page_.SetInk(kGrey);
    page_.SetFont(PrintFont(kSmallPoints));
    const std::string number = Tr("Page {}", number_);
    page_.Print({kLeft + kWidth - page_.TextWidth(number), kFootTop}, number);
    page_.SetInk(0);
  }

  void SectionTitle(const std::string& title) {
    page_.SetFont(PrintFont(kSectionPoints, true));
    page_.Print({kLeft, y_}, title);
    y_ += page_.LineHeight() + 0.08;
  }

  void TableHead(double row) {
    page_.Fill({kLeft, y_, kWidth, row}, kLightGrey);
    page_.SetFont(PrintFont(kTextPoints, true));
    for (const Column& column : kColumns) page_.Print({column.left + kRowPadding, y_ + kRowPadding}, Tr(column.title));
    page_.SetFont(PrintFont(kTextPoints));
    page_.SetDrawWidth(kHairline);
    y_ += row;
  }

  /// Of a picture with its words in a room of this size.
  double HeightOf(const ReportPicture& section, double width, double height) {
    const double shown =
        section.picture.Empty() ? 0 : std::min(height, width * section.picture.Height() / section.picture.Width());
    return shown + CaptionHeight(section);
  }

  double CaptionHeight(const ReportPicture& section) {
    page_.SetFont(PrintFont(kTextPoints));
    return section.caption.empty() ? 0 : page_.LineHeight() + 0.06;
  }

  /// As large as the room allows, in its own proportions, with its words beneath; gives the height of both.
  double PlacePicture(const ReportPicture& section, double left, double width, double height) {
    double shown = 0;
    if (!section.picture.Empty()) {
      const double scale = std::min(width / section.picture.Width(), height / section.picture.Height());
      shown = section.picture.Height() * scale;
      const double across = section.picture.Width() * scale;
      page_.PaintPicture(section.picture, {left + (width - across) / 2, y_, across, shown});
    }
    const double caption = CaptionHeight(section);
    const std::string words = Fitting(page_, section.caption, width);
    page_.Print({left + (width - page_.TextWidth(words)) / 2, y_ + shown + 0.06}, words);
    return shown + caption;
  }

  IPage& page_;
  std::string running_;
  int number_ = 1;
  double y_ = 0;
};

}  // namespace

ReportPrintout::ReportPrintout(std::string title, std::string date, PageHeading heading,
                               std::vector<ReportSection> sections)
    : title_(std::move(title)), date_(std::move(date)), heading_(std::move(heading)), sections_(std::move(sections)) {}

void ReportPrintout::PrintOn(IPage& page) const {
  Flow flow(page, title_, date_);
  flow.Begin(heading_, title_, date_);
  for (const ReportSection& section : sections_) std::visit([&](const auto& each) { flow.Add(each); }, section);
}

}  // namespace kinalyx
