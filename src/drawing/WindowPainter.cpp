#include "drawing/WindowPainter.h"

#include <algorithm>
#include <utility>

namespace kinalyx {
namespace {

/// Keeping a layer costs as much as painting its shape a few times. A list that has just been opened is
/// kept over several frames, so that none of them is late.
constexpr int kKeptPerFrame = 12;
/// What a window may hold; shapes beyond it are painted on each frame.
constexpr std::size_t kMostBytes = 64u << 20;
/// A long list that has been at rest for some frames is kept as one layer besides: where many shapes lie
/// over each other, their pixels are then laid once.
constexpr std::size_t kLongList = 8;
constexpr int kRestingFrames = 4;

}  // namespace

bool WindowPainter::Content::Shows(const Shape& shape, Colour ink) const {
  return kind == shape.Kind && locked == shape.Locked && colour == ink && rotation == ClockRotation(shape) &&
         std::ranges::equal(points, PointsOf(shape));
}

void WindowPainter::Content::Take(const Shape& shape, Colour ink) {
  kind = shape.Kind;
  locked = shape.Locked;
  colour = ink;
  rotation = ClockRotation(shape);
  const auto now = PointsOf(shape);
  points.assign(now.begin(), now.end());
}

/// Brings the entries to the length of the list. What was added or removed lies between the shapes that
/// stayed at either end, which keep their layers.
void WindowPainter::Align(std::span<const Shape> shapes, std::span<const Colour> colours) {
  if (entries_.size() == shapes.size()) return;
  const std::size_t common = std::min(entries_.size(), shapes.size());
  std::size_t front = 0;
  while (front < common && entries_[front].content.Shows(shapes[front], colours[front])) ++front;
  std::size_t back = 0;
  while (back < common - front &&
         entries_[entries_.size() - 1 - back].content.Shows(shapes[shapes.size() - 1 - back], colours[shapes.size() - 1 - back]))
    ++back;
  spare_.clear();
  spare_.resize(shapes.size());
  std::move(entries_.begin(), entries_.begin() + static_cast<std::ptrdiff_t>(front), spare_.begin());
  std::move(entries_.end() - static_cast<std::ptrdiff_t>(back), entries_.end(), spare_.end() - static_cast<std::ptrdiff_t>(back));
  entries_.swap(spare_);
  spare_.clear();
  bytes_ = grid_.Bytes();
  for (const Entry& entry : entries_) bytes_ += entry.layer.Bytes();
}

bool WindowPainter::AllRest(std::span<const Shape> shapes, std::span<const Colour> colours) const {
  for (std::size_t i = 0; i < shapes.size(); ++i)
    if (!entries_[i].kept || !entries_[i].content.Shows(shapes[i], colours[i])) return false;
  return true;
}

void WindowPainter::DropWhole() {
  bytes_ -= whole_.Bytes();
  whole_ = Layer();
  framesAtRest_ = 0;
}

void WindowPainter::PaintGrid(Canvas& canvas, const GridLook& grid) {
  if (grid != gridLook_) {
    bytes_ -= grid_.Bytes();
    grid_ = grid.on ? Layer::Record(frame_.width, frame_.height,
                                    [&](Canvas& kept) {
                                      kept.SetPen({grid.colour, 1, frame_.penStyle});
                                      DrawGrid(kept, frame_.width, frame_.height, grid.divisions);
                                    })
                    : Layer();
    bytes_ += grid_.Bytes();
    gridLook_ = grid;
  }
  grid_.LayOver(canvas.Target());
}

std::optional<std::size_t> WindowPainter::Paint(Canvas& canvas, std::span<const Shape> shapes,
                                                std::span<const Colour> colours, const GridLook& grid,
                                                const ShapeLook& look, const ShapeRules& rules) {
  Surface& surface = canvas.Target();
  if (surface.Empty()) return std::nullopt;
  const Pen pen = canvas.CurrentPen();
  const Frame frame{surface.Width(), surface.Height(), pen.width, pen.style, rules.EllipseFromCentre, look};
  if (frame != frame_) {
    frame_ = frame;
    entries_.clear();
    DropWhole();
    grid_ = Layer();
    gridLook_ = GridLook();
    bytes_ = 0;
  }
  PaintGrid(canvas, grid);
  if (entries_.size() != shapes.size()) DropWhole();
  Align(shapes, colours);
  if (!AllRest(shapes, colours)) {
    DropWhole();
  } else if (shapes.size() >= kLongList && ++framesAtRest_ > kRestingFrames) {
    if (whole_.Empty() && bytes_ < kMostBytes) {
      whole_ = Layer::Record(frame_.width, frame_.height, [&](Canvas& kept) {
        kept.SetPen(pen);
        for (std::size_t i = 0; i < shapes.size(); ++i) PaintShape(shapes[i], colours[i], kept, look, rules);
      });
      bytes_ += whole_.Bytes();
    }
    if (!whole_.Empty()) {
      whole_.LayOver(surface);
      return std::nullopt;
    }
  }

  std::optional<std::size_t> failed;
  int mayKeep = kKeptPerFrame;
  for (std::size_t i = 0; i < shapes.size(); ++i) {
    const Shape& shape = shapes[i];
    Entry& entry = entries_[i];
    bool drawn = true;
    const bool atRest = entry.content.Shows(shape, colours[i]);
    if (!atRest) {
      entry.content.Take(shape, colours[i]);
      bytes_ -= entry.layer.Bytes();
      entry.layer = Layer();
      entry.kept = false;
    } else if (!entry.kept && mayKeep > 0 && bytes_ < kMostBytes) {
      --mayKeep;
      entry.layer = Layer::Record(frame_.width, frame_.height, [&](Canvas& kept) {
        kept.SetPen(pen);
        drawn = PaintShape(shape, colours[i], kept, look, rules);
      });
      // A shape that fails is tried, and told of, on each frame.
      entry.kept = drawn;
      bytes_ += entry.layer.Bytes();
    }
    if (entry.kept) {
      entry.layer.LayOver(surface);
    } else {
      drawn = PaintShape(shape, colours[i], canvas, look, rules);
    }
    if (!drawn && !failed) failed = i;
  }
  return failed;
}

}  // namespace kinalyx
