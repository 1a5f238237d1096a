#pragma once

#include <QWidget>

#include "platform/graph/IGraph.h"

namespace kinalyx {

/// The window of a camera: its live picture as large as it fits, or words where there is none, and over it a badge
/// while it is recorded.
class LiveView : public QWidget {
  Q_OBJECT

 public:
  explicit LiveView(const QString& name, QWidget* parent = nullptr);

  void ShowPicture(LivePicture picture);
  /// In the place of a picture; empty for none.
  void SetWords(const QString& words);
  /// Over the picture; empty for none.
  void SetBadge(const QString& badge);
  /// In the corner: which camera it is; empty for none.
  void SetCaption(const QString& caption);

  QSize sizeHint() const override { return {640, 480}; }
  QSize minimumSizeHint() const override { return {240, 180}; }

 signals:
  /// The room for pictures is another, in pixels of the screen.
  void RoomChanged(QSize pixels);
  /// The mouse went down on it.
  void Pressed();

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QRectF PictureRoom() const;

  LivePicture picture_;
  QString words_;
  QString badge_;
  QString caption_;
};

}  // namespace kinalyx
