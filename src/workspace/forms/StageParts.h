#pragma once

#include <QToolButton>
#include <QWidget>

#include "platform/paint/Surface.h"

namespace kinalyx {

/// A tool on the stage: an icon with a tip, which also is its name for screen readers. It leaves the
/// keys to the workspace. Its icon is drawn by DressStageButtons.
QToolButton* StageButton(const QString& name, const QString& icon, const QString& tip, QWidget* parent);
/// Gives a stage button another icon of the family.
void SetStageIcon(QToolButton* button, const QString& icon);
/// Draws the icons of all stage buttons in a widget in the present colours.
void DressStageButtons(QWidget* parent);

/// The sheet of what the comparing modes put on the stage: bars, sliders, lists, choices.
extern const char* const kCompareSheet;

/// Shows a picture pixel by pixel, black round it. Keeps a copy.
class SurfaceView : public QWidget {
  Q_OBJECT

 public:
  explicit SurfaceView(const QString& name, QWidget* parent = nullptr);
  void Show(const Surface& picture);
  const QImage& Picture() const { return picture_; }

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  QImage picture_;
};

}  // namespace kinalyx
