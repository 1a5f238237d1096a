#include "capture/livedraw/HotZones.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

namespace kinalyx {
namespace {

double OnPicture(double part) { return std::clamp(part, 0.0, 1.0); }

/// What the sum of an edge and a width loses: a zone at its smallest is large enough whatever its place.
constexpr double kHair = 1e-6;

bool LargeEnough(const MotionRect& place) {
  return place.width >= HotZones::kLeast - kHair && place.height >= HotZones::kLeast - kHair;
}

/// Moves two edges of one direction; what is not moved stays where it is.
std::pair<double, double> Edges(double low, double high, bool moveLow, bool moveHigh, double by) {
  if (moveLow) low = std::clamp(low + by, 0.0, std::max(0.0, high - HotZones::kLeast));
  if (moveHigh) high = std::clamp(high + by, std::min(1.0, low + HotZones::kLeast), 1.0);
  return {low, high};
}

}  // namespace

MotionRect RectBetween(PicturePoint a, PicturePoint b) {
  const auto [left, right] = std::minmax({OnPicture(a.x), OnPicture(b.x)});
  const auto [top, bottom] = std::minmax({OnPicture(a.y), OnPicture(b.y)});
  return {left, top, right - left, bottom - top};
}

const HotZone* HotZones::Find(int id) const {
  const auto found = std::ranges::find(zones_, id, &HotZone::id);
  return found == zones_.end() ? nullptr : &*found;
}

HotZone* HotZones::Mutable(int id) {
  const auto found = std::ranges::find(zones_, id, &HotZone::id);
  return found == zones_.end() ? nullptr : &*found;
}

void HotZones::Replace(const std::vector<HotZone>& zones) {
  zones_.clear();
  held_.reset();
  for (const HotZone& zone : zones) {
    const MotionRect& is = zone.place;
    if (!std::isfinite(is.left + is.top + is.width + is.height) || zones_.size() >= kMost) continue;
    const MotionRect place = RectBetween({is.left, is.top}, {is.left + is.width, is.top + is.height});
    if (LargeEnough(place) && zone.id > 0 && !Find(zone.id)) zones_.push_back({zone.id, place});
  }
  Take(taken_);
}

int HotZones::Add(PicturePoint from, PicturePoint to) {
  const MotionRect place = RectBetween(from, to);
  if (!LargeEnough(place) || Full()) return 0;
  // The lowest number that is free: it stands on the picture, and people count from one.
  int id = 1;
  while (Find(id)) ++id;
  zones_.push_back({id, place});
  taken_ = id;
  return id;
}

bool HotZones::Remove(int id) {
  if (std::erase_if(zones_, [id](const HotZone& zone) { return zone.id == id; }) == 0) return false;
  if (held_ && held_->part.id == id) held_.reset();
  Take(taken_);
  return true;
}

void HotZones::Mirror() {
  for (HotZone& zone : zones_) zone.place.left = std::max(0.0, 1 - zone.place.left - zone.place.width);
  if (held_) held_.reset();
}

std::optional<ZonePart> HotZones::At(PicturePoint point, PicturePoint reach) const {
  std::optional<ZonePart> best;
  std::tuple<bool, double> rank;
  for (const HotZone& zone : zones_) {
    const MotionRect& is = zone.place;
    const double right = is.left + is.width, bottom = is.top + is.height;
    if (point.x < is.left - reach.x || point.x > right + reach.x || point.y < is.top - reach.y ||
        point.y > bottom + reach.y)
      continue;
    const std::tuple now(zone.id != taken_, is.width * is.height);
    if (best && now >= rank) continue;
    rank = now;
    // Small as a zone may be, its middle moves it.
    const auto near = [](double at, double edge, double most, double extent) {
      return std::abs(at - edge) <= std::min(most, extent / 3);
    };
    best = ZonePart{zone.id, point.x <= is.left || near(point.x, is.left, reach.x, is.width),
                    point.x >= right || near(point.x, right, reach.x, is.width),
                    point.y <= is.top || near(point.y, is.top, reach.y, is.height),
                    point.y >= bottom || near(point.y, bottom, reach.y, is.height)};
  }
  return best;
}

void HotZones::Grab(const ZonePart& part, PicturePoint from) {
  const HotZone* zone = Find(part.id);
  if (!zone) return;
  taken_ = part.id;
  held_ = Hold{part, from, zone->place};
}

bool HotZones::DragTo(PicturePoint to) {
  HotZone* zone = held_ ? Mutable(held_->part.id) : nullptr;
  if (!zone) return false;
  const ZonePart& part = held_->part;
  const MotionRect& was = held_->before;
  const double dx = to.x - held_->from.x, dy = to.y - held_->from.y;
  MotionRect now = was;
  if (part.Whole()) {
    now.left = std::clamp(was.left + dx, 0.0, 1 - was.width);
    now.top = std::clamp(was.top + dy, 0.0, 1 - was.height);
  } else {
    const auto [left, right] = Edges(was.left, was.left + was.width, part.left, part.right, dx);
    const auto [top, bottom] = Edges(was.top, was.top + was.height, part.top, part.bottom, dy);
    now = {left, top, right - left, bottom - top};
  }
  return std::exchange(zone->place, now) != now;
}

bool HotZones::Release() {
  const auto held = std::exchange(held_, std::nullopt);
  const HotZone* zone = held ? Find(held->part.id) : nullptr;
  return zone && zone->place != held->before;
}

}  // namespace kinalyx
