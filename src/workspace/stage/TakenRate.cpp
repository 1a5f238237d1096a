#include "workspace/stage/TakenRate.h"

#include "workspace/stage/Stage.h"

namespace kinalyx {

double KnownRate(const Slot& at) {
  if (at.SlotFrameRate > 0) return at.SlotFrameRate;
  if (at.data.RealFrameRate > 0) return at.data.RealFrameRate;
  const double told = at.MP->Info() ? at.MP->Info()->captureRate : 0;
  const double taken = at.data.Study.TrueRate > 0 ? at.data.Study.TrueRate : told;
  return taken * (at.MP->SplitFields() ? 2 : 1);
}

double TakenMs(const Slot& at) {
  const double known = KnownRate(at);
  return known > 0 ? 1000 / known : at.MP->PositionTime();
}

}  // namespace kinalyx
