#include "workspace/edits/SpeedHint.h"

#include <fmt/format.h>

#include "platform/files/Tr.h"

namespace kinalyx {

void SpeedHint::Look() {
  for (int slot = 1; slot <= kSlots; ++slot) {
    bool& said = said_[static_cast<std::size_t>(slot)];
    if (said || !stage_.HasVideo(slot) || !stage_.IsShown(slot) || !tools_.ShowsSpeeds(slot)) continue;
    const auto rate = transport_.UntoldRate(slot);
    if (!rate) continue;
    said = true;
    hint_.Show(slot, Tr("Speeds at {:.4g} pictures a second. Slow motion? Setup, True Frame Rate...", *rate),
               "TrueRate");
  }
}

}  // namespace kinalyx
