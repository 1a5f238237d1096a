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
         width == shape.Width && text == shape.Text && std::ranges::equal(points, PointsOf(shape));
}

void WindowPainter::Content::Take(const Shape& shape, Colour ink) {
  kind = shape.Kind;
  locked = shape.Locked;
  colour = ink;
  rotation = ClockRotation(shape);
  width = shape.Width;
  text = shape.Text;
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
  while (back < common - front && entries_[entries_.size() - 1 - back].content.Shows(shapes[shapes.size() - 1 - back],
                                                                                     colours[shapes.size() - 1 - back]))
    ++back;
  spare_.clear();
  spare_.resize(shapes.size());
  std::move(entries_.begin(), entries_.begin() + static_cast<std::ptrdiff_t>(front), spare_.begin());
  std::move(entries_.end() - static_cast<std::ptrdiff_t>(back), entries_.end(),
            spare_.end() - static_cast<std::ptrdiff_t>(back));
  entries_.swap(spare_);
  spare_.clear();
  bytes_ = grid_.Bytes();
  for (const Entry& entry : entries_) bytes_ += entry.layer.Bytes();
}

bool WindowPainter::AllRest(const Job& job) const {
  for (std::size_t i = 0; i < job.shapes.size(); ++i)
    if (!entries_[i].kept || !entries_[i].content.Shows(job.shapes[i], job.colours[i])) return false;
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
                                      kept.SetPen({grid.colour, 1, frame_.penStyle, grid.opacity});
                                      DrawGrid(kept, frame_.width, frame_.height, grid.divisions);
                                    })
                    : Layer();
    bytes_ += grid_.Bytes();
    gridLook_ = grid;
  }
  grid_.LayOver(canvas.Target());
}

/// Everything is stale once the frame has another look.
void WindowPainter::Begin(const Frame& frame) {
  if (frame == frame_) return;
  frame_ = frame;
  entries_.clear();
  DropWhole();
  grid_ = Layer();
  gridLook_ = GridLook();
  bytes_ = 0;
}

Layer WindowPainter::Record(const Job& job, const std::function<void(Canvas&)>& paint) const {
  return Layer::Record(frame_.width, frame_.height, [&](Canvas& kept) {
    kept.SetPen(job.pen);
    paint(kept);
  });
}

/// Lays a long list that rests in one go; false while there is no such layer.
bool WindowPainter::LayWhole(const Job& job, Surface& surface) {
  if (!AllRest(job) || !job.opacities.empty()) {
    DropWhole();
    return false;
  }
  if (job.shapes.size() < kLongList || ++framesAtRest_ <= kRestingFrames) return false;
  if (whole_.Empty() && bytes_ < kMostBytes) {
    whole_ = Record(job, [&](Canvas& kept) {
      for (std::size_t i = 0; i < job.shapes.size(); ++i) PaintShape(job.shapes[i], job.colours[i], kept, job.look);
    });
    bytes_ += whole_.Bytes();
  }
  if (whole_.Empty()) return false;
  whole_.LayOver(surface);
  return true;
}

/// Lays the layer of one shape, or paints the shape; a layer is made of it when it has come to rest and
/// `mayKeep` allows another one in this frame. False when it could not be drawn.
bool WindowPainter::PaintOne(const Job& job, std::size_t i, Canvas& canvas, int& mayKeep) {
  const Shape& shape = job.shapes[i];
  Entry& entry = entries_[i];
  bool drawn = true;
  const bool changed = !entry.content.Shows(shape, job.colours[i]);
  if (changed) {
    entry.content.Take(shape, job.colours[i]);
    bytes_ -= entry.layer.Bytes();
    entry.layer = Layer();
    entry.kept = false;
  }
  // One that comes or goes is seen through glass, which takes a layer.
  constexpr int kFull = 255;
  const int opacity = job.opacities.empty() ? kFull : job.opacities[i];
  if (opacity == 0) return true;
  const bool glass = opacity < kFull;
  if (!entry.kept && (glass || (!changed && mayKeep > 0)) && bytes_ < kMostBytes) {
    --mayKeep;
    entry.layer = Record(job, [&](Canvas& kept) { drawn = PaintShape(shape, job.colours[i], kept, job.look); });
    // A shape that fails is tried, and told of, on each frame.
    entry.kept = drawn;
    bytes_ += entry.layer.Bytes();
  }
  if (!entry.kept) return PaintShape(shape, job.colours[i], canvas, job.look);
  entry.layer.LayOver(canvas.Target(), opacity);
  return true;
}

std::optional<std::size_t> WindowPainter::Paint(Canvas& canvas, std::span<const Shape> shapes,
                                                std::span<const Colour> colours, const GridLook& grid,
                                                const ShapeLook& look, std::span<const std::uint8_t> opacities) {
  const Surface& surface = canvas.Target();
  if (surface.Empty()) return std::nullopt;
  const Job job{shapes, colours, opacities, look, canvas.CurrentPen()};
  Begin({surface.Width(), surface.Height(), job.pen.width, job.pen.style, look});
  PaintGrid(canvas, grid);
  if (entries_.size() != shapes.size()) DropWhole();
  Align(shapes, colours);
  if (LayWhole(job, canvas.Target())) return std::nullopt;
  std::optional<std::size_t> failed;
  int mayKeep = kKeptPerFrame;
  for (std::size_t i = 0; i < shapes.size(); ++i)
    if (!PaintOne(job, i, canvas, mayKeep) && !failed) failed = i;
  return failed;
}

}  // namespace kinalyx
