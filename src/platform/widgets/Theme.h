#pragma once

#include <QColor>
#include <QPalette>
#include <array>
#include <cstdint>

class QApplication;
class QFont;
class QWidget;

namespace kinalyx {

/// The four colours of a scheme as red + 256 * green + 65536 * blue: 0 buttons and headings, 1 panels,
/// 2 button text, 3 backdrop.
using SchemeSlots = std::array<std::int32_t, 4>;

/// Sizes that every page keeps to, in logical pixels.
inline constexpr int kGap = 12;
inline constexpr int kCorner = 8;
/// These are as designed, and grow with the text: see Scale.h.
inline constexpr int kButtonHeight = 34;
inline constexpr int kRowHeight = 30;
inline constexpr int kTextPixels = 13;
inline constexpr int kCaptionPixels = 11;

/// All colours of the program, worked out from the four slots. Text colours are moved towards black
/// or white until they stand out 4.5 : 1 from what they are written on; disabled ones 3 : 1.
struct Theme {
  SchemeSlots scheme{};
  bool dark = false;  ///< light letters on dark panels
  QColor accent;      ///< slot 0: buttons, headings, selected rows
  QColor accentHover;
  QColor accentPressed;
  QColor accentText;  ///< slot 2, or the slot that can be read on the accent
  QColor panel;       ///< slot 1: headings of panels, the rail
  QColor backdrop;    ///< slot 3
  QColor field;       ///< lists, boxes and the bodies of panels: a light tint of slot 1, a deep shade of a dark one
  QColor line;        ///< borders of panels, and dividers
  QColor outline;     ///< of fields and check marks, which show by nothing else: 3 : 1 on `field`
  QColor text;        ///< on `field`, `panel` and `backdrop`
  QColor heading;     ///< slot 0 as text on `panel`
  QColor muted;       ///< captions
  QColor faint;       ///< disabled text
  QColor idle;        ///< fill of disabled fields: nearer to the backdrop than to what can be filled in
  QColor selection;   ///< hovered rows
  QColor ring;        ///< round what has the keys: 3 : 1 on all grounds
  QColor stage;       ///< behind videos, the same in every scheme
  QColor stageLine;   ///< frame of an idle window on the stage
  QColor stageFrame;  ///< frame of the current window and what is on: a light tone of slot 0
  QColor stageText;
  QColor stageOutline;  ///< of fields on the stage and on its cards

  static Theme FromSlots(const SchemeSlots& scheme);
};

/// Contrast of two opaque colours, 1 to 21, as accessibility guides define it.
double ContrastRatio(const QColor& a, const QColor& b);
/// `part` of `b` (0 to 1) mixed into `a`.
QColor Mix(const QColor& a, const QColor& b, double part);
/// `wanted`, moved towards black or white just far enough to reach `ratio` on `ground`.
QColor Readable(const QColor& wanted, const QColor& ground, double ratio = 4.5);
/// A colour of the same hue with another saturation and lightness (0 to 1); a black, a grey or a slate gives a grey.
QColor ToneOf(const QColor& colour, double saturation, double lightness);
QColor ToQColor(std::int32_t colour);
std::int32_t FromQColor(const QColor& color);

/// The program's font: Inter where it is installed, else the desktop's. `pixels` as designed beside text of
/// 13 pixels; the font comes at the present text size.
QFont UiFont(int pixels = kTextPixels, int weight = 400);

QPalette PaletteOf(const Theme& theme);

/// Dresses the whole application, at once and while it runs: font, palette, style and style sheet, and
/// after SetTextPixels the lengths in all forms.
void ApplyTheme(QApplication& application, const Theme& theme);
/// Gives a new window the sheet that the others wear; the style calls it when a window is about to be shown.
void WearTheme(QWidget& window);
/// The theme that the application wears; that of the first scheme before any was applied.
Theme CurrentTheme();

}  // namespace kinalyx
