#include "platform/media/PassTurn.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <vector>

namespace kinalyx {
namespace {

using namespace std::chrono_literals;
using Clock = PassTurn::Clock;

/// How long nothing may have come first before others count as being at rest: twice the pause between two pictures of
/// a play or a drag, which are those that come further apart than what is done for one of them.
constexpr auto kLeastQuiet = 60ms;
constexpr auto kMostQuiet = 300ms;
constexpr auto kSamePicture = 30ms;
constexpr auto kLongestPace = 600ms;
constexpr auto kAnothersTurn = 100ms;
/// On a battery: how long a video counts as being in hand, and how often is looked.
constexpr auto kInHand = 10s;
constexpr auto kLookAtPower = 5s;

struct Waiting {
  const PassTurn* turn = nullptr;
  Clock::time_point handled;
  bool wants = false;
};

struct Order {
  std::mutex mutex;
  std::vector<Waiting> waiting;
  std::atomic<Clock::duration> busy{Clock::duration::min() / 2};  ///< when something came first last
  std::atomic<Clock::duration> pace{Clock::duration::zero()};     ///< from one picture of it to the next
  Clock::time_point lookedAtPower;
  bool onBattery = false;

  Waiting& Of(const PassTurn& turn) { return *std::ranges::find(waiting, &turn, &Waiting::turn); }
};

Order& TheOrder() {
  static Order order;
  return order;
}

std::string FirstLine(const std::filesystem::path& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  return line;
}

}  // namespace

PassTurn::PassTurn() {
  Order& order = TheOrder();
  const std::lock_guard lock(order.mutex);
  order.waiting.push_back({this, Clock::now(), false});
}

PassTurn::~PassTurn() {
  Order& order = TheOrder();
  const std::lock_guard lock(order.mutex);
  std::erase_if(order.waiting, [this](const Waiting& waiting) { return waiting.turn == this; });
}

void PassTurn::Handle() {
  Order& order = TheOrder();
  const std::lock_guard lock(order.mutex);
  order.Of(*this).handled = Clock::now();
}

void PassTurn::Want(bool work) {
  Order& order = TheOrder();
  const std::lock_guard lock(order.mutex);
  order.Of(*this).wants = work;
}

Clock::duration PassTurn::Delay(bool isShort) const {
  Order& order = TheOrder();
  const std::lock_guard lock(order.mutex);
  const Clock::time_point now = Clock::now();
  const Clock::duration quiet =
      std::clamp<Clock::duration>(2 * order.pace.load(), kLeastQuiet, isShort ? kLeastQuiet : kMostQuiet);
  const Waiting& mine = order.Of(*this);
  if (const auto since = now.time_since_epoch() - order.busy.load(); since < quiet) return quiet - since;
  for (const Waiting& other : order.waiting)
    if (other.wants && other.turn != this && other.handled > mine.handled) return kAnothersTurn;
  if (now - order.lookedAtPower > kLookAtPower) {
    order.lookedAtPower = now;
    order.onBattery = OnBattery();
  }
  return order.onBattery && now - mine.handled > kInHand ? Clock::duration(kLookAtPower) : Clock::duration::zero();
}

void PassTurn::GiveWay() {
  Order& order = TheOrder();
  const Clock::duration now = Clock::now().time_since_epoch();
  const Clock::duration since = now - order.busy.exchange(now);
  if (since > kSamePicture) order.pace = since < kLongestPace ? since : Clock::duration::zero();
}

bool OnBattery(const std::string& folder) {
  std::error_code ignored;
  bool discharging = false;
  for (const auto& supply : std::filesystem::directory_iterator(folder, ignored)) {
    const std::string type = FirstLine(supply.path() / "type");
    if (type == "Battery" && FirstLine(supply.path() / "scope") != "Device")
      discharging = discharging || FirstLine(supply.path() / "status") == "Discharging";
    else if (FirstLine(supply.path() / "online") == "1") return false;
  }
  return discharging;
}

}  // namespace kinalyx
