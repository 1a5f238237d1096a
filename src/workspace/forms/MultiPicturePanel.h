#pragma once

#include <QFrame>
#include <functional>

#include "platform/paint/PixelOps.h"
#include "workspace/MultiPicture.h"

class QComboBox;

namespace kinalyx {

class FilmStrip;

/// The film strip `MFPanel` over the current video and, beside it, its buttons.
class MultiPicturePanel : public QFrame {
  Q_OBJECT

 public:
  /// `save` asks for a name and saves.
  MultiPicturePanel(MultiPicture& strip, std::function<void()> save, QWidget* parent);

  /// Pixels that the pictures have side by side in a stage of this width.
  static int StripWidth(int stageWidth);
  void Show(const Surface& strip, int pictures);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Dress();

  MultiPicture& strip_;
  FilmStrip* MFPanel_ = nullptr;
  QComboBox* SkipBox_;
};

}  // namespace kinalyx
