#include "workspace/SlotDrawings.h"

#include <algorithm>
#include <cstddef>

namespace kinalyx {
namespace {

void Put(ShapeList& list, std::vector<Shape> shapes) {
  list.NumShapes = static_cast<std::int16_t>(shapes.size());
  list.Shapes = std::move(shapes);
}

/// The grid belongs to the window and stays.
void Clear(ShapeList& list) {
  const auto grid = list.GridOn;
  list = {};
  list.GridOn = grid;
}

}  // namespace

void SlotDrawings::VideoOpened(int slot) {
  SlotData& data = workspace_.At(slot).data;
  Kept& kept = At(slot);
  kept = {};
  kept.stored = {DrawingsOf(data.Shapes), data.PictureWidth, data.PictureHeight};
  kept.origin = kept.fitted = kept.stored;
  ShapeList& list = List(slot);
  Clear(list);
  Put(list, kept.stored.shapes);
  data.Shapes = {};
  tools_.ForgetPast(slot, {data.PictureWidth, data.PictureHeight, false});
}

/// Makes what is in the list the origin when it was drawn in since it was put there.
void SlotDrawings::Notice(int slot) {
  Kept& kept = At(slot);
  std::vector<Shape> drawings = DrawingsOf(List(slot));
  if (drawings == kept.fitted.shapes) return;
  kept.fitted.shapes = std::move(drawings);
  kept.origin = kept.fitted;
  // What was drawn or brought back in a view of another size is as exact as it was there.
  if (auto drawn = tools_.AsDrawn(slot))
    kept.origin = {std::move(drawn->shapes), drawn->view.width, drawn->view.height};
  kept.changed = true;
}

void SlotDrawings::Fit(int slot, int width, int height) {
  Kept& kept = At(slot);
  ShapeList fitted;
  Put(fitted, kept.origin.shapes);
  StretchShapes(fitted, kept.origin.width, kept.origin.height, width, height);
  // The ruler's line is fitted by itself and keeps its place: what is under construction stays the last.
  ShapeList& list = List(slot);
  StretchShapes(list, kept.fitted.width, kept.fitted.height, width, height);
  kept.fitted = {std::move(fitted.Shapes), width, height};
  std::vector<Shape> shapes = kept.fitted.shapes;
  for (std::size_t i = 0; i < ShapesOf(list).size(); ++i)
    if (const Shape& shape = list.Shapes[i]; shape.Measuring)
      shapes.insert(shapes.begin() + static_cast<std::ptrdiff_t>(std::min(i, shapes.size())), shape);
  Put(list, std::move(shapes));
  // A macro made of them is later fitted by this size.
  list.CanvasWidth = width * kTwipsPerPixel;
  list.CanvasHeight = height * kTwipsPerPixel;
}

void SlotDrawings::PlayerResized(int slot) {
  const int width = workspace_.MP(slot).ControlWidthPixels();
  const int height = workspace_.MP(slot).ControlHeightPixels();
  if (width <= 0 || height <= 0) return;
  Notice(slot);
  Kept& kept = At(slot);
  if (kept.origin.width <= 0 || kept.origin.height <= 0) {
    kept.origin.width = width;
    kept.origin.height = height;
  }
  Fit(slot, width, height);
  tools_.ViewChanged(slot, {width, height, workspace_.MP(slot).FlipHorizontal()});
}

void SlotDrawings::PictureFlipped(int slot) {
  Notice(slot);
  Kept& kept = At(slot);
  FlipShapes(List(slot), kept.fitted.width);
  ShapeList mirrored;
  Put(mirrored, std::move(kept.origin.shapes));
  FlipShapes(mirrored, kept.origin.width);
  kept.origin.shapes = std::move(mirrored.Shapes);
  Fit(slot, kept.fitted.width, kept.fitted.height);
  tools_.ViewChanged(slot, {kept.fitted.width, kept.fitted.height, workspace_.MP(slot).FlipHorizontal()});
}

bool SlotDrawings::CollectData(int slot) {
  Notice(slot);
  const Kept& kept = At(slot);
  SlotData& data = workspace_.At(slot).data;
  const Drawn& drawn = kept.changed ? kept.fitted : kept.stored;
  data.Shapes = {};
  Put(data.Shapes, drawn.shapes);
  // A shape that is being drawn at this moment is none yet.
  if (Shape* last = LastShape(data.Shapes); last && !last->Locked && List(slot).Adding) --data.Shapes.NumShapes;
  data.PictureWidth = drawn.width;
  data.PictureHeight = drawn.height;
  if (kept.changed && workspace_.MP(slot).FlipHorizontal()) FlipShapes(data.Shapes, drawn.width);
  return kept.changed;
}

void SlotDrawings::DataSaved(int slot) {
  SlotData& data = workspace_.At(slot).data;
  Kept& kept = At(slot);
  kept.stored = {DrawingsOf(data.Shapes), data.PictureWidth, data.PictureHeight};
  kept.changed = false;
  data.Shapes = {};
}

void SlotDrawings::VideoClosed(int slot) {
  Clear(List(slot));
  At(slot) = {};
  tools_.ForgetPast(slot, {});
}

}  // namespace kinalyx
