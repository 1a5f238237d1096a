#pragma once

#include "library/Sidecar.h"

namespace kinalyx {

struct MergedData {
  SlotData whole;  ///< what is to be stored
  /// The shapes of `mine`, in their order, as records of the size of `whole`: those that stand there, and
  /// those that another has changed or deleted as they were before. The base of the next merge.
  ShapeList own;
};

/// A three-way merge of one video's data against `base`, in which both sides were the same. What I have not
/// touched follows the other; where both have changed the same thing both forms are kept.
///
/// My shapes are known by their numbers: one that `base` has too, with the same number and, fitted to the
/// size of `mine`, the same points, is untouched. Theirs are known by their records, byte for byte, which is why the
/// shapes in a file keep their size (see WholeTimes); only when another program has brought them to a size of
/// its own are they compared but for what rounding does.
/// @param base  what the owner of `mine` read or stored last, without what only others have drawn
MergedData MergeVideoData(const SlotData& mine, const SlotData& theirs, const SlotData& base);

/// How many times a side of pictures in a file is to be taken so that drawings of a larger picture keep their
/// exactness: until it is about `wanted` or more, as far as the file can tell of it. Points are multiplied
/// by a whole number, so that every record stays as exact as it is, and can be known again.
int WholeTimes(int side, int wanted);

}  // namespace kinalyx
