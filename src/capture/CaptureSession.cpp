#include "capture/CaptureSession.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "capture/CaptureData.h"
#include "capture/templates/CaptureTemplate.h"
#include "core/Settings.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {

namespace {

constexpr int kReadyMs = 4000;  ///< how long it is told that a video was kept
constexpr int kTallyMs = 200;   ///< how often the figures of a recording are brought up to date
constexpr int kRetryMs = 3000;  ///< after a camera has failed
constexpr int kSeldom = 10;     ///< tries that are passed over
constexpr int kSecondClickMs = 700;
constexpr double kPalFrame = 0.04;
constexpr double kNtscFrame = 0.0333667;

// Labels of the templates, by camera.
constexpr std::string_view kSources[] = {"VideoSource", "VideoSource 2"};
constexpr std::string_view kGates[] = {"MV Trigger Source", "MV Trigger Source 2"};
constexpr std::string_view kWriters[] = {"FileWriter", "FileWriter 2"};

constexpr const char* kCapturing = TrLater("Capturing Video. Press button again to STOP capture");
constexpr const char* kTimed = TrLater("Capturing Video");
constexpr const char* kTrimFront = TrLater("Trim Excess from the FRONT of the video or Choose Save");
constexpr const char* kTrimEnd = TrLater("Trim Excess from the END of the video or Choose Save");
constexpr const char* kClickSave = TrLater("Click on \"Save Capture\" to save");
constexpr const char* kReady = TrLater("Ready to Record Video");

}  // namespace

std::string CaptionOf(CapturePhase phase) {
  switch (phase) {
    case CapturePhase::Writing: return Tr("Stop Capture");
    case CapturePhase::Reviewing: return Tr("Back to Live Video");
    case CapturePhase::LivePreview: break;
  }
  return Tr("Start Capture");
}

CaptureSession::CaptureSession(Parts parts)
    : parts_(parts),
      monitoring_({.host = parts.host,
                   .settings = parts.settings,
                   .setup = parts.setup,
                   .naming = parts.naming,
                   .files = parts.files,
                   .jobs = parts.blockJobs,
                   .events = *this,
                   .trimProgram = parts.trimProgram}) {}
CaptureSession::~CaptureSession() = default;

// ---------------------------------------------------------------- the page

void CaptureSession::Open() {
  open_ = true;
  parts_.naming.SetCameraUse(parts_.setup.Use());
  if (phase_ == CapturePhase::LivePreview && !saving_) BuildCaptureGraph();
}

bool CaptureSession::Leave() {
  // What a timer recorded is kept while the user is elsewhere, and so is what was triggered.
  if (saving_ && !timed_) {
    parts_.host.Message(MessageKind::Information, "", Tr("The last video is still being saved."));
    return false;
  }
  if (monitoring_.Armed()) Disarm({});
  if (phase_ == CapturePhase::Writing) StopCapture();
  if (phase_ == CapturePhase::Reviewing && !timed_) {
    if (!parts_.host.Question("", Tr("The recording has not been saved. Do you want to throw it away?"))) return false;
    BackToLive();
  }
  open_ = false;
  StopCaptureGraph();
  DropPutAway();
  return true;
}

void CaptureSession::Rebuild() {
  // Who is not at the desk has not changed anything: what is remembered, or counted down to, goes on.
  if (monitoring_.Armed() || timed_) return;
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
      CaptureTemplate(monitoring_.Armed(), parts_.setup.Method(), parts_.setup.Use(), parts_.setup.DVMode());
  if (const Outcome loaded = graph_->GraphXmlLoad(text); !loaded) return fail(loaded.Why());
  if (!two_ && !monitoring_.Armed()) {
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
  if (monitoring_.Armed()) {
    const Outcome ready = monitoring_.Prepare(*graph_, two_ ? 2 : 1, parts_.setup.Use() == CameraUse::Second);
    if (!ready) {
      Disarm(ready.Why());
      return BuildCaptureGraph();
    }
  }
  if (const Outcome run = graph_->GraphRun(); !run) return fail(run.Why());
  built_ = true;
  RunCamcorder(true);
  if (monitoring_.Armed()) monitoring_.Begin(*graph_);
  if (status_.empty()) Say(Tr(kReady));
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
  words = WhyAbsent(camera);
  if (!words.empty()) return;
  if (const Outcome bound = graph_->GraphSetDevice(label, choice.name); !bound) {
    words = bound.Why();
    return;
  }
  words = Tr("Starting the camera...");
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
  monitoring_.End();
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
  if (saving_ || timed_ || monitoring_.Armed()) return;
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
  if (!CanBringBack() || phase_ != CapturePhase::LivePreview || saving_ || monitoring_.Armed()) return;
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
  Say(Tr(timed_ ? kTimed : kCapturing));
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

void CaptureSession::StopCapture() { Review(EndRecording()); }

UnfinishedRecording CaptureSession::EndRecording() {
  stoppedAt_ = parts_.host.timeGetTime();
  ArmGates(false);
  if (built_) (void)graph_->GraphStop();  // the files are closed, and the figures those of whole files
  ShowTally();
  StopCaptureGraph();
  UnfinishedRecording recording;
  recording.paths = {parts_.files.Path(0), two_ ? parts_.files.Path(1) : std::string()};
  recording.tallies = tallies_;
  LeaveOutEmpty(recording);
  return recording;
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
  recording.tallies[0].fault = Tr("Camera {} recorded nothing.{}{}", secondAlone_ ? 1 : 2, why.empty() ? "" : " ", why);
  recording.paths[1].clear();
  two_ = false;
  tallies_ = recording.tallies;
}

void CaptureSession::ReviewUnfinished(const UnfinishedRecording& recording) {
  if (phase_ != CapturePhase::LivePreview || saving_ || monitoring_.Armed()) return;
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
    Say(fault.empty() ? Tr("The camera gave no picture. Nothing was recorded.") : fault);
    return;
  }
  const std::string& fault = tallies_[0].fault.empty() ? tallies_[1].fault : tallies_[0].fault;
  Say(fault.empty() ? Tr(kTrimFront) : Tr("{} What was recorded is kept.", fault));
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
  Say(Tr(kTrimEnd));
}

void CaptureSession::TrimEnd() {
  TrimEndFrame_ = parts_.page.ReviewPlayer(0).CurrentFrame();
  if (TrimStartFrame_ >= TrimEndFrame_) TrimStartFrame_ = 0;
  Say(Tr(kClickSave));
}

void CaptureSession::Trim(int first, int last) {
  if (phase_ != CapturePhase::Reviewing || saving_) return;
  const bool end = last != TrimEndFrame_;
  TrimStartFrame_ = first;
  TrimEndFrame_ = last;
  Say(std::string(end ? Tr(kClickSave) : Tr(kTrimEnd)));
}

void CaptureSession::Say(std::string status) {
  status_ = std::move(status);
  parts_.page.CaptureChanged();
}

void CaptureSession::SayReadyLater() {
  ReadyTimer_ = HostTimer(parts_.host, kReadyMs, false, [this, told = status_] {
    if (phase_ == CapturePhase::LivePreview && status_ == told) Say(Tr(kReady));
  });
}

// ---------------------------------------------------------------- hands-free

void CaptureSession::PressMonitor() {
  if (phase_ != CapturePhase::LivePreview || saving_) return;
  if (monitoring_.Armed()) {
    const bool sound = parts_.setup.Method() == CaptureMethod::Sound;
    Disarm(sound ? Tr("Press \"Start Sound Capture\" to start monitoring for sound.")
                 : Tr("Press \"Start to Monitor\" to start monitoring."));
  } else {
    if (parts_.naming.Shown().empty()) {
      parts_.host.Message(MessageKind::Information, "", Tr("You must name the video before saving!"));
      return parts_.naming.ChangeName();
    }
    ReadyTimer_.Stop();
    DropPutAway();
    monitoring_.Arm(true);
  }
  BuildCaptureGraph();
}

/// What a trigger has begun is closed, and kept.
void CaptureSession::Disarm(const std::string& status) {
  monitoring_.Arm(false);
  StopCaptureGraph();
  Say(status);
}

void CaptureSession::MonitoringKept(const std::string& video) {
  LastSavedVideo_ = video;
  parts_.page.CaptureChanged();
}

// ---------------------------------------------------------------- what the graph tells

void CaptureSession::TriggerFired(const std::string& /*label*/, int /*shot*/, std::int64_t /*ns*/) {
  monitoring_.TriggerFired();
}

void CaptureSession::BlockWritten(const std::string& /*label*/) { monitoring_.BlockWritten(); }

void CaptureSession::PictureCame(const std::string& label) {
  const int camera = label == "Video Renderer 2" ? 1 : 0;
  std::string& words = words_[static_cast<std::size_t>(camera)];
  const bool first = !words.empty();
  words.clear();
  if (first) parts_.page.CaptureChanged();
  parts_.page.LivePictureCame(camera);
}

/// Why there is no picture of a camera of the setup; empty for one that is there.
std::string CaptureSession::WhyAbsent(int camera) const {
  const std::string& name = parts_.setup.Shown(camera).name;
  const bool known = parts_.setup.Devices().Known();
  if (name.empty())
    return known ? Tr("No camera is connected. Plug one in, and it shows here.") : Tr("Looking for cameras...");
  if (!known || parts_.setup.ShownDevice(camera)) return {};
  return Tr("{} is not connected. Plug it in, and it shows here.", name);
}

void CaptureSession::SourceFailed(const std::string& label, const std::string& why) {
  const bool microphone = label != kSources[0] && label != kSources[1];
  const int camera = label == kSources[1] ? 1 : 0;
  const std::string absent = WhyAbsent(two_ ? camera : parts_.setup.Use() == CameraUse::Second ? 1 : 0);
  if (microphone) Say(why);
  else words_[static_cast<std::size_t>(camera)] = absent.empty() ? why : absent;
  if (phase_ == CapturePhase::Writing) {
    tallies_[static_cast<std::size_t>(camera)].fault = why;
    if (timed_) StopTimed();
    else StopCapture();
    return;
  }
  // A camera that another program has, or that is being plugged in anew, is asked again.
  if (phase_ == CapturePhase::LivePreview && open_) RetryLater(microphone ? -1 : camera, false, 0);
  parts_.page.CaptureChanged();
}

/// A try that is in vain would cost what is remembered of the other camera: while triggers are waited for it is made
/// once a camera that had gone is in the list again, and of one that never left it now and then.
/// @param camera  -1: the microphone
/// @param away    it was not in the list since it failed
void CaptureSession::RetryLater(int camera, bool away, int tries) {
  retry_ = HostTimer(parts_.host, kRetryMs, false, [this, camera, away, tries] {
    const bool second = two_ ? camera == 1 : parts_.setup.Use() == CameraUse::Second;
    const bool there = camera < 0 || parts_.setup.ShownDevice(second ? 1 : 0);
    const bool other = two_ && camera >= 0 && words_[static_cast<std::size_t>(1 - camera)].empty();
    const bool soon = !other || (there && away) || tries >= kSeldom;
    if (monitoring_.Armed() && (monitoring_.TriggerPending() || !there || !soon))
      return RetryLater(camera, away || !there, tries + 1);
    parts_.naming.SetCameraUse(parts_.setup.Use());
    if (open_ && phase_ == CapturePhase::LivePreview && !saving_) BuildCaptureGraph();
  });
}

/// The window alone is dark: what is recorded is what the camera gives.
void CaptureSession::PreviewFailed(const std::string& label) {
  words_[label == "Video Renderer 2" ? 1 : 0] =
      phase_ == CapturePhase::Writing ? Tr("The picture cannot be shown; the recording goes on.")
                                      : Tr("The picture of this camera cannot be shown. It can be recorded "
                                           "all the same.");
  parts_.page.CaptureChanged();
}

void CaptureSession::SinkFailed(const std::string& label, const std::string& why) {
  const int camera = label == kWriters[1] ? 1 : 0;
  if (phase_ == CapturePhase::Writing) {
    tallies_[static_cast<std::size_t>(camera)].fault = why;
    return timed_ ? StopTimed() : StopCapture();
  }
  if (!monitoring_.Armed()) return;
  Say(why);
  RetryLater(camera, false, 0);
}

}  // namespace kinalyx
