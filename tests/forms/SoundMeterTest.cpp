#include "capture/forms/SoundMeter.h"

#include <QProgressBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

#include <limits>

#include "FormDriver.h"
#include "FormsSupport.h"
#include "capture/TriggerTimes.h"

namespace kinalyx::test {
namespace {

class SoundMeterTest : public ::testing::Test, protected UsesApplication, protected FormDriver {
 protected:
  SoundMeterTest() {
    meter.resize(420, 90);
    meter.show();
  }
  /// Where the bar has got another colour than it has with nothing to show.
  int Lit() {
    const QImage now = Bar();
    int changed = 0;
    for (int x = 0; x < now.width(); ++x) changed += now.pixel(x, now.height() / 2) != idle.pixel(x, now.height() / 2);
    return changed;
  }
  QImage Bar() { return Find<QProgressBar>("SoundLevelProgressBar")->grab().toImage(); }

  SoundMeter meter;
  QImage idle;

 private:
  QWidget& Form() override { return meter; }
};

TEST_F(SoundMeterTest, ThePeakReachesTheLineWhereTheyAreEqual) {
  auto* line = Find<QSlider>("TriggerLevelSlider");
  auto* bar = Find<QProgressBar>("SoundLevelProgressBar");
  idle = Bar();
  meter.ShowLevel(0.7);
  EXPECT_EQ(bar->value(), 70);
  // A click on the end of the bar sets the line there, on the same scale.
  int end = 0;
  const QImage shown = Bar();
  for (int x = 0; x < shown.width(); ++x)
    if (shown.pixel(x, shown.height() / 2) != idle.pixel(x, idle.height() / 2)) end = x;
  ASSERT_GT(end, 200);
  QTest::mouseClick(line, Qt::LeftButton, {}, QPoint(bar->x() + end - line->x(), line->height() / 2));
  EXPECT_NEAR(line->value(), 70, 1);
  EXPECT_EQ(meter.TriggerLevel(), line->value());

  // It goes back only when it is told so, takes nonsense for silence, and lights up as a whole when it has fired.
  const int few = Lit();
  meter.ShowLevel(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(bar->value(), 0);
  meter.ShowLevel(-0.3);
  EXPECT_EQ(bar->value(), 30) << "the size of it counts";
  meter.ShowLevel(17);
  EXPECT_EQ(bar->value(), 100);
  meter.ShowLevel(0.1);
  EXPECT_LT(Lit(), few);
  meter.ShowFired();
  EXPECT_GT(Lit(), few);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Lit() < few; }, 20'000)) << "for a moment";
}

TEST_F(SoundMeterTest, BothSlidersGoByMouseAndKeys) {
  QSignalSpy trigger(&meter, &SoundMeter::TriggerLevelChanged);
  QSignalSpy sound(&meter, &SoundMeter::SoundLevelChanged);
  meter.SetTriggerLevel(40);
  meter.SetSoundLevel(60);
  EXPECT_EQ(trigger.count() + sound.count(), 0) << "only what the user does is told";

  auto* line = Find<QSlider>("TriggerLevelSlider");
  QTest::keyClick(line, Qt::Key_Right);
  QTest::keyClick(line, Qt::Key_PageUp);
  EXPECT_EQ(meter.TriggerLevel(), 51);
  EXPECT_EQ(trigger.last().at(0).toInt(), 51);
  QTest::mousePress(line, Qt::LeftButton, {}, QPoint(100, 10));
  QTest::mouseMove(line, QPoint(line->width() + 300, 10));
  QTest::mouseRelease(line, Qt::LeftButton, {}, QPoint(line->width() + 300, 10));
  EXPECT_EQ(meter.TriggerLevel(), 100) << "dragged beyond the end";
  QTest::mouseMove(line, QPoint(30, 10));
  EXPECT_EQ(meter.TriggerLevel(), 100) << "and let go";

  auto* input = Find<QSlider>("SoundLevelSlider");
  EXPECT_EQ(Text("SensitivityLbl"), "+2 dB");
  QTest::keyClick(input, Qt::Key_Home);
  EXPECT_EQ(sound.last().at(0).toInt(), 0);
  EXPECT_EQ(Text("SensitivityLbl"), QString::fromUtf8("\u221212 dB"));
  EXPECT_NEAR(InputDecibels(50), 0, 1e-9);
  EXPECT_NEAR(InputDecibels(100), 12, 1e-9);
  EXPECT_NEAR(InputDecibels(0), -12, 1e-9);
}

}  // namespace
}  // namespace kinalyx::test
