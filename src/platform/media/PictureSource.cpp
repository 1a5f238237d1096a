#include "platform/media/PictureSource.h"

#include <algorithm>
#include <string>

#include "platform/media/PassTurn.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;

/// Pictures decoded ahead in play: enough to ride out a busy moment.
constexpr int kAhead = 12;
/// The same of a video that has just been opened and takes long: the first move may lead anywhere, and would have
/// to wait for those that are in hand.
constexpr int kAheadAtFirst = 2;
/// So long after opening a jump is likelier than a step, and must not wait for what is decoded ahead.
constexpr auto kFirstLook = 1s;
/// A move by no more than this is a step; anything else is a jump to another place.
constexpr int kStepForward = 16;
constexpr int kStepBack = 4;
/// A hand that has not moved for so long rests.
constexpr auto kRest = 60ms;
/// Going back, small pictures of so many below stand ready.
constexpr int kSmallAhead = 24;
/// What a stretch is made long and short by.
constexpr int kShortStretch = 8;
constexpr int kLongStretch = 256;
/// Packets that a decoder rather works through than enter the file anew.
constexpr int kReadThrough = 8;
/// Whatever the budget says, so many pictures are kept: less would be decoded again and again. Where small ones
/// stand in, not even that.
constexpr int kLeastPictures = 4;
constexpr int kLeastBesideSmall = 2;
/// What a decoder holds: those that others are made from, and one in each thread.
constexpr std::size_t kPicturesOfDecoder = 8;
/// Before it is asked for memory again that other files are using.
constexpr auto kAnothersMemory = 20ms;

}  // namespace

PictureSource::PictureSource(std::unique_ptr<PictureDecoder> decoder, PictureListener listener)
    : forward_(std::move(decoder)),
      index_(forward_->Index()),
      immediate_(forward_->IsImmediate()),
      readableEnd_(index_.PictureCount()),
      listener_(std::move(listener)),
      least_(listener_.keepSmall ? kLeastBesideSmall : kLeastPictures),
      seat_([this] {
        const std::lock_guard lock(mutex_);
        yield_ = true;
        work_.notify_one();
      }),
      budget_(Purse::Pictures, [this] {
        const std::lock_guard lock(mutex_);
        shareChanged_ = true;
        work_.notify_one();
      }) {}

PictureSource::~PictureSource() { Stop(); }

void PictureSource::Stop() {
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
    work_.notify_one();
  }
  if (worker_.joinable()) worker_.join();
}

FrameHandle PictureSource::Picture(int picture) {
  std::unique_lock lock(mutex_);
  if (!worker_.joinable()) worker_ = std::thread([this] { Work(); });
  MoveFocus(picture);
  awaited_ = true;
  for (int p = Standing(picture); p >= 0; p = Standing(p)) {
    if (!store_.Has(p)) {
      wanted_ = p;
      thorough_ = p != picture;
      work_.notify_one();
      arrived_.wait(lock, [&] { return IsKnown(p); });
    }
    wanted_ = -1;
    if (FrameHandle frame = store_.Get(p)) {
      work_.notify_one();
      return frame;
    }
  }
  return nullptr;
}

FrameHandle PictureSource::PictureNow(int picture) {
  const std::lock_guard lock(mutex_);
  const int p = Standing(picture);
  return p < 0 ? nullptr : store_.Get(p);
}

void PictureSource::MoveTo(int picture) {
  const std::lock_guard lock(mutex_);
  MoveFocus(picture);
  wanted_ = -1;
  awaited_ = true;
  work_.notify_one();
}

void PictureSource::Want(int picture, Way way) {
  const std::lock_guard lock(mutex_);
  if (!worker_.joinable()) worker_ = std::thread([this] { Work(); });
  const int p = Standing(picture);
  const bool again = p == wanted_ && !awaited_;
  MoveFocus(picture);
  wanted_ = p;
  awaited_ = false;
  thorough_ = p != picture;
  const auto notBefore = Clock::now() + (way == Way::AfterRest || way == Way::KeyFirst ? kRest : 0ms);
  // Who asks for the same again does not put it off.
  notBefore_ = again ? std::min(notBefore_, notBefore) : notBefore;
  withThoseBelow_ = way == Way::WithThoseBelow && listener_.keepSmall;
  if (!again) keyFirst_ = way == Way::KeyFirst && p >= 0 && !immediate_ ? index_.ChunkOfPicture(p) : -1;
  work_.notify_one();
}

int PictureSource::Nearest(int picture) {
  const std::lock_guard lock(mutex_);
  return store_.Nearest(picture);
}

int PictureSource::Standing(int picture) const {
  int p = std::min(picture, readableEnd_ - 1);
  while (p >= 0 && IsLost(p)) --p;
  return p;
}

void PictureSource::MoveFocus(int picture) {
  yielded_ = false;
  const int delta = picture - focus_;
  focus_ = picture;
  if (delta > 0 && stretch_ && stretch_->small) stretch_.reset();
  if (delta == 0) return;
  if (delta > kStepForward || delta < -kStepBack) {
    step_ = 1;
    stretch_.reset();
  } else {
    // Pictures that a fast play passes over are not worth decoding, where that can be helped.
    const int single = delta < 0 ? -1 : 1;
    step_ = immediate_ && delta == lastDelta_ ? delta : single;
  }
  lastDelta_ = delta;
}

// ---------------------------------------------------------------- the worker

void PictureSource::Work() {
  std::unique_lock lock(mutex_);
  while (!stop_) {
    if (shareChanged_) TakeShare();
    if (yield_) GiveDecodersBack(lock);
    if (!awaited_ && wanted_ >= 0 && IsKnown(wanted_) && Rests()) {
      wanted_ = -1;
      TellNews(lock);
      continue;
    }
    const std::optional<Task> task = Choose();
    if (!task) {
      const auto until = Rests() ? aheadFrom_ : notBefore_;
      until > Clock::now() ? void(work_.wait_until(lock, until)) : work_.wait(lock);
      continue;
    }
    Decoded decoded;
    const std::size_t decoderBytes = DecoderBytes();
    lock.unlock();
    const bool seated = seat_.Take(decoderBytes, task->awaited);
    if (seated) PassTurn::GiveWay();
    const bool reachable = !seated || Advance(*task, decoded);
    lock.lock();
    if (!seated) {
      work_.wait_for(lock, kAnothersMemory);
      continue;
    }
    for (auto& [picture, frame] : decoded) {
      lost_.erase(picture);
      store_.Put(picture, std::move(frame));
    }
    readableEnd_ = std::min(readableEnd_, DecoderFor(*task).ReadableEnd());
    if (!reachable) lost_.insert(task->target);
    const std::size_t least = static_cast<std::size_t>(least_) * (store_.Bytes() / std::max(1, store_.Count()));
    store_.Trim(std::max(share_, least), wanted_ >= 0 ? wanted_ : focus_, step_ < 0 ? 4 : 1);
    if (awaited_ && wanted_ >= 0 && IsKnown(wanted_)) arrived_.notify_one();
    if (task->key >= 0) {
      if (keyFirst_ == task->key) keyFirst_ = -1;
      TellNews(lock);
    }
  }
}

void PictureSource::TellNews(std::unique_lock<std::mutex>& lock) {
  lock.unlock();
  listener_.news();
  lock.lock();
}

std::size_t PictureSource::DecoderBytes() const {
  return (backward_ ? 2 : 1) * kPicturesOfDecoder * store_.PictureBytes();
}

void PictureSource::GiveDecodersBack(std::unique_lock<std::mutex>& lock) {
  yield_ = false;
  if (wanted_ >= 0 && awaited_) return;
  yielded_ = true;
  if (stretch_ && wanted_ < 0) stretch_.reset();
  forward_->Stop();
  if (backward_) backward_->Stop();
  lock.unlock();
  seat_.Leave();
  GiveFreedMemoryBack();
  lock.lock();
}

void PictureSource::TakeShare() {
  shareChanged_ = false;
  const std::size_t share = budget_.Bytes();
  const bool less = share < store_.Bytes();
  share_ = share;
  if (!less) return;
  store_.Trim(share_, focus_, 1);
  // A decoder keeps the memory of pictures for the next ones: only a new one gives it back.
  forward_->Stop();
  if (backward_) backward_->Stop();
}

std::optional<PictureSource::Task> PictureSource::Choose() {
  if (wanted_ >= 0 && !IsKnown(wanted_)) {
    if (auto task = ChooseWanted()) return task;
  }
  if (yielded_) return std::nullopt;
  if (WantsSmallStretch()) {
    if (auto task = NextOfStretch()) return task;
  }
  if (!Rests() || (lastDelta_ == 0 && Clock::now() < aheadFrom_)) return std::nullopt;
  if (immediate_ || step_ > 0) {
    if (const auto ahead = NextAhead()) return Task{.target = *ahead, .wholeFrom = *ahead};
  }
  if (immediate_ || (!stretch_ && !WantsStretch())) return std::nullopt;
  return NextOfStretch();
}

std::optional<PictureSource::Task> PictureSource::ChooseWanted() {
  // All threads at once on the picture with which a video opens; and the first jump finds a decoder that is warm.
  if (!std::exchange(opened_, true) && awaited_ && !immediate_ && listener_.keepSmall) {
    const int chunk = index_.ChunkOfPicture(wanted_);
    aheadFrom_ = Clock::now() + kFirstLook;
    if (index_.ChunkFirstPicture(chunk) == wanted_)
      return Task{.key = chunk, .exact = true, .target = wanted_, .wholeFrom = wanted_, .awaited = true};
  }
  if (!awaited_ && keyFirst_ >= 0) return Task{.key = keyFirst_, .target = wanted_, .wholeFrom = wanted_};
  if (!Rests()) return std::nullopt;
  const bool small = withThoseBelow_ && !awaited_ && !thorough_;
  if (stretch_ && stretch_->small != small) stretch_.reset();
  const bool onTheWay = stretch_ && wanted_ >= stretch_->next && wanted_ < stretch_->end;
  if (!onTheWay && !small && (immediate_ || step_ > 0 || thorough_))
    return Task{.target = wanted_, .wholeFrom = thorough_ ? 0 : wanted_, .awaited = awaited_};
  if (!onTheWay && small) stretch_ = SmallStretchTo(wanted_);
  if (!onTheWay && !small) stretch_ = StretchBelow(wanted_ + 1);
  auto task = NextOfStretch();
  if (!task && small) {
    // It has turned out to hang on the key picture before.
    stretch_ = SmallStretchTo(wanted_);
    task = NextOfStretch();
  }
  if (task) task->awaited = awaited_;
  return task;
}

/// Looks whether the hand that goes back will soon come to pictures of which there is none yet, and orders
/// small ones of all that hang together there.
bool PictureSource::WantsSmallStretch() {
  if (stretch_ && stretch_->small) return true;
  if (!listener_.keepSmall || immediate_ || step_ > 0 || !HasSmall(focus_)) return false;
  for (int below = focus_ - 1; below >= std::max(0, focus_ - kSmallAhead); --below) {
    if (HasSmall(below) || IsKnown(below)) continue;
    stretch_ = SmallStretchTo(below);
    return true;
  }
  return false;
}

/// The next picture to be decoded ahead, in the direction of the steps; nothing while there are enough.
std::optional<int> PictureSource::NextAhead() {
  const bool justOpened = lastDelta_ == 0 && listener_.keepSmall;
  const int window = std::clamp(store_.Fitting(share_, least_) / 3, 1, justOpened ? kAheadAtFirst : kAhead);
  for (int i = 1; i <= window; ++i) {
    const int picture = focus_ + i * step_;
    if (picture < 0 || picture >= readableEnd_) break;
    if (IsKnown(picture)) continue;
    // Waking for every single picture costs more than it brings.
    if (i <= window / 2 + 1) fillingAhead_ = true;
    return fillingAhead_ ? std::optional(picture) : std::nullopt;
  }
  fillingAhead_ = false;
  // Where a jump led, the first step may go back.
  const int behind = focus_ - (step_ > 0 ? 1 : -1);
  if (immediate_ && behind >= 0 && behind < readableEnd_ && !IsKnown(behind)) return behind;
  return std::nullopt;
}

/// Looks whether too few pictures stand ready below the focus, and orders a stretch of them.
bool PictureSource::WantsStretch() {
  const int room = store_.Fitting(share_, least_);
  const int enough = step_ < 0 ? std::clamp(room / 4, 1, 64) : std::clamp(room / 4, 1, kShortStretch);
  int low = std::min(focus_, readableEnd_);
  while (low > 0 && focus_ - low < enough && IsKnown(low - 1)) --low;
  if (low == 0 || focus_ - low >= enough) return false;
  stretch_ = StretchBelow(low);
  return true;
}

PictureSource::Stretch PictureSource::StretchBelow(int end) const {
  const int length = std::clamp(store_.Fitting(share_, least_) / 2, 2, kLongStretch);
  // What hangs on one key picture is decoded together; where keys stand close, several together.
  const int chunk = index_.ChunkOfPicture(std::max(0, end - 1));
  const int several = index_.ChunkOfPicture(std::max(0, end - std::min(kShortStretch, length)));
  const int first = index_.ChunkFirstPicture(std::min(chunk, several));
  return {std::max(first, end - length), end};
}

PictureSource::Stretch PictureSource::SmallStretchTo(int picture) const {
  const PictureDecoder& decoder = backward_ ? *backward_ : *forward_;
  const int chunk = decoder.StartChunkFor(picture);
  return {decoder.FirstOfRun(chunk), picture + 1, true, chunk};
}

std::optional<PictureSource::Task> PictureSource::NextOfStretch() {
  Stretch& stretch = *stretch_;
  // Where the run begins may only have been learnt in its course.
  if (stretch.small && backward_) stretch.next = std::max(stretch.next, backward_->FirstOfRun(stretch.chunk));
  const auto isThere = [&](int p) { return IsKnown(p) || (stretch.small && p != wanted_ && HasSmall(p)); };
  while (stretch.next < stretch.end && isThere(stretch.next)) ++stretch.next;
  if (stretch.next >= stretch.end) {
    stretch_.reset();
    return std::nullopt;
  }
  return Task{.back = true, .small = stretch.small, .target = stretch.next, .wholeFrom = stretch.next};
}

PictureDecoder& PictureSource::DecoderFor(const Task& task) { return task.back && backward_ ? *backward_ : *forward_; }

bool PictureSource::Advance(const Task& task, Decoded& decoded) {
  if (task.key >= 0) {
    int picture = -1;
    using Look = PictureDecoder::KeyLook;
    const bool rough = listener_.keepSmall && !task.exact;
    FrameHandle frame = forward_->KeyPicture(task.key, picture, rough ? Look::Rough : Look::Exact);
    if (!frame) return true;
    // A rough one is only for looking.
    if (rough) listener_.keepSmall(picture, *frame);
    else decoded.emplace_back(picture, std::move(frame));
    return true;
  }
  if (task.back && !immediate_ && !backward_) {
    // Its own reader, so that the one that goes forward keeps its place.
    auto demuxer = forward_->Source().Again();
    if (demuxer)
      if (auto opened = PictureDecoder::Open(std::move(demuxer))) backward_ = std::move(*opened);
  }
  PictureDecoder& decoder = DecoderFor(task);
  const int startChunk = decoder.StartChunkFor(task.target);
  const bool near = decoder.NextPacket() + kReadThrough >= index_.ChunkStart(startChunk);
  if (!decoder.Reaches(task.target) || !near) {
    if (decoder.Lost(task.target) || !decoder.Start(startChunk)) return false;
  }
  decoder.Step(task.wholeFrom, [&](int picture, FrameHandle frame) {
    if (picture < task.wholeFrom) return;
    if (task.small) listener_.keepSmall(picture, *frame);
    decoded.emplace_back(picture, std::move(frame));
  });
  return !decoder.Lost(task.target);
}

}  // namespace kinalyx
