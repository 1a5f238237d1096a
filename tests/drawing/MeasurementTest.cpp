#include "drawing/Measurement.h"

#include "DrawingSupport.h"

namespace kinalyx::test {
namespace {

const Calibration kNone{};

TEST(Measurement, AnglesAreWholeDegrees) {
  EXPECT_EQ(GetAngle({0, 0}, {0, 0}, {100, 0}, AngleMode::ToVertical), 90);
  const POINTAPI corner{0, 0};
  for (const auto& [end, degrees] :
       {std::pair{POINTAPI{0, 10}, 90}, {{10, 10}, 45}, {{-20, 0}, 180}, {{20, 0}, 0}, {{0, 0}, 0}, {{99, 16}, 9}})
    EXPECT_EQ(GetAngle({10, 0}, corner, end, AngleMode::Opening), degrees) << "9.18 is cut";
}

TEST(Measurement, LinesAndAnglesReadInDegreesAndPixels) {
  EXPECT_EQ(ShapeCaption(Finished(kLine, {{50, 10}, {50, 117}}), kNone), "0°- 90° angle H-V     107 px");
  EXPECT_EQ(ShapeCaption(Finished(kLine, {{10, 50}, {110, 50}}), kNone), "90°- 0° angle H-V     100 px");
  EXPECT_EQ(ShapeCaption(Finished(kLine, {{0, 0}, {100, 100}}), kNone), "45°- 45° angle H-V     141.4 px")
      << "cut, not rounded";
  EXPECT_EQ(ShapeCaption(Finished(kLine, {{0, 0}}), kNone), std::nullopt);
  EXPECT_EQ(ShapeCaption(Finished(kAngle, {{0, 0}, {0, 100}, {100, 200}}), kNone),
            " 135° - 225° angle I-O     45° - 45° angle H-V ");
  EXPECT_EQ(ShapeCaption(Finished(kAngle, {{100, 0}, {0, 0}, {100, 100}}), kNone),
            " 45° - 315° angle I-O     45° - 45° angle H-V ");
}

TEST(Measurement, CalibratedLinesReadInTheChosenUnit) {
  const Shape line = Finished(kLine, {{0, 0}, {0, 1000}});
  const auto text = [&](int unit, float perInch) { return *ShapeCaption(line, {100, perInch, unit, false}); };
  const std::string head = "0°- 90° angle H-V     ";
  EXPECT_EQ(text(kInches, 81), head + "12.34\"") << "12.3456 is cut";
  EXPECT_EQ(text(kFeet, 10), head + "8.333'");
  EXPECT_EQ(text(kCentimetres, 10), head + "254cm");
  EXPECT_EQ(text(kMetres, 10), head + "2.54m");
  EXPECT_EQ(ShapeCaption(line, {0, 10, kFeet, false}), head + "1000 px") << "not calibrated";
  EXPECT_EQ(ShapeCaption(line, {100, 0, kFeet, false}), head + "1000 px") << "a calibration that never worked";
}

TEST(Measurement, ACalibratedPathReadsItsSpeed) {
  Shape path = Finished(kSwingPath, {{0, 0}, {100, 0}});
  path.Locked = false;
  path.Pts.resize(3);
  path.Pts[2] = {400, 0};
  path.NumPts = 3;
  // 300 pixels are 30 inches in a sixtieth of a second: 30 * 216000 / 63360 = 102.3.
  EXPECT_EQ(ShapeCaption(path, {100, 10, kFeet, false}), "102MPH");
  EXPECT_EQ(ShapeCaption(path, {100, 10, kFeet, true}), "85MPH");
  EXPECT_EQ(ShapeCaption(path, kNone), std::nullopt);
  path.NumPts = 2;
  EXPECT_EQ(ShapeCaption(path, {100, 10, kFeet, false}), std::nullopt) << "nothing moves";
  EXPECT_EQ(ShapeCaption(Finished(kSquare, {{0, 0}, {9, 9}}), {100, 10, kFeet, false}), std::nullopt);
}

TEST(Measurement, ATypedLengthCalibrates) {
  EXPECT_FLOAT_EQ(*PixelsPerInch(120, 12, kInches), 10);
  EXPECT_FLOAT_EQ(*PixelsPerInch(120, 1, kFeet), 10);
  EXPECT_FLOAT_EQ(*PixelsPerInch(254, 10, kCentimetres), 254 / 10.0 / 0.3937);
  EXPECT_FLOAT_EQ(*PixelsPerInch(3937, 10, kMetres), 10);
  EXPECT_EQ(PixelsPerInch(120, 0, kFeet), std::nullopt);
}

}  // namespace
}  // namespace kinalyx::test
