#include "video/AVIControl.h"

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

constexpr int kCopyPen = 13;
constexpr int kFormat24 = 3;

std::int64_t ValueOf(const PropertyBag& bag, const char* key, std::int64_t fallback) {
  const auto found = bag.find(key);
  return found == bag.end() ? fallback : found->second;
}

int NumberOf(const PropertyBag& bag, const char* key, std::int64_t fallback) {
  return static_cast<int>(ValueOf(bag, key, fallback));
}

std::int64_t Stored(bool on) { return on ? -1 : 0; }
/// Colours are kept without a sign.
std::int64_t Stored(Colour colour) { return static_cast<std::uint32_t>(colour); }

}  // namespace

void AVIControl::ReadProperties(const PropertyBag& bag) {
  setRepeat(ValueOf(bag, kLoop, 0) != 0);
  setDrawStyle(NumberOf(bag, kDrawStyle, 0));
  if (!setDrawMode(NumberOf(bag, kDrawMode, kCopyPen))) setDrawMode(kCopyPen);
  setDrawWidth(NumberOf(bag, kDrawWidth, 1));
  if (!setForecolor(NumberOf(bag, kForeColor, Stored(kButtonText)))) setForecolor(kButtonText);
  if (!setBackColor(NumberOf(bag, kBackColor, Stored(kButtonFace)))) setBackColor(kButtonFace);
  KeyColor_ = ValueOf(bag, kKeyColor, 0);
  setFlipHorizontal(ValueOf(bag, kFlipH, 0) != 0);
  setSplitFields(ValueOf(bag, kSplitFields, 0) != 0);
  if (!setForceDisplayFormat(NumberOf(bag, kForceFormat, kFormat24))) setForceDisplayFormat(kFormat24);
  if (!setSpeed(NumberOf(bag, kSpeed, 100))) setSpeed(100);
  setID(NumberOf(bag, kId, 0));
  setSoften(ValueOf(bag, kSoften, 0) != 0);
  setCompSpeed(NumberOf(bag, kCompSpeed, 1));
}

PropertyBag AVIControl::WriteProperties() const {
  return {{kLoop, Stored(Repeat_)},
          {kDrawStyle, pen_.style},
          {kDrawMode, DrawMode_},
          {kDrawWidth, pen_.width},
          {kForeColor, Stored(Forecolor_)},
          {kBackColor, Stored(BackColor_)},
          {kKeyColor, KeyColor_},
          {kFlipH, Stored(FlipHorizontal_)},
          {kSplitFields, Stored(SplitFields_)},
          {kForceFormat, ForceDisplayFormat_},
          {kSpeed, Speed_},
          {kId, ID_},
          {kSoften, Stored(Soften_)},
          {kCompSpeed, CompSpeed_}};
}

}  // namespace kinalyx
