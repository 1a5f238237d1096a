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

/// A drawing in the picture in which it was drawn. Its points there are exact; to be seen in another they are rounded,
/// so what is measured is measured here and reads the same in every window.
struct ExactDrawing {
  kinalyx::Shape Shape;
  int Width = 0;  ///< of that picture, pixels; 0 not known
  int Height = 0;
};

/// In what a video is measured, as its window shows it.
struct MeasureScale {
  int Width = 0;  ///< of the picture, pixels; 0 not known
  int Height = 0;
  double Proportion = 0;     ///< of the true picture, width by height, which no rounding bends; 0: as its pixels say
  double PixelsPerInch = 0;  ///< of this picture; 0: there is no ruler
  int Unit = kFeet;          ///< of lengths, a LengthUnit
  double PerSecond = 0;      ///< positions that were taken in one second; 0: not known
  std::optional<PathTime> Now{};  ///< the position that is shown
  bool FromUpright = false;       ///< lines lean from the upright, not from the level
  int Speed = kSpeedOfRuler;
};

/// What is written beside a drawing.
struct ShapeLabel {
  POINTAPI Middle;  ///< pixels of the picture
  std::string Text;

  friend bool operator==(const ShapeLabel&, const ShapeLabel&) = default;
};

/// True for the kinds that have figures: lines, arrows, angles and paths, but no letters.
bool HasLabel(const Shape& shape);
/// What a drawing measures, in figures beside it: of a line or an arrow how far it leans, 0 to 90 degrees, whichever
/// way it was drawn, and with a ruler its length; the opening of an angle at its corner; the speed along a path at the
/// position that is shown, or where that is none of its own or not known, of its last step, and the greatest. Nothing
/// for other kinds, for letters, and for a path without ruler or rate. The points of a path are one position apart.
/// @param shown  beside which the figures stand, in the picture of `scale`
/// @param exact  of which they are taken; null: of `shown`
std::optional<ShapeLabel> LabelOf(const Shape& shown, const MeasureScale& scale, const ExactDrawing* exact = nullptr);

/// "1.24 m", "87.3 cm", "4.07 ft", "48.9 in".
std::string LengthLabel(double inches, int unit);
/// "78.3 mph", "126 km/h", "35.0 m/s" for so many inches a second.
std::string SpeedLabel(double inchesPerSecond, const MeasureScale& scale);

}  // namespace kinalyx
