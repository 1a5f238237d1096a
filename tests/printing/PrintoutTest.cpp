#include "printing/AnalysisPrintouts.h"

#include <gtest/gtest.h>

#include "RecordedPage.h"
#include "printing/PrintRTFWWG.h"
#include "workspace/AnalysisStage.h"

namespace kinalyx::test {
namespace {

constexpr double kInset = 1100 / 1440.0 - kPhysicalOffset;

RecordedPage Printed(const IPrintout& printout) {
  RecordedPage page;
  printout.PrintOn(page);
  return page;
}

PageHeading Heading(bool withLogo) {
  return {{"Links Golf", "Anna", "", "Line 4", "anna@example.org"}, withLogo, withLogo ? Surface(165, 100) : Surface()};
}

TEST(Printout, ThePageStandsToTheHundredthOfAnInch) {
  const AnalysisPrintout printout("Driver", Heading(true), Surface(1280, 640), {{{"Grip"}}});
  const double bottom = 6.98 / 2 + 2.26;
  EXPECT_NEAR(printout.PictureBottom(), bottom, 1e-9);
  const RecordedPage page = Printed(printout);
  EXPECT_TRUE(page.HasBox({0.5, 0.4, 7.0, 1.35}));
  EXPECT_TRUE(page.HasBox({0.5, bottom, 7.0, 10.2 - bottom}));
  EXPECT_TRUE(page.HasLine({5.48, 0.4}, {5.48, 1.75}));
  for (const double x : {0.5, 7.5}) EXPECT_TRUE(page.HasLine({x, 0.4}, {x, 10.2})) << x;
  for (const double y : {2.0, 2.25}) EXPECT_TRUE(page.HasLine({0.5, y}, {7.5, y})) << y;
  ASSERT_EQ(page.pictures.size(), 2u);
  EXPECT_TRUE(RecordedPage::Same(page.pictures[0].box, {5.5, 0.5, 1.98, 1.2}));
  EXPECT_TRUE(RecordedPage::Same(page.pictures[1].box, {0.51, 2.26, 6.98, 3.49}));
  ASSERT_GE(page.words.size(), 6u);
  const double tops[] = {0.5, 0.75, 1.0, 1.25, 1.5};
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_NEAR(page.words[i].at.y, tops[i], 1e-9);
    EXPECT_NEAR(page.words[i].at.x + 0.05 * double(page.words[i].text.size()), 3.25, 1e-9) << "the middle of the line";
    EXPECT_EQ(page.words[i].font.family, "Times New Roman");
    EXPECT_EQ(page.words[i].font.points, 12);
    EXPECT_TRUE(page.words[i].font.bold);
  }
  ASSERT_NE(page.Find("Analysis Notes"), nullptr);
  EXPECT_NEAR(page.Find("Analysis Notes")->at.x, 3.5, 1e-9);
  EXPECT_NEAR(page.Find("Analysis Notes")->at.y, bottom + 0.25, 1e-9);
  ASSERT_EQ(page.texts.size(), 1u);
  EXPECT_NEAR(page.texts[0].box.left, kInset, 0.005);
  EXPECT_NEAR(page.texts[0].box.top, bottom + 0.7 - kPhysicalOffset, 0.005);
  EXPECT_NEAR(page.texts[0].box.Right(), 8.5 - 1300 / 1440.0 - kPhysicalOffset, 0.005);
  EXPECT_NEAR(page.texts[0].box.Bottom(), 11 - 0.75 - kPhysicalOffset, 0.005);
  EXPECT_EQ(page.pages, 1);
}

TEST(Printout, WithoutLogoAndNotesThePageIsEmptierAndNothingMoves) {
  const RecordedPage page = Printed(AnalysisPrintout("Driver", Heading(false), Surface(400, 300), {{{" \n\n"}}}));
  EXPECT_FALSE(page.HasLine({5.48, 0.4}, {5.48, 1.75}));
  EXPECT_EQ(page.pictures.size(), 1u);
  EXPECT_NEAR(page.words[0].at.x + 0.05 * double(page.words[0].text.size()), 4, 1e-9);
  EXPECT_EQ(page.Find("Analysis Notes"), nullptr);
  EXPECT_TRUE(page.texts.empty());
  EXPECT_TRUE(page.HasBox({0.5, 7.495, 7.0, 10.2 - 7.495}));
}

TEST(Printout, APictureThatIsTallerThanThePageLeavesRoomForTheNotes) {
  struct Case {
    int width, height;
    bool notes;
    double bottom;
  };
  for (const Case& each : {Case{400, 300, true, 7.495}, Case{1000, 780, true, 7.704}, Case{480, 640, true, 7.75},
                           Case{480, 640, false, 10.0}, Case{1000, 1000, false, 9.24}, Case{90, 1600, true, 7.75}}) {
    const RichText notes{{{each.notes ? "Grip" : ""}}};
    const AnalysisPrintout printout("Upright", Heading(false), Surface(each.width, each.height), notes);
    EXPECT_NEAR(printout.PictureBottom(), each.bottom, 0.005) << each.width << " x " << each.height;
    const PageBox box = Printed(printout).pictures.at(0).box;
    EXPECT_NEAR(box.width / box.height, double(each.width) / each.height, 1e-6) << "not bent";
    EXPECT_NEAR(box.left + box.width / 2, 4.0, 0.005) << "in the middle";
    EXPECT_NEAR(box.Bottom(), each.bottom, 0.005);
  }
}

TEST(Printout, NotesGoOnOverAsManyPagesAsTheyNeed) {
  RichText notes;
  for (int line = 0; line < 60; ++line) notes.runs.push_back({"Line\n", line == 0});
  notes.runs.push_back({"\n\n\n \n", false, true});
  const RecordedPage page = Printed(AnalysisPrintout("Driver", Heading(false), Surface(400, 300), notes));
  ASSERT_GE(page.texts.size(), 3u);
  EXPECT_EQ(page.pages, int(page.texts.size()));
  for (const auto& text : page.texts) EXPECT_TRUE(RecordedPage::Same(text.box, page.texts[0].box)) << "same margins";
  EXPECT_EQ(page.text.runs.back().text, "Line") << "empty lines at the end take no paper";
  EXPECT_TRUE(page.text.runs.front().bold);

  RecordedPage blank;
  PrintRTF(blank, {{{"  \n"}}}, 1100, 1440, 1300, 1080);
  EXPECT_TRUE(blank.texts.empty());
}

TEST(Printout, ALineThatIsTooLongForItsBoxStaysInside) {
  PageHeading heading = Heading(true);
  heading.lines[2] = std::string(80, 'x');
  RecordedPage page;
  PrintHeading(page, heading);
  EXPECT_LT(page.words[2].font.points, 12);
  EXPECT_EQ(page.words[3].font.points, 12);
}

TEST(Printout, TheCurrentWindowIsPrintedOrAllAndTheLogoIsReadFromItsFile) {
  AnalysisStage stage("2");
  StagePictures pictures(stage.Stage(), stage.Modes());
  AnalysisPrintouts printouts(stage.host, stage.settings, stage.Stage(), pictures);
  const auto refused = printouts.PrintHigh({});
  EXPECT_EQ(refused.Why(), "There is no video in the highlighted window");
  ASSERT_TRUE(stage.Open(2, stage.Video("Driver.avi")));
  stage.settings.Logo = true;
  stage.settings.LogoName = stage.folder + "/gone.jpg";
  stage.settings.Heading[1] = "Links Golf";
  stage.Stage().CurrentWindow = 2;
  const auto one = printouts.PrintHigh({});
  ASSERT_TRUE(one);
  EXPECT_EQ(one->Title(), "Driver");
  const RecordedPage page = Printed(*one);
  EXPECT_EQ(page.pictures.size(), 1u) << "a logo that has gone is left out";
  EXPECT_TRUE(page.HasLine({5.48, 0.4}, {5.48, 1.75}));
  EXPECT_NE(page.Find("Links Golf"), nullptr);
  EXPECT_NEAR(printouts.PrintAll({}).PictureBottom(), 6.98 * 720 / 1280 + 2.26, 0.005) << "as the stage is shaped";
}

}  // namespace
}  // namespace kinalyx::test
