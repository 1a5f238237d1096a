#pragma once

#include <string>
#include <vector>

#include "platform/paint/Geometry.h"
#include "platform/paint/PixelOps.h"
#include "platform/paint/Surface.h"
#include "workspace/compare/CompareModes.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// Pictures of what stands on the stage, in the pixels of the screen, with drawings and figures and without panels,
/// bars and names. Asking for one ends a running play: what comes out is the exact picture of the position that is
/// shown.
class StagePictures {
 public:
  /// Between the windows, and beside a picture that does not fill its own.
  static constexpr Colour kPaperWhite = Rgb(255, 255, 255);

  StagePictures(Stage& stage, CompareModes& compare) : stage_(stage), compare_(compare) {}

  /// The picture of a window as its cell shows it: of one that reaches beyond the cell the part that is seen. Empty
  /// for a window without a video.
  Surface Window(int slot);
  /// The picture of a window with all that reaches beyond its cell. Empty for a window without a video.
  Surface Whole(int slot);
  /// The whole stage in its proportions: windows in their places, or the mix, or the film above its video, and the
  /// piece that was carved over them.
  Surface All();

  /// A picture without the white rows above and below what is in it.
  static Surface WithoutWhite(const Surface& picture);

  /// The windows with a video that are in sight, in their order.
  std::vector<int> Shown() const;
  /// The part of `All` that the cells of these windows take; a width of 0 without any.
  struct Part {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
  };
  Part PartOf(const std::vector<int>& slots) const;

 private:
  void Settle();
  void Settle(int slot);
  Surface Cut(int slot) const;
  Surface Grid() const;
  void AddFilm(Surface& grid);
  /// Pixels of surfaces to one pixel of the layout, on the present screen.
  double Ratio() const;

  Stage& stage_;
  CompareModes& compare_;
  ScaleScratch scratch_;
};

}  // namespace kinalyx
