#pragma once

#include "platform/paint/PixelOps.h"
#include "workspace/compare/MultiPicture.h"
#include "workspace/forms/StagePanel.h"

class QComboBox;

namespace kinalyx {

class FilmStrip;

/// The film strip `MFPanel` over the current video and, beside it, its buttons.
class MultiPicturePanel : public StagePanel {
  Q_OBJECT

 public:
  MultiPicturePanel(MultiPicture& strip, QWidget* parent);

  /// Pixels that the pictures have side by side in a stage of this width.
  static int StripWidth(int stageWidth);
  void Show(const Surface& strip, int pictures);

 signals:
  /// What it shows is to be saved as a picture.
  void SaveWanted();

 private:
  void Dress() override;

  MultiPicture& strip_;
  FilmStrip* MFPanel_ = nullptr;
  QComboBox* SkipBox_;
};

}  // namespace kinalyx
