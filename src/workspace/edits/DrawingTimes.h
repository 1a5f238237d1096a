#pragma once

#include <optional>

#include "drawing/DrawingTools.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// When the drawings of the current window are seen: on the whole video, on one picture, or from one to another.
/// What is done goes to the drawing that is taken, or else to the one that was drawn last, and can be undone.
class DrawingTimes {
 public:
  DrawingTimes(Stage& stage, DrawingTools& tools, IDrawingWorkspace& drawing)
      : stage_(stage), tools_(tools), drawing_(drawing) {}

  void ShowAlways();
  /// On the present picture alone.
  void ShowHere();
  /// From the present picture on, and up to it. What was seen always, or not so far, reaches to the end of the
  /// video, or begins with it; it comes and goes over kFade pictures.
  void ShowFromHere();
  void ShowUntilHere();
  static constexpr int kFade = 6;  ///< frames

  /// When it is seen; nothing when there is no drawing.
  std::optional<ShapeTime> Time() const;

  /// Goes to the next picture on which a drawing comes, from the last to the first.
  void GoToNext();
  bool AnyTimed() const;

 private:
  const Shape* Chosen() const;
  void Give(const ShapeTime& time);
  int Frame() const { return drawing_.FrameOf(stage_.CurrentWindow); }
  int LastFrame() const;

  Stage& stage_;
  DrawingTools& tools_;
  IDrawingWorkspace& drawing_;
};

}  // namespace kinalyx
