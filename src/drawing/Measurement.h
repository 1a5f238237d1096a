#pragma once

#include <optional>
#include <string>

#include "drawing/Shape.h"

namespace kinalyx {

/// Units of a typed or shown length.
enum LengthUnit { kInches, kFeet, kCentimetres, kMetres };

/// How long things are in a video.
struct VideoRuler {
  double PixelsPerInch = 0;  ///< above 0, in a picture of this size
  int Width = 0;             ///< pixels
  int Height = 0;
  int Unit = kInches;  ///< of the display, a LengthUnit

  friend bool operator==(const VideoRuler&, const VideoRuler&) = default;
};

/// How pixels become lengths.
struct Calibration {
  int CalibNumber = 0;       ///< the measured length in pixels; 0: not calibrated
  float CalibNumberOut = 0;  ///< pixels per inch, in the picture as it is shown
  int CalibOutput = kFeet;   ///< unit of the display
  bool pal = false;          ///< 50 fields a second instead of 60
  double perSecond = 0;      ///< positions of the video that were taken in a second; 0: not known
};

enum class AngleMode {
  Opening = 0,       ///< between P0 and P2, at P1
  ToHorizontal = 1,  ///< between a point left of P1 and P2
  ToVertical = 2,    ///< between a point above P1 and P2
};

/// Whole degrees, 0 to 180, rounded down, by the law of cosines; 0 when two of the points coincide.
float GetAngle(POINTAPI P0, POINTAPI P1, POINTAPI P2, AngleMode Mode);

/// Length of a line in pixels, cut to one decimal.
double LineLength(POINTAPI from, POINTAPI to);
/// A number as the captions show it: up to six decimals, no zeros at the end.
std::string NumberText(double value);
/// A length of so many pixels in the unit of the display with its mark; the figures are cut, not rounded,
/// to five characters. Needs a calibration.
std::string LengthText(double pixels, const Calibration& calibration);

/// What a shape measures, for the display: the angles and length of a line, the opening of an angle, the
/// speed along a path from its last click to the mouse, by 60 or 50 positions a second, and where the video has
/// another rate, by that too. Nothing for all else, and for an uncalibrated path.
std::optional<std::string> ShapeCaption(const Shape& shape, const Calibration& calibration);

/// Pixels per inch from a line of `pixels` and the length typed for it; nothing for a length that is 0.
std::optional<float> PixelsPerInch(int pixels, double typed, LengthUnit unit);

}  // namespace kinalyx
