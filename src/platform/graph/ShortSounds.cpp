#include "platform/graph/ShortSounds.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <span>
#include <thread>
#include <utility>
#include <vector>

#include "platform/graph/GstHandles.h"
#include "platform/graph/SoundFeed.h"
#include "platform/graph/WaveFile.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Samples = std::vector<std::int16_t>;

constexpr int kRate = 48000;
constexpr int kChannels = 2;
constexpr std::size_t kMostWishes = 16;                                    // that wait, and that are heard at once
constexpr std::size_t kMostFiles = 64;                                     // that are kept
constexpr std::size_t kMostSamples = std::size_t{kRate} * kChannels * 10;  // of a file
constexpr auto kStale = 1s;        // a sound that is later than that means something that is over
constexpr auto kIdle = 10s;        // after which the card is given back
constexpr auto kSilence = 3s;      // of a server that takes nothing any more
constexpr auto kPatience = 300ms;  // with which the end waits for the thread

struct Wish {
  std::string path;
  Clock::time_point at;
};

/// What is being heard.
struct Voice {
  std::shared_ptr<const Samples> samples;
  std::size_t done = 0;
};

/// What the two threads tell each other.
struct Desk {
  explicit Desk(std::string end) : sink(std::move(end)) {}

  const std::string sink;
  std::mutex mutex;
  std::condition_variable changed;
  std::deque<Wish> wishes;
  bool quit = false;
  bool working = true;  ///< the thread has not ended
};

/// The thread's own.
class Mixer {
 public:
  explicit Mixer(std::shared_ptr<Desk> desk) : desk_(std::move(desk)) {}

  void Work();

 private:
  void Sound(std::unique_lock<std::mutex>& lock);
  void Begin(std::deque<Wish> wishes);
  std::shared_ptr<const Samples> Read(const std::string& path);
  void Mix(std::span<std::int16_t> block);

  const std::shared_ptr<Desk> desk_;
  std::map<std::string, std::shared_ptr<const Samples>> files_;
  std::vector<Voice> voices_;
};

void Mixer::Work() {
  GstBegun();  // which takes longer than a sound may be late
  std::unique_lock lock(desk_->mutex);
  for (;;) {
    desk_->changed.wait(lock, [&] { return !desk_->wishes.empty() || desk_->quit; });
    if (desk_->quit) break;
    Sound(lock);
    voices_.clear();
  }
  desk_->working = false;
  desk_->changed.notify_all();
}

/// Keeps the card for as long as sounds come.
void Mixer::Sound(std::unique_lock<std::mutex>& lock) {
  lock.unlock();
  auto feed = SoundFeed::Make(desk_->sink, kRate, kChannels);
  auto taken = Clock::now();  // when the card took something last
  auto heard = taken;
  lock.lock();
  if (!feed) desk_->wishes.clear();
  while (feed && !desk_->quit) {
    std::deque<Wish> wishes = std::exchange(desk_->wishes, {});
    lock.unlock();
    Begin(std::move(wishes));
    std::array<std::int16_t, SoundFeed::kBlock * kChannels> block;
    while (feed->Wants()) {
      block.fill(0);
      if (feed->Begun()) Mix(block);
      feed->Push(block);
      taken = Clock::now();
    }
    const auto now = Clock::now();
    if (!voices_.empty()) heard = now;
    const bool over = now - heard > kIdle || now - taken > kSilence || !feed->Works();
    lock.lock();
    if (over) break;
    if (!desk_->quit) desk_->changed.wait_for(lock, SoundFeed::kLook);
  }
  lock.unlock();
  feed.reset();
  lock.lock();
}

void Mixer::Begin(std::deque<Wish> wishes) {
  for (const Wish& wish : wishes) {
    if (voices_.size() >= kMostWishes || Clock::now() - wish.at > kStale) continue;
    if (auto samples = Read(wish.path)) voices_.push_back({std::move(samples)});
  }
}

/// The samples of a file; null where there are none, which is not kept: it may come yet.
std::shared_ptr<const Samples> Mixer::Read(const std::string& path) {
  if (const auto kept = files_.find(path); kept != files_.end()) return kept->second;
  auto samples = std::make_shared<Samples>(ReadWave(path, kRate, kMostSamples));
  if (samples->empty()) return nullptr;
  if (files_.size() >= kMostFiles) files_.clear();
  return files_.emplace(path, std::move(samples)).first->second;
}

/// Adds the next samples of all that is heard.
void Mixer::Mix(std::span<std::int16_t> block) {
  for (Voice& voice : voices_) {
    const std::size_t count = std::min(block.size(), voice.samples->size() - voice.done);
    for (std::size_t i = 0; i < count; ++i) {
      const int sum = block[i] + (*voice.samples)[voice.done + i];
      block[i] = static_cast<std::int16_t>(std::clamp(sum, -32768, 32767));
    }
    voice.done += count;
  }
  std::erase_if(voices_, [](const Voice& voice) { return voice.done == voice.samples->size(); });
}

class ShortSounds final : public IShortSounds {
 public:
  explicit ShortSounds(std::string sink) : desk_(std::make_shared<Desk>(std::move(sink))) {
    std::thread([desk = desk_] { Mixer(desk).Work(); }).detach();
  }
  ~ShortSounds() override {
    std::unique_lock lock(desk_->mutex);
    desk_->quit = true;
    desk_->changed.notify_all();
    desk_->changed.wait_for(lock, kPatience, [this] { return !desk_->working; });
  }

  void Play(const std::string& path) override {
    const std::lock_guard lock(desk_->mutex);
    if (desk_->wishes.size() >= kMostWishes) desk_->wishes.pop_front();
    desk_->wishes.push_back({path, Clock::now()});
    desk_->changed.notify_all();
  }

 private:
  std::shared_ptr<Desk> desk_;  ///< shared with the thread, which may outlive this
};

}  // namespace

std::unique_ptr<IShortSounds> MakeShortSounds(std::string sink) {
  return std::make_unique<ShortSounds>(std::move(sink));
}

}  // namespace kinalyx
