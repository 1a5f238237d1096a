#pragma once

#include <QString>

class QStyle;

namespace kinalyx {

struct Theme;

/// What a style sheet cannot draw without picture files: check marks, radio dots, arrows and the focus
/// ring. Colours come from CurrentTheme. The caller (the application) owns it.
QStyle* MakeStyle();

/// The style sheet of the whole application. Dynamic properties choose a look:
/// - QPushButton `look`: none filled with the accent; "quiet" outlined; "flat" only under the mouse;
///   "nav", "tile" the big ones; "stage" on the dark stage
/// - QLabel `look`: "caption", "heading", "pageTitle", "title", "muted", "mark", "markOff", "status"
/// - QFrame `look`: "panel", "panelHead", "panelFoot", "header", "rail", "strip", "status"
QString StyleSheetOf(const Theme& theme);

}  // namespace kinalyx
