#include "library/forms/LibraryCommands.h"

#include <QComboBox>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest/QTest>
#include <atomic>
#include <chrono>
#include <fstream>
#include <thread>

#include "ProfilesStage.h"
#include "library/forms/ProgressForm.h"
#include "library/forms/TrimSlider.h"
#include "support/TestDisks.h"

namespace kinalyx {
namespace {

/// What the user does with students and videos on the profiles page.
class LibraryCommandsTest : public test::ProfilesStage {
 protected:
  bool DialogShown() { return page->findChild<DialogForm*>()->isVisible(); }
};

TEST_F(LibraryCommandsTest, AStudentIsRenamedMovedAndDeletedWithTheNotesThatAreBeingWritten) {
  library.Folder("Other/Tom");
  page->Open();
  Press("SPBtn1");
  EXPECT_EQ(Text("SPDisplay"), "You must select a student first.");
  EXPECT_FALSE(DialogShown());

  ChooseStudent("Tom");
  Press("SPBtn10");
  Find<QPlainTextEdit>("ProfileNotes")->setPlainText("just typed");
  QTest::keyClick(List("StudentList"), Qt::Key_F2);
  ASSERT_TRUE(DialogShown());
  EXPECT_EQ(Find<QLineEdit>("RenameText")->selectedText(), "Tom");
  EXPECT_FALSE(Find<QPushButton>("SSCommand1")->isEnabled());  // the name it has already
  Type("RenameText", "Sample, Erica");
  Press("SSCommand1");
  EXPECT_EQ(library.host.messages.back(), "The name you have chosen already exists in the database.");
  EXPECT_TRUE(DialogShown());  // to be put right
  Type("RenameText", "Tim");
  Press("SSCommand1");
  EXPECT_FALSE(DialogShown());
  EXPECT_EQ(Text("SPDisplay"), "Student successfully renamed.");
  EXPECT_EQ(Text("ProInfoLbl0"), "Tim");
  EXPECT_EQ(Read("Demo/Tim/profile.txt"), "just typed\r\n");
  EXPECT_EQ(Find<QPlainTextEdit>("ProfileNotes")->toPlainText(), "just typed\n");
  Press("SPBtn1");
  Press("DialogCancel");
  EXPECT_EQ(Text("SPDisplay"), "Student rename cancelled.");

  Press("SPBtn2");
  EXPECT_EQ(Rows("MoveDatabases"), QStringList("Other"));  // neither where he is nor Quick Launch
  EXPECT_FALSE(Find<QPushButton>("MoveSave")->isEnabled());
  Choose("MoveDatabases", "Other");
  Press("MoveSave");
  Work();
  EXPECT_EQ(page->Browser().Instructor() + "/" + page->Browser().Student(), "Other/Tim");
  EXPECT_FALSE(Exists("Demo/Tim"));

  QTest::keyClick(List("StudentList"), Qt::Key_Delete);
  EXPECT_TRUE(Text("DialogText").contains("Warning!!! This will remove the student"));
  Press("DialogCancel");
  EXPECT_TRUE(Exists("Other/Tim"));
  Press("SPBtn3");
  Press("DelStudentBtn");
  Work();
  EXPECT_FALSE(Exists("Other/Tim"));
  EXPECT_EQ(Rows("StudentList"), QStringList("Tom"));
}

TEST_F(LibraryCommandsTest, ReturnPressesTheButtonThatHasTheKeysAndInABoxTheDefaultOne) {
  ChooseStudent("Tom");
  const auto enter = [this](const char* control) { QTest::keyClick(Find<QWidget>(control), Qt::Key_Return); };
  Press("SPBtn1");
  Type("RenameText", "Tim");
  enter("DialogCancel");
  EXPECT_FALSE(DialogShown());
  EXPECT_TRUE(Exists("Demo/Tom")) << "Cancel renames nothing";
  Press("SPBtn1");
  Type("RenameText", "Tim");
  enter("RenameText");
  EXPECT_TRUE(Exists("Demo/Tim"));

  Press("SPBtn3");
  enter("DialogText");
  EXPECT_FALSE(DialogShown());
  EXPECT_TRUE(Exists("Demo/Tim")) << "who presses Return without a choice deletes nothing";
  Press("SPBtn3");
  enter("DelStudentBtn");
  Work();
  EXPECT_FALSE(Exists("Demo/Tim"));

  Press("SPBtn0");
  enter("ProAddCancelBtn");
  EXPECT_FALSE(Find<QWidget>("ProAddPnl")->isVisible());
  ChooseStudent("Sample, Erica");
  Choose("VideoList", "(002) FO iron");
  Press("SPBtn5");
  enter("EditCancelBtn");
  EXPECT_FALSE(Find<QWidget>("EditPanel")->isVisible());
}

TEST_F(LibraryCommandsTest, NotesThatCannotBeStoredHoldUpTheOperation) {
  ChooseStudent("Tom");
  Press("SPBtn10");
  std::filesystem::remove(library.Path("Demo/Tom/profile.txt"));
  library.Folder("Demo/Tom/profile.txt");  // stands in the way of the file
  Find<QPlainTextEdit>("ProfileNotes")->setPlainText("not lost");
  Press("SPBtn1");
  Type("RenameText", "Tim");
  Press("SSCommand1");
  EXPECT_TRUE(Exists("Demo/Tom"));
  EXPECT_EQ(Find<QPlainTextEdit>("ProfileNotes")->toPlainText(), "not lost");
}

TEST_F(LibraryCommandsTest, AVideoThatIsOpenInAnalysisIsRefusedBeforeAnyDialog) {
  ChooseStudent("Sample, Erica");
  open = {page->Browser().VideoPath()};
  const std::string video =
      "This video is open in the Analysis section. You must close the video before you can continue.";
  for (const char* button : {"SPBtn5", "SPBtn6", "SPBtn7", "SPBtn8", "SPBtn9"}) {
    Press(button);
    EXPECT_EQ(library.host.messages.back(), video) << button;
    EXPECT_FALSE(DialogShown()) << button;
  }
  EXPECT_FALSE(page->findChild<QWidget*>("EditPanel")->isVisible());
  for (const char* button : {"SPBtn1", "SPBtn2", "SPBtn3"}) {
    Press(button);
    EXPECT_TRUE(library.host.messages.back().starts_with("A video from this database is open")) << button;
    EXPECT_FALSE(DialogShown()) << button;
  }
}

TEST_F(LibraryCommandsTest, AVideoIsRenamedMovedAndDeletedAndTheNextOneTakesItsPlace) {
  AddVideo("Demo/Sample, Erica/(003) FO iron.avi");
  ChooseStudent("Sample, Erica");
  Choose("VideoList", "(002) FO iron");
  QTest::keyClick(List("VideoList"), Qt::Key_F2);
  Type("RenameText", "a/b");
  Press("RenVidBtn");
  EXPECT_EQ(library.host.messages.back(), "Invalid character in student name.");
  Type("RenameText", "(002) new");
  QTest::keyClick(Find<QLineEdit>("RenameText"), Qt::Key_Return);
  EXPECT_EQ(page->Browser().Video(), "(002) new");
  EXPECT_EQ(Read("Demo/Sample, Erica/(002) new.ved"), "1XXXSNXX");
  EXPECT_EQ(Preview().filename(), page->Browser().VideoPath());

  Press("SPBtn7");
  Choose("MoveStudents", "Sample, Erica");
  Press("MoveVideoBtn");
  EXPECT_EQ(library.host.messages.back(), "The source and destination folders are the same. The video was not moved.");
  EXPECT_TRUE(DialogShown());
  EXPECT_NE(Preview().Info(), nullptr);  // shown again behind the dialog
  Choose("MoveStudents", "Tom");
  Press("MoveVideoBtn");
  Work();
  EXPECT_FALSE(DialogShown());
  EXPECT_EQ(Read("Demo/Tom/(002) new.ved"), "1XXXSNXX");
  EXPECT_EQ(page->Browser().Video(), "(003) FO iron");
  Press("SPBtn7");
  EXPECT_EQ(List("MoveStudents")->selectedItems().value(0)->text(), "Tom") << "the next one goes there as well";
  Press("DialogCancel");

  QTest::keyClick(List("VideoList"), Qt::Key_Delete);
  Press("DelVidBtn");
  EXPECT_EQ(Text("SPDisplay"), "Video Successfully Deleted!");
  EXPECT_FALSE(Exists("Demo/Sample, Erica/(003) FO iron.avi"));
  EXPECT_EQ(page->Browser().Video(), "(001) DTL driver");
  EXPECT_EQ(Text("ProInfoLbl9"), "1");
}

TEST_F(LibraryCommandsTest, QuickLaunchTakesAndGivesBack) {
  ChooseStudent("Sample, Erica");
  Press("SPBtn12");  // the question is answered with no
  EXPECT_FALSE(Exists("Quick Launch/(001) DTL driver.avi"));
  Choose("VideoList", "(002) FO iron");
  library.host.answers = {true, true};
  Press("SPBtn12");
  Work();
  EXPECT_EQ(page->Browser().Video(), "(002) FO iron") << "what was chosen stays chosen";
  Choose("InstructorList", "Quick Launch");
  EXPECT_EQ(Rows("VideoList"), QStringList("(002) FO iron"));
  Press("SPBtn12");
  EXPECT_EQ(Text("SPDisplay"), "The current video was removed from the Quick Launch folder.");
  EXPECT_TRUE(Rows("VideoList").isEmpty());
  EXPECT_EQ(Preview().Info(), nullptr);
}

TEST_F(LibraryCommandsTest, AVideoGoesToADiskThatIsRemembered) {
  ChooseStudent("Sample, Erica");
  Choose("VideoList", "(002) FO iron");
  test::TempFolder disk;
  library.host.folders = {disk.Path()};
  Press("SPBtn8");
  Press("cboBackupDriveBrowse");
  EXPECT_EQ(Text("DriveSpace"), "Reading from specified Removeable disk. Please Wait....");
  library.host.Advance(1);
  EXPECT_TRUE(Text("DriveSpace").startsWith("Available space on removeable disk "));
  EXPECT_EQ(library.settings.Exporter, disk.Path());
  Press("ExportVidBtn");
  EXPECT_FALSE(DialogShown());
  Work();
  EXPECT_EQ(Text("SPDisplay"), "2 Files Copied Successfully.");
  EXPECT_EQ(page->Browser().Video(), "(002) FO iron");

  std::filesystem::remove_all(disk.Path());
  Press("SPBtn8");
  library.host.Advance(1);
  EXPECT_EQ(Text("DriveSpace"), "Drive Error");
  Press("ExportVidBtn");
  EXPECT_EQ(library.host.messages.back(), "Drive Error");
  EXPECT_TRUE(DialogShown());
}

/// A disk that takes no byte until it is let go.
class StuckDisk final : public test::PassingDisk {
 public:
  long Transfer(int from, int to, std::size_t count) override {
    while (stuck) std::this_thread::yield();
    return PassingDisk::Transfer(from, to, count);
  }
  std::atomic<bool> stuck = true;
};

TEST_F(LibraryCommandsTest, ALongOperationShowsAWindowThatCancelsIt) {
  StuckDisk stuckDisk;
  MakePage({JobRunner::On::Worker, &stuckDisk});
  ChooseStudent("Sample, Erica");
  std::filesystem::resize_file(page->Browser().VideoPath(), 20 << 20);  // more than is copied at one go
  test::TempFolder disk;
  library.settings.Exporter = disk.Path();
  auto* window = page->findChild<ProgressForm*>();
  Press("SPBtn8");
  Press("ExportVidBtn");
  library.host.Advance(250);
  EXPECT_FALSE(window->isVisible());  // what is over soon shows none
  library.host.Advance(100);
  ASSERT_TRUE(window->isVisible());
  EXPECT_EQ(Text("ProgressWords"), "Copying Videos, Please Wait.....");
  // Nothing else is done meanwhile.
  Press("SPBtn9");
  EXPECT_TRUE(library.host.messages.back().starts_with("Another operation is still at work"));
  Press("SPBtn4");
  EXPECT_TRUE(sent.empty());
  Press("ProgressCancel");
  EXPECT_FALSE(Find<QPushButton>("ProgressCancel")->isEnabled());
  EXPECT_TRUE(window->isVisible());  // until the disk lets go
  stuckDisk.stuck = false;
  while (operations->Busy()) {
    library.host.Advance(1);
    std::this_thread::sleep_for(std::chrono::milliseconds(1));  // the hand-turned clock must not outrun the worker
  }
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Text("SPDisplay"), "0 Files Copied Successfully.");
  EXPECT_TRUE(std::filesystem::is_empty(disk.Path()));
  EXPECT_NE(Preview().Info(), nullptr);
}

TEST_F(LibraryCommandsTest, AnOperationOutlivesItsPage) {
  ChooseStudent("Tom");
  Press("SPBtn3");
  Press("DelStudentBtn");
  ASSERT_TRUE(operations->Busy());
  page.reset();
  Work();
  EXPECT_FALSE(Exists("Demo/Tom"));
}

TEST_F(LibraryCommandsTest, InstructorsAreRenamedAndRemovedWhenTheyAreEmpty) {
  QTest::keyClick(List("InstructorList"), Qt::Key_F2);
  EXPECT_EQ(Text("SPDisplay"), "You must select an Instructor or Database first.");
  EXPECT_FALSE(Find<QPushButton>("RenameInstructorBtn")->isEnabled());
  library.Folder("Empty");
  page->Open();
  ChooseStudent("Sample, Erica");
  Press("RenameInstructorBtn");
  Type("RenameText", "Dana");
  Press("RenInstructorBtn");
  EXPECT_EQ(page->Browser().Instructor(), "Dana");
  EXPECT_TRUE(Exists("Dana/Sample, Erica/(002) FO iron.ved"));
  Press("DeleteInstructorBtn");
  EXPECT_EQ(library.host.messages.back(), "Dana still has students or videos. Move or delete them first.");
  EXPECT_FALSE(DialogShown());
  Choose("InstructorList", "Empty");
  Press("DeleteInstructorBtn");
  Press("DelInstructorBtn");
  EXPECT_FALSE(Exists("Empty"));
}

TEST_F(LibraryCommandsTest, AListHasItsButtonsInAMenuAsWell) {
  emit List("VideoList")->customContextMenuRequested(QPoint(5, 5));
  EXPECT_EQ(page->findChild<QMenu*>("ListMenu"), nullptr);  // nothing is chosen
  ChooseStudent("Sample, Erica");
  emit List("VideoList")->customContextMenuRequested(QPoint(5, 5));
  auto* menu = Find<QMenu>("ListMenu");
  ASSERT_EQ(menu->actions().size(), 6);
  EXPECT_EQ(menu->actions()[2]->text(), "Rename the current video");
  menu->actions()[2]->trigger();
  EXPECT_TRUE(DialogShown());
  EXPECT_EQ(Text("DialogTitle"), "Rename Video");
  menu->close();
  const auto menus = [&] { return page->findChildren<QMenu*>("ListMenu"); };
  List("VideoList")->selectAll();
  emit List("VideoList")->customContextMenuRequested(QPoint(5, 5));
  ASSERT_EQ(menus().back()->actions().size(), 4);
  EXPECT_EQ(menus().back()->actions()[3]->text(),
            QString("Delete the %1 selected videos").arg(List("VideoList")->count()));
  menus().back()->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  emit List("VideoList")->customContextMenuRequested(QPoint(5, List("VideoList")->viewport()->height() - 2));
  EXPECT_TRUE(menus().isEmpty()) << "nothing is meant beside the names";
}

// ---------------------------------------------------------------- trimming

TEST_F(LibraryCommandsTest, TheTrimPanelFollowsThePreviewAndCountsFrames) {
  ChooseStudent("Sample, Erica");
  Preview().setSplitFields(true);  // positions are fields, the cut goes by frames
  Press("SPBtn5");
  auto* slider = Find<TrimSlider>("HScroll1");
  ASSERT_TRUE(slider->isVisible());
  EXPECT_EQ(slider->Frames(), 8);
  EXPECT_FALSE(Find<QPushButton>("EditSaveBtn")->isEnabled());
  EXPECT_FALSE(Find<QPushButton>("AddVideosBtn")->isEnabled());
  for (int step = 0; step < 2; ++step) QTest::keyClick(slider, Qt::Key_Right);
  EXPECT_EQ(Preview().Position() / 2, 2);
  Press("StartHerebtn");
  Preview().DrawFrame(11);
  EXPECT_EQ(slider->Position(), 5);
  QTest::keyClick(slider, Qt::Key_E);
  EXPECT_EQ(Text("EditRange"), "Start at 2   End at 5   4 of 8 frames");

  // The ends push each other, and one frame at least is kept.
  slider->SetStart(7);
  EXPECT_EQ(slider->End(), 7);
  slider->SetEnd(0);
  EXPECT_EQ(slider->End(), 1);
  EXPECT_LE(slider->Start(), 1);
  QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(slider->width() / 2, slider->height() / 2));
  QTest::mouseRelease(slider, Qt::LeftButton);
  EXPECT_NEAR(slider->Position(), 3.5, 1);

  QTest::keyClick(slider, Qt::Key_Escape);
  EXPECT_FALSE(slider->isVisible());
  EXPECT_TRUE(List("VideoList")->isEnabled() && Find<QPushButton>("AddVideosBtn")->isEnabled());
  Press("SPBtn5");
  Choose("StudentList", "Tom");
  EXPECT_FALSE(slider->isVisible()) << "another video ends it as well";
}

TEST_F(LibraryCommandsTest, AWindowThatWasPutAwayComesBackAsItWas) {
  ChooseStudent("Tom");
  ChooseStudent("Sample, Erica");
  Press("SPBtn5");
  Find<TrimSlider>("HScroll1")->SetStart(3);
  Preview().DrawFrame(3);
  test::PutAwayAndBack(*page);
  EXPECT_TRUE(Find<QWidget>("EditPanel")->isVisible());
  EXPECT_EQ(Find<TrimSlider>("HScroll1")->Start(), 3);
  EXPECT_EQ(Preview().Position(), 3);

  Press("SPBtn0");
  Choose("InstructorList", "Quick Launch");
  test::PutAwayAndBack(*page);
  EXPECT_EQ(Find<QComboBox>("Combo2")->currentText(), "Quick Launch");
}

TEST_F(LibraryCommandsTest, ATrimAsksForTheFramesThatWereChosen) {
  std::filesystem::create_directories(library.settings.AppPath);
  const std::string program = library.settings.AppPath + "/avitrim";
  std::ofstream(program) << "#!/bin/sh\nprintf '%s' \"$1\" > \"$0.asked\"\necho 'disk full' >&2\nexit 1\n";
  std::filesystem::permissions(program, std::filesystem::perms::owner_all);
  ChooseStudent("Sample, Erica");
  const std::string video = page->Browser().VideoPath();
  Press("SPBtn5");
  Find<TrimSlider>("HScroll1")->SetStart(3);
  Find<TrimSlider>("HScroll1")->SetEnd(5);
  Press("EditSaveBtn");
  Work();
  EXPECT_EQ(test::TempLibrary::Read(program + ".asked"), video + "*" + video + "*3*5*30*0*");
  EXPECT_EQ(Text("SPDisplay"), "Last Video WAS NOT SAVED");
  EXPECT_NE(Preview().Info(), nullptr);
}

}  // namespace
}  // namespace kinalyx
