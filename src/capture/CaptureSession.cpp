#include "capture/CaptureSession.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "capture/CaptureData.h"
#include "capture/templates/CaptureTemplate.h"
#include "core/Settings.h"
#include "platform/files/Folders.h"

namespace kinalyx {

namespace {

constexpr int kReadyMs = 4000;  ///< how long it is told that a video was kept
constexpr int kTallyMs = 200;   ///< how often the figures of a recording are brought up to date
constexpr int kRetryMs = 3000;  ///< after a camera has failed
constexpr int kSecondClickMs = 700;
constexpr double kPalFrame = 0.04;
constexpr double kNtscFrame = 0.0333667;

// Labels of the templates, by camera.
constexpr std::string_view kSources[] = {"VideoSource", "VideoSource 2"};
constexpr std::string_view kGates[] = {"MV Trigger Source", "MV Trigger Source 2"};
constexpr std::string_view kWriters[] = {"FileWriter", "FileWriter 2"};

constexpr std::string_view kCapturing = "Capturing Video. Press button again to STOP capture";
constexpr std::string_view kTrimFront = "Trim Excess from the FRONT of the video or Choose Save";
constexpr std::string_view kTrimEnd = "Trim Excess from the END of the video or Choose Save";
constexpr std::string_view kClickSave = "Click on \"Save Capture\" to save";
constexpr std::string_view kReady = "Ready to Record Video";

}  // namespace

std::string_view CaptionOf(CapturePhase phase) {
  switch (phase) {
    case CapturePhase::Writing: return "Stop Capture";
    case CapturePhase::Reviewing: return "Back to Live Video";
    case CapturePhase::LivePreview: break;
  }
  return "Start Capture";
}

CaptureSession::CaptureSession(Parts parts) : parts_(parts) {}
CaptureSession::~CaptureSession() = default;

// ---------------------------------------------------------------- the page

void CaptureSession::Open() {
  open_ = true;
  parts_.naming.SetCameraUse(parts_.setup.Use());
  if (phase_ == CapturePhase::LivePreview && !saving_) BuildCaptureGraph();
}

bool CaptureSession::Leave() {
  if (saving_) {
    parts_.host.Message(MessageKind::Information, "", "The last video is still being saved.");
    return false;
  }
  if (phase_ == CapturePhase::Writing) StopCapture();
  if (phase_ == CapturePhase::Reviewing) {
    if (!parts_.host.Question("", "The recording has not been saved. Do you want to throw it away?")) return false;
    BackToLive();
  }
  open_ = false;
  StopCaptureGraph();
  DropPutAway();
  return true;
}

void CaptureSession::Rebuild() {
  parts_.naming.SetCameraUse(parts_.setup.Use());
  if (open_ && phase_ == CapturePhase::LivePreview && !saving_) BuildCaptureGraph();
}

// ---------------------------------------------------------------- the graph

/// One after the other: stop, clear, load, bind, run. What cannot be had is told in the place of the picture.
bool CaptureSession::BuildCaptureGraph() {
  StopCaptureGraph();
  retry_.Stop();
  words_ = {};
  two_ = parts_.setup.Use() == CameraUse::Both;
  const auto fail = [this](const std::string& why) {
    words_[0] = why;
    parts_.page.CaptureChanged();
    return false;
  };
  if (IsImport(parts_.setup.Kind())) return fail({});
  const std::string_view text =
      CaptureTemplate(false, parts_.setup.Method(), parts_.setup.Use(), parts_.setup.DVMode());
  if (const Outcome loaded = graph_->GraphXmlLoad(text); !loaded) return fail(loaded.Why());
  if (!two_) {
    // For a camera that does not tell at which rate it gives the size that is chosen.
    const bool pal = parts_.settings.NTSCorPAL != "0";
    (void)graph_->GraphSetFrameTime(kSources[0], pal ? kPalFrame : kNtscFrame);
  }
  AssignGraphCameras();
  for (int camera = 0; camera < 2; ++camera) {
    const PictureSize& wanted = wanted_[static_cast<std::size_t>(camera)];
    if (IRendererFilter* renderer = Renderer(camera)) renderer->WantSize(wanted.width, wanted.height);
  }
  ArmGates(false);
  if (const Outcome run = graph_->GraphRun(); !run) return fail(run.Why());
  built_ = true;
  RunCamcorder(true);
  if (status_.empty()) Say(std::string(kReady));
  parts_.page.CaptureChanged();
  return true;
}

/// The first source shows the camera at work, whichever that is.
void CaptureSession::AssignGraphCameras() {
  BindSource(kSources[0], parts_.setup.Use() == CameraUse::Second ? 1 : 0);
  if (two_) BindSource(kSources[1], 1);
}

void CaptureSession::BindSource(std::string_view label, int camera) {
  const int window = label == kSources[1] ? 1 : 0;
  std::string& words = words_[static_cast<std::size_t>(window)];
  const CameraChoice& choice = parts_.setup.Shown(camera);
  if (choice.name.empty()) {
    words = parts_.setup.Devices().Known() ? "No camera is connected. Plug one in, and it shows here."
                                           : "Looking for cameras...";
    return;
  }
  if (!parts_.setup.ShownDevice(camera) && parts_.setup.Devices().Known()) {
    words = fmt::format("{} is not connected. Plug it in, and it shows here.", choice.name);
    return;
  }
  if (const Outcome bound = graph_->GraphSetDevice(label, choice.name); !bound) {
    words = bound.Why();
    return;
  }
  words = "Starting the camera...";
  const std::optional<PictureSize> size = SizeOf(choice.size);
  if (!size) return;
  const Outcome set = graph_->GraphSetVideoFormat(label, size->width, size->height, FormatCode(choice.format));
  if (!set) words = set.Why();
  const double rate = FormatRate(choice.format);
  if (rate > 0) (void)graph_->GraphSetFrameTime(label, 1 / rate);
}

void CaptureSession::StopCaptureGraph() {
  tallyTimer_.Stop();
  if (!graph_) return;
  if (built_) {
    (void)graph_->GraphStop();
    RunCamcorder(false);
  }
  graph_->GraphClear();
  built_ = false;
}

/// A camcorder with a tape is run and stopped by the system's own tool for it; without the tool its own buttons do.
void CaptureSession::RunCamcorder(bool run) {
  const CaptureMethod method = parts_.setup.Method();
  const bool ours = method == CaptureMethod::StartStop || method == CaptureMethod::OneClick;
  if (run ? !(parts_.setup.DVMode() && ours) : !camcorderRuns_) return;
  camcorderRuns_ = run;
  (void)parts_.host.StartDetached("dvcont", {run ? "play" : "stop"});
}

void CaptureSession::ArmGates(bool on) {
  for (const std::string_view label : kGates)
    if (auto* gate = graph_->GraphFilterByLabel<ITriggerSourceFilter>(label)) gate->Arm(on);
}

/// The window of a camera; the graph of one camcorder calls it otherwise than the others do.
IRendererFilter* CaptureSession::Renderer(int camera) {
  if (camera == 1) return graph_->GraphFilterByLabel<IRendererFilter>("Video Renderer 2");
  auto* renderer = graph_->GraphFilterByLabel<IRendererFilter>("Video Renderer");
  return renderer ? renderer : graph_->GraphFilterByLabel<IRendererFilter>("Video Renderer 1");
}

LivePicture CaptureSession::Latest(int camera) {
  IRendererFilter* renderer = Renderer(camera);
  return renderer ? renderer->Latest() : LivePicture();
}

void CaptureSession::WantSize(int camera, int width, int height) {
  wanted_[static_cast<std::size_t>(camera)] = {width, height};
  if (IRendererFilter* renderer = Renderer(camera)) renderer->WantSize(width, height);
}

RecordingTally CaptureSession::Tally(int camera) const { return tallies_[static_cast<std::size_t>(camera)]; }

// ---------------------------------------------------------------- start, stop, back

void CaptureSession::PressCapture() {
  if (saving_) return;
  switch (phase_) {
    case CapturePhase::LivePreview: StartCapture(); break;
    case CapturePhase::Writing: StopCapture(); break;
    case CapturePhase::Reviewing:
      // The second click of a double click on "Stop Capture" is no wish to lose what was recorded.
      if (parts_.host.timeGetTime() - stoppedAt_ >= kSecondClickMs) PutAway();
      break;
  }
}

/// The recording makes way for the live picture, and can be had back for a while.
void CaptureSession::PutAway() {
  DropPutAway();
  putAway_ = std::exchange(reviewed_, {});
  BackToLive();
}

void CaptureSession::DropPutAway() { (void)ThrowAway(std::exchange(putAway_, {})); }

void CaptureSession::BringBack() {
  if (!CanBringBack() || phase_ != CapturePhase::LivePreview || saving_) return;
  const UnfinishedRecording recording = std::exchange(putAway_, {});
  ReviewUnfinished(recording);
}

void CaptureSession::StartCapture() {
  if (!built_ && !BuildCaptureGraph()) return;
  ReadyTimer_.Stop();
  DropPutAway();
  tallies_ = {};
  const Outcome ready = parts_.files.Prepare();
  if (!ready) return Say(ready.Why());
  for (int camera = 0; camera < (two_ ? 2 : 1); ++camera) {
    const Outcome set = graph_->GraphSetFileSink(kWriters[camera], parts_.files.Path(camera));
    if (!set) return Say(set.Why());
  }
  phase_ = CapturePhase::Writing;
  ArmGates(true);
  tallyTimer_ = HostTimer(parts_.host, kTallyMs, true, [this] { ShowTally(); });
  Say(std::string(kCapturing));
}

void CaptureSession::ShowTally() {
  for (int camera = 0; camera < 2; ++camera) {
    RecordingTally& tally = tallies_[static_cast<std::size_t>(camera)];
    auto* writer = graph_->GraphFilterByLabel<IWriterFilter>(kWriters[camera]);
    if (!writer) continue;
    const std::string fault = std::move(tally.fault);
    tally = writer->Tally();
    if (tally.fault.empty()) tally.fault = fault;
  }
  parts_.page.CaptureChanged();
}

void CaptureSession::StopCapture() {
  stoppedAt_ = parts_.host.timeGetTime();
  ArmGates(false);
  if (built_) (void)graph_->GraphStop();  // the files are closed, and the figures those of whole files
  ShowTally();
  StopCaptureGraph();
  UnfinishedRecording recording;
  recording.paths = {parts_.files.Path(0), two_ ? parts_.files.Path(1) : std::string()};
  recording.tallies = tallies_;
  LeaveOutEmpty(recording);
  Review(std::move(recording));
}

/// Of two cameras, one may have given no picture: the other one's recording is looked at alone.
void CaptureSession::LeaveOutEmpty(UnfinishedRecording& recording) {
  secondAlone_ = !two_ && parts_.setup.Use() == CameraUse::Second;
  if (!two_) return;
  const std::array there{FileExists(recording.paths[0]), FileExists(recording.paths[1])};
  if (there[0] && there[1]) return;
  secondAlone_ = there[1];
  if (secondAlone_) {
    std::swap(recording.paths[0], recording.paths[1]);
    std::swap(recording.tallies[0], recording.tallies[1]);
  }
  const std::string& why = recording.tallies[1].fault;
  recording.tallies[0].fault =
      fmt::format("Camera {} recorded nothing.{}{}", secondAlone_ ? 1 : 2, why.empty() ? "" : " ", why);
  recording.paths[1].clear();
  two_ = false;
  tallies_ = recording.tallies;
}

void CaptureSession::ReviewUnfinished(const UnfinishedRecording& recording) {
  if (phase_ != CapturePhase::LivePreview || saving_) return;
  StopCaptureGraph();
  two_ = !recording.paths[1].empty();
  secondAlone_ = false;
  tallies_ = recording.tallies;
  Review(recording);
}

void CaptureSession::Review(UnfinishedRecording recording) {
  TrimStartFrame_ = TrimEndFrame_ = 0;
  reviewed_ = std::move(recording);
  phase_ = CapturePhase::Reviewing;
  bool opened = parts_.page.ReviewPlayer(0).Load(reviewed_.paths[0]);
  if (two_) opened = parts_.page.ReviewPlayer(1).Load(reviewed_.paths[1]) || opened;
  if (!opened) {
    const std::string& fault = tallies_[0].fault;
    BackToLive();
    Say(fault.empty() ? "The camera gave no picture. Nothing was recorded." : fault);
    return;
  }
  const std::string& fault = tallies_[0].fault.empty() ? tallies_[1].fault : tallies_[0].fault;
  Say(fault.empty() ? std::string(kTrimFront) : fault + " What was recorded is kept.");
}

void CaptureSession::BackToLive() {
  parts_.page.ReviewPlayer(0).Unload();
  parts_.page.ReviewPlayer(1).Unload();
  const Outcome thrown = ThrowAway(std::exchange(reviewed_, {}));
  TrimStartFrame_ = TrimEndFrame_ = 0;
  tallies_ = {};
  phase_ = CapturePhase::LivePreview;
  status_ = thrown.Why();
  if (open_) BuildCaptureGraph();
  parts_.page.CaptureChanged();
}

/// A front behind the end takes the end away, and the other way round.
void CaptureSession::TrimFront() {
  TrimStartFrame_ = parts_.page.ReviewPlayer(0).CurrentFrame();
  if (TrimEndFrame_ <= TrimStartFrame_) TrimEndFrame_ = 0;
  Say(std::string(kTrimEnd));
}

void CaptureSession::TrimEnd() {
  TrimEndFrame_ = parts_.page.ReviewPlayer(0).CurrentFrame();
  if (TrimStartFrame_ >= TrimEndFrame_) TrimStartFrame_ = 0;
  Say(std::string(kClickSave));
}

void CaptureSession::Trim(int first, int last) {
  if (phase_ != CapturePhase::Reviewing || saving_) return;
  const bool end = last != TrimEndFrame_;
  TrimStartFrame_ = first;
  TrimEndFrame_ = last;
  Say(std::string(end ? kClickSave : kTrimEnd));
}

// ---------------------------------------------------------------- keeping

bool CaptureSession::RefuseUnlessNamed() {
  if (parts_.naming.ShortGame() && FileExists(parts_.naming.CapturedVideoPath())) {
    parts_.host.Message(MessageKind::Information, "", "File already exists. Choose a different name.");
    return false;
  }
  if (!parts_.naming.Shown().empty()) return true;
  parts_.host.Message(MessageKind::Information, "", "You must name the video before saving!");
  parts_.naming.ChangeName();
  return false;
}

/// What becomes of a save.
class CaptureSession::SaveEvents final : public IJobEvents {
 public:
  explicit SaveEvents(CaptureSession& session) : session_(session) {}
  void Progress(const JobProgress& progress) override {
    session_.jobPart_ = progress.part;
    session_.parts_.page.CaptureChanged();
  }
  void Over(IJob* job) override {
    const auto* saver = dynamic_cast<RecordingSaver*>(job);
    SavedRecording none;
    none.why = "The disk does not answer.";
    session_.Saved(saver ? saver->Saved() : none);
  }

 private:
  CaptureSession& session_;
};

void CaptureSession::Save() {
  if (saving_ || phase_ != CapturePhase::Reviewing) return;
  if (!RefuseUnlessNamed()) {
    sendNext_ = false;
    return;
  }
  if (TrimEndFrame_ > 0 && TrimEndFrame_ <= TrimStartFrame_) {
    sendNext_ = false;
    parts_.host.Message(MessageKind::Information, "",
                        "Your TRIM Start and End times are not correct. Please check your Start and End times and try "
                        "again.");
    return;
  }
  SaveRequest request;
  request.recorded = reviewed_.paths;
  request.videos = {parts_.naming.CapturedVideoPath(), parts_.naming.CapturedVideoPath2()};
  if (secondAlone_) request.videos[0] = request.videos[1];
  request.tallies = tallies_;
  request.firstFrame = TrimStartFrame_;
  request.lastFrame = TrimEndFrame_;
  const bool recompress = !parts_.setup.DVMode() && parts_.settings.Recompress;
  for (int camera = 0; camera < 2; ++camera)
    request.recompress[static_cast<std::size_t>(camera)] = recompress && parts_.page.ReviewPlayer(camera).IsRaw();
  request.flags = CaptureFlags(parts_.settings, parts_.page.ReviewPlayer(0).IsWide());
  // The choices about fields are made for camcorders; what another camera gives as whole pictures has none.
  if (!parts_.setup.DVMode() && !parts_.page.ReviewPlayer(0).HasFields())
    request.flags.SplitFields = request.flags.ReverseFields = false;
  request.dv = parts_.setup.DVMode();
  request.trimProgram = parts_.trimProgram;
  saving_ = true;
  jobPart_ = 0;
  parts_.page.ReviewPlayer(0).Unload();
  parts_.page.ReviewPlayer(1).Unload();
  Say("Saving Video.... Please Wait.");
  parts_.jobs.Start(std::make_unique<RecordingSaver>(std::move(request)), std::make_unique<SaveEvents>(*this));
}

/// All is kept and the way back to the live picture open, or nothing is and the recording stays under review.
void CaptureSession::Saved(const SavedRecording& saved) {
  saving_ = false;
  const bool send = std::exchange(sendNext_, false);
  if (!saved.Done()) {
    const UnfinishedRecording again = reviewed_;
    const int start = TrimStartFrame_;
    const int end = TrimEndFrame_;
    Review(again);
    TrimStartFrame_ = start;
    TrimEndFrame_ = end;
    Say("Last Video WAS NOT SAVED");
    if (!saved.cancelled)
      parts_.host.Message(MessageKind::Warning, "", "There was a problem saving this video.\n\n" + saved.why);
    return;
  }
  LastSavedVideo_ = saved.videos[0];
  const bool both = two_;
  std::vector<std::string> paths{saved.videos[0]};
  if (both) paths.push_back(saved.videos[1]);
  parts_.naming.NameUsed();
  BackToLive();
  Say(both ? "Both Videos Saved Successfully" : "Last Video Saved Successfully");
  if (!saved.note.empty()) parts_.host.Message(MessageKind::Warning, "", saved.note);
  SayReadyLater();
  if (!send) return;
  Say("Loading Analysis Section...");
  const bool opened = parts_.ways.OpenInAnalysis(paths);
  if (opened) Say("Sending last saved to Analysis...");
  Say(opened ? "Last video saved was sent to Analysis." : "The video is saved. The analysis section did not open it.");
  SayReadyLater();
}

void CaptureSession::SendToAnalysis() {
  if (saving_ || phase_ != CapturePhase::Reviewing) return;
  sendNext_ = true;
  Save();
}

void CaptureSession::Say(std::string status) {
  status_ = std::move(status);
  parts_.page.CaptureChanged();
}

void CaptureSession::SayReadyLater() {
  ReadyTimer_ = HostTimer(parts_.host, kReadyMs, false, [this] {
    if (phase_ == CapturePhase::LivePreview) Say(std::string(kReady));
  });
}

// ---------------------------------------------------------------- what the graph tells

void CaptureSession::PictureCame(const std::string& label) {
  const int camera = label == "Video Renderer 2" ? 1 : 0;
  std::string& words = words_[static_cast<std::size_t>(camera)];
  const bool first = !words.empty();
  words.clear();
  if (first) parts_.page.CaptureChanged();
  parts_.page.LivePictureCame(camera);
}

void CaptureSession::SourceFailed(const std::string& label, const std::string& why) {
  const int camera = label == kSources[1] ? 1 : 0;
  words_[static_cast<std::size_t>(camera)] = why;
  if (phase_ == CapturePhase::Writing) {
    tallies_[static_cast<std::size_t>(camera)].fault = why;
    StopCapture();
    return;
  }
  // A camera that another program has, or that is being plugged in anew, is asked again.
  if (phase_ == CapturePhase::LivePreview && open_)
    retry_ = HostTimer(parts_.host, kRetryMs, false, [this] { Rebuild(); });
  parts_.page.CaptureChanged();
}

/// The window alone is dark: what is recorded is what the camera gives.
void CaptureSession::PreviewFailed(const std::string& label) {
  words_[label == "Video Renderer 2" ? 1 : 0] = phase_ == CapturePhase::Writing
                                                    ? "The picture cannot be shown; the recording goes on."
                                                    : "The picture of this camera cannot be shown. It can be recorded "
                                                      "all the same.";
  parts_.page.CaptureChanged();
}

void CaptureSession::SinkFailed(const std::string& label, const std::string& why) {
  if (phase_ != CapturePhase::Writing) return;
  tallies_[label == kWriters[1] ? 1 : 0].fault = why;
  StopCapture();
}

}  // namespace kinalyx
