#include "library/SidecarMerge.h"

#include <gtest/gtest.h>

namespace kinalyx {
namespace {

Shape Line(std::uint32_t id, int x, int y = 7) {
  Shape line;
  line.NumBound = line.NumPts = 2;
  line.Kind = kLine;
  line.Locked = true;
  line.Pts = {{x, y}, {x + 30, y + 11}, {0, 0}};
  line.Id = id;
  return line;
}

SlotData Drawn(std::vector<Shape> shapes, int width = 640, int height = 480) {
  SlotData data;
  data.Shapes.NumShapes = static_cast<std::int16_t>(shapes.size());
  data.Shapes.Shapes = std::move(shapes);
  data.PictureWidth = width;
  data.PictureHeight = height;
  return data;
}

/// As another process has it.
SlotData InFile(SlotData data, int width = 640, int height = 480) {
  StretchShapes(data.Shapes, data.PictureWidth, data.PictureHeight, width, height);
  for (Shape& shape : data.Shapes.Shapes) shape.Id = 0;
  data.PictureWidth = width;
  data.PictureHeight = height;
  return data;
}

TEST(SidecarMerge, WhatIHaveNotTouchedFollowsTheOther) {
  const SlotData base = Drawn({Line(1, 10), Line(2, 20), Line(3, 30), Line(4, 40), Line(5, 50)});
  // Here 1 is deleted, 2 moved, 3 and 4 untouched, 5 moved, 6 new; there 3 is deleted, 4 and 5 are moved, 60 is new.
  const SlotData mine = Drawn({Line(2, 21), Line(3, 30), Line(4, 40), Line(5, 51), Line(6, 60)});
  const SlotData theirs = Drawn({Line(0, 10), Line(0, 20), Line(0, 44), Line(0, 55), Line(0, 70)});
  const auto wanted = std::vector{Line(0, 21), Line(0, 44), Line(0, 55), Line(0, 70), Line(0, 51), Line(0, 60)};
  // Whole multiples keep every point; a size of another program's own moves it by a rounding.
  for (const auto& [width, height] : {std::pair{640, 480}, {1280, 480}, {1920, 1440}}) {
    const MergedData merged = MergeVideoData(mine, InFile(theirs, width, height), base);
    EXPECT_EQ(merged.whole.PictureWidth, width);
    EXPECT_EQ(merged.whole.Shapes.Shapes, InFile(Drawn(wanted), width, height).Shapes.Shapes);
    EXPECT_EQ(merged.own.Shapes, InFile(mine, width, height).Shapes.Shapes);
    // Nothing more has happened: the next merge has nothing to add.
    SlotData own = mine;
    own.Shapes = merged.own;
    own.PictureWidth = width;
    own.PictureHeight = height;
    EXPECT_EQ(MergeVideoData(own, InFile(merged.whole, width, height), own).whole.Shapes,
              InFile(merged.whole, width, height).Shapes);
  }
  const MergedData uneven = MergeVideoData(mine, InFile(theirs, 500, 333), base);
  EXPECT_EQ(uneven.whole.Shapes.NumShapes, 6);
  EXPECT_EQ(uneven.whole.Shapes.Shapes[3], InFile(theirs, 500, 333).Shapes.Shapes[4])
      << "what is theirs stays to the point";
}

TEST(SidecarMerge, TheSameChangeIsOneAndTwinsStayTwo) {
  const SlotData base = Drawn({Line(1, 10), Line(2, 10)});
  EXPECT_EQ(
      MergeVideoData(Drawn({Line(1, 10), Line(2, 15)}), Drawn({Line(0, 10), Line(0, 15)}), base).whole.Shapes.NumShapes,
      2);
  EXPECT_EQ(MergeVideoData(Drawn({Line(1, 10)}), InFile(base), base).whole.Shapes.NumShapes, 1)
      << "one of two alike deleted";
  SlotData mine = base, theirs = InFile(base);
  mine.SplitFields = true;
  theirs.Wide = true;
  const SlotData whole = MergeVideoData(mine, theirs, base).whole;
  EXPECT_TRUE(whole.SplitFields && whole.Wide);
}

}  // namespace
}  // namespace kinalyx
