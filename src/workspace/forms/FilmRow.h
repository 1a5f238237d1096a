#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>
#include <vector>

#include "video/AVIControl.h"

namespace kinalyx {

/// A row of small pictures of a player's video, from its first to its last, and a line where it stands. The pictures
/// come one after the other, while nothing plays. A press or a drag seeks.
class FilmRow : public QWidget {
  Q_OBJECT

 public:
  FilmRow(AVIControl& player, QWidget* parent);

  /// Where the video stands; another video begins the row anew.
  void SetPosition(int position, int maximum);

 signals:
  /// The user wants this position; and has let go of it.
  void Sought(int position);
  void SeekEnded();
  /// The same position by the right button, for a menu.
  void MenuWanted();
  /// The pointer is over a position, `x` pixels from the left end; or it has gone.
  void Hovered(int position, int x);
  void Left();

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override { Begin(); }
  void showEvent(QShowEvent*) override { Begin(); }
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent*) override;
  void leaveEvent(QEvent*) override { emit Left(); }

 private:
  struct Picture {
    int wanted = 0;
    int shown = -1;  ///< the position whose picture it is; -1 none yet
    QImage image;
  };
  /// What the row shows beside its size.
  struct Film {
    std::string path;
    int positions = 0;
    bool flipped = false;

    friend bool operator==(const Film&, const Film&) = default;
  };

  Film FilmNow() const;
  void Begin();
  void Fetch();
  int PositionAt(double x) const;

  AVIControl& player_;
  Film film_;
  std::vector<Picture> pictures_;
  std::size_t next_ = 0;
  int rounds_ = 0;  ///< in which stand-ins were looked for
  QTimer fetch_;
  int position_ = 0;
  int maximum_ = 0;
  bool seeking_ = false;
};

}  // namespace kinalyx
