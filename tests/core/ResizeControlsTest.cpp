#include "core/ResizeControls.h"

namespace kinalyx::test {
namespace {

TEST(ResizeControls, RatiosAreAgainstTheSizeBefore) {
  ResizeControls controls;
  for (const auto& [width, height, across, down] : {std::tuple{1024, 768, 1024.0F / 800.0F, 768.0F / 600.0F},
                                                    {1280, 1024, 1280.0F / 1024.0F, 1024.0F / 768.0F},
                                                    {640, 512, 0.5F, 0.5F},
                                                    {0, 0, 0.5F, 0.5F}}) {  // at last a window that is put away
    controls.Resize(width, height);
    EXPECT_EQ(controls.WidthRatio, across);
    EXPECT_EQ(controls.HeightRatio, down);
    EXPECT_EQ(controls.FontRatio, down);
  }
  EXPECT_EQ(FontRatioOf(1.59F), 1.59F);
  EXPECT_EQ(FontRatioOf(1.6F), 1.5F);
}

TEST(ResizeControls, TextIsThatOfTheSizeWhateverTheWay) {
  const struct {
    int width, height, text;
  } kSizes[] = {{800, 600, 13},   {1024, 768, 13},  {1280, 800, 13},  {1366, 768, 13}, {1440, 900, 15},
                {1920, 1080, 15}, {2560, 1440, 15}, {1080, 1920, 14}, {1000, 1000, 13}};
  ResizeControls wandering;
  for (const auto& from : kSizes) {
    for (const auto& to : kSizes) {
      wandering.Resize(from.width, from.height);
      wandering.Resize(to.width, to.height);
      EXPECT_EQ(wandering.TextPixels(), to.text) << from.height << " to " << to.width << " x " << to.height;
    }
  }
}

TEST(ResizeControls, AFewPixelsChangeNoText) {
  ResizeControls controls;
  int changes = 0;
  int before = 13;
  for (int height = 700; height <= 900; ++height) {
    controls.Resize(1600, height);
    changes += controls.TextPixels() != before;
    before = controls.TextPixels();
  }
  EXPECT_EQ(changes, 2) << "14 and 15, each once";
}

}  // namespace
}  // namespace kinalyx::test
