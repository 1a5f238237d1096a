#include "core/ColorSchemes.h"

#include <iterator>

#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

constexpr ColorScheme kSchemes[] = {
    {TrLater("Blue White"), {8867609, 15984088, 16777215, 15850180}},
    {TrLater("Maroon Tan"), {64, 14024703, 0, 11260894}},
    {TrLater("Green Tan"), {16384, 13828095, 0, 11591390}},
    {TrLater("Black Blue"), {0, 15984088, 16777215, 15850180}},
    {TrLater("Silver Blue"), {6955778, 15984088, 0, 15850180}},
    {TrLater("Dark Brown"), {2237013, 14480885, 16777215, 11788021}},
    {TrLater("Ruby Red"), {2104651, 14480885, 16777215, 11788021}},
    {TrLater("Outdoor Mode"), {0, 14737632, 16777215, 16777215}},
    {TrLater("Dark Room"), {0x78695C, 0x211D19, 0xFFFFFF, 0x1A1613}},
};

}  // namespace

std::span<const ColorScheme> ColorSchemes::All() { return kSchemes; }

bool ColorSchemes::ApplyDesign(std::string_view design) {
  if (design.size() != 1 || design[0] < '0' || design[0] >= '0' + static_cast<int>(std::size(kSchemes))) return false;
  design_ = design[0] - '0';
  colours_ = kSchemes[design_].colours;
  return true;
}

}  // namespace kinalyx
