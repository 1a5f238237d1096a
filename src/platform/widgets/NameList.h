#pragma once

#include <QListWidget>
#include <QStyledItemDelegate>

namespace kinalyx {

/// Paints the rows of lists of names: 30 pixels high beside 13 pixels of text, the chosen one filled with the accent,
/// with an optional count to the right.
class NameDelegate : public QStyledItemDelegate {
 public:
  /// Item data: the count as text; none shows none.
  static constexpr int kCountRole = Qt::UserRole + 1;

  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  /// A name that does not fit is told whole in a tip.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  static QRect NameRoom(const QStyleOptionViewItem& option, const QString& count);
};

/// A list of names. Nothing is chosen at first; an empty list shows `hint` in its middle.
class NameList : public QListWidget {
 public:
  explicit NameList(const QString& name, QWidget* parent = nullptr);

  void SetHint(const QString& hint);
  const QString& Hint() const { return hint_; }
  /// Replaces the rows. Sends no change signals; the current row is `current` afterwards (-1 none).
  void Fill(const QStringList& names, int current);
  /// The count shown to the right of a row; negative for none.
  void SetCount(int row, int count);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

 private:
  QString hint_;
};

}  // namespace kinalyx
