#pragma once

#include <string>

#include "core/Settings.h"
#include "drawing/WindowPainter.h"
#include "library/Sidecar.h"
#include "platform/paint/Surface.h"
#include "video/AVIControl.h"

namespace kinalyx {

/// Pictures of videos that need not stand on the stage: opens the file, and paints what its sidecar has drawn on it.
class MomentPictures final : private IFrameInterface {
 public:
  /// All outlives it.
  MomentPictures(PlayerServices& services, const Settings& settings) : services_(services), settings_(settings) {}

  /// What is known of a video: its drawings, marks and fields.
  SlotData DataOf(const std::string& path, const VideoInfo& info) const;
  /// The picture of a moment at the video's own size, or somewhat smaller; empty where the video cannot be opened.
  /// The moment of a video that has become shorter is its last one.
  Surface PictureAt(const std::string& path, VideoMoment moment);
  /// The same of a mark: of the one with this name, or for an empty name of the first. Where there is none, of the
  /// position at this part of the video, 0 to 1.
  Surface PictureAtMark(const std::string& path, const std::string& mark, double part);

 private:
  bool Open(AVIControl& player, const std::string& path);
  Surface Show(AVIControl& player, VideoMoment moment);
  void PreDrawFrame(Canvas& hDC, int ID) override;
  void Signal(int, int) override {}
  void Notify(int, int) override {}

  PlayerServices& services_;
  const Settings& settings_;
  SlotData data_;
  WindowPainter painter_;
  int frame_ = 0;  ///< that is being shown
};

}  // namespace kinalyx
