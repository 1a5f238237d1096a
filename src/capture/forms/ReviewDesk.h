#pragma once

#include <array>
#include <memory>

#include <QObject>

#include "capture/ICaptureViews.h"
#include "video/PlayerServices.h"

class QLabel;
class QWidget;

namespace kinalyx {

class Button;
class CaptureSession;
class PreviewPlayer;
class TrimSlider;

/// What has been recorded, before it is kept: one or two videos side by side, and the bar beneath on which they are
/// played, stepped through and cut. Its widgets belong to the page; the session outlives it.
class ReviewDesk : public QObject {
  Q_OBJECT

 public:
  /// The keys of the review work anywhere on the page, while it is on.
  ReviewDesk(PlayerServices& services, CaptureSession& session, QWidget& page);
  ~ReviewDesk() override;

  QWidget* Videos() { return videos_; }
  QWidget* Bar() { return bar_; }
  IReviewPlayer& Player(int camera);

  /// A recording is under review, or no more.
  void SetOn(bool on);
  void ShowSecond(bool shown);
  /// Shows what the session says of the recording.
  void Show();
  /// What would be kept, as far as the ends are chosen.
  void Play();
  void FocusBar();

 signals:
  void StartWanted();
  void EndWanted();
  /// Follows SetOn.
  void Switched(bool on);

 private:
  class Video;

  QWidget* MakeVideos(PlayerServices& services);
  QWidget* MakeBar();
  void TakeKeys(QWidget& page);
  int Cameras() const;
  int Frame() const;
  void Seek(int frame);

  CaptureSession& session_;
  bool on_ = false;
  std::array<PreviewPlayer*, 2> players_{};
  std::array<std::unique_ptr<Video>, 2> reviewed_;
  Button* play_ = nullptr;
  TrimSlider* VidScroll_ = nullptr;
  QLabel* frame_ = nullptr;
  QWidget* videos_;  ///< these two last: making them fills all above
  QWidget* bar_;
};

}  // namespace kinalyx
