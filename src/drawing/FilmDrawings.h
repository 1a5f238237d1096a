#pragma once

#include <optional>
#include <vector>

#include "drawing/LabelPainter.h"
#include "drawing/ShapeLabels.h"
#include "drawing/WindowPainter.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// What is drawn on a video and how it looks, as values: it can be painted over the video's frames at any size, on any
/// thread, and does not follow what the user draws meanwhile.
struct FilmDrawings {
  std::vector<ExactDrawing> Drawings;  ///< first to last, each in the picture of its own size, not mirrored
  GridLook Grid;
  ShapeLook Look;  ///< without a log
  bool Labels = false;
  /// Of a picture of Scale.Width x Scale.Height, in which the window showed it; its pens are those of that picture.
  /// `Now` is left to the painter.
  MeasureScale Scale;
};

/// Where the picture of a frame stands on the surface that shows it.
struct FilmPlace {
  int Left = 0;  ///< pixels; below 0 where the picture reaches beyond the surface
  int Top = 0;
  int Width = 0;  ///< of the whole picture
  int Height = 0;
  bool Mirrored = false;

  friend bool operator==(const FilmPlace&, const FilmPlace&) = default;
};

/// Paints the drawings of one video over frame after frame. Lines, letters and figures keep their share of the picture,
/// so that a clip of any size looks as the window did.
class FilmPainter {
 public:
  explicit FilmPainter(FilmDrawings drawings) : film_(std::move(drawings)) {}

  /// @param surface  holds the frame already
  /// @param place    of the frame's picture on it
  /// @param frame    counts from 0; whose drawings are seen
  /// @param now      the player's position, for speeds along paths
  void Paint(Surface& surface, const FilmPlace& place, int frame, const PathTime& now);
  const FilmDrawings& Film() const { return film_; }

 private:
  void Fit(const FilmPlace& place);

  FilmDrawings film_;
  std::optional<FilmPlace> fitted_;  ///< for which the rest is
  double grown_ = 1;                 ///< by which the picture is larger than in its window
  std::vector<Shape> seen_;          ///< the shapes as the window has them, beside which the figures are placed
  std::vector<Shape> shapes_;        ///< and on the surface
  std::vector<Colour> colours_;
  std::vector<std::uint8_t> opacities_;
  ShapeLook look_;
  WindowPainter painter_;
  LabelPainter labels_;
};

}  // namespace kinalyx
