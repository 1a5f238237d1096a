#pragma once

#include <vector>

#include "workspace/compare/LockedVideos.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// Moves every video that the layout shows, each by itself and locked ones as their lock says.
class AllVideos {
 public:
  AllVideos(Stage& stage, LockedVideos& locks) : stage_(stage), locks_(locks) {}

  /// Pauses what plays; when nothing does, plays all.
  void TogglePlay();
  void Pause();
  void Rewind();
  void Step(bool forward);
  void Move(int positions);
  void PlayBack();
  void SetSpeed(int percent);
  /// Every video that moves by itself plays again and again, or, when all of them do already, none.
  void ToggleLoop();
  bool Looping() const;
  bool Playing() const;
  /// More than one is in sight.
  bool Several() const;

 private:
  /// The slots in sight; of a lock the one by which it is moved.
  std::vector<int> Leads() const;
  bool Plays(int slot) const;
  bool CanLoop(int slot) const;

  Stage& stage_;
  LockedVideos& locks_;
};

}  // namespace kinalyx
