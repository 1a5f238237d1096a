#include "workspace/pictures/StagePictures.h"

#include <algorithm>
#include <cmath>

#include "platform/paint/Blend.h"
#include "workspace/stage/PlayerPlace.h"

namespace kinalyx {
namespace {

constexpr Colour kFilmGround = Rgb(0, 0, 0);  // beneath and beside the film
constexpr int kFilmTop = 6;                   // pixels of the layout above it

/// The black beside and around the pictures of the mix.
void WhitenBorders(Surface& mix) {
  int left = mix.Width(), right = 0, top = mix.Height(), bottom = 0;
  for (int y = 0; y < mix.Height(); ++y) {
    for (int x = 0; x < mix.Width(); ++x) {
      if (mix.Pixel(x, y) == 0) continue;
      left = std::min(left, x);
      right = std::max(right, x + 1);
      top = std::min(top, y);
      bottom = y + 1;
    }
  }
  const Surface before = mix;
  mix.Clear(StagePictures::kPaperWhite);
  if (right > left) CopyPart(before, left, top, right - left, bottom - top, mix, left, top);
}

int Pixels(double twips, double ratio) { return static_cast<int>(std::lround(twips * ratio / kTwipsPerPixel)); }

}  // namespace

std::vector<int> StagePictures::Shown() const {
  std::vector<int> shown;
  for (int slot = 1; slot <= kSlots; ++slot)
    if (stage_.IsShown(slot) && stage_.HasVideo(slot)) shown.push_back(slot);
  return shown;
}

double StagePictures::Ratio() const {
  double ratio = 1;
  for (const int slot : Shown()) ratio = std::max(ratio, PixelRatio(stage_.At(slot)));
  return ratio;
}

/// Nothing moves any more, and no stand-in is taken for the picture.
void StagePictures::Settle(int slot) {
  AVIControl& player = stage_.MP(slot);
  if (player.IsPlaying()) player.StopPlay();
  if (player.PictureIsExact()) return;  // also what a strobe has composed, which another drawing would lose
  player.setExactPictures(true);
  player.setExactPictures(false);
}

void StagePictures::Settle() {
  compare_.Locks().StopTogether();
  for (const int slot : Shown()) Settle(slot);
}

Surface StagePictures::Window(int slot) {
  if (!stage_.HasVideo(slot)) return {};
  compare_.Locks().StopTogether();
  Settle(slot);
  return Cut(slot);
}

Surface StagePictures::Whole(int slot) {
  if (!stage_.HasVideo(slot)) return {};
  compare_.Locks().StopTogether();
  Settle(slot);
  return stage_.MP(slot).Picture();
}

Surface StagePictures::Cut(int slot) const {
  const Slot& at = stage_.At(slot);
  const Surface& picture = at.MP->Picture();
  const POINTAPI corner = PlayerCorner(at);
  const int left = std::max(0, -corner.x);
  const int top = std::max(0, -corner.y);
  const int right = std::min(picture.Width(), SurfacePixels(at, at.panel.Width) - corner.x);
  const int bottom = std::min(picture.Height(), SurfacePixels(at, at.panel.Height) - corner.y);
  Surface seen(right - left, bottom - top);  // empty where nothing is
  if (!seen.Empty()) CopyPart(picture, left, top, seen.Width(), seen.Height(), seen, 0, 0);
  return seen;
}

Surface StagePictures::All() {
  Settle();
  Surface all;
  if (compare_.Transparency().TransparencyOn()) {
    compare_.Transparency().CMDDISAct();
    all = compare_.Transparency().Mix();
    WhitenBorders(all);
  } else {
    all = Grid();
    if (stage_.MultiFrame()) AddFilm(all);
  }
  const Carve& carve = compare_.Carving();
  if (carve.Shown() && carve.Floating() && !carve.Piece().Empty()) {
    const Surface& piece = carve.Piece();
    CopyPart(piece, 0, 0, piece.Width(), piece.Height(), all, carve.PieceCorner().x, carve.PieceCorner().y);
  }
  return all;
}

Surface StagePictures::Grid() const {
  const double ratio = Ratio();
  Surface grid(Pixels(stage_.PanelWidth(), ratio), Pixels(stage_.PanelHeight(), ratio));
  if (grid.Empty()) return grid;
  grid.Clear(stage_.MultiFrame() ? kFilmGround : kPaperWhite);
  for (const int slot : Shown()) {
    const Slot& at = stage_.At(slot);
    const Surface seen = Cut(slot);
    const POINTAPI corner = PlayerCorner(at);
    CopyPart(seen, 0, 0, seen.Width(), seen.Height(), grid,
             Pixels(at.cell.Left + at.panel.Left, ratio) + std::max(0, corner.x),
             Pixels(at.cell.Top + at.panel.Top, ratio) + std::max(0, corner.y));
  }
  return grid;
}

/// The film lies across the whole width: on paper it has no buttons beside it.
void StagePictures::AddFilm(Surface& grid) {
  const Surface& strip = compare_.Strip().Strip();
  if (strip.Empty() || grid.Empty()) return;
  const double ratio = Ratio();
  const int room = static_cast<int>(MultiPicture::kStripPixels * ratio);
  const double scale = std::min(static_cast<double>(room) / strip.Height(), double{1.0} * grid.Width() / strip.Width());
  Surface film(std::max(1, static_cast<int>(strip.Width() * scale)),
               std::max(1, static_cast<int>(strip.Height() * scale)));
  if (!StretchRows(RowsOf(strip), film, scratch_)) return;
  CopyPart(film, 0, 0, film.Width(), film.Height(), grid, (grid.Width() - film.Width()) / 2,
           static_cast<int>(kFilmTop * ratio) + (room - film.Height()) / 2);
}

Surface StagePictures::WithoutWhite(const Surface& picture) {
  const auto white = [&](int y) {
    const std::uint8_t* row = picture.Row(y);
    return std::all_of(row, row + picture.Stride(), [](std::uint8_t byte) { return byte == 255; });
  };
  int top = 0;
  int bottom = picture.Height();
  while (top < bottom && white(top)) ++top;
  while (bottom > top && white(bottom - 1)) --bottom;
  Surface cut(picture.Width(), bottom - top);
  if (cut.Empty()) return picture;
  CopyPart(picture, 0, top, cut.Width(), cut.Height(), cut, 0, 0);
  return cut;
}

StagePictures::Part StagePictures::PartOf(const std::vector<int>& slots) const {
  if (slots.empty()) return {};
  int left = INT32_MAX, top = INT32_MAX, right = 0, bottom = 0;
  for (const int slot : slots) {
    const TwipRect& cell = stage_.At(slot).cell;
    left = std::min(left, cell.Left);
    top = std::min(top, cell.Top);
    right = std::max(right, cell.Left + cell.Width);
    bottom = std::max(bottom, cell.Top + cell.Height);
  }
  const double ratio = Ratio();
  return {Pixels(left, ratio), Pixels(top, ratio), Pixels(right - left, ratio), Pixels(bottom - top, ratio)};
}

}  // namespace kinalyx
