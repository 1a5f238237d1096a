#include "library/SidecarMerge.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <map>
#include <optional>
#include <vector>

#include "library/TextMerge.h"

namespace kinalyx {
namespace {

constexpr std::size_t kMostShapes = std::numeric_limits<std::int16_t>::max();

struct Size {
  int width = 0;
  int height = 0;

  bool Known() const { return width > 0 && height > 0; }
  bool IsMultipleOf(const Size& other) const { return width % other.width == 0 && height % other.height == 0; }
};

Size SizeOf(const SlotData& data) { return {data.PictureWidth, data.PictureHeight}; }

std::vector<Shape> Fitted(const SlotData& data, const Size& size) {
  ShapeList list = data.Shapes;
  StretchShapes(list, data.PictureWidth, data.PictureHeight, size.width, size.height);
  const auto shapes = ShapesOf(list);
  return {shapes.begin(), shapes.end()};
}

/// The same kind and colour, and the same points up to the rounding of another size.
bool IsNear(const Shape& a, const Shape& b) {
  constexpr std::int64_t kRounding = 2;  // pixels
  const auto near = [](POINTAPI p, POINTAPI q) {
    return std::llabs(std::int64_t{p.x} - q.x) <= kRounding && std::llabs(std::int64_t{p.y} - q.y) <= kRounding;
  };
  return a.Kind == b.Kind && a.Colour == b.Colour && std::ranges::equal(BoundPoints(a), BoundPoints(b), near);
}

/// Greedy matching: pairs equal shapes of two lists, each with one at most, exact pairs first. For each of
/// `list` the place in `others`, or nothing.
std::vector<std::optional<std::size_t>> Pairs(const std::vector<Shape>& list, const std::vector<Shape>& others,
                                              bool exact) {
  std::vector<std::optional<std::size_t>> places(list.size());
  std::vector<bool> taken(others.size());
  const auto pair = [&](auto same) {
    std::size_t next = 0;  // lists mostly have the same order
    for (std::size_t i = 0; i < list.size(); ++i) {
      for (std::size_t tries = 0; tries < others.size() && !places[i]; ++tries) {
        const std::size_t place = (next + tries) % others.size();
        if (taken[place] || !same(list[i], others[place])) continue;
        taken[place] = true;
        places[i] = place;
        next = place + 1;
      }
    }
  };
  pair([](const Shape& a, const Shape& b) { return IsSameDrawing(a, b); });
  if (!exact) pair(IsNear);
  return places;
}

void Put(ShapeList& list, std::vector<Shape> shapes) {
  if (shapes.size() > kMostShapes) shapes.resize(kMostShapes);
  list.NumShapes = static_cast<std::int16_t>(shapes.size());
  list.Shapes = std::move(shapes);
}

/// Gives `merged` the drawings. @param size  the one in which they are stored
void MergeShapes(MergedData& merged, const SlotData& mine, const SlotData& theirs, const SlotData& base,
                 const Size& size) {
  std::vector<Shape> own = Fitted(mine, size);
  const std::vector<Shape> there = Fitted(theirs, size);
  const std::vector<Shape> before = Fitted(base, size);
  const bool exact = !SizeOf(base).Known() || !SizeOf(theirs).Known() || SizeOf(theirs).IsMultipleOf(SizeOf(base)) ||
                     SizeOf(base).IsMultipleOf(SizeOf(theirs));
  const auto places = Pairs(before, there, exact);

  const std::vector<Shape> mineThen = Fitted(base, SizeOf(mine));
  std::map<std::uint32_t, std::size_t> mineOf;  // by number: the place in `own`
  for (std::size_t i = 0; i < own.size(); ++i) mineOf[own[i].Id] = i;
  // For each of theirs: nothing when it is new, else the place in `own`, own.size() when I have deleted it.
  std::vector<std::optional<std::size_t>> fates(there.size());
  std::vector<bool> settled(own.size());  // it is decided what the file gets of it
  for (std::size_t i = 0; i < before.size(); ++i) {
    const auto found = mineOf.find(before[i].Id);
    const std::size_t at = found == mineOf.end() ? own.size() : found->second;
    if (places[i]) fates[*places[i]] = at;
    if (at == own.size()) continue;
    if (IsSameDrawing(mineThen[i], ShapesOf(mine.Shapes)[at])) {
      const std::uint32_t id = own[at].Id;
      own[at] = places[i] ? there[*places[i]] : before[i];
      own[at].Id = id;
      settled[at] = true;
    } else if (places[i]) {
      settled[at] = true;
    }
  }

  std::vector<Shape> shapes;
  std::vector<Shape> fresh;  // what only they have
  for (std::size_t i = 0; i < there.size(); ++i) {
    if (!fates[i]) fresh.push_back(there[i]);
    if (fates[i] != own.size()) shapes.push_back(fates[i] ? own[*fates[i]] : there[i]);
  }
  std::vector<Shape> mineAlone;
  for (std::size_t i = 0; i < own.size(); ++i)
    if (!settled[i]) mineAlone.push_back(own[i]);
  // A shape that both have made alike is stored once.
  const auto twice = Pairs(mineAlone, fresh, true);
  for (std::size_t i = 0; i < mineAlone.size(); ++i)
    if (!twice[i]) shapes.push_back(mineAlone[i]);
  Put(merged.whole.Shapes, std::move(shapes));
  Put(merged.own, std::move(own));
}

}  // namespace

MergedData MergeVideoData(const SlotData& mine, const SlotData& theirs, const SlotData& base) {
  MergedData merged{mine, {}};
  SlotData& whole = merged.whole;
  const auto follow = [&](auto SlotData::*value) {
    if (mine.*value == base.*value) whole.*value = theirs.*value;
  };
  follow(&SlotData::Wide);
  follow(&SlotData::ReverseFields);
  follow(&SlotData::SplitFields);
  follow(&SlotData::CValue);
  follow(&SlotData::RealFrameRate);
  follow(&SlotData::NextShape);
  whole.Notes = MergeTexts(base.Notes, mine.Notes, theirs.Notes);
  whole.Unread = theirs.Unread;

  const Size here = SizeOf(mine), there = SizeOf(theirs);
  const bool asHere = !there.Known() || ShapesOf(theirs.Shapes).empty() || (here.Known() && here.IsMultipleOf(there));
  const Size size = asHere ? here : there;
  whole.PictureWidth = size.width;
  whole.PictureHeight = size.height;
  MergeShapes(merged, mine, theirs, base, size);
  return merged;
}

int WholeTimes(int side, int wanted) { return side > 0 ? std::max(1, std::min(wanted, kMostPictureSide) / side) : 1; }

}  // namespace kinalyx
