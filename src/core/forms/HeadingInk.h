#pragma once

#include <QColor>
#include <QImage>

namespace kinalyx {

/// How the heading lines are written so that they can be read on the picture beneath them.
struct HeadingInk {
  QColor letters = Qt::white;
  QColor veil = Qt::black;  ///< laid softly under the letters, and their shadow
  double strength = 0;      ///< opacity of the veil, 0 none to 1
};

/// White letters, or dark ones where the ground is so bright that they need less of a veil. The contrast holds
/// for all but the few most contrary pixels of `ground`; an empty image gives white letters without a veil.
HeadingInk InkOver(const QImage& ground);

}  // namespace kinalyx
