#include "SessionFixture.h"
#include "capture/templates/CaptureTemplates.h"
#include "library/Sidecar.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"

namespace kinalyx::test {
namespace {

TEST_F(SessionTest, BuildsTheGraphOfItsCameras) {
  EXPECT_EQ(graph->loaded, MVOneCamSSAN);
  EXPECT_EQ(graph->devices["VideoSource"], "Left");
  EXPECT_EQ(graph->formats["VideoSource"], "1920x1080 MJPG");
  EXPECT_DOUBLE_EQ(graph->times["VideoSource"], 1.0 / 60);
  EXPECT_TRUE(graph->running);
  EXPECT_FALSE(graph->gates[0].armed) << "it is only looked at";
  setup->ChooseCamera(1);
  session->Rebuild();
  EXPECT_EQ(graph->devices["VideoSource"], "Right") << "the second camera alone stands under the first label";
  EXPECT_EQ(naming.Shown(), "(001) FO- 11-25-2026");
  setup->ChooseCameraCount(false);
  session->Rebuild();
  EXPECT_EQ(graph->loaded, MVTwoCamSS);
  EXPECT_EQ(graph->devices["VideoSource"], "Left");
  EXPECT_EQ(graph->devices["VideoSource 2"], "Right");
  setup->ChooseKind(SourceKind::ManualImport);
  session->Rebuild();
  EXPECT_EQ(graph->loaded, "") << "files need no camera";
}

TEST_F(SessionTest, GoesFromLiveOverWritingAndReviewBackToLive) {
  EXPECT_EQ(CaptionOf(session->Phase()), "Start Capture");
  session->PressCapture();
  EXPECT_EQ(CaptionOf(session->Phase()), "Stop Capture");
  EXPECT_EQ(session->Status(), "Capturing Video. Press button again to STOP capture");
  EXPECT_EQ(LastName(graph->sinks["FileWriter"]), "capture.avi");
  EXPECT_TRUE(graph->gates[0].armed);
  const std::string path = graph->sinks["FileWriter"];
  std::ofstream(path) << "x";
  session->Rebuild();
  EXPECT_TRUE(graph->running) << "a recording is not disturbed";
  session->PressCapture();
  EXPECT_EQ(CaptionOf(session->Phase()), "Back to Live Video");
  EXPECT_EQ(session->Status(), "Trim Excess from the FRONT of the video or Choose Save");
  EXPECT_EQ(players[0].path, path);
  players[0].frame = 12;
  session->TrimFront();
  EXPECT_EQ(session->Status(), "Trim Excess from the END of the video or Choose Save");
  players[0].frame = 80;
  session->TrimEnd();
  EXPECT_EQ(session->Status(), "Click on \"Save Capture\" to save");
  library.host.Advance(1000);
  players[0].frame = 90;
  session->TrimFront();
  EXPECT_EQ(session->TrimEndFrame(), 0) << "an end that lies before the front is none";
  session->PressCapture();
  EXPECT_EQ(session->Phase(), CapturePhase::LivePreview);
  EXPECT_EQ(session->TrimStartFrame(), 0);
  EXPECT_TRUE(graph->running);
  session->BringBack();
  EXPECT_EQ(session->Phase(), CapturePhase::Reviewing);
  EXPECT_EQ(players[0].path, path);
  session->PressCapture();
  EXPECT_TRUE(session->Leave());
  EXPECT_FALSE(FileExists(path)) << "nobody wanted it back";
}

TEST_F(SessionTest, ADoubleClickOnStopKeepsTheRecording) {
  session->PressCapture();
  std::ofstream(graph->sinks["FileWriter"]) << "x";
  session->PressCapture();
  library.host.Advance(200);
  session->PressCapture();
  EXPECT_EQ(session->Phase(), CapturePhase::Reviewing);
  library.host.Advance(1000);
  session->PressCapture();
  EXPECT_EQ(session->Phase(), CapturePhase::LivePreview);
}

TEST_F(SessionTest, SavesUnderTheNextNameAndSendsBothCamerasOn) {
  setup->ChooseCameraCount(false);
  session->Rebuild();
  Record();
  session->SendToAnalysis();
  EXPECT_EQ(session->Status(), "Saving Video.... Please Wait.");
  RunJobs();
  ASSERT_EQ(opened.size(), 2u);
  EXPECT_EQ(VideoName(opened[0]), "(001) DL- 11-25-2026");
  EXPECT_EQ(VideoName(opened[1]), "(001) FO- 11-25-2026");
  EXPECT_TRUE(FileExists(opened[1]));
  EXPECT_TRUE(FileExists(SidecarPath(opened[0])));
  EXPECT_EQ(naming.Shown(), "(002) DL- 11-25-2026");
  EXPECT_EQ(session->Phase(), CapturePhase::LivePreview);
  library.host.Advance(10'000);
  EXPECT_EQ(session->Status(), "Ready to Record Video");
}

TEST_F(SessionTest, RefusesToSaveWithoutAName) {
  naming.ChooseMode(NameMode::Manual);
  Record();
  session->Save();
  EXPECT_EQ(library.host.messages.back(), "You must name the video before saving!");
  EXPECT_EQ(namesWanted, 1);
  ASSERT_TRUE(naming.SetText("schody"));
  EXPECT_EQ(session->Phase(), CapturePhase::Reviewing);
}

TEST_F(SessionTest, AFolderThatIsGoneKeepsTheRecordingUnderReview) {
  Record();
  std::filesystem::remove_all(folder);
  std::ofstream(folder) << "a file in its place";
  session->Save();
  RunJobs();
  EXPECT_EQ(session->Status(), "Last Video WAS NOT SAVED");
  EXPECT_EQ(session->Phase(), CapturePhase::Reviewing);
  EXPECT_TRUE(FileExists(players[0].path));
}

TEST_F(SessionTest, WhatACameraGaveBeforeItWentIsReviewed) {
  session->PressCapture();
  std::ofstream(graph->sinks["FileWriter"]) << "x";
  session->GraphEvents().SourceFailed("VideoSource", "The camera has gone.");
  EXPECT_EQ(session->Phase(), CapturePhase::Reviewing);
  EXPECT_NE(session->Status().find("The camera has gone."), std::string::npos);
  library.host.Advance(1000);
  session->PressCapture();
  EXPECT_EQ(session->Phase(), CapturePhase::LivePreview);
}

TEST_F(SessionTest, ACamcorderIsRunAndStopped) {
  using Commands = std::vector<std::vector<std::string>>;
  EXPECT_EQ(library.host.started, Commands{}) << "a webcam has no tape";
  setup->ChooseKind(SourceKind::Firewire);
  session->Rebuild();
  EXPECT_EQ(graph->loaded, MVOneCamSS);
  EXPECT_EQ(library.host.started, (Commands{{"dvcont", "play"}}));
  Record();
  EXPECT_EQ(library.host.started, (Commands{{"dvcont", "play"}, {"dvcont", "stop"}}));
  session->Save();
  RunJobs();
  EXPECT_TRUE(FileExists(naming.Folder() + "/(001) DL- 11-25-2026.avi"));
  EXPECT_FALSE(FileExists(naming.Folder() + "/(001) DL- 11-25-2026.ved")) << "what tape tells, it tells itself";
}

TEST_F(SessionTest, LeavingAsksBeforeARecordingIsLost) {
  Record();
  library.host.answers = {false};
  EXPECT_FALSE(session->Leave());
  EXPECT_EQ(session->Phase(), CapturePhase::Reviewing);
  library.host.answers = {true};
  EXPECT_TRUE(session->Leave());
  EXPECT_FALSE(graph->running);
}

}  // namespace
}  // namespace kinalyx::test
