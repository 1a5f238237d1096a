#include "capture/forms/CapturePage.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QTest>

#include <fstream>

#include "../capture/Fakes.h"
#include "../library/TempLibrary.h"
#include "FormDriver.h"
#include "FormsSupport.h"
#include "capture/forms/CameraControlsForm.h"
#include "capture/forms/CaptureSection.h"
#include "capture/forms/FindCamForm.h"
#include "library/Profile.h"
#include "library/forms/TrimSlider.h"
#include "platform/files/Folders.h"
#include "support/TestVideos.h"

namespace kinalyx {
namespace {

class CapturePageTest : public ::testing::Test,
                        protected test::UsesApplication,
                        protected test::FormDriver,
                        private ICaptureWays {
 protected:
  CapturePageTest() {
    library.Folder("Ann/Joe");
    settings.LoadCaptureSettings();
    settings.VideoInSource = static_cast<int>(SourceKind::Webcam);
    settings.DVMode = settings.ImportCaptureMode = false;
    devices.cameras = {test::MakeCamera("Left"), test::MakeCamera("Right")};
    setup = std::make_unique<CaptureSetup>(settings, devices);
    remembered = {"Ann", "Joe", library.Path("Ann/Joe")};
    page = std::make_unique<CapturePage>(CapturePage::Parts{.services = services,
                                                            .settings = settings,
                                                            .fields = fields,
                                                            .remembered = remembered,
                                                            .setup = *setup,
                                                            .naming = naming,
                                                            .ways = *this,
                                                            .sounds = sounds,
                                                            .makeGraph = [this](IGraphEvents&) {
                                                              auto made = std::make_unique<test::FakeGraph>();
                                                              if (!graph) graph = made.get();
                                                              return made;
                                                            }});
    page->resize(892, 700);
    page->show();
    page->Open();
  }

  bool Seen(const char* name) { return Find<QWidget>(name)->isVisible(); }
  QString Button(const char* name) { return Find<QAbstractButton>(name)->text(); }
  void Record() {
    Press("Capturebtn");
    const std::string video = test::MakeTestVideo(test::MjpegVideo(12));
    for (const auto& [label, path] : graph->sinks) std::filesystem::copy_file(video, path);
    Press("Capturebtn");
  }

  test::TempLibrary library;
  Settings& settings = library.settings;
  ProfileFields fields{library.Data("fields.ini")};
  LastStudentInfo remembered;
  PlayScheduler scheduler{library.host};
  PlayerServices services{.host = library.host, .scheduler = scheduler};
  test::FakeDevices devices;
  std::unique_ptr<CaptureSetup> setup;
  VideoNaming naming{settings, [] { return std::string("11/25/2026"); }};
  test::FakeGraph* graph = nullptr;  ///< of the cameras
  struct Silence final : IShortSounds {
    void Play(const std::string&) override {}
  } sounds;
  std::vector<std::string> opened;
  std::unique_ptr<CapturePage> page;

 private:
  QWidget& Form() override { return *page; }
  bool OpenInAnalysis(const std::vector<std::string>& paths) override {
    opened = paths;
    return true;
  }
  void GoToCaptureSetup() override {}
  void OpenMirror() override {}
};

TEST_F(CapturePageTest, ShowsWhatBelongsToEachPhase) {
  EXPECT_EQ(Button("Capturebtn"), "Start Capture");
  EXPECT_EQ(Text("VidNameLbl"), "(001) DL- 11-25-2026");
  EXPECT_FALSE(Seen("CapSavebtn"));
  EXPECT_FALSE(Seen("ezVidCap2"));
  Record();
  EXPECT_EQ(Button("Capturebtn"), "Back to Live Video");
  EXPECT_TRUE(Seen("CapSavebtn"));
  EXPECT_EQ(Text("VidFrameLbl"), "1 of 12");
  EXPECT_FALSE(Find<QComboBox>("VideoSource_Camera1")->isEnabled());
  page->EndHerebtn_Click();
  EXPECT_EQ(Button("EndHerebtn"), "Trim End of Video") << "picture 0 is no end";
  library.host.Advance(1000);
  Press("Capturebtn");
  EXPECT_EQ(Button("Capturebtn"), "Start Capture");
}

TEST_F(CapturePageTest, TheEndsOfARecordingAreDragged) {
  Record();
  auto* bar = Find<TrimSlider>("VidScroll");
  EXPECT_EQ(bar->Frames(), 12);
  bar->SetStart(3);
  bar->SetEnd(8);
  EXPECT_EQ(Button("StartHerebtn"), "Start at 3");
  EXPECT_EQ(Button("EndHerebtn"), "End at 8");
  emit bar->Sought(5);
  EXPECT_EQ(Text("VidFrameLbl"), "6 of 12");
  page->StartHerebtn_Click();
  EXPECT_EQ(bar->Start(), 5);
  bar->SetEnd(11);
  EXPECT_EQ(Button("EndHerebtn"), "Trim End of Video") << "all of it";
}

TEST_F(CapturePageTest, KnobsAreThoseThatTheCameraTellsOfWhenItDoes) {
  CameraControlsForm form(devices, "Left", page.get());
  const auto knob = [&](const char* name) { return form.findChild<QWidget*>(name); };
  form.show();
  EXPECT_TRUE(form.findChild<QLabel*>("CameraNoKnobs")->text().startsWith("Asking"));
  devices.controls.resize(3);
  for (std::uint32_t i = 0; i < 3; ++i) devices.controls[i].id = i + 1;
  for (CameraControl& control : devices.controls) control.name = "Sharpness";
  devices.controls[0].high = devices.controls[2].high = 255;
  devices.controls[0].standard = 128;
  devices.controls[1].kind = CameraControl::Kind::Switch;
  devices.controls[1].value = 1;
  devices.controls[2].active = false;
  ASSERT_TRUE(QTest::qWaitFor([&] { return knob("Knob3") != nullptr; }));
  EXPECT_FALSE(knob("Knob3")->isEnabled());
  static_cast<QSlider*>(knob("Knob1"))->setValue(30);
  EXPECT_EQ(devices.controls[0].value, 30);
  static_cast<QCheckBox*>(knob("Knob2"))->setChecked(false);
  EXPECT_EQ(devices.controls[1].value, 0);
  devices.controls[2].active = true;
  devices.controls[2].value = 90;
  ASSERT_TRUE(QTest::qWaitFor([&] { return knob("Knob3")->isEnabled(); }));
  EXPECT_EQ(form.findChild<QLabel*>("Knob3Lbl")->text(), "90");
  form.findChild<QAbstractButton*>("CameraStandard")->click();
  EXPECT_EQ(devices.controls[0].value, 128);
}

TEST_F(CapturePageTest, TwoCamerasHaveTwoWindowsAndTwoLines) {
  EXPECT_FALSE(Seen("CameraLine2"));
  Press("OneCamTwoOpt1");
  EXPECT_TRUE(Seen("ezVidCap2"));
  EXPECT_TRUE(Seen("CameraLine2"));
  EXPECT_FALSE(Seen("CamChoiceBtn0"));
  EXPECT_EQ(Find<QComboBox>("VideoSource_Camera2")->currentText(), "Right");
  EXPECT_FALSE(settings.OneCam);
}

TEST_F(CapturePageTest, ANameIsTypedForTheNextVideo) {
  Press("ChangeNamebtn");
  EXPECT_EQ(Find<QLineEdit>("ChangeNameBox")->text(), "DL- 11-25-2026");
  Type("ChangeNameBox", "bad/name");
  Press("ChangeNameOk");
  EXPECT_TRUE(Seen("NameFrame"));
  EXPECT_TRUE(Text("CapStatus").contains("cannot hold"));
  Type("ChangeNameBox", "Żabka");
  Press("ChangeNameOk");
  EXPECT_EQ(Text("VidNameLbl"), "(001) Żabka");
  Record();
  Press("ChangeNamebtn");
  Type("ChangeNameBox", "Skok");
  page->CapSavebtn_Click();
  EXPECT_EQ(naming.Shown(), "(001) Skok") << "what was typed counts without its button";
  Press("ChangeNamebtn");
  Type("ChangeNameBox", " ");
  page->CapSavebtn_Click();
  EXPECT_FALSE(Seen("NameFrame")) << "nothing was typed: the name stays";
  EXPECT_EQ(naming.Shown(), "(001) Skok");
}

TEST_F(CapturePageTest, ReturnInANameEndsTheNameAndSendsNothing) {
  Record();
  Press("ChangeNamebtn");
  Type("ChangeNameBox", "Obrót");
  for (const char* field : {"VidNametxt", "ChangeNameBox"}) QTest::keyClick(Find<QLineEdit>(field), Qt::Key_Return);
  EXPECT_EQ(naming.Shown(), "(001) Obrót");
  EXPECT_FALSE(Seen("NameFrame"));
  EXPECT_EQ(Text("CapStatus"), "Trim Excess from the FRONT of the video or Choose Save");
  QTest::keyClick(page.get(), Qt::Key_Return);
  EXPECT_NE(Text("CapStatus"), "Trim Excess from the FRONT of the video or Choose Save") << "to the page it means more";
}

TEST_F(CapturePageTest, FilesTakeThePlaceOfCameras) {
  setup->ChooseKind(SourceKind::ManualImport);
  EXPECT_FALSE(Seen("Videobox"));
  EXPECT_FALSE(Seen("OneCamTwoOpt0"));
  EXPECT_TRUE(Seen("List1"));
  setup->ChooseKind(SourceKind::Webcam);
  EXPECT_TRUE(Seen("Capturebtn"));
}

TEST_F(CapturePageTest, AMissingCameraIsToldWithItsTwoWays) {
  FindCamForm form(1, page.get());
  EXPECT_EQ(form.windowTitle(), "Cannot find Camera 2");
  EXPECT_TRUE(form.findChild<QLabel*>("FindCamText")->text().startsWith("Camera 2 could not be found."));
  form.findChild<QAbstractButton*>("FindCamRetry")->click();
  EXPECT_EQ(form.result(), QDialog::Accepted);
  form.findChild<QAbstractButton*>("FindCamClose")->click();
  EXPECT_EQ(form.result(), QDialog::Rejected);
}

TEST_F(CapturePageTest, EachMethodShowsWhatBelongsToItAndNothingElseWhileItRuns) {
  EXPECT_FALSE(Seen("CapMethodTitle"));
  Press("Capturebtn");
  EXPECT_FALSE(Find<QWidget>("CapOptionBtn2")->isEnabled()) << "what is recorded by hand is stopped by hand";
  Press("Capturebtn");
  Press("CapOptionBtn2");
  EXPECT_EQ(settings.CapMode, 2);
  EXPECT_TRUE(Seen("BlockTimeList2"));
  EXPECT_FALSE(Seen("Capturebtn"));
  EXPECT_FALSE(Seen("OneClickbtn1"));
  Press("OneClickbtn0");
  EXPECT_EQ(Button("OneClickbtn0"), "Stop Monitoring");
  EXPECT_EQ(Text("CapStatus"), "Monitoring Video... Click at end of swing.");
  EXPECT_TRUE(Seen("OneClickbtn1"));
  for (const char* name : {"CapOptionBtn4", "InstructorList", "NameModeList", "BlockTimeList2", "RemoteKey0"})
    EXPECT_FALSE(Find<QWidget>(name)->isEnabled()) << name;
  // The mouse on the picture, the space bar, and of the remote's keys those that are switched on.
  QTest::mousePress(Find<QWidget>("ezVidCap1"), Qt::LeftButton);
  QTest::mouseDClick(Find<QWidget>("ezVidCap1"), Qt::LeftButton);
  EXPECT_EQ(graph->button.fired, 1) << "a double click means one moment";
  QTest::qWait(QApplication::doubleClickInterval() + 20);
  QTest::mousePress(Find<QWidget>("OneClickbtn1"), Qt::LeftButton);
  QTest::mouseRelease(Find<QWidget>("OneClickbtn1"), Qt::LeftButton);
  EXPECT_EQ(graph->button.fired, 2);
  page->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(page.get()));
  Find<QWidget>("OneClickbtn1")->setFocus();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_PageDown, Qt::Key_B, Qt::Key_F5})
    QTest::keyClick(page->focusWidget(), key);
  EXPECT_EQ(graph->button.fired, 5);
  EXPECT_EQ(Text("OneClickCountLbl"), "0 Videos Captured");
  EXPECT_TRUE(page->Leave());
  page->Open();
  EXPECT_EQ(Button("OneClickbtn0"), "Start to Monitor") << "leaving has stopped it";

  Press("RemoteKey1");
  EXPECT_EQ(settings.RemoteKeys, "PageDown");
  Press("CapOptionBtn4");
  EXPECT_TRUE(Seen("BlockTimeList0"));
  EXPECT_EQ(Button("AutoCapturebtn"), "Start Sound Capture");
  EXPECT_EQ(Text("CapMicrophone"), "No microphone is connected.");
  Press("AutoCapturebtn");
  EXPECT_EQ(Button("AutoCapturebtn"), "Start Sound Capture");
  EXPECT_TRUE(Text("CapStatus").startsWith("No microphone is connected."));
}

TEST_F(CapturePageTest, TheCountdownStandsOverTheStage) {
  settings.BeepPausetime = 2;
  Press("CapOptionBtn3");
  Find<QSlider>("BeepArray2")->setValue(1);
  EXPECT_EQ(settings.BeepCycles, 1);
  Press("BeepCaptureStart");
  library.host.Advance(1000);
  EXPECT_TRUE(Seen("CountPnl"));
  EXPECT_EQ(Text("CapStatus"), "Getting Ready to Capture Video #1 of 1 in 2 seconds");
  EXPECT_FALSE(Find<QSlider>("BeepArray0")->isEnabled());
  Press("BeepCaptureStart");
  EXPECT_FALSE(Seen("CountPnl"));
  EXPECT_EQ(Button("BeepCaptureStart"), "Start Beep Capture");
  EXPECT_TRUE(Find<QSlider>("BeepArray0")->isEnabled());
}

TEST_F(CapturePageTest, TheSetupSavesTheCameraThatIsShown) {
  CaptureSection section(library.host, settings, *setup, naming);
  section.show();
  section.CamConfig_Camera_Click(3);
  EXPECT_EQ(settings.Camera[0], "Left");
  EXPECT_EQ(section.findChild<QLabel*>("CameraStatus1")->text(), "Default Camera 1");
  section.DVorAnOpt_Click(8);
  library.host.folders = {library.Folder("inbox")};
  section.CamConfig_Camera_Click(2);
  EXPECT_EQ(settings.AutoImportFolder, library.Path("inbox") + "/");
  EXPECT_EQ(section.findChild<QAbstractButton*>("CamConfig_Camera2")->text(), "Set Automatic Import Folder");
}

}  // namespace
}  // namespace kinalyx
