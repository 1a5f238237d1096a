#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/files/Tr.h"
#include "platform/media/PlacedFile.h"
#include "platform/media/RecordingFile.h"
#include "platform/media/RecordingParts.h"

namespace kinalyx {
namespace {

constexpr std::size_t kChunkHead = 8;
constexpr std::int64_t kHeadBytes = kChunkHead;
constexpr std::size_t kPartHead = 24;
constexpr std::int64_t kPartHeadBytes = kPartHead;
constexpr std::int64_t kFirstPicture = RecordingHead::kBytes;
constexpr std::size_t kIndexHead = 32;
/// Heads of one part that are damaged: where there are more, the index is not of these pictures.
constexpr std::size_t kMostDamaged = 1000;
/// Offsets within a part are numbers of 32 bits.
constexpr std::int64_t kLargestPart = std::int64_t{1} << 31;

std::optional<RecordingHead> HeadOf(const PlacedFile& file) {
  std::vector<std::uint8_t> bytes(RecordingHead::kBytes);
  if (file.Read(0, bytes) != bytes.size()) return std::nullopt;
  return RecordingHead::Read(std::move(bytes));
}

/// Goes through the chunks of a recording from the first to the last, and over what is damaged between them.
class ChunkWalk {
 public:
  explicit ChunkWalk(const PlacedFile& file) : file_(file), bytes_(file.Bytes()) {}

  void Go(const RecordingHead& knows);
  /// Where the last picture ends.
  std::int64_t End() const { return end_; }
  std::vector<RecordingPart> TakeParts() { return std::move(parts_); }
  /// Gives damaged places heads by which everybody gets over them.
  Outcome Repair() const;

 private:
  struct Head {
    std::uint32_t name = 0;
    std::uint32_t bytes = 0;
    std::int64_t end = 0;
  };
  struct Patch {
    std::int64_t at = 0;
    std::uint32_t name = 0;
    std::uint32_t bytes = 0;
  };

  std::optional<Head> HeadAt(std::int64_t at) const;
  bool GoesOnAt(std::int64_t at) const;
  std::optional<std::int64_t> FindNext(std::int64_t from) const;
  bool ReadIndex(RecordingPart& part) const;
  std::optional<std::vector<Patch>> Compare(const RecordingPart& told) const;
  std::int64_t TakeClosedParts(const RecordingHead& head);
  void TakeChunk(std::int64_t at, const Head& head);
  void TakeIndex(std::int64_t at, std::uint32_t bytes);
  std::int64_t TakeDamagedPart(std::int64_t at);
  std::int64_t TakeDamaged(std::int64_t at, const std::optional<Head>& head, std::int64_t next);
  void TakePicture(std::int64_t at, std::uint32_t bytes);

  const PlacedFile& file_;
  const std::int64_t bytes_;
  std::vector<RecordingPart> parts_;
  std::vector<Patch> patches_;
  std::int64_t end_ = kFirstPicture;
};

bool IsKnown(std::uint32_t name) {
  return name == kPictureChunk || name == kPartIndexChunk || name == kOldIndexChunk || name == kJunkChunk ||
         name == kFileChunk;
}

/// The chunk whose head stands there; nothing when it is none that a recording has.
std::optional<ChunkWalk::Head> ChunkWalk::HeadAt(std::int64_t at) const {
  std::array<std::uint8_t, kPartHead> bytes{};
  if (file_.Read(at, std::span(bytes).first(kChunkHead)) < kChunkHead) return std::nullopt;
  Head head{static_cast<std::uint32_t>(TakeNumber(bytes, 0)), static_cast<std::uint32_t>(TakeNumber(bytes, 4)), 0};
  if (!IsKnown(head.name)) return std::nullopt;
  head.end = at + kHeadBytes + head.bytes + head.bytes % 2;
  if (head.name != kFileChunk) return head;
  // A part is entered, not passed over.
  if (file_.Read(at, bytes) < bytes.size() || TakeNumber(bytes, 8) != ChunkName("AVIX") ||
      TakeNumber(bytes, 12) != kListChunk || TakeNumber(bytes, 20) != ChunkName("movi"))
    return std::nullopt;
  head.end = at + kPartHeadBytes;
  return head;
}

/// Whether a chunk may end here: there is another, or the file has not room for one.
bool ChunkWalk::GoesOnAt(std::int64_t at) const {
  if (at > bytes_) return false;
  return at + kHeadBytes > bytes_ || HeadAt(at).has_value();
}

/// The next whole chunk that is followed by what may follow it.
std::optional<std::int64_t> ChunkWalk::FindNext(std::int64_t from) const {
  std::vector<std::uint8_t> window(1 << 20);
  const std::size_t step = window.size() - kChunkHead;
  for (std::int64_t start = from; start < bytes_; start += static_cast<std::int64_t>(step)) {
    const std::size_t got = file_.Read(start, window);
    for (std::size_t i = 0; i + kChunkHead <= got && i < step; i += 2) {
      if (!IsKnown(static_cast<std::uint32_t>(TakeNumber(window, i)))) continue;
      const std::int64_t at = start + static_cast<std::int64_t>(i);
      const auto head = HeadAt(at);
      if (head && head->end <= bytes_ && GoesOnAt(head->end)) return at;
    }
  }
  return std::nullopt;
}

void ChunkWalk::TakePicture(std::int64_t at, std::uint32_t bytes) {
  // What follows the index of a part belongs to the next one, also where the head of that is damaged.
  if (parts_.back().indexAt > 0 || at - parts_.back().base > kLargestPart) {
    RecordingPart headless;
    headless.base = at;
    headless.headless = true;
    parts_.push_back(std::move(headless));
  }
  RecordingPart& part = parts_.back();
  part.chunks.push_back({static_cast<std::uint32_t>(at - part.base), bytes});
  end_ = part.EndOf(part.chunks.back());
}

/// What the index of a part tells; false when it is not whole.
bool ChunkWalk::ReadIndex(RecordingPart& part) const {
  const std::int64_t first = part.headless ? part.base : part.base + (part.base == 0 ? kFirstPicture : kPartHeadBytes);
  if (part.indexBytes < kIndexHead || part.indexAt < first || part.indexAt + part.indexBytes > bytes_) return false;
  std::vector<std::uint8_t> index(part.indexBytes);
  // Whatever of its head is wrong, other programs do not read it either.
  constexpr std::uint64_t kNumbersAndKind = 2 | 0x0100U << 16;
  if (file_.Read(part.indexAt, index) < index.size() || TakeNumber(index, 0) != kPartIndexChunk ||
      TakeNumber(index, 8) != kNumbersAndKind || TakeNumber(index, 16) != kPictureChunk ||
      TakeNumber(index, 20, 8) != static_cast<std::uint64_t>(part.base))
    return false;
  const auto count = static_cast<std::size_t>(TakeNumber(index, 12));
  if (index.size() != kIndexHead + 8 * count) return false;
  std::int64_t before = first;
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint64_t content = TakeNumber(index, kIndexHead + 8 * i);
    const RecordingChunk chunk{static_cast<std::uint32_t>(content - kChunkHead),
                               static_cast<std::uint32_t>(TakeNumber(index, kIndexHead + 8 * i + 4))};
    if (content < kChunkHead || part.base + chunk.at < before || part.EndOf(chunk) > part.indexAt) return false;
    before = part.EndOf(chunk);
    part.chunks.push_back(chunk);
  }
  return true;
}

/// Holds the index of a part against the heads of its pictures. One of both may be damaged.
/// @return  what repairs the heads; nothing when it is rather the index that is wrong
std::optional<std::vector<ChunkWalk::Patch>> ChunkWalk::Compare(const RecordingPart& told) const {
  std::vector<Patch> patches;
  std::int64_t at = told.headless ? told.base : told.base + (told.base == 0 ? kFirstPicture : kPartHeadBytes);
  for (const RecordingChunk& chunk : told.chunks) {
    const std::int64_t wanted = told.base + chunk.at;
    while (at < wanted) {  // places that were not needed
      const auto head = HeadAt(at);
      if (head && head->name == kJunkChunk) {
        at = head->end;
        continue;
      }
      // Such a head may be damaged itself.
      patches.push_back({at, kJunkChunk, 0});
      at += kHeadBytes;
    }
    if (at != wanted) return std::nullopt;
    const auto head = HeadAt(at);
    if (!head || head->name != kPictureChunk || head->bytes != chunk.bytes) {
      if (head && head->name == kPictureChunk && GoesOnAt(head->end)) return std::nullopt;
      patches.push_back({at, kPictureChunk, chunk.bytes});
    }
    at = told.EndOf(chunk);
    if (patches.size() > kMostDamaged) return std::nullopt;
  }
  return at <= told.indexAt ? std::optional(patches) : std::nullopt;
}

/// Takes the parts of which the head knows, as long as they are as it says.
/// @return where to go on
std::int64_t ChunkWalk::TakeClosedParts(const RecordingHead& head) {
  std::int64_t at = 0;
  for (std::size_t i = 0; i < head.Parts(); ++i) {
    RecordingPart part;
    part.base = at;
    std::tie(part.indexAt, part.indexBytes) = head.Part(i);
    std::array<std::uint8_t, kChunkHead> size{};
    if (!ReadIndex(part) || file_.Read(at, size) < size.size()) break;
    const auto next = at + kHeadBytes + static_cast<std::int64_t>(TakeNumber(size, 4));
    if (next < part.indexAt + part.indexBytes || !GoesOnAt(next)) break;
    const auto patches = Compare(part);
    if (!patches) break;
    patches_.insert(patches_.end(), patches->begin(), patches->end());
    at = next;
    if (!part.chunks.empty()) end_ = part.EndOf(part.chunks.back());
    parts_.push_back(std::move(part));
  }
  if (!parts_.empty()) return at;
  parts_.emplace_back();
  return end_;
}

void ChunkWalk::Go(const RecordingHead& knows) {
  std::int64_t at = TakeClosedParts(knows);
  while (at + kHeadBytes <= bytes_) {
    const auto head = HeadAt(at);
    if (head && head->end <= bytes_ && GoesOnAt(head->end)) {
      TakeChunk(at, *head);
      at = head->end;
      continue;
    }
    // What cannot be brought to an end here is cut, or damaged.
    const auto next = FindNext(at + kHeadBytes);
    if (!next) break;
    // Behind the indexes of a part only the next one can begin.
    const bool part = !head && parts_.back().indexAt > 0 && *next == at + kPartHeadBytes;
    at = part ? TakeDamagedPart(at) : TakeDamaged(at, head, *next);
  }
  // The index of the last part is written anew.
  parts_.back().indexAt = 0;
}

void ChunkWalk::TakeChunk(std::int64_t at, const Head& head) {
  if (head.name == kPictureChunk) TakePicture(at, head.bytes);
  if (head.name == kPartIndexChunk) TakeIndex(at, head.bytes + static_cast<std::uint32_t>(kChunkHead));
  if (head.name != kFileChunk) return;
  parts_.emplace_back().base = at;
  end_ = head.end;
}

/// What the index of a part tells holds against heads that are damaged; an index of something else is made anew.
void ChunkWalk::TakeIndex(std::int64_t at, std::uint32_t bytes) {
  RecordingPart& walked = parts_.back();
  RecordingPart told;
  told.base = walked.base;
  told.headless = walked.headless;
  told.indexAt = at;
  told.indexBytes = bytes;
  if (walked.indexAt > 0 || !ReadIndex(told) || told.chunks.size() != walked.chunks.size()) return;
  const auto patches = Compare(told);
  if (!patches) return;
  std::erase_if(patches_, [&](const Patch& patch) { return patch.at >= told.base; });
  patches_.insert(patches_.end(), patches->begin(), patches->end());
  if (!told.chunks.empty()) end_ = told.EndOf(told.chunks.back());
  walked = std::move(told);
}

/// Gives a part its head back, with the sizes that stand there.
/// @return where its first chunk is
std::int64_t ChunkWalk::TakeDamagedPart(std::int64_t at) {
  std::array<std::uint8_t, kPartHead> bytes{};
  (void)file_.Read(at, bytes);
  patches_.push_back({at, kFileChunk, static_cast<std::uint32_t>(TakeNumber(bytes, 4))});
  patches_.push_back({at + 8, ChunkName("AVIX"), kListChunk});
  patches_.push_back({at + 16, static_cast<std::uint32_t>(TakeNumber(bytes, 16)), ChunkName("movi")});
  parts_.emplace_back().base = at;
  return end_ = at + kPartHeadBytes;
}

/// @param next  where things are in order again
/// @return where to go on
std::int64_t ChunkWalk::TakeDamaged(std::int64_t at, const std::optional<Head>& head, std::int64_t next) {
  const bool picture = head && head->name == kPictureChunk;
  // It is whole, and what follows it is not; or its own size is a little too small.
  const std::int64_t behind = picture ? next - head->end : 0;
  if (behind == kHeadBytes || behind > std::int64_t{head ? head->bytes : 0} / 2) {
    TakePicture(at, head->bytes);
    return head->end;
  }
  const std::int64_t bytes = next - at;
  if (bytes > std::int64_t{UINT32_MAX}) return next;
  if (picture) {
    const auto real = static_cast<std::uint32_t>(bytes - kHeadBytes);
    patches_.push_back({at, kPictureChunk, real});
    TakePicture(at, real);
    return next;
  }
  // The picture is lost; its place is kept where there is room for both an empty one and the rubble.
  std::int64_t rubble = at;
  if (!head && (bytes == kHeadBytes || bytes >= 2 * kHeadBytes)) {
    patches_.push_back({at, kPictureChunk, 0});
    TakePicture(at, 0);
    rubble += kHeadBytes;
  }
  if (rubble < next) patches_.push_back({rubble, kJunkChunk, static_cast<std::uint32_t>(next - rubble - kHeadBytes)});
  return next;
}

Outcome ChunkWalk::Repair() const {
  for (const Patch& patch : patches_) {
    std::array<std::uint8_t, kChunkHead> bytes{};
    PutNumber(bytes, 0, patch.name);
    PutNumber(bytes, 4, patch.bytes);
    if (const Outcome written = file_.Write(patch.at, bytes); !written) return written;
  }
  return Outcome();
}

}  // namespace

bool IsUnfinishedRecording(const std::string& path) {
  const Result<PlacedFile> file = PlacedFile::Open(path, PlacedFile::Which::Old);
  const auto head = file ? HeadOf(*file) : std::nullopt;
  return head && !head->Finished();
}

Result<RecordingTally> MendRecording(const std::string& path) {
  Result<PlacedFile> file = PlacedFile::Open(path, PlacedFile::Which::Old);
  if (!file) return file.Failure();
  auto head = HeadOf(*file);
  if (!head || head->Finished()) return Outcome(Fault::NoMedia, Tr("this is no recording that was broken off"));
  RecordingParts parts(std::move(*file), *head);
  ChunkWalk walk(parts.File());
  walk.Go(*head);
  parts.Resume(walk.TakeParts(), walk.End());
  if (parts.Pictures() == 0) return Outcome(Fault::NoFrames, Tr("the recording holds no picture"));
  if (parts.PartCount() > RecordingHead::kMostParts) return Outcome::Failed(Tr("the recording is too badly damaged"));
  const timespec written = parts.File().Written();
  Outcome done = walk.Repair();
  if (done) done = parts.File().Cut(walk.End());
  if (done) done = parts.Finish(head->Rate());
  if (!done) return done;
  // It was taken then, not now.
  parts.File().SetWritten(written);
  RecordingTally tally;
  tally.pictures = parts.Pictures();
  tally.lost = parts.Places() - parts.Pictures();
  tally.rate = head->Rate();
  tally.lastNs = std::llround(static_cast<double>(parts.Places() - 1) / tally.rate * 1e9);
  tally.bytes = parts.Bytes();
  return tally;
}

}  // namespace kinalyx
