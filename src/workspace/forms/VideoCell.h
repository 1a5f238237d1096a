#pragma once

#include <QFrame>
#include <QLabel>
#include <QToolButton>

#include "video/forms/VideoView.h"

namespace kinalyx {

class FilmRow;
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
  /// The row of pictures, in the cell; an empty place hides it.
  void PlaceFilm(const QRect& place);
  /// `place` is relative to the clip area. The player has its new size when the call returns.
  void PlacePlayer(const QRect& place, bool shown);
  void SetCurrent(bool current);
  void SetTitle(const QString& title);
  /// An empty cell tells by which key a video is opened, and how those that were closed come back.
  void SetHints(const QString& openKey, bool canReopen);
  /// A sentence at the foot of the picture that is pressed like a button; empty for none.
  void SetHint(const QString& words);
  /// The lock picture behind the name.
  void SetLocked(bool locked);
  /// What the strip beneath the picture shows; `covered` while the play bar lies over it.
  void SetPosition(int position, int maximum, const QString& line, bool covered);
  /// What the picture says of its zoom, on a button that brings the whole of it back; empty for none.
  void SetZoomFigure(const QString& figure);
  QRect TitleGeometry() const { return title_->isHidden() ? QRect() : title_->geometry(); }

 signals:
  /// A press beside the picture.
  void Pressed();
  /// The right button was pressed there, or on the pictures of the film, at the position that it means.
  void MenuWanted();
  void DoubleClicked();
  /// The user wants this position, by the strip beneath the picture; and has let go of it.
  void Sought(int position);
  void SeekEnded();
  /// The pointer is over a position on the strip, `at` in the cell; or it has gone.
  void Hovered(int position, QPoint at);
  void Left();
  /// The whole picture is wanted back.
  void WholeWanted();
  /// What the hint speaks of is wanted; what was closed is wanted back.
  void HintPressed();
  void ReopenWanted();

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;
  void mouseReleaseEvent(QMouseEvent*) override;
  void leaveEvent(QEvent*) override { emit Left(); }
  void mouseDoubleClickEvent(QMouseEvent*) override { emit DoubleClicked(); }

 private:
  /// The strip beneath the picture: the whole of it, the line along which the film is dragged, and what stands there.
  struct Strip {
    QRect all;
    double left = 0;
    double right = 0;
    double y = 0;
    bool tall = false;
    QString words;

    bool HasLine() const { return right - left > 20; }
    /// A pointer there means the line.
    bool IsOnLine(QPointF pointer) const;
  };
  void PlaceTitle();
  void PlaceZoom();
  void PlaceHint();
  Strip StripNow() const;
  int PositionAt(const Strip& strip, double x) const;
  void SeekTo(double x);

  VideoPanel* panel_;
  VideoView* player_;
  QLabel* title_;
  QLabel* lock_;
  QToolButton* zoom_;
  QToolButton* hint_;
  QString hintWords_;
  FilmRow* film_;
  QString name_;
  QString line_;
  int position_ = 0;
  int maximum_ = 0;
  bool current_ = false;
  bool seeking_ = false;
};

}  // namespace kinalyx
