#include "capture/mirror/MirrorSession.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string_view>
#include <utility>

#include "capture/templates/CaptureTemplates.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr std::int64_t kSecondNs = 1'000'000'000;
constexpr std::int64_t kMebi = 1 << 20;
constexpr int kLookMs = 250;                         // between two looks at how the cameras are
constexpr int kStepMs = 5;                           // between two steps of the panes, where they have no threads
constexpr int kStatusMs = 6000;                      // for which it is told what has become of a command
constexpr int kSoonMs = 400;                         // after a camera has failed: it may have been just handed over
constexpr int kRetryMs = 3000;                       // after it has failed again
constexpr int kRareMs = 30'000;                      // with another one beside it, which each new run disturbs
constexpr std::int64_t kAwayNs = 3 * kSecondNs / 2;  // without a picture: the camera is away
constexpr std::int64_t kLeastBound = 256 * kMebi;
constexpr std::int64_t kPartOfMemory = 8;

// Labels of the templates, by camera.
constexpr std::string_view kSources[] = {"VideoSource", "VideoSource 2"};
constexpr std::string_view kRecorders[] = {"MV Block Recording", "MV Block Recording 2"};
constexpr std::string_view kWriters[] = {"FileWriter", "FileWriter 2"};

std::int64_t Ns(double seconds) { return std::llround(seconds * static_cast<double>(kSecondNs)); }
std::int64_t SecondsUp(std::int64_t ns) { return (std::max<std::int64_t>(0, ns) + kSecondNs - 1) / kSecondNs; }

std::string WordsOf(LoopSpeed speed) {
  switch (speed) {
    case LoopSpeed::Quarter: return Tr("loop 1/4");
    case LoopSpeed::Half: return Tr("loop 1/2");
    case LoopSpeed::Full: break;
  }
  return Tr("loop");
}

}  // namespace

MirrorSession::MirrorSession(Parts parts)
    : parts_(std::move(parts)),
      choices_(ReadMirrorChoices(parts_.choicesPath)),
      stored_(choices_),
      keeper_({parts_.host, parts_.settings, parts_.naming, parts_.files, parts_.jobs, *this}),
      self_(std::make_shared<MirrorSession*>(this)),
      bound_(std::max(kLeastBound, parts_.host.System().ramKilobytes * 1024 / kPartOfMemory)) {
  for (int pane = 0; pane < kMostPanes; ++pane) {
    panes_[static_cast<std::size_t>(pane)] = std::make_unique<MirrorPane>([post = parts_.post, self = self_, pane] {
      post->Post([self, pane] {
        if (*self) (*self)->parts_.view.PanePictureCame(pane);
      });
    });
    panes_[static_cast<std::size_t>(pane)]->Mirror(choices_.mirrored);
  }
  parts_.setup.Listen(*this);
}

MirrorSession::~MirrorSession() {
  parts_.setup.StopListening(*this);
  *self_ = nullptr;
  StopGraph();
}

// ---------------------------------------------------------------- coming and going

void MirrorSession::Open() {
  if (open_) return;
  open_ = true;
  student_ = parts_.remembered;
  parts_.naming.SetFolder(LibraryTree(parts_.settings).StudentFolder(student_[0], student_[1]));
  Run();
  GoOn();
  look_ = HostTimer(parts_.host, kLookMs, true, [this] { Look(); });
  if (parts_.on == On::HostTimer)
    step_ = HostTimer(parts_.host, kStepMs, true, [this] {
      for (int pane = 0; pane < choices_.panes; ++pane)
        (void)panes_[static_cast<std::size_t>(pane)]->Step(parts_.now());
    });
}

void MirrorSession::Close() {
  if (!open_) return;
  open_ = false;
  for (HostTimer* timer : {&look_, &step_, &retry_}) timer->Stop();
  for (auto& thread : threads_) thread.reset();
  looping_ = frozen_ = false;
  StopGraph();
  for (Camera& camera : cameras_) camera.memory->Clear();
  for (const auto& pane : panes_) pane->Forget();
  StoreChoices();
}

void MirrorSession::Lend(bool lent) {
  if (lent == lent_) return;
  lent_ = lent;
  if (!open_) return;
  retry_.Stop();
  if (lent_) StopGraph();
  else Run();
  Look();
}

// ---------------------------------------------------------------- the graph

IBlockRecordingFilter* MirrorSession::Recorder(int camera) {
  return graph_ ? graph_->GraphFilterByLabel<IBlockRecordingFilter>(kRecorders[camera]) : nullptr;
}

/// Begins to remember, or begins again: what there is of earlier runs stays.
void MirrorSession::Run() {
  retry_.Stop();
  EndRun();
  if (lent_) return;
  if (!Load()) return RetryLater();
  LimitMemory();
  ready_ = parts_.files.Prepare();
  for (int camera = 0; camera < CameraCount(); ++camera) {
    Bind(camera);
    if (ready_) (void)graph_->GraphSetFileSink(kWriters[camera], parts_.files.TriggeredPath(camera));
  }
  begunNs_ = parts_.now();
  const Outcome run = graph_->GraphRun();
  for (int camera = 0; camera < CameraCount(); ++camera) {
    if (!run) cameras_[static_cast<std::size_t>(camera)].fault = run.Why();
    if (IBlockRecordingFilter* recorder = Recorder(camera))
      cameras_[static_cast<std::size_t>(camera)].memory->Follow(*recorder);
  }
  if (!run) RetryLater();
}

std::vector<CameraChoice> MirrorSession::ChosenCameras() const {
  const CaptureSetup& setup = parts_.setup;
  switch (setup.Use()) {
    case CameraUse::First: return {setup.Shown(0)};
    case CameraUse::Second: return {setup.Shown(1)};
    case CameraUse::Both: break;
  }
  return {setup.Shown(0), setup.Shown(1)};
}

/// Chosen on another page while the mirror stands open.
void MirrorSession::CaptureChoiceChanged() {
  if (!open_ || lent_ || ChosenCameras() == served_) return;
  Run();
  GoOn();
}

/// The graph of the cameras that are at work. Another camera's past is not this one's.
bool MirrorSession::Load() {
  const CameraUse use = parts_.setup.Use();
  served_ = ChosenCameras();
  const std::array<std::string, 2> devices{parts_.setup.Shown(use == CameraUse::Second ? 1 : 0).name,
                                           use == CameraUse::Both ? parts_.setup.Shown(1).name : std::string()};
  const bool two = use == CameraUse::Both;
  if (!graph_) {
    graph_ = parts_.makeGraph(*this);
    loaded_ = false;
  }
  for (std::size_t i = 0; i < cameras_.size(); ++i) {
    if (cameras_[i].device == devices[i]) continue;
    cameras_[i].device = devices[i];
    cameras_[i].memory->Clear();
  }
  if (loaded_ && two == two_) return true;
  two_ = two;
  loaded_ = static_cast<bool>(graph_->GraphXmlLoad(two ? MVTwoCamClickAN : MVOneCamClickAN));
  return loaded_;
}

void MirrorSession::Bind(int camera) {
  Camera& at = cameras_[static_cast<std::size_t>(camera)];
  const CaptureSetup& setup = parts_.setup;
  const int shown = setup.Use() == CameraUse::Second ? 1 : camera;
  const std::string_view label = kSources[camera];
  at.fault.clear();
  if (at.device.empty()) {
    at.fault = Tr("No camera is connected. Plug one in, and it shows here.");
  } else if (!setup.ShownDevice(shown)) {
    at.fault = Tr("{} is not connected. Plug it in, and it shows here.", at.device);
  } else if (const Outcome bound = graph_->GraphSetDevice(label, at.device); !bound) {
    at.fault = bound.Why();
  } else if (const auto size = SizeOf(setup.Shown(shown).size)) {
    const std::string& format = setup.Shown(shown).format;
    (void)graph_->GraphSetVideoFormat(label, size->width, size->height, FormatCode(format));
    if (const double rate = FormatRate(format); rate > 0) (void)graph_->GraphSetFrameTime(label, 1 / rate);
  }
}

/// What is being written is written, and what is remembered stays.
void MirrorSession::EndRun() {
  if (!graph_) return;
  for (Camera& camera : cameras_) camera.memory->LetGo();
  (void)graph_->GraphStop();
  keeper_.TakeWritten();
}

/// The cameras are free when this returns.
void MirrorSession::StopGraph() {
  EndRun();
  graph_.reset();
}

void MirrorSession::SourceFailed(const std::string& label, const std::string& why) {
  Camera& camera = cameras_[label == kSources[1] ? 1 : 0];
  if (camera.fault.empty()) camera.fault = why;
  RetryLater();
  Look();
}

void MirrorSession::RetryLater() {
  if (!open_ || lent_) return;
  ++retries_;
  int milliseconds = retries_ == 1 ? kSoonMs : kRetryMs;
  const bool disturbs = two_ && std::ranges::any_of(cameras_, [&](const Camera& camera) {
                          const PictureMemory::Tally tally = camera.memory->Take();
                          return tally.any && parts_.now() - tally.newestNs < kAwayNs;
                        });
  if (disturbs && retries_ > 2) milliseconds = std::min(kRareMs, kRetryMs * retries_);
  retry_ = HostTimer(parts_.host, milliseconds, false, [this] { Retry(); });
}

/// A camera that has been unplugged is waited for; one that another program has is asked again.
void MirrorSession::Retry() {
  const CameraUse use = parts_.setup.Use();
  bool worth = false;
  for (int camera = 0; camera < CameraCount(); ++camera) {
    const Camera& at = cameras_[static_cast<std::size_t>(camera)];
    const int shown = use == CameraUse::Second ? 1 : camera;
    worth = worth || (!at.fault.empty() && parts_.setup.ShownDevice(shown));
  }
  if (worth) return Run();
  retry_ = HostTimer(parts_.host, kRetryMs / 3, false, [this] { Retry(); });
}

// ---------------------------------------------------------------- what the user chooses

void MirrorSession::StoreChoices() {
  if (choices_ == stored_) return;
  stored_ = choices_;
  if (const Outcome stored = WriteMirrorChoices(parts_.choicesPath, choices_); !stored)
    parts_.host.Note(MessageKind::Warning, fmt::format("The choices of the mirror were not kept: {}", stored.Why()));
}

int MirrorSession::PaneCamera(int pane) const { return two_ ? choices_.cameras[static_cast<std::size_t>(pane)] : 0; }

/// All panes show their delays.
void MirrorSession::GoOn() {
  looping_ = frozen_ = false;
  for (int pane = 0; pane < kMostPanes; ++pane) LetRun(pane);
  LimitMemory();
  Changed();
}

void MirrorSession::LetRun(int pane) {
  const auto at = static_cast<std::size_t>(pane);
  if (pane >= choices_.panes || !open_ || resting_) {
    threads_[at].reset();
    return;
  }
  panes_[at]->Behind(CameraOf(pane).memory, Ns(choices_.Delay(pane)));
  if (parts_.on == On::Threads && !threads_[at]) threads_[at] = std::make_unique<PaneThread>(*panes_[at]);
  if (threads_[at]) threads_[at]->Wake();
}

void MirrorSession::WakeAll() {
  for (const auto& thread : threads_)
    if (thread) thread->Wake();
}

void MirrorSession::SetPanes(int panes) {
  choices_.panes = std::clamp(panes, 1, kMostPanes);
  chosen_ = std::min(chosen_, choices_.panes - 1);
  GoOn();
}

void MirrorSession::Choose(int pane) {
  if (pane < 0 || pane >= choices_.panes || pane == chosen_) return;
  chosen_ = pane;
  Changed();
}

void MirrorSession::SetDelay(double seconds) {
  choices_.SetDelay(chosen_, seconds);
  GoOn();
}

void MirrorSession::SetCamera(int camera) {
  if (!two_) return;
  choices_.cameras[static_cast<std::size_t>(chosen_)] = camera == 1 ? 1 : 0;
  GoOn();
}

void MirrorSession::SetLoopSeconds(int seconds) {
  choices_.loopSeconds = std::clamp(seconds, kLeastLoop, kMostLoop);
  LimitMemory();
  Changed();
}

void MirrorSession::SetSpeed(LoopSpeed speed) {
  choices_.speed = speed;
  if (looping_)
    for (int pane = 0; pane < choices_.panes; ++pane)
      panes_[static_cast<std::size_t>(pane)]->SetSpeed(PartOf(speed), parts_.now());
  WakeAll();
  Changed();
}

void MirrorSession::SetMirrored(bool on) {
  choices_.mirrored = on;
  for (const auto& pane : panes_) pane->Mirror(on);
  WakeAll();
  Changed();
}

/// The last seconds up to the picture that is shown; none while a pane shows nothing of its own.
std::vector<PackedPicture> MirrorSession::LastSeen(int pane) const {
  const MirrorPane& at = *panes_[static_cast<std::size_t>(pane)];
  const std::int64_t moment = at.Time().MomentAt(parts_.now());
  std::vector<PackedPicture> held = at.Held();
  if (held.empty()) return CameraOf(pane).memory->Between(moment - Ns(choices_.loopSeconds), moment);
  // Of a loop all; of a still picture what led to it.
  if (!looping_ && held.front().ns < moment) std::erase_if(held, [&](const auto& one) { return one.ns > moment; });
  return held;
}

void MirrorSession::ToggleLoop() {
  if (looping_) return GoOn();
  bool any = false;
  for (int pane = 0; pane < choices_.panes; ++pane) {
    std::vector<PackedPicture> seen = LastSeen(pane);
    if (seen.empty()) continue;
    panes_[static_cast<std::size_t>(pane)]->Loop(std::move(seen), PartOf(choices_.speed), parts_.now());
    any = true;
  }
  if (!any) return Say(Tr("There is nothing to loop yet."));
  looping_ = true;
  frozen_ = false;
  LimitMemory();
  WakeAll();
  Changed();
}

void MirrorSession::ToggleFreeze() {
  if (frozen_ && !looping_) return GoOn();
  const bool on = !frozen_;
  bool any = looping_;
  for (int pane = 0; pane < choices_.panes; ++pane) {
    MirrorPane& at = *panes_[static_cast<std::size_t>(pane)];
    if (looping_) {
      at.Freeze(on, parts_.now());
    } else if (std::vector<PackedPicture> seen = LastSeen(pane); !seen.empty()) {
      at.Hold(std::move(seen), parts_.now());
      any = true;
    }
  }
  if (!any) return Say(Tr("There is nothing to look at yet."));
  frozen_ = on;
  LimitMemory();
  WakeAll();
  Changed();
}

void MirrorSession::Rest(bool on) {
  if (std::exchange(resting_, on) == on || !open_) return;
  for (int pane = 0; pane < choices_.panes; ++pane) {
    std::unique_ptr<PaneThread>& thread = threads_[static_cast<std::size_t>(pane)];
    if (on) thread.reset();
    else if (parts_.on == On::Threads && !thread)
      thread = std::make_unique<PaneThread>(*panes_[static_cast<std::size_t>(pane)]);
  }
}

void MirrorSession::StepBy(int pictures) {
  if (!frozen_) return;
  for (int pane = 0; pane < choices_.panes; ++pane)
    panes_[static_cast<std::size_t>(pane)]->StepBy(pictures, parts_.now());
  WakeAll();
}

void MirrorSession::Keep() {
  IBlockRecordingFilter* recorder = Recorder(PaneCamera(chosen_));
  if (!recorder) return Say(Tr("Nothing can be kept while the capture page has the camera."));
  std::vector<PackedPicture> seen = LastSeen(chosen_);
  if (seen.size() < 2) return Say(Tr("There is nothing to keep yet."));
  if (!ready_) return Say(Tr("Not kept. {}", ready_.Why()));
  const double seconds = static_cast<double>(seen.back().ns - seen.front().ns) / static_cast<double>(kSecondNs);
  const bool second = two_ ? PaneCamera(chosen_) == 1 : parts_.setup.Use() == CameraUse::Second;
  if (!keeper_.Keep(*recorder, second, std::move(seen))) return;
  Say(Tr("Keeping {:.1f} s...", seconds));
}

void MirrorSession::BlockWritten(const std::string&) { keeper_.TakeWritten(); }

void MirrorSession::KeepTold(const std::string& words, bool) { Say(words); }

// ---------------------------------------------------------------- what the window shows

/// Of what is looped or held. Panes may hold the same pictures, of which there is but one.
std::int64_t MirrorSession::HeldBytes() const {
  std::set<const void*> counted;
  std::int64_t bytes = 0;
  for (const auto& pane : panes_)
    for (const PackedPicture& picture : pane->Held())
      if (counted.insert(picture.bytes.get()).second) bytes += static_cast<std::int64_t>(picture.size);
  return bytes;
}

/// As far back as the longest delay and what may be looped or kept of it; never less than the longest that there is.
void MirrorSession::LimitMemory() {
  heldBytes_ = HeldBytes();
  const std::int64_t reach = Ns(kMostDelay + choices_.loopSeconds + 1);
  const std::int64_t free = std::max(bound_ / 4, bound_ - heldBytes_);
  for (const Camera& camera : cameras_) camera.memory->Limit(reach, free / CameraCount());
}

void MirrorSession::WantSize(int pane, int width, int height) {
  const auto at = static_cast<std::size_t>(pane);
  panes_[at]->WantSize(width, height);
  if (threads_[at]) threads_[at]->Wake();
}

std::string MirrorSession::Badge(int pane) const {
  if (looping_) return frozen_ ? Tr("loop, still") : WordsOf(choices_.speed);
  if (frozen_) return Tr("still");
  const double delay = choices_.Delay(pane);
  return delay == 0 ? Tr("now") : Tr("{:g} s ago", delay);
}

PaneNote MirrorSession::NoteOf(int pane) const {
  if (looping_ || frozen_) {
    if (panes_[static_cast<std::size_t>(pane)]->Holds()) return {};
    return {Tr("Nothing of that time is remembered yet."), true};
  }
  const Camera& camera = CameraOf(pane);
  const PictureMemory::Tally tally = camera.memory->Take();
  const std::int64_t now = parts_.now();
  const double delay = choices_.Delay(pane);
  const std::int64_t moment = now - Ns(delay);
  const bool away = now - tally.newestNs > kAwayNs;
  const std::string why = lent_ ? Tr("The capture page has the camera. The mirror goes on when that page is left.")
                          : camera.fault.empty() ? Tr("The camera gives no picture.")
                                                 : camera.fault;
  if (!tally.any) return {lent_ || !camera.fault.empty() ? why : Tr("Starting the camera..."), true};
  if (moment - tally.newestNs > kAwayNs) return {why, true};
  if (moment < tally.oldestNs) {
    if (tally.full)
      return {Tr("Only {} s of this camera fit into the memory. Choose a shorter delay.",
                 (tally.newestNs - tally.oldestNs) / kSecondNs),
              true};
    return {Tr("{:g} s behind: first picture in {} s", delay, SecondsUp(tally.oldestNs - moment)), true};
  }
  const auto seen = camera.memory->At(moment);
  if (seen && moment - seen->ns > kAwayNs) return {Tr("The camera gave no picture then."), true};
  if (!away) return {};
  return {Tr("{} What it saw before goes on for {} s.", why, SecondsUp(tally.newestNs - moment)), false};
}

std::string MirrorSession::WordsOfMemory() const {
  std::int64_t bytes = heldBytes_;
  std::int64_t longest = 0;
  for (const Camera& camera : cameras_) {
    const PictureMemory::Tally tally = camera.memory->Take();
    bytes += tally.bytes;
    if (tally.any) longest = std::max(longest, tally.newestNs - tally.oldestNs);
  }
  return Tr("remembers {} s, {} MiB of {}", longest / kSecondNs, bytes / kMebi, bound_ / kMebi);
}

std::string MirrorSession::NextName() const {
  const bool second = two_ ? PaneCamera(chosen_) == 1 : parts_.setup.Use() == CameraUse::Second;
  return VideoName(second ? parts_.naming.CapturedVideoPath2() : parts_.naming.CapturedVideoPath());
}

std::string MirrorSession::StudentName() const { return LastName(parts_.naming.Folder()); }

/// Who is chosen on another page meanwhile is meant from then on.
void MirrorSession::FollowStudent() {
  if (student_ == parts_.remembered) return;
  student_ = parts_.remembered;
  parts_.naming.SetFolder(LibraryTree(parts_.settings).StudentFolder(student_[0], student_[1]));
}

/// How the cameras are, now and then.
void MirrorSession::Look() {
  const std::int64_t now = parts_.now();
  FollowStudent();
  bool well = true;
  for (int camera = 0; camera < CameraCount(); ++camera) {
    Camera& at = cameras_[static_cast<std::size_t>(camera)];
    at.memory->Trim(now);
    const PictureMemory::Tally tally = at.memory->Take();
    const bool gives = tally.any && tally.newestNs > begunNs_ && now - tally.newestNs < kAwayNs;
    if (gives && !retry_.Running()) at.fault.clear();
    well = well && gives;
  }
  if (well && !retry_.Running()) retries_ = 0;
  bool changed = std::exchange(memoryWords_, WordsOfMemory()) != memoryWords_;
  for (int pane = 0; pane < choices_.panes; ++pane) {
    PaneNote& note = notes_[static_cast<std::size_t>(pane)];
    const PaneNote before = std::exchange(note, NoteOf(pane));
    changed = changed || before != note;
  }
  if (changed) parts_.view.MirrorChanged();
}

void MirrorSession::Say(std::string status) {
  status_ = std::move(status);
  statusTimer_ = HostTimer(parts_.host, kStatusMs, false, [this] {
    status_.clear();
    parts_.view.MirrorChanged();
  });
  parts_.view.MirrorChanged();
}

void MirrorSession::Changed() {
  if (open_) Look();
  parts_.view.MirrorChanged();
}

}  // namespace kinalyx
