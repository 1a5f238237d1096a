#include <QApplication>

#include "platform/print/PagePainter.h"
#include "platform/print/Printer.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

constexpr int kDots = 100;  // of the pictures, to an inch
constexpr Colour kWhite = Rgb(255, 255, 255);

/// Two marks in opposite corners, and a text over as many pages as it takes.
struct Sample final : IPrintout {
  RichText text;

  std::string Title() const override { return "Zażółć 山田"; }
  void PrintOn(IPage& page) const override {
    page.Fill({0.5, 0.4, 0.1, 0.1}, Rgb(255, 0, 0));
    page.Fill({7.4, 10.1, 0.1, 0.1}, Rgb(0, 0, 255));
    page.SetFont({"Times New Roman", 12});
    auto next = page.FormatRange(text, 0, {1, 1, 6, 8});
    while (next) {
      page.NewPage();
      next = page.FormatRange(text, *next, {1, 1, 6, 8});
    }
  }
};

struct PagesTest : ::testing::Test {
  int argc = 1;
  char name[5] = "test";
  char* argv[2] = {name, nullptr};
  QApplication application{argc, argv};
  Sample sample;
};

/// The corner of the first pixel of a colour, in inches of the paper.
PagePoint Find(const Surface& sheet, Colour colour) {
  for (int y = 0; y < sheet.Height(); ++y)
    for (int x = 0; x < sheet.Width(); ++x)
      if (sheet.Pixel(x, y) == colour) return {double(x) / kDots, double(y) / kDots};
  return {-1, -1};
}

/// Lowest row of the sheet on which something is printed between two edges, in inches.
double LowestInk(const Surface& sheet, double left, double right) {
  for (int y = sheet.Height() - 1; y >= 0; --y)
    for (int x = int(left * kDots); x < int(right * kDots); ++x)
      if (sheet.Pixel(x, y) != kWhite) return double(y) / kDots;
  return -1;
}

TEST_F(PagesTest, APageLiesInTheMiddleOfWhateverPaperThereIs) {
  const Surface letter = PicturesOf(sample, Paper::Letter, kDots).at(0);
  EXPECT_EQ(letter.Width(), 850);
  EXPECT_EQ(letter.Height(), 1100);
  EXPECT_NEAR(Find(letter, Rgb(255, 0, 0)).x, 0.75, 0.015);
  EXPECT_NEAR(Find(letter, Rgb(255, 0, 0)).y, 0.4 + kPhysicalOffset, 0.015);
  const Surface a4 = PicturesOf(sample, Paper::A4, kDots).at(0);
  EXPECT_NEAR(Find(a4, Rgb(255, 0, 0)).x, (210 / 25.4 - 7) / 2, 0.015);
  EXPECT_NEAR(Find(a4, Rgb(0, 0, 255)).x - Find(a4, Rgb(255, 0, 0)).x, 6.9, 0.015) << "at its own size";
}

TEST_F(PagesTest, APrinterThatReachesLessGetsASmallerPage) {
  struct Case {
    Paper paper;
    double white;  // inches at every edge
    bool whole;
  };
  for (const Case& each : {Case{Paper::Letter, 0.167, true}, Case{Paper::A4, 0.25, true}, Case{Paper::A4, 0.6, false},
                           Case{Paper::Letter, 1.5, false}}) {
    const QSizeF paper = SizeOf(each.paper);
    const QRectF printable(each.white, each.white, paper.width() - 2 * each.white, paper.height() - 2 * each.white);
    const PagePlace place = PlaceOfPage(paper, printable);
    EXPECT_EQ(place.scale == 1, each.whole) << each.white;
    // What a sheet of the short-game school prints outermost.
    EXPECT_GE(place.left + 0.25 * place.scale, printable.left() - 1e-9) << each.white;
    EXPECT_LE(place.left + 7.75 * place.scale, printable.right() + 1e-9) << each.white;
    EXPECT_GE(place.top + 0.27 * place.scale, printable.top() - 1e-9) << each.white;
    EXPECT_LE(place.top + 10.3 * place.scale, printable.bottom() + 1e-9) << each.white;
  }
}

TEST_F(PagesTest, ATextGoesOnWhereThePageBeforeHasStopped) {
  sample.text.runs = {{"First ", true}, {"and last\n", false, true, true, 18}};
  EXPECT_EQ(PicturesOf(sample, Paper::Letter, kDots).size(), 1u);
  sample.text.runs.clear();
  for (int line = 0; line < 120; ++line)
    sample.text.runs.push_back({"Zażółć Ελένη 山田 " + std::to_string(line) + "\n"});
  const auto sheets = PicturesOf(sample, Paper::Letter, kDots);
  ASSERT_GE(sheets.size(), 3u);
  ASSERT_LE(sheets.size(), 4u);
  for (std::size_t i = 0; i < sheets.size(); ++i) {
    const double lowest = LowestInk(sheets[i], 1.2, 4);
    EXPECT_GT(lowest, 1) << "sheet " << i;
    EXPECT_LT(lowest, 9 + kPhysicalOffset + 0.1) << "no line reaches below its box, sheet " << i;
  }
  sample.text.runs = {{std::string(9000, 'x')}};  // one word is broken
  EXPECT_GE(PicturesOf(sample, Paper::Letter, kDots).size(), 2u);
}

TEST_F(PagesTest, AFileIsWholeOrAsItWas) {
  const TempFolder folder;
  const std::string path = folder.Path("out.pdf");
  ASSERT_TRUE(PrintToPdf(sample, Paper::A4, path));
  const std::string bytes = BytesOf(path);
  EXPECT_EQ(bytes.substr(0, 5), "%PDF-");
  EXPECT_NE(bytes.find("/MediaBox [0 0 595"), std::string::npos);
  for (const std::string& nowhere : {folder.Path("none/out.pdf"), folder.Path(), std::string("/dev/full")}) {
    const Outcome saved = PrintToPdf(sample, Paper::A4, nowhere);
    EXPECT_EQ(saved.Kind(), Fault::Failed) << nowhere;
    EXPECT_NE(saved.Why().find(nowhere), std::string::npos) << saved.Why();
  }
}

TEST_F(PagesTest, APrinterThatIsNotThereIsTold) {
  const Outcome printed = MakePrinter()->Print(sample, {"No such printer", Paper::A4, 1});
  EXPECT_EQ(printed.Kind(), Fault::Failed);
  EXPECT_NE(printed.Why().find("No such printer"), std::string::npos) << printed.Why();
}

}  // namespace
}  // namespace kinalyx::test
