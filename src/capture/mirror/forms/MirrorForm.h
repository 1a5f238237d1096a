#pragma once

#include <QTimer>
#include <QWidget>
#include <array>
#include <functional>
#include <memory>

#include "capture/mirror/MirrorSession.h"

namespace kinalyx {

class MirrorBar;
class MirrorView;
class ScreenAwake;

/// The window of the delayed mirror: nothing but pictures, and a bar that comes with the mouse and goes by itself.
class MirrorForm : public QWidget, private IMirrorView {
  Q_OBJECT

 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    CaptureSetup& setup;
    VideoNaming& naming;
    const LastStudentInfo& remembered;
    std::shared_ptr<IPost> post;
    std::function<std::int64_t()> now;  ///< nanoseconds of CLOCK_MONOTONIC
    std::function<std::unique_ptr<IGraph>(IGraphEvents&)> makeGraph;
    MirrorSession::On on = MirrorSession::On::Threads;
  };
  /// All of it outlives the window.
  explicit MirrorForm(Parts parts);
  ~MirrorForm() override;

  /// Shows the window where it was last, and has the cameras come up; brings it to the front when it is open.
  void Open();
  MirrorSession& Session() { return *session_; }

 signals:
  /// The window has been opened, or closed.
  void OpenChanged(bool open);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent*) override;
  bool focusNextPrevChild(bool) override { return false; }  ///< Tab goes from picture to picture
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  class Toast;

  void PlaceViews();
  void PlaceBar();
  void WakeBar();
  void RestBar();
  void ToggleFullScreen();
  void FillScreen(int index);
  void ShowAtPlace();
  void NotePlace();

  void MirrorChanged() override;
  void PanePictureCame(int pane) override;

  IHost& host_;
  WorkingFiles files_;
  JobRunner jobs_;
  std::unique_ptr<MirrorSession> session_;
  std::array<MirrorView*, kMostPanes> views_{};
  MirrorBar* bar_ = nullptr;
  Toast* toast_ = nullptr;
  std::unique_ptr<ScreenAwake> awake_;  ///< as long as it is open
  QTimer rest_;
  int shownPanes_ = 0;
};

}  // namespace kinalyx
