#include "platform/media/PictureSource.h"

#include <algorithm>
#include <string>

namespace kinalyx {
namespace {

/// Pictures decoded ahead in play: enough to ride out a busy moment.
constexpr int kAhead = 12;
/// A move by no more than this is a step; anything else is a jump to another place.
constexpr int kStepForward = 16;
constexpr int kStepBack = 4;
/// What a stretch is made long and short by.
constexpr int kShortStretch = 8;
constexpr int kLongStretch = 256;
/// Packets that a decoder rather works through than enter the file anew.
constexpr int kReadThrough = 8;
/// Whatever the budget says, so many pictures are kept: less would be decoded again and again.
constexpr int kLeastPictures = 4;

}  // namespace

PictureSource::PictureSource(std::unique_ptr<PictureDecoder> decoder)
    : forward_(std::move(decoder)),
      index_(forward_->Index()),
      immediate_(forward_->IsImmediate()),
      readableEnd_(index_.PictureCount()),
      budget_([this] {
        const std::lock_guard lock(mutex_);
        shareChanged_ = true;
        work_.notify_one();
      }) {}

PictureSource::~PictureSource() {
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
  for (int p = picture; p >= 0; --p) {
    p = std::min(p, readableEnd_ - 1);
    if (p < 0) break;
    if (IsLost(p)) continue;
    if (!store_.Has(p)) {
      wanted_ = p;
      thorough_ = p != picture;
      work_.notify_one();
      arrived_.wait(lock, [&] { return IsKnown(p); });
      wanted_ = -1;
    }
    if (FrameHandle frame = store_.Get(p)) {
      work_.notify_one();
      return frame;
    }
  }
  return nullptr;
}

void PictureSource::MoveFocus(int picture) {
  const int delta = picture - focus_;
  focus_ = picture;
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
    const std::optional<Task> task = Choose();
    if (!task) {
      work_.wait(lock);
      continue;
    }
    Decoded decoded;
    lock.unlock();
    const bool reachable = Advance(*task, decoded);
    lock.lock();
    for (auto& [picture, frame] : decoded) {
      lost_.erase(picture);
      store_.Put(picture, std::move(frame));
    }
    readableEnd_ = std::min(readableEnd_, DecoderFor(*task).ReadableEnd());
    if (!reachable) lost_.insert(task->target);
    const std::size_t least = store_.Bytes() > 0 ? kLeastPictures * (store_.Bytes() / std::max(1, store_.Count())) : 0;
    store_.Trim(std::max(share_, least), wanted_ >= 0 ? wanted_ : focus_, step_ < 0 ? 4 : 1);
    if (wanted_ >= 0 && IsKnown(wanted_)) arrived_.notify_one();
  }
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
    const bool onTheWay = stretch_ && wanted_ >= stretch_->next && wanted_ < stretch_->end;
    if (!onTheWay && (immediate_ || step_ > 0 || thorough_)) return Task{false, wanted_, thorough_ ? 0 : wanted_};
    if (!onTheWay) stretch_ = StretchBelow(wanted_ + 1);
    return NextOfStretch();
  }
  if (immediate_ || step_ > 0) {
    if (const auto ahead = NextAhead()) return Task{false, *ahead, *ahead};
  }
  if (immediate_ || (!stretch_ && !WantsStretch())) return std::nullopt;
  return NextOfStretch();
}

/// The next picture to be decoded ahead, in the direction of the steps; nothing while there are enough.
std::optional<int> PictureSource::NextAhead() {
  const int window = std::clamp(store_.Fitting(share_, kLeastPictures) / 3, 1, kAhead);
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
  const int room = store_.Fitting(share_, kLeastPictures);
  const int enough = step_ < 0 ? std::clamp(room / 4, 1, 64) : std::clamp(room / 4, 1, kShortStretch);
  int low = std::min(focus_, readableEnd_);
  while (low > 0 && focus_ - low < enough && IsKnown(low - 1)) --low;
  if (low == 0 || focus_ - low >= enough) return false;
  stretch_ = StretchBelow(low);
  return true;
}

PictureSource::Stretch PictureSource::StretchBelow(int end) const {
  const int length = std::clamp(store_.Fitting(share_, kLeastPictures) / 2, 2, kLongStretch);
  // What hangs on one key picture is decoded together; where keys stand close, several together.
  const int chunk = index_.ChunkOfPicture(std::max(0, end - 1));
  const int several = index_.ChunkOfPicture(std::max(0, end - std::min(kShortStretch, length)));
  const int first = index_.ChunkFirstPicture(std::min(chunk, several));
  return {std::max(first, end - length), end};
}

std::optional<PictureSource::Task> PictureSource::NextOfStretch() {
  while (stretch_->next < stretch_->end && IsKnown(stretch_->next)) ++stretch_->next;
  if (stretch_->next >= stretch_->end) {
    stretch_.reset();
    return std::nullopt;
  }
  return Task{true, stretch_->next, stretch_->next};
}

PictureDecoder& PictureSource::DecoderFor(const Task& task) { return task.back && backward_ ? *backward_ : *forward_; }

bool PictureSource::Advance(const Task& task, Decoded& decoded) {
  if (task.back && !immediate_ && !backward_) {
    // Its own reader, so that the one that goes forward keeps its place.
    std::string ignored;
    if (auto demuxer = forward_->Source().Again()) backward_ = PictureDecoder::Open(std::move(demuxer), ignored);
  }
  PictureDecoder& decoder = DecoderFor(task);
  const int startChunk = decoder.StartChunkFor(task.target);
  const bool near = decoder.NextPacket() + kReadThrough >= index_.ChunkStart(startChunk);
  if (!decoder.Reaches(task.target) || !near) {
    if (decoder.Lost(task.target) || !decoder.Start(startChunk)) return false;
  }
  decoder.Step(task.wholeFrom, [&](int picture, FrameHandle frame) {
    if (picture >= task.wholeFrom) decoded.emplace_back(picture, std::move(frame));
  });
  return !decoder.Lost(task.target);
}

}  // namespace kinalyx
