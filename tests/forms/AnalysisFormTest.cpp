#include "workspace/forms/AnalysisForm.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

#include "AnalysisFormFixture.h"
#include "video/KeyCodes.h"
#include "workspace/forms/KeyCodeOf.h"

namespace kinalyx::test {
namespace {

using AnalysisFormTest = AnalysisFormFixture;

TEST_F(AnalysisFormTest, SendsOpensPlaysAndCloses) {
  Send("a.avi");
  Send("b.avi");
  EXPECT_EQ(Slots().ScreenLayout, "2");
  EXPECT_TRUE(Find<QWidget>("MP1")->isVisible() && Find<QWidget>("MP2")->isVisible());
  EXPECT_FALSE(Find<QWidget>("BorderPanel3")->isVisible());
  EXPECT_EQ(Find<QWidget>("MP2")->height(), Find<QWidget>("VideoPanel2")->height());
  EXPECT_EQ(Slots().MP(2).ControlHeightPixels(), Find<QWidget>("MP2")->height());

  Click("CmdButton2");
  EXPECT_TRUE(Slots().MP(2).IsPlaying());
  host.Advance(300);
  EXPECT_EQ(Find<QLabel>("DisplayPanel")->text(), ".30 seconds | 9/29 frames  ");
  Click("CmdButton0");
  EXPECT_EQ(Slots().MP(2).Position(), 0);
  Click("CmdButton3");
  EXPECT_EQ(Slots().MP(2).Position(), 1);
  Click("SlomoButton");
  EXPECT_EQ(Slots().MP(2).Speed(), 25);
  Click("Scn4");
  EXPECT_EQ(Slots().ScreenLayout, "4");
  Click("Closebtn");
  EXPECT_FALSE(Slots().HasVideo(2));
  EXPECT_FALSE(Find<QToolButton>("CmdButton2")->isEnabled());
  EXPECT_TRUE(Find<QToolButton>("CmdButton2")->toolTip().endsWith("Open a video first"));
  Click("Closeallbtn");
  EXPECT_FALSE(Slots().AnyVideo());
  EXPECT_TRUE(form->CloseAll());
}

TEST_F(AnalysisFormTest, TheMouseDrawsOnThePicture) {
  Send("a.avi");
  EXPECT_FALSE(Find<QToolButton>("ColorChoiceBtn0")->isEnabled());
  Click("CmdMakeShape3");
  EXPECT_TRUE(Find<QPushButton>("CmdMakeShape3")->isChecked());
  EXPECT_EQ(Find<QLabel>("DrawText")->text(), "Drawing a Line in Color");
  EXPECT_TRUE(Find<QWidget>("VectorColorDisplay")->isVisible());
  Click("ColorChoiceBtn0");
  ClickOn("MP1", {200, 220});
  QTest::mouseMove(Find<QWidget>("MP1"), {260, 240});
  ClickOn("MP1", {300, 260});
  const ShapeList& shapes = Shapes();
  ASSERT_EQ(shapes.NumShapes, 1);
  EXPECT_EQ(shapes.Shapes[0].Pts[1], (POINTAPI{300, 260}));
  EXPECT_EQ(shapes.Shapes[0].Colour, Rgb(255, 0, 0));
  EXPECT_FALSE(Find<QPushButton>("CmdMakeShape3")->isChecked());
  EXPECT_FALSE(Find<QToolButton>("ColorChoiceBtn0")->isEnabled());
  Click("Lastcadoff");
  EXPECT_EQ(shapes.NumShapes, 0);
  EXPECT_FALSE(Find<QPushButton>("Lastcadoff")->isEnabled());

  // The caption of the tool lies over the picture, and lets what is drawn through.
  Click("CmdMakeShape1");
  auto* caption = Find<QWidget>("DrawCaption");
  ASSERT_TRUE(caption->isVisible());
  const QPoint at = Find<QWidget>("MP1")->mapFromGlobal(caption->mapToGlobal(QPoint(4, 6)));
  QTest::mouseClick(caption, Qt::LeftButton, {}, {4, 6});
  ASSERT_EQ(shapes.NumShapes, 1);
  EXPECT_EQ(shapes.Shapes[0].Pts[0], (POINTAPI{at.x(), at.y()}));
  Click("DrawOffBtn");
  Click("Lastcadoff");

  Click("CmdMakeShape4");
  Click("DrawOffBtn");
  EXPECT_FALSE(form->Analysis().Tools().Drawing());
  EXPECT_FALSE(Find<QWidget>("DrawCaption")->isVisible());
}

TEST_F(AnalysisFormTest, LettersInTextBoxesStayLetters) {
  Send("a.avi");
  Click("Notesbutton");
  auto* box = Find<QPlainTextEdit>("NotesBox");
  ASSERT_TRUE(box->isVisible());
  EXPECT_EQ(form->focusWidget(), box) << "one can write at once";
  QTest::keyClicks(box, "close, play 4 more");
  EXPECT_EQ(box->toPlainText(), "close, play 4 more");
  EXPECT_TRUE(Slots().HasVideo(1));
  EXPECT_FALSE(Slots().MP(1).IsPlaying());
  EXPECT_EQ(Slots().ScreenLayout, "1");
  QTest::keyClick(box, Qt::Key_Return);
  QTest::keyClicks(box, "head");
  QTest::keyClick(box, Qt::Key_F4);
  EXPECT_EQ(form->Analysis().Tools().DrawKind(), 3) << "what a box does not want is a command";
  QTest::keyClick(box, Qt::Key_Escape);
  EXPECT_TRUE(Slots().HasVideo(1)) << "Escape only leaves the box";
  Click("NotesClose");
  EXPECT_EQ(Slots().At(1).data.Notes, "close, play 4 more\r\nhead");
  Key(Qt::Key_C);
  EXPECT_FALSE(Slots().HasVideo(1));
}

TEST_F(AnalysisFormTest, KeypadAndDigitsAreTwoThings) {
  Send("a.avi");
  Key(Qt::Key_4);
  EXPECT_EQ(Slots().ScreenLayout, "4");
  Key(Qt::Key_1, Qt::KeypadModifier);
  EXPECT_EQ(Slots().CurrentWindow, 4);
  Key(Qt::Key_7, Qt::KeypadModifier);
  EXPECT_EQ(Slots().ScreenLayout, "4");
  Key(Qt::Key_4, Qt::KeypadModifier);
  EXPECT_EQ(Slots().At(1).PanX, -50);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(Slots().HasVideo(1));
  Key(Qt::Key_Escape);
  EXPECT_FALSE(Slots().HasVideo(1));
  Key(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Slots().HasVideo(1)) << "what was closed comes back";
  QKeyEvent held(QEvent::KeyPress, Qt::Key_P, {}, "p", true);
  QApplication::sendEvent(Find<QWidget>("Text1"), &held);
  EXPECT_FALSE(Slots().MP(1).IsPlaying()) << "a held key toggles once";
  EXPECT_EQ(KeyCodeOf(QKeyEvent(QEvent::KeyPress, Qt::Key_Left, Qt::KeypadModifier)), kKeyLeft);
  Key(Qt::Key_End);
  EXPECT_EQ(went, "menu");
}

TEST_F(AnalysisFormTest, TheOpenPanelStandsWhereTheSettingsSay) {
  std::filesystem::copy_file(MakeTestVideo(MjpegVideo(30)), settings.LibraryPath + "/Anna/Erica/swing.avi");
  remembered = {"Anna", "Erica", ""};
  for (const int choice : {0, 1, 2}) {
    settings.OpenDlgChoice = choice;
    QTest::mouseDClick(Find<QWidget>("VideoPanel1"), Qt::LeftButton);
    QTest::qWait(0);
    auto* panel = Find<QWidget>(choice == 2 ? "OpenVidCForm" : "OpenVidForm");
    ASSERT_TRUE(panel->isVisible());
    const QRect stage = OnForm(Find<QWidget>("MainPanel"));
    const bool right = OnForm(panel).left() > stage.right();
    const bool left = OnForm(panel).right() < stage.left();
    const bool middle = std::abs(OnForm(panel).center().x() - stage.center().x()) <= 1;
    EXPECT_TRUE(choice == 0 ? right : choice == 1 ? left : middle) << choice;
    Click("CmdOpenVideo0");
    EXPECT_TRUE(Slots().HasVideo(1));
    Click("CmdOpenVideo2");
    EXPECT_FALSE(Slots().HasVideo(1));
    Click("CmdOpenVideo1");
    EXPECT_FALSE(panel->isVisible());
  }
}

TEST_F(AnalysisFormTest, TheFloatingPlayBarStaysWhereItIsPut) {
  Send("a.avi");
  Send("b.avi");
  auto* bar = Find<QWidget>("Playbar");
  const QPoint docked = bar->pos();
  Click("PlayBarDetachBtn");
  EXPECT_EQ(Find<QWidget>("PlayBarDetachBtn")->toolTip(), "Redock the Play Bar");
  bar->move(100, 60);
  QTest::mouseClick(Find<QWidget>("MP1"), Qt::LeftButton);
  EXPECT_EQ(bar->pos(), QPoint(100, 60));
  Click("PlayBarDetachBtn");
  EXPECT_LT(bar->x(), docked.x());
  EXPECT_EQ(bar->y(), docked.y());
}

TEST_F(AnalysisFormTest, NothingIsCutOffAtAnySize) {
  for (const QSize& size : {QSize(1000, 680), QSize(1024, 732), QSize(1280, 764), QSize(1920, 1044)}) {
    Make(size);
    Send("a.avi");
    for (const char* layout : {"Scn1", "Scn2", "Scn8"}) {
      Click(layout);
      QTest::qWait(0);
      const QRect all = form->rect();
      for (const char* name : {"CmdMakeShape0", "CmdMakeShape10", "DDSABtn", "Notesbutton", "CmdAfunctions4", "CmdButton0",
                               "CmdButton3", "LoopButton", "DisplayPanel", "PlayBarHScroll", "PlayBarDetachBtn", "ColorChoiceBtn11"}) {
        QWidget* widget = Find<QWidget>(name);
        EXPECT_TRUE(widget->isVisible()) << name << " " << size.width();
        EXPECT_TRUE(all.contains(OnForm(widget))) << name << " " << size.width() << " " << layout;
      }
      const QRect bar = OnForm(Find<QWidget>("Playbar"));
      for (const char* name : {"CmdButton0", "LoopButton", "PlayBarDetachBtn"})
        EXPECT_TRUE(bar.contains(OnForm(Find<QWidget>(name)))) << name;
      EXPECT_FALSE(OnForm(Find<QWidget>("LoopButton")).intersects(OnForm(Find<QWidget>("PlayBarDetachBtn"))))
          << size.width() << " " << layout;
    }
    // Beside the open panel eight windows are narrow indeed.
    Click("Openbtn");
    QTest::qWait(0);
    const QRect bar = OnForm(Find<QWidget>("Playbar"));
    for (const char* name : {"CmdButton0", "CmdButton2", "LoopButton", "PlayBarHScroll", "DisplayPanel"})
      EXPECT_TRUE(bar.contains(OnForm(Find<QWidget>(name)))) << name << " " << size.width();
    EXPECT_GE(Find<QLabel>("DisplayPanel")->width(), Find<QLabel>("DisplayPanel")->sizeHint().width()) << size.width();
    Click("CmdOpenVideo1");
    const QWidget* more = Find<QWidget>("MoreTools");
    for (const char* name : {"CmdMakeShape3", "StrobeBtn", "cmdDualPlay"})
      EXPECT_TRUE(Find<QWidget>(name)->isVisible() || more->isVisible()) << name;
  }
}

TEST_F(AnalysisFormTest, DisabledThingsSayWhy) {
  for (QAction* action : form->findChild<QMenuBar*>()->findChildren<QAction*>()) {
    if (action->isEnabled() || action->objectName().isEmpty()) continue;
    EXPECT_TRUE(action->toolTip() == "coming" || action->toolTip().contains(' ')) << action->text().toStdString();
  }
  EXPECT_EQ(Find<QAction>("TRL")->toolTip(), "coming");
  for (QPushButton* button : Find<QWidget>("VideoToolBar")->findChildren<QPushButton*>())
    EXPECT_TRUE(button->isEnabled() || button->toolTip().contains(QChar(0x2014))) << button->objectName().toStdString();
}

TEST_F(AnalysisFormTest, TimerAndRulerWorkOverTheStage) {
  Send("a.avi");
  Click("CmdAfunctions3");
  ASSERT_TRUE(Find<QWidget>("VideoTimerForm")->isVisible());
  form->Analysis().Player().Seek(15);
  EXPECT_EQ(Find<QLabel>("Label1")->text(), "00.50");
  Click("VideoTimerBtn");
  EXPECT_EQ(Find<QLabel>("Label1")->text(), "00.00");
  Click("VideoTimerFormClose");
  EXPECT_FALSE(Find<QWidget>("VideoTimerForm")->isVisible());

  Click("CmdAfunctions4");
  ASSERT_TRUE(Find<QWidget>("TransFrame5")->isVisible());
  EXPECT_FALSE(Find<QPushButton>("CalibBtn0")->isEnabled());
  ClickOn("MP1", {100, 50});
  QTest::mouseMove(Find<QWidget>("MP1"), {200, 50});
  ClickOn("MP1", {200, 50});
  EXPECT_EQ(Find<QLabel>("Label4")->text(), "100pts");
  EXPECT_EQ(form->focusWidget(), Find<QLineEdit>("Text2"));
  QTest::keyClicks(form->focusWidget(), "2.5");
  Click("CalibBtn0");
  EXPECT_FALSE(Find<QWidget>("TransFrame5")->isVisible());
  EXPECT_EQ(settings.CalibNumber, 100);
  EXPECT_FLOAT_EQ(settings.CalibNumberOut, 100 / 2.5f / 12);
}

TEST_F(AnalysisFormTest, LettingGoWhileEverythingPlaysKeepsTheDrawings) {
  const std::string path = Video("a.avi");
  Slots().SendToAnalysis(path);
  for (int n = 2; n <= 8; ++n) Send(std::to_string(n) + ".avi");
  Slots().SelectWindow(1);
  Click("CmdMakeShape1");
  ClickOn("MP1", {90, 80});
  form->Analysis().Player().TLAV_Click();
  host.Advance(200);
  form.reset();
  host.Advance(1000);
  Make({1280, 800});
  Slots().SendToAnalysis(path);
  EXPECT_EQ(Shapes().NumShapes, 1);
}

}  // namespace
}  // namespace kinalyx::test
