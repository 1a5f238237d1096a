#include "capture/Monitoring.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "core/Settings.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr int kPollMs = 50;
constexpr int kFinishMs = 3000;   ///< with which a program that ends waits for what is being kept
constexpr int kRestartMs = 1200;  ///< how long it is told that a video was kept

constexpr std::string_view kBlocks[] = {"MV Block Recording", "MV Block Recording 2"};
constexpr std::string_view kWriters[] = {"FileWriter", "FileWriter 2"};
constexpr std::string_view kTrigger = "Audio Trigger";

constexpr const char* kMonitoringSound = TrLater("Microphone Active... Monitoring for Sound");
constexpr const char* kMonitoringVideo = TrLater("Monitoring Video... Click at end of swing.");
constexpr const char* kReached = TrLater("Sound Level Reached... Finishing Video Capture");
constexpr const char* kProcessing = TrLater("Processing Video...");
constexpr const char* kSaved = TrLater("Video Saved... Restarting...");

// Of the machine's memory a quarter is for pictures, whatever the number of cameras.
constexpr std::int64_t kShare = 4;
constexpr std::int64_t kLeastBound = std::int64_t{256} << 20;
constexpr std::int64_t kMostBound = std::int64_t{4} << 30;

}  // namespace

Monitoring::Monitoring(Parts parts)
    : parts_(parts),
      keeper_({.settings = parts.settings,
               .setup = parts.setup,
               .files = parts.files,
               .jobs = parts.jobs,
               .events = *this,
               .trimProgram = parts.trimProgram}) {}

Monitoring::~Monitoring() = default;

void Monitoring::Arm(bool on) {
  if (on && !Keeping()) pending_ = 0;
  armed_ = on;
  restartTimer_.Stop();
}

TriggerWindow Monitoring::Window() const {
  return Sound() ? SoundWindow(parts_.settings) : OneClickWindow(parts_.settings);
}

IBlockRecordingFilter* Monitoring::Block(int camera) const {
  return graph_ ? graph_->GraphFilterByLabel<IBlockRecordingFilter>(kBlocks[camera]) : nullptr;
}

Outcome Monitoring::Prepare(IGraph& graph, int cameras, bool second) {
  if (const Outcome ready = parts_.files.Prepare(); !ready) return ready;
  if (Sound()) {
    const std::string microphone = parts_.setup.Microphone();
    if (microphone.empty()) return Outcome::Failed(Tr("No microphone is connected. Plug one in, and try again."));
    if (const Outcome bound = graph.GraphSetDevice(kTrigger, microphone); !bound) return bound;
  }
  const std::int64_t ram = parts_.host.System().ramKilobytes * 1024;
  const std::int64_t bound = std::clamp(ram / kShare, kLeastBound, kMostBound) / cameras;
  const TriggerWindow window = Window();
  for (int camera = 0; camera < cameras; ++camera) {
    auto* block = graph.GraphFilterByLabel<IBlockRecordingFilter>(kBlocks[camera]);
    if (!block) return Outcome::Failed(Tr("This graph remembers nothing."));
    block->SetBound(bound);
    block->BlockRecordingSetStart(window.start);
    block->BlockRecordingSetEnd(window.end);
    const Outcome set = graph.GraphSetFileSink(kWriters[camera], parts_.files.TriggeredPath(camera));
    if (!set) return set;
  }
  cameras_ = cameras;
  writers_ = {keeper_.Begin(cameras, second, parts_.naming), {}};
  return Outcome();
}

void Monitoring::Begin(IGraph& graph) {
  graph_ = &graph;
  for (int camera = 0; camera < cameras_; ++camera)
    if (const IBlockRecordingFilter* block = Block(camera))
      writers_.cameras[static_cast<std::size_t>(camera)] = block->Blocks();
  TakeLevels();
  UpdateAudioLevelTimer_ = HostTimer(parts_.host, kPollMs, true, [this] { Poll(); });
  SayWaiting();
}

void Monitoring::End() {
  if (!graph_) return;
  UpdateAudioLevelTimer_.Stop();
  windowTimer_.Stop();
  graph_ = nullptr;
  ending_.push_back(std::exchange(writers_, {}));
  FetchEnding();
  if (Sound()) parts_.events.SoundCame(0, false);
}

void Monitoring::SayWaiting() { parts_.events.MonitoringSays(Tr(Sound() ? kMonitoringSound : kMonitoringVideo)); }

void Monitoring::Poll() {
  auto* trigger = graph_->GraphFilterByLabel<IAudioTriggerFilter>(kTrigger);
  parts_.events.SoundCame(trigger ? trigger->Level() : 0, false);
}

/// The meter jumps to its end, and the window of the trigger runs out before anything else is told.
void Monitoring::TriggerFired() {
  ++pending_;
  restartTimer_.Stop();
  if (Sound()) {
    parts_.events.SoundCame(1, true);
    parts_.events.MonitoringSays(Tr(kReached));
  }
  windowTimer_ = HostTimer(parts_.host, static_cast<int>(std::lround(std::abs(Window().end) * 1000)), false, [this] {
    if (pending_ > 0) parts_.events.MonitoringSays(Tr(kProcessing));
  });
}

void Monitoring::BlockWritten() { Fetch(); }

void Monitoring::Fetch() {
  for (int camera = 0; camera < cameras_; ++camera)
    if (const auto& writer = writers_.cameras[static_cast<std::size_t>(camera)])
      keeper_.Take(writers_.run, camera, writer->TakeWritten());
}

/// A slow disk may still be at the last blocks of a graph that is no more.
void Monitoring::FetchEnding() {
  for (auto at = ending_.begin(); at != ending_.end();) {
    bool writing = false;
    for (int camera = 0; camera < 2; ++camera) {
      const auto& writer = at->cameras[static_cast<std::size_t>(camera)];
      if (!writer) continue;
      writing = writer->Writing() || writing;
      keeper_.Take(at->run, camera, writer->TakeWritten());
    }
    if (!writing) keeper_.End(at->run);
    at = writing ? std::next(at) : ending_.erase(at);
  }
  if (ending_.empty()) endingTimer_.Stop();
  else if (!endingTimer_.Running()) endingTimer_ = HostTimer(parts_.host, kPollMs, true, [this] { FetchEnding(); });
}

void Monitoring::FinishKeeping() {
  const std::int64_t until = parts_.host.timeGetTime() + kFinishMs;
  while (Keeping() && parts_.host.timeGetTime() < until) parts_.host.DoEvents();
}

bool Monitoring::Fire() {
  auto* button = graph_ && armed_ ? graph_->GraphFilterByLabel<ISwitchFilter>("MV Switch") : nullptr;
  return button && button->Fire(0);
}

void Monitoring::TakeLevels() {
  auto* trigger = graph_ ? graph_->GraphFilterByLabel<IAudioTriggerFilter>(kTrigger) : nullptr;
  if (!trigger) return;
  trigger->SetThreshold(ThresholdOf(parts_.settings));
  trigger->SetGain(GainOf(parts_.settings));
}

void Monitoring::SetThreshold(int percent) {
  parts_.settings.Set(parts_.settings.TriggerLevel, std::to_string(percent));
  TakeLevels();
}

void Monitoring::SetInputLevel(int percent) {
  parts_.settings.Set(parts_.settings.SoundLevel, std::to_string(percent));
  TakeLevels();
}

MemoryTally Monitoring::Memory() const {
  MemoryTally memory;
  memory.wanted = -Window().start;
  memory.seconds = memory.wanted;
  for (int camera = 0; camera < cameras_; ++camera) {
    const IBlockRecordingFilter* block = Block(camera);
    if (!block) continue;
    const RingTally ring = block->Ring();
    memory.seconds = std::min(memory.seconds, ring.seconds);
    memory.bytes += ring.bytes;
    memory.bound += ring.bound;
  }
  return memory;
}

void Monitoring::BlockKept(const SavedRecording& saved, int videos) {
  pending_ = std::max(0, pending_ - 1);
  CapturedCount_ += videos;
  parts_.naming.GetVideoName();  // the next of the series
  parts_.events.MonitoringKept(saved.videos[0]);
  // Who has triggered again hears of that.
  if (!saved.note.empty()) return parts_.events.MonitoringSays(saved.note);
  if (pending_ > 0 || !armed_) return;
  parts_.events.MonitoringSays(Tr(kSaved));
  restartTimer_ = HostTimer(parts_.host, kRestartMs, false, [this] {
    if (armed_ && pending_ == 0) SayWaiting();
  });
}

void Monitoring::BlockLost(const std::string& why) {
  pending_ = std::max(0, pending_ - 1);
  ++lost_;
  parts_.host.Note(MessageKind::Warning, "A triggered video was not kept.");
  parts_.events.MonitoringSays(Tr("Last Video WAS NOT SAVED: {}", why));
}

}  // namespace kinalyx
