#include "platform/graph/GraphRun.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/graph/GraphWords.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr GstClockTime kLook = 100 * GST_MSECOND;     // between two looks at the sources
constexpr std::int64_t kNoPictureNs = 5'000'000'000;  // after which a camera that starts is not believed any more
constexpr std::int64_t kSilenceNs = 3'000'000'000;    // and one that has given pictures
constexpr std::int64_t kLastWayNs = 1'000'000'000;    // that the last picture may need to its file
constexpr auto kForerunner = 3s;                      // that the run before may need to let a device go

}  // namespace

/// What the threads of a part and the user interface share. One thread does what may hang: it builds, starts and takes
/// down. The other one watches, and tells what there is to tell even while the first hangs.
struct GraphRun::Part {
  Part(std::shared_ptr<const GraphOrder> ordered, std::vector<std::size_t> own, GraphNews told)
      : order(std::move(ordered)), filters(std::move(own)), news(std::move(told)) {}

  void Build();
  void Start(GstElement* pipeline) const;
  void Watch();
  bool AwaitStrand();
  bool Look(bool drained);
  void LookAtWindows() const;
  bool Hear(GstMessage* message);
  bool HearEnd();
  bool HearError(GstMessage* message);
  void CloseFiles();
  bool WaitEnded(Clock::time_point until);
  void Stop();
  bool SharesDevice(const Part& other) const;
  FilterRole RoleOf(const std::string& label) const { return order->plan.filters[*order->plan.Find(label)].row->role; }

  const std::shared_ptr<const GraphOrder> order;
  const std::vector<std::size_t> filters;
  const GraphNews news;
  std::vector<std::shared_ptr<Part>> before;  ///< who has a device that is needed; not changed any more
  std::shared_ptr<std::atomic<int>> running;  ///< parts of this run that have not come to their end

  std::mutex mutex;
  std::condition_variable changed;
  GstRef<GstBus> bus;  ///< once there is a strand
  std::vector<std::shared_ptr<SourceWatch>> sources;
  bool stop = false;   ///< it is to be taken down
  bool ended = false;  ///< it has been
};

GraphRun::GraphRun(std::shared_ptr<const GraphOrder> order, GraphNews news, std::unique_ptr<GraphRun> before)
    : news_(news) {
  for (auto& filters : PartsOf(order->plan)) parts_.push_back(std::make_shared<Part>(order, std::move(filters), news));
  const auto running = std::make_shared<std::atomic<int>>(static_cast<int>(parts_.size()));
  for (const auto& part : parts_) {
    if (before) part->before = before->StillAtWork(*part);
    part->running = running;
    std::thread([part] { part->Build(); }).detach();
    std::thread([part] { part->Watch(); }).detach();
  }
}

GraphRun::~GraphRun() { Stop(); }

/// The parts of this run, and those for which they wait in vain, that have not let go a device of another part.
std::vector<std::shared_ptr<GraphRun::Part>> GraphRun::StillAtWork(const Part& other) const {
  std::vector<std::shared_ptr<Part>> busy;
  const auto look = [&](const std::shared_ptr<Part>& part) {
    if (part->SharesDevice(other) && !part->WaitEnded(Clock::now())) busy.push_back(part);
  };
  for (const auto& part : parts_) {
    look(part);
    std::ranges::for_each(part->before, look);
  }
  return busy;
}

void GraphRun::Stop() {
  news_.Mute();
  for (const auto& part : parts_) part->Stop();
}

bool GraphRun::WaitEnded(Clock::time_point until) const {
  return std::ranges::all_of(parts_, [&](const auto& part) { return part->WaitEnded(until); });
}

bool GraphRun::Part::SharesDevice(const Part& other) const {
  const auto has = [](const Part& part, const std::string& device) {
    return std::ranges::any_of(part.filters, [&](std::size_t i) { return part.order->settings[i].device == device; });
  };
  return std::ranges::any_of(filters, [&](std::size_t i) {
    const std::string& device = order->settings[i].device;
    return !device.empty() && has(other, device);
  });
}

void GraphRun::Part::Stop() {
  const std::lock_guard lock(mutex);
  stop = true;
  if (bus) gst_bus_post(bus.get(), gst_message_new_application(nullptr, gst_structure_new_empty("stop")));
  changed.notify_all();
}

bool GraphRun::Part::WaitEnded(Clock::time_point until) {
  std::unique_lock lock(mutex);
  return changed.wait_until(lock, until, [this] { return ended; });
}

void GraphRun::Part::Build() {
  const auto patience = Clock::now() + kForerunner;
  const bool ours = std::ranges::all_of(before, [&](const auto& part) { return part->WaitEnded(patience); });
  std::string culprit = order->plan.filters[filters.front()].label;
  // One that hangs is not asked again: each time would leave one more thread hanging.
  Result<Strand> strand = Outcome::Failed(Tr("The camera does not answer."));
  if (ours) strand = BuildStrand(*order, filters, news, culprit);
  std::unique_lock lock(mutex);
  if (!strand) {
    if (!stop) news.SourceFailed(culprit, strand.Why());
    stop = true;
  } else if (!stop) {
    GstElement* pipeline = strand->pipeline.get();
    bus.reset(gst_element_get_bus(pipeline));
    sources = strand->sources;
    changed.notify_all();
    lock.unlock();
    Start(pipeline);
    lock.lock();
    changed.wait(lock, [this] { return stop; });
    lock.unlock();
    gst_element_set_state(pipeline, GST_STATE_NULL);
    strand->pipeline.reset();
    lock.lock();
  }
  ended = true;
  changed.notify_all();
}

void GraphRun::Part::Start(GstElement* pipeline) const {
  // All strands go by the same clock and the same zero, so the times of their pictures can be compared.
  const GstRef<GstClock> clock(gst_system_clock_obtain());
  gst_pipeline_use_clock(GST_PIPELINE(pipeline), clock.get());
  gst_element_set_start_time(pipeline, GST_CLOCK_TIME_NONE);
  gst_element_set_base_time(pipeline, static_cast<GstClockTime>(order->beginNs));
  gst_element_set_state(pipeline, GST_STATE_PLAYING);  // what fails is told on the bus
}

/// Until the part is stopped, fails or ends; then it is taken down.
void GraphRun::Part::Watch() {
  const int kinds = GST_MESSAGE_ERROR | GST_MESSAGE_EOS | GST_MESSAGE_APPLICATION;
  bool over = !AwaitStrand();
  while (!over) {
    const GstMessageRef message(gst_bus_timed_pop_filtered(bus.get(), kLook, static_cast<GstMessageType>(kinds)));
    {
      const std::lock_guard lock(mutex);
      if (stop) return;
    }
    over = message ? Hear(message.get()) : Look(false);
  }
  CloseFiles();
  Stop();
}

/// @return  false when there is nothing to be watched
bool GraphRun::Part::AwaitStrand() {
  std::unique_lock lock(mutex);
  const auto until = Clock::now() + kForerunner + std::chrono::nanoseconds(kNoPictureNs);
  if (changed.wait_until(lock, until, [this] { return stop || bus; })) return !stop;
  news.SourceFailed(order->plan.filters[filters.front()].label, Tr("The camera does not answer."));
  return false;
}

/// A decoder may take all that it is given and make nothing of it.
void GraphRun::Part::LookAtWindows() const {
  const bool given = std::ranges::any_of(sources, [](const auto& source) { return source->camera && source->given; });
  for (const std::size_t filter : filters) {
    const auto& window = order->faces.renderers[filter];
    if (given && window && window->Misses()) news.PreviewFailed(order->plan.filters[filter].label);
  }
}

/// @param drained  what the sources gave has come to its end
/// @return  the part is over
bool GraphRun::Part::Look(bool drained) {
  bool over = false;
  LookAtWindows();
  for (const auto& source : sources) {
    const std::int64_t silence = MonotonicNow() - source->lastNs;
    if (source->ended && (drained || silence > kLastWayNs)) {
      news.SourceFailed(source->label, WordsForEnd(source->camera));
    } else if (silence > (source->given ? kSilenceNs : kNoPictureNs)) {
      news.SourceFailed(source->label, WordsForSilence(source->camera));
    } else {
      continue;
    }
    over = true;
  }
  return over;
}

bool GraphRun::Part::Hear(GstMessage* message) {
  switch (GST_MESSAGE_TYPE(message)) {
    case GST_MESSAGE_ERROR: return HearError(message);
    case GST_MESSAGE_EOS: return Look(true) || HearEnd();
    default: return false;
  }
}

/// A file has been read to its end.
bool GraphRun::Part::HearEnd() {
  CloseFiles();
  for (const std::size_t filter : filters)
    if (const auto& writer = order->faces.writers[filter]) {
      if (const auto lane = writer->Lane()) lane->WaitClosed(Clock::now() + kForerunner);
    }
  if (--*running == 0) news.EndOfStream();
  return true;
}

/// A window that cannot show, or a file that cannot be written, is no reason to stop the rest.
bool GraphRun::Part::HearError(GstMessage* message) {
  const std::string label = LabelOf(message, order->plan);
  const FilterRole role = label.empty() ? FilterRole::Camera : RoleOf(label);
  if (role == FilterRole::Renderer) {
    news.PreviewFailed(label);
    return false;
  }
  if (role == FilterRole::Writer) {
    CloseFiles();
    news.SinkFailed(label, Tr("The pictures of the camera cannot be written."));
    return false;
  }
  const bool sound = role == FilterRole::Microphone || role == FilterRole::AudioTrigger;
  const bool source = sound || (role == FilterRole::Camera && !label.empty());
  const bool given = std::ranges::any_of(sources, [](const auto& watch) { return watch->given.load(); });
  news.SourceFailed(source ? label : order->plan.filters[filters.front()].label,
                    WordsForFailure(message, !sound, given));
  return true;
}

/// What has come so far is all that the files of this part get.
void GraphRun::Part::CloseFiles() {
  for (const std::size_t filter : filters)
    if (const auto& writer = order->faces.writers[filter]) writer->CloseNow();
}

}  // namespace kinalyx
