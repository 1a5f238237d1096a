#pragma once

#include <QFrame>
#include <QLabel>

#include "video/forms/VideoView.h"

namespace kinalyx {

class VideoPanel;

/// One place of the grid, `BorderPanel`: a frame, within it the clip area `VideoPanel` with the player
/// `MP`, the video's name over the picture, and beneath it a strip that shows where the video stands
/// while the play bar is elsewhere. All measures are pixels.
class VideoCell : public QWidget {
  Q_OBJECT

 public:
  VideoCell(int slot, PlayerServices& services, QWidget* parent);

  VideoView& MP() { return *player_; }
  /// `panel` is relative to the cell.
  void Place(const QRect& cell, const QRect& panel);
  /// `place` is relative to the clip area. The player has its new size when the call returns.
  void PlacePlayer(const QRect& place, bool shown);
  void SetCurrent(bool current);
  void SetTitle(const QString& title);
  /// An empty cell also tells how the videos that were closed come back.
  void SetReopen(bool possible);
  /// The lock picture behind the name.
  void SetLocked(bool locked);
  /// What the strip beneath the picture shows; `covered` while the play bar lies over it.
  void SetPosition(int position, int maximum, const QString& line, bool covered);
  QRect TitleGeometry() const { return title_->isHidden() ? QRect() : title_->geometry(); }

 signals:
  /// A press beside the picture.
  void Pressed();
  void DoubleClicked();

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent*) override { emit Pressed(); }
  void mouseDoubleClickEvent(QMouseEvent*) override { emit DoubleClicked(); }

 private:
  void PlaceTitle();

  VideoPanel* panel_;
  VideoView* player_;
  QLabel* title_;
  QLabel* lock_;
  QString name_;
  QString line_;
  int position_ = 0;
  int maximum_ = 0;
  bool current_ = false;
};

}  // namespace kinalyx
