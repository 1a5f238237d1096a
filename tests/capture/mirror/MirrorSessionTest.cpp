#include "capture/mirror/MirrorSession.h"

#include "MirrorFakes.h"
#include "capture/templates/CaptureTemplates.h"
#include "library/TempLibrary.h"
#include "platform/files/Folders.h"

namespace kinalyx::test {
namespace {

/// Posts at once.
struct PlainPost final : IPost {
  void Post(std::function<void()> action) override { action(); }
};

class MirrorSessionTest : public testing::Test, public IMirrorView, public INamingEvents {
 protected:
  MirrorSessionTest() {
    settings.LoadCaptureSettings();
    settings.VideoInSource = static_cast<int>(SourceKind::Webcam);
    settings.DVMode = false;
    settings.OneCam = true;
    devices.cameras = {MakeCamera("Left"), MakeCamera("Right")};
    setup = std::make_unique<CaptureSetup>(settings, devices);
    naming.SetFolder(folder);
    naming.SetEvents(this);
  }

  void Open() {
    if (!session)
      session.emplace(MirrorSession::Parts{
          .host = library.host,
          .settings = settings,
          .setup = *setup,
          .naming = naming,
          .remembered = remembered,
          .files = files,
          .jobs = jobs,
          .view = *this,
          .post = std::make_shared<PlainPost>(),
          .now = [this] { return library.host.now * kMs; },
          .makeGraph =
              [this](IGraphEvents& told) {
                events = &told;
                return std::make_unique<FakeMirrorGraph>(graph);
              },
          .choicesPath = library.Data("mirror.json"),
          .on = MirrorSession::On::HostTimer,
      });
    session->Open();
  }
  /// The cameras give 25 pictures a second while the clock is turned on.
  void Film(int seconds) {
    for (int i = 0; i < seconds * 25; ++i) {
      for (FakeRecorder& recorder : graph->recorders)
        if (gives) recorder.pictures.push_back(NumberedPicture(number, library.host.now * kMs));
      ++number;
      library.host.Advance(40);
    }
  }
  std::string NoteOf(int pane) { return session->Note(pane).text; }
  double SecondsBehind(int pane) {
    const LivePicture picture = session->Show(pane).picture;
    return static_cast<double>(library.host.now * kMs - picture.takenAt) / 1e9;
  }
  void RunJobs() {
    for (int i = 0; i < 200 && session->Keeping(); ++i) library.host.Advance(20);
  }
  void Written(int camera = 0) {
    events->BlockWritten(camera == 0 ? "MV Block Recording" : "MV Block Recording 2");
    RunJobs();
  }

  void MirrorChanged() override {}
  void PanePictureCame(int) override {}
  void NameChanged() override {}
  void NameWanted() override { ++namesWanted; }

  TempLibrary library;
  Settings& settings = library.settings;
  FakeDevices devices;
  std::string folder = library.Folder("Anna/Łucja");
  std::unique_ptr<CaptureSetup> setup;
  VideoNaming naming{settings, [] { return std::string("11/25/2026"); }};
  LastStudentInfo remembered{"Anna", "Łucja", {}};
  WorkingFiles files{library.Data("capture")};
  JobRunner jobs{library.host, JobRunner::On::HostTimer};
  std::shared_ptr<FakeMirrorGraph::Told> graph = std::make_shared<FakeMirrorGraph::Told>();
  IGraphEvents* events = nullptr;
  std::optional<MirrorSession> session;
  bool gives = true;
  int number = 0;
  int namesWanted = 0;
};

TEST_F(MirrorSessionTest, ShowsFourMomentsOfOneCamera) {
  Open();
  EXPECT_EQ(graph->loaded, MVOneCamClickAN);
  EXPECT_EQ(graph->devices[0], "Left");
  EXPECT_EQ(NoteOf(0), "Starting the camera...");
  session->SetPanes(4);
  Film(3);
  EXPECT_EQ(NoteOf(2), "10 s behind: first picture in 7 s");
  EXPECT_TRUE(session->Show(2).standIn);
  EXPECT_EQ(NoteOf(0), "");
  Film(22);
  for (const auto& [pane, seconds] : {std::pair{0, 0}, std::pair{1, 5}, std::pair{2, 10}, std::pair{3, 20}}) {
    EXPECT_NEAR(SecondsBehind(pane), seconds, 0.046) << pane;
    EXPECT_EQ(NoteOf(pane), "");
  }
  EXPECT_EQ(session->Badge(0), "now");
  EXPECT_EQ(session->Badge(3), "20 s ago");
  session->Choose(3);
  session->SetDelay(2.4);
  Film(1);
  EXPECT_EQ(session->Badge(3), "2.5 s ago");
  EXPECT_NEAR(SecondsBehind(3), 2.5, 0.046);
  EXPECT_EQ(session->MemoryWords().substr(0, 15), "remembers 25 s,");
  EXPECT_GE(graph->recorders[0].remembered, 65) << "the longest delay and what is kept of it";
}

TEST_F(MirrorSessionTest, LoopsWhatWasSeenUntilItIsLeft) {
  Open();
  session->ToggleLoop();
  EXPECT_EQ(session->Status(), "There is nothing to loop yet.");
  Film(20);
  const std::int64_t seen = session->Show(0).picture.takenAt;
  session->ToggleLoop();
  EXPECT_EQ(session->Badge(0), "loop 1/4");
  graph->recorders[0].pictures.clear();
  library.host.Advance(8000);
  EXPECT_NEAR(static_cast<double>(session->Show(0).picture.takenAt - seen) / 1e9, -3, 0.06) << "two of five seconds on";
  session->SetSpeed(LoopSpeed::Full);
  library.host.Advance(2000);
  EXPECT_NEAR(static_cast<double>(session->Show(0).picture.takenAt - seen) / 1e9, -1, 0.06);
  EXPECT_EQ(session->Badge(0), "loop");
  session->ToggleFreeze();
  const std::int64_t still = session->Show(0).picture.takenAt;
  library.host.Advance(5000);
  session->StepBy(-1);
  library.host.Advance(20);
  EXPECT_EQ(session->Show(0).picture.takenAt, still - 40 * kMs);
  session->ToggleFreeze();
  session->ToggleLoop();
  EXPECT_FALSE(session->Looping());
  Film(11);
  EXPECT_NEAR(SecondsBehind(0), 10, 0.046);
  session->ToggleFreeze();
  EXPECT_EQ(session->Badge(0), "still");
  session->SetPanes(2);
  EXPECT_FALSE(session->Frozen()) << "another arrangement runs";
}

TEST_F(MirrorSessionTest, KeepsWhatIsSeenUnderTheNextName) {
  Open();
  session->Keep();
  EXPECT_EQ(session->Status(), "There is nothing to keep yet.");
  Film(20);
  const std::int64_t shown = library.host.now * kMs - 10 * kSecond;
  session->Keep();
  session->Keep();
  ASSERT_EQ(graph->recorders[0].written.size(), 2U) << "any number in a row";
  const std::vector<std::int64_t>& stamps = graph->recorders[0].written[0];
  EXPECT_NEAR(static_cast<double>(stamps.back() - shown), 0, 41e6);
  EXPECT_NEAR(static_cast<double>(stamps.back() - stamps.front()), 5e9, 41e6);
  Written();
  EXPECT_TRUE(FileExists(folder + "/(001) DL- 11-25-2026.avi"));
  EXPECT_TRUE(FileExists(folder + "/(002) DL- 11-25-2026.avi"));
  EXPECT_TRUE(FileExists(folder + "/(002) DL- 11-25-2026.ved"));
  EXPECT_EQ(session->Status(), "Kept: (002) DL- 11-25-2026");
  EXPECT_EQ(session->NextName(), "(003) DL- 11-25-2026");
  library.host.Advance(7000);
  EXPECT_EQ(session->Status(), "");

  session->ToggleLoop();
  graph->recorders[0].pictures.clear();
  library.host.Advance(9000);
  session->Keep();
  EXPECT_NEAR(static_cast<double>(graph->recorders[0].written[2].size()), 126, 1) << "of a loop all of it";
  Written();
  graph->recorders[0].fault = "The disk is full.";
  session->Keep();
  Written();
  EXPECT_EQ(session->Status(), "Not kept. The disk is full.");
  graph->recorders[0].cutOff = true;
  session->Keep();
  Written();
  EXPECT_EQ(session->Status(), "The disk is full. What was written is kept.");
}

TEST_F(MirrorSessionTest, WritesToItsEndWhatIsKeptAsTheWindowCloses) {
  Open();
  Film(15);
  FakeRecorder& recorder = graph->recorders[0];
  recorder.writer->slow = true;
  session->Keep();
  session->Close();
  library.host.Advance(60'000);
  EXPECT_TRUE(session->Keeping()) << "a slow disk may take a while";
  recorder.writer->slow = false;
  RunJobs();
  EXPECT_TRUE(FileExists(folder + "/(001) DL- 11-25-2026.avi"));

  Open();
  Film(15);
  session->Keep();
  recorder.writer->blocks.clear();
  session->Close();
  RunJobs();
  EXPECT_FALSE(session->Keeping()) << "what never came is not waited for";
  EXPECT_EQ(session->Status(), "Not kept. The disk does not answer.");
}

TEST_F(MirrorSessionTest, KeepsForWhoIsChosenAsItOpens) {
  const std::string other = library.Folder("Anna/久美子");
  Open();
  session->Close();
  remembered = {"Anna", "久美子", {}};
  Open();
  Film(15);
  EXPECT_EQ(session->StudentName(), "久美子");
  session->Keep();
  Written();
  EXPECT_TRUE(FileExists(other + "/(001) DL- 11-25-2026.avi"));
  session->Keep();
  std::filesystem::remove_all(other);
  Written();
  EXPECT_EQ(session->Status(), "Not kept. The folder for the video is not there any more.");
  EXPECT_TRUE(FileExists(library.Data("capture/unfinished 1.avi")));
}

TEST_F(MirrorSessionTest, NamesAVideoByItselfWhereTheNameIsToBeTyped) {
  naming.ChooseMode(NameMode::Manual);
  Open();
  Film(15);
  session->Keep();
  Written();
  EXPECT_EQ(session->Status(), "Kept: (001) Mirror");
  naming.SetText("skok Ł 跳");
  session->Keep();
  Written();
  EXPECT_EQ(session->Status(), "Kept: (002) skok Ł 跳");
  EXPECT_EQ(namesWanted, 0) << "nobody stands at the desk";
  naming.SetFolder("");
  session->Keep();
  EXPECT_EQ(session->Status(), "Not kept. Choose on the capture page whose video it is.");
}

TEST_F(MirrorSessionTest, PlaysThePastOfACameraThatIsPulledOutAndGoesOn) {
  Open();
  Film(20);
  devices.Pull("Left");
  events->SourceFailed("VideoSource", "The camera gives no picture.");
  gives = false;
  Film(4);
  EXPECT_EQ(NoteOf(0), "The camera gives no picture. What it saw before goes on for 6 s.");
  EXPECT_NEAR(SecondsBehind(0), 10, 0.046) << "the past plays on";
  const int runs = graph->runs;
  Film(10);
  EXPECT_EQ(NoteOf(0), "The camera gives no picture.");
  EXPECT_TRUE(session->Note(0).instead);
  EXPECT_EQ(graph->runs, runs) << "what is not there is not asked";
  devices.Plug(MakeCamera("Left"));
  library.host.Advance(4000);
  EXPECT_GT(graph->runs, runs);
  gives = true;
  Film(5);
  EXPECT_EQ(NoteOf(0), "The camera gave no picture then.");
  Film(8);
  EXPECT_EQ(NoteOf(0), "");
  EXPECT_NEAR(SecondsBehind(0), 10, 0.046);
}

TEST_F(MirrorSessionTest, LendsTheCameraToTheCapturePage) {
  Open();
  Film(20);
  session->Lend(true);
  EXPECT_FALSE(graph->running) << "the camera is free";
  library.host.Advance(4000);
  EXPECT_EQ(NoteOf(0),
            "The capture page has the camera. The mirror goes on when that page is left. What it saw before "
            "goes on for 6 s.");
  session->Keep();
  EXPECT_EQ(session->Status(), "Nothing can be kept while the capture page has the camera.");
  session->Lend(false);
  EXPECT_TRUE(graph->running);
  Film(11);
  EXPECT_EQ(NoteOf(0), "");
  session->Close();
  EXPECT_FALSE(graph->running);
  session->Lend(true);
  Open();
  EXPECT_FALSE(graph->running) << "lent before it was opened";
}

TEST_F(MirrorSessionTest, EachPaneChoosesAmongTwoCameras) {
  setup->ChooseCameraCount(false);
  Open();
  EXPECT_EQ(graph->loaded, MVTwoCamClickAN);
  EXPECT_EQ(graph->devices[1], "Right");
  session->SetPanes(2);
  session->Choose(1);
  session->SetCamera(1);
  Film(20);
  session->Keep();
  EXPECT_TRUE(graph->recorders[0].written.empty());
  ASSERT_EQ(graph->recorders[1].written.size(), 1U);
  Written(1);
  EXPECT_EQ(session->Status(), "Kept: (001) FO- 11-25-2026") << "the name of camera 2";
  // One of them fails: the other one is not disturbed again and again.
  events->SourceFailed("VideoSource 2", "The camera is busy.");
  const int runs = graph->runs;
  for (int i = 0; i < 10; ++i) {
    for (int picture = 0; picture < 25; ++picture) {
      graph->recorders[0].pictures.push_back(NumberedPicture(number++, library.host.now * kMs));
      library.host.Advance(40);
    }
    if (graph->runs > runs + i) events->SourceFailed("VideoSource 2", "The camera is busy.");
  }
  EXPECT_LE(graph->runs - runs, 3);
  EXPECT_EQ(NoteOf(0), "");
}

TEST_F(MirrorSessionTest, SaysWhenTheMemoryIsTooSmall) {
  Open();
  Film(8);
  FakeRecorder& ring = graph->recorders[0];
  library.host.Advance(4000);
  while (ring.pictures.size() > 50) ring.pictures.pop_front();
  std::int64_t bytes = 0;
  for (const PackedPicture& picture : ring.pictures) bytes += static_cast<std::int64_t>(picture.size);
  ASSERT_GT(bytes, 0);
  // As many bytes as the bound allows, in so few pictures.
  ring.pictures.back().size = static_cast<std::size_t>(ring.bound);
  session->SetDelay(30);
  EXPECT_EQ(NoteOf(0), "Only 1 s of this camera fit into the memory. Choose a shorter delay.");
}

TEST_F(MirrorSessionTest, FollowsTheStudentAndRemembersItsChoices) {
  naming.SetFolder("");
  remembered = {"Anna", "Łucja", folder};
  Open();
  EXPECT_EQ(session->StudentName(), "Łucja") << "also where the capture page was never opened";
  library.Folder("Anna/Νίκη");
  remembered = {"Anna", "Νίκη", ""};
  library.host.Advance(300);
  EXPECT_EQ(session->StudentName(), "Νίκη");
  session->SetPanes(3);
  session->SetLoopSeconds(99);
  session->SetMirrored(true);
  session->Close();
  session.reset();
  Open();
  EXPECT_EQ(session->Choices().panes, 3);
  EXPECT_EQ(session->Choices().loopSeconds, 20);
  EXPECT_TRUE(session->Choices().mirrored);
}

}  // namespace
}  // namespace kinalyx::test
