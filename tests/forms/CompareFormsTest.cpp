#include "workspace/forms/CompareForms.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <filesystem>

#include "FormDriver.h"
#include "FormsSupport.h"
#include "workspace/AnalysisStage.h"
#include "workspace/forms/SeekBar.h"
#include "workspace/forms/StageParts.h"

namespace kinalyx {
namespace {

using test::AnalysisStage;
using test::RawVideo;
using test::TestHost;
using test::TestPath;

/// The windows of the modes on a stage of 1200 by 600, driven by their names.
class CompareFormsTest : public testing::Test, test::UsesApplication, protected test::FormDriver {
 protected:
  void SetUp() override {
    window_.resize(1200, 700);
    auto* rows = new QVBoxLayout(&window_);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    stageWidget_ = new QWidget(&window_);
    rows->addWidget(stageWidget_, 1);
    forms_.Build(modes_, stage_.Stage(), stageWidget_);
    rows->addWidget(forms_.Foot());
    stage_.Start();
    window_.show();
    ASSERT_TRUE(stage_.Open(1, RawVideo(40), 10));
    ASSERT_TRUE(stage_.Open(2, RawVideo(40), 15));
    Settle();
  }
  void Settle() {
    QCoreApplication::processEvents();
    stage_.host.Advance(0);
    QCoreApplication::processEvents();
  }
  void Click(const char* name) {
    auto* button = Find<QAbstractButton>(name);
    EXPECT_TRUE(button->isEnabled()) << name;
    QTest::mouseClick(button, Qt::LeftButton);
    Settle();
  }
  bool Seen(const char* name) { return Find<QWidget>(name)->isVisible(); }

  void Wheel(QWidget* over, QPointF at, int turn) {
    QWheelEvent wheel(at, over->mapToGlobal(at), {}, {0, turn}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(over, &wheel);
  }
  QWidget& Form() override { return window_; }

  TestHost formsHost_;
  QWidget window_;
  QWidget* stageWidget_ = nullptr;
  CompareForms forms_{formsHost_};
  AnalysisStage stage_{"2", 1200, 600, &forms_};
  CompareModes& modes_ = stage_.Modes();
};

TEST_F(CompareFormsTest, LockedVideosMoveFromTheirBar) {
  ASSERT_TRUE(modes_.Locks().ToggleLock());
  Settle();
  EXPECT_TRUE(Seen("DualFrame"));
  Click("DualControl1");
  EXPECT_EQ(stage_.At(1), 11);
  Click("DualControl0");
  Click("DualControl0");
  EXPECT_EQ(Text("DualLine"), "9 + 14");
  Click("DualControl2");
  EXPECT_EQ(stage_.At(2), 5);
  Find<QComboBox>("DualSpeed")->setCurrentIndex(2);
  EXPECT_EQ(modes_.Locks().TogetherSpeed(), 25);
  Click("DualPlayBtn");
  stage_.host.Advance(1000);
  EXPECT_NEAR(stage_.At(1), 7, 1);
  Click("DualPlayBtn");
  EXPECT_FALSE(modes_.Locks().PlayingTogether());
  auto* bar = Find<SeekBar>("DualScroll");
  QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() - 2, bar->height() / 2));
  EXPECT_EQ(stage_.At(1), 33);
  Click("DualLockBtn");
  EXPECT_FALSE(Seen("DualFrame"));
}

TEST_F(CompareFormsTest, TransparencyIsMixedFromItsPanel) {
  modes_.Transparency().ToggleTransparency();
  Settle();
  ASSERT_TRUE(Seen("TransFrame") && Seen("TransPanel") && Seen("DualFrame"));
  auto* mix = Find<QSlider>("TransScroll");
  EXPECT_EQ(mix->value(), 128);
  mix->setValue(0);
  Settle();
  EXPECT_TRUE(Find<QPushButton>("OptShow2")->isChecked());
  Click("OptShow3");
  stage_.host.Advance(2000);
  EXPECT_EQ(mix->value(), 255);
  Click("OptShow1");
  EXPECT_FALSE(mix->isEnabled());
  EXPECT_EQ(modes_.Transparency().Shown(), ShowOption::SplitScreen);
  Click("OptShow0");
  EXPECT_TRUE(mix->isEnabled());

  Click("VidCtlBtn2_4");
  EXPECT_TRUE(stage_.MP(2).IsPlaying() && Find<QToolButton>("VidCtlBtn2_4")->isChecked());
  Click("VidCtlBtn2_2");
  auto* bar = Find<SeekBar>("HScroll1");
  QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(1, bar->height() / 2));
  EXPECT_EQ(stage_.At(1), 0);

  // The wheel zooms the chosen video in the mix.
  Click("SelectVid2");
  EXPECT_EQ(stage_.Stage().CurrentWindow, 2);
  auto* panel = Find<QWidget>("TransPanel");
  Wheel(panel, {600, 200}, 120);
  EXPECT_DOUBLE_EQ(stage_.Stage().At(2).VideoZoom, 1.1);
  EXPECT_DOUBLE_EQ(stage_.Stage().At(1).VideoZoom, 1.0);
  // And a tool draws on it; in the split screen, on the one in whose half the mouse is.
  for (const auto& [option, x] : {std::pair{"OptShow0", 600}, {"OptShow1", 450}, {"OptShow1", 750}}) {
    Click(option);
    stage_.Key(kKeyF1 + 1);
    QTest::mouseClick(panel, Qt::LeftButton, {}, {x, 200});
  }
  EXPECT_EQ(stage_.Shapes(1).NumShapes, 1);
  EXPECT_EQ(stage_.Shapes(2).NumShapes, 2);
  Click("Closetrans");
  EXPECT_FALSE(Seen("TransFrame") || Seen("TransPanel") || Seen("DualFrame"));
}

TEST_F(CompareFormsTest, WheelZoomsTheVideoUnderThePointer) {
  Wheel(stageWidget_, {900, 200}, -240);
  EXPECT_DOUBLE_EQ(stage_.Stage().At(2).VideoZoom, 0.8);
  EXPECT_EQ(stage_.Stage().CurrentWindow, 1);
}

TEST_F(CompareFormsTest, StrobeWindowStartsStopsAndSaves) {
  modes_.ToggleStrobeForm();
  ASSERT_TRUE(Seen("StrobeForm"));
  auto* strobe = Find<QPushButton>("SSCommand1_2");
  auto* save = Find<QPushButton>("SaveStrobeBtn");
  EXPECT_FALSE(save->isEnabled());
  Click("SSCommand1_0");
  Click("SSCommand1_2");
  EXPECT_EQ(strobe->text(), "Stop");
  stage_.host.Advance(60'000);
  EXPECT_EQ(strobe->text(), "Strobe");
  ASSERT_TRUE(save->isEnabled());
  const std::string path = TestPath("kept strobe.png");
  formsHost_.newFiles = {path, "/nowhere at all/strobe.png"};
  Click("SaveStrobeBtn");
  EXPECT_TRUE(formsHost_.suggested.ends_with(" strobe.png"));
  EXPECT_EQ(QImage(QString::fromStdString(path)).width(), stage_.MP(1).ControlWidthPixels());
  Click("SaveStrobeBtn");
  EXPECT_EQ(formsHost_.messages.size(), 1u);
}

TEST_F(CompareFormsTest, CarveIsMarkedDraggedAndScaled) {
  modes_.Carving().ToggleCarve();
  Settle();
  auto* canvas = Find<QWidget>("CarvePic");
  ASSERT_TRUE(canvas->isVisible() && Seen("CarvePanel"));
  QTest::mousePress(canvas, Qt::LeftButton, {}, QPoint(100, 100));
  QTest::mouseMove(canvas, QPoint(150, 150));
  QTest::mouseRelease(canvas, Qt::LeftButton, {}, QPoint(220, 190));
  Settle();
  EXPECT_FALSE(canvas->isVisible());
  auto* piece = Find<QWidget>("picRot");
  ASSERT_TRUE(piece->isVisible());
  EXPECT_EQ(piece->size(), QSize(120, 90));
  Find<QSlider>("CScroll")->setValue(50);
  EXPECT_EQ(piece->size(), QSize(60, 45));
  const QPoint before = piece->pos();
  QTest::mousePress(piece, Qt::LeftButton, {}, QPoint(10, 10));
  QTest::mouseMove(piece, QPoint(40, 30));
  QTest::mouseRelease(piece, Qt::LeftButton, {}, QPoint(10, 10));
  EXPECT_EQ(piece->pos() - before, QPoint(30, 20));
  Click("CarveAnewBtn");
  EXPECT_TRUE(canvas->isVisible());
  Click("CarvePanelClose");
  EXPECT_FALSE(modes_.Carving().Shown() || canvas->isVisible() || piece->isVisible());
}

TEST_F(CompareFormsTest, StripAndZoomButtonsReachTheirModes) {
  modes_.ToggleZoomForm();
  modes_.Strip().ToggleStrip();
  Settle();
  ASSERT_TRUE(Seen("MFPanel"));
  EXPECT_FALSE(Find<QWidget>("ZoomForm")->geometry().intersects(Find<QWidget>("MultiPicturePanel")->geometry()));
  modes_.ToggleZoomForm();
  Find<QComboBox>("SkipBox")->setCurrentText("2");
  EXPECT_EQ(modes_.Strip().Skip(), 2);
  Click("MPicBtn0");
  EXPECT_TRUE(modes_.Strip().WaitingForSquare());
  formsHost_.newFiles = {TestPath("strip.jpg")};
  Click("SaveStripBtn");
  EXPECT_TRUE(std::filesystem::exists(TestPath("strip.jpg")));
  Click("MPicBtn1");
  EXPECT_FALSE(Seen("MFPanel"));

  modes_.ToggleZoomForm();
  const Slot& slot = stage_.Stage().At(1);
  Click("ZoomBtn1");
  EXPECT_DOUBLE_EQ(slot.VideoZoom, 1.1);
  Click("PanBtn2");
  EXPECT_EQ(slot.PanY, 50);
  QTest::mousePress(Find<QToolButton>("PanBtn1"), Qt::LeftButton);
  stage_.host.Advance(1000);
  EXPECT_GT(slot.PanX, 500);
  Click("ZoomFormClose");
  EXPECT_FALSE(modes_.ZoomShown());
  const double held = slot.PanX;
  stage_.host.Advance(1000);
  EXPECT_EQ(slot.PanX, held) << "the form took its held button with it";
}

}  // namespace
}  // namespace kinalyx
