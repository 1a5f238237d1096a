#include "platform/graph/GraphRun.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <iterator>
#include <mutex>
#include <string_view>
#include <thread>
#include <utility>

#include "platform/graph/GraphWords.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr GstClockTime kLook = 100 * GST_MSECOND;     // between two looks at the sources
constexpr std::int64_t kNoPictureNs = 5'000'000'000;  // after which a camera is not believed any more
constexpr auto kForerunner = 5s;                      // that the run before may need to let a device go

}  // namespace

/// What the thread of a part and the user interface share.
struct GraphRun::Part {
  Part(std::shared_ptr<const GraphOrder> ordered, std::vector<std::size_t> own, GraphNews told)
      : order(std::move(ordered)), filters(std::move(own)), news(std::move(told)) {}

  void Work();
  void Watch(const Strand& strand);
  bool Look(const Strand& strand);
  bool Hear(GstMessage* message, const Strand& strand);
  bool HearError(GstMessage* message);
  void HearLevel(GstMessage* message);
  void CloseFiles();
  bool WaitEnded(Clock::time_point until);
  void Stop();
  bool SharesDevice(const Part& other) const;
  FilterRole RoleOf(const std::string& label) const { return order->plan.filters[*order->plan.Find(label)].row->role; }

  const std::shared_ptr<const GraphOrder> order;
  const std::vector<std::size_t> filters;
  const GraphNews news;
  std::vector<std::shared_ptr<Part>> before;  ///< who may still have a device that is needed
  std::shared_ptr<std::atomic<int>> running;  ///< parts of this run that have not come to their end

  std::mutex mutex;
  std::condition_variable changed;
  GstRef<GstBus> bus;  ///< while there is something to wake
  bool stop = false;
  bool ended = false;
};

GraphRun::GraphRun(std::shared_ptr<const GraphOrder> order, GraphNews news, std::unique_ptr<GraphRun> before)
    : news_(news) {
  for (auto& filters : PartsOf(order->plan)) parts_.push_back(std::make_shared<Part>(order, std::move(filters), news));
  const auto running = std::make_shared<std::atomic<int>>(static_cast<int>(parts_.size()));
  for (const auto& part : parts_) {
    if (before)
      std::ranges::copy_if(before->parts_, std::back_inserter(part->before),
                           [&](const auto& other) { return part->SharesDevice(*other); });
    part->running = running;
    std::thread([part] { part->Work(); }).detach();
  }
}

GraphRun::~GraphRun() { Stop(); }

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

void GraphRun::Part::Work() {
  const auto patience = Clock::now() + kForerunner;
  for (const auto& part : std::exchange(before, {})) part->WaitEnded(patience);
  std::string culprit;
  Result<Strand> strand = BuildStrand(*order, filters, news, culprit);
  if (strand) {
    GstElement* pipeline = strand->pipeline.get();
    std::unique_lock lock(mutex);
    bus.reset(gst_element_get_bus(pipeline));
    const bool wanted = !stop;
    lock.unlock();
    if (wanted) Watch(*strand);
    gst_element_set_state(pipeline, GST_STATE_NULL);
    CloseFiles();
    lock.lock();
    bus.reset();
    lock.unlock();
    strand->pipeline.reset();
  } else {
    news.SourceFailed(culprit, strand.Why());
  }
  const std::lock_guard lock(mutex);
  ended = true;
  changed.notify_all();
}

/// Runs a strand until it is stopped, fails or ends.
void GraphRun::Part::Watch(const Strand& strand) {
  GstElement* pipeline = strand.pipeline.get();
  // All strands go by the same clock and the same zero, so the times of their pictures can be compared.
  const GstRef<GstClock> clock(gst_system_clock_obtain());
  gst_pipeline_use_clock(GST_PIPELINE(pipeline), clock.get());
  gst_element_set_start_time(pipeline, GST_CLOCK_TIME_NONE);
  gst_element_set_base_time(pipeline, static_cast<GstClockTime>(order->beginNs));
  gst_element_set_state(pipeline, GST_STATE_PLAYING);  // what fails is told on the bus
  const int kinds = GST_MESSAGE_ERROR | GST_MESSAGE_EOS | GST_MESSAGE_ELEMENT | GST_MESSAGE_APPLICATION;
  for (;;) {
    const GstMessageRef message(gst_bus_timed_pop_filtered(bus.get(), kLook, static_cast<GstMessageType>(kinds)));
    {
      const std::lock_guard lock(mutex);
      if (stop) return;
    }
    if (message ? Hear(message.get(), strand) : Look(strand)) return;
  }
}

/// @return  the strand is over
bool GraphRun::Part::Look(const Strand& strand) {
  bool over = false;
  for (const auto& source : strand.sources) {
    if (source->ended) {
      news.SourceFailed(source->label, source->camera ? "The camera has ended." : "The microphone has ended.");
      over = true;
    } else if (MonotonicNow() - source->lastNs > kNoPictureNs) {
      news.SourceFailed(source->label,
                        source->camera ? "The camera gives no picture." : "The microphone gives no sound.");
      over = true;
    }
  }
  return over;
}

bool GraphRun::Part::Hear(GstMessage* message, const Strand& strand) {
  switch (GST_MESSAGE_TYPE(message)) {
    case GST_MESSAGE_ERROR: return HearError(message);
    case GST_MESSAGE_EOS:
      if (Look(strand)) return true;
      CloseFiles();
      for (const std::size_t filter : filters) {
        const auto& writer = order->faces.writers[filter];
        if (writer) writer->Lane()->WaitClosed(Clock::now() + kForerunner);
      }
      if (--*running == 0) news.EndOfStream();
      return true;
    case GST_MESSAGE_ELEMENT: HearLevel(message); return false;
    default: return false;
  }
}

/// A window that cannot show, or a file that cannot be written, is no reason to stop the rest.
bool GraphRun::Part::HearError(GstMessage* message) {
  const std::string label = LabelOf(message, order->plan);
  const FilterRole role = label.empty() ? FilterRole::Camera : RoleOf(label);
  if (role == FilterRole::Renderer) return false;
  if (role == FilterRole::Writer) {
    CloseFiles();
    news.SinkFailed(label, "The pictures of the camera cannot be written.");
    return false;
  }
  if (role == FilterRole::Camera || role == FilterRole::Microphone || role == FilterRole::AudioTrigger)
    news.SourceFailed(label, WordsForFailure(message, role == FilterRole::Camera));
  else news.SourceFailed(order->plan.filters[filters.front()].label, WordsForFailure(message, true));
  return true;
}

void GraphRun::Part::HearLevel(GstMessage* message) {
  const GstStructure* level = gst_message_get_structure(message);
  if (!gst_structure_has_name(level, "level")) return;
  const auto found = order->plan.Find(LabelOf(message, order->plan));
  if (found && order->faces.triggers[*found]) order->faces.triggers[*found]->Hear(LoudestOf(level));
}

/// What has come so far is all that the files of this part get.
void GraphRun::Part::CloseFiles() {
  for (const std::size_t filter : filters)
    if (const auto& writer = order->faces.writers[filter]) writer->CloseNow();
}

}  // namespace kinalyx
