// How a coach finds things on the profiles page, and what can be done with several videos at once.

#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>

#include "ProfilesStage.h"
#include "library/forms/DialogForm.h"
#include "platform/widgets/FileDrop.h"

namespace kinalyx::test {
namespace {

class FindingTest : public test::ProfilesStage {
 protected:
  FindingTest() {
    AddVideo("Demo/Sample, Erica/(003) DTL wedge.avi");
    library.File("Demo/Tom/profile.txt", "Łokieć too high, weight on the left foot\r\n");
    page->Open();
    QApplication::setActiveWindow(page.get());
  }
  QLineEdit* Box() { return Find<QLineEdit>("LibrarySearch"); }
  void Search(const QString& typed) {
    QTest::keyClick(page.get(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(page->focusWidget(), Box());
    Box()->clear();
    QTest::keyClicks(Box(), typed);
    library.host.Advance(100);  // the first index comes
  }
  bool Shown() { return Find<QWidget>("SearchResults")->isVisible(); }
  void ChooseRows(int first, int last) {
    ChooseStudent("Sample, Erica");
    NameList* list = List("VideoList");
    list->setCurrentRow(first);
    for (int row = first; row < last; ++row) QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
  }
};

TEST_F(FindingTest, OneSearchGoesToPeopleVideosAndNotes) {
  Search("wedge eri");
  ASSERT_TRUE(Shown());
  EXPECT_EQ(Rows("SearchList"), (QStringList{"VIDEOS", "(003) DTL wedge"}));
  QTest::keyClick(Box(), Qt::Key_Return);
  EXPECT_FALSE(Shown());
  EXPECT_EQ(page->Browser().VideoPath(), library.Path("Demo/Sample, Erica/(003) DTL wedge.avi"));
  EXPECT_EQ(Preview().filename(), page->Browser().VideoPath());
  EXPECT_EQ(page->focusWidget(), List("VideoList"));

  Search("lokiec");
  EXPECT_EQ(Rows("SearchList").size(), 2);
  QTest::keyClick(Box(), Qt::Key_Return);
  EXPECT_EQ(page->Browser().Student(), "Tom");
  EXPECT_TRUE(Find<QPlainTextEdit>("ProfileNotes")->isVisible()) << "there stand the words that were found";

  Search("to");
  EXPECT_EQ(Rows("SearchList").mid(0, 3), (QStringList{"PEOPLE", "Tom", "NOTES AND FIELDS"}));
  QTest::keyClick(Box(), Qt::Key_Down);
  EXPECT_EQ(List("SearchList")->currentRow(), 3) << "the arrow keys pass over the headings";
  Search("nobody at all");
  EXPECT_EQ(Text("SearchState"), "Nothing was found.");
  QTest::keyClick(Box(), Qt::Key_Escape);
  EXPECT_FALSE(Shown());
  EXPECT_EQ(page->focusWidget(), List("StudentList"));
}

TEST_F(FindingTest, WhatHasGoneMeanwhileIsSaid) {
  Search("wedge");
  std::filesystem::remove(library.Path("Demo/Sample, Erica/(003) DTL wedge.avi"));
  QTest::keyClick(Box(), Qt::Key_Return);
  EXPECT_EQ(Text("SPDisplay"), "It is not there any more.");
  EXPECT_EQ(page->Browser().Student(), "Sample, Erica");
}

TEST_F(FindingTest, SeveralVideosAreSentMovedAndDeletedTogether) {
  ChooseRows(0, 1);
  EXPECT_EQ(List("VideoList")->ChosenRows(), (std::vector<int>{0, 1}));
  Press("SPBtn4");
  EXPECT_EQ(sent.size(), 2u);
  EXPECT_EQ(Text("SPDisplay"), "2 videos were sent to Analysis.");
  EXPECT_EQ(analysis.shown, 1) << "and the program goes there";

  Press("SPBtn7");
  EXPECT_EQ(Text("DialogTitle"), "Move these 2 videos");
  Choose("MoveStudents", "Tom");
  Press("MoveVideoBtn");
  Work();
  EXPECT_EQ(Text("SPDisplay"), "2 videos successfully moved.");
  EXPECT_TRUE(Exists("Demo/Tom/(001) DTL driver.avi") && Exists("Demo/Tom/(002) FO iron.ved"));

  ChooseStudent("Tom");
  List("VideoList")->selectAll();
  Press("SPBtn9");
  EXPECT_TRUE(Text("DialogText").contains("2 videos with their drawings and notes"));
  Press("DelVidBtn");
  EXPECT_EQ(Text("SPDisplay"), "2 Videos Successfully Deleted!");
  EXPECT_TRUE(Rows("VideoList").isEmpty());
  EXPECT_FALSE(Exists("Demo/Tom/(002) FO iron.ved"));
}

TEST_F(FindingTest, ADragTakesTheFilesAlong) {
  ChooseRows(0, 2);
  const auto mime = std::unique_ptr<QMimeData>(
      List("VideoList")->model()->mimeData(List("VideoList")->selectionModel()->selectedIndexes()));
  const auto files = FilesIn(mime.get());
  ASSERT_EQ(files.size(), 3u);
  EXPECT_EQ(files[0], library.Path("Demo/Sample, Erica/(001) DTL driver.avi"));
  EXPECT_TRUE(List("VideoList")->dragEnabled());
}

TEST_F(FindingTest, RowsShowPictureDateLengthAndSizeOrNamesAlone) {
  page->resize(1200, 700);
  ChooseStudent("Sample, Erica");
  library.File("Demo/Tom/bad.avi", "no video");
  library.host.Advance(200);
  const QListWidgetItem* row = List("VideoList")->item(0);
  const QStringList details = row->data(NameDelegate::kDetailsRole).toStringList();
  ASSERT_EQ(details.size(), 3);
  EXPECT_TRUE(details.last().endsWith("KB"));
  EXPECT_FALSE(row->data(NameDelegate::kPictureRole).value<QImage>().isNull());
  const int high = List("VideoList")->visualItemRect(row).height();
  ChooseStudent("Tom");
  library.host.Advance(200);
  EXPECT_EQ(List("VideoList")->item(0)->data(NameDelegate::kDetailsRole).toStringList().value(0), "Cannot be opened");

  Press("VideoPicturesBtn");
  ChooseStudent("Sample, Erica");
  EXPECT_LT(List("VideoList")->visualItemRect(List("VideoList")->item(0)).height(), high);

  Press("VideoSortBtn");
  auto* menu = page->findChild<QMenu*>("VideoSortMenu");
  ASSERT_TRUE(menu);
  menu->actions().value(0)->trigger();  // by name, the other way round
  EXPECT_EQ(Rows("VideoList").value(0), "(003) DTL wedge");
  EXPECT_EQ(page->Browser().Video(), "(001) DTL driver");
  EXPECT_EQ(List("VideoList")->currentRow(), 2);
}

}  // namespace
}  // namespace kinalyx::test
