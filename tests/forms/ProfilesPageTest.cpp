#include "library/forms/ProfilesPage.h"

#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest/QTest>

#include "ProfilesStage.h"
#include "library/forms/FieldsEditor.h"
#include "platform/files/IniFile.h"

namespace kinalyx {
namespace {

using ProfilesPageTest = test::ProfilesStage;

TEST_F(ProfilesPageTest, AChoiceInOneListFillsTheNextAndShowsTheVideo) {
  EXPECT_EQ(List("InstructorList")->currentRow(), 0);
  Choose("InstructorList", "Demo");
  EXPECT_EQ(Rows("StudentList"), QStringList({"Sample, Erica", "Tom"}));
  Choose("StudentList", "Sample, Erica");
  EXPECT_EQ(List("StudentList")->item(0)->data(NameDelegate::kCountRole).toString(), "2");
  EXPECT_EQ(Rows("VideoList"), QStringList({"(001) DTL driver", "(002) FO iron"}));
  EXPECT_EQ(Preview().filename(), library.Path("Demo/Sample, Erica/(001) DTL driver.avi"));
  EXPECT_EQ(Text("ProInfoLbl9"), "2");
  EXPECT_EQ(Text("ProInfoLbl23"), "320");
  EXPECT_EQ(Text("ProInfoLbl26"), "8 Frames");
  EXPECT_EQ(Find<QLabel>("VidInfoPanel0")->property("look"), "markOff");

  Choose("VideoList", "(002) FO iron");
  EXPECT_EQ(Find<QLabel>("VidInfoPanel0")->property("look"), "mark");
  EXPECT_EQ(Find<QLabel>("VidInfoPanel1")->property("look"), "mark");

  Choose("StudentList", "Tom");
  EXPECT_EQ(Preview().Info(), nullptr);
  EXPECT_EQ(Text("ProInfoLbl26"), "------------------");
  EXPECT_EQ(Text("ProInfoLbl0"), "Tom");
  for (const char* button : {"SPBtn4", "SPBtn5", "SPBtn6", "SPBtn7", "SPBtn8", "SPBtn9", "SPBtn12"}) {
    page->Say("");
    Press(button);
    EXPECT_EQ(Text("SPDisplay"), "You must select a video first.") << button;
  }
  Choose("InstructorList", "General Folder");
  EXPECT_EQ(Text("ProInfoLbl0"), "");
  Choose("InstructorList", "Quick Launch");
  EXPECT_EQ(Find<QPushButton>("SPBtn12")->text(), "Quick Launch -");
}

TEST_F(ProfilesPageTest, ComesBackToTheSameVideoOrInstructor) {
  ChooseStudent("Sample, Erica");
  Choose("VideoList", "(002) FO iron");
  LeavePage();
  EXPECT_EQ(Preview().Info(), nullptr);  // nothing is held open behind the user's back
  library.File("Demo/Anna/x.txt");
  library.Folder("Anna/Zoe");
  Return();
  EXPECT_EQ(Rows("StudentList").first(), "Anna");
  EXPECT_EQ(page->Browser().Video(), "(002) FO iron");
  EXPECT_NE(Preview().Info(), nullptr);

  // No student of this one is chosen, and the one who is remembered is another's.
  Choose("InstructorList", "Anna");
  LeavePage();
  Return();
  EXPECT_EQ(page->Browser().Instructor(), "Anna");
}

TEST_F(ProfilesPageTest, TheKeyboardAloneReachesAVideoPlaysItAndSendsIt) {
  List("InstructorList")->setFocus();
  QTest::keyClick(List("InstructorList"), Qt::Key_Down);
  QTest::keyClick(List("InstructorList"), Qt::Key_Right);
  QTest::keyClick(List("StudentList"), Qt::Key_Return);
  EXPECT_EQ(page->Browser().Video(), "(001) DTL driver");
  QTest::keyClick(List("VideoList"), Qt::Key_Space);
  EXPECT_TRUE(Preview().IsPlaying());
  library.host.Advance(2000);
  EXPECT_FALSE(Preview().IsPlaying());
  EXPECT_EQ(Preview().Position(), 7);
  QTest::keyClick(List("VideoList"), Qt::Key_Space);  // from the end it begins anew
  EXPECT_TRUE(Preview().IsPlaying());
  QTest::keyClick(List("VideoList"), Qt::Key_Down);
  QTest::keyClick(List("VideoList"), Qt::Key_Return);
  ASSERT_EQ(sent.size(), 1u);
  EXPECT_EQ(sent[0], library.Path("Demo/Sample, Erica/(002) FO iron.avi"));
  EXPECT_EQ(Text("SPDisplay"), "Current video was sent to Analysis.");
}

TEST_F(ProfilesPageTest, AListThatGetsTheKeysChoosesNothingByThat) {
  Choose("InstructorList", "Demo");
  QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(List("StudentList"), &focus);
  EXPECT_EQ(page->Browser().Student(), "");
  QTest::keyClick(List("StudentList"), Qt::Key_Down);
  EXPECT_EQ(page->Browser().Student(), "Sample, Erica");
}

TEST_F(ProfilesPageTest, ABadVideoIsShownCalmlyAndOfferedForDeletionByAClick) {
  const auto addBad = [this](const char* name, const char* bytes) {
    const std::string path = library.File(name, bytes);
    std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  };
  const auto click = [this] {
    NameList* list = List("VideoList");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
  };
  addBad("Demo/Tom/bad.avi", "no video");
  library.File("Demo/Tom/bad.ved", "1XXXSXXX");
  ChooseStudent("Tom");
  QTest::keyClick(List("VideoList"), Qt::Key_Down);
  library.host.Advance(1000);
  EXPECT_TRUE(library.host.titles.empty()) << "who comes by with the keys is not asked";
  EXPECT_TRUE(Text("PreviewWords").startsWith("This video cannot be opened."));
  EXPECT_TRUE(Find<QLabel>("PreviewWords")->isVisible());
  EXPECT_FALSE(Find<QWidget>("VideoPlay1")->isVisible());

  click();
  click();
  EXPECT_EQ(library.host.titles, std::vector<std::string>{"Delete Bad Video"}) << "who has refused is not asked again";
  EXPECT_EQ(Rows("VideoList"), QStringList("bad"));
  library.host.answers = {true};
  addBad("Demo/Tom/bad.avi", "another that is no video");
  click();
  EXPECT_TRUE(Rows("VideoList").isEmpty());
  EXPECT_FALSE(Exists("Demo/Tom/bad.avi") || Exists("Demo/Tom/bad.ved"));

  // One that somebody else has taken away is not bad, and its drawings are not ours to delete.
  library.host.titles.clear();
  addBad("Demo/Tom/gone.avi", "no video");
  library.File("Demo/Tom/gone.ved", "1XXXSXXX");
  ChooseStudent("Sample, Erica");
  ChooseStudent("Tom");
  std::filesystem::remove(library.Path("Demo/Tom/gone.avi"));
  click();
  EXPECT_TRUE(Rows("VideoList").isEmpty());
  EXPECT_TRUE(Exists("Demo/Tom/gone.ved"));

  library.File("Demo/Tom/half.avi", "RIFF");
  ChooseStudent("Sample, Erica");
  ChooseStudent("Tom");
  click();
  EXPECT_TRUE(library.host.titles.empty()) << "what may still be arriving is nobody's to delete";
  EXPECT_TRUE(Text("PreviewWords").startsWith("This video is not complete."));
  ChooseStudent("Sample, Erica");
  EXPECT_FALSE(Find<QLabel>("PreviewWords")->isVisible());
}

TEST_F(ProfilesPageTest, NotesAreOnTheDiskASecondAfterTheLastLetter) {
  ChooseStudent("Tom");
  Press("SPBtn10");
  auto* notes = Find<QPlainTextEdit>("ProfileNotes");
  const auto onDisk = [this] { return Read("Demo/Tom/profile.txt"); };
  for (const char* letter : {"G", "r", "i", "p"}) {
    notes->insertPlainText(letter);
    library.host.Advance(900);
    EXPECT_EQ(onDisk(), "");
  }
  library.host.Advance(100);
  EXPECT_EQ(onDisk(), "Grip\r\n");

  library.host.drivesHang = true;
  notes->insertPlainText("!");
  library.host.Advance(5000);
  EXPECT_TRUE(library.host.waits.empty() && library.host.messages.empty()) << "nobody is kept waiting while typing";
  EXPECT_TRUE(Text("SPDisplay").startsWith("The notes could not be saved: the drive is not answering"));
  library.host.DrivesAnswer();
  notes->insertPlainText("?");
  library.host.Advance(1000);
  EXPECT_EQ(onDisk(), "Grip!?\r\n");
}

TEST_F(ProfilesPageTest, AFormThatHasBeenFilledInIsNotDroppedWithoutAQuestion) {
  ChooseStudent("Tom");
  auto* editor = Find<QWidget>("ProAddPnl");
  Press("ProBtn1");
  QTest::keyClick(editor, Qt::Key_Escape);
  EXPECT_FALSE(editor->isVisible());
  EXPECT_TRUE(library.host.questions.empty()) << "nothing was changed";

  Press("ProBtn1");
  EXPECT_TRUE(page->MayClose());
  auto* phone = Find<QLineEdit>("ProInfoBox3");
  QTest::keyClicks(phone, "555");
  QTest::keyClick(phone, Qt::Key_Escape);
  EXPECT_EQ(library.host.questions.size(), 1u);
  EXPECT_FALSE(page->MayClose());
  page->Leave();
  page->Open();
  EXPECT_TRUE(editor->isVisible());
  EXPECT_EQ(phone->text(), "555") << "who looks at another page finds it again";
  library.host.answers = {true};
  Press("ProAddCancelBtn");
  EXPECT_FALSE(editor->isVisible());
  EXPECT_EQ(page->Browser().Student(), "Tom");
}

TEST_F(ProfilesPageTest, BoxesTellWhatTheyDoNotTake) {
  Choose("InstructorList", "Demo");
  Press("SPBtn0");
  auto* name = Find<QLineEdit>("ProInfoBox0");
  QTest::keyClicks(name, "O'Brien");
  EXPECT_TRUE(Text("ProInfoBoxNote0").contains("'"));
  name->setText(QString(118, 'x') + QString::fromUtf8(" \xF0\x9F\x8F\x8C tail"));
  EXPECT_FALSE(name->text().isEmpty() || name->text().back().isSurrogate()) << "no half letter";
  EXPECT_LE(name->text().size(), 120);
  Press("ProAddSaveBtn");
  EXPECT_TRUE(Exists("Demo/" + std::string(118, 'x'))) << "nor a blank at the end";

  Press("SPBtn0");
  auto* phone = Find<QLineEdit>("ProInfoBox3");
  QTest::keyClicks(phone, QString(48, '1'));
  EXPECT_EQ(Text("ProInfoBoxNote3"), "");
  QTest::keyClicks(phone, "23");
  EXPECT_EQ(phone->text().size(), 49);
  EXPECT_EQ(Text("ProInfoBoxNote3"), "49 characters at most");
}

TEST_F(ProfilesPageTest, NotesAreKeptWhenTheyAreLeftHoweverThatHappens) {
  ChooseStudent("Tom");
  Press("SPBtn10");
  auto* notes = Find<QPlainTextEdit>("ProfileNotes");
  EXPECT_TRUE(notes->isVisible());
  EXPECT_EQ(page->focusWidget(), notes);
  EXPECT_FALSE(List("VideoList")->isVisible());
  notes->setPlainText("Grip\nschwächer");
  Choose("StudentList", "Sample, Erica");
  EXPECT_EQ(Read("Demo/Tom/profile.txt"), "Grip\r\nschwächer\r\n");
  EXPECT_EQ(notes->toPlainText(), "");

  notes->setPlainText("two");
  Press("SPBtn10");
  EXPECT_EQ(Read("Demo/Sample, Erica/profile.txt"), "two\r\n");
  EXPECT_TRUE(List("VideoList")->isVisible());
  Press("SPBtn10");
  notes->setPlainText("three");
  LeavePage();
  EXPECT_EQ(Read("Demo/Sample, Erica/profile.txt"), "three\r\n");
}

TEST_F(ProfilesPageTest, NotesThatNobodyTouchesAreNotWritten) {
  // With a no-break space, which an editor may take for a plain one.
  const std::string path = library.File("Demo/Tom/profile.txt", "60\u00A0cm\n");
  ChooseStudent("Tom");
  Choose("StudentList", "Sample, Erica");
  EXPECT_EQ(Read("Demo/Tom/profile.txt"), "60\u00A0cm\n");
  Choose("StudentList", "Tom");
  auto* notes = Find<QPlainTextEdit>("ProfileNotes");
  notes->moveCursor(QTextCursor::End);
  notes->insertPlainText("hips");
  ASSERT_TRUE(SaveNotes(library.Path("Demo/Tom"), "60\u00A0cm\nelsewhere\n"));
  library.host.Advance(2000);
  EXPECT_EQ(Read("Demo/Tom/profile.txt"), "60\u00A0cm\r\nhips\r\nelsewhere\r\n");
  EXPECT_EQ(notes->toPlainText(), "60 cm\nhips\nelsewhere\n");
  EXPECT_EQ(notes->textCursor().position(), 10) << "the cursor stays behind what was typed";
  EXPECT_FALSE(notes->textCursor().hasSelection()) << "or the next letter would replace what somebody else wrote";
}

TEST_F(ProfilesPageTest, NotesAreAPrintoutOfTheStudent) {
  ChooseStudent("Tom");
  Press("SPBtn10");
  Press("ProBtn2");
  EXPECT_EQ(Text("SPDisplay"), "There are no notes to print.");
  EXPECT_TRUE(printer.printed.empty());
  Find<QPlainTextEdit>("ProfileNotes")->setPlainText("Grip\nschwächer");
  Press("ProBtn2");
  ASSERT_EQ(printer.printed.size(), 1u);
  EXPECT_EQ(printer.printed[0].title + "|" + printer.printed[0].subtitle + "|" + printer.printed[0].text,
            "Tom|Student Notes|Grip\nschwächer");
  EXPECT_EQ(Text("SPDisplay"), "The notes were printed.");
  printer.answer = {Fault::Cancelled, ""};
  Press("ProBtn2");
  EXPECT_EQ(Text("SPDisplay"), "The notes were not printed.");
  printer.answer = {Fault::Failed, "No paper."};
  Press("ProBtn2");
  EXPECT_EQ(library.host.messages.back(), "The notes were not printed. No paper.");
}

TEST_F(ProfilesPageTest, NotesThatTheDiskRefusesAreToldOnceAndKept) {
  ChooseStudent("Tom");
  std::filesystem::remove(library.Path("Demo/Tom/profile.txt"));
  library.Folder("Demo/Tom/profile.txt");  // stands in the way of the file
  auto* notes = Find<QPlainTextEdit>("ProfileNotes");
  notes->insertPlainText("not lost");
  const auto press = [&](const char* list, int row) {
    const QPoint place = List(list)->visualItemRect(List(list)->item(row)).center();
    const std::size_t told = library.host.messages.size();
    QTest::mousePress(List(list)->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(library.host.messages.size(), told) << "no box while the press is handled";
    QApplication::processEvents();
    library.host.Advance(1);
    QTest::mouseRelease(List(list)->viewport(), Qt::LeftButton, {}, place);
    EXPECT_TRUE(Text("SPDisplay").startsWith("The notes could not be saved: "));
  };
  press("StudentList", 0);
  EXPECT_EQ(List("StudentList")->selectedItems().value(0)->text(), "Tom");
  EXPECT_EQ(page->Browser().Student(), "Tom");
  press("StudentList", 0);
  EXPECT_EQ(page->Browser().Student(), "Sample, Erica") << "who knows it may go on";
  // What waits of one student is no leave to forget what somebody else writes about another.
  ASSERT_TRUE(SaveNotes(library.Path("Demo/Sample, Erica"), "theirs"));
  for (const char* typed : {"mine", ", more"}) {
    notes->insertPlainText(typed);
    library.host.Advance(2000);
  }
  EXPECT_EQ(Read("Demo/Sample, Erica/profile.txt"), "mine, more\r\ntheirs\r\n");
  EXPECT_TRUE(page->Leave());
  EXPECT_FALSE(page->SaveLastNotes());
  EXPECT_EQ(library.host.messages.size(), 1u) << "the same is told once";

  Choose("StudentList", "Tom");
  EXPECT_EQ(notes->toPlainText(), "not lost\n");
  std::filesystem::remove(library.Path("Demo/Tom/profile.txt"));
  ASSERT_TRUE(SaveNotes(library.Path("Demo/Tom"), "from the other desk"));
  Choose("StudentList", "Sample, Erica");
  EXPECT_EQ(page->Browser().Student(), "Sample, Erica");
  EXPECT_EQ(Text("SPDisplay"), "");
  EXPECT_EQ(Read("Demo/Tom/profile.txt"), "not lost\r\nfrom the other desk\r\n");
  EXPECT_TRUE(page->SaveLastNotes());
}

TEST_F(ProfilesPageTest, AStudentIsAddedAndSelected) {
  Choose("InstructorList", "Demo");
  Press("SPBtn0");
  EXPECT_TRUE(Find<QWidget>("ProAddPnl")->isVisible());
  EXPECT_EQ(Find<QComboBox>("Combo2")->currentText(), "Demo");
  EXPECT_EQ(Find<QComboBox>("Combo2")->findText("General Folder"), -1);
  Type("ProInfoBox0", "Tom");
  Press("ProAddSaveBtn");
  EXPECT_EQ(Text("SPDisplay"), "The student name that you have chosen already exists on the system.");
  Type("ProInfoBox0", "Zoe");
  Type("ProInfoBox3", "555 0134");
  Press("ProAddSaveBtn");
  EXPECT_EQ(Text("SPDisplay"), "New student successfully created.");
  EXPECT_FALSE(Find<QWidget>("ProAddPnl")->isVisible());
  EXPECT_EQ(page->Browser().Student(), "Zoe");
  EXPECT_EQ(Text("ProInfoLbl3"), "555 0134");
  Choose("StudentList", "Tom");
  EXPECT_EQ(Text("SPDisplay"), "");
  Press("SPBtn0");
  Press("ProAddSaveBtn");
  EXPECT_EQ(Text("SPDisplay"), "You must enter a name for the new student.");
  Press("ProAddCancelBtn");
  EXPECT_EQ(Text("SPDisplay"), "");
}

TEST_F(ProfilesPageTest, ALibraryThatHasGoneIsToldOf) {
  Press("SSCommand2");
  library.settings.LastInstructor = "Demo";  // as it is kept when a page is left
  std::filesystem::rename(library.Root(), library.Root() + " gone");
  Choose("InstructorList", "Demo");
  EXPECT_EQ(
      List("StudentList")->Hint().toStdString(),
      "The library folder " + library.Root() + " cannot be reached; choose another in Program Setup, under General.");
  LeavePage();
  Return();
  EXPECT_EQ(Rows("InstructorList"), QStringList("General Folder"));
  EXPECT_TRUE(List("StudentList")->Hint().contains("cannot be reached"));
  EXPECT_FALSE(Find<QLineEdit>("Text2")->isVisible());

  library.settings.LibraryPath = library.settings.ConfigFile();  // as a damaged file of settings leaves it
  page->Open();
  EXPECT_TRUE(List("StudentList")->Hint().contains("cannot be reached")) << List("StudentList")->Hint().toStdString();
}

TEST_F(ProfilesPageTest, AProfileIsEdited) {
  Press("ProBtn1");
  EXPECT_EQ(Text("SPDisplay"), "You must select a student first.");
  ChooseStudent("Tom");
  ASSERT_TRUE(fields.SetCaption(6, "Handicap"));
  page->SetupFields();
  Press("ProBtn1");
  EXPECT_EQ(page->focusWidget(), Find<QLineEdit>("ProInfoBox1"));  // the name stays
  EXPECT_EQ(Find<QLineEdit>("ProInfoBox6")->text(), "");
  Type("ProInfoBox6", "12");
  Press("ProAddSaveBtn");
  EXPECT_EQ(Text("SPDisplay"), "Student profile successfully updated.");
  EXPECT_EQ(Text("ProFieldLbl6") + Text("ProInfoLbl6"), "Handicap12");

  // Renamed under the open editor: what has been typed goes under the new name, what has not stays where it is.
  Press("ProBtn1");
  Type("ProInfoBox7", "180");
  ASSERT_TRUE(fields.SetCaption(6, "Age") && fields.SetCaption(7, "Size"));
  page->SetupFields();
  EXPECT_EQ(Find<QLineEdit>("ProInfoBox6")->text(), "12");
  EXPECT_EQ(Find<QLineEdit>("ProInfoBox7")->text(), "180");
  Press("ProAddSaveBtn");
  const std::string profile = ProfilePath(library.Path("Demo/Tom"));
  EXPECT_EQ(ReadProfileValue("Profile", "Size", profile), "180");
  EXPECT_EQ(ReadProfileValue("Profile", "Handicap", profile), "12");
}

TEST_F(ProfilesPageTest, TheEndOfTheSessionSavesWhatHasBeenTypedWithoutAWord) {
  ChooseStudent("Tom");
  Press("ProBtn1");
  Type("ProInfoBox3", "555 0134");
  page->SaveUnasked();
  EXPECT_EQ(ReadProfileValue("Profile", fields.Captions()[3], ProfilePath(library.Path("Demo/Tom"))), "555 0134");
  for (const char* name : {"Tom", "a/b", "Żaneta"}) {  // there already, no name, and a new one
    Press("SPBtn0");
    Type("ProInfoBox0", name);
    Type("ProInfoBox3", "555 0199");
    page->SaveUnasked();
  }
  EXPECT_EQ(ReadProfileValue("Profile", fields.Captions()[3], ProfilePath(library.Path("Demo/Tom"))), "555 0134");
  EXPECT_EQ(ReadProfileValue("Profile", fields.Captions()[3], ProfilePath(library.Path("Demo/Żaneta"))), "555 0199");
  EXPECT_TRUE(library.host.messages.empty() && library.host.questions.empty());
}

TEST_F(ProfilesPageTest, AnInstructorIsAdded) {
  for (const char* control : {"Text2", "SSCommand2", "RenameInstructorBtn", "InstructorList"}) {
    Press("SSCommand2");
    ASSERT_TRUE(Find<QLineEdit>("Text2")->isVisible());
    QTest::keyClick(Find<QWidget>(control), Qt::Key_Escape);
    EXPECT_FALSE(Find<QLineEdit>("Text2")->isVisible()) << control;
  }
  Press("SSCommand2");
  Type("Text2", "A/B");
  Press("SSCommand2");
  EXPECT_EQ(Text("SPDisplay"), "Invalid character in Name");
  Press("SPBtn0");
  Type("ProInfoBox0", "Zoe");
  Type("Text2", "Carla");
  QTest::keyClick(Find<QLineEdit>("Text2"), Qt::Key_Return);
  EXPECT_EQ(Text("SPDisplay"), "Carla successfully added!");
  EXPECT_FALSE(Find<QLineEdit>("Text2")->isVisible());
  // The student who was just being added can go to the new instructor.
  EXPECT_EQ(Find<QComboBox>("Combo2")->currentText(), "Carla");
  EXPECT_EQ(Find<QLineEdit>("ProInfoBox0")->text(), "Zoe");
  Press("ProAddSaveBtn");
  EXPECT_TRUE(Exists("Carla/Zoe/profile.prf"));
  EXPECT_EQ(page->Browser().Instructor() + "/" + page->Browser().Student(), "Carla/Zoe");
}

TEST_F(ProfilesPageTest, ButtonsSayWhatTheyDoOnTheStatusLine) {
  page->Say("before");
  QEvent enter(QEvent::Enter), leave(QEvent::Leave);
  QApplication::sendEvent(Find<QPushButton>("SPBtn3"), &enter);
  EXPECT_EQ(Text("SPDisplay"), "Delete the current student database, profile, and all videos.");
  QApplication::sendEvent(Find<QPushButton>("SPBtn3"), &leave);
  EXPECT_EQ(Text("SPDisplay"), "before");
  for (const bool shown : {true, false}) {
    Press("SPBtn11");
    EXPECT_EQ(Find<QPushButton>("SPBtn11")->text(), shown ? "Stats Off" : "Show Stats");
    EXPECT_EQ(Find<QLabel>("ProInfoLbl30")->isVisible(), shown);
  }
}

TEST_F(ProfilesPageTest, FieldsAreRenamedWhenTheirBoxIsLeft) {
  int changes = 0;
  FieldsEditor editor(library.host, fields);
  QObject::connect(&editor, &FieldsEditor::FieldsChanged, [&] { ++changes; });
  auto* age = editor.findChild<QLineEdit*>("SPEdittext6");
  age->setText("Handicap");
  QTest::keyClick(age, Qt::Key_Return);
  EXPECT_EQ(fields.Caption(6), "Handicap");
  age->setText("Height");
  QTest::keyClick(age, Qt::Key_Return);
  EXPECT_EQ(age->text(), "Handicap");
  EXPECT_EQ(library.host.messages.size(), 1u);
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(editor.findChild<QLineEdit*>("SPEdittext0")->isReadOnly());
}

}  // namespace
}  // namespace kinalyx
