#pragma once

#include <QFrame>
#include <string>
#include <vector>

namespace kinalyx {

class Button;
struct Command;

/// The strip of tool buttons in their groups, from the command table. In a wide window each group of the first row has
/// its name beneath it. Where the window is too narrow for one row the buttons draw together, and what still finds no
/// place stands in a second row, which the last button opens and closes: first what can be spared, then what is at the
/// right end, but never the layout in use.
class ToolStrip : public QFrame {
  Q_OBJECT

 public:
  /// @param open  the second row is seen where there is anything for it
  ToolStrip(const std::vector<Command>& commands, bool open, QWidget* parent = nullptr);

  /// Enables, checks and explains the buttons anew.
  void Update();

 signals:
  /// A command is wanted, by the name of its button.
  void Wanted(const std::string& command);
  /// Its button was clicked twice; the first click has wanted it.
  void WantedTwice(const std::string& command);
  /// The user has opened or closed the second row.
  void SecondRowOpened(bool open);

 protected:
  void resizeEvent(QResizeEvent*) override { Arrange(); }
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
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
    bool first = true;  ///< stands in the first row

    bool IsLayoutInUse() const;
  };
  struct Name {
    QRect place;
    QString words;
  };

  void Arrange();
  void DropWhatDoesNotFit(const Sizes& sizes);
  void PlaceRow(bool first, int top, const Sizes& sizes);
  int WidthFor(const Sizes& sizes) const;
  bool AllInFirst() const;

  std::vector<Tool> tools_;
  std::vector<QRect> dividers_;  ///< between the groups of a row
  std::vector<Name> names_;      ///< beneath the groups of the first row
  Button* more_ = nullptr;
  std::string layout_;  ///< the button of the layout in use
  bool open_;
};

}  // namespace kinalyx
