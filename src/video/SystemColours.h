#pragma once

#include <cstdint>
#include <optional>

#include "platform/paint/Geometry.h"

namespace kinalyx {

/// System colours are named by their number above this.
constexpr std::uint32_t kSystemColours = 0x80000000u;
constexpr auto kButtonFace = static_cast<Colour>(kSystemColours + 15);
constexpr auto kButtonText = static_cast<Colour>(kSystemColours + 18);

/// The colour that a setting stands for: itself, or what the system's palette has under its number;
/// nothing when it is neither.
std::optional<Colour> TranslateColour(Colour colour);

}  // namespace kinalyx
