#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "platform/paint/Geometry.h"
#include "video/SystemColours.h"

namespace kinalyx {

/// Settings of a player by name, as a layout file keeps them; true is -1.
using PropertyBag = std::map<std::string, std::int64_t>;

/// The settings of a player that layout files keep. Colours are red + 256 x green + 65536 x blue, or
/// 0x80000000 + the number of a system colour.
struct PlayerProperties {
  bool Repeat = false;
  int DrawStyle = 0;  ///< of the pen on the surface, like the width and the colour
  int DrawMode = 13;  ///< raster mode, 1 to 16
  int DrawWidth = 1;  ///< pixels, at least 1
  Colour Forecolor = kButtonText;
  Colour BackColor = kButtonFace;
  std::int64_t KeyColor = 0;  ///< kept for the files alone, like the last two
  bool FlipHorizontal = false;
  bool SplitFields = false;
  int ForceDisplayFormat = 3;  ///< 0 best, 1 to 4 for 8, 16, 24, 32 bits
  int Speed = 100;             ///< percent, at least 1
  int ID = 0;
  bool Soften = false;
  int CompSpeed = 1;  ///< 0 to 255

  static bool IsDrawMode(std::int64_t mode) { return mode >= 1 && mode <= 16; }
  static bool IsDisplayFormat(std::int64_t code) { return code >= 0 && code <= 4; }
  static bool IsSpeed(std::int64_t percent) { return percent >= 1; }
};

/// What the bag lacks, or holds out of its range, takes its default.
PlayerProperties ReadProperties(const PropertyBag& bag);
PropertyBag WriteProperties(const PlayerProperties& properties);

}  // namespace kinalyx
