#pragma once

#include <QString>

#include "platform/widgets/Figures.h"

namespace kinalyx {

/// The transport's line, "3.10 seconds | 93/216000 frames", in the longest form that a width holds: whole,
/// "3.10 s | 93/216000", or "3.10 s". What even that is too long for ends in an ellipsis, so that no figure
/// is ever cut.
QString FittingLine(const QFontMetrics& metrics, int width, const QString& line);

/// The same in other words, "3.1 s, picture 94 of 216001"; empty for a line of another form.
QString PlainLine(const QString& line);

/// Shows the line in the form that it has room for; its text and its tip are the whole line.
class PositionLine : public FigureLabel {
 public:
  using FigureLabel::FigureLabel;

 protected:
  void paintEvent(QPaintEvent*) override;
};

}  // namespace kinalyx
