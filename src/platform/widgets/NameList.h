#pragma once

#include <QListWidget>
#include <QStyledItemDelegate>
#include <vector>

namespace kinalyx {

/// Paints the rows of lists of names: 30 pixels high beside 13 pixels of text, the chosen one filled with the accent,
/// with an optional count to the right. Rows with details are higher, with a picture before the name and a line of
/// figures beneath it.
class NameDelegate : public QStyledItemDelegate {
 public:
  /// Item data: the count as text; none shows none.
  static constexpr int kCountRole = Qt::UserRole + 1;
  /// Item data of rows with details: short texts, of which those are shown that find room; and the picture, null for
  /// one that has not come, without pixels for one that never will.
  static constexpr int kDetailsRole = Qt::UserRole + 2;
  static constexpr int kPictureRole = Qt::UserRole + 3;
  /// Item data: the file that a drag of the row takes along.
  static constexpr int kPathRole = Qt::UserRole + 4;
  /// Item data: the row is the heading of those beneath it.
  static constexpr int kHeadingRole = Qt::UserRole + 5;
  /// The room of a picture, beside 13 pixels of text.
  static constexpr QSize kPicture{64, 40};

  enum class Details { None, Line, Picture };  ///< what rows show besides the name; Picture has the line too

  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  /// A name that does not fit is told whole in a tip.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
  void SetDetails(Details details) { details_ = details; }

 private:
  QRect NameRoom(const QStyleOptionViewItem& option, const QString& count) const;
  void PaintDetails(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                    const QColor& ink) const;

  Details details_ = Details::None;
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
  /// What all rows show.
  void SetDetails(NameDelegate::Details details);
  /// Lets the chosen rows be dragged elsewhere, as the files of kPathRole.
  void LetDrag();
  /// The rows that are chosen, from the first to the last.
  std::vector<int> ChosenRows() const;

 protected:
  QMimeData* mimeData(const QList<QListWidgetItem*>& items) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::CopyAction; }
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

 private:
  NameDelegate* delegate_;
  QString hint_;
};

}  // namespace kinalyx
