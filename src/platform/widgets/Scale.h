#pragma once

#include <QSize>
#include <QString>

class QAbstractButton;
class QApplication;
class QWidget;

namespace kinalyx {

/// Sizes. Every form is designed beside text of 13 pixels. On a larger main window the text is larger, and
/// what holds text or an icon grows with it; gaps, frames and corners stay.

/// The text that the application wears, in logical pixels; 13 before any other was set.
int TextPixels();
/// Another text size. What asks from now on gets it; forms that stand are told by the next ApplyTheme.
/// False when it is the present one.
bool SetTextPixels(QApplication& application, int pixels);

/// A length that was designed beside 13 pixels of text, at the present text size. Never less than designed.
int Px(double designed);
/// A style sheet in which "@34" is a length that grows with the text, "@34-2" such a length less two pixels,
/// of a frame for one, and "@34/2" its half, rounded down. Other lengths stay as they are.
QString WithSizes(const QString& sheet);

/// Lengths of a widget as designed; they are kept, and follow the text for as long as the widget lives.
void FixWidth(QWidget* widget, int designed);
void FixHeight(QWidget* widget, int designed);
void FixSize(QWidget* widget, QSize designed);
void LeastWidth(QWidget* widget, int designed);
void LeastHeight(QWidget* widget, int designed);
void MostWidth(QWidget* widget, int designed);
void FixIcon(QAbstractButton* button, int designed);
/// A font of its own.
void FixFont(QWidget* widget, int pixels, int weight);
/// A style sheet of its own, with lengths as WithSizes takes them.
void WearSheet(QWidget* widget, const QString& sheet);

/// Fits a form to the main window, as it opens and whenever that window has got another text size: the
/// lengths inside are brought to the present ones and the form to its content. A window of its own comes
/// to stand over the middle of `reference`, inside the screen; what is part of `reference` stays in place.
void ScaleForm(QWidget& target, const QWidget& reference);

/// Only the lengths inside: for what a layout places.
void ScaleContent(QWidget& target);

}  // namespace kinalyx
