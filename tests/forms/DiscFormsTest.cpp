#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QTest>
#include <filesystem>

#include "FormDriver.h"
#include "FormsSupport.h"
#include "distribution/disc/forms/BurnForm.h"
#include "distribution/disc/forms/DiscPanel.h"
#include "support/TempFolder.h"
#include "support/TestHost.h"
#include "support/TestVideos.h"
#include "viewer/forms/ViewerForm.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

/// A computer without drives, on which a file serves.
class NoDrives final : public IDiscDrives {
 public:
  std::vector<DriveName> List() override { return {}; }
  std::unique_ptr<IDiscDrive> At(const std::string& address) override { return DriveAt(address); }
};

class DiscForms : public testing::Test, public FormDriver {
 protected:
  DiscForms() {
    settings.LoadSettings();
    fs::create_directories(folder.Path("Bin"));
    folder.Put("Bin/KinalyxViewer", "viewer");
    window.resize(900, 600);
    panel.setParent(&window);
    window.show();
    host.Advance(50);
  }
  QWidget& Form() override { return window; }
  /// The work goes on step by step with the clock.
  void Work() {
    for (int i = 0; i < 5000 && Burner().Busy(); ++i) host.Advance(1);
    QCoreApplication::processEvents();
  }
  BurnForm& Burner() { return *Find<BurnForm>("BurnForm"); }
  QStringList Said() {
    QStringList lines;
    auto* list = Find<QListWidget>("BurnStatus");
    for (int row = 0; row < list->count(); ++row) lines << list->item(row)->text();
    return lines;
  }
  void AddVideo(const char* name) { files.Add(folder.Put(name, "a video of some bytes"), false); }

  TempFolder folder;
  TestHost host;
  Settings settings{host, folder.Path("data"), folder.Path()};
  FilesToSend files;
  NoDrives drives;
  QWidget window;
  DiscPanel& panel = *new DiscPanel(host, settings, files, drives, {folder.Path("Bin"), folder.Path("work")}, &window,
                                    JobRunner::On::HostTimer);
};

TEST_F(DiscForms, AnImageFileServesWhereThereIsNoDrive) {
  EXPECT_EQ(Text("DriveStatus"), "Unknown");
  Press("cmdRecordCD0");
  EXPECT_EQ(host.messages.back(), "You must add some videos 1st!");
  AddVideo("Swing.avi");
  panel.FilesChanged();
  EXPECT_EQ(Text("TotalSpaceRequired"), "1MB");
  Press("cmdRecordCD0");
  EXPECT_EQ(host.titles.back(), "Drive Not Ready");

  auto* devices = Find<QComboBox>("cbDevices");
  host.newFiles = {folder.Path("Zofia")};
  emit devices->activated(devices->count() - 1);
  host.Advance(50);
  EXPECT_EQ(devices->currentText(), "Zofia.iso (image file)");
  EXPECT_EQ(Text("DriveStatus"), "Drive is Ready");

  Find<QCheckBox>("DiscWithPage")->setChecked(false);
  host.answers = {true};
  Press("cmdRecordCD0");
  EXPECT_EQ(host.questions.back(), "Ready to Burn CD?");
  EXPECT_EQ(host.titles.back(), "Start Writing to CD?");
  EXPECT_TRUE(Burner().isVisible());
  EXPECT_EQ(Burner().windowTitle(), "CD/DVD Burner [PREPARING]");
  Work();
  EXPECT_EQ(Text("BurnHeading"), "Burn Completed Successfully!");
  EXPECT_EQ(Burner().windowTitle(), "CD/DVD Burner [IDLE]");
  EXPECT_TRUE(Said().contains(">>> Adding File Swing.avi"));
  EXPECT_EQ(Said().back(), ">>> Burn Complete!");
  EXPECT_TRUE(fs::exists(folder.Path("Zofia.iso")));
  Press("cmdCancel");
  EXPECT_FALSE(Burner().isVisible());

  // A second time the file is there already, and the user would rather keep it.
  host.answers = {false};
  Press("cmdRecordCD0");
  EXPECT_NE(host.questions.back().find("\"Zofia.iso\" is there already"), std::string::npos);
  EXPECT_FALSE(Burner().Busy());
}

TEST_F(DiscForms, ACancelIsToldAndTheListSurvivesIt) {
  files.Add(folder.Put("Large.avi", std::string(30'000'000, 'x')), false);
  auto* devices = Find<QComboBox>("cbDevices");
  host.newFiles = {folder.Path("Zofia.iso")};
  emit devices->activated(devices->count() - 1);
  host.Advance(50);
  Find<QCheckBox>("DiscWithPage")->setChecked(false);
  host.answers = {true};
  Press("cmdRecordCD0");
  host.Advance(2);
  QTest::keyClick(&Burner(), Qt::Key_Escape);
  EXPECT_TRUE(Burner().isVisible());
  Work();
  EXPECT_EQ(Text("BurnHeading"), "Burn Cancelled");
  EXPECT_TRUE(Said().contains("Cancelling the burning process"));
  EXPECT_TRUE(Said().contains(">>> BURN CANCELLED"));
  EXPECT_FALSE(fs::exists(folder.Path("Zofia.iso")));
  EXPECT_EQ(files.Files().size(), 1u);
}

TEST_F(DiscForms, AFolderIsFilledAndAskedAboutTheSecondTime) {
  AddVideo("Swing.avi");
  Find<QCheckBox>("DiscWithPage")->setChecked(false);
  fs::create_directory(folder.Path("stick"));
  host.folders = {folder.Path("stick"), folder.Path("stick"), folder.Path("stick")};
  Press("cmdCopyToFolder");
  Work();
  EXPECT_EQ(Text("BurnHeading"), "Copied. You can take the stick out now.");
  EXPECT_TRUE(fs::exists(folder.Path("stick/Videos/Swing.avi")));
  Press("cmdCancel");

  Press("cmdCopyToFolder");
  Work();
  EXPECT_NE(host.questions.back().find("2 of these files are there already"), std::string::npos);
  EXPECT_EQ(Text("BurnHeading"), "Nothing was copied.");
  Press("cmdCancel");
  host.answers = {true};
  Press("cmdCopyToFolder");
  Work();
  Work();
  EXPECT_EQ(Text("BurnHeading"), "Copied. You can take the stick out now.");
}

/// Hears what would be heard.
struct HeardSound final : ISoundOutput {
  void Play(const std::string& path, double, int) override { playing = path; }
  void Stop() override { playing.clear(); }
  void SetVolume(int) override {}
  std::string playing;
};

TEST(ViewerForm, ShowsTheVideosOfItsFolderAndPlaysThem) {
  const TempFolder disc;
  fs::create_directories(disc.Path("Lessons"));
  fs::create_directories(disc.Path("Videos"));
  fs::copy_file(MakeTestVideo(RawVideo(12)), disc.Path("Videos/Łódź.avi"));
  disc.Put("Videos/broken.avi", "no video");
  disc.Put("Videos/Łódź.ved", "1");
  HeardSound sound;
  ViewerForm form(disc.Path(), sound);
  form.show();
  auto* list = form.findChild<QListWidget*>("ViewerList");
  ASSERT_EQ(list->count(), 3);  // the empty folder has no heading
  const auto rowOf = [&](const QString& name) { return list->row(list->findItems(name, Qt::MatchExactly).value(0)); };
  list->setCurrentRow(rowOf("broken"));
  EXPECT_TRUE(form.findChild<QWidget*>("ViewerFault")->isVisible());
  EXPECT_FALSE(form.findChild<QWidget*>("ViewerPlay")->isEnabled());
  list->setCurrentRow(rowOf("Łódź"));
  EXPECT_FALSE(form.findChild<QWidget*>("ViewerFault")->isVisible());
  QTest::keyClick(list, Qt::Key_Right);
  QTest::keyClick(list, Qt::Key_Right);
  QTest::keyClick(list, Qt::Key_Left);
  EXPECT_EQ(form.Position(), 1);
  QTest::keyClick(list, Qt::Key_Space);
  EXPECT_TRUE(form.Playing());
  EXPECT_EQ(sound.playing, disc.Path("Videos/Łódź.avi"));
  QTest::keyClick(list, Qt::Key_H);
  EXPECT_TRUE(sound.playing.empty());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !form.Playing(); }, 10'000));
  EXPECT_EQ(form.Position(), 11);

  const TempFolder empty;
  ViewerForm nothing(empty.Path(), sound);
  EXPECT_EQ(nothing.findChild<QListWidget*>("ViewerList")->count(), 0);
}

}  // namespace
}  // namespace kinalyx::test
