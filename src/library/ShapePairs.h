#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "drawing/Shape.h"

namespace kinalyx {

/// When two shapes count as one.
enum class Likeness {
  Drawing,  ///< equal in everything
  Record,   ///< equal in what a record holds
  Near,     ///< the same kind and colour, and the same points up to the rounding of another size
};

/// Pairs alike shapes of two lists, each with one at most; equal pairs come before near ones. For each of `list`
/// the place in `others`, or nothing.
std::vector<std::optional<std::size_t>> PairShapes(std::span<const Shape> list, std::span<const Shape> others,
                                                   Likeness likeness);

}  // namespace kinalyx
