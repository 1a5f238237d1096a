#include "distribution/clips/FilmSource.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/paint/Blend.h"
#include "video/FramePipeline.h"

namespace kinalyx {

Result<std::unique_ptr<FilmSource>> FilmSource::Open(const SceneVideo& video) {
  auto file = VideoFile::Open(video.Path);
  if (!file) return file.Failure();
  return std::unique_ptr<FilmSource>(new FilmSource(video, std::move(*file)));
}

/// The fields of a frame share its time in halves.
double FilmSource::TimeOf(int position) const {
  if (!video_.SplitFields) return file_->SampleToTime(position);
  const double start = file_->SampleToTime(position / 2);
  return position % 2 == 0 ? start : (start + file_->SampleToTime(position / 2 + 1)) / 2;
}

int FilmSource::PositionAt(double ms) const {
  const int frame = file_->FrameAtTime(ms);
  if (!video_.SplitFields) return frame;
  return 2 * frame + (ms >= TimeOf(2 * frame + 1) ? 1 : 0);
}

PixelRows FilmSource::Picture(int position) {
  const auto asPixels = [](const FrameRows& rows) {
    return PixelRows{rows.bits, rows.width, rows.height, rows.rowBytes, rows.bitCount, true};
  };
  if (!video_.SplitFields) return asPixels(file_->Frame(position, 32));
  const FrameRows rows = file_->Frame(position / 2, 24);
  if (!rows) return {};
  field_.resize(static_cast<std::size_t>(rows.rowBytes) * rows.height);
  CopySoftField(rows.bits, rows.rowBytes, rows.height, (position % 2 == 1) != video_.ReverseFields, field_.data());
  PixelRows picture = asPixels(rows);
  picture.bits = field_.data();
  return picture;
}

bool FilmSource::Paint(int position, const FilmPlace& place, Surface& surface) {
  const PixelRows rows = Picture(position);
  if (!rows.bits || place.Width <= 0 || place.Height <= 0) return false;
  const int left = std::clamp(place.Left, 0, surface.Width());
  const int top = std::clamp(place.Top, 0, surface.Height());
  const int right = std::clamp(place.Left + place.Width, left, surface.Width());
  const int bottom = std::clamp(place.Top + place.Height, top, surface.Height());
  const int width = right - left;
  const int height = bottom - top;
  const bool all = width == surface.Width() && height == surface.Height();
  if (!all) surface.Clear(0);
  if (width == 0 || height == 0) return true;

  // The part of the file's picture that is seen, to the nearest pixel.
  const auto source = [](int from, int size, int pixels) {
    return std::clamp(static_cast<int>(std::lround(static_cast<double>(from) * pixels / size)), 0, pixels);
  };
  const int seenLeft = place.Mirrored ? place.Left + place.Width - right : left - place.Left;
  const int fromX = std::min(source(seenLeft, place.Width, rows.width), rows.width - 1);
  const int toX = std::max(source(seenLeft + width, place.Width, rows.width), fromX + 1);
  const int fromY = std::min(source(top - place.Top, place.Height, rows.height), rows.height - 1);
  const int toY = std::max(source(top - place.Top + height, place.Height, rows.height), fromY + 1);
  PixelRows part = rows;
  part.width = toX - fromX;
  part.height = toY - fromY;
  const int lowest = rows.bottomUp ? rows.height - toY : fromY;
  part.bits +=
      static_cast<std::ptrdiff_t>(lowest) * rows.rowBytes + static_cast<std::ptrdiff_t>(fromX) * (rows.bitCount / 8);

  Surface& target = all ? surface : part_;
  if (target.Width() != width || target.Height() != height) target = Surface(width, height);
  StretchRows(part, target, scratch_);
  if (place.Mirrored) MirrorHorizontal(target, mirror_);
  if (!all) CopyPart(part_, 0, 0, width, height, surface, left, top);
  painter_.Paint(surface, place, video_.FrameOf(position), {position, video_.SplitFields});
  return true;
}

}  // namespace kinalyx
