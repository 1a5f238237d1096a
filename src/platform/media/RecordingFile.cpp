#include "platform/media/RecordingFile.h"

#include <cmath>
#include <optional>
#include <utility>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/media/RecordingClock.h"
#include "platform/media/RecordingParts.h"

namespace kinalyx {
namespace {

constexpr std::int64_t kSecond = 1'000'000'000;
constexpr int kLargestSide = 16384;

/// Bytes of a row, where the file has the rows in the opposite order; else 0.
std::size_t RowsToTurn(const RecordingFormat& format) {
  if (format.codec != RecordingFormat::Codec::RawBgr24) return 0;
  return (static_cast<std::size_t>(format.width) * 3 + 3) / 4 * 4;
}

/// Bytes of each picture of a raw format; else 0.
std::size_t PictureBytes(const RecordingFormat& format) {
  const auto height = static_cast<std::size_t>(format.height);
  if (format.codec == RecordingFormat::Codec::RawYuy2)
    return (static_cast<std::size_t>(format.width) * 2 + 3) / 4 * 4 * height;
  return RowsToTurn(format) * height;
}

}  // namespace

struct RecordingFile::Engine {
  Engine(PlacedFile file, const RecordingFormat& format)
      : parts(std::in_place, std::move(file), RecordingHead(format)),
        clock(format.promisedRate),
        promises(format.promisedRate > 0),
        promisedRate(parts->Head().Rate()),
        rowBytes(RowsToTurn(format)),
        pictureBytes(PictureBytes(format)) {}

  Outcome Keep(Outcome outcome);
  Outcome Take(std::span<const std::byte> picture, std::int64_t ns);
  Outcome Settle(std::int64_t empty);
  Outcome SettleAll();
  void Count();
  bool RunsWild(std::int64_t ns) const;
  double RateOfFile() const;

  std::optional<RecordingParts> parts;  ///< until it is closed
  RecordingClock clock;
  RecordingTally tally;
  std::int64_t lost = 0;  ///< pictures of which that is certain
  bool promises;          ///< the camera tells its rate
  double promisedRate;
  std::size_t rowBytes;
  std::size_t pictureBytes;
  std::int64_t notedNs = 0;
};

/// Far more pictures than the camera can take: a source whose camera has just been pulled out may give its last one
/// again and again.
bool RecordingFile::Engine::RunsWild(std::int64_t ns) const {
  constexpr double kAtMost = 4;  // times what it promises
  const double seconds = 1 + static_cast<double>(ns - tally.firstNs) * 1e-9;
  return promises && tally.pictures > 0 && static_cast<double>(tally.pictures) > kAtMost * promisedRate * seconds;
}

/// Remembers the first failure.
Outcome RecordingFile::Engine::Keep(Outcome outcome) {
  if (!outcome && tally.fault.empty()) tally.fault = outcome.Why();
  return outcome;
}

/// A moment is too short to be measured: there the camera's word counts, unless it is plainly wrong.
double RecordingFile::Engine::RateOfFile() const {
  constexpr double kPlainlyWrong = 0.1;
  const double measured = clock.Rate();
  if (measured <= 0) return promisedRate;
  const bool moment = tally.lastNs - tally.firstNs < kSecond / 2;
  return moment && std::abs(measured - promisedRate) < kPlainlyWrong * promisedRate ? promisedRate : measured;
}

void RecordingFile::Engine::Count() {
  tally.rate = clock.Rate();
  tally.pictures = parts->Pictures();
  tally.lost = tally.open ? lost : parts->Places() - parts->Pictures();
  tally.bytes = parts->Bytes();
}

Outcome RecordingFile::Engine::Settle(std::int64_t empty) {
  lost += empty;
  return parts->Settle(empty);
}

Outcome RecordingFile::Engine::SettleAll() {
  Outcome done;
  while (const auto empty = clock.Conclude()) {
    if (const Outcome settled = Settle(*empty); done && !settled) done = settled;
  }
  return done;
}

Outcome RecordingFile::Engine::Take(std::span<const std::byte> picture, std::int64_t ns) {
  if (!parts->Fits(picture.size())) {
    if (const Outcome settled = SettleAll(); !settled) return settled;
  }
  const RecordingClock::Gap gap = clock.Take(ns);
  if (const Outcome done = parts->Append(picture, rowBytes, gap.room, gap.guessed); !done) return done;
  while (const auto empty = clock.Settle()) {
    if (const Outcome done = Settle(*empty); !done) return done;
  }
  if (tally.pictures == 0) tally.firstNs = notedNs = ns;
  tally.lastNs = ns;
  Count();
  if (ns - notedNs < kSecond) return Outcome();
  notedNs = ns;
  return parts->Note(RateOfFile());
}

Result<std::unique_ptr<RecordingFile>> RecordingFile::Create(const std::string& path, const RecordingFormat& format) {
  if (format.width < 1 || format.height < 1 || format.width > kLargestSide || format.height > kLargestSide)
    return Outcome::Failed(Tr("no picture has this size"));
  Result<PlacedFile> file = PlacedFile::Open(path, PlacedFile::Which::New);
  if (!file) return file.Failure();
  auto engine = std::make_unique<Engine>(std::move(*file), format);
  if (const Outcome begun = engine->parts->Begin(); !begun) {
    (void)KillFile(path);
    return begun;
  }
  engine->tally.open = true;
  engine->Count();
  return std::unique_ptr<RecordingFile>(new RecordingFile(std::move(engine)));
}

RecordingFile::RecordingFile(std::unique_ptr<Engine> engine) : engine_(std::move(engine)) {}

RecordingFile::~RecordingFile() { (void)Close(); }

Outcome RecordingFile::Write(std::span<const std::byte> picture, std::int64_t ns) {
  RecordingTally& tally = engine_->tally;
  if (!tally.fault.empty()) return Outcome::Failed(tally.fault);
  if (!tally.open) return Outcome::Failed(Tr("the recording is closed"));
  // What holds nothing leaves its place empty, as a picture that never came.
  if (picture.empty() || (tally.pictures > 0 && ns <= tally.lastNs)) return Outcome();
  if (engine_->RunsWild(ns)) return Outcome();
  // So does one that was cut on its way.
  if (picture.size() < engine_->pictureBytes) return Outcome();
  if (engine_->pictureBytes > 0) picture = picture.first(engine_->pictureBytes);
  return engine_->Keep(engine_->Take(picture, ns));
}

const RecordingTally& RecordingFile::Tally() const { return engine_->tally; }

Outcome RecordingFile::Close() {
  RecordingTally& tally = engine_->tally;
  if (!tally.open) return Outcome();
  tally.open = false;
  const Outcome settled = engine_->Keep(engine_->SettleAll());
  const Outcome finished = engine_->Keep(engine_->parts->Finish(engine_->RateOfFile()));
  engine_->Count();
  engine_->parts.reset();
  return finished ? settled : finished;
}

}  // namespace kinalyx
