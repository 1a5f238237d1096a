#pragma once

#include <QWidget>

#include "video/AVIControl.h"

namespace kinalyx {

/// The widget of one player: shows its surface and passes the mouse to its input sink. Keys belong to the
/// form that it stands in, so it never takes the focus by itself. Owns the player. The player's size is
/// the widget's in device pixels.
class VideoView : public QWidget, private IPlayerView {
  Q_OBJECT

 public:
  explicit VideoView(PlayerServices& services, QWidget* parent = nullptr);
  ~VideoView() override;

  AVIControl& Control() { return control_; }

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;
  void mouseReleaseEvent(QMouseEvent*) override;
  void mouseDoubleClickEvent(QMouseEvent*) override;

 private:
  void Present(const Surface& picture) override;
  void SetBackColor(Colour colour) override;

  const Surface* picture_ = nullptr;
  QColor backColor_ = Qt::black;
  AVIControl control_;
};

/// The system's mouse button and shift numbers of an event.
int ButtonOf(Qt::MouseButton button);
int ShiftOf(Qt::KeyboardModifiers modifiers);

}  // namespace kinalyx
