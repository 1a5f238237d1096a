#include "distribution/lessons/LessonSession.h"

#include "LessonFakes.h"
#include "capture/templates/CaptureTemplates.h"
#include "distribution/lessons/LessonSaver.h"
#include "library/TempLibrary.h"
#include "platform/graph/ImpactDetector.h"
#include "platform/media/VideoInfo.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

class LessonSessionTest : public testing::Test, public ILessonView {
 protected:
  LessonSessionTest() {
    library.settings.LoadCaptureSettings();
    Device microphone;
    microphone.name = "Headset";
    microphone.kind = Device::Kind::Microphone;
    devices.microphones = {microphone};
    setup = std::make_unique<CaptureSetup>(library.settings, devices);
    Begin();
  }

  /// The program is started.
  void Begin() {
    session.emplace(LessonSession::Parts{.host = host,
                                         .settings = library.settings,
                                         .setup = *setup,
                                         .screens = screens,
                                         .remembered = remembered,
                                         .view = *this,
                                         .jobs = jobs},
                    library.Data("capture"));
    auto made = std::make_unique<LessonGraph>();
    graph = made.get();
    session->SetGraph(std::move(made));
  }

  void LessonChanged() override {}
  void ShowLevel(double level) override { shownLevel = level; }
  ScreenPlace Screen() override { return {0, 0, 1280, 800}; }
  std::string CurrentVideo() const override { return video; }
  void ShowSaveForm() override { ++formsShown; }
  void LessonSaved(const std::string& path) override { saved = path; }

  /// From the press to the first picture.
  void Start() {
    session->PressRecord();
    graph->writer.tally.pictures = 1;
    host.Advance(100);
  }
  void RecordSeconds(int seconds) {
    Start();
    graph->writer.tally.pictures = seconds * LessonFile::kRate;
  }
  void RunJobs() {
    for (int i = 0; i < 200 && session->Phase() == LessonPhase::Saving; ++i) host.Advance(20);
  }
  std::vector<RecordedLesson> Unfinished() {
    FindUnfinishedLessons find(library.Data("capture"));
    while (find.Step()) {
    }
    return find.Found();
  }

  TempLibrary library;
  TestHost& host = library.host;
  FakeDevices devices;
  FakeScreens screens;
  std::unique_ptr<CaptureSetup> setup;
  LastStudentInfo remembered{"Anna", "Łucja", {}};
  std::string folder = library.Folder("Anna/Łucja");
  JobRunner jobs{host, JobRunner::On::HostTimer};
  std::optional<LessonSession> session;
  LessonGraph* graph = nullptr;
  std::string video;
  std::string saved;
  double shownLevel = -1;
  int formsShown = 0;
};

TEST_F(LessonSessionTest, ALessonIsRecordedPausedAndKeptWithTheStudent) {
  session->Toggle();
  EXPECT_EQ(session->Status(), "Ready to Record Lesson");
  EXPECT_EQ(CaptionOf(session->Phase()), "Start Recording");
  EXPECT_EQ(session->TimeLeft(), "10:00");
  EXPECT_EQ(session->Student(), "Łucja");
  EXPECT_EQ(graph->devices["Audio Trigger"], "Headset") << "heard before it begins";
  host.Advance(100);
  EXPECT_DOUBLE_EQ(shownLevel, ImpactDetector::AmplitudeOf(0.25));

  session->PressRecord();
  EXPECT_EQ(session->Status(), "Preparing to Record....");
  EXPECT_EQ(graph->loaded, MVScreenRecorder);
  EXPECT_EQ(graph->devices["VideoSource"], "screen");
  EXPECT_EQ(graph->devices["AudioSource"], "Headset");
  EXPECT_EQ(session->TimeLeft(), "10:00") << "until the first picture";
  graph->writer.tally.pictures = 1;
  host.Advance(100);
  EXPECT_EQ(session->Status(), "Recording....");
  EXPECT_EQ(TitleOf(session->Phase()), "Recording Sound and Video");
  host.Advance(3000);
  EXPECT_EQ(session->TimeLeft(), "9:57");

  session->PressPause();
  EXPECT_TRUE(graph->writer.paused);
  host.Advance(60'000);
  EXPECT_EQ(session->TimeLeft(), "9:57");
  session->PressPause();
  EXPECT_FALSE(graph->writer.paused);
  host.Advance(1000);
  EXPECT_EQ(session->TimeLeft(), "9:56");

  graph->writer.tally.pictures = 60;
  session->PressRecord();
  EXPECT_EQ(CaptionOf(session->Phase()), "Finished Recording");
  EXPECT_EQ(session->Status(), "Click Save Video to continue..");
  EXPECT_EQ(formsShown, 1);
  EXPECT_EQ(session->Length(), 4);

  library.File("Anna/Łucja/Lessons/Grip.avi");
  EXPECT_EQ(session->Save("Grip?"), "Invalid Character in name. Please try again.");
  EXPECT_EQ(session->Save("grip"), "Lesson Name already exists. Please choose a different name.");
  EXPECT_NE(session->Save("  "), "");
  EXPECT_EQ(session->Save(" Grip 2 "), "");
  RunJobs();
  EXPECT_EQ(saved, folder + "/Lessons/Grip 2.avi");
  EXPECT_EQ(ReadVideoInfo(saved)->frameCount, 60);
  EXPECT_FALSE(session->Shown()) << "the tool is released";
  EXPECT_TRUE(Unfinished().empty());
}

TEST_F(LessonSessionTest, NothingBeginsWithoutAStudentAndTheEndComesByItself) {
  remembered = {};
  video = library.File("somewhere.avi");
  session->Toggle();
  session->PressRecord();
  EXPECT_EQ(host.messages, std::vector<std::string>{"You must select a student before beginning to Record"});
  EXPECT_EQ(session->Phase(), LessonPhase::Ready);
  EXPECT_NE(graph->loaded, MVScreenRecorder) << "no graph before the choice";
  session->Toggle();

  video = library.File("Anna/Łucja/swing.avi");
  session->Toggle();
  EXPECT_EQ(session->Student(), "Łucja") << "whose video is being studied";
  EXPECT_EQ(session->TimeLeft(), "10:00");
  session->ChooseKind(LessonKind::Mp4);
  RecordSeconds(600);
  EXPECT_EQ(graph->loaded, MVScreenRecorderMp4);
  host.Advance(599'000);
  EXPECT_EQ(session->TimeLeft(), ":1");
  EXPECT_EQ(session->Phase(), LessonPhase::Recording);
  host.Advance(2000);
  EXPECT_EQ(session->Phase(), LessonPhase::Finished);
  session.reset();
  Begin();
  session->Toggle();
  EXPECT_EQ(session->Kind(), LessonKind::Mp4) << "remembered";
}

TEST_F(LessonSessionTest, WhatIsNotKeptIsAskedAboutAndWhatWasLeftIsFound) {
  session->Toggle();
  RecordSeconds(20);
  host.Advance(20'000);
  session->PressCancel();
  EXPECT_EQ(host.questions.size(), 1u);
  EXPECT_EQ(session->Phase(), LessonPhase::Recording) << "the answer was no";
  EXPECT_TRUE(Unfinished().empty()) << "nobody takes what is being recorded";

  session.reset();  // the program ends
  const auto left = Unfinished();
  ASSERT_EQ(left.size(), 1u);
  EXPECT_EQ(left[0].student, "Łucja");
  EXPECT_EQ(left[0].facts.seconds, 20);

  Begin();
  remembered = {"Other", "Somebody", {}};
  RecordedLesson stale = left[0];
  stale.written -= 60;
  session->DropLeft(stale);
  EXPECT_TRUE(fs::exists(left[0].path)) << "another lesson has its name now";
  {
    const FileLock other(left[0].path, 0);
    session->TakeUp(left[0]);
    EXPECT_FALSE(session->Shown());
    EXPECT_EQ(host.messages.back(), "Another window is at work on this lesson.");
  }
  session->TakeUp(left[0]);
  EXPECT_TRUE(Unfinished().empty()) << "it is ours now";
  EXPECT_EQ(session->Student(), "Łucja");
  EXPECT_EQ(formsShown, 1);
  // A file where the folder should be: refused, and nothing is lost.
  library.File("Anna/Łucja/Lessons");
  EXPECT_EQ(session->Save("Swing"), "");
  RunJobs();
  EXPECT_EQ(session->Phase(), LessonPhase::Finished);
  EXPECT_TRUE(session->Status().starts_with("The lesson WAS NOT SAVED.")) << session->Status();
  EXPECT_TRUE(fs::exists(left[0].path));
  fs::remove(folder + "/Lessons");
  host.drivesHang = true;
  EXPECT_EQ(session->Save("Swing"), "The drive of the library does not answer.");
  host.DrivesAnswer();
  EXPECT_EQ(session->Save("Swing"), "");
  session->PressCancel();
  RunJobs();
  EXPECT_EQ(session->Status(), "Saving cancelled. Click Save Video to continue..");
  EXPECT_FALSE(fs::exists(folder + "/Lessons/Swing.avi"));
  EXPECT_EQ(session->Save("Swing"), "");
  RunJobs();
  EXPECT_TRUE(fs::exists(folder + "/Lessons/Swing.avi"));
  EXPECT_FALSE(fs::exists(left[0].path));

  session->Toggle();
  RecordSeconds(5);
  graph->diskHangs = true;
  session->PressRecord();
  EXPECT_FALSE(session->Shown()) << "nothing is kept of a file that is still being written";
  EXPECT_EQ(host.messages.back(), "The disk does not answer.");
  EXPECT_TRUE(Unfinished().empty()) << "nor by another window";
  graph->diskHangs = false;
  session.reset();
  EXPECT_EQ(Unfinished().size(), 1u);
  Begin();
  session->DropLeft(Unfinished()[0]);

  remembered = {"Anna", "Łucja", {}};
  session->Toggle();
  RecordSeconds(5);
  host.Advance(5000);
  host.answers = {true};
  session->PressCancel();
  EXPECT_FALSE(session->Shown());
  EXPECT_TRUE(Unfinished().empty());
}

TEST_F(LessonSessionTest, AMicrophoneThatGoesAndAScreenThatIsRefusedAreTold) {
  session->Toggle();
  Start();
  graph->writer.tally.pictures = 45;
  session->GraphEvents().SourceFailed("Audio Trigger", "beside the point");
  EXPECT_EQ(session->Phase(), LessonPhase::Recording);
  session->GraphEvents().SourceFailed("AudioSource", "The microphone is not there any more.");
  EXPECT_EQ(session->Phase(), LessonPhase::Finished);
  EXPECT_TRUE(session->Status().starts_with("The microphone is not there any more. What was recorded is kept."));
  host.answers = {true};
  session->PressCancel();

  devices.microphones.clear();
  session->Toggle();
  EXPECT_EQ(session->Microphone(), "");
  session->PressRecord();
  EXPECT_FALSE(graph->devices.contains("AudioSource"));
  EXPECT_EQ(session->Status(), "Preparing to Record.... without a voice");
  session->GraphEvents().SourceFailed("VideoSource", "The camera gives no picture.");
  EXPECT_EQ(session->Status(), "The screen gives no picture.");
  EXPECT_EQ(session->Phase(), LessonPhase::Ready);

  session->PressRecord();
  session->PressRecord();
  EXPECT_EQ(session->Status(), "Recording cancelled...") << "before the first picture";

  screens.way = IScreens::Way::Asked;
  session->PressRecord();
  EXPECT_EQ(session->Phase(), LessonPhase::Preparing);
  ASSERT_TRUE(screens.asked);
  screens.asked->ScreenRefused("The screen was not given.");
  EXPECT_EQ(session->Status(), "The screen was not given.");
  session->PressRecord();
  session->PressRecord();
  EXPECT_EQ(session->Status(), "Recording cancelled...") << "the question is taken back";
  EXPECT_FALSE(screens.asked);
  session->Toggle();
  screens.way = IScreens::Way::None;
  session->Toggle();
  EXPECT_FALSE(session->Shown());
  EXPECT_EQ(host.messages.back(), "There is no screen.");
}

TEST(LessonNames, AreProposedSoThatNothingIsInTheWay) {
  TempLibrary library;
  const std::string folder = library.Folder("Anna/Jan/Lessons");
  EXPECT_EQ(ProposeLessonName(folder, LessonKind::Avi, "2026-11-25"), "Lesson 2026-11-25");
  library.File("Anna/Jan/Lessons/Lesson 2026-11-25.avi");
  EXPECT_EQ(ProposeLessonName(folder, LessonKind::Avi, "2026-11-25"), "Lesson 2026-11-25 (2)");
  EXPECT_EQ(ProposeLessonName(folder, LessonKind::Mp4, "2026-11-25"), "Lesson 2026-11-25");
  EXPECT_EQ(LessonsFolder(library.Path("Anna/Jan")), folder);
  library.Folder("Anna/Eva/lessons");
  EXPECT_EQ(LessonsFolder(library.Path("Anna/Eva")), library.Path("Anna/Eva/lessons")) << "as another system wrote it";
}

}  // namespace
}  // namespace kinalyx::test
