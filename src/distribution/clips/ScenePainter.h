#pragma once

#include <memory>
#include <string>
#include <vector>

#include "distribution/clips/ClipPlan.h"
#include "distribution/clips/ClipScene.h"
#include "distribution/clips/FilmSource.h"
#include "platform/paint/Layer.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// What a clip tells beside its pictures.
struct SceneWords {
  bool Names = false;
  bool Timer = false;
  bool Notes = false;
};

/// Composes the pictures of a scene, at any size, as its windows would show them. Used from one thread.
class ScenePainter {
 public:
  /// Opens the videos. Fails with the first that cannot be opened, by its name.
  static Result<std::unique_ptr<ScenePainter>> Open(const ClipScene& scene, const SceneWords& words);

  /// Other words beside the same pictures.
  void SetWords(const SceneWords& words);
  /// For PlanClip.
  std::vector<const IFilmTimes*> Times() const;
  /// Paints the scene in the middle of `target`, as large as it fits, with the videos at these positions. False when a
  /// picture could not be had.
  bool Paint(const std::vector<int>& positions, Surface& target);
  const ClipScene& Scene() const { return scene_; }

 private:
  ScenePainter(const ClipScene& scene, const SceneWords& words) : scene_(scene), words_(words) {}

  /// A rectangle of pixels.
  struct Box {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
  };
  /// What is known of a video while the size stays.
  struct Window {
    Box Seen;         ///< on the target
    FilmPlace Place;  ///< on a surface of the size of `Seen`
    Surface Picture;
    Layer Words;  ///< name and notes
    bool HasWords = false;
  };

  Box BoxOf(const TwipRect& place) const;
  void Fit(int width, int height);
  bool PaintWindow(std::size_t index, int position);
  void PaintWords(std::size_t index, int position, Surface& target);
  void PaintStrip(int position, Surface& target);
  Layer WordsOf(std::size_t index, int width, int height) const;
  int Letters() const;

  ClipScene scene_;
  SceneWords words_;
  std::vector<std::unique_ptr<FilmSource>> sources_;
  std::vector<Window> windows_;
  int width_ = 0;  ///< of the targets for which the windows are
  int height_ = 0;
  double pixels_ = 0;  ///< of a twip
  int left_ = 0;       ///< of the scene on the target
  int top_ = 0;
  Surface strip_;
  int stripPicture_ = 0;  ///< pixels of the width of one
  int stripFirst_ = 0;    ///< positions of its first and its last picture, while it has not begun to run
  int stripLast_ = -1;
  Surface stripPart_;
};

}  // namespace kinalyx
