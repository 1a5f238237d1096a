#pragma once

#include <QWidget>

#include "capture/livedraw/LiveDrawSession.h"

namespace kinalyx {

class LetterBox;
class TakenHalo;

/// The picture of live draw, as large as it fits, with what is drawn on it; or words where there is none. The mouse
/// goes to the session.
class LiveDrawPicture : public QWidget {
  Q_OBJECT

 public:
  explicit LiveDrawPicture(LiveDrawSession& session, QWidget* parent = nullptr);

  /// In the place of the picture, or over it while a zone is wanted.
  void SetWords(const QString& words);
  void ShowPointer(LivePointer pointer);
  void AskText(POINTAPI at, const QString& text);
  /// A place of the picture, on the desktop.
  QPoint OnDesktop(POINTAPI at) const;
  /// Repaints soon.
  void Renew();
  QRect PictureRect() const;

  QSize sizeHint() const override { return {960, 720}; }
  QSize minimumSizeHint() const override { return {320, 240}; }

 signals:
  /// The keys are the window's again.
  void KeysFree();

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  POINTAPI OnScreen(const QMouseEvent& event) const;
  void ShowTaken();

  LiveDrawSession& session_;
  TakenHalo* halo_;
  LetterBox* letters_;
  QString words_;
  POINTAPI asked_;
  bool anew_ = false;
};

}  // namespace kinalyx
