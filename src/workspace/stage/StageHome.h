#pragma once

#include <string>

namespace kinalyx {

/// What can have the stage to itself.
class ITakesStage {
 public:
  virtual ~ITakesStage() = default;
  /// It has lost the stage; called once each time.
  virtual void StageLost() = 0;
};

/// The way home of what takes the stage from a layout: a maximized window, the film strip, transparency. One
/// of them has it at a time. The next one that takes it ends the one before, and home stays where it was.
class StageHome {
 public:
  /// The layout and the window to come home to; good while something has the stage.
  std::string SavedLayout = "1";
  int SavedWindow = 1;

  bool Away() const { return away_; }
  /// Takes the stage, from the layout and the window given when nothing else has it. `taker` is told when it
  /// is lost again; null: nobody is.
  void Take(const std::string& layout, int window, ITakesStage* taker);
  /// Ends what has the stage; nothing when nothing has.
  void Leave();

 private:
  bool away_ = false;
  ITakesStage* taker_ = nullptr;
};

}  // namespace kinalyx
