#include "platform/media/RecordingParts.h"

#include <algorithm>
#include <array>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr std::size_t kLargestPicture = std::size_t{1} << 28;
constexpr std::uint32_t kChunkHead = 8;
constexpr std::size_t kIndexHead = 32;
constexpr std::size_t kPartHead = 24;
/// What a picture takes in both indexes.
constexpr std::size_t kIndexed = 8 + 16;

using Tail = std::vector<std::uint8_t>;

void Grow(Tail& tail, std::size_t bytes) { tail.resize(tail.size() + bytes); }

void AppendNumber(Tail& tail, std::uint64_t number, int count = 4) {
  Grow(tail, static_cast<std::size_t>(count));
  PutNumber(tail, tail.size() - static_cast<std::size_t>(count), number, count);
}

/// The index of a part, with places from its base.
void AppendPartIndex(Tail& tail, const RecordingPart& part) {
  AppendNumber(tail, kPartIndexChunk);
  AppendNumber(tail, kIndexHead - 8 + 8 * part.chunks.size());
  AppendNumber(tail, 2, 2);       // numbers in each entry
  AppendNumber(tail, 0x0100, 2);  // an index of chunks
  AppendNumber(tail, part.chunks.size());
  AppendNumber(tail, kPictureChunk);
  AppendNumber(tail, static_cast<std::uint64_t>(part.base), 8);
  AppendNumber(tail, 0);
  for (const RecordingChunk& chunk : part.chunks) {
    AppendNumber(tail, chunk.at + 8);
    AppendNumber(tail, chunk.bytes);
  }
}

/// The index that old programs read, with places from the kind of the list of pictures.
void AppendOldIndex(Tail& tail, const RecordingPart& part) {
  constexpr std::uint32_t kKeyPicture = 0x10;
  AppendNumber(tail, kOldIndexChunk);
  AppendNumber(tail, 16 * part.chunks.size());
  for (const RecordingChunk& chunk : part.chunks) {
    AppendNumber(tail, kPictureChunk);
    AppendNumber(tail, kKeyPicture);
    AppendNumber(tail, chunk.at - (RecordingHead::kPictureList + 8));
    AppendNumber(tail, chunk.bytes);
  }
}

/// Heads of chunks without content: empty places first, and behind them such as everybody passes over.
void AppendEmptyChunks(Tail& tail, std::int64_t from, std::int64_t to, std::int64_t empty) {
  for (std::int64_t i = from; i < to; ++i) {
    AppendNumber(tail, i < empty ? kPictureChunk : kJunkChunk);
    AppendNumber(tail, 0);
  }
}

}  // namespace

Outcome RecordingParts::Begin() {
  parts_.emplace_back();
  end_ = static_cast<std::int64_t>(RecordingHead::kBytes);
  return file_.Write(0, head_.Bytes());
}

void RecordingParts::Resume(std::vector<RecordingPart> parts, std::int64_t end) {
  parts_ = std::move(parts);
  end_ = end;
  for (RecordingPart& part : parts_) {
    part.places = static_cast<std::uint32_t>(part.chunks.size());
    places_ += part.places;
    for (const RecordingChunk& chunk : part.chunks) {
      if (chunk.bytes > 0) ++pictures_;
      largest_ = std::max(largest_, chunk.bytes);
    }
  }
}

bool RecordingParts::Fits(std::size_t bytes) const {
  const auto indexed = static_cast<std::int64_t>(kIndexed * (parts_.back().chunks.size() + 4));
  const auto wanted = static_cast<std::int64_t>(kChunkHead + bytes + bytes % 2);
  return end_ - parts_.back().base + wanted + indexed <= partBytes_;
}

Outcome RecordingParts::Append(std::span<const std::byte> picture, std::size_t rowBytes, std::int64_t room,
                               std::int64_t guessed) {
  if (picture.size() > kLargestPicture) return Outcome::Failed(Tr("the picture is too large"));
  if (!Fits(picture.size())) {
    if (const Outcome begun = BeginPart(); !begun) return begun;
  }
  heads_.clear();
  AppendEmptyChunks(heads_, 0, room, guessed);
  AppendNumber(heads_, kPictureChunk);
  AppendNumber(heads_, picture.size());
  std::uint8_t padding = 0;
  pieces_.assign(1, {heads_.data(), heads_.size()});
  auto* bytes = const_cast<std::byte*>(picture.data());
  if (rowBytes > 0) {
    for (std::size_t row = picture.size() / rowBytes; row-- > 0;) pieces_.push_back({bytes + row * rowBytes, rowBytes});
  } else {
    pieces_.push_back({bytes, picture.size()});
  }
  if (picture.size() % 2) pieces_.push_back({&padding, 1});
  if (const Outcome written = file_.Write(end_, pieces_); !written) {
    (void)file_.Cut(end_);  // the part of a picture; mending takes it away as well
    return written;
  }
  RecordingPart& part = parts_.back();
  const auto at = static_cast<std::uint32_t>(end_ - part.base);
  unsettled_.push_back({at, room, 0, part.chunks.size()});
  const auto picturesHead = at + static_cast<std::uint32_t>(heads_.size() - kChunkHead);
  part.chunks.push_back({picturesHead, static_cast<std::uint32_t>(picture.size())});
  ++part.places;
  ++places_;
  ++pictures_;
  PlaceEmpty(unsettled_.back(), guessed);
  largest_ = std::max(largest_, part.chunks.back().bytes);
  end_ = part.EndOf(part.chunks.back());
  return Outcome();
}

void RecordingParts::PlaceEmpty(Unsettled& before, std::int64_t empty) {
  std::vector<RecordingChunk>& chunks = parts_.back().chunks;
  const auto first = chunks.begin() + static_cast<std::ptrdiff_t>(before.chunk);
  const std::int64_t more = empty - before.empty;
  if (more < 0) chunks.erase(first, first - more);
  else chunks.insert(first, static_cast<std::size_t>(more), RecordingChunk{});
  for (std::int64_t i = 0; i < empty; ++i)
    chunks[before.chunk + static_cast<std::size_t>(i)].at = before.at + static_cast<std::uint32_t>(i) * kChunkHead;
  for (Unsettled& other : unsettled_)
    if (other.chunk > before.chunk) other.chunk += static_cast<std::size_t>(more);
  parts_.back().places += static_cast<std::uint32_t>(more);
  places_ += more;
  before.empty = empty;
}

Outcome RecordingParts::Settle(std::int64_t empty) {
  if (unsettled_.empty()) return Outcome();
  Unsettled before = unsettled_.front();
  unsettled_.pop_front();
  if (empty == before.empty) return Outcome();
  const std::int64_t from = std::min(empty, before.empty);
  Tail heads;
  AppendEmptyChunks(heads, from, std::max(empty, before.empty), empty);
  PlaceEmpty(before, empty);
  return file_.Write(parts_.back().base + before.at + from * kChunkHead, heads);
}

Outcome RecordingParts::BeginPart() {
  if (parts_.size() == RecordingHead::kMostParts)
    return Outcome(Fault::Unwritable, Tr("the file cannot grow any more"));
  if (const Outcome closed = ClosePart(); !closed) return closed;
  std::array<std::uint8_t, kPartHead> head{};
  PutNumber(head, 0, kFileChunk);
  PutNumber(head, 4, kPartHead - 8);
  PutNumber(head, 8, ChunkName("AVIX"));
  PutNumber(head, 12, kListChunk);
  PutNumber(head, 16, 4);
  PutNumber(head, 20, ChunkName("movi"));
  if (const Outcome written = file_.Write(end_, head); !written) return written;
  parts_.emplace_back().base = end_;
  end_ += kPartHead;
  return Outcome();
}

/// Writes the indexes that are missing behind the last part. What fails changes nothing but the sizes in the head.
Outcome RecordingParts::ClosePart() {
  Tail tail;
  std::vector<std::int64_t> places(parts_.size(), 0);
  for (std::size_t i = 0; i < parts_.size(); ++i) {
    if (parts_[i].indexAt > 0) continue;
    places[i] = end_ + static_cast<std::int64_t>(tail.size());
    AppendPartIndex(tail, parts_[i]);
  }
  const std::int64_t listEnd = end_ + static_cast<std::int64_t>(tail.size());
  if (parts_.size() == 1) AppendOldIndex(tail, parts_.front());
  if (const Outcome written = file_.Write(end_, tail); !written) {
    (void)file_.Cut(end_);
    return written;
  }
  end_ += static_cast<std::int64_t>(tail.size());
  for (std::size_t i = 0; i < parts_.size(); ++i) {
    RecordingPart& part = parts_[i];
    if (places[i] > 0) {
      part.indexAt = places[i];
      part.indexBytes = static_cast<std::uint32_t>(kIndexHead + 8 * part.chunks.size());
      part.chunks = {};
    }
    head_.SetPart(i, part.indexAt, part.indexBytes, part.places);
  }
  return WriteHead(listEnd);
}

/// @param listEnd  where the pictures of the last part end, its index counted
Outcome RecordingParts::WriteHead(std::int64_t listEnd) {
  head_.SetPlaces(places_, parts_.front().places);
  head_.SetLargestPicture(largest_);
  const auto last = std::ranges::find(parts_.rbegin(), parts_.rend(), false, &RecordingPart::headless);
  const std::int64_t base = last->base;
  if (base == 0) {
    head_.SetFirstPart(listEnd, end_);
  } else {
    std::array<std::uint8_t, 4> size{};
    PutNumber(size, 0, static_cast<std::uint64_t>(end_ - base - 8));
    if (const Outcome written = file_.Write(base + 4, size); !written) return written;
    PutNumber(size, 0, static_cast<std::uint64_t>(listEnd - base - 20));
    if (const Outcome written = file_.Write(base + 16, size); !written) return written;
  }
  return file_.Write(0, head_.Bytes());
}

Outcome RecordingParts::Note(double rate) {
  head_.SetRate(rate);
  const Outcome written = WriteHead(end_);
  file_.BeginFlush();
  return written;
}

/// Gives up so many of the last pictures that the index of the others finds room; false when there are none to give.
bool RecordingParts::DropPictures() {
  RecordingPart& part = parts_.back();
  const std::size_t least = parts_.size() == 1 ? 1 : 0;
  const std::int64_t wanted = end_ - static_cast<std::int64_t>(kIndexHead + kIndexed * (part.chunks.size() + 1));
  bool dropped = false;
  while (part.chunks.size() > least && end_ > wanted) {
    const RecordingChunk& chunk = part.chunks.back();
    end_ = part.base + chunk.at;
    if (chunk.bytes > 0) --pictures_;
    part.chunks.pop_back();
    --part.places;
    --places_;
    dropped = true;
  }
  return dropped && file_.Cut(end_);
}

Outcome RecordingParts::Finish(double rate) {
  head_.SetRate(rate);
  Outcome done = ClosePart();
  while (done.Kind() == Fault::Unwritable && DropPictures()) done = ClosePart();
  // The mark comes last: as long as it is not there, all this can be done again.
  if (done) done = file_.Flush();
  if (done) {
    head_.SetFinished();
    done = file_.Write(0, head_.Bytes());
  }
  return done ? file_.Flush() : done;
}

}  // namespace kinalyx
