#include "SessionFixture.h"
#include "capture/BeepCapture.h"
#include "capture/MicrophoneMeter.h"
#include "capture/RemoteKeys.h"
#include "capture/TriggerTimes.h"
#include "capture/templates/CaptureTemplates.h"
#include "library/VideoNames.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

Device MakeMicrophone() {
  Device device;
  device.name = "Desk";
  device.kind = Device::Kind::Microphone;
  return device;
}

class HandsFreeTest : public SessionTest {
 protected:
  HandsFreeTest() {
    devices.microphones = {MakeMicrophone()};
    settings.TriggerTime = {"2", "1"};
    settings.OneClickTime = "3";
  }

  void Choose(CaptureMethod method) {
    setup->ChooseMethod(method);
    session->Rebuild();
  }
  IGraphEvents& Graph() { return session->GraphEvents(); }
  /// A camera's file of a shot, of real pictures.
  void Write(int camera, int shot, const std::string& fault = {}) {
    const std::string base = graph->sinks[camera == 0 ? "FileWriter" : "FileWriter 2"];
    WrittenBlock block{BlockPath(base, shot), shot, 1, {}};
    block.tally.pictures = 12;
    block.tally.fault = fault;
    std::filesystem::copy_file(MakeTestVideo(MjpegVideo(12)), block.path);
    graph->blocks[camera].writer->written.push_back(block);
  }
  void WriteEmpty(int camera, int shot) { graph->blocks[camera].writer->written.push_back({"none.avi", shot, 1, {}}); }
  void Settle() {
    for (int i = 0; i < 200 && session->Triggers().Keeping(); ++i) library.host.Advance(20);
  }
  std::vector<std::string> Videos() const { return ListVideos(folder); }
  int Count() { return session->Triggers().CapturedCount(); }
};

TEST_F(HandsFreeTest, SoundGoesFromWaitingOverTheImpactToTheVideoAndWaitsAgain) {
  Choose(CaptureMethod::Sound);
  EXPECT_EQ(graph->loaded, MVOneCamSSAN) << "nothing waits yet";
  settings.TriggerLevel = "70";
  session->PressMonitor();
  EXPECT_EQ(graph->loaded, MVOneCamAuto);
  EXPECT_EQ(session->Status(), "Microphone Active... Monitoring for Sound");
  EXPECT_EQ(graph->devices["Audio Trigger"], "Desk");
  EXPECT_EQ(LastName(graph->sinks["FileWriter"]), "temp1.avi");
  EXPECT_DOUBLE_EQ(graph->blocks[0].start, -2);
  EXPECT_DOUBLE_EQ(graph->blocks[0].end, 1);
  EXPECT_DOUBLE_EQ(graph->trigger.threshold, 0.7);
  EXPECT_DOUBLE_EQ(graph->trigger.gain, 1);
  graph->trigger.level = 0.3;
  library.host.Advance(60);
  EXPECT_DOUBLE_EQ(heard, 0.3);

  Graph().TriggerFired("Audio Trigger", 1, 1);
  EXPECT_EQ(flashes, 1);
  EXPECT_EQ(session->Status(), "Sound Level Reached... Finishing Video Capture");
  library.host.Advance(1001);
  EXPECT_EQ(session->Status(), "Processing Video...");
  Write(0, 1);
  Graph().BlockWritten("MV Block Recording");
  // The next impact is heard before the video of the first one is kept.
  Graph().TriggerFired("Audio Trigger", 2, 2);
  Settle();
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(session->Status(), "Sound Level Reached... Finishing Video Capture") << "of the second one";
  Write(0, 2);
  Graph().BlockWritten("MV Block Recording");
  Settle();
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(session->Status(), "Video Saved... Restarting...");
  library.host.Advance(2000);
  EXPECT_EQ(session->Status(), "Microphone Active... Monitoring for Sound");
  EXPECT_EQ(Videos(), (std::vector<std::string>{"(001) DL- 11-25-2026.avi", "(002) DL- 11-25-2026.avi"}));
  EXPECT_TRUE(FileExists(folder + "/(002) DL- 11-25-2026.ved"));
  EXPECT_EQ(LastName(session->LastSavedVideo()), "(002) DL- 11-25-2026.avi");

  session->PressMonitor();
  EXPECT_EQ(session->Status(), "Press \"Start Sound Capture\" to start monitoring for sound.");
  EXPECT_EQ(graph->loaded, MVOneCamSSAN);
  EXPECT_EQ(Videos().size(), 2U);
}

TEST_F(HandsFreeTest, TwoCamerasMakeTwoVideosOfOneNumberAndOneAloneKeepsItsName) {
  setup->ChooseCameraCount(false);
  Choose(CaptureMethod::OneClick);
  session->PressMonitor();
  EXPECT_EQ(graph->loaded, MVTwoCamClickAN);
  EXPECT_EQ(session->Status(), "Monitoring Video... Click at end of swing.");
  EXPECT_DOUBLE_EQ(graph->blocks[1].start, -3);
  EXPECT_DOUBLE_EQ(graph->blocks[1].end, 0.1);
  EXPECT_TRUE(session->Triggers().Fire());
  EXPECT_EQ(graph->button.fired, 1);
  Write(1, 1);
  Graph().BlockWritten("MV Block Recording 2");
  Settle();
  EXPECT_TRUE(Videos().empty()) << "the other camera is still at it";
  Write(0, 1);
  Graph().BlockWritten("MV Block Recording");
  Settle();
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(Videos(), (std::vector<std::string>{"(001) DL- 11-25-2026.avi", "(001) FO- 11-25-2026.avi"}));
  WriteEmpty(0, 2);
  Write(1, 2);
  Graph().BlockWritten("MV Block Recording");
  Settle();
  EXPECT_EQ(Videos().back(), "(002) FO- 11-25-2026.avi") << "a camera that gave nothing leaves the other one alone";
}

TEST_F(HandsFreeTest, StoppedInTheMiddleItKeepsWhatThereIs) {
  Choose(CaptureMethod::OneClick);
  session->PressMonitor();
  Graph().TriggerFired("MV Switch", 1, 1);
  Write(0, 1);  // closed by the stop of the graph; nobody is told of it
  EXPECT_TRUE(session->Leave()) << "the page may be left";
  EXPECT_FALSE(session->Triggers().Armed());
  Settle();
  EXPECT_EQ(Videos().size(), 1U);
  EXPECT_FALSE(session->Triggers().Fire());
  EXPECT_FALSE(graph->running);
}

TEST_F(HandsFreeTest, WhatCannotBeKeptIsOfferedLater) {
  Choose(CaptureMethod::OneClick);
  session->PressMonitor();
  WriteEmpty(0, 1);
  Graph().BlockWritten("MV Block Recording");
  EXPECT_EQ(session->Status(), "Last Video WAS NOT SAVED: The camera gave no picture.");
  Write(0, 2);
  std::filesystem::remove_all(folder);
  std::ofstream(folder) << "in the way";
  Graph().BlockWritten("MV Block Recording");
  Settle();
  EXPECT_TRUE(session->Status().starts_with("Last Video WAS NOT SAVED: ")) << session->Status();
  EXPECT_TRUE(FileExists(library.Data("capture") + "/unfinished 1.avi"));
  EXPECT_EQ(Count(), 0);
  EXPECT_TRUE(session->Triggers().Armed()) << "the next one may go well";
}

TEST_F(HandsFreeTest, ItNeedsANameAndAMicrophoneAndComesBackWhenTheyDo) {
  Choose(CaptureMethod::Sound);
  naming.ChooseMode(NameMode::Manual);
  session->PressMonitor();
  EXPECT_EQ(library.host.messages.back(), "You must name the video before saving!");
  EXPECT_EQ(namesWanted, 1);
  EXPECT_FALSE(session->Triggers().Armed());
  naming.SetText("Vault");
  devices.microphones.clear();
  session->PressMonitor();
  EXPECT_FALSE(session->Triggers().Armed());
  EXPECT_EQ(session->Status(), "No microphone is connected. Plug one in, and try again.");
  EXPECT_TRUE(graph->running) << "the cameras are seen";

  devices.microphones = {MakeMicrophone()};
  session->PressMonitor();
  Graph().SourceFailed("Audio Trigger", "The microphone gives no sound.");
  EXPECT_EQ(session->Status(), "The microphone gives no sound.");
  library.host.Advance(3100);
  EXPECT_EQ(session->Status(), "Microphone Active... Monitoring for Sound") << "it is asked again";
  for (int shot = 1; shot <= 2; ++shot) {
    Write(0, shot);
    Graph().BlockWritten("MV Block Recording");
    Settle();
  }
  EXPECT_EQ(Videos(), (std::vector<std::string>{"(001) Vault.avi", "(002) Vault.avi"})) << "a series has one name";
}

TEST_F(HandsFreeTest, VideosGoToTheStudentForWhomTheyWereTakenAndALostOneDragsNobody) {
  Choose(CaptureMethod::OneClick);
  session->PressMonitor();
  const auto writer = graph->blocks[0].writer;
  Graph().TriggerFired("MV Switch", 1, 1);
  Write(0, 2);
  const WrittenBlock late = writer->written.front();
  writer->written.clear();
  writer->writing = true;
  WriteEmpty(0, 1);
  Graph().BlockWritten("MV Block Recording");
  EXPECT_TRUE(session->Status().starts_with("Last Video WAS NOT SAVED")) << session->Status();
  EXPECT_TRUE(FileExists(late.path)) << "it is still being written";
  session->PressMonitor();
  naming.SetFolder(library.Folder("Anna/Somebody else"));
  // A slow disk has come to its end now.
  writer->written.push_back(late);
  writer->writing = false;
  library.host.Advance(100);
  Settle();
  EXPECT_EQ(Videos().size(), 1U);
  EXPECT_EQ(session->Status(), "Press \"Start to Monitor\" to start monitoring.") << "nothing is restarted";
}

TEST_F(HandsFreeTest, WhatCanBePluggedInMeanwhileChangesNothing) {
  Choose(CaptureMethod::OneClick);
  session->PressMonitor();
  graph->sinks["mark"] = "this run";
  devices.Plug(MakeCamera("Third"));
  session->Rebuild();
  EXPECT_TRUE(graph->sinks.contains("mark"));
  Write(0, 1, "The disk is full.");
  Graph().BlockWritten("MV Block Recording");
  Settle();
  EXPECT_EQ(session->Status(), "The disk is full. What was recorded is kept.");
}

TEST_F(HandsFreeTest, TheOtherCameraIsNotDisturbedWhileOneIsAway) {
  setup->ChooseCameraCount(false);
  Choose(CaptureMethod::OneClick);
  session->PressMonitor();
  devices.Pull("Right");
  session->Rebuild();
  Graph().SourceFailed("VideoSource 2", "Right is not connected.");
  graph->sinks["mark"] = "this run";
  library.host.Advance(20'000);
  EXPECT_TRUE(graph->sinks.contains("mark")) << "what it remembers would be lost";
  devices.Plug(MakeCamera("Right"));
  library.host.Advance(4'000);
  EXPECT_FALSE(graph->sinks.contains("mark"));
  EXPECT_TRUE(session->Triggers().Armed());
}

TEST_F(HandsFreeTest, TheMeterHearsBeforeAnythingWaits) {
  FakeGraph* own = nullptr;
  IGraphEvents* told = nullptr;
  MicrophoneMeter meter(library.host, *this, [&](IGraphEvents& events) {
    auto made = std::make_unique<FakeGraph>();
    own = made.get();
    told = &events;
    return made;
  });
  meter.Start("Desk", 0.5, 2);
  EXPECT_EQ(own->loaded, MVSetupGraph);
  EXPECT_DOUBLE_EQ(own->trigger.gain, 2);
  own->trigger.level = 0.4;
  library.host.Advance(60);
  EXPECT_DOUBLE_EQ(heard, 0.4);
  told->TriggerFired("Audio Trigger", 1, 1);
  EXPECT_EQ(flashes, 1);
  meter.Stop();
  EXPECT_DOUBLE_EQ(heard, 0);
  EXPECT_FALSE(own->running);
}

struct HeardSounds final : IShortSounds {
  std::vector<std::string> names;
  void Play(const std::string& path) override { names.push_back(LastName(path)); }
};

class BeepTest : public HandsFreeTest, public IBeepEvents {
 protected:
  BeepTest() {
    settings.BeepPausetime = 4;
    settings.BeepCapTime = 2;
    settings.BeepCycles = 2;
    Choose(CaptureMethod::Beep);
  }
  void BeepChanged() override { counts.push_back(beep.Count()); }
  /// The camera's part of one capture.
  void GiveVideo() { std::filesystem::copy_file(MakeTestVideo(MjpegVideo(12)), graph->sinks["FileWriter"]); }

  HeardSounds sounds;
  std::vector<std::string> counts;
  BeepCapture beep{{.host = library.host,
                    .settings = settings,
                    .naming = naming,
                    .cameras = *session,
                    .sounds = sounds,
                    .events = *this,
                    .soundFolder = "/sounds"}};
};

TEST_F(BeepTest, CountsDownRecordsAndKeepsUntilTheCycleIsComplete) {
  beep.Press();
  EXPECT_EQ(session->Status(), "Preparing to Capture");
  EXPECT_EQ(beep.Caption(), "Stop Beep Capture");
  library.host.Advance(1000);
  EXPECT_EQ(session->Status(), "Getting Ready to Capture Video #1 of 2 in 4 seconds");
  EXPECT_EQ(beep.Count(), "4");
  library.host.Advance(3000);
  EXPECT_EQ(sounds.names, (std::vector<std::string>{"typing1.wav", "typing1.wav", "countdown.wav", "typing1.wav",
                                                    "countdown.wav", "typing1.wav"}));
  library.host.Advance(1000);
  EXPECT_EQ(sounds.names.back(), "startbeep.wav");
  EXPECT_EQ(beep.Count(), "0");
  EXPECT_EQ(session->Status(), "Capturing Video");
  GiveVideo();
  library.host.Advance(2000);
  EXPECT_EQ(sounds.names.back(), "endbeep.wav");
  EXPECT_EQ(beep.Count(), "");
  library.host.Advance(500);
  EXPECT_EQ(Videos().size(), 1U);
  library.host.Advance(5000);
  EXPECT_EQ(session->Status(), "Capturing Video") << "the second one";
  GiveVideo();
  library.host.Advance(3000);
  EXPECT_EQ(session->Status(), "Beep Capture Complete. 2 videos succesfully created.");
  EXPECT_FALSE(beep.Running());
  EXPECT_EQ(session->Phase(), CapturePhase::LivePreview);
  EXPECT_EQ(Videos().size(), 2U);

  settings.BeepCycles = 1;
  beep.Press();
  library.host.Advance(5500);
  GiveVideo();
  library.host.Advance(3000);
  EXPECT_EQ(session->Status(), "Beep Capture Complete. 1 video succesfully created.");
}

TEST_F(BeepTest, StoppedItInterruptsTheCountAndFinishesTheVideoInHand) {
  beep.Press();
  library.host.Advance(2000);
  beep.Press();
  EXPECT_EQ(session->Status(), "Capture Interrupted, Ready for Capture.");
  EXPECT_EQ(counts.back(), "");
  library.host.Advance(10'000);
  EXPECT_EQ(session->Phase(), CapturePhase::LivePreview) << "nothing goes on behind";

  beep.Press();
  library.host.Advance(5500);
  GiveVideo();
  beep.Press();
  library.host.Advance(1000);
  EXPECT_EQ(session->Status(), "Beep Capture Stopped. Ready to Record.");
  EXPECT_EQ(Videos().size(), 1U);

  beep.Press();
  library.host.Advance(5500);
  GiveVideo();
  beep.Stop();
  EXPECT_TRUE(session->Leave()) << "the page is left while a video is kept";
  library.host.Advance(1000);
  EXPECT_EQ(Videos().size(), 2U);
  EXPECT_FALSE(graph->running);
}

TEST_F(BeepTest, ACameraThatGivesNothingEndsTheCycleAndANameMustBeThere) {
  naming.ChooseMode(NameMode::Manual);
  beep.Press();
  EXPECT_FALSE(beep.Running());
  EXPECT_EQ(namesWanted, 1);
  naming.SetText("Squat");
  beep.Press();
  library.host.Advance(7500);
  EXPECT_FALSE(beep.Running());
  EXPECT_EQ(session->Status(), "The camera gave no picture. Nothing was recorded.");
  for (const bool disk : {false, true}) {
    beep.Press();
    library.host.Advance(5500);
    GiveVideo();
    if (disk) Graph().SinkFailed("FileWriter", "The disk is full.");
    else Graph().SourceFailed("VideoSource", "The camera gives no picture.");
    library.host.Advance(1000);
    EXPECT_EQ(Videos().size(), disk ? 2U : 1U) << "what came is kept";
    beep.Press();
    EXPECT_FALSE(beep.Running());
  }
}

TEST(TriggerTimes, ReadWhatIsWrittenAndFallBackOnTheFirstRun) {
  struct Case {
    const char* text;
    double seconds;
  };
  for (const Case& one : {Case{"1.5", 1.5},
                          {"15", 15},
                          {"0", 0},
                          {"600", 60},
                          {"-3", 7},
                          {"", 7},
                          {"1,5", 7},
                          {"/home/config.ini", 7},
                          {"nan", 7},
                          {"inf", 7}})
    EXPECT_DOUBLE_EQ(SecondsOf(one.text, 7), one.seconds) << one.text;
  EXPECT_EQ(PercentOf("130"), 100);
  EXPECT_EQ(PercentOf("loud"), 50);
}

TEST(RemoteKeys, AreReadAndWritten) {
  EXPECT_EQ(RemoteKeysOf("PageDown, F5"), (std::vector<bool>{true, false, true, false}));
  EXPECT_EQ(RemoteKeysOf("/x/config10.ini"), (std::vector<bool>{true, true, false, false})) << "an older file";
  for (const std::vector<bool>& on : {std::vector<bool>{false, false, false, true}, {false, false, false, false}})
    EXPECT_EQ(RemoteKeysOf(RemoteKeysText(on)), on);
}

}  // namespace
}  // namespace kinalyx::test
