#pragma once

#include "platform/files/Tr.h"

namespace kinalyx {

/// A drawing tool in words and picture.
struct DrawToolWords {
  const char* caption;  ///< with its key
  const char* tip;
  const char* icon;
};

/// The drawing tools in the order of their keys F1 to F11, which is the order of the shape kinds.
inline constexpr DrawToolWords kDrawTools[] = {
    {TrLater("F1 - FreeHand"), TrLater("Freehand"), "freehand"},
    {TrLater("F2 - Plus Sign"), TrLater("Plus Sign"), "plus"},
    {TrLater("F3 - Square"), TrLater("Square"), "square"},
    {TrLater("F4 - Line"), TrLater("Line"), "line"},
    {TrLater("F5 - Circle"), TrLater("Circle"), "circle"},
    {TrLater("F6 - Angle"), TrLater("Angle"), "angle"},
    {TrLater("F7 - Motion Path"), TrLater("Path Trace"), "path"},
    {TrLater("F8 - Parallelogram"), TrLater("Parallelogram"), "parallelogram"},
    {TrLater("F9 - Shade Zone"), TrLater("Zone Tool"), "zone"},
    {TrLater("F10 - Clock Grid"), TrLater("Clock Grid"), "clock"},
    {TrLater("F11 - Arrow"), TrLater("Arrow"), "arrow"},
};

}  // namespace kinalyx
