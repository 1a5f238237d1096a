#pragma once

#include <QString>

class QApplication;
class QStyle;

namespace kinalyx {

struct Theme;

/// What a style sheet cannot draw without picture files: check marks, radio dots, arrows and the focus
/// ring. Colours come from CurrentTheme. The caller (the application) owns it.
QStyle* MakeStyle();

/// True has nothing slide or fade any more that the style knows of.
void SetStill(QApplication& application, bool still);

/// The style sheet that every window wears. Dynamic properties choose a look:
/// - QPushButton `look`: none filled with the accent; "quiet" outlined; "flat" only under the mouse;
///   "section" a row of a list of sections; "tile" the big ones; "stage" on the dark stage
/// - QPushButton `destroys`: true for one that deletes; nothing else is red
/// - QPushButton `over`: "picture" for a "stage" button on a picture of any brightness
/// - QPushButton `placed`: true for one that is given its size and place by hand
/// - QLabel `look`: "caption", "heading", "brand", "pageTitle", "title", "muted", "mark", "markOff", "logo"
/// - QFrame `look`: "panel", "panelHead", "panelFoot", "header", "rail", "strip", "status", "stage", "divider"
QString StyleSheetOf(const Theme& theme);

}  // namespace kinalyx
