#include "distribution/clips/ClipScene.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "workspace/AnalysisWorkspace.h"
#include "workspace/stage/PlayerPlace.h"
#include "workspace/stage/TakenRate.h"

namespace kinalyx {
namespace {

constexpr int kGap = 4 * kTwipsPerPixel;  // between two windows
constexpr int kStripShare = 4;            // of the scene's height that a film strip takes, as on the stage

SceneVideo TakeVideo(AnalysisWorkspace& analysis, int slot) {
  Slot& at = analysis.Stage().At(slot);
  return {
      .Slot = slot,
      .Path = at.path,
      .Name = NameOfVideo(at.path),
      .Notes = at.data.Notes,
      .Cell = {},
      .Seen = {},
      .Placement = {at.MP->VideoWidth(), at.MP->VideoHeight(), at.data.Wide, at.VideoZoom, at.PanX, at.PanY, at.Fits},
      .Mirrored = at.MP->FlipHorizontal(),
      .SplitFields = at.MP->SplitFields(),
      .ReverseFields = at.MP->ReverseFields(),
      .Drawings = analysis.Tools().FilmOf(slot),
      .Position = at.MP->Position(),
      .Locked = false,
      .TimerRate = analysis.Timer().PositionsPerSecond(slot),
      .TimerZero = analysis.Timer().Zero(slot)};
}

/// All of a picture that is neither zoomed nor panned, in a cell of its own proportions; of any other what its window
/// shows.
void GiveOwnCell(const Slot& slot, SceneVideo& video) {
  const bool moved = slot.VideoZoom != 1 || slot.PanX != 0 || slot.PanY != 0;
  const TwipRect place = PlayerPlace(slot);
  TwipRect cell{0, 0, slot.panel.Width, slot.panel.Height};
  if (!moved) {
    cell.Width = std::max(kTwipsPerPixel, place.Width);
    cell.Height = std::max(kTwipsPerPixel, place.Height);
    video.Placement.Fits = false;
  }
  video.Cell = video.Seen = cell;
}

ClipScene SceneOfOne(AnalysisWorkspace& analysis, int slot) {
  ClipScene scene;
  if (!analysis.Stage().HasVideo(slot)) return scene;
  scene.Videos.push_back(TakeVideo(analysis, slot));
  SceneVideo& video = scene.Videos.front();
  GiveOwnCell(analysis.Stage().At(slot), video);
  scene.Width = video.Cell.Width;
  scene.Height = video.Cell.Height;
  return scene;
}

/// The part of a cell that any of the pictures covers: what is black in all of them is left out.
/// @param margin  to the left and the right of the cell, where they are seen as well
TwipRect Covered(const ClipScene& scene, int width, int height, int margin = 0) {
  int left = width, top = height, right = 0, bottom = 0;
  for (const SceneVideo& video : scene.Videos) {
    const TwipRect place = PlaceVideo(video.Placement, width, height);
    left = std::min(left, std::max(-margin, place.Left));
    top = std::min(top, std::max(0, place.Top));
    right = std::max(right, std::min(width + margin, place.Left + place.Width));
    bottom = std::max(bottom, std::min(height, place.Top + place.Height));
  }
  if (right <= left || bottom <= top) return {0, 0, width, height};
  return {left, top, right - left, bottom - top};
}

/// The windows of the layout, close together; rows and columns without a video are left out.
/// @param cellWidth, cellHeight  of each
void PlaceWindows(ClipScene& scene, const ScreenMode& mode, int cellWidth, int cellHeight) {
  const TwipRect covered = Covered(scene, cellWidth, cellHeight);
  const int width = covered.Width;
  const int height = covered.Height;
  std::array<bool, kSlots> columns{};
  std::array<bool, kSlots> rows{};
  const auto columnOf = [&](const SceneVideo& video) { return (video.Slot - 1) % mode.Columns; };
  const auto rowOf = [&](const SceneVideo& video) { return (video.Slot - 1) / mode.Columns; };
  for (const SceneVideo& video : scene.Videos) {
    columns[static_cast<std::size_t>(columnOf(video))] = true;
    rows[static_cast<std::size_t>(rowOf(video))] = true;
  }
  // The third of three in a triangle stands in the middle beneath the others.
  const bool triangle = mode.Code == "3T";
  if (triangle) columns[0] = columns[1] = true;
  const auto before = [](const std::array<bool, kSlots>& used, int index) {
    return static_cast<int>(std::count(used.begin(), used.begin() + index, true));
  };
  const int across = before(columns, kSlots);
  const int down = before(rows, kSlots);
  scene.Width = across * width + (across - 1) * kGap;
  scene.Height = down * height + (down - 1) * kGap;
  for (SceneVideo& video : scene.Videos) {
    int left = before(columns, columnOf(video)) * (width + kGap);
    if (triangle && rowOf(video) == 1) left = (scene.Width - width) / 2;
    video.Seen = {left, before(rows, rowOf(video)) * (height + kGap), width, height};
    video.Cell = {video.Seen.Left - covered.Left, video.Seen.Top - covered.Top, cellWidth, cellHeight};
  }
}

/// Both pictures about the middle of the scene, which is a stage of two cells side by side; or half of each.
void PlaceMix(ClipScene& scene, const Slot& first, bool split) {
  const int width = first.panel.Width;
  const int height = first.panel.Height;
  const int margin = split ? 0 : width / 2;  // to either side of the cell
  const TwipRect covered = Covered(scene, width, height, margin);
  scene.Height = covered.Height;
  if (!split) {
    scene.Width = covered.Width;
    for (SceneVideo& video : scene.Videos) {
      video.Cell = {-covered.Left, -covered.Top, width, height};
      video.Seen = {0, 0, covered.Width, covered.Height};
    }
    return;
  }
  const int half = width / 2;
  scene.Width = 2 * half;
  for (std::size_t i = 0; i < scene.Videos.size(); ++i) {
    const int left = i == 0 ? 0 : half;
    scene.Videos[i].Cell = {left - width / 4, -covered.Top, width, height};
    scene.Videos[i].Seen = {left, 0, half, covered.Height};
  }
}

void PlaceStrip(ClipScene& scene, AnalysisWorkspace& analysis, const Slot& slot) {
  MultiPicture& strip = analysis.Compare().Strip();
  SceneVideo& video = scene.Videos.front();
  const double wide = std::max(1, slot.MP->ControlWidthPixels());
  const double high = std::max(1, slot.MP->ControlHeightPixels());
  scene.Film = {.Place = {},
                .Left = strip.SourceLeft() / wide,
                .Top = strip.SourceTop() / high,
                .Width = strip.PictureWidth() / wide,
                .Height = strip.PictureHeight() / high,
                .Pictures = strip.PictureCount(),
                .Skip = strip.Skip()};
  const int band = slot.panel.Height / (kStripShare - 1);
  const double across = static_cast<double>(strip.PictureWidth()) / std::max(1, strip.PictureHeight());
  int pictureHeight = band;
  int stripWidth = static_cast<int>(std::lround(across * pictureHeight)) * strip.PictureCount();
  scene.Width = std::max(slot.panel.Width, stripWidth);
  scene.Height = slot.panel.Height + kGap + band;
  scene.Film.Place = {(scene.Width - stripWidth) / 2, 0, stripWidth, pictureHeight};
  video.Cell = video.Seen = {(scene.Width - slot.panel.Width) / 2, band + kGap, slot.panel.Width, slot.panel.Height};
  scene.Shows = ClipScene::Look::Strip;
}

int ScreenPixels(const Slot& slot, int twips) { return SurfacePixels(slot, twips); }

}  // namespace

ClipScene TakeScene(AnalysisWorkspace& analysis, bool allWindows) {
  Stage& stage = analysis.Stage();
  const int current = stage.CurrentWindow;
  if (!stage.HasVideo(current)) return {};
  const CompareModes& compare = analysis.Compare();
  Transparency& mix = analysis.Compare().Transparency();
  ClipScene scene;
  if (!allWindows || stage.Maximized()) {
    scene = SceneOfOne(analysis, current);
  } else if (stage.MultiFrame()) {
    scene = SceneOfOne(analysis, current);
    PlaceStrip(scene, analysis, stage.At(current));
  } else {
    const bool mixed = mix.TransparencyOn();
    const ScreenMode* mode = FindScreenMode(stage.ScreenLayout);
    for (int slot = 1; slot <= kSlots; ++slot) {
      if (!stage.HasVideo(slot) || (mixed ? slot > 2 : !stage.IsShown(slot))) continue;
      if (slot == current) scene.Lead = scene.Videos.size();
      scene.Videos.push_back(TakeVideo(analysis, slot));
      SceneVideo& video = scene.Videos.back();
      const auto together = compare.Locks().LockedWith(current);
      const bool goesAlong = std::ranges::find(together, slot) != together.end();
      const bool byTime = compare.Locks().IsHeldByTime(slot);
      video.Locked = goesAlong && !byTime;
      if (goesAlong && byTime) video.Pace = TakenMs(stage.At(slot)) / stage.MP(slot).PositionTime();
    }
    if (mixed) {
      const bool split = mix.Shown() == ShowOption::SplitScreen;
      if (!split) {
        scene.Shows = ClipScene::Look::Mix;
        scene.Mix = mix.TransScroll();
      }
      PlaceMix(scene, stage.At(scene.Videos.front().Slot), split);
    } else if (scene.Videos.size() == 1 || !mode) {
      scene = SceneOfOne(analysis, current);
    } else {
      const TwipRect panel = stage.Current().panel;
      PlaceWindows(scene, *mode, panel.Width, panel.Height + stage.Current().foot);
    }
  }
  scene.PixelsHigh = ScreenPixels(stage.Current(), scene.Height);
  return scene;
}

ClipScene TakePicture(AnalysisWorkspace& analysis, int slot) {
  ClipScene scene;
  if (!analysis.Stage().HasVideo(slot)) return scene;
  scene.Videos.push_back(TakeVideo(analysis, slot));
  SceneVideo& video = scene.Videos.front();
  const double proportion = ProportionOf(analysis.Stage().At(slot));
  scene.PixelsHigh = std::max(1, video.Placement.VideoHeight);
  scene.Height = scene.PixelsHigh * kTwipsPerPixel;
  scene.Width = static_cast<int>(std::lround(scene.PixelsHigh * proportion)) * kTwipsPerPixel;
  video.Cell = video.Seen = {0, 0, scene.Width, scene.Height};
  video.Placement.Zoom = 1;
  video.Placement.PanX = video.Placement.PanY = 0;
  video.Placement.Fits = false;
  return scene;
}

ClipScene Stacked(ClipScene scene) {
  if (scene.Shows != ClipScene::Look::Windows || scene.Videos.size() < 2 || scene.Proportion() <= 1) return scene;
  // Only where all stand in one row of equal cells.
  const TwipRect first = scene.Videos.front().Seen;
  const bool row = std::ranges::all_of(scene.Videos, [&](const SceneVideo& video) {
    return video.Seen.Top == first.Top && video.Seen.Height == first.Height && video.Seen.Width == first.Width;
  });
  if (!row) return scene;
  int top = 0;
  for (SceneVideo& video : scene.Videos) {
    video.Cell.Left -= video.Seen.Left;
    video.Cell.Top += top - video.Seen.Top;
    video.Seen.Left = 0;
    video.Seen.Top = top;
    top += video.Seen.Height + kGap;
  }
  scene.Width = first.Width;
  scene.Height = top - kGap;
  return scene;
}

}  // namespace kinalyx
