#pragma once

#include <string>
#include <vector>

#include "capture/CaptureData.h"

namespace kinalyx {

/// A player in which a recording is looked at before it is kept; frames count from 0.
class IReviewPlayer {
 public:
  virtual ~IReviewPlayer() = default;
  /// False when it cannot be opened.
  virtual bool Load(const std::string& path) = 0;
  virtual void Unload() = 0;
  virtual int CurrentFrame() = 0;
  virtual int FrameCount() = 0;
  virtual void ShowFrame(int frame) = 0;
  /// Of what is loaded.
  virtual RecordingFacts Facts() = 0;
};

/// What a session asks of its page, and tells it.
class ICapturePage {
 public:
  virtual ~ICapturePage() = default;
  /// Phase, status, what is enabled: anything that the page shows of the session.
  virtual void CaptureChanged() = 0;
  /// A camera has a new picture to show; 0 or 1.
  virtual void LivePictureCame(int camera) = 0;
  /// `VidPlayer` and `TestPlayer`.
  virtual IReviewPlayer& ReviewPlayer(int camera) = 0;
};

/// What leads from the capture page elsewhere.
class ICaptureWays {
 public:
  virtual ~ICaptureWays() = default;
  /// Opens videos in the analysis section, two of them locked, and goes there; false when that did not open.
  virtual bool OpenInAnalysis(const std::vector<std::string>& paths) = 0;
  /// Program Setup, section Capture.
  virtual void GoToCaptureSetup() = 0;
  /// The window of the delayed mirror, which takes the cameras: the capture page is left for it.
  virtual void OpenMirror() = 0;
};

}  // namespace kinalyx
