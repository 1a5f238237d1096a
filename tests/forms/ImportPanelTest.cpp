#include "capture/import/forms/ImportPanel.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QTreeWidget>
#include <QtTest/QTest>

#include "FormDriver.h"
#include "FormsSupport.h"
#include "capture/import/forms/CodecForm.h"
#include "support/TestDesk.h"
#include "support/TestVideos.h"

namespace kinalyx {
namespace {

namespace fs = std::filesystem;

/// The one name that is left.
struct OneName final : IVideoNaming {
  std::string path;
  void GetVideoName() override {}
  const std::string& CapturedVideoPath() const override { return path; }
  const std::string& CapturedVideoPath2() const override { return path; }
  void ChangeName() override {}
};

class ImportPanelTest : public testing::Test, public test::FormDriver, test::UsesApplication {
 protected:
  void SetUp() override {
    fs::create_directories(desk.folder.Path("camera"));
    naming.path = desk.folder.Path("Anna/(001) DL.avi");
    panel = std::make_unique<ImportPanel>(services, desk.settings, naming);
    QObject::connect(panel.get(), &ImportPanel::VideoSaved, [this](const std::string& path) { saved = path; });
    QObject::connect(panel.get(), &ImportPanel::SetupWanted, [this] { ++setups; });
    panel->resize(640, 640);
    panel->show();
  }
  std::string Film(const std::string& name) {
    fs::copy_file(test::MakeTestVideo(test::MjpegVideo(60)), desk.folder.Path("camera/" + name));
    return desk.folder.Path("camera/" + name);
  }
  /// Lets the panel show what has changed, and a conversion come to its end.
  void Settle() {
    QElapsedTimer since;
    for (since.start(); since.elapsed() < 100 || (panel->Session().Busy() && since.elapsed() < 20000);) {
      desk.host.Advance(15);
      QTest::qWait(5);
    }
  }
  bool Shown(const char* name) { return Find<QWidget>(name)->isVisible(); }
  QWidget& Form() override { return *panel; }

  test::TestDesk desk;
  PlayScheduler scheduler{desk.host};
  PlayerServices services{desk.host, scheduler};
  OneName naming;
  std::string saved;
  int setups = 0;
  std::unique_ptr<ImportPanel> panel;
};

TEST_F(ImportPanelTest, AFileIsChosenTrimmedAndSaved) {
  EXPECT_EQ(List("List1")->Hint(), "Drop videos here, or choose Browse.");
  EXPECT_FALSE(Find<QWidget>("SSCommand8_3")->isEnabled());
  desk.host.manyFiles = {Film("Łąka.avi"), Film("swing.avi")};
  Press("SSCommand8_2");
  Settle();
  EXPECT_EQ(Rows("List1"), QStringList({"Łąka.avi", "swing.avi"}));
  Choose("List1", "swing.avi");
  QWidget* bar = Find<QWidget>("ImportScroll");
  for (int step = 0; step < 15; ++step) QTest::keyClick(bar, Qt::Key_Right);
  Press("SSCommand8_0");
  Settle();
  EXPECT_EQ(Text("TrimStartLbl"), "Start time 0:00.50");
  QTest::keyClick(bar, Qt::Key_End);
  QTest::keyClick(bar, Qt::Key_PageUp);
  QTest::keyClick(bar, Qt::Key_E);
  Settle();
  EXPECT_EQ(Text("TrimEndLbl"), "End time 0:01.63");
  Press("SSCommand8_3");
  EXPECT_TRUE(panel->Session().Busy());
  Settle();
  EXPECT_EQ(saved, naming.path);
  const auto video = test::OpenedVideo(saved);
  EXPECT_EQ(video->Info().frameCount, 35);
  EXPECT_EQ(test::ReadNumber(video->Frame(0, 24)), 15);
  EXPECT_EQ(Text("ImportStatus"), "Last Video Saved Successfully");
  EXPECT_EQ(List("List1")->item(1)->data(NameDelegate::kCountRole).toString(), "Saved");
  EXPECT_FALSE(Shown("TrimStartLbl"));
  EXPECT_FALSE(Shown("ImportProgress"));
  std::string analyzed;
  QObject::connect(panel.get(), &ImportPanel::AnalyzeWanted, [&](const std::string& path) { analyzed = path; });
  Press("ImportAnalyzeBtn");
  EXPECT_EQ(analyzed, saved);
}

TEST_F(ImportPanelTest, EachKindSaysWhatToDo) {
  panel->SetKind(ImportKind::Automatic);
  EXPECT_TRUE(Shown("AutoConvertBtn"));
  EXPECT_FALSE(Shown("SSCommand8_2"));
  Press("AutoConvertBtn");
  EXPECT_EQ(setups, 1);
  panel->SetKind(ImportKind::Camera);
  EXPECT_FALSE(Shown("AutoConvertBtn"));
  Press("ImportSetupBtn");
  EXPECT_EQ(setups, 2);
  desk.settings.ImportFolder = desk.folder.Path("unplugged");
  panel->SetKind(ImportKind::Camera);
  EXPECT_TRUE(List("List1")->Hint().startsWith("Connect the camera"));
  desk.settings.ImportFolder = desk.folder.Path("camera");
  Film("a.avi");
  panel->Open();
  EXPECT_EQ(Rows("List1"), QStringList({"a.avi"}));

  EXPECT_TRUE(Find<QCheckBox>("KeepPictureSizeCheck")->isChecked());
  EXPECT_FALSE(Find<QWidget>("VidSetupCheck1")->isEnabled());
  Press("KeepPictureSizeCheck");
  Press("VidSetupCheck1");
  Press("VidSetupCheck0");
  EXPECT_EQ(desk.OnDisk("VidCap", "KeepPictureSize"), "0");
  EXPECT_EQ(desk.OnDisk("VidCap", "ImportEdge"), "1");
  EXPECT_EQ(desk.OnDisk("VidCap", "HDReverseFields"), "True");
  EXPECT_EQ(desk.OnDisk("VidCap", "AutoReverseFields"), "False");

  CodecForm form(panel.get());
  const auto* kinds = form.findChild<QTreeWidget*>("CodecList");
  const auto jpeg = kinds->findItems("Motion JPEG", Qt::MatchExactly);
  ASSERT_EQ(jpeg.size(), 1);
  EXPECT_EQ(jpeg[0]->text(2) + jpeg[0]->text(3), "YesYes");
}

}  // namespace
}  // namespace kinalyx
