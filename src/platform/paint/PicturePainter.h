#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/paint/Fonts.h"
#include "platform/paint/Picture.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// In pixels; y downward.
struct PictureBox {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

struct PictureLook {
  double opacity = 1;                 ///< 0 clear to 1
  std::optional<Colour> transparent;  ///< pixels of this colour are left out
};

/// Lays pictures and text on a surface or another picture, turned and shifted as told. The target is
/// not owned and must outlive the painter.
class PicturePainter {
 public:
  explicit PicturePainter(Surface& target);
  explicit PicturePainter(Picture& target);
  PicturePainter(PicturePainter&&) noexcept;
  PicturePainter& operator=(PicturePainter&&) noexcept;
  ~PicturePainter();

  /// Later shifts and turns (degrees, clockwise) apply first, as seen from what is drawn.
  void Translate(double dx, double dy);
  void Rotate(double degrees);
  void ResetTransform();
  /// Whether scaled and turned pictures are interpolated; from the start they are.
  void SetSmooth(bool smooth);
  /// Whether letters have soft edges; from the start they have.
  void SetSoftText(bool soft);

  /// False when the target is empty or cannot be painted on (a picture with a palette).
  bool Clear(Argb colour);
  /// Stretches the part `from` of a picture over `to`; false also when either has no extent.
  bool Draw(const Picture& picture, const PictureBox& to, const PictureBox& from, const PictureLook& look = {});
  /// Text with its top left corner at (x, y), lines apart at '\n'; with a `box` of some width it is
  /// wrapped to it. False also without fonts.
  bool Text(const std::string& text, const FontFace& face, Argb colour, const PictureBox& box);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace kinalyx
