#pragma once

#include <QWidget>

#include "platform/paint/Surface.h"

namespace kinalyx {

/// A picture in the middle of its place, on a dark ground.
class ClipPicture : public QWidget {
  Q_OBJECT

 public:
  explicit ClipPicture(const QString& name, QWidget* parent = nullptr);

  /// Pixels in which a picture of these proportions should be painted.
  QSize PixelsFor(double proportion) const;
  void Show(Surface picture);
  /// The picture's own memory, to be painted anew.
  Surface Take() { return std::move(picture_); }

 signals:
  /// The place has another size.
  void Resized();

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override;

 private:
  Surface picture_;
};

}  // namespace kinalyx
