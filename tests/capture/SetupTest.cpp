#include "capture/CaptureSetup.h"

#include "Fakes.h"
#include "library/TempLibrary.h"

namespace kinalyx::test {
namespace {

class SetupTest : public testing::Test, public ICaptureSetupEvents {
 protected:
  SetupTest() { settings.LoadCaptureSettings(); }
  void CaptureChoiceChanged() override { ++builds; }
  void CaptureDevicesChanged() override { ++lists; }
  void Start() {
    setup = std::make_unique<CaptureSetup>(library.settings, devices);
    setup->SetEvents(this);
    builds = lists = 0;
  }

  TempLibrary library;
  Settings& settings = library.settings;
  FakeDevices devices;
  std::unique_ptr<CaptureSetup> setup;
  int builds = 0;
  int lists = 0;
};

TEST_F(SetupTest, KindsWriteThreeKeysTogether) {
  Start();
  const struct {
    SourceKind kind;
    bool dv, import;
  } kRows[] = {{SourceKind::Firewire, true, false},
               {SourceKind::Webcam, false, false},
               {SourceKind::HighDefImport, false, true},
               {SourceKind::AutoImport, false, true},
               {SourceKind::ManualImport, false, true}};
  for (const auto& [kind, dv, import] : kRows) {
    setup->ChooseKind(kind);
    Settings again(library.host, settings.DataPath, settings.AppPath);
    again.LoadSettings();
    EXPECT_EQ(again.VideoInSource, static_cast<int>(kind));
    EXPECT_EQ(again.DVMode, dv);
    EXPECT_EQ(again.ImportCaptureMode, import);
  }
}

TEST_F(SetupTest, ChoicesOfAPageThatIsBeingFilledAreNoChoices) {
  devices.cameras = {MakeCamera("Cam")};
  Start();
  settings.Loading = true;
  setup->ChooseCameraCount(false);
  setup->ChooseSize(0, "640 x 480");
  EXPECT_TRUE(settings.OneCam);
  EXPECT_EQ(builds, 0);
  settings.Loading = false;
  setup->ChooseCameraCount(false);
  EXPECT_EQ(setup->Use(), CameraUse::Both);
  EXPECT_EQ(builds, 1);
}

TEST_F(SetupTest, ASizeIsKeptOnlyForTheSavedCamera) {
  devices.cameras = {MakeCamera("Left"), MakeCamera("Right")};
  Start();
  EXPECT_EQ(setup->Shown(0).name, "Left");
  EXPECT_EQ(setup->Shown(0).size, "1920 x 1080") << "the best that a usual machine can follow";
  EXPECT_EQ(setup->ShowCameraStatus(0).text, "No Camera 1 Saved");
  EXPECT_EQ(setup->ShowCameraStatus(1).text, "Not in use");
  setup->StoreCamera(0);
  EXPECT_EQ(setup->ShowCameraStatus(0).text, "Default Camera 1");
  EXPECT_TRUE(setup->ShowCameraStatus(0).present);
  setup->ChooseSize(0, "1280 x 720");
  EXPECT_EQ(settings.CameraSize[0], "1280 x 720");
  EXPECT_EQ(setup->Shown(0).format, "MJPG, 30 a second");
  setup->ChooseSource(0, "Right");
  EXPECT_EQ(setup->ShowCameraStatus(0).text, "Default Camera 1 not selected");
  const int before = builds;
  setup->ChooseSize(0, "640 x 480");
  EXPECT_EQ(settings.CameraSize[0], "1280 x 720");
  EXPECT_EQ(builds, before + 1) << "it is applied all the same";
  setup->ChooseSource(0, "Left");
  EXPECT_EQ(setup->Shown(0).size, "1280 x 720") << "as it was saved";
}

TEST_F(SetupTest, ASavedCameraThatIsGoneIsMissedAndTakenWhenItIsBack) {
  devices.known = false;
  settings.VideoInSource = static_cast<int>(SourceKind::Webcam);
  settings.Camera[0] = "Left";
  Start();
  EXPECT_FALSE(setup->MissingCamera()) << "nobody has looked yet";
  devices.known = true;
  devices.Plug(MakeCamera("Other"));
  EXPECT_EQ(setup->MissingCamera(), 0);
  EXPECT_EQ(setup->Shown(0).name, "Other");
  devices.Plug(MakeCamera("Left"));
  EXPECT_FALSE(setup->MissingCamera());
  EXPECT_EQ(setup->Shown(0).name, "Other") << "what works is not taken away";
  devices.Pull("Other");
  EXPECT_EQ(setup->Shown(0).name, "Left");
  devices.Pull("Left");
  EXPECT_EQ(setup->Shown(0).name, "Left") << "its place waits for it";
  settings.VideoInSource = static_cast<int>(SourceKind::ManualImport);
  EXPECT_FALSE(setup->MissingCamera()) << "files need none";
}

TEST_F(SetupTest, TheDrawnCameraTakesNoPlaceOfARealOne) {
  settings.VideoInSource = static_cast<int>(SourceKind::Webcam);
  Device drawn = MakeCamera("Test Camera");
  drawn.origin = Device::Origin::Test;
  devices.Plug(drawn);
  Start();
  EXPECT_EQ(setup->Shown(0).name, "Test Camera") << "at the first start it shows how the page works";
  devices.Pull("Test Camera");
  devices.Plug(MakeCamera("Left"));
  EXPECT_EQ(setup->Shown(0).name, "Left");
  devices.Pull("Left");
  devices.Plug(drawn);
  EXPECT_EQ(setup->Shown(0).name, "Left") << "it is waited for";
  EXPECT_FALSE(setup->ShownDevice(0));
  setup->ChooseSource(0, "Test Camera");
  EXPECT_EQ(setup->Shown(0).name, "Test Camera");
}

TEST_F(SetupTest, TheLineOfTheMicrophoneIsKeptByItsIndex) {
  Device card;
  card.name = "Card";
  card.kind = Device::Kind::Microphone;
  card.inputs = {"Front Microphone", "Line In"};
  card.line = "Front Microphone";
  devices.microphones = {card};
  Start();
  EXPECT_EQ(setup->MicrophoneLine(), "Front Microphone") << "nothing was chosen yet";
  setup->ChooseMicrophoneLine(1);
  EXPECT_EQ(setup->MicrophoneLine(), "Line In");
  EXPECT_EQ(settings.SoundCardInput, "1");
  setup.reset();
  Device headset;
  headset.name = "Headset";
  headset.kind = Device::Kind::Microphone;
  devices.microphones = {card, headset};
  Start();
  EXPECT_EQ(setup->MicrophoneLine(), "Line In") << "the card has begun anew with the other one";
  setup->ChooseMicrophone("Headset");
  EXPECT_TRUE(setup->MicrophoneLines().empty());
  setup->ChooseMicrophoneLine(0);
  EXPECT_EQ(settings.SoundCardInput, "");
}

TEST_F(SetupTest, ImportFoldersEndWithASlashAndGoToTheirKind) {
  Start();
  setup->ChooseKind(SourceKind::HighDefImport);
  setup->SetImportFolder("/media/card/DCIM");
  setup->ChooseKind(SourceKind::AutoImport);
  setup->SetImportFolder("/home/inbox/");
  EXPECT_EQ(settings.ImportFolder, "/media/card/DCIM/");
  EXPECT_EQ(settings.AutoImportFolder, "/home/inbox/");
}

TEST_F(SetupTest, NetworkCamerasAreKeptAndHandedOn) {
  Start();
  setup->SetNetworkCamera(1, "Telefon Łucji http://10.0.0.2:8080/video");
  EXPECT_EQ(devices.network, std::vector<std::string>{"Telefon Łucji http://10.0.0.2:8080/video"});
  setup->SetNetworkCamera(1, "");
  EXPECT_TRUE(devices.network.empty());
}

TEST_F(SetupTest, TextsOfSizesAndFormatsAreReadBack) {
  EXPECT_EQ(SizeOf("1280 x 720")->height, 720);
  for (const char* bad : {"", "-1", "x", "12 x", "a x b", "0 x 5"}) EXPECT_FALSE(SizeOf(bad)) << bad;
  EXPECT_EQ(FormatCode("MJPG, 59.94 a second"), "MJPG");
  EXPECT_DOUBLE_EQ(FormatRate("MJPG, 59.94 a second"), 59.94);
  EXPECT_EQ(FormatRate("YUY2"), 0);
  EXPECT_EQ(SizesOf(MakeCamera("a")).front(), "3840 x 2160");
}

}  // namespace
}  // namespace kinalyx::test
