#pragma once

#include "video/cDIBSection.h"

namespace kinalyx {

/// Softens whole bitmaps as the player softens a field.
class cImageProcessDIB {
 public:
  /// Makes `Target` the softened picture of `Source`: every second row, counted from the second one at
  /// the bottom, becomes the mean of its neighbours. The two may be the same. False without a source.
  bool ProcessImage(const cDIBSection& Source, cDIBSection& Target) const;
};

}  // namespace kinalyx
