#include "library/ShapePairs.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace kinalyx {
namespace {

bool IsNear(const Shape& a, const Shape& b) {
  constexpr std::int64_t kRounding = 2;  // pixels
  const auto near = [](POINTAPI p, POINTAPI q) {
    return std::llabs(std::int64_t{p.x} - q.x) <= kRounding && std::llabs(std::int64_t{p.y} - q.y) <= kRounding;
  };
  return a.Kind == b.Kind && a.Colour == b.Colour && std::ranges::equal(BoundPoints(a), BoundPoints(b), near);
}

}  // namespace

std::vector<std::optional<std::size_t>> PairShapes(std::span<const Shape> list, std::span<const Shape> others,
                                                   Likeness likeness) {
  std::vector<std::optional<std::size_t>> places(list.size());
  std::vector<bool> taken(others.size());
  const auto pair = [&](auto alike) {
    std::size_t next = 0;  // lists mostly have the same order
    for (std::size_t i = 0; i < list.size(); ++i) {
      for (std::size_t tries = 0; tries < others.size() && !places[i]; ++tries) {
        const std::size_t place = (next + tries) % others.size();
        if (taken[place] || !alike(list[i], others[place])) continue;
        taken[place] = true;
        places[i] = place;
        next = place + 1;
      }
    }
  };
  if (likeness != Likeness::Record) pair([](const Shape& a, const Shape& b) { return IsSameDrawing(a, b); });
  if (likeness != Likeness::Drawing) pair([](const Shape& a, const Shape& b) { return IsSameRecord(a, b); });
  if (likeness == Likeness::Near) pair(IsNear);
  return places;
}

}  // namespace kinalyx
