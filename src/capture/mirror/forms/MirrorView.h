#pragma once

#include <QWidget>

#include "capture/mirror/MirrorSession.h"

namespace kinalyx {

/// One pane: its picture as large as it fits, a badge that is read from the other end of a hall, and words where the
/// picture is not the one that is due.
class MirrorView : public QWidget {
  Q_OBJECT

 public:
  explicit MirrorView(int pane, QWidget* parent);

  void ShowSight(MirrorPane::Sight sight);
  void SetBadge(const QString& badge);
  void SetNote(const PaneNote& note);
  /// A frame says so, where there are others.
  void SetChosen(bool chosen);
  /// Lines of the window, by which letters are measured.
  void SetWindowHeight(int height);

 signals:
  void Clicked(int pane);
  void DoubleClicked(int pane);
  /// The room for pictures is another, in pixels of the screen.
  void RoomChanged(int pane, QSize pixels);

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  QRectF PictureRoom() const;
  void PaintBadge(QPainter& painter, const QRectF& room) const;
  void PaintNote(QPainter& painter, const QRectF& room) const;

  const int pane_;
  MirrorPane::Sight sight_;
  QString badge_;
  PaneNote note_;
  bool chosen_ = false;
  int windowHeight_ = 0;
};

/// Words on a dark plate, for a picture.
/// @param at      the corner of the plate
/// @param pixels  of the letters
void PaintPlate(QPainter& painter, QPointF at, const QString& text, int pixels);
QSizeF PlateSize(const QString& text, int pixels);

}  // namespace kinalyx
