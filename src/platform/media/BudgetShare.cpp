#include "platform/media/BudgetShare.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/media/VideoFile.h"

namespace kinalyx {
namespace {

/// The purse of the process.
struct Purse {
  std::mutex mutex;
  std::vector<BudgetShare*> shares;
  std::atomic<std::size_t> bytes{std::size_t{256} << 20};
  std::atomic<std::size_t> count{0};
};

Purse& ThePurse() {
  static Purse purse;
  return purse;
}

}  // namespace

BudgetShare::BudgetShare(std::function<void()> onChange) : onChange_(std::move(onChange)) {
  Purse& purse = ThePurse();
  const std::lock_guard lock(purse.mutex);
  ++purse.count;
  for (BudgetShare* other : purse.shares) other->onChange_();
  purse.shares.push_back(this);
}

BudgetShare::~BudgetShare() {
  Purse& purse = ThePurse();
  const std::lock_guard lock(purse.mutex);
  std::erase(purse.shares, this);
  --purse.count;
  for (BudgetShare* other : purse.shares) other->onChange_();
}

std::size_t BudgetShare::Bytes() const {
  const Purse& purse = ThePurse();
  return purse.bytes / std::max<std::size_t>(1, purse.count);
}

void SetPictureBudget(std::size_t bytes) {
  Purse& purse = ThePurse();
  const std::lock_guard lock(purse.mutex);
  purse.bytes = bytes;
  for (BudgetShare* share : purse.shares) share->onChange_();
}

}  // namespace kinalyx
