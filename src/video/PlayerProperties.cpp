#include "video/PlayerProperties.h"

#include <algorithm>

namespace kinalyx {
namespace {

constexpr const char* kLoop = "Loop";
constexpr const char* kDrawStyle = "DrawStyle";
constexpr const char* kDrawMode = "DrawMode";
constexpr const char* kDrawWidth = "DrawWidth";
constexpr const char* kForeColor = "ForeColor";
constexpr const char* kBackColor = "BackColor";
constexpr const char* kKeyColor = "KeyColor";
constexpr const char* kFlipH = "FlipH";
constexpr const char* kSplitFields = "SplitFields";
constexpr const char* kForceFormat = "ForceFormat";
constexpr const char* kSpeed = "Speed";
constexpr const char* kId = "ID";
constexpr const char* kSoften = "Soften";
constexpr const char* kCompSpeed = "CompSpeed";

std::int64_t ValueOf(const PropertyBag& bag, const char* key, std::int64_t fallback) {
  const auto found = bag.find(key);
  return found == bag.end() ? fallback : found->second;
}

int NumberOf(const PropertyBag& bag, const char* key, int fallback) {
  return static_cast<int>(ValueOf(bag, key, fallback));
}

/// A number that passes the test, or else the default.
int NumberOf(const PropertyBag& bag, const char* key, int fallback, bool (*good)(std::int64_t)) {
  const int value = NumberOf(bag, key, fallback);
  return good(value) ? value : fallback;
}

Colour ColourOf(const PropertyBag& bag, const char* key, Colour fallback) {
  const auto value = static_cast<Colour>(ValueOf(bag, key, fallback));
  return TranslateColour(value) ? value : fallback;
}

std::int64_t Stored(bool on) { return on ? -1 : 0; }
/// Colours are kept without a sign.
std::int64_t Stored(Colour colour) { return static_cast<std::uint32_t>(colour); }

}  // namespace

PlayerProperties ReadProperties(const PropertyBag& bag) {
  PlayerProperties read;
  read.Repeat = ValueOf(bag, kLoop, 0) != 0;
  read.DrawStyle = NumberOf(bag, kDrawStyle, read.DrawStyle);
  read.DrawMode = NumberOf(bag, kDrawMode, read.DrawMode, PlayerProperties::IsDrawMode);
  read.DrawWidth = std::max(1, NumberOf(bag, kDrawWidth, read.DrawWidth));
  read.Forecolor = ColourOf(bag, kForeColor, read.Forecolor);
  read.BackColor = ColourOf(bag, kBackColor, read.BackColor);
  read.KeyColor = ValueOf(bag, kKeyColor, 0);
  read.FlipHorizontal = ValueOf(bag, kFlipH, 0) != 0;
  read.SplitFields = ValueOf(bag, kSplitFields, 0) != 0;
  read.ForceDisplayFormat = NumberOf(bag, kForceFormat, read.ForceDisplayFormat, PlayerProperties::IsDisplayFormat);
  read.Speed = NumberOf(bag, kSpeed, read.Speed, PlayerProperties::IsSpeed);
  read.ID = NumberOf(bag, kId, 0);
  read.Soften = ValueOf(bag, kSoften, 0) != 0;
  read.CompSpeed = NumberOf(bag, kCompSpeed, read.CompSpeed) & 255;
  return read;
}

PropertyBag WriteProperties(const PlayerProperties& properties) {
  return {{kLoop, Stored(properties.Repeat)},
          {kDrawStyle, properties.DrawStyle},
          {kDrawMode, properties.DrawMode},
          {kDrawWidth, properties.DrawWidth},
          {kForeColor, Stored(properties.Forecolor)},
          {kBackColor, Stored(properties.BackColor)},
          {kKeyColor, properties.KeyColor},
          {kFlipH, Stored(properties.FlipHorizontal)},
          {kSplitFields, Stored(properties.SplitFields)},
          {kForceFormat, properties.ForceDisplayFormat},
          {kSpeed, properties.Speed},
          {kId, properties.ID},
          {kSoften, Stored(properties.Soften)},
          {kCompSpeed, properties.CompSpeed}};
}

}  // namespace kinalyx
