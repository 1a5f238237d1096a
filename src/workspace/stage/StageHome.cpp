#include "workspace/stage/StageHome.h"

#include <utility>

namespace kinalyx {

void StageHome::Take(const std::string& layout, int window, ITakesStage* taker) {
  if (away_) {
    Leave();
  } else {
    SavedLayout = layout;
    SavedWindow = window;
  }
  away_ = true;
  taker_ = taker;
}

void StageHome::Leave() {
  away_ = false;
  if (ITakesStage* taker = std::exchange(taker_, nullptr)) taker->StageLost();
}

}  // namespace kinalyx
