#include "platform/widgets/NameList.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMimeData>
#include <QPainter>
#include <QSignalBlocker>
#include <QToolTip>
#include <QUrl>
#include <algorithm>

#include "platform/widgets/Figures.h"
#include "platform/widgets/Icons.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

void NameDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const Theme theme = CurrentTheme();
  const bool chosen = option.state & QStyle::State_Selected;
  const bool enabled = option.state & QStyle::State_Enabled;
  painter->save();
  if (index.data(kHeadingRole).toBool()) {
    painter->setFont(UiFont(kCaptionPixels, 600));
    painter->setPen(theme.muted);
    painter->drawText(option.rect.adjusted(kGap, 0, -kGap, -4), Qt::AlignLeft | Qt::AlignBottom,
                      index.data().toString());
    painter->restore();
    return;
  }
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
  const Qt::LayoutDirection reads = option.direction;
  const QRect room = QStyle::visualRect(reads, option.rect, NameRoom(option, count));
  if (!count.isEmpty()) {
    painter->setFont(UiFont(kCaptionPixels));
    painter->setPen(chosen ? Mix(theme.accentText, theme.accent, 0.25) : theme.muted);
    DrawFigures(*painter, option.rect.adjusted(kGap, 0, -kGap, 0), QStyle::visualAlignment(reads, Qt::AlignRight),
                count);
  }
  painter->setFont(option.font);
  painter->setPen(ink);
  const QString name = painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, room.width());
  painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter, name);
  if (details_ != Details::None) PaintDetails(*painter, option, index, chosen ? ink : enabled ? theme.muted : ink);
  painter->restore();
}

/// The picture, and the line beneath the name: as many of its parts as find room, and of the first as much as there is.
/// All is laid out from left to right, and turned round at the end for who reads the other way.
void NameDelegate::PaintDetails(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                                const QColor& ink) const {
  const QRect room = NameRoom(option, {}).translated(0, option.rect.height() / 2 - Px(2));
  painter.setFont(UiFont(kCaptionPixels));
  painter.setPen(ink);
  const QStringList details = index.data(kDetailsRole).toStringList();
  int left = room.left();
  for (const QString& detail : details) {
    const int wide = FiguresWidth(painter.fontMetrics(), detail);
    if (left > room.left() && left + wide > room.right() + 1) break;
    const QRect place = QStyle::visualRect(option.direction, option.rect,
                                           QRect(left, room.top(), qMin(wide, room.right() + 1 - left), room.height()));
    if (wide <= place.width()) DrawFigures(painter, place, Qt::AlignLeft | Qt::AlignVCenter, detail);
    else
      painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                       painter.fontMetrics().elidedText(detail, Qt::ElideRight, place.width()));
    left += wide + 10;
  }
  if (details_ != Details::Picture) return;
  const QSize size(Px(kPicture.width()), Px(kPicture.height()));
  const int top = option.rect.top() + (option.rect.height() - size.height()) / 2;
  const QRect frame =
      QStyle::visualRect(option.direction, option.rect, QRect(QPoint(option.rect.left() + 6, top), size));
  painter.fillRect(frame, CurrentTheme().stage);
  const QVariant data = index.data(kPictureRole);
  const auto picture = data.value<QImage>();
  if (data.isValid() && picture.isNull()) {
    const int side = Px(18);
    const QPixmap sign = IconPixmap("warning", CurrentTheme().stageText, side, painter.device()->devicePixelRatioF());
    painter.drawPixmap(frame.center().x() - side / 2, frame.center().y() - side / 2, sign);
  } else if (!picture.isNull()) {
    const QSize fitted = picture.size().scaled(frame.size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, fitted, frame), picture);
  }
}

QRect NameDelegate::NameRoom(const QStyleOptionViewItem& option, const QString& count) const {
  const int taken = count.isEmpty() ? 0 : FiguresWidth(QFontMetrics(UiFont(kCaptionPixels)), count) + 8;
  const int picture = details_ == Details::Picture ? Px(kPicture.width()) + 4 : 0;
  QRect room = option.rect.adjusted(kGap + picture, 0, -kGap - taken, 0);
  if (details_ != Details::None) room.setBottom(room.top() + room.height() / 2 + Px(2));
  return room;
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
  const int height = details_ == Details::Picture ? kPicture.height() + 8 : details_ == Details::Line ? 44 : kRowHeight;
  return QSize(QStyledItemDelegate::sizeHint(option, index).width(),
               Px(index.data(kHeadingRole).toBool() ? kRowHeight : height));
}

NameList::NameList(const QString& name, QWidget* parent) : QListWidget(parent), delegate_(new NameDelegate(this)) {
  setObjectName(name);
  setItemDelegate(delegate_);
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

void NameList::SetDetails(NameDelegate::Details details) {
  delegate_->SetDetails(details);
  scheduleDelayedItemsLayout();
  viewport()->update();
}

void NameList::LetDrag() {
  setDragEnabled(true);
  setDragDropMode(DragOnly);
}

std::vector<int> NameList::ChosenRows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : selectedIndexes()) rows.push_back(index.row());
  std::ranges::sort(rows);
  return rows;
}

QMimeData* NameList::mimeData(const QList<QListWidgetItem*>& items) const {
  QList<QUrl> files;
  for (const QListWidgetItem* item : items)
    if (const QString path = item->data(NameDelegate::kPathRole).toString(); !path.isEmpty())
      files << QUrl::fromLocalFile(path);
  auto* data = QListWidget::mimeData(items);
  if (data && !files.isEmpty()) data->setUrls(files);
  return data;
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
