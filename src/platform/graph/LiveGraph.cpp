#include "platform/graph/LiveGraph.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <initializer_list>
#include <optional>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/graph/GraphRun.h"
#include "platform/graph/LessonLane.h"
#include "platform/graph/RecordingLane.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kFilesPatience = 2s;      // with which the files of a run are waited for
constexpr auto kBlocksPatience = 200ms;  // with which those of triggers are: they are written all the same
constexpr auto kDevicesPatience = 1s;    // with which, at the end of all, its devices are

}  // namespace

struct LiveGraph::Engine {
  Engine(IGraphEvents& told, std::shared_ptr<const DeviceSources> devices, std::shared_ptr<IPost> posting)
      : events(told), sources(std::move(devices)), post(std::move(posting)) {}

  void MakeFaces();
  void ConnectTriggers();
  /// Whether a gate says when that file is written; else it is written all the time.
  bool Gated(const std::shared_ptr<WriterFace>& writer) const;
  /// The setting of a filter that has one of these roles; null where it is none.
  FilterSetting* SettingOf(std::string_view label, std::initializer_list<FilterRole> roles);
  Outcome StopRun();
  std::shared_ptr<IFileLane> MakeLane(std::size_t writer, const GraphNews& news) const;

  IGraphEvents& events;
  const std::shared_ptr<const DeviceSources> sources;
  const std::shared_ptr<IPost> post;
  GraphPlan plan;
  std::vector<FilterSetting> settings;
  FilterFaces faces;
  std::unique_ptr<kinalyx::GraphRun> run;   ///< under way
  std::unique_ptr<kinalyx::GraphRun> past;  ///< stopped, and perhaps still letting its devices go
};

namespace {

Outcome NoFilter(std::string_view what, std::string_view label) {
  return Outcome::Failed(Tr("The graph has no {} \"{}\".", what, label));
}

}  // namespace

LiveGraph::LiveGraph(IGraphEvents& events, std::shared_ptr<const DeviceSources> sources, std::shared_ptr<IPost> post)
    : engine_(std::make_unique<Engine>(events, std::move(sources), std::move(post))) {}

LiveGraph::~LiveGraph() {
  (void)engine_->StopRun();
  if (engine_->past) engine_->past->WaitEnded(Clock::now() + kDevicesPatience);
}

Outcome LiveGraph::GraphXmlLoad(std::string_view text) {
  GraphClear();
  Result<GraphPlan> plan = ReadTemplate(text);
  if (!plan) return plan.Failure();
  engine_->plan = std::move(*plan);
  engine_->settings.resize(engine_->plan.filters.size());
  engine_->MakeFaces();
  return Outcome();
}

void LiveGraph::Engine::MakeFaces() {
  const std::size_t count = plan.filters.size();
  faces.renderers.resize(count);
  faces.writers.resize(count);
  faces.gates.resize(count);
  faces.triggers.resize(count);
  faces.switches.resize(count);
  faces.blocks.resize(count);
  faces.lines.resize(count);
  faces.motions.resize(count);
  for (std::size_t i = 0; i < count; ++i) {
    const auto& [label, row, state] = plan.filters[i];
    if (row->role == FilterRole::Renderer) faces.renderers[i] = std::make_shared<RendererFace>(label);
    else if (row->role == FilterRole::Writer) faces.writers[i] = std::make_shared<WriterFace>();
    else if (row->role == FilterRole::Block) faces.blocks[i] = std::make_shared<BlockFace>();
    else if (row->role == FilterRole::Motion) faces.motions[i] = std::make_shared<MotionFace>();
  }
  ConnectTriggers();
  const auto moment = std::make_shared<GateMoment>();
  for (std::size_t i = 0; i < count; ++i) {
    if (plan.filters[i].row->role != FilterRole::Gate) continue;
    const auto writer = plan.Downstream(i, FilterRole::Writer);
    faces.gates[i] = std::make_shared<GateFace>(moment, writer ? faces.writers[*writer] : nullptr);
  }
}

/// A trigger reaches block recorders over links alone, or over one that copies it.
void LiveGraph::Engine::ConnectTriggers() {
  for (std::size_t i = 0; i < plan.filters.size(); ++i) {
    const auto& [label, row, state] = plan.filters[i];
    const bool hears = row->role == FilterRole::AudioTrigger;
    if (!hears && (row->role != FilterRole::Trigger || !row->inputs[0].empty())) continue;
    const auto line = faces.lines[i] = std::make_shared<TriggerLine>(label);
    if (hears) faces.triggers[i] = std::make_shared<AudioTriggerFace>(line);
    else faces.switches[i] = std::make_shared<SwitchFace>(line);
    for (const std::size_t block : plan.AllDownstream(i, FilterRole::Block)) line->Connect(faces.blocks[block]);
  }
}

bool LiveGraph::Engine::Gated(const std::shared_ptr<WriterFace>& writer) const {
  return std::ranges::any_of(faces.gates, [&](const auto& gate) { return gate && gate->Writer() == writer; });
}

/// A file into which a voice goes beside the pictures is a lesson.
std::shared_ptr<IFileLane> LiveGraph::Engine::MakeLane(std::size_t writer, const GraphNews& news) const {
  bool lesson = false, voice = false;
  LessonKind kind = LessonKind::Avi;
  for (std::size_t i = 0; i < plan.filters.size(); ++i) {
    const FilterRow& row = *plan.filters[i].row;
    if (plan.Downstream(i, FilterRole::Writer) != writer) continue;
    if (row.code == "H264") kind = LessonKind::Mp4;
    if (row.role != FilterRole::Microphone) continue;
    lesson = true;
    voice = voice || !settings[i].device.empty();
  }
  const std::string& label = plan.filters[writer].label;
  for (std::size_t i = 0; i < plan.filters.size(); ++i)
    if (faces.blocks[i] && plan.Downstream(i, FilterRole::Writer) == writer)
      return faces.blocks[i]->MakeLane(plan.filters[i].label, news);
  if (lesson) return std::make_shared<LessonLane>(label, news, kind, voice);
  return std::make_shared<RecordingLane>(label, news);
}

FilterSetting* LiveGraph::Engine::SettingOf(std::string_view label, std::initializer_list<FilterRole> roles) {
  const auto found = plan.Find(label);
  if (!found || std::ranges::find(roles, plan.filters[*found].row->role) == roles.end()) return nullptr;
  return &settings[*found];
}

Outcome LiveGraph::GraphSetDevice(std::string_view label, std::string_view device) {
  FilterSetting* setting =
      engine_->SettingOf(label, {FilterRole::Camera, FilterRole::Microphone, FilterRole::AudioTrigger});
  if (!setting) return NoFilter("camera or microphone", label);
  setting->device = device;
  return Outcome();
}

Outcome LiveGraph::GraphSetVideoFormat(std::string_view label, int width, int height, std::string_view format) {
  FilterSetting* setting = engine_->SettingOf(label, {FilterRole::Camera});
  if (!setting) return NoFilter("camera", label);
  if (width <= 0 || height <= 0) return Outcome::Failed(Tr("A picture cannot be {} x {}.", width, height));
  const double rate = setting->mode ? setting->mode->rate : 0;
  setting->mode = PictureMode{width, height, rate, std::string(format)};
  return Outcome();
}

Outcome LiveGraph::GraphSetFrameTime(std::string_view label, double seconds) {
  FilterSetting* setting = engine_->SettingOf(label, {FilterRole::Camera});
  if (!setting) return NoFilter("camera", label);
  if (!(seconds > 0)) return Outcome::Failed(Tr("A picture takes longer than no time."));
  if (!setting->mode) setting->mode = PictureMode{};
  setting->mode->rate = 1 / seconds;
  return Outcome();
}

Outcome LiveGraph::GraphSetAudioPin(int index) {
  // Lines are chosen in the list of devices; a graph hears the one that its microphone has.
  return index == 0 ? Outcome() : Outcome::Failed(Tr("There is no such input of the microphone."));
}

Outcome LiveGraph::GraphSetFileSource(std::string_view label, std::string_view path) {
  FilterSetting* setting = engine_->SettingOf(label, {FilterRole::FileSource});
  if (!setting) return NoFilter("source file", label);
  setting->path = path;
  return Outcome();
}

Outcome LiveGraph::GraphSetFileSink(std::string_view label, std::string_view path) {
  const auto found = engine_->plan.Find(label);
  if (!found || !engine_->faces.writers[*found]) return NoFilter("file to be written", label);
  engine_->faces.writers[*found]->SetPath(std::string(path));
  return Outcome();
}

Outcome LiveGraph::GraphRun() {
  if (engine_->plan.filters.empty()) return Outcome::Failed(Tr("There is no graph that could run."));
  const Outcome stopped = engine_->StopRun();
  GraphNews news(engine_->events, engine_->post);
  const FilterFaces& faces = engine_->faces;
  for (std::size_t i = 0; i < faces.writers.size(); ++i)
    if (faces.writers[i]) faces.writers[i]->SetLane(engine_->MakeLane(i, news));
  for (const auto& gate : faces.gates)
    if (gate) gate->Begin();
  for (const auto& writer : faces.writers)
    if (writer && !engine_->Gated(writer)) writer->Open();
  for (const auto& line : faces.lines)
    if (line) line->Begin(news);
  auto order = std::make_shared<GraphOrder>();
  order->plan = engine_->plan;
  order->settings = engine_->settings;
  order->faces = faces;
  order->sources = engine_->sources;
  order->beginNs = MonotonicNow();
  engine_->run = std::make_unique<kinalyx::GraphRun>(std::move(order), news, std::move(engine_->past));
  return stopped;
}

Outcome LiveGraph::GraphStop() { return engine_->StopRun(); }

/// Files first: what is still on its way belongs to them.
Outcome LiveGraph::Engine::StopRun() {
  if (!run) return Outcome();
  for (const auto& line : faces.lines)
    if (line) line->End();
  for (const auto& gate : faces.gates)
    if (gate) gate->Arm(false);
  for (const auto& writer : faces.writers)
    if (writer && !Gated(writer)) writer->CloseNow();
  const auto until = Clock::now() + kFilesPatience;
  bool closed = true;
  for (const auto& writer : faces.writers) {
    if (!writer) continue;
    const auto lane = writer->Lane();
    if (std::dynamic_pointer_cast<BlockLane>(lane)) (void)lane->WaitClosed(Clock::now() + kBlocksPatience);
    else closed = lane->WaitClosed(until) && closed;
    writer->SetLane(nullptr);
  }
  run->Stop();
  past = std::move(run);
  return closed ? Outcome()
                : Outcome::Failed(Tr("The disk does not answer. The recording will be looked for at the next start."));
}

void LiveGraph::GraphClear() {
  (void)engine_->StopRun();
  engine_->plan = {};
  engine_->settings.clear();
  engine_->faces = {};
}

IGraphFilter* LiveGraph::Filter(std::string_view label) {
  const auto found = engine_->plan.Find(label);
  if (!found) return nullptr;
  const FilterFaces& faces = engine_->faces;
  if (faces.renderers[*found]) return faces.renderers[*found].get();
  if (faces.writers[*found]) return faces.writers[*found].get();
  if (faces.gates[*found]) return faces.gates[*found].get();
  if (faces.blocks[*found]) return faces.blocks[*found].get();
  if (faces.switches[*found]) return faces.switches[*found].get();
  if (faces.motions[*found]) return faces.motions[*found].get();
  return faces.triggers[*found].get();
}

}  // namespace kinalyx
