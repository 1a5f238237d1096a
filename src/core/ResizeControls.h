#pragma once

namespace kinalyx {

/// The growth of the fonts for a form whose height grows by `heightRatio`: the same, but from 1.6 on only 1.5.
/// A window that is twice as high is there for larger pictures, not for letters of twice the size.
float FontRatioOf(float heightRatio);

/// Follows the size of the main form. The forms are designed on 800 x 600 pixels; each new size gives the
/// ratios to the one before, and the text size that all forms wear.
class ResizeControls {
 public:
  static constexpr int kDesignWidth = 800;
  static constexpr int kDesignHeight = 600;

  /// Growth in the last change of size, as ratios of the new size to the old; 1 before the first change.
  float HeightRatio = 1;
  float WidthRatio = 1;
  float FontRatio = 1;

  /// The main form has this size now, in logical pixels. An empty size, of a window put away, changes nothing.
  void Resize(int width, int height);

  /// Text of the forms in logical pixels, never less than can be read with ease. Worked out from the design
  /// size, so that it depends on where the window has come to and not on the way it took. A window that is
  /// narrower than the design's 4 : 3 has the text of one that is as wide and less high: words need width.
  int TextPixels() const;

 private:
  int width_ = kDesignWidth;
  int height_ = kDesignHeight;
};

}  // namespace kinalyx
