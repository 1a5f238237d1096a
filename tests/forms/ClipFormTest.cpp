#include "distribution/clips/forms/ClipForm.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QSlider>
#include <QTest>

#include "AnalysisFormFixture.h"
#include "distribution/clips/forms/ClipCard.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

struct Quiet final : IClipEvents {
  void ClipProgress(const std::string&, double, int) override {}
  void ClipSaved(const std::string& path) override { saved = path; }
  void ClipCancelled() override {}
  void ClipFailed(const std::string& words) override { failed = words; }

  std::string saved, failed;
};

/// A microphone into which nobody has spoken yet.
struct Spoken final : IVoiceRecorder {
  void Start(const std::string& microphone) override {
    heard = microphone;
    fault.clear();
  }
  void Stop() override {}
  double Level() const override { return 0.5; }
  std::string Why() const override { return fault; }
  std::vector<std::int16_t> Take() override { return std::vector<std::int16_t>(2 * kRate * 2, 7); }

  std::string heard, fault;
};

/// The form over a page with a video.
struct ClipFormTest : AnalysisFormFixture {
  ClipFormTest() {
    path = folder + "/swing.avi";
    std::filesystem::copy_file(MakeTestVideo(MjpegVideo(30)), path);
    EXPECT_TRUE(form->Section().Videos().OpenVideo(1, path));
    form->Section().Stage().News().Tell();
    clip = std::make_unique<ClipForm>(ClipForm::Parts{host, form->Section(), desk, voice, "Desk"}, form.get());
    host.Advance(100);
  }
  template <typename Widget>
  Widget* In(const char* name) {
    auto* widget = clip->findChild<Widget*>(name);
    if (!widget) throw std::runtime_error(std::string("no control ") + name);
    return widget;
  }
  void Pick(const char* box, int index) {
    In<QComboBox>(box)->setCurrentIndex(index);
    host.Advance(100);
  }

  std::string path;
  Quiet told;
  ClipDesk desk{host, settings, told, JobRunner::On::HostTimer};
  Spoken voice;
  std::unique_ptr<ClipForm> clip;
};

TEST_F(ClipFormTest, ShowsWhatItWillMake) {
  EXPECT_TRUE(In<QAbstractButton>("ClipAll")->isHidden()) << "one video alone";
  EXPECT_EQ(In<QLabel>("ClipLength")->text(), "1.0 s, 1440 x 1080");
  EXPECT_EQ(In<QSlider>("ClipSeek")->maximum(), 29);
  Pick("ClipSpeed", 2);
  EXPECT_EQ(In<QLabel>("ClipLength")->text(), "4.0 s, 1440 x 1080");
  EXPECT_FALSE(In<QAbstractButton>("ClipSound")->isEnabled()) << "slow motion is silent";
  Pick("ClipFile", 3);
  EXPECT_FALSE(In<QComboBox>("ClipCount")->isHidden());
  EXPECT_THAT(In<QLabel>("ClipLength")->text().toStdString(), testing::StartsWith("5 pictures"));
  Pick("ClipFile", 0);
  Pick("ClipSpeed", 0);

  In<QAbstractButton>("ClipPlay")->click();
  host.Advance(500);
  EXPECT_NEAR(In<QSlider>("ClipSeek")->value(), 15, 1);
  host.Advance(1000);
  EXPECT_FALSE(In<QAbstractButton>("ClipPlay")->isChecked()) << "it has come to its end";
}

TEST_F(ClipFormTest, TakesAVoiceWhileItPlays) {
  const auto record = [&](int ms) {
    In<QAbstractButton>("ClipVoice")->click();
    host.Advance(ms);
  };
  record(500);
  EXPECT_EQ(voice.heard, "Desk");
  EXPECT_TRUE(In<QAbstractButton>("ClipPlay")->isChecked());
  host.Advance(1000);
  EXPECT_FALSE(In<QAbstractButton>("ClipVoice")->isChecked()) << "the clip is over";
  EXPECT_EQ(In<QLabel>("ClipVoiceWords")->text(), "Your voice, 1.0 s") << "no longer than the clip";
  EXPECT_FALSE(In<QAbstractButton>("ClipSound")->isEnabled());
  Pick("ClipSpeed", 1);
  EXPECT_EQ(In<QLabel>("ClipVoiceWords")->text(), "The clip is another one now: record your voice again.");
  EXPECT_TRUE(In<QWidget>("ClipVoiceDrop")->isHidden());

  record(100);
  voice.fault = "The microphone gives no sound any more.";
  host.Advance(100);
  EXPECT_FALSE(In<QAbstractButton>("ClipVoice")->isChecked());
  EXPECT_EQ(In<QLabel>("ClipVoiceWords")->text().toStdString(), "Your voice, 2.0 s. " + voice.fault)
      << "what was said stays";
}

TEST_F(ClipFormTest, ToldWhatIsWrongAndSavedThen) {
  In<QLineEdit>("ClipName")->setText("a:b");
  In<QAbstractButton>("ClipSave")->click();
  EXPECT_EQ(In<QLabel>("ClipFault")->text(), "Invalid Character in name. Please try again.");
  EXPECT_EQ(clip->result(), 0);
  In<QLineEdit>("ClipName")->setText("Übung");
  Pick("ClipSize", 2);
  In<QAbstractButton>("ClipSave")->click();
  EXPECT_EQ(clip->result(), QDialog::Accepted);
  host.Advance(5000);
  EXPECT_EQ(told.saved, folder + "/Übung.mp4") << told.failed;
}

TEST_F(ClipFormTest, ACardTellsHowFarItIs) {
  ClipCard card(form.get());
  const auto words = [&] { return card.findChild<QLabel*>("ClipCardWords")->text(); };
  const auto shown = [&](const char* name) { return !card.findChild<QWidget*>(name)->isHidden(); };
  card.ShowProgress("/x/swing.mp4", 0.345, 2);
  EXPECT_EQ(words(), "Saving \"swing.mp4\", 34 %; 2 others wait");
  EXPECT_TRUE(shown("ClipCardCancel") && !shown("ClipCardPlay"));
  card.ShowSaved(path);
  EXPECT_TRUE(shown("ClipCardFolder") && !shown("ClipCardCancel"));
  EXPECT_FALSE(shown("ClipCardPlay")) << "only a clip is opened in the analysis section";
  card.ShowFailed("No space left on device");
  EXPECT_EQ(words(), "No space left on device");
}

}  // namespace
}  // namespace kinalyx::test
