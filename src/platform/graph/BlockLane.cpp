#include "platform/graph/BlockLane.h"

#include <fmt/format.h>

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <limits>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// With which a picture is waited for whose time is over: those of a network come late.
constexpr auto kLatePatience = 4s;

struct Block {
  BlockLane::Window window;
  std::vector<PackedPicture> given;  ///< in place of those of the ring
  std::size_t taken = 0;             ///< of them
  std::int64_t writtenNs = std::numeric_limits<std::int64_t>::min();
  Clock::time_point giveUp;
  WrittenBlock written;

  /// From which moment on the ring must keep its pictures for this.
  std::int64_t Needed() const {
    return given.empty() ? std::max(window.fromNs, writtenNs) : std::numeric_limits<std::int64_t>::max();
  }
};

/// Where no other block lies: one of a run before may still wait to be fetched.
std::string FreePath(const std::string& base, int shot) {
  std::string path = BlockPath(base, shot);
  while (EntryExists(path)) path = BlockPath(base, ++shot);
  return path;
}

}  // namespace

std::string BlockPath(std::string_view path, int shot) {
  constexpr std::string_view kEnding = ".avi";
  if (path.ends_with(kEnding)) path.remove_suffix(kEnding.size());
  return fmt::format("{} shot {}{}", path, shot, kEnding);
}

/// What the two sides tell each other.
struct BlockLane::Desk {
  Desk(std::string recorder, GraphNews told, std::shared_ptr<PictureRing> pictures)
      : label(std::move(recorder)), news(std::move(told)), ring(std::move(pictures)) {}

  static void Work(const std::shared_ptr<Desk>& desk);
  void Add(const std::shared_ptr<Desk>& self, Block block);
  void PinNeeded();
  std::optional<PackedPicture> Next(Block& block) const;
  void WriteBlock(std::unique_lock<std::mutex>& lock, Block& block);
  Outcome WritePicture(const std::string& path, const PackedPicture& picture);

  const std::string label;
  const GraphNews news;
  const std::shared_ptr<PictureRing> ring;
  mutable std::mutex mutex;
  mutable std::condition_variable changed;
  std::string base;
  std::deque<Block> blocks;  ///< the first is being written
  std::vector<WrittenBlock> written;
  RecordingTally tally;
  std::int64_t lastNs = std::numeric_limits<std::int64_t>::max();  ///< no later picture counts any more
  std::int64_t pushedNs = std::numeric_limits<std::int64_t>::min();
  bool working = false;

  // Of the thread alone.
  std::unique_ptr<RecordingFile> file;
  RecordingFormat format;
};

BlockLane::BlockLane(std::string label, GraphNews news, std::shared_ptr<PictureRing> ring)
    : desk_(std::make_shared<Desk>(std::move(label), std::move(news), std::move(ring))) {}

BlockLane::~BlockLane() { BlockLane::CloseNow(); }

void BlockLane::Open(const std::string& path) {
  const std::lock_guard lock(desk_->mutex);
  desk_->base = path;
}

void BlockLane::Close(std::int64_t lastNs) {
  const std::lock_guard lock(desk_->mutex);
  desk_->lastNs = std::min(desk_->lastNs, lastNs);
  desk_->changed.notify_all();
}

void BlockLane::CloseNow() {
  std::unique_lock lock(desk_->mutex);
  const std::int64_t last = desk_->pushedNs;
  lock.unlock();
  Close(last);
}

bool BlockLane::WaitClosed(Clock::time_point until) const {
  std::unique_lock lock(desk_->mutex);
  return desk_->changed.wait_until(lock, until, [this] { return desk_->blocks.empty(); });
}

RecordingTally BlockLane::Tally() const {
  const std::lock_guard lock(desk_->mutex);
  return desk_->tally;
}

void BlockLane::Push(PackedPicture picture) {
  if (!desk_->ring->Push(picture)) return;
  const std::lock_guard lock(desk_->mutex);
  desk_->pushedNs = picture.ns;
  if (!desk_->blocks.empty()) desk_->changed.notify_all();
}

void BlockLane::Write(const Window& window) {
  Block block;
  block.window = window;
  // The clock of the windows is that of the pictures.
  block.giveUp = Clock::time_point(std::chrono::nanoseconds(window.toNs)) + kLatePatience;
  desk_->Add(desk_, std::move(block));
}

void BlockLane::Write(int shot, std::vector<PackedPicture> pictures) {
  if (pictures.empty()) return;
  Block block;
  block.window = {shot, 0, pictures.front().ns, pictures.back().ns};
  block.given = std::move(pictures);
  block.giveUp = Clock::time_point::max();
  desk_->Add(desk_, std::move(block));
}

bool BlockLane::Writing() const {
  const std::lock_guard lock(desk_->mutex);
  return !desk_->blocks.empty();
}

std::vector<WrittenBlock> BlockLane::TakeWritten() {
  const std::lock_guard lock(desk_->mutex);
  return std::exchange(desk_->written, {});
}

void BlockLane::Desk::Add(const std::shared_ptr<Desk>& self, Block block) {
  const std::lock_guard lock(mutex);
  block.written.shot = block.window.shot;
  block.written.triggerNs = block.window.triggerNs;
  blocks.push_back(std::move(block));
  PinNeeded();
  if (!std::exchange(working, true)) std::thread(Work, self).detach();
}

void BlockLane::Desk::PinNeeded() {
  std::int64_t needed = std::numeric_limits<std::int64_t>::max();
  for (const Block& block : blocks) needed = std::min(needed, block.Needed());
  ring->Pin(needed);
}

void BlockLane::Desk::Work(const std::shared_ptr<Desk>& desk) {
  std::unique_lock lock(desk->mutex);
  while (!desk->blocks.empty()) {
    Block& block = desk->blocks.front();  // others are only added behind it
    desk->tally = {};
    desk->tally.open = true;
    desk->WriteBlock(lock, block);
    desk->tally = block.written.tally;
    desk->written.push_back(std::move(block.written));
    desk->blocks.pop_front();
    desk->PinNeeded();
    desk->changed.notify_all();
    desk->news.BlockWritten(desk->label);
  }
  desk->working = false;
}

/// The picture of a block that comes next, as far as it is there.
std::optional<PackedPicture> BlockLane::Desk::Next(Block& block) const {
  if (block.given.empty()) return ring->After(std::max(block.window.fromNs - 1, block.writtenNs));
  if (block.taken == block.given.size()) return std::nullopt;
  return std::move(block.given[block.taken++]);
}

/// From its first picture to the end of its window, or of the camera.
void BlockLane::Desk::WriteBlock(std::unique_lock<std::mutex>& lock, Block& block) {
  WrittenBlock& written = block.written;
  written.path = FreePath(base, written.shot);
  std::string fault;
  while (fault.empty()) {
    const bool given = !block.given.empty();
    const std::optional<PackedPicture> picture = Next(block);
    const std::int64_t end = given ? block.window.toNs : std::min(block.window.toNs, lastNs);
    if (picture && picture->ns > end) break;
    if (!picture) {
      if (given || lastNs <= pushedNs || pushedNs >= block.window.toNs || Clock::now() >= block.giveUp) break;
      const std::int64_t seen = pushedNs;
      changed.wait_until(lock, block.giveUp, [&] { return pushedNs != seen || lastNs <= pushedNs; });
      continue;
    }
    lock.unlock();
    const Outcome put = WritePicture(written.path, *picture);
    const RecordingTally now = file ? file->Tally() : RecordingTally{};
    lock.lock();
    tally = now;
    tally.open = true;
    block.writtenNs = picture->ns;
    PinNeeded();
    if (!put) fault = put.Why();
  }
  lock.unlock();
  if (file) {
    const Outcome closed = file->Close();
    written.tally = file->Tally();
    file.reset();
    if (!closed && fault.empty()) fault = closed.Why();
  }
  lock.lock();
  written.tally.open = false;
  written.tally.fault = fault;
}

Outcome BlockLane::Desk::WritePicture(const std::string& path, const PackedPicture& picture) {
  if (!file) {
    auto made = RecordingFile::Create(path, picture.format);
    if (!made) return made.Failure();
    file = std::move(*made);
    format = picture.format;
  }
  const bool same = picture.format.codec == format.codec && picture.format.width == format.width &&
                    picture.format.height == format.height;
  if (!same) return Outcome::Failed(Tr("The camera has changed the size of its pictures."));
  return file->Write({picture.bytes.get(), picture.size}, picture.ns);
}

}  // namespace kinalyx
