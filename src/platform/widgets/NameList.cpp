#include "platform/widgets/NameList.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QToolTip>

#include "platform/widgets/Figures.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

void NameDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const Theme theme = CurrentTheme();
  const bool chosen = option.state & QStyle::State_Selected;
  const bool enabled = option.state & QStyle::State_Enabled;
  painter->save();
  QColor ink = enabled ? theme.text : theme.faint;
  if (chosen) {
    painter->fillRect(option.rect, enabled ? theme.accent : theme.faint);
    ink = enabled ? theme.accentText : theme.field;
  } else if (option.state & QStyle::State_MouseOver && enabled) {
    painter->fillRect(option.rect, theme.selection);
  }
  // The row that the keys move carries a ring, so that one sees which list listens.
  if (option.state & QStyle::State_HasFocus && enabled) {
    painter->setPen(chosen ? Mix(theme.accentText, theme.accent, 0.45) : theme.accent);
    painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
  }
  const QString count = index.data(kCountRole).toString();
  const QRect room = NameRoom(option, count);
  if (!count.isEmpty()) {
    painter->setFont(UiFont(kCaptionPixels));
    painter->setPen(chosen ? Mix(theme.accentText, theme.accent, 0.25) : theme.muted);
    DrawFigures(*painter, option.rect.adjusted(kGap, 0, -kGap, 0), Qt::AlignRight | Qt::AlignVCenter, count);
  }
  painter->setFont(option.font);
  painter->setPen(ink);
  const QString name = painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, room.width());
  painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter, name);
  painter->restore();
}

QRect NameDelegate::NameRoom(const QStyleOptionViewItem& option, const QString& count) {
  const int taken = count.isEmpty() ? 0 : FiguresWidth(QFontMetrics(UiFont(kCaptionPixels)), count) + 8;
  return option.rect.adjusted(kGap, 0, -kGap - taken, 0);
}

bool NameDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.data(Qt::ToolTipRole).toString().isEmpty())
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  const QString name = index.data().toString();
  const int room = NameRoom(option, index.data(kCountRole).toString()).width();
  if (option.fontMetrics.horizontalAdvance(name) <= room) {
    QToolTip::hideText();
    event->ignore();
  } else {
    QToolTip::showText(event->globalPos(), name, view);
  }
  return true;
}

QSize NameDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return QSize(QStyledItemDelegate::sizeHint(option, index).width(), Px(kRowHeight));
}

NameList::NameList(const QString& name, QWidget* parent) : QListWidget(parent) {
  setObjectName(name);
  setItemDelegate(new NameDelegate(this));
  setUniformItemSizes(true);
  setMouseTracking(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
}

void NameList::SetHint(const QString& hint) {
  hint_ = hint;
  viewport()->update();
}

void NameList::Fill(const QStringList& names, int current) {
  const QSignalBlocker quiet(this);
  clear();
  addItems(names);
  setCurrentRow(current);
}

/// A list that gets the keys has nothing chosen by that: the first arrow key chooses the first row.
void NameList::focusInEvent(QFocusEvent* event) {
  const bool chosen = currentRow() >= 0;
  const QSignalBlocker quiet(this);
  QListWidget::focusInEvent(event);
  if (!chosen) setCurrentRow(-1);
}

/// Where one row is chosen it stays so: neither a press beside the rows nor one with Ctrl takes it back, for
/// what the list has chosen is still shown around it.
QItemSelectionModel::SelectionFlags NameList::selectionCommand(const QModelIndex& index, const QEvent* event) const {
  const QItemSelectionModel::SelectionFlags flags = QListWidget::selectionCommand(index, event);
  const bool takesBack = !index.isValid() || flags & QItemSelectionModel::Deselect;
  return selectionMode() == SingleSelection && takesBack ? QItemSelectionModel::NoUpdate : flags;
}

void NameList::SetCount(int row, int count) {
  if (QListWidgetItem* entry = item(row)) {
    entry->setData(NameDelegate::kCountRole, count < 0 ? QVariant() : QVariant(QString::number(count)));
  }
}

void NameList::paintEvent(QPaintEvent* event) {
  QListWidget::paintEvent(event);
  if (count() || hint_.isEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(CurrentTheme().muted);
  painter.drawText(viewport()->rect().adjusted(16, 16, -16, -16), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                   hint_);
}

}  // namespace kinalyx
