#pragma once

#include <QFrame>
#include <QStringList>
#include <QToolButton>
#include <array>
#include <vector>

#include "workspace/transport/ITransportView.h"

namespace kinalyx {

/// The buttons of a video's marks, `Mark0` to `Mark9`, each with its name or its position: a row inside the play bar,
/// or where the bar has no room for all of them a card beside it.
class MarkBox : public QFrame {
  Q_OBJECT

 public:
  explicit MarkBox(QWidget* parent);

  /// @param names  that marks of other videos have, and that may be meant here too
  void SetMarks(const std::vector<ShownMark>& marks, const QStringList& names);
  int Count() const { return count_; }
  /// Pixels that all buttons take side by side.
  int RowWidth() const;
  /// Lays the buttons side by side in `bar`, beginning at a point.
  void ShowRow(QWidget* bar, const QPoint& at);
  /// Lays them on a card over `stage` in as many rows as the card's width wants; the card is placed by the
  /// caller.
  void ShowCard(QWidget* stage, int widest);
  void Dress();
  /// Opens the menu of names of the last one.
  void NameLast() {
    if (count_ > 0) ShowMenu(count_ - 1);
  }

 signals:
  void Chosen(int mark);
  /// A mark shall have this name; empty: none.
  void Named(int mark, const QString& name);
  void Removed(int mark);

 private:
  void ShowMenu(int mark);
  void Lay(int columns, int edge);
  int ButtonWidth() const;

  std::array<QToolButton*, 10> marks_{};
  QStringList present_;  ///< names of the marks
  QStringList names_;    ///< of others
  int count_ = 0;
  bool card_ = false;
};

}  // namespace kinalyx
