#pragma once

#include <optional>
#include <string>

#include "drawing/Measurement.h"
#include "drawing/Shape.h"

namespace kinalyx {

/// Units of a shown speed.
enum SpeedUnit {
  kSpeedOfRuler,  ///< what goes with the ruler's unit: miles an hour with inches and feet, else kilometres
  kMilesPerHour,
  kKilometresPerHour,
  kMetresPerSecond
};

/// In what a video is measured, as its window shows it.
struct MeasureScale {
  double PixelsPerInch = 0;  ///< 0: there is no ruler
  int Unit = kFeet;          ///< of lengths, a LengthUnit
  double PerSecond = 0;      ///< positions that were taken in one second; 0: not known
  bool FromUpright = false;  ///< lines lean from the upright, not from the level
  int Speed = kSpeedOfRuler;
};

/// What is written beside a drawing.
struct ShapeLabel {
  POINTAPI Middle;  ///< pixels of the picture
  std::string Text;

  friend bool operator==(const ShapeLabel&, const ShapeLabel&) = default;
};

/// What a drawing measures, in figures beside it: of a line or an arrow its length and how far it leans, 0 to 90
/// degrees, whichever way it was drawn; the opening of an angle at its corner; the greatest speed along a path and
/// that of its last step. Nothing for other kinds, for letters, and for a path without ruler or rate. The points of a
/// path are taken to be one position apart.
std::optional<ShapeLabel> LabelOf(const Shape& shape, const MeasureScale& scale);

/// "1.24 m", "87.3 cm", "4.07 ft", "48.9 in"; without a ruler "312 px".
std::string LengthLabel(double pixels, const MeasureScale& scale);
/// "78.3 mph", "126 km/h", "35.0 m/s" for so many inches a second.
std::string SpeedLabel(double inchesPerSecond, const MeasureScale& scale);

}  // namespace kinalyx
