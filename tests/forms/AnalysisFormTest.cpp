#include "workspace/forms/AnalysisForm.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <QWheelEvent>

#include "AnalysisFormFixture.h"
#include "library/forms/OpenVidForm.h"
#include "library/forms/PreviewPlayer.h"
#include "video/KeyCodes.h"
#include "workspace/forms/KeyCodeOf.h"
#include "workspace/forms/PlayBar.h"

namespace kinalyx::test {
namespace {

using AnalysisFormTest = AnalysisFormFixture;

TEST_F(AnalysisFormTest, SendsOpensPlaysAndCloses) {
  Send("a.avi");
  Send("b.avi");
  EXPECT_TRUE(Seen("MP1") && Seen("MP2"));
  EXPECT_FALSE(Seen("BorderPanel3"));
  EXPECT_EQ(Find<QWidget>("MP2")->width(), Find<QWidget>("VideoPanel2")->width()) << "seen as a whole";
  EXPECT_EQ(Stage().MP(2).ControlHeightPixels(), Find<QWidget>("MP2")->height());

  Click("CmdButton2");
  EXPECT_TRUE(Stage().MP(2).IsPlaying());
  host.Advance(300);
  EXPECT_EQ(Text("DisplayPanel"), ".30 seconds | 9/29 frames  ");
  Click("CmdButton0");
  EXPECT_EQ(Stage().MP(2).Position(), 0);
  Click("CmdButton3");
  EXPECT_EQ(Stage().MP(2).Position(), 1);
  Click("SlomoButton");
  EXPECT_EQ(Stage().MP(2).Speed(), 25);
  Click("Closebtn");
  EXPECT_FALSE(Stage().HasVideo(2) || Enabled("CmdButton2"));
  EXPECT_TRUE(Find<QToolButton>("CmdButton2")->toolTip().endsWith("Open a video first"));
  EXPECT_TRUE(form->CloseAll());
  EXPECT_FALSE(Stage().AnyVideo());
}

TEST_F(AnalysisFormTest, TheMouseDrawsOnThePicture) {
  Send("a.avi");
  EXPECT_FALSE(Enabled("ColorChoiceBtn0"));
  Click("CmdMakeShape3");
  EXPECT_TRUE(Find<QPushButton>("CmdMakeShape3")->isChecked());
  EXPECT_EQ(Text("DrawText"), "Drawing a Line in Color");
  EXPECT_TRUE(Seen("VectorColorDisplay") && Seen("DrawOffBtn"));
  Click("ColorChoiceBtn0");
  ClickOn("MP1", {200, 220});
  EXPECT_FALSE(Seen("VectorColorDisplay") || Seen("DrawOffBtn")) << "nothing throws a line away by a slip";
  ClickOn("MP1", {300, 260});
  EXPECT_TRUE(Seen("DrawText") && !Seen("DrawOffBtn"));
  ShapeList& shapes = Shapes();
  ASSERT_EQ(shapes.NumShapes, 1);
  EXPECT_EQ(PointOf(0, 1), (POINTAPI{300, 260}));
  EXPECT_EQ(shapes.Shapes[0].Colour, Rgb(255, 0, 0));
  EXPECT_FALSE(Find<QPushButton>("CmdMakeShape3")->isChecked() || Enabled("ColorChoiceBtn0"));
  Click("Lastcadoff");
  EXPECT_EQ(shapes.NumShapes, 0);
  EXPECT_FALSE(Enabled("Lastcadoff"));

  // The caption of the tool lies over the picture, and lets what is drawn through.
  Click("CmdMakeShape1");
  auto* caption = Find<QWidget>("DrawCaption");
  ASSERT_TRUE(caption->isVisible());
  const QPoint at = Find<QWidget>("MP1")->mapFromGlobal(caption->mapToGlobal(QPoint(4, 6)));
  QTest::mouseClick(caption, Qt::LeftButton, {}, {4, 6});
  ASSERT_EQ(shapes.NumShapes, 1);
  EXPECT_EQ(PointOf(0, 0), (POINTAPI{at.x(), at.y()}));
  Click("CmdMakeShape4");
  Click("DrawOffBtn");
  EXPECT_FALSE(form->Section().Tools().Drawing() || caption->isVisible());
}

TEST_F(AnalysisFormTest, LettersInTextBoxesStayLetters) {
  Send("a.avi");
  Click("Notesbutton");
  auto* box = Find<QPlainTextEdit>("NotesBox");
  ASSERT_TRUE(box->isVisible());
  EXPECT_EQ(form->focusWidget(), box) << "one can write at once";
  QTest::keyClicks(box, "close, play 4 more");
  EXPECT_EQ(box->toPlainText(), "close, play 4 more");
  EXPECT_TRUE(Stage().HasVideo(1) && !Stage().MP(1).IsPlaying() && Stage().ScreenLayout == "1");
  QTest::keyClick(box, Qt::Key_Return);
  QTest::keyClicks(box, "head");
  QTest::keyClick(box, Qt::Key_F4);
  EXPECT_EQ(form->Section().Tools().DrawKind(), 3) << "what a box does not want is a command";
  QTest::keyClick(box, Qt::Key_Escape);
  EXPECT_TRUE(Stage().HasVideo(1)) << "Escape only leaves the box";
  // Full: what does not fit is left out of what came last, and the panel says so.
  box->setPlainText("start end");
  box->moveCursor(QTextCursor::Start);
  box->insertPlainText(QString(32757, 'x') + "12");
  EXPECT_EQ(box->toPlainText(), QString(32757, 'x') + "1start end");
  EXPECT_TRUE(Find<QLabel>("NotesFull")->isVisible());
  QTest::keyClicks(box, "yz");
  EXPECT_EQ(box->toPlainText().size(), 32767);
  // Letters that did not fit may be steps of their own, which change nothing.
  for (int step = 0; step < 3 && box->toPlainText().size() == 32767; ++step) box->undo();
  EXPECT_EQ(box->toPlainText().toStdString(), "start end");
  EXPECT_FALSE(Find<QLabel>("NotesFull")->isVisible());
  box->setPlainText("close, play 4 more\nhead");
  Click("NotesClose");
  EXPECT_EQ(Stage().At(1).data.Notes, "close, play 4 more\r\nhead");
  Key(Qt::Key_C);
  EXPECT_FALSE(Stage().HasVideo(1));
}

TEST_F(AnalysisFormTest, KeypadAndDigitsAreTwoThings) {
  Send("a.avi");
  Key(Qt::Key_4);
  EXPECT_EQ(Stage().ScreenLayout, "4");
  Key(Qt::Key_1, Qt::KeypadModifier);
  EXPECT_EQ(Stage().CurrentWindow, 4);
  Key(Qt::Key_7, Qt::KeypadModifier);
  EXPECT_EQ(Stage().ScreenLayout, "4");
  Key(Qt::Key_4, Qt::KeypadModifier);
  EXPECT_EQ(Stage().At(1).PanX, -50);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(Stage().HasVideo(1));
  Key(Qt::Key_Escape);
  EXPECT_FALSE(Stage().HasVideo(1));
  Key(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Stage().HasVideo(1)) << "what was closed comes back";
  QKeyEvent held(QEvent::KeyPress, Qt::Key_P, {}, "p", true);
  QApplication::sendEvent(Find<QWidget>("Text1"), &held);
  EXPECT_FALSE(Stage().MP(1).IsPlaying()) << "a held key toggles once";
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
    EXPECT_TRUE(Stage().HasVideo(1));
    Click("CmdOpenVideo2");
    EXPECT_FALSE(Stage().HasVideo(1));
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
  // The strip that it has left bare follows the video.
  struct Painted : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint) ++count;
      return false;
    }
  } painted;
  QTest::qWait(0);
  Find<QWidget>("BorderPanel1")->installEventFilter(&painted);
  Key(Qt::Key_Right);
  QTest::qWait(50);
  EXPECT_GT(painted.count, 0);
  // The film strip does not cover it.
  form->Section().Commands().Run("smbar");
  EXPECT_FALSE(OnForm(bar).intersects(OnForm(Find<QWidget>("MultiPicturePanel"))));
  QWidget* const top = form->childAt(OnForm(bar).center());
  EXPECT_TRUE(top == bar || bar->isAncestorOf(top));
  form->Section().Commands().Run("smbar");
  Click("PlayBarDetachBtn");
  EXPECT_LT(bar->x(), docked.x());
  EXPECT_EQ(bar->y(), docked.y());
}

TEST_F(AnalysisFormTest, ThePlayBarHasAllFiguresAndMarksAtEverySize) {
  Send("a.avi");
  auto* bar = dynamic_cast<PlayBar*>(Find<QWidget>("Playbar"));
  ASSERT_TRUE(bar);
  for (int n = 0; n < 10; ++n) {
    form->Section().Transport().Seek(2 * n);
    form->Section().Commands().Run("TMark");
  }
  const QString line = "3599.98 seconds | 215999/215999 frames  ";
  for (const QSize size : {QSize(1024, 768), QSize(1920, 1080)}) {
    form->resize(size);
    for (const char* layout : {"Scn1", "Scn2", "Scn4", "Scn8", "Openbtn"}) {
      Click(layout);
      QTest::qWait(0);
      for (const bool floating : {false, true}) {
        SCOPED_TRACE(testing::Message() << size.width() << ' ' << layout << ' ' << floating);
        if (floating && Seen("PlayBarDetachBtn")) Click("PlayBarDetachBtn");
        bar->SetLine(line, "215999");
        auto* words = Find<QLabel>("DisplayPanel");
        EXPECT_TRUE(bar->rect().contains(words->geometry()));
        const QString shown = FittingLine(words->fontMetrics(), words->width(), words->text());
        EXPECT_TRUE(shown == line.trimmed() || shown == "3599.98 s | 215999/215999") << shown.toStdString();
        auto* counter = Find<QLabel>("FrameCounter");
        EXPECT_TRUE(counter->isVisible() && bar->rect().contains(counter->geometry()));
        EXPECT_GE(counter->width(), counter->sizeHint().width());
        EXPECT_GE(Find<QWidget>("PlayBarHScroll")->width(), 40);
        QRegion taken;
        if (Seen("MarksBtn")) Click("MarksBtn");
        for (int n = 0; n < 10; ++n) {
          const std::string name = "Mark" + std::to_string(n);
          ASSERT_TRUE(Seen(name.c_str())) << name;
          const QRect place = OnForm(Find<QWidget>(name.c_str()));
          EXPECT_TRUE(form->rect().contains(place) && !taken.intersects(place)) << name;
          taken += place;
        }
        for (const char* name : {"LoopButton", "DisplayPanel", "FrameCounter", "PlayBarHScroll"})
          EXPECT_FALSE(taken.intersects(OnForm(Find<QWidget>(name)))) << name;
        for (int n = 0; n < 10; ++n) {
          Click(("Mark" + std::to_string(n)).c_str());
          EXPECT_EQ(Stage().MP(1).Position(), 2 * n);
        }
        if (Find<QToolButton>("MarksBtn")->isChecked()) {
          Click("MarksBtn");
          EXPECT_FALSE(Seen("Mark0"));
        }
        if (!bar->Docked()) Click("PlayBarDetachBtn");
      }
    }
    Click("CmdOpenVideo1");
  }
  form->Section().Commands().Run("TMarkoff");
  EXPECT_FALSE(Seen("Mark0") || Seen("MarksBtn"));
}

TEST_F(AnalysisFormTest, EveryBarSeeksAtOnceAndShowsWhatIsUnderThePointer) {
  Click("Scn2");
  Send("a.avi");
  Send("b.avi");
  ASSERT_EQ(Stage().CurrentWindow, 2);
  const auto position = [this](int slot) { return Stage().MP(slot).Position(); };
  // The bar of the window that is not current.
  auto* cell = Find<QWidget>("BorderPanel1");
  auto* film = Find<QWidget>("FilmRow1");
  const int y = film->geometry().bottom() + 15;
  const auto at = [&](double part) { return QPoint(16 + qRound((cell->width() - 32) * part), y); };
  QTest::mousePress(cell, Qt::LeftButton, {}, at(0.5));
  EXPECT_NEAR(position(1), 15, 1);
  QTest::mouseMove(cell, at(0.9));
  EXPECT_NEAR(position(1), 26, 1);
  EXPECT_EQ(Stage().CurrentWindow, 2) << "the line stays under the hand";
  QTest::mouseRelease(cell, Qt::LeftButton, {}, at(0.9));
  EndTurn();
  EXPECT_EQ(Stage().CurrentWindow, 1);
  EXPECT_EQ(position(2), 0);
  // The pictures over it.
  QTest::mouseClick(Find<QWidget>("FilmRow2"), Qt::LeftButton, {}, {film->width() / 2, 10});
  EndTurn();
  EXPECT_NEAR(position(2), 15, 1);
  EXPECT_EQ(Stage().CurrentWindow, 2);
  // A pointer that rests sees what is there, and moves nothing.
  EXPECT_FALSE(Seen("SeekPreview"));
  QTest::mouseMove(Find<QWidget>("PlayBarHScroll"), {40, 10});
  EXPECT_TRUE(QTest::qWaitFor([&] { return Seen("SeekPreview"); }));
  EXPECT_NEAR(position(2), 15, 1);
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(Find<QWidget>("PlayBarHScroll"), &leave);
  EXPECT_FALSE(Seen("SeekPreview"));

  Key(Qt::Key_Space);
  EXPECT_TRUE(Stage().MP(2).IsPlaying() && !Stage().MP(1).IsPlaying());
  Key(Qt::Key_Space, Qt::ShiftModifier);
  Key(Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_TRUE(Stage().MP(2).IsPlaying() && Stage().MP(1).IsPlaying());
}

TEST_F(AnalysisFormTest, WhatIsNotSeenAsAWholeSaysSoAndComesBackByAClick) {
  Click("Scn2");
  Send("a.avi");
  EXPECT_FALSE(Seen("ZoomFigure1"));
  Key(Qt::Key_W);
  ASSERT_TRUE(Seen("ZoomFigure1"));
  EXPECT_GT(Find<QWidget>("MP1")->width(), Find<QWidget>("VideoPanel1")->width());
  Click("ZoomFigure1");
  EXPECT_LE(Find<QWidget>("MP1")->width(), Find<QWidget>("VideoPanel1")->width());
  Key(Qt::Key_Plus);
  EXPECT_EQ(Find<QToolButton>("ZoomFigure1")->text(), "110 %");
}

TEST_F(AnalysisFormTest, TheWheelMovesTheFilmByWholeNotches) {
  Send("a.avi");
  form->Section().Transport().Seek(10);
  auto* bar = Find<QWidget>("PlayBarHScroll");
  const auto turn = [&](QPoint by) {
    QWheelEvent wheel({20, 10}, bar->mapToGlobal(QPointF(20, 10)), {}, by, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(bar, &wheel);
    return Stage().MP(1).Position();
  };
  EXPECT_EQ(turn({0, -120}), 11);
  EXPECT_EQ(turn({0, 240}), 9);
  EXPECT_EQ(turn({120, 15}), 8) << "to the left is back";
  EXPECT_EQ(turn({-120, 15}), 9);
  for (int part = 0; part < 7; ++part) EXPECT_EQ(turn({0, -15}), 9);
  EXPECT_EQ(turn({0, -15}), 10) << "eight parts of a notch";
  turn({0, -60});
  EXPECT_EQ(turn({0, 60}), 10) << "the other way begins anew";
}

TEST_F(AnalysisFormTest, DisabledThingsSayWhy) {
  for (QAction* action : form->findChild<QMenuBar*>()->findChildren<QAction*>()) {
    if (action->isEnabled() || action->objectName().isEmpty()) continue;
    EXPECT_TRUE(action->toolTip().contains(' ')) << action->text().toStdString();
  }
  for (QPushButton* button : Find<QWidget>("VideoToolBar")->findChildren<QPushButton*>())
    EXPECT_TRUE(button->isEnabled() || button->toolTip().contains(QChar(0x2014))) << button->objectName().toStdString();
}

TEST_F(AnalysisFormTest, EntriesAndTipsNameTheirKeys) {
  EXPECT_EQ(Find<QAction>("TMark")->text(), "Mark Video Position\tM");
  EXPECT_EQ(Find<QAction>("squad")->text(), "&Quad\t4");
  EXPECT_EQ(Find<QAction>("vplay")->text(), "P - Play / Pause Toggle") << "said once";
  EXPECT_EQ(Find<QAction>("TVT")->text(), "Video Timer");
  Send("a.avi");
  EXPECT_EQ(Find<QPushButton>("CmdMakeShape3")->toolTip(), "Line (F4)");
  EXPECT_EQ(Find<QPushButton>("UndoBtn")->toolTip().section(' ', 0, 1), "Undo (Ctrl+Z)");
}

TEST_F(AnalysisFormTest, TheStripShowsTheLayoutInUseAndKeepsTheRestInASecondRow) {
  Make({1024, 700});
  auto* strip = Find<QWidget>("VideoToolBar");
  for (const ScreenMode& mode : ScreenModes()) {
    Stage().SetScreen(mode.Mode);
    EndTurn();
    const std::string button = "Scn" + std::to_string(mode.Mode);
    EXPECT_TRUE(Seen(button.c_str()) && Find<QPushButton>(button.c_str())->isChecked()) << button;
  }
  EXPECT_FALSE(Seen("RedoBtn"));
  const int closed = strip->height();
  Click("MoreTools");
  QTest::qWait(0);
  QRegion taken;
  for (const QPushButton* tool : strip->findChildren<QPushButton*>()) {
    const QRect place = tool->geometry();
    EXPECT_TRUE(tool->isVisible() && strip->rect().contains(place) && !taken.intersects(place))
        << tool->objectName().toStdString();
    taken += place;
  }
  EXPECT_GT(strip->height(), closed);

  Make({1024, 700});
  EXPECT_TRUE(Seen("RedoBtn")) << "it opens as it was left";
  Make({1920, 1000});
  EXPECT_TRUE(Seen("RedoBtn") && !Seen("MoreTools"));
}

TEST_F(AnalysisFormTest, CardsOpenBesideTheAthleteAndStayWhereTheyWerePut) {
  Send("a.avi");
  Send("b.avi");
  const auto open = [&](const char* command) {
    form->Section().Commands().Run(command);
    EndTurn();
    QTest::qWait(150);
    return Find<QWidget>(command == std::string("TVT") ? "VideoTimerForm" : "ZoomForm");
  };
  const int middle = Find<QWidget>("MainPanel")->width() / 2;
  EXPECT_LT(open("TVT")->geometry().right(), middle) << "window 2 is the current one";
  auto* zoom = open("TZP");
  const QPoint grip(40, 10);
  const auto drag = [&](QEvent::Type kind, QPoint at, Qt::MouseButtons held) {
    QMouseEvent event(kind, at, zoom->mapToGlobal(QPointF(at)),
                      kind == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held, {});
    QCoreApplication::sendEvent(zoom, &event);
  };
  drag(QEvent::MouseButtonPress, grip, Qt::LeftButton);
  drag(QEvent::MouseMove, grip + QPoint(middle, 200), Qt::LeftButton);
  EXPECT_EQ(settings.CardPlaces, "") << "not at each step";
  drag(QEvent::MouseButtonRelease, grip, Qt::NoButton);
  const QPoint put = zoom->pos();
  EXPECT_GT(put.x(), middle);

  settings.LoadSettings();
  Make({1280, 800});
  zoom = open("TZP");
  EXPECT_LE((zoom->pos() - put).manhattanLength(), 4);
}

TEST_F(AnalysisFormTest, TimerAndRulerWorkOverTheStage) {
  Send("a.avi");
  form->Section().Transport().Seek(15);
  Click("CmdAfunctions3");
  ASSERT_TRUE(Seen("VideoTimerForm"));
  EXPECT_EQ(Text("Label1"), "00.50");
  Click("VideoTimerBtn");
  EXPECT_EQ(Text("Label1"), "00.00");
  Click("VideoTimerFormClose");
  EXPECT_FALSE(Seen("VideoTimerForm"));

  Click("CmdAfunctions4");
  ASSERT_TRUE(Seen("TransFrame5"));
  EXPECT_FALSE(Enabled("CalibBtn0"));
  ASSERT_TRUE(Seen("DrawCaption"));
  const QObjectList& above = Find<QWidget>("MainPanel")->children();
  EXPECT_GT(above.indexOf(Find<QWidget>("TransFrame5")), above.indexOf(Find<QWidget>("DrawCaption")));
  QTest::keyClick(Find<QWidget>("CalibBtn1"), Qt::Key_Return);
  EXPECT_FALSE(Seen("TransFrame5"));
  Click("CmdAfunctions4");
  ClickOn("MP1", {100, 50});
  ClickOn("MP1", {200, 50});
  EXPECT_EQ(Text("Label4"), "100pts");
  EXPECT_EQ(form->focusWidget(), Find<QLineEdit>("Text2"));
  QTest::keyClicks(form->focusWidget(), "2.5");
  Click("CalibBtn0");
  EXPECT_FALSE(Seen("TransFrame5"));
  EXPECT_FLOAT_EQ(settings.CalibNumberOut, 100 / 2.5f / 12);
}

TEST_F(AnalysisFormTest, TheOpenPanelFollowsThePageAndNotTheWindow) {
  std::filesystem::rename(Video("a.avi"), settings.LibraryPath + "/Anna/Erica/a.avi");
  std::filesystem::create_directories(settings.LibraryPath + "/Anna/Zoe");
  remembered = {"Anna", "Erica", ""};
  form->Section().Commands().Run("vo");
  auto* panel = form->findChild<OpenVidForm*>();
  ASSERT_NE(panel, nullptr);
  const AVIControl& preview = panel->findChild<PreviewPlayer*>()->Control();
  Click("CmdOpenVideo0");
  auto* students = panel->findChild<NameList*>("StudentList");
  students->setFocus();
  PutAwayAndBack(*form);
  EXPECT_NE(preview.Info(), nullptr);
  EXPECT_TRUE(students->hasFocus());

  form->Leave();
  form->hide();
  EXPECT_EQ(preview.Info(), nullptr);
  std::filesystem::create_directories(settings.LibraryPath + "/Anna/Zora");
  form->show();
  form->Open();
  EXPECT_NE(preview.Info(), nullptr);
  EXPECT_EQ(students->count(), 3);
  EXPECT_TRUE(Enabled("CmdOpenVideo2")) << "what was opened can be undone";
}

TEST_F(AnalysisFormTest, LettingGoWhileEverythingPlaysKeepsTheDrawings) {
  const std::string path = Video("a.avi");
  Videos().SendToAnalysis(path);
  for (int n = 2; n <= 8; ++n) Send(std::to_string(n) + ".avi");
  Stage().SelectWindow(1);
  Click("CmdMakeShape1");
  ClickOn("MP1", {90, 80});
  form->Section().Transport().ToggleLoopAll();
  host.Advance(200);
  form.reset();
  host.Advance(1000);
  Make({1280, 800});
  Videos().SendToAnalysis(path);
  EXPECT_EQ(Shapes().NumShapes, 1);
}

}  // namespace
}  // namespace kinalyx::test
