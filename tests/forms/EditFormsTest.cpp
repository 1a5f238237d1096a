#include "workspace/forms/EditForms.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QToolButton>

#include "AnalysisFormFixture.h"
#include "workspace/forms/StageParts.h"

namespace kinalyx::test {
namespace {

/// A video on which a line and a square are drawn.
struct EditFormsTest : AnalysisFormFixture {
  EditFormsTest() : AnalysisFormFixture({1024, 732}) {}
  void SetUp() override {
    Send("a.avi");
    Draw("CmdMakeShape3", {200, 220}, {320, 220});
    Draw("CmdMakeShape2", {200, 300}, {260, 340});
  }
  void Trigger(const char* action) { Find<QAction>(action)->trigger(); }
  /// Holds a widget and moves the mouse by pixels, as a hand does: in several steps.
  void DragOn(QWidget* handle, QPoint by, QPoint from) {
    const QPoint start = handle->mapTo(form.get(), from);
    const auto send = [&](QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
      const QPoint local = handle->mapFrom(form.get(), at);
      QMouseEvent event(type, local, handle->mapToGlobal(local), button, held, Qt::NoModifier);
      QApplication::sendEvent(handle, &event);
    };
    send(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    for (int step = 1; step <= 4; ++step) send(QEvent::MouseMove, start + by * step / 4, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, start + by, Qt::LeftButton, Qt::NoButton);
  }
  void DragOn(const char* name, QPoint by) { DragOn(Find<QWidget>(name), by, Find<QWidget>(name)->rect().center()); }
  /// A handle lies on a point of the picture, but for roundings on the way from pixels of one to the other.
  bool LiesOn(const char* name, QPoint point) {
    const QPoint at = OnForm(Find<QWidget>(name)).center() - OnForm(Find<QWidget>("MP1")).topLeft();
    return Find<QWidget>(name)->isVisible() && (at - point).manhattanLength() <= 4;
  }
  /// Does something to the dialog that the next command opens.
  void InDialog(const char* name, std::function<void(QDialog&)> act) {
    QTimer::singleShot(0, form.get(), [this, name, act] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      EXPECT_EQ(dialog->objectName(), name);
      act(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
  }
};

TEST_F(EditFormsTest, HandlesLieOnTheSelectionAndFollowTheMouse) {
  EXPECT_FALSE(Seen("picEditBar"));
  Click("CmdAfunctions2");
  QWidget* strip = Find<QWidget>("picEditBar");
  ASSERT_TRUE(strip->isVisible());
  EXPECT_TRUE(Find<QWidget>("MainPanel")->rect().contains(strip->geometry()));
  EXPECT_FALSE(strip->geometry().intersects(Find<QWidget>("Playbar")->geometry()));
  EXPECT_EQ(Text("EditWords"), "Square, 2 of 2");
  EXPECT_TRUE(LiesOn("EditKnob1", {230, 320})) << "in the middle of the square";

  DragOn("EditKnob1", {40, -10});
  EXPECT_EQ(PointOf(1, 0), (POINTAPI{240, 290}));
  EXPECT_TRUE(LiesOn("EditKnob1", {270, 310})) << "the handle went with it";

  Key(Qt::Key_Tab);
  EXPECT_EQ(Text("EditWords"), "Line, 1 of 2");
  EXPECT_TRUE(LiesOn("EditKnob1", {260, 220}));
  DragOn("cmdEBBtn1", {5, 7});
  EXPECT_EQ(PointOf(0, 0), (POINTAPI{205, 227})) << "the strip's handle moves as far as the mouse";
  DragOn("cmdEBBtn2", {0, -10});
  EXPECT_NEAR(PointOf(0, 1).x - PointOf(0, 0).x, 165, 1) << "150 twips up of 400 are three eighths more";
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(PointOf(0, 1).x - PointOf(0, 0).x, 120);
  EXPECT_TRUE(LiesOn("EditKnob1", {265, 227})) << "the selection stays, and its handles are where it is";

  ClickOn("MP1", {270, 310});
  EXPECT_TRUE(Seen("EditKnob1"));
  Click("ribEBBtn");
  EXPECT_EQ(Text("EditWords"), "All 2 drawings");
  Click("cmdEBBtn4");
  EXPECT_EQ(Shapes().NumShapes, 1);
  EXPECT_FALSE(Enabled("ribEBBtn")) << "one drawing is no many";
  Click("cmdEBBtn6");
  for (const char* name : {"picEditBar", "EditKnob1", "EditMarks"})
    EXPECT_FALSE(Find<QWidget>(name)->isVisible()) << name;
}

TEST_F(EditFormsTest, AClickTakesADrawingAndThePaletteIsForIt) {
  EXPECT_FALSE(Enabled("ColorChoiceBtn6"));
  ClickOn("MP1", {260, 220});
  EXPECT_TRUE(Seen("TakenHalo"));
  EXPECT_TRUE(OnForm(Find<QWidget>("TakenHalo")).contains(OnForm(Find<QWidget>("MP1")).topLeft() + QPoint(200, 220)));
  Click("ColorChoiceBtn6");
  Click("WidthChoiceBtn9");
  EXPECT_EQ(Shapes().Shapes[0].Colour, kColorChoices[6]);
  EXPECT_EQ(Shapes().Shapes[0].Width, 9);
  EXPECT_TRUE(Find<QToolButton>("WidthChoiceBtn9")->isChecked());
  DragOn(Find<QWidget>("MP1"), {0, -40}, {320, 220});
  EXPECT_EQ(PointOf(0, 1), (POINTAPI{320, 180}));
  Key(Qt::Key_Delete);
  EXPECT_EQ(Shapes().NumShapes, 1);
  EXPECT_FALSE(Seen("TakenHalo") || Enabled("ColorChoiceBtn6"));
  ClickOn("MP1", {230, 300});
  Key(Qt::Key_Escape);
  EXPECT_FALSE(Seen("TakenHalo"));
  EXPECT_TRUE(Stage().HasVideo(1)) << "Escape lets go before it closes the videos";

  QTest::mouseClick(Find<QWidget>("MP1"), Qt::RightButton, {}, {230, 300});
  QTest::qWait(0);
  Find<QMenu>("ShapeMenu")->close();
  Trigger("ShapeDuplicate");
  EXPECT_EQ(Shapes().NumShapes, 2);
}

TEST_F(EditFormsTest, AToolStaysAfterADoubleClickAndLettersAreTypedOnThePicture) {
  Click("CmdMakeShape3");
  QTest::mouseDClick(Find<QWidget>("CmdMakeShape3"), Qt::LeftButton);
  EndTurn();
  for (const int y : {100, 140}) {
    ClickOn("MP1", {100, y});
    ClickOn("MP1", {180, y});
  }
  EXPECT_EQ(Shapes().NumShapes, 4);
  EXPECT_TRUE(Find<QPushButton>("CmdMakeShape3")->isChecked());
  Key(Qt::Key_Escape);

  Find<QAction>("DrawText")->trigger();
  ClickOn("MP1", {300, 120});
  auto* box = Find<QLineEdit>("LetterBox");
  ASSERT_TRUE(box->isVisible());
  QTest::keyClicks(box, "Hip first");
  QTest::keyClick(box, Qt::Key_Return);
  EndTurn();
  EXPECT_FALSE(box->isVisible());
  ASSERT_EQ(Shapes().NumShapes, 5);
  EXPECT_EQ(Shapes().Shapes[4].Text, "Hip first");
}

TEST_F(EditFormsTest, TheBarGoesWithItsWindow) {
  Click("CmdAfunctions2");
  QWidget* strip = Find<QWidget>("picEditBar");
  const QPoint before = strip->pos();
  DragOn(strip, {-60, -80}, {3, 3});
  EXPECT_EQ(strip->pos(), before + QPoint(-60, -80)) << "moved by its ground";
  Click("Scn2");
  QTest::qWait(0);
  Send("b.avi");
  EXPECT_EQ(Stage().CurrentWindow, 2);
  EXPECT_GE(strip->geometry().center().x(), form->width() / 2);
  EXPECT_EQ(Text("EditWords"), "Nothing is drawn here");
  EXPECT_TRUE(Enabled("cmdEBBtn6") && !Enabled("cmdEBBtn1"));
  for (const char* layout : {"Scn8", "Scn4"}) {
    Click(layout);
    QTest::qWait(0);
    EXPECT_TRUE(Find<QWidget>("MainPanel")->rect().contains(strip->geometry())) << layout;
  }
}

TEST_F(EditFormsTest, MacrosAreNamedShownInsertedAndRemoved) {
  InDialog("MacroNameForm", [](QDialog& dialog) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>("MacroName"), "Dropped");
    QTest::keyClick(dialog.findChild<QPushButton*>("MacroNameCancel"), Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  Trigger("DTMacro");
  InDialog("MacroNameForm", [](QDialog& dialog) {
    auto* ok = dialog.findChild<QPushButton*>("MacroNameOK");
    QTest::keyClicks(dialog.findChild<QLineEdit*>("MacroName"), "  ");
    EXPECT_FALSE(ok->isEnabled());
    QTest::keyClicks(dialog.findChild<QLineEdit*>("MacroName"), "Plane");
    QTest::mouseClick(ok, Qt::LeftButton);
  });
  Trigger("DTMacro");
  Click("Cadoffbutton");
  Trigger("AddMacro");
  ASSERT_TRUE(Seen("MacroForm"));
  auto* list = Find<QListWidget>("lstMacro");
  ASSERT_EQ(list->count(), 1);
  EXPECT_EQ(list->item(0)->text(), "Plane");
  const QImage picture = Find<SurfaceView>("MacroPic")->Picture();
  const QRgb ground = picture.pixel(1, 1);
  int inked = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) inked += picture.pixel(x, y) != ground;
  EXPECT_GT(inked, 50) << "the preview shows the drawing";

  Click("cmdInfo");
  EXPECT_EQ(host.messages.back(), "1 Square's\r\n1 Line's\r\n");
  Click("MacroBtn");
  EXPECT_EQ(Shapes().NumShapes, 2);
  EXPECT_TRUE(Find<QToolButton>("ribEBBtn")->isChecked());
  EXPECT_FALSE(Enabled("cmdEBBtn3") || Seen("EditKnob3"));
  Videos().CloseVideo(1);
  EndTurn();
  EXPECT_FALSE(Enabled("MacroBtn"));
  EXPECT_EQ(Find<QPushButton>("MacroBtn")->toolTip(), "Open a video first");
  host.answers = {true};
  Click("SSCommand1");
  EXPECT_EQ(list->count(), 0);
  EXPECT_FALSE(Enabled("cmdInfo"));
}

TEST_F(EditFormsTest, GridPanelAndClonePlan) {
  Trigger("TAGrid");
  auto* slider = Find<QSlider>("HScroll3");
  ASSERT_TRUE(slider->isVisible());
  Click("GridPanelShow");
  EXPECT_TRUE(Shapes().GridOn);
  EXPECT_TRUE(Find<QPushButton>("ribShowGrid")->isChecked());
  slider->setValue(17);
  EXPECT_EQ(Text("GridSize"), "17 squares across the picture");
  Click("GridSizeClose");
  EXPECT_FALSE(slider->isVisible());

  Click("Scn4");
  Send("b.avi");
  Stage().SelectWindow(1);
  EndTurn();
  InDialog("CloneForm",
           [](QDialog& dialog) { QTest::keyClick(dialog.findChild<QPushButton*>("Command2"), Qt::Key_Return); });
  Click("CmdAfunctions1");
  EXPECT_EQ(Shapes(2).NumShapes, 0) << "Cancel clones nothing";
  InDialog("CloneForm", [](QDialog& dialog) {
    const auto window = [&](int number) { return dialog.findChild<QPushButton*>(QString("WindowBtn%1").arg(number)); };
    EXPECT_FALSE(window(1)->isEnabled() || window(3)->isEnabled());
    EXPECT_EQ(window(5), nullptr);
    EXPECT_TRUE(window(2)->isChecked()) << "the only choice is made";
    QTest::mouseClick(dialog.findChild<QPushButton*>("Command1"), Qt::LeftButton);
  });
  Click("CmdAfunctions1");
  EXPECT_EQ(Shapes(2).NumShapes, 2);
  EXPECT_EQ(Stage().CurrentWindow, 2);
}

}  // namespace
}  // namespace kinalyx::test
