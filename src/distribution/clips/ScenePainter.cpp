#include "distribution/clips/ScenePainter.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "distribution/clips/WordPlates.h"
#include "platform/files/Tr.h"
#include "platform/paint/Blend.h"
#include "workspace/transport/VideoTimer.h"

namespace kinalyx {
namespace {

constexpr Colour kGround = Rgb(12, 14, 18);
constexpr int kLinesOfScene = 30;  // of letters between top and foot
constexpr int kSmallestLetters = 12;
constexpr int kMostNoteLines = 5;
constexpr int kMostRun = 8;  // positions from one picture of a clip to the next

}  // namespace

Result<std::unique_ptr<ScenePainter>> ScenePainter::Open(const ClipScene& scene, const SceneWords& words) {
  if (scene.Videos.empty()) return Outcome::Failed(Tr("There is no video to show."));
  std::unique_ptr<ScenePainter> painter(new ScenePainter(scene, words));
  for (const SceneVideo& video : scene.Videos) {
    auto source = FilmSource::Open(video);
    if (!source) return Outcome(source.Kind(), Tr("\"{}\" cannot be opened any more.", video.Name));
    painter->sources_.push_back(std::move(*source));
  }
  return painter;
}

void ScenePainter::SetWords(const SceneWords& words) {
  words_ = words;
  for (Window& window : windows_) {
    window.HasWords = false;
    window.Words = Layer();
  }
}

std::vector<const IFilmTimes*> ScenePainter::Times() const {
  std::vector<const IFilmTimes*> times;
  for (const auto& source : sources_) times.push_back(source.get());
  return times;
}

/// Edges are rounded, not sizes, so that what meets in twips meets in pixels.
ScenePainter::Box ScenePainter::BoxOf(const TwipRect& place) const {
  const auto edge = [this](int twips) { return static_cast<int>(std::lround(twips * pixels_)); };
  const int left = edge(place.Left);
  const int top = edge(place.Top);
  return {left_ + left, top_ + top, edge(place.Left + place.Width) - left, edge(place.Top + place.Height) - top};
}

int ScenePainter::Letters() const {
  return std::max(kSmallestLetters, static_cast<int>(scene_.Height * pixels_) / kLinesOfScene);
}

void ScenePainter::Fit(int width, int height) {
  if (width == width_ && height == height_) return;
  width_ = width;
  height_ = height;
  pixels_ = std::min(static_cast<double>(width) / scene_.Width, static_cast<double>(height) / scene_.Height);
  left_ = (width - static_cast<int>(std::lround(scene_.Width * pixels_))) / 2;
  top_ = (height - static_cast<int>(std::lround(scene_.Height * pixels_))) / 2;
  windows_.clear();
  for (const auto& source : sources_) {
    const SceneVideo& video = source->Video();
    const Box seen = BoxOf(video.Seen);
    const Box cell = BoxOf(video.Cell);
    VideoPlacement placement = video.Placement;
    placement.PanX *= pixels_ * kTwipsPerPixel;
    placement.PanY *= pixels_ * kTwipsPerPixel;
    const TwipRect place = PlaceVideo(placement, cell.Width * kTwipsPerPixel, cell.Height * kTwipsPerPixel);
    const auto pixels = [](int twips) {
      return static_cast<int>(std::lround(static_cast<double>(twips) / kTwipsPerPixel));
    };
    const int left = pixels(place.Left);
    const int top = pixels(place.Top);
    windows_.push_back(
        {seen,
         {left + cell.Left - seen.Left, top + cell.Top - seen.Top, pixels(place.Left + place.Width) - left,
          pixels(place.Top + place.Height) - top, video.Mirrored},
         Surface(std::max(1, seen.Width), std::max(1, seen.Height)),
         Layer(),
         false});
  }
  strip_ = Surface();
  stripLast_ = -1;
}

bool ScenePainter::PaintWindow(std::size_t index, int position) {
  Window& window = windows_[index];
  return sources_[index]->Paint(position, window.Place, window.Picture);
}

bool ScenePainter::Paint(const std::vector<int>& positions, Surface& target) {
  if (target.Empty() || positions.size() != sources_.size()) return false;
  Fit(target.Width(), target.Height());
  bool whole = true;
  for (std::size_t i = 0; i < sources_.size(); ++i) whole = PaintWindow(i, positions[i]) && whole;
  target.Clear(kGround);
  if (scene_.Shows == ClipScene::Look::Mix && windows_.size() == 2) {
    Surface mix(windows_[0].Picture.Width(), windows_[0].Picture.Height());
    MixPictures({windows_[0].Picture}, {windows_[1].Picture}, scene_.Mix, mix);
    CopyPart(mix, 0, 0, mix.Width(), mix.Height(), target, windows_[0].Seen.Left, windows_[0].Seen.Top);
  } else {
    for (const Window& window : windows_)
      CopyPart(window.Picture, 0, 0, window.Picture.Width(), window.Picture.Height(), target, window.Seen.Left,
               window.Seen.Top);
  }
  if (scene_.Shows == ClipScene::Look::Strip) PaintStrip(positions[scene_.Lead], target);
  for (std::size_t i = 0; i < sources_.size(); ++i) PaintWords(i, positions[i], target);
  return whole;
}

/// The strip begins with the pictures up to the first one of the clip, or, at the beginning of the video, with the
/// first ones that it can hold; from its last one on it runs with the clip.
void ScenePainter::PaintStrip(int position, Surface& target) {
  const ClipScene::Strip& film = scene_.Film;
  if (film.Pictures < 1 || film.Width <= 0 || film.Height <= 0) return;
  const Box band = BoxOf(film.Place);
  stripPicture_ = band.Width / film.Pictures;
  if (stripPicture_ < 1 || band.Height < 1) return;
  FilmSource& source = *sources_[scene_.Lead];
  const int width = static_cast<int>(std::lround(stripPicture_ / film.Width));
  const int height = static_cast<int>(std::lround(band.Height / film.Height));
  const FilmPlace place{-static_cast<int>(std::lround(film.Left * width)),
                        -static_cast<int>(std::lround(film.Top * height)), width, height, source.Video().Mirrored};
  if (stripPart_.Width() != stripPicture_ || stripPart_.Height() != band.Height)
    stripPart_ = Surface(stripPicture_, band.Height);
  const auto put = [&](int at, int index) {
    source.Paint(at, place, stripPart_);
    CopyPart(stripPart_, 0, 0, stripPicture_, band.Height, strip_, index * stripPicture_, 0);
  };
  const bool runs = position > stripLast_ && position <= stripLast_ + std::max(film.Skip, kMostRun);
  const bool stands = position >= stripFirst_ && position <= stripLast_;
  if (strip_.Empty() || (!runs && !stands)) {
    strip_ = Surface(stripPicture_ * film.Pictures, band.Height);
    const int reach = (film.Pictures - 1) * film.Skip;
    stripFirst_ = std::max(0, position - reach);
    for (int i = 0; i < film.Pictures; ++i)
      if (const int at = stripFirst_ + i * film.Skip; at < source.Count()) put(at, i);
    stripLast_ = stripFirst_ + reach;
  } else if (runs) {
    ShiftLeft(strip_, stripPicture_);
    put(position, film.Pictures - 1);
    stripFirst_ = stripLast_ = position;
  }
  CopyPart(strip_, 0, 0, strip_.Width(), strip_.Height(), target, band.Left, band.Top);
}

/// What stays the same on every picture of a window, on a surface of the window's own size.
Layer ScenePainter::WordsOf(std::size_t index, int width, int height) const {
  const SceneVideo& video = sources_[index]->Video();
  return Layer::Record(width, height, [&](Canvas& canvas) {
    const int letters = Letters();
    if (words_.Names) PaintPlateAt(canvas, {letters / 2, letters / 2}, video.Name, letters);
    if (!words_.Notes) return;
    const std::vector<std::string> lines = WrapWords(video.Notes, width - 2 * letters, letters, kMostNoteLines);
    int y = height - letters / 2 - static_cast<int>(lines.size()) * PlateHeight(letters);
    for (const std::string& line : lines) {
      PaintPlateAt(canvas, {letters / 2, y}, line, letters);
      y += PlateHeight(letters);
    }
  });
}

void ScenePainter::PaintWords(std::size_t index, int position, Surface& target) {
  Window& window = windows_[index];
  const SceneVideo& video = sources_[index]->Video();
  // In a mix the second name would lie on the first.
  if (scene_.Shows == ClipScene::Look::Mix && index != scene_.Lead) return;
  const int width = window.Picture.Width();
  const int height = window.Picture.Height();
  if ((words_.Names || words_.Notes) && !std::exchange(window.HasWords, true))
    window.Words = WordsOf(index, width, height);
  if (!window.Words.Empty()) {
    Surface& picture = window.Picture;
    CopyPart(target, window.Seen.Left, window.Seen.Top, width, height, picture, 0, 0);
    window.Words.LayOver(picture);
    CopyPart(picture, 0, 0, width, height, target, window.Seen.Left, window.Seen.Top);
  }
  if (!words_.Timer) return;
  const double seconds = video.TimerRate > 0 ? position / video.TimerRate : sources_[index]->TimeOf(position) / 1000;
  const int letters = Letters();
  Canvas canvas(target);
  const std::string reading = VideoTimer::Reading(std::floor(seconds * 100 + 0.5) / 100 - video.TimerZero);
  const int wide = PlateWidth(reading, letters);
  PaintPlateAt(canvas, {window.Seen.Left + width - wide - letters / 2, window.Seen.Top + letters / 2}, reading,
               letters);
}

}  // namespace kinalyx
