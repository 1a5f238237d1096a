#include "platform/graph/SoundOutput.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include "platform/graph/SoundGraph.h"
#include "platform/media/SoundReader.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;
using Clock = SoundGraph::Clock;

constexpr auto kLook = 20ms;       // between two looks whether the graph wants more
constexpr auto kPatience = 300ms;  // with which the end waits for the thread

/// What is to be heard.
struct Wish {
  std::string path;
  double fromMs = 0;
  Clock::time_point now;  ///< when that was to be heard
};

}  // namespace

/// What the two threads tell each other.
struct SoundOutput::Desk {
  explicit Desk(std::string end) : sink(std::move(end)) {}

  static void Work(std::shared_ptr<Desk> desk);
  void Sound(const Wish& wish, SoundReader& reader, std::unique_lock<std::mutex>& lock);
  bool Disturbed() const { return wish || stop || quit; }

  const std::string sink;
  std::mutex mutex;
  std::condition_variable changed;
  std::optional<Wish> wish;
  int volume = 0;
  bool stop = false;
  bool quit = false;
  bool working = false;  ///< the thread has been made and has not ended
};

SoundOutput::SoundOutput(std::string sink) : desk_(std::make_shared<Desk>(std::move(sink))) {}

SoundOutput::~SoundOutput() {
  std::unique_lock lock(desk_->mutex);
  desk_->quit = true;
  desk_->changed.notify_all();
  desk_->changed.wait_for(lock, kPatience, [this] { return !desk_->working; });
}

void SoundOutput::Play(const std::string& path, double fromMs, int volume) {
  const std::lock_guard lock(desk_->mutex);
  desk_->wish = Wish{path, fromMs, Clock::now()};
  desk_->stop = false;
  desk_->volume = volume;
  if (!std::exchange(desk_->working, true)) std::thread(Desk::Work, desk_).detach();
  desk_->changed.notify_all();
}

void SoundOutput::Stop() {
  const std::lock_guard lock(desk_->mutex);
  desk_->wish.reset();
  desk_->stop = true;
  desk_->changed.notify_all();
}

void SoundOutput::SetVolume(int volume) {
  const std::lock_guard lock(desk_->mutex);
  desk_->volume = volume;
  desk_->changed.notify_all();
}

void SoundOutput::Desk::Work(std::shared_ptr<Desk> desk) {
  std::string open;
  std::unique_ptr<SoundReader> reader;
  std::unique_lock lock(desk->mutex);
  for (;;) {
    desk->changed.wait(lock, [&] { return desk->wish || desk->quit; });
    if (desk->quit) break;
    const Wish wish = *std::exchange(desk->wish, std::nullopt);
    lock.unlock();
    // The file may have been written anew since it was heard last: only a loop reads on in the same one.
    if (std::exchange(open, wish.path) != wish.path) reader = SoundReader::Open(wish.path);
    lock.lock();
    if (reader) desk->Sound(wish, *reader, lock);
  }
  lock.unlock();
  reader.reset();
  lock.lock();
  desk->working = false;
  desk->changed.notify_all();
}

/// Sounds a wish until there is another one, or it is over.
void SoundOutput::Desk::Sound(const Wish& wanted, SoundReader& reader, std::unique_lock<std::mutex>& lock) {
  if (Disturbed()) return;
  int set = volume;
  lock.unlock();
  // What should have been heard while the file was opened is past.
  const std::chrono::duration<double, std::milli> late = Clock::now() - wanted.now;
  reader.Begin(wanted.fromMs + late.count());
  auto graph = SoundGraph::Make(sink, wanted.now, SoundReader::kRate, SoundReader::kChannels);
  if (graph) graph->SetVolume(set);
  std::vector<std::int16_t> samples;
  std::int64_t pushed = 0;
  bool ended = false;
  lock.lock();
  while (graph && !Disturbed()) {
    const int wish = volume;
    lock.unlock();
    if (std::exchange(set, wish) != wish) graph->SetVolume(wish);
    bool rests = ended || graph->Full();
    if (!rests) {
      samples.clear();
      ended = !reader.Read(samples);
      const auto at = std::chrono::duration<double>(static_cast<double>(pushed) / SoundReader::kRate) + late;
      if (!ended) graph->Push(samples, std::chrono::duration_cast<std::chrono::nanoseconds>(at));
      pushed += static_cast<std::int64_t>(samples.size()) / SoundReader::kChannels;
      rests = ended;
    }
    const bool works = graph->Works();
    lock.lock();
    if (!works) break;
    if (rests && !Disturbed()) changed.wait_for(lock, kLook);
  }
  lock.unlock();
  graph.reset();
  lock.lock();
}

}  // namespace kinalyx
