#include <gtest/gtest.h>

#include <QComboBox>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <filesystem>

#include "FormDriver.h"
#include "FormsSupport.h"
#include "printing/forms/Notesform.h"
#include "printing/forms/PreviewForm.h"
#include "printing/forms/ReportForm.h"
#include "support/TempFolder.h"
#include "support/TestHost.h"
#include "support/TestPrinter.h"
#include "workspace/AnalysisStage.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

struct TwoPages final : IPrintout {
  std::string Title() const override { return "Driver"; }
  void PrintOn(IPage& page) const override { page.NewPage(); }
};

struct PrintFormsTest : testing::Test, UsesApplication, FormDriver {
  void Show(QDialog& shown) {
    form = &shown;
    shown.show();
    QTest::qWait(0);
  }
  QWidget& Form() override { return *form; }

  TestHost host;
  TestPrinter printer;
  QDialog* form = nullptr;
};

TEST_F(PrintFormsTest, NotesKeepTheirFormatsOnPaperAndInAFile) {
  const TempFolder folder;
  Notesform notes(host, "", nullptr);
  Show(notes);
  auto* box = Find<QTextEdit>("Notes");
  QTest::keyClicks(box, "Zurich ");
  QTest::keyClick(box, Qt::Key_B, Qt::ControlModifier);
  QTest::keyClicks(box, "first");
  Press("BoldBtn");
  Press("ItalicBtn");
  Find<QComboBox>("SizeBox")->setCurrentText("18");
  emit Find<QComboBox>("SizeBox")->activated(Find<QComboBox>("SizeBox")->currentIndex());
  QTest::keyClick(box, Qt::Key_Return);
  QTest::keyClicks(box, "second");
  const RichText text = notes.Notes();
  ASSERT_GE(text.runs.size(), 3u);
  EXPECT_EQ(text.runs.front(), (TextRun{"Zurich "}));
  EXPECT_TRUE(text.runs[1].bold);
  EXPECT_EQ(text.runs.back(), (TextRun{"second", false, true, false, 18}));

  host.newFiles = {folder.Path("kept.html"), folder.Path("plain")};
  Press("PrintBtn2");
  Press("PrintBtn2");
  EXPECT_EQ(folder.Get("plain.txt"), "Zurich first\r\nsecond");
  Press("PrintBtn0");
  EXPECT_TRUE(notes.Notes().Blank());
  Press("PrintBtn3");
  EXPECT_EQ(host.messages.back(), "There are no notes to print.");
  host.files = {folder.Path("kept.html"), folder.Path("plain.txt"), folder.Path("gone.txt")};
  Press("PrintBtn1");
  EXPECT_EQ(notes.Notes().runs.back(), text.runs.back());
  Press("PrintBtn1");
  EXPECT_EQ(notes.Notes().runs.back().text, "Zurich first\nsecond");
  EXPECT_FALSE(notes.Notes().runs.back().italic);
  Press("PrintBtn1");
  EXPECT_EQ(host.messages.size(), 2u) << "a file that is not there is told";

  QSignalSpy all(&notes, &Notesform::PrintAllWanted);
  QSignalSpy one(&notes, &Notesform::PrintHighWanted);
  Press("SSCommand1_1");
  Press("SSCommand1_0");
  EXPECT_EQ(all.count() + one.count(), 2);
}

TEST_F(PrintFormsTest, TypedNotesAreNotLostUnasked) {
  const TempFolder folder;
  Notesform notes(host, "Proposed", nullptr);
  Show(notes);
  auto* box = Find<QTextEdit>("Notes");
  host.files = {folder.Put("old.txt", "Old"), folder.Path("old.txt")};
  Press("PrintBtn1");
  EXPECT_TRUE(host.questions.empty()) << "a proposal is no work";
  QTest::keyClicks(box, "New ");
  Press("PrintBtn0");
  Press("PrintBtn1");
  QTest::keyClick(box, Qt::Key_Escape);
  notes.close();
  EXPECT_EQ(host.questions.size(), 4u);
  EXPECT_EQ(notes.Notes().runs.front().text, "New Old");
  EXPECT_TRUE(notes.isVisible());

  host.drivesHang = true;
  host.newFiles = {folder.Path("far"), folder.Path("near")};
  Press("PrintBtn2");
  EXPECT_EQ(host.messages, std::vector<std::string>{"The notes could not be saved: the drive does not answer."});
  host.DrivesAnswer();
  Press("PrintBtn2");
  Press("SSCommand1_2");
  EXPECT_EQ(host.questions.size(), 4u) << "saved";
  EXPECT_FALSE(notes.isVisible());
  EXPECT_FALSE(fs::exists(folder.Path("far.txt")));
}

TEST_F(PrintFormsTest, PagesAreSeenBeforeTheyArePrinted) {
  const TempFolder folder;
  const TwoPages pages;
  PrintChoice choice{"", Paper::A4};
  printer.queues.reset();
  choice.printer = "Attic";
  printer.answer = Outcome::Failed("The printer does not answer.");
  PreviewForm preview(host, printer, pages, choice, nullptr);
  Show(preview);
  EXPECT_EQ(Text("PageCount"), "2 pages");
  const QSize a4 = Find<QLabel>("Sheet2")->size();
  Find<QComboBox>("PaperBox")->setCurrentText("Letter");
  EXPECT_NE(Find<QLabel>("Sheet2")->size(), a4);
  EXPECT_FALSE(Find<QAbstractButton>("PrintBtn")->isEnabled());
  EXPECT_TRUE(Find<QAbstractButton>("PdfBtn")->isEnabled()) << "nobody waits for printers";
  printer.queues = {"Office", "Attic"};
  QTRY_COMPARE(Find<QComboBox>("PrinterBox")->currentText(), QString("Attic"));  // as last time
  for (int zoom = 0; zoom < Find<QComboBox>("ZoomBox")->count(); ++zoom) {
    Find<QComboBox>("ZoomBox")->setCurrentIndex(zoom);
    EXPECT_EQ(Find<QLabel>("Sheet1")->grab().toImage().pixelColor(20, 20), QColor(Qt::white)) << zoom;
  }

  QSignalSpy begun(&preview, &PreviewForm::PrintingBegins);
  QSignalSpy ended(&preview, &PreviewForm::PrintingEnds);
  Press("PrintBtn");
  EXPECT_EQ(host.messages.back(), "The printer does not answer.");
  EXPECT_TRUE(preview.isVisible());
  EXPECT_EQ(begun.count(), 1);
  EXPECT_EQ(ended.takeFirst().front(), QVariant(false));
  printer.answer = {};
  Press("PrintBtn");
  EXPECT_EQ(preview.result(), QDialog::Accepted);
  EXPECT_TRUE(preview.Printed());
  EXPECT_EQ(ended.takeFirst().front(), QVariant(true));
  ASSERT_EQ(printer.choices.size(), 2u);
  EXPECT_EQ(printer.choices[1].printer, "Attic");
  EXPECT_EQ(printer.choices[1].Paper, Paper::Letter);

  printer.queues.emplace();
  PreviewForm without(host, printer, pages, choice, nullptr);
  Show(without);
  EXPECT_FALSE(Find<QAbstractButton>("PrintBtn")->isEnabled());
  host.newFiles = {folder.Path("page")};
  Press("PdfBtn");
  EXPECT_EQ(folder.Get("page.pdf").substr(0, 5), "%PDF-");
  EXPECT_EQ(host.suggested, "Driver.pdf");
  EXPECT_EQ(without.result(), QDialog::Accepted);
  EXPECT_FALSE(without.Printed());
}

TEST_F(PrintFormsTest, AReportIsPutTogetherInAList) {
  AnalysisStage stage("1");
  stage.Video("Erica/Driver May.avi");
  stage.Open(1, stage.Video("Erica/Driver June.avi"));
  StagePictures pictures(stage.Stage(), stage.Modes());
  ReportMaker maker({stage.services, stage.settings, stage.Stage(), stage.analysis.Tools(), pictures});
  ReportForm report(maker, nullptr);
  Show(report);
  auto* list = Find<QListWidget>("ReportList");
  ASSERT_EQ(list->count(), 4);
  EXPECT_EQ(list->item(2)->checkState(), Qt::Unchecked) << "nothing is measured";
  EXPECT_EQ(Find<QComboBox>("ThenBox")->count(), 1);
  EXPECT_FALSE(Find<QAbstractButton>("RemoveBtn")->isEnabled());
  Press("DownBtn");
  EXPECT_EQ(report.Items()[1].kind, ReportItem::Kind::Window);
  EXPECT_TRUE(report.Items()[1].wanted);
  for (int row = 0; row < list->count(); ++row) list->item(row)->setCheckState(Qt::Unchecked);
  EXPECT_FALSE(Find<QAbstractButton>("PreviewBtn")->isEnabled());
  EXPECT_FALSE(Find<QWidget>("PreviewBtn")->toolTip().isEmpty());
}

}  // namespace
}  // namespace kinalyx::test
