#pragma once

#include <array>

#include "drawing/DrawingTools.h"
#include "workspace/edits/StageHint.h"
#include "workspace/stage/Stage.h"
#include "workspace/transport/Transport.h"

namespace kinalyx {

/// A film of a telephone in slow motion often says 30 pictures a second and was taken at 240: its speeds would read an
/// eighth of the truth. So where a speed is shown, and neither the user nor the file has told how the film was taken,
/// the window says once by what is reckoned, and leads to where it is told.
class SpeedHint {
 public:
  SpeedHint(Stage& stage, const Transport& transport, const DrawingTools& tools, StageHint& hint)
      : stage_(stage), transport_(transport), tools_(tools), hint_(hint) {}

  /// Speeds may have come on any picture.
  void Look();
  /// The next video of the slot is spoken of anew.
  void VideoClosed(int slot) { said_[static_cast<std::size_t>(slot)] = false; }

 private:
  Stage& stage_;
  const Transport& transport_;
  const DrawingTools& tools_;
  StageHint& hint_;
  std::array<bool, kSlots + 1> said_{};
};

}  // namespace kinalyx
