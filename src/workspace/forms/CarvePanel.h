#pragma once

#include "workspace/compare/Carve.h"
#include "workspace/forms/FloatCard.h"
#include "workspace/forms/StageParts.h"

class QLabel;
class QPushButton;
class QSlider;

namespace kinalyx {

/// The controls of the transparency carve: its hint, the scale of the piece, and another area.
class CarvePanel : public FloatCard {
  Q_OBJECT

 public:
  CarvePanel(Carve& carve, QWidget* parent);

  /// Prepares it for another carve; whoever shows it gives it its place.
  void Begin();
  /// The piece floats, or an area is waited for.
  void SetFloating(bool floating);

 signals:
  /// How much of the piece is seen, 0 to 1.
  void OpacityChanged(double opacity);

 private:
  void Dress() override;

  Carve& carve_;
  QWidget* content_ = nullptr;
  QLabel* hint_;
  QSlider* CScroll_;
  QLabel* percent_;
  QSlider* opacity_;
  QPushButton* anew_;
};

/// `CarvePic`: lies over the video, darkens it a little and takes the area that the mouse marks.
class CarveCanvas : public QWidget {
  Q_OBJECT

 public:
  CarveCanvas(Carve& carve, Stage& theStage, QWidget* stage);

  /// Over the clip area of a slot.
  void ShowOver(int slot);
  /// In pixels of the video's picture; an empty one hides the mark.
  void ShowMark(int left, int top, int width, int height);

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  POINTAPI PicturePoint(const QMouseEvent& event) const;
  /// The picture's corner in this widget, logical pixels.
  QPointF Corner() const;

  Carve& carve_;
  Stage& theStage_;
  int slot_ = 1;
  QRect mark_;
};

/// `picRot`: the floating piece, dragged with the left button.
class CarvePiece : public SurfaceView {
  Q_OBJECT

 public:
  CarvePiece(Carve& carve, QWidget* stage);

  void ShowAt(const Surface& piece, POINTAPI corner);
  /// 0 to 1; what is beneath shines through.
  void SetOpacity(double opacity);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent*) override { carve_.ReleasePiece(); }

 private:
  POINTAPI StagePoint(const QMouseEvent& event) const;

  Carve& carve_;
  double opacity_ = 1;
};

}  // namespace kinalyx
