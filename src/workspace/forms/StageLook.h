#pragma once

#include <QColor>
#include <QString>

class QWidget;

namespace kinalyx {

/// Colours of what stands on the dark stage. The stage is the same in every scheme; only the accent
/// follows the scheme's buttons.
struct StageLook {
  QColor ground;  ///< the stage
  QColor card;    ///< panels that float over it, with a breath of the scheme
  QColor cardLine;
  QColor outline;  ///< of fields, which show by nothing else
  QColor hover;
  QColor ink;          ///< words and icons
  QColor faintInk;     ///< what is disabled, and hints
  QColor accent;       ///< frame of the current window, the film's line up to the knob
  QColor accentFill;   ///< pressed and checked buttons
  QColor accentHover;  ///< the same under the mouse
  QColor mark;         ///< marks of a video

  static StageLook Current();
};

/// Sets a style sheet in which "@ground", "@cardLine" and so on stand for the colours, and "@30" for a length
/// that grows with the text; a sheet that the
/// widget wears already is left alone, so that it may be called from a change of style.
void WearStageSheet(QWidget* widget, const char* sheet);

/// The sheet of a floating card and what is in it.
extern const char* const kCardSheet;

}  // namespace kinalyx
