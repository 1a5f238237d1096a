#pragma once

#include <QWidget>
#include <array>
#include <iterator>

#include "platform/files/Tr.h"

class QToolButton;

namespace kinalyx {

/// A width that a line can be given by a click.
struct LineWidth {
  int pixels;
  const char* name;
};
inline constexpr LineWidth kLineWidths[] = {{3, TrLater("Thin")}, {5, TrLater("Medium")}, {9, TrLater("Thick")}};

/// The twelve colour buttons `ColorChoiceBtn` and three widths, for the tool in hand or the drawing that is taken.
class ColorRow : public QWidget {
  Q_OBJECT

 public:
  explicit ColorRow(QWidget* parent = nullptr);

  /// Presses one button, -1 none; tells nobody.
  void Press(int index);
  /// Presses the button of a width in pixels; none when there is no such button.
  void PressWidth(int pixels);
  /// The row works only while there is something to be coloured.
  void SetLive(bool live);
  static QString NameOf(int index);

 signals:
  void Chosen(int index);
  void WidthChosen(int pixels);

 private:
  std::array<QToolButton*, 12> buttons_{};
  std::array<QToolButton*, std::size(kLineWidths)> widths_{};
};

}  // namespace kinalyx
