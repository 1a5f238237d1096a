#include "core/ColorSchemes.h"

#include <iterator>

namespace kinalyx {

namespace {

constexpr ColorScheme kSchemes[] = {
    {"Blue White", {8867609, 15984088, 16777215, 15850180}}, {"Maroon Tan", {64, 14024703, 0, 11260894}},
    {"Green Tan", {16384, 13828095, 0, 11591390}},           {"Black Blue", {0, 15984088, 16777215, 15850180}},
    {"Silver Blue", {6955778, 15984088, 0, 15850180}},       {"Dark Brown", {2237013, 14480885, 16777215, 11788021}},
    {"Ruby Red", {2104651, 14480885, 16777215, 11788021}},   {"Outdoor Mode", {0, 14737632, 16777215, 16777215}},
    {"Dark Room", {0x78695C, 0x211D19, 0xFFFFFF, 0x1A1613}},
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
