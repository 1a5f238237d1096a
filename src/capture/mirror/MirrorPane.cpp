#include "capture/mirror/MirrorPane.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kinalyx {
namespace {

constexpr std::int64_t kLookNs = 4'000'000;   // between two looks for a picture that is due as soon as it has come
constexpr std::int64_t kRestNs = 50'000'000;  // the longest between two steps
constexpr std::int64_t kLeastNs = 500'000;    // and the shortest

}  // namespace

std::optional<PackedPicture> MirrorPane::Order::At(std::int64_t ns) const {
  if (memory) return memory->At(ns);
  if (!pictures) return std::nullopt;
  const auto after = std::ranges::upper_bound(*pictures, ns, {}, &PackedPicture::ns);
  if (after == pictures->begin()) return std::nullopt;
  return *std::prev(after);
}

std::optional<PackedPicture> MirrorPane::Order::After(std::int64_t ns) const {
  if (memory) return memory->After(ns);
  if (!pictures) return std::nullopt;
  const auto after = std::ranges::upper_bound(*pictures, ns, {}, &PackedPicture::ns);
  if (after == pictures->end()) return std::nullopt;
  return *after;
}

void MirrorPane::Behind(std::shared_ptr<const PictureMemory> memory, std::int64_t delayNs) {
  const std::lock_guard lock(mutex_);
  order_.time = PaneTime::Behind(delayNs);
  order_.memory = std::move(memory);
  order_.pictures = nullptr;
  ++order_.number;
}

void MirrorPane::Order::Loop(std::vector<PackedPicture> looped, double speed, std::int64_t nowNs) {
  time = PaneTime::Loop(looped.front().ns, looped.back().ns, speed, nowNs);
  memory = nullptr;
  pictures = std::make_shared<std::vector<PackedPicture>>(std::move(looped));
  ++number;
}

void MirrorPane::Loop(std::vector<PackedPicture> pictures, double speed, std::int64_t nowNs) {
  const std::lock_guard lock(mutex_);
  order_.Loop(std::move(pictures), speed, nowNs);
}

void MirrorPane::Freeze(bool on, std::int64_t nowNs) {
  const std::lock_guard lock(mutex_);
  order_.time.Freeze(on, nowNs);
  ++order_.number;
}

void MirrorPane::Hold(std::vector<PackedPicture> pictures, std::int64_t nowNs) {
  const std::int64_t last = pictures.back().ns;
  const std::lock_guard lock(mutex_);
  order_.Loop(std::move(pictures), 1, nowNs);
  order_.time.Freeze(true, nowNs);
  order_.time.GoTo(last, nowNs);
}

void MirrorPane::StepBy(int pictures, std::int64_t nowNs) {
  const std::lock_guard lock(mutex_);
  if (!order_.pictures) return;
  const auto& all = *order_.pictures;
  const auto after = std::ranges::upper_bound(all, order_.time.MomentAt(nowNs), {}, &PackedPicture::ns);
  const std::ptrdiff_t shown = std::max<std::ptrdiff_t>(0, after - all.begin() - 1);
  const std::ptrdiff_t wanted = std::clamp<std::ptrdiff_t>(shown + pictures, 0, std::ssize(all) - 1);
  order_.time.GoTo(all[static_cast<std::size_t>(wanted)].ns, nowNs);
  ++order_.number;
}

void MirrorPane::SetSpeed(double speed, std::int64_t nowNs) {
  const std::lock_guard lock(mutex_);
  order_.time.SetSpeed(speed, nowNs);
  ++order_.number;
}

void MirrorPane::WantSize(int width, int height) {
  const std::lock_guard lock(mutex_);
  order_.wish.width = width;
  order_.wish.height = height;
  ++order_.number;
}

void MirrorPane::Mirror(bool on) {
  const std::lock_guard lock(mutex_);
  order_.wish.mirrored = on;
  ++order_.number;
}

PaneTime MirrorPane::Time() const {
  const std::lock_guard lock(mutex_);
  return order_.time;
}

void MirrorPane::Forget() {
  Behind(nullptr, 0);
  const std::lock_guard lock(mutex_);
  sight_ = {};
  told_ = false;
}

bool MirrorPane::Holds() const {
  const std::lock_guard lock(mutex_);
  return order_.pictures != nullptr;
}

std::vector<PackedPicture> MirrorPane::Held() const {
  const std::lock_guard lock(mutex_);
  return order_.pictures ? *order_.pictures : std::vector<PackedPicture>();
}

MirrorPane::Sight MirrorPane::Show() {
  const std::lock_guard lock(mutex_);
  told_ = false;
  return sight_;
}

MirrorPane::Order MirrorPane::TakeOrder() {
  const std::lock_guard lock(mutex_);
  return order_;
}

void MirrorPane::Publish(LivePicture picture, std::int64_t ns, bool standIn) {
  shownNs_ = ns;
  standIn_ = standIn;
  if (!picture.pixels) return;  // the one before stays
  {
    const std::lock_guard lock(mutex_);
    std::swap(sight_.picture, picture);  // the old one goes outside the lock
    sight_.standIn = standIn;
    if (std::exchange(told_, true)) return;
  }
  shown_();
}

std::int64_t MirrorPane::Step(std::int64_t nowNs) {
  const Order order = TakeOrder();
  if (std::exchange(orderSeen_, order.number) != order.number) {
    ready_.reset();
    shownNs_.reset();
  }
  if (ready_ && ready_->dueNs <= nowNs) {
    Publish(std::move(ready_->picture), ready_->ns, false);
    ready_.reset();
  }
  bool standIn = false;
  const std::int64_t moment = order.time.MomentAt(nowNs);
  std::optional<PackedPicture> due = order.At(moment);
  if (!due && !order.time.Loops()) {
    standIn = true;
    due = order.At(nowNs);
  }
  // Late, or with nothing ready: what was between is passed over.
  if (due && (due->ns != shownNs_ || standIn != standIn_))
    Publish(unpacker_.Unpack(*due, order.wish), due->ns, standIn);
  if (order.time.Frozen()) return nowNs + kRestNs;
  if (!ready_ && !standIn) {
    if (const auto next = order.After(moment))
      ready_ = {unpacker_.Unpack(*next, order.wish), next->ns, order.time.WhenShown(next->ns, nowNs)};
  }
  if (!ready_) return nowNs + kLookNs;
  return std::clamp(ready_->dueNs, nowNs + kLeastNs, nowNs + kRestNs);
}

}  // namespace kinalyx
