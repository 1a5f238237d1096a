#include "workspace/StageHome.h"

#include <utility>

namespace kinalyx {

void StageHome::Take(const std::string& layout, int window, std::function<void()> ended) {
  if (away_) {
    Leave();
  } else {
    SavedLayout = layout;
    SavedWindow = window;
  }
  away_ = true;
  ended_ = std::move(ended);
}

void StageHome::Leave() {
  away_ = false;
  if (const auto ended = std::exchange(ended_, {})) ended();
}

}  // namespace kinalyx
