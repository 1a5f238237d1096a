#include "workspace/stage/Layout.h"

#include <gtest/gtest.h>

#include <numeric>

namespace kinalyx {
namespace {

TEST(Layout, EveryLayoutCoversTheStageWithEqualCells) {
  constexpr int kWidth = 19205, kHeight = 10810;
  for (const ScreenMode& mode : ScreenModes()) {
    const auto cells = LayoutCells(mode.Code, kWidth, kHeight);
    ASSERT_EQ(cells.size(), static_cast<std::size_t>(mode.Slots)) << mode.Code;
    for (std::size_t i = 0; i < cells.size(); ++i) {
      EXPECT_EQ(cells[i].Height, kHeight / mode.Rows) << mode.Code;
      EXPECT_EQ(cells[i].Width, kWidth / mode.Columns + (mode.Code == "3L" && i == 2 ? 10 : 0)) << mode.Code;
      EXPECT_LE(cells[i].Left + cells[i].Width, kWidth + 10) << mode.Code;
      for (std::size_t j = 0; j < i; ++j)
        EXPECT_TRUE(cells[i].Left >= cells[j].Left + cells[j].Width ||
                    cells[j].Left >= cells[i].Left + cells[i].Width || cells[i].Top >= cells[j].Top + cells[j].Height)
            << mode.Code << " " << i << " lies on " << j;
    }
  }
  EXPECT_EQ(LayoutCells("MAX", kWidth, kHeight), LayoutCells("1", kWidth, kHeight));
}

TEST(Layout, APictureIsAsHighAsItsCellAndKeepsItsProportion) {
  EXPECT_EQ(PlaceVideo({720, 480}, 8000, 4000), (TwipRect{1000, 0, 6000, 4000}));
  // Wider than the cell: centred all the same, so that both sides are cut alike.
  EXPECT_EQ(PlaceVideo({720, 480}, 3000, 4000), (TwipRect{-1500, 0, 6000, 4000}));
  EXPECT_EQ(PlaceVideo({354, 492}, 8000, 4001).Width, 4001 * 354 / 492);
  // 16:9 whatever the file's own shape, and at every zoom.
  for (const auto& [zoom, width] : {std::pair{1.0, 7111}, {2.5, 17777}, {0.5, 3555}})
    EXPECT_EQ(PlaceVideo({.VideoWidth = 720, .VideoHeight = 480, .Wide = true, .Zoom = zoom}, 8000, 4000).Width, width);
  EXPECT_EQ(PlaceVideo({}, 8000, 4000), TwipRect{});
}

TEST(Layout, ZoomGrowsAboutTheMiddleAndPanFollowsIt) {
  const TwipRect plain = PlaceVideo({400, 400, false, 2.0, 0, 0}, 4000, 4000);
  EXPECT_EQ(plain, (TwipRect{-2000, -2000, 8000, 8000}));
  const TwipRect moved = PlaceVideo({400, 400, false, 2.0, 50, -100}, 4000, 4000);
  EXPECT_EQ(moved.Left - plain.Left, 100);
  EXPECT_EQ(moved.Top - plain.Top, -200);
}

}  // namespace
}  // namespace kinalyx
