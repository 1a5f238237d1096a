#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>

#include "workspace/transport/Transport.h"

namespace kinalyx {

/// What is to be seen where the pointer rests over a bar: a small picture of the video and its time, in a card over
/// the stage. Takes no mouse.
class SeekPreview : public QWidget {
  Q_OBJECT

 public:
  SeekPreview(Stage& stage, Transport& transport, QWidget* parent);

  /// Shows a position of a slot's video above a point of the stage, as soon as the pointer leaves time for it.
  void Want(int slot, int position, QPoint above);
  void Away();

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  void ShowWanted();

  Stage& theStage_;
  Transport& transport_;
  Surface picture_;
  QTimer soon_;
  QString time_;
  int slot_ = 0;
  int position_ = 0;
  QPoint above_;
};

}  // namespace kinalyx
