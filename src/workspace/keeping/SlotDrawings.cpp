#include "workspace/keeping/SlotDrawings.h"

#include <algorithm>
#include <utility>

#include "library/SidecarMerge.h"

namespace kinalyx {
namespace {

constexpr std::size_t kMostPast = 500;  // shapes; more than can be undone

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

/// A shape of one view as another shows it.
Shape InView(const Shape& shape, const DrawingView& from, const DrawingView& to) {
  return DrawnShapes{{shape}, from}.In(to).front();
}

bool IsUnchanged(const Shape& a, const Shape& b) { return a.Id == b.Id && IsSameDrawing(a, b); }

}  // namespace

void SlotDrawings::VideoOpened(int slot, SlotData& base) {
  for (Shape& shape : ShapesOf(base.Shapes)) shape.Id = tools_.Engine().NewId();
  Kept& kept = At(slot);
  kept = {};
  kept.fitted = DrawingsOf(base.Shapes);
  kept.view = {base.PictureWidth, base.PictureHeight, false};
  TakeFile(kept, base);
  for (const Shape& shape : kept.fitted) kept.origins.push_back({shape, base.PictureWidth, base.PictureHeight, true});
  ShapeList& list = List(slot);
  Clear(list);
  Put(list, kept.fitted);
  tools_.ForgetPast(slot, kept.view);
}

/// Takes what was drawn, changed or brought back since the list was fitted for an origin.
void SlotDrawings::Notice(int slot) {
  Kept& kept = At(slot);
  for (Shape& shape : ShapesOf(List(slot)))
    if (shape.Id == 0) shape.Id = tools_.Engine().NewId();
  std::vector<Shape> shapes = DrawingsOf(List(slot));
  if (std::ranges::equal(shapes, kept.fitted, IsUnchanged)) return;
  DrawnShapes drawn{shapes, kept.view};
  // What was drawn or brought back in a view of another size is as exact as it was there.
  if (auto exact = tools_.AsDrawn(slot)) drawn = std::move(*exact);

  std::vector<Origin> origins;
  std::vector<bool> stays(kept.origins.size());
  for (std::size_t i = 0; i < shapes.size(); ++i) {
    const Shape& now = drawn.shapes[i];
    const auto itself = std::ranges::find(kept.fitted, shapes[i].Id, &Shape::Id);
    const auto at = static_cast<std::size_t>(itself - kept.fitted.begin());
    const auto was = [&](const Origin& origin) {
      return origin.shape.Id == shapes[i].Id &&
             IsSameDrawing(InView(origin.shape, {origin.width, origin.height, false}, drawn.view), now);
    };
    if (itself != kept.fitted.end() && (IsSameDrawing(*itself, shapes[i]) || was(kept.origins[at]))) {
      stays[at] = true;
      origins.push_back(kept.origins[at]);
    } else if (const auto before = std::find_if(kept.past.rbegin(), kept.past.rend(), was);
               before != kept.past.rend()) {
      origins.push_back(*before);
    } else {
      origins.push_back({InView(now, drawn.view, {drawn.view.width, drawn.view.height, false}), drawn.view.width,
                         drawn.view.height, false});
      origins.back().shape.Id = shapes[i].Id;
    }
  }
  for (std::size_t i = 0; i < stays.size(); ++i)
    if (!stays[i] && kept.origins[i].shape.Locked) kept.past.push_back(std::move(kept.origins[i]));
  if (kept.past.size() > kMostPast) kept.past.erase(kept.past.begin(), kept.past.end() - kMostPast);
  kept.origins = std::move(origins);
  kept.fitted = std::move(shapes);
}

void SlotDrawings::Fit(int slot, const DrawingView& view) {
  Kept& kept = At(slot);
  ShapeList& list = List(slot);
  std::size_t next = 0;
  for (Shape& shape : ShapesOf(list)) {
    if (shape.Measuring) {  // the ruler's line is fitted by itself
      shape = InView(shape, kept.view, view);
      continue;
    }
    const Origin& origin = kept.origins[next];
    Shape& fitted = kept.fitted[next++];
    fitted = InView(origin.shape, {origin.width, origin.height, false}, view);
    fitted.SavedPts = std::move(shape.SavedPts);
    shape = fitted;
  }
  kept.view = view;
  // A macro made of them is later fitted by this size.
  list.CanvasWidth = view.width * kTwipsPerPixel;
  list.CanvasHeight = view.height * kTwipsPerPixel;
  tools_.ViewChanged(slot, view);
}

void SlotDrawings::FollowPicture(int slot) {
  const AVIControl& player = stage_.MP(slot);
  const DrawingView view{player.ControlWidthPixels(), player.ControlHeightPixels(), player.FlipHorizontal()};
  Kept& kept = At(slot);
  if (view.width <= 0 || view.height <= 0 || (kept.placed && view == kept.view)) return;
  kept.placed = true;
  Notice(slot);
  for (Origin& origin : kept.origins) {
    if (origin.width > 0 && origin.height > 0) continue;
    origin.width = view.width;
    origin.height = view.height;
  }
  Fit(slot, view);
}

void SlotDrawings::TakeFile(Kept& kept, const SlotData& base) {
  kept.file = ShapesOf(base.Shapes).empty() ? DrawingView{} : DrawingView{base.PictureWidth, base.PictureHeight, false};
}

/// The picture to which what was drawn in one of this size will belong in the file: whole multiples of the one that
/// is there, or of the one in which the first drawing was made.
DrawingView SlotDrawings::SizeInFile(const Kept& kept, int width, int height) {
  DrawingView size = kept.file;
  if ((size.width <= 0 || size.height <= 0) && !kept.origins.empty())
    size = {kept.origins.front().width, kept.origins.front().height, false};
  if (size.width <= 0 || size.height <= 0) size = {width, height, false};
  size = {std::min(size.width, kMostPictureSide), std::min(size.height, kMostPictureSide), false};
  return {size.width * WholeTimes(size.width, width), size.height * WholeTimes(size.height, height), false};
}

std::optional<ExactDrawing> SlotDrawings::ExactOf(int slot, const Shape& shape) const {
  const Kept& kept = At(slot);
  const auto fitted = shape.Id == 0 ? kept.fitted.end() : std::ranges::find(kept.fitted, shape.Id, &Shape::Id);
  DrawingView view{kept.view.width, kept.view.height, false};
  const Shape* drawn = &shape;
  if (fitted != kept.fitted.end() && IsSameDrawing(*fitted, shape)) {
    const Origin& origin = kept.origins[static_cast<std::size_t>(fitted - kept.fitted.begin())];
    drawn = &origin.shape;
    view = {origin.width, origin.height, false};
  }
  if (view.width <= 0 || view.height <= 0) return std::nullopt;
  const DrawingView size = SizeInFile(kept, view.width, view.height);
  return ExactDrawing{InView(*drawn, view, size), size.width, size.height};
}

/// What is drawn, but for a shape that is being drawn at this moment.
std::span<const SlotDrawings::Origin> SlotDrawings::Finished(int slot) {
  Notice(slot);
  const auto origins = std::span<const Origin>(At(slot).origins);
  const bool drawing = !origins.empty() && !origins.back().shape.Locked && List(slot).Adding;
  return drawing ? origins.first(origins.size() - 1) : origins;
}

bool SlotDrawings::Changed(int slot, const SlotData& base) {
  return !std::ranges::equal(Finished(slot), ShapesOf(base.Shapes), [](const Origin& origin, const Shape& shape) {
    return origin.stored && origin.shape.Id == shape.Id;
  });
}

void SlotDrawings::Collect(int slot, const SlotData& base, SlotData& data) {
  const auto origins = Finished(slot);
  const auto stored = ShapesOf(base.Shapes);
  // What is in the file keeps its size, and with it every record, so that others know it again.
  DrawingView size{base.PictureWidth, base.PictureHeight, false};
  if (Changed(slot, base)) {
    int width = 0, height = 0;
    for (const Origin& origin : origins) {
      if (origin.stored) continue;
      width = std::max(width, origin.width);
      height = std::max(height, origin.height);
    }
    size = SizeInFile(At(slot), width, height);
  }
  std::vector<Shape> shapes;
  for (const Origin& origin : origins) {
    const auto record = origin.stored ? std::ranges::find(stored, origin.shape.Id, &Shape::Id) : stored.end();
    if (record == stored.end()) shapes.push_back(InView(origin.shape, {origin.width, origin.height, false}, size));
    else shapes.push_back(InView(*record, {base.PictureWidth, base.PictureHeight, false}, size));
  }
  data.Shapes = {};
  Put(data.Shapes, std::move(shapes));
  data.PictureWidth = size.width;
  data.PictureHeight = size.height;
}

void SlotDrawings::Saved(int slot, const SlotData& base) {
  Kept& kept = At(slot);
  const auto stored = ShapesOf(base.Shapes);
  TakeFile(kept, base);
  for (Origin& origin : kept.origins)
    origin.stored = std::ranges::find(stored, origin.shape.Id, &Shape::Id) != stored.end();
  for (Origin& origin : kept.past) origin.stored = false;
}

void SlotDrawings::VideoClosed(int slot) {
  Clear(List(slot));
  At(slot) = {};
  tools_.ForgetPast(slot, {});
}

}  // namespace kinalyx
