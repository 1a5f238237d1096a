#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "distribution/clips/ClipPlan.h"
#include "distribution/clips/ClipScene.h"
#include "platform/media/VideoFile.h"
#include "platform/paint/PixelOps.h"

namespace kinalyx {

/// The pictures of one video of a scene, by the positions of its player, each exact, with what is drawn on it. Used
/// from one thread.
class FilmSource final : public IFilmTimes {
 public:
  /// Fails as VideoFile::Open does.
  static Result<std::unique_ptr<FilmSource>> Open(const SceneVideo& video);

  int Count() const override { return file_->Info().frameCount * (video_.SplitFields ? 2 : 1); }
  double TimeOf(int position) const override;
  int PositionAt(double ms) const override;

  /// Paints a position with its drawings.
  /// @param place    of the whole picture on the surface
  /// @param surface  of the part that is wanted; what the picture does not cover is left black
  /// @return false when the picture could not be had: the surface is left as it was
  bool Paint(int position, const FilmPlace& place, Surface& surface);
  const SceneVideo& Video() const { return video_; }

 private:
  FilmSource(const SceneVideo& video, std::unique_ptr<VideoFile> file)
      : video_(video), file_(std::move(file)), painter_(video.Drawings) {}
  PixelRows Picture(int position);

  SceneVideo video_;
  std::unique_ptr<VideoFile> file_;
  FilmPainter painter_;
  std::vector<std::uint8_t> field_;
  ScaleScratch scratch_;
  Surface part_;  ///< of a picture that covers a part of the surface, or reaches beyond it
  Surface mirror_;
};

}  // namespace kinalyx
