#include "video/SystemColours.h"

#include <array>

namespace kinalyx {
namespace {

constexpr Colour kGrey = Rgb(192, 192, 192);
constexpr Colour kDarkGrey = Rgb(128, 128, 128);
constexpr Colour kWhite = Rgb(255, 255, 255);
constexpr Colour kNavy = Rgb(0, 0, 128);

/// The classic palette, from the scroll bars to the background of tips.
constexpr std::array<Colour, 25> kPalette = {kGrey,
                                             Rgb(0, 128, 128),
                                             kNavy,
                                             kDarkGrey,
                                             kGrey,
                                             kWhite,
                                             0,
                                             0,
                                             0,
                                             kWhite,
                                             kGrey,
                                             kGrey,
                                             kDarkGrey,
                                             kNavy,
                                             kWhite,
                                             kGrey,
                                             kDarkGrey,
                                             kDarkGrey,
                                             0,
                                             kGrey,
                                             kWhite,
                                             0,
                                             kGrey,
                                             0,
                                             Rgb(255, 255, 225)};

}  // namespace

std::optional<Colour> TranslateColour(Colour colour) {
  const auto value = static_cast<std::uint32_t>(colour);
  if (value <= 0xFFFFFF) return colour;
  if (value >= kSystemColours && value < kSystemColours + kPalette.size()) return kPalette[value - kSystemColours];
  return std::nullopt;
}

}  // namespace kinalyx
