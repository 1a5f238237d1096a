#include "printing/report/ReportMaker.h"

#include <gtest/gtest.h>

#include "RecordedPage.h"
#include "workspace/AnalysisStage.h"

namespace kinalyx::test {
namespace {

using Kind = ReportItem::Kind;

struct ReportTest : ::testing::Test {
  ReportTest() {
    stage.Video("Erica/Driver May.avi");
    stage.Open(1, stage.Video("Erica/Driver June.avi"));
  }
  RecordedPage Pages(const std::vector<ReportItem>& items, const RichText& notes = {}) {
    RecordedPage page;
    report.Make(items, notes).PrintOn(page);
    return page;
  }
  static std::vector<Kind> Kinds(const std::vector<ReportItem>& items) {
    std::vector<Kind> kinds;
    for (const ReportItem& item : items) kinds.push_back(item.kind);
    return kinds;
  }

  AnalysisStage stage{"2", 1200, 600};
  StagePictures pictures{stage.Stage(), stage.Modes()};
  ReportMaker report{{stage.services, stage.settings, stage.Stage(), stage.analysis.Tools(), pictures}};
};

TEST_F(ReportTest, WhatTheStudentHasIsOfferedAndPrintedInTheChosenOrder) {
  EXPECT_EQ(report.Student(), "Erica");
  stage.Keeping().SetNotes(1, "Grip weaker\r\nSlower back");
  stage.Draw(kLine, {40, 40}, {40, 200});
  auto items = report.Offer();
  EXPECT_EQ(Kinds(items), (std::vector{Kind::Window, Kind::ThenAndNow, Kind::Measures, Kind::Notes}));
  const RichText notes = report.NotesOnStage();
  ASSERT_EQ(notes.runs.size(), 1u);
  EXPECT_EQ(notes.runs[0].text, "Grip weaker\nSlower back");

  const RecordedPage page = Pages(items, notes);
  ASSERT_NE(page.Find("Erica"), nullptr);
  EXPECT_EQ(page.pictures.size(), 3u) << "the window, then, and now";
  ASSERT_NE(page.Find("90.0\u00B0"), nullptr) << "the line's figure in the table";
  EXPECT_NE(page.Find("Driver June"), nullptr);
  ASSERT_EQ(page.texts.size(), 1u);
  EXPECT_EQ(page.texts[0].page, page.pages) << "the notes come last";

  std::swap(items[0], items[2]);
  items[1].wanted = false;
  const RecordedPage other = Pages(items, notes);
  ASSERT_EQ(other.pictures.size(), 1u);
  EXPECT_LT(other.Find("Measures")->at.y, other.pictures[0].box.top);

  stage.Open(2, stage.Video("Erica/Wedge.avi"));
  EXPECT_EQ(report.Offer().front().kind, Kind::AllWindows);
  EXPECT_EQ(report.OtherVideos().size(), 2u);
}

TEST_F(ReportTest, AnotherDayIsSeenAtItsMarkWithItsDrawings) {
  const std::string june = stage.Stage().At(1).path;
  stage.Stage().CurrentWindow = 1;
  stage.MP(1).DrawFrame(7);
  ASSERT_TRUE(stage.Run("TMark"));
  stage.Stage().At(1).data.Study.Marks[0].Name = "Top";
  stage.Draw(kLine, {60, 80}, {200, 80});
  const Colour colour = stage.Shapes().Shapes[0].Colour;
  stage.Keeping().FieldsChanged(1);
  stage.Rest();

  ASSERT_EQ(report.MarksOf(june).size(), 1u);
  MomentPictures moments(stage.services, stage.settings);
  const Surface marked = moments.PictureAtMark(june, "Top", 0.9);
  ASSERT_EQ(marked.Width(), 320);
  bool drawn = false;
  for (int y = 0; y < marked.Height(); ++y)
    for (int x = 0; x < marked.Width(); ++x) drawn |= marked.Pixel(x, y) == colour;
  EXPECT_TRUE(drawn) << "the line";
  const auto same = [](const Surface& a, const Surface& b) {
    return std::equal(a.Row(0), a.Row(0) + a.Stride(), b.Row(0));
  };
  EXPECT_TRUE(same(marked, moments.PictureAt(june, {7})));
  EXPECT_TRUE(same(moments.PictureAtMark(june, "Impact", 1), moments.PictureAt(june, {29}))) << "no such mark";
  EXPECT_TRUE(same(moments.PictureAt(june, {500}), moments.PictureAt(june, {29}))) << "shorter than it was";
  EXPECT_TRUE(moments.PictureAt(stage.folder + "/gone.avi", {}).Empty());
}

TEST_F(ReportTest, SectionsGoDownAsManyPagesAsTheyTake) {
  std::vector<ReportSection> sections(5, ReportPicture{Surface(640, 360), "Driver"});
  ReportMeasures measures;
  for (int i = 0; i < 90; ++i) measures.rows.push_back({std::string(200, 'v'), "Line", "90.0"});
  sections.push_back(measures);
  sections.push_back(ReportPair{"Then and Now", {Surface(90, 1600), "Then"}, {Surface(), "Now"}});
  sections.push_back(ReportNotes{{{{"Grip"}}}});
  RecordedPage page;
  ReportPrintout("Erica", "25 November 2026", {}, sections).PrintOn(page);
  EXPECT_GE(page.pages, 5);
  for (const auto& picture : page.pictures) {
    EXPECT_LE(picture.box.Bottom(), 10);
    EXPECT_LE(picture.box.Right(), 7.505);
  }
  for (const auto& words : page.words) EXPECT_LE(words.at.y, 10.1) << words.text;
  EXPECT_GE(std::ranges::count(page.words, std::string("Measure"), &RecordedPage::Words::text), 2)
      << "the table's head on each of its pages";
  EXPECT_NE(page.Find("Page " + std::to_string(page.pages)), nullptr);
}

}  // namespace
}  // namespace kinalyx::test
