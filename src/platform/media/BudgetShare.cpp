#include "platform/media/BudgetShare.h"

#include <malloc.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/media/VideoFile.h"

namespace kinalyx {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kPictures = std::size_t{256} << 20;
constexpr std::size_t kDecoders = std::size_t{208} << 20;
/// Stand-ins have this part of what pictures have.
constexpr std::size_t kStandInPart = 4;
/// Decoders that were used so lately are in the middle of a play.
constexpr auto kInUse = std::chrono::milliseconds(100);

/// A purse of the process.
struct Shared {
  explicit Shared(std::size_t all) : bytes(all) {}
  std::mutex mutex;
  std::vector<BudgetShare*> shares;
  std::atomic<std::size_t> bytes;
  std::atomic<std::size_t> count{0};
};

Shared& TheShared(Purse purse) {
  static std::array<Shared, 2> purses{Shared(kPictures), Shared(kPictures / kStandInPart)};
  return purses[static_cast<std::size_t>(purse)];
}

struct Seats {
  std::mutex mutex;
  std::vector<DecoderSeat*> seats;
};

Seats& TheSeats() {
  static Seats seats;
  return seats;
}

}  // namespace

BudgetShare::BudgetShare(Purse purse, std::function<void()> onChange) : purse_(purse), onChange_(std::move(onChange)) {
  Shared& shared = TheShared(purse_);
  const std::lock_guard lock(shared.mutex);
  ++shared.count;
  for (BudgetShare* other : shared.shares) other->onChange_();
  shared.shares.push_back(this);
}

BudgetShare::~BudgetShare() {
  Shared& shared = TheShared(purse_);
  const std::lock_guard lock(shared.mutex);
  std::erase(shared.shares, this);
  --shared.count;
  for (BudgetShare* other : shared.shares) other->onChange_();
}

std::size_t BudgetShare::Bytes() const {
  const Shared& shared = TheShared(purse_);
  return shared.bytes / std::max<std::size_t>(1, shared.count);
}

void SetPictureBudget(std::size_t bytes) {
  for (const Purse purse : {Purse::Pictures, Purse::StandIns}) {
    Shared& shared = TheShared(purse);
    const std::lock_guard lock(shared.mutex);
    shared.bytes = purse == Purse::StandIns ? bytes / kStandInPart : bytes;
    for (BudgetShare* share : shared.shares) share->onChange_();
  }
}

DecoderSeat::DecoderSeat(std::function<void()> onYield) : onYield_(std::move(onYield)) {
  Seats& all = TheSeats();
  const std::lock_guard lock(all.mutex);
  all.seats.push_back(this);
}

DecoderSeat::~DecoderSeat() {
  Seats& all = TheSeats();
  const std::lock_guard lock(all.mutex);
  std::erase(all.seats, this);
}

bool DecoderSeat::Take(std::size_t bytes, bool urgent) {
  Seats& all = TheSeats();
  const std::lock_guard lock(all.mutex);
  const Clock::time_point now = Clock::now();
  std::size_t taken = bytes;
  std::vector<DecoderSeat*> idle;
  for (DecoderSeat* seat : all.seats) {
    if (seat == this) continue;
    taken += seat->bytes_;
    if (seat->bytes_ > 0 && now - seat->used_ > kInUse) idle.push_back(seat);
  }
  std::ranges::sort(idle, {}, [](const DecoderSeat* seat) { return seat->used_; });
  for (auto seat = idle.begin(); taken > kDecoders && seat != idle.end(); ++seat) {
    taken -= (*seat)->bytes_;
    (*seat)->onYield_();
  }
  const bool fits = taken <= kDecoders || taken == bytes;
  if (!fits && !urgent && bytes_ == 0) return false;
  bytes_ = bytes;
  used_ = now;
  return true;
}

void DecoderSeat::Leave() {
  const std::lock_guard lock(TheSeats().mutex);
  bytes_ = 0;
}

void GiveFreedMemoryBack() {
#ifdef __GLIBC__
  malloc_trim(0);
#endif
}

}  // namespace kinalyx
