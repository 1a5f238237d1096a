#pragma once

namespace kinalyx {

/// A drawing tool in words and picture.
struct DrawToolWords {
  const char* caption;  ///< with its key
  const char* tip;
  const char* icon;
};

/// The drawing tools in the order of their keys F1 to F11, which is the order of the shape kinds.
inline constexpr DrawToolWords kDrawTools[] = {
    {"F1 - FreeHand", "Freehand", "freehand"},  {"F2 - Plus Sign", "Plus Sign", "plus"},
    {"F3 - Square", "Square", "square"},        {"F4 - Line", "Line", "line"},
    {"F5 - Circle", "Circle", "circle"},        {"F6 - Angle", "Angle", "angle"},
    {"F7 - Motion Path", "Path Trace", "path"}, {"F8 - Parallelogram", "Parallelogram", "parallelogram"},
    {"F9 - Shade Zone", "Zone Tool", "zone"},   {"F10 - Clock Grid", "Clock Grid", "clock"},
    {"F11 - Arrow", "Arrow", "arrow"},
};

}  // namespace kinalyx
