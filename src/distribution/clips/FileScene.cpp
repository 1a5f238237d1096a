#include "distribution/clips/FileScene.h"

#include <algorithm>
#include <cmath>

#include "library/Sidecar.h"
#include "library/Study.h"
#include "library/VideoNames.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {
namespace {

double PositionsPerSecond(const VideoInfo& video, const SlotData& data) {
  double rate = data.Study.TrueRate;
  if (rate <= 0 && data.RealFrameRate > 0) rate = data.RealFrameRate;
  if (rate <= 0 && video.captureRate > 0) rate = video.captureRate;
  if (rate <= 0 && !video.rateVaries && video.scale > 0)
    rate = static_cast<double>(video.rate) / static_cast<double>(video.scale);
  return data.SplitFields ? 2 * rate : rate;
}

FilmDrawings DrawingsIn(const SlotData& data, const FilmLook& look, double proportion, double perSecond) {
  FilmDrawings film;
  film.Look = look.Shapes;
  film.Labels = look.Labels;
  film.Scale.Width = data.PictureWidth;
  film.Scale.Height = data.PictureHeight;
  film.Scale.Proportion = proportion;
  film.Scale.PerSecond = perSecond;
  film.Scale.FromUpright = look.FromUpright;
  film.Scale.Speed = look.Speed;
  if (const auto& ruler = data.Study.Ruler; ruler && ruler->Height > 0) {
    film.Scale.PixelsPerInch = ruler->PixelsPerInch * data.PictureHeight / ruler->Height;
    film.Scale.Unit = ruler->Unit;
  }
  for (const Shape& shape : DrawingsOf(data.Shapes))
    if (shape.Locked) film.Drawings.push_back({shape, data.PictureWidth, data.PictureHeight});
  const auto isPath = [](const ExactDrawing& drawing) { return drawing.Shape.Kind == kSwingPath; };
  film.Look.PathHighlight = std::ranges::any_of(film.Drawings, isPath);
  return film;
}

}  // namespace

FilmLook LookIn(const Settings& settings) {
  FilmLook look;
  look.Shapes = {
      .CadWidth = settings.CadWidth, .CadOutline = settings.CadOutline, .Soft = settings.KeysAndTools == kEditorKeys};
  look.Labels = settings.ShapeLabels != 0;
  look.FromUpright = settings.AngleFrom == kFromUpright;
  look.Speed = settings.SpeedUnit;
  look.ToolColours.assign(settings.NewColors.begin(), settings.NewColors.end());
  return look;
}

Result<ClipScene> SceneOfFile(const std::string& path, const FilmLook& look) {
  // Opened, and not only asked: what cannot be decoded must not come to a student.
  auto file = VideoFile::Open(path);
  if (!file) return file.Failure();
  const VideoInfo& info = (*file)->Info();
  SlotData data = ReadVideoData(SidecarPath(path), info, look.ToolColours);
  ReadStudy(StudyPath(path), data);

  SceneVideo video;
  video.Path = path;
  video.Name = VideoName(path);
  video.Notes = data.Notes;
  video.Placement = {.VideoWidth = info.width, .VideoHeight = info.height, .Wide = data.Wide};
  video.SplitFields = data.SplitFields;
  video.ReverseFields = data.ReverseFields;
  video.TimerRate = data.Study.TrueRate > 0 ? data.Study.TrueRate * (data.SplitFields ? 2 : 1) : 0;
  const double proportion =
      data.Wide || info.height <= 0 ? kWideProportion : static_cast<double>(info.width) / info.height;
  video.Drawings = DrawingsIn(data, look, proportion, PositionsPerSecond(info, data));

  ClipScene scene;
  scene.PixelsHigh = std::max(2, info.height);
  scene.Height = scene.PixelsHigh * kTwipsPerPixel;
  scene.Width = static_cast<int>(std::lround(scene.PixelsHigh * proportion)) * kTwipsPerPixel;
  video.Cell = video.Seen = {0, 0, scene.Width, scene.Height};
  scene.Videos.push_back(std::move(video));
  return scene;
}

bool HasDrawings(const ClipScene& scene) {
  return std::ranges::any_of(scene.Videos, [](const SceneVideo& video) { return !video.Drawings.Drawings.empty(); });
}

}  // namespace kinalyx
