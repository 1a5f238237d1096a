#include "workspace/edits/DrawingTimes.h"

#include <algorithm>
#include <limits>

namespace kinalyx {

/// The drawing that is taken or selected, else the last.
const Shape* DrawingTimes::Chosen() const {
  ShapeList& list = tools_.List(stage_.CurrentWindow);
  const Shape* shape = tools_.Hand().Window() == stage_.CurrentWindow ? tools_.Hand().Taken() : nullptr;
  if (!shape) shape = SelectedShape(list);
  if (!shape) shape = LastShape(list);
  return shape && shape->Locked && !shape->Measuring ? shape : nullptr;
}

std::optional<ShapeTime> DrawingTimes::Time() const {
  const Shape* shape = Chosen();
  return shape ? std::optional(shape->Time) : std::nullopt;
}

int DrawingTimes::LastFrame() const {
  const AVIControl& player = stage_.MP(stage_.CurrentWindow);
  return std::max(0, player.VideoLength() / (player.SplitFields() ? 2 : 1) - 1);
}

void DrawingTimes::Give(const ShapeTime& time) {
  const Shape* chosen = Chosen();
  if (!chosen || !stage_.HasVideo(stage_.CurrentWindow)) return;
  const int window = stage_.CurrentWindow;
  const auto place = chosen - tools_.List(window).Shapes.data();
  tools_.BeforeChange(window);
  tools_.List(window).Shapes[static_cast<std::size_t>(place)].Time = time;
  tools_.NoteChange(window);
  drawing_.Refresh(window);
  drawing_.DrawingsChanged(window);
  stage_.News().Note(kCommandsChanged);
}

void DrawingTimes::ShowAlways() { Give({}); }

void DrawingTimes::ShowHere() { Give({Frame(), Frame(), 0}); }

void DrawingTimes::ShowFromHere() {
  const auto time = Time();
  if (!time) return;
  const bool reaches = !time->Always() && time->Last > Frame();
  Give({Frame(), reaches ? time->Last : LastFrame(), kFade});
}

void DrawingTimes::ShowUntilHere() {
  const auto time = Time();
  if (!time) return;
  const bool begins = !time->Always() && time->First < Frame();
  Give({begins ? time->First : 0, Frame(), kFade});
}

bool DrawingTimes::AnyTimed() const {
  return std::ranges::any_of(ShapesOf(tools_.List(stage_.CurrentWindow)),
                             [](const Shape& shape) { return !shape.Time.Always(); });
}

void DrawingTimes::GoToNext() {
  constexpr int kNone = std::numeric_limits<int>::max();
  int next = kNone, first = kNone;
  for (const Shape& shape : ShapesOf(tools_.List(stage_.CurrentWindow))) {
    if (shape.Time.Always()) continue;
    first = std::min(first, shape.Time.First);
    if (shape.Time.First > Frame()) next = std::min(next, shape.Time.First);
  }
  const int frame = next == kNone ? first : next;
  if (frame == kNone) return;
  AVIControl& player = stage_.MP(stage_.CurrentWindow);
  player.StopPlay();
  player.DrawFrame(std::clamp(player.SplitFields() ? 2 * frame : frame, 0, player.VideoLength() - 1));
}

}  // namespace kinalyx
