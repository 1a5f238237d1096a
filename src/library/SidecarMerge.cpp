#include "library/SidecarMerge.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <map>
#include <optional>
#include <vector>

#include "library/ShapePairs.h"
#include "library/TextMerge.h"

namespace kinalyx {
namespace {

constexpr std::size_t kMostShapes = std::numeric_limits<std::int16_t>::max();

constexpr int kAlmost = 8;  // a picture that lacks so small a part of another is as exact

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
  const auto places = PairShapes(before, there, exact ? Likeness::Drawing : Likeness::Near);

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
  const auto twice = PairShapes(mineAlone, fresh, Likeness::Drawing);
  for (std::size_t i = 0; i < mineAlone.size(); ++i)
    if (!twice[i]) shapes.push_back(mineAlone[i]);
  Put(merged.whole.Shapes, std::move(shapes));
  Put(merged.own, std::move(own));
}

/// Mine, without those that they have taken away, and with those that they have made. A mark that either has
/// changed is another one.
std::vector<VideoMark> MergeMarks(const std::vector<VideoMark>& mine, const std::vector<VideoMark>& theirs,
                                  const std::vector<VideoMark>& base) {
  const auto in = [](const std::vector<VideoMark>& marks, const VideoMark& mark) {
    return std::ranges::find(marks, mark) != marks.end();
  };
  std::vector<VideoMark> merged;
  for (const VideoMark& mark : mine)
    if (in(theirs, mark) || !in(base, mark)) merged.push_back(mark);
  for (const VideoMark& mark : theirs)
    if (!in(mine, mark) && !in(base, mark)) merged.push_back(mark);
  return merged;
}

StudyData MergeStudies(const StudyData& mine, const StudyData& theirs, const StudyData& base) {
  StudyData merged = mine;
  const auto follow = [&](auto StudyData::*value) {
    if (mine.*value == base.*value) merged.*value = theirs.*value;
  };
  follow(&StudyData::Ruler);
  follow(&StudyData::TrueRate);
  follow(&StudyData::LockedAt);
  follow(&StudyData::Unknown);
  merged.Marks = MergeMarks(mine.Marks, theirs.Marks, base.Marks);
  merged.Unread = theirs.Unread;
  return merged;
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
  whole.Study = MergeStudies(mine.Study, theirs.Study, base.Study);
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

int WholeTimes(int side, int wanted) {
  if (side <= 0 || side >= kMostPictureSide) return 1;
  const int enough = (wanted - wanted / kAlmost + side - 1) / side;
  return std::clamp(enough, 1, kMostPictureSide / side);
}

}  // namespace kinalyx
