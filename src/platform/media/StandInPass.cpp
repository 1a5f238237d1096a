#include "platform/media/StandInPass.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <utility>

#include "platform/files/Folders.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;

/// Pixels that have to be decoded for one picture in the worst case, up to which it comes at once anyway: of
/// pictures that stand for themselves, and of those that hang together.
constexpr std::int64_t kFastAlone = 3'000'000;
constexpr std::int64_t kFastTogether = 25'000'000;
constexpr int kFewPictures = 12;
/// The first key pictures are those of so many chunks on both sides of the user.
constexpr int kKeysAround = 60;
/// Where key pictures stand closer than this, they are not worth a round of their own.
constexpr int kLongChunk = 8;
/// Nor where one is decoded faster than this: the user's own jump does it just as well.
constexpr auto kQuickKey = 40ms;
/// Packets that the decoder rather works through than enter the file anew.
constexpr int kReadThrough = 8;
/// A decoder that has to wait for longer gives its memory back.
constexpr auto kPatience = 1s;
constexpr int kNiceness = 10;
/// Decoded pictures that wait to be packed, at the utmost.
constexpr std::size_t kMostToPack = 3;

}  // namespace

bool StandInPass::IsWorthIt(const Demuxer& source) {
  const PictureIndex& index = source.Index();
  const AVCodecParameters& codec = source.Codec();
  const std::int64_t pixels = std::int64_t{codec.width} * codec.height;
  if (index.PictureCount() < kFewPictures) return false;
  if (index.EveryPacketIsKey()) return pixels > kFastAlone;
  int longest = 0;
  int first = 0;
  const int last = index.ChunkOfPacket(index.PacketCount() - 1);
  for (int chunk = 0; chunk <= last; ++chunk) {
    const int end = chunk < last ? index.ChunkFirstPicture(chunk + 1) : index.PictureCount();
    longest = std::max(longest, end - first);
    first = end;
  }
  return pixels * longest > kFastTogether;
}

StandInPass::StandInPass(std::unique_ptr<Demuxer> source, std::unique_ptr<const FileStamp> video, std::string path)
    : index_(source->Index()),
      path_(std::move(path)),
      video_(std::move(video)),
      pictures_(index_.PictureCount()),
      videoLongSide_(std::max(source->Codec().width, source->Codec().height)),
      shelf_(pictures_),
      longSide_(std::min(StandInCoder::LongSideFor(960, 540), videoLongSide_)),
      source_(std::move(source)),
      share_(Purse::StandIns, [this] { wake_.notify_one(); }),
      packer_([this] { PackAll(); }),
      thread_([this] { Work(); }) {}

StandInPass::~StandInPass() {
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
    wake_.notify_one();
    handed_.notify_one();
    packed_.notify_one();
  }
  thread_.join();
  packer_.join();
}

void StandInPass::MoveTo(int picture) {
  turn_.Handle();
  const std::lock_guard lock(mutex_);
  if (picture != focus_) goingBack_ = picture < focus_;
  focus_ = picture;
}

void StandInPass::Keep(int picture, const AVFrame& frame) {
  std::unique_lock lock(mutex_);
  const int longSide = longSide_;
  const int focus = focus_;
  lock.unlock();
  const std::lock_guard keeping(keepMutex_);
  if (shelf_.LongSide(picture) < longSide) shelf_.Put(picture, longSide, coder_.Pack(frame, longSide), focus);
}

void StandInPass::SetShownSize(int width, int height) {
  const std::lock_guard lock(mutex_);
  const int longSide = std::min(StandInCoder::LongSideFor(width, height), videoLongSide_);
  if (longSide == longSide_) return;
  longSide_ = longSide;
  done_ = false;
  wake_.notify_one();
}

StandInShelf::Bytes StandInPass::Get(int picture) {
  StandInShelf::Bytes bytes = shelf_.Get(picture);
  if (bytes) return bytes;
  // It was damaged: it is made anew.
  const std::lock_guard lock(mutex_);
  done_ = false;
  wake_.notify_one();
  return nullptr;
}

bool StandInPass::Done() const {
  const std::lock_guard lock(mutex_);
  return done_;
}

// ---------------------------------------------------------------- the decoder's thread

void StandInPass::Work() {
  // The threads of the decoder inherit it.
  setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), kNiceness);
  if (video_) {
    const std::lock_guard keeping(keepMutex_);
    shelf_.Attach(StandInLimits::OfUser(), *video_);
  }
  auto lastWork = PassTurn::Clock::now();
  std::unique_lock lock(mutex_);
  while (!stop_) {
    shelf_.Trim(share_.Bytes(), focus_);
    const std::optional<Job> job = Choose();
    done_ = !job && toPack_.empty();
    turn_.Want(job.has_value());
    if (!job) {
      Rest();
      wake_.wait(lock);
      continue;
    }
    if (const auto delay = turn_.Delay(job->key); delay > delay.zero()) {
      if (PassTurn::Clock::now() - lastWork > kPatience) Rest();
      wake_.wait_for(lock, delay);
      continue;
    }
    lock.unlock();
    Do(*job);
    lastWork = PassTurn::Clock::now();
    lock.lock();
  }
}

void StandInPass::Rest() {
  if (!decoder_ || !std::exchange(decoding_, false)) return;
  decoder_->Stop();
  GiveFreedMemoryBack();
}

std::optional<StandInPass::Job> StandInPass::Choose() {
  if (changed_) return std::nullopt;
  if (const auto key = ChooseKey()) return key;
  const int chunk = index_.ChunkOfPicture(focus_);
  const int last = index_.ChunkOfPicture(pictures_ - 1);
  if (const auto job = JobIn(chunk)) return job;
  const auto upward = [&]() -> std::optional<Job> {
    for (int c = chunk + 1; c <= last; ++c)
      if (const auto job = JobIn(c)) return job;
    return std::nullopt;
  };
  const auto downward = [&]() -> std::optional<Job> {
    for (int c = chunk - 1; c >= 0; --c)
      if (const auto job = JobIn(c)) return job;
    return std::nullopt;
  };
  const auto job = goingBack_ ? downward() : upward();
  return job ? job : goingBack_ ? upward() : downward();
}

std::optional<StandInPass::Job> StandInPass::ChooseKey() {
  const int last = index_.ChunkOfPicture(pictures_ - 1);
  if (keysAreQuick_ || pictures_ / (last + 1) < kLongChunk) return std::nullopt;
  const int chunk = index_.ChunkOfPicture(focus_);
  for (int away = 0; away <= kKeysAround; ++away) {
    for (const int c : {chunk + away, chunk - away}) {
      if (c < 0 || c > last || keysTried_.contains(c)) continue;
      const int key = index_.ChunkFirstPicture(c);
      if (key < pictures_ && !shelf_.Has(key)) return Job{true, c, key};
    }
  }
  return std::nullopt;
}

/// The first picture of a chunk that is missing, and not known to be past help.
std::optional<StandInPass::Job> StandInPass::JobIn(int chunk) {
  const int end = EndOfChunk(chunk);
  for (int first = index_.ChunkFirstPicture(chunk); first < end;) {
    const std::optional<int> missing = shelf_.Missing(first, end, longSide_, focus_);
    if (!missing) break;
    if (!lost_.contains(*missing) && !handedOver_.contains(*missing)) return Job{false, chunk, *missing};
    first = *missing + 1;
  }
  return std::nullopt;
}

int StandInPass::EndOfChunk(int chunk) const {
  const int last = index_.ChunkOfPicture(pictures_ - 1);
  return chunk < last ? index_.ChunkFirstPicture(chunk + 1) : pictures_;
}

void StandInPass::Do(const Job& job) {
  if (job.chunk != std::exchange(chunk_, job.chunk) && !VideoIsTheSame()) {
    const std::lock_guard keeping(keepMutex_);
    shelf_.Detach();
    changed_ = true;
    return;
  }
  if (!decoder_) {
    // The packer takes a processor every now and then: with one thread more none is ever idle.
    auto opened = PictureDecoder::Open(std::move(source_), PictureDecoder::UsualThreads() + 1);
    if (!opened) {
      changed_ = true;
      return;
    }
    decoder_ = std::move(*opened);
  }
  decoding_ = true;
  if (job.key) return DoKey(job.chunk);
  const int target = job.picture;
  const int startChunk = decoder_->StartChunkFor(target);
  const bool near = decoder_->NextPacket() + kReadThrough >= index_.ChunkStart(startChunk);
  if ((!decoder_->Reaches(target) || !near) && (decoder_->Lost(target) || !decoder_->Start(startChunk))) {
    lost_.insert(target);
    return;
  }
  decoder_->Step(0, [this](int picture, FrameHandle frame) { HandOver(picture, std::move(frame)); });
  if (decoder_->Lost(target)) lost_.insert(target);
}

void StandInPass::DoKey(int chunk) {
  keysTried_.insert(chunk);
  int picture = -1;
  const auto start = PassTurn::Clock::now();
  FrameHandle frame = decoder_->KeyPicture(chunk, picture, PictureDecoder::KeyLook::Rough);
  keysAreQuick_ = frame && PassTurn::Clock::now() - start < kQuickKey;
  if (frame) HandOver(picture, std::move(frame));
}

void StandInPass::HandOver(int picture, FrameHandle frame) {
  std::unique_lock lock(mutex_);
  packed_.wait(lock, [this] { return stop_ || toPack_.size() < kMostToPack; });
  handedOver_.insert(picture);
  toPack_.emplace_back(picture, std::move(frame));
  handed_.notify_one();
}

// ---------------------------------------------------------------- the packer's thread

void StandInPass::PackAll() {
  setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), kNiceness);
  std::unique_lock lock(mutex_);
  for (;;) {
    handed_.wait(lock, [this] { return stop_ || !toPack_.empty(); });
    if (stop_) return;
    const auto& [picture, frame] = toPack_.front();
    lock.unlock();
    Keep(picture, *frame);
    lock.lock();
    // What cannot be packed is not tried again.
    if (shelf_.Has(picture)) handedOver_.erase(picture);
    toPack_.pop_front();
    packed_.notify_one();
    if (toPack_.empty()) wake_.notify_one();
  }
}

bool StandInPass::VideoIsTheSame() const { return !video_ || StampOf(path_) == *video_; }

}  // namespace kinalyx
