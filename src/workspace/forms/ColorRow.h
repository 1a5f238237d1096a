#pragma once

#include <QWidget>
#include <array>

class QToolButton;

namespace kinalyx {

/// The twelve colour buttons `ColorChoiceBtn`, for the tool in hand.
class ColorRow : public QWidget {
  Q_OBJECT

 public:
  explicit ColorRow(QWidget* parent = nullptr);

  /// Presses one button, -1 none; tells nobody.
  void Press(int index);
  /// The row works only while a tool is in hand.
  void SetLive(bool live);

 signals:
  void Chosen(int index);

 private:
  std::array<QToolButton*, 12> buttons_{};
};

}  // namespace kinalyx
