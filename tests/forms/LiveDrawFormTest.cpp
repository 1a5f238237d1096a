#include "capture/livedraw/forms/LiveDrawForm.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QSlider>
#include <QTest>
#include <QTimer>

#include "../capture/livedraw/LiveDrawFakes.h"
#include "FormDriver.h"
#include "FormsSupport.h"
#include "capture/livedraw/forms/LiveDrawPicture.h"

namespace kinalyx::test {
namespace {

class LiveDrawFormTest : public testing::Test,
                         protected UsesApplication,
                         protected FormDriver,
                         protected LiveDrawFixture,
                         private ILiveDrawWays {
 protected:
  LiveDrawFormTest() {
    form = std::make_unique<LiveDrawForm>(
        LiveDrawForm::Parts{.host = host, .settings = settings, .setup = *setup, .session = *session, .ways = *this});
    form->resize(1024, 768);
    form->show();
    graph->Show();
    Settle();
  }

  void Settle() { QCoreApplication::processEvents(); }
  QString Button(const char* name) { return Find<QAbstractButton>(name)->text(); }
  LiveDrawPicture& Picture() { return *Find<LiveDrawPicture>("LiveDrawPicture"); }
  /// A place of the picture, in parts of it.
  QPoint At(double x, double y) {
    const QRect room = Picture().PictureRect();
    return {room.left() + qRound(x * room.width()), room.top() + qRound(y * room.height())};
  }
  void DragOver(QPoint from, QPoint to) {
    QTest::mousePress(&Picture(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&Picture(), (from + to) / 2);
    QTest::mouseMove(&Picture(), to);
    QTest::mouseRelease(&Picture(), Qt::LeftButton, {}, to);
    Settle();
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(&Picture(), key, held);
    Settle();
  }
  QColor PixelAt(QPoint at) { return Picture().grab().toImage().pixelColor(at); }

  QWidget& Form() override { return *form; }
  void TakeToAnalysis(const std::string& macro) override { taken.push_back(macro); }

  std::vector<std::string> taken;
  std::unique_ptr<LiveDrawForm> form;
};

TEST_F(LiveDrawFormTest, CaptionsFollowWhatTheButtonsDo) {
  EXPECT_EQ(Button("CamCtlBtn0"), "Freeze Video");
  EXPECT_EQ(Button("CamCtlBtn2"), "Add Hot Zone");
  Press("CamCtlBtn0");
  Settle();
  EXPECT_EQ(Button("CamCtlBtn0"), "Live Video");
  EXPECT_FALSE(graph->running);
  Key(Qt::Key_Space);
  EXPECT_EQ(Button("CamCtlBtn0"), "Freeze Video");
  Press("CamCtlBtn2");
  Settle();
  EXPECT_EQ(Button("CamCtlBtn2"), "Cancel Zone");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Button("CamCtlBtn2"), "Add Hot Zone");
  EXPECT_TRUE(session->Zones().All().empty());
  EXPECT_TRUE(form->isVisible());
  EXPECT_TRUE(Find<QAbstractButton>("SSRibbon1")->isChecked());
  Press("SSRibbon1");
  EXPECT_EQ(graph->loaded, MVMotionDraw2);
  EXPECT_FALSE(Find<QSlider>("PixSlider")->isEnabled()) << "there is nothing that could be sensitive";
}

TEST_F(LiveDrawFormTest, AZoneIsDraggedOverThePictureAndGlowsAsItFires) {
  Press("CamCtlBtn2");
  DragOver(At(0.2, 0.2), At(0.4, 0.4));
  ASSERT_EQ(session->Zones().All().size(), 1U);
  EXPECT_NEAR(session->Zones().All()[0].place.left, 0.2, 0.01);
  EXPECT_NEAR(session->Zones().All()[0].place.height, 0.2, 0.01);
  const QPoint inside = At(0.33, 0.33);
  const QColor quiet = PixelAt(inside);
  Move(0);
  host.Advance(40);
  Settle();
  const QColor glowing = PixelAt(inside);
  EXPECT_GT(glowing.red() - glowing.blue(), quiet.red() - quiet.blue() + 30);
  EXPECT_EQ(sounds.played.size(), 1U);
  host.Advance(2000);
  graph->detector.moving.clear();
  EXPECT_EQ(PixelAt(inside), quiet);
  Find<QSlider>("PixSlider")->setValue(80);
  EXPECT_EQ(graph->detector.sensitivity, 80);
  Key(Qt::Key_M);
  EXPECT_TRUE(Find<QAbstractButton>("MuteBtn")->isChecked());
  // What is taken goes by the key, and comes back by another.
  Key(Qt::Key_Delete);
  EXPECT_TRUE(session->Zones().All().empty());
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(session->Zones().All().size(), 1U);
}

TEST_F(LiveDrawFormTest, TheToolsAreThoseOfAnalysis) {
  Key(Qt::Key_F4);
  EXPECT_TRUE(Find<QAbstractButton>("CmdMakeShape3")->isChecked());
  EXPECT_TRUE(Text("DrawText").contains("Line"));
  DragOver(At(0.5, 0.2), At(0.5, 0.8));
  ASSERT_EQ(Drawings().size(), 1U);
  EXPECT_FALSE(Find<QAbstractButton>("CmdMakeShape3")->isChecked());
  const QColor line = PixelAt(At(0.5, 0.5));
  EXPECT_GT(std::max({line.red(), line.green(), line.blue()}) - std::min({line.red(), line.green(), line.blue()}), 60);
  // A click takes it, a drag moves it, Ctrl+D copies it, Delete removes the copy.
  DragOver(At(0.5, 0.4), At(0.7, 0.4));
  EXPECT_NEAR(Drawings()[0].Pts[0].x, session->Box().width * 0.7, 3);
  Key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Drawings().size(), 2U);
  Press("ColorChoiceBtn0");
  EXPECT_EQ(Drawings()[1].Colour, kColorChoices[0]);
  Press("WidthChoiceBtn9");
  EXPECT_EQ(Drawings()[1].Width, 9);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Drawings().size(), 1U);
  Press("DeleteAllBtn");
  EXPECT_TRUE(Drawings().empty());
  Press("UndoBtn");
  EXPECT_EQ(Drawings().size(), 1U);
  Key(Qt::Key_F11, Qt::ShiftModifier);
  EXPECT_TRUE(Find<QAbstractButton>("CmdMakeShape10")->isChecked());
  EXPECT_FALSE(form->isFullScreen());
}

TEST_F(LiveDrawFormTest, FullScreenIsLeftByEscape) {
  Key(Qt::Key_F11);
  EXPECT_TRUE(form->isFullScreen());
  Key(Qt::Key_F4);
  Key(Qt::Key_Escape);
  EXPECT_FALSE(session->Board().Tools().Drawing());
  EXPECT_TRUE(form->isFullScreen());
  Key(Qt::Key_Escape);
  EXPECT_FALSE(form->isFullScreen());
  EXPECT_TRUE(form->isVisible());
}

TEST_F(LiveDrawFormTest, WordsComeOffThePictureAndBack) {
  Press("CamCtlBtn2");
  DragOver(At(0.2, 0.2), At(0.5, 0.5));
  session->Escape();  // its handles
  const QPoint plate =
      Picture().PictureRect().topLeft() + (At(0.2, 0.2) - Picture().PictureRect().topLeft()) + QPoint(8, 8);
  const QColor with = PixelAt(plate);
  Press("Cadoffbutton");
  Settle();
  EXPECT_NE(PixelAt(plate), with);
  Press("Cadoffbutton");
  Settle();
  EXPECT_EQ(PixelAt(plate), with);
}

TEST_F(LiveDrawFormTest, ClosedAndMinimisedInTheMiddle) {
  Key(Qt::Key_F4);
  QTest::mousePress(&Picture(), Qt::LeftButton, {}, At(0.3, 0.3));
  PutAwayAndBack(*form);
  EXPECT_TRUE(graph->running) << "zones beep also while the window is put away";
  form->close();
  EXPECT_FALSE(graph->running);
  EXPECT_TRUE(Drawings().empty());
  form->show();
  graph->Show();
  Settle();
  EXPECT_EQ(Button("CamCtlBtn0"), "Freeze Video");
  EXPECT_TRUE(Find<QAbstractButton>("CamCtlBtn0")->isEnabled());
}

TEST_F(LiveDrawFormTest, NoCameraLeavesNoDeadTool) {
  graph->events.SourceFailed("VideoSource", "Webcam is not connected.");
  devices.Pull("Webcam");
  Settle();
  EXPECT_FALSE(Find<QAbstractButton>("CamCtlBtn0")->isEnabled());
  EXPECT_FALSE(Find<QAbstractButton>("CamCtlBtn2")->isEnabled());
  EXPECT_FALSE(Find<QAbstractButton>("CmdMakeShape3")->isEnabled());
  EXPECT_TRUE(Find<QAbstractButton>("CmdMakeShape3")->toolTip().contains("camera"));
  devices.Plug(MakeCamera("A camera called Kamera Łódź"));
  EXPECT_GE(Find<QComboBox>("VideoSource_Camera1")->findText("A camera called Kamera Łódź"), 0);
}

TEST_F(LiveDrawFormTest, DrawingsAreSentUnderAName) {
  std::filesystem::create_directories(folder.Path("app"));
  EXPECT_FALSE(Find<QAbstractButton>("SendToAnalysis")->isEnabled());
  DrawLine({200, 200}, {300, 300});
  Settle();
  QTimer::singleShot(0, [] {
    QWidget* asked = QApplication::activeModalWidget();
    ASSERT_NE(asked, nullptr);
    asked->findChild<QLineEdit*>("MacroName")->setText("Postawa żuraw");
    asked->findChild<QAbstractButton*>("MacroNameOK")->click();
  });
  Press("SendToAnalysis");
  EXPECT_EQ(taken, std::vector<std::string>{"Postawa żuraw"});
}

}  // namespace
}  // namespace kinalyx::test
