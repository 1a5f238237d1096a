#pragma once

#include <QFrame>
#include <string>
#include <vector>

class QMenu;

namespace kinalyx {

class Button;
struct Command;

/// The strip of tool buttons, from the command table. It always takes one row: where the window is too
/// narrow the buttons draw together, and what still finds no place waits behind the last one, "More
/// tools" — features that are still to come first, then those at the right end.
class ToolStrip : public QFrame {
  Q_OBJECT

 public:
  explicit ToolStrip(const std::vector<Command>& commands, QWidget* parent = nullptr);

  /// Enables, checks and explains the buttons anew.
  void Update();

 signals:
  /// A command is wanted, by the name of its button.
  void Wanted(const std::string& command);
  /// Its button was clicked twice; the first click has wanted it.
  void WantedTwice(const std::string& command);

 protected:
  void resizeEvent(QResizeEvent*) override { Arrange(); }
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// How large the buttons are, and how far apart.
  struct Sizes {
    int side;
    int space;
    int divider;  ///< with the room round it
  };
  static const Sizes kSizes[3];  ///< from a wide window to the narrowest

  struct Tool {
    const Command* command;
    std::string name;
    Button* button;
    bool placed = true;
  };

  void Arrange();
  void Place(const Sizes& sizes);
  int WidthFor(const Sizes& sizes) const;
  void ShowMore();

  std::vector<Tool> tools_;
  std::vector<QFrame*> dividers_;  ///< before the first button of each group but the first
  Button* more_ = nullptr;
};

}  // namespace kinalyx
