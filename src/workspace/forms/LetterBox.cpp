#include "workspace/forms/LetterBox.h"

#include <QKeyEvent>
#include <algorithm>
#include <utility>

#include "platform/widgets/Scale.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr int kWidth = 240;
constexpr int kMostLetters = 200;

}  // namespace

LetterBox::LetterBox(QWidget* stage) : QLineEdit(stage) {
  setObjectName("LetterBox");
  setMaxLength(kMostLetters);
  setPlaceholderText(tr("Type, then press Enter"));
  setAlignment(Qt::AlignCenter);
  hide();
}

void LetterBox::Ask(QPoint middle, const QRect& room, const QString& text) {
  WearStageSheet(this,
                 "QLineEdit { background: @card; color: @ink; border: 2px solid @accent; border-radius: 6px; "
                 "padding: 2px 8px; font-size: @16; }");
  setText(text);
  const int wide = std::min(Px(kWidth), room.width());
  const int high = Px(34);
  const auto within = [](int at, int least, int most) { return std::clamp(at, least, std::max(least, most)); };
  setGeometry(within(middle.x() - wide / 2, room.left(), room.right() - wide),
              within(middle.y() - high / 2, room.top(), room.bottom() - high), wide, high);
  asking_ = true;
  show();
  raise();
  setFocus();
  selectAll();
}

void LetterBox::End(bool take) {
  if (!std::exchange(asking_, false)) return;
  hide();
  if (take) emit Typed(text().trimmed());
  emit Done();
}

void LetterBox::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return End(true);
    case Qt::Key_Escape: return End(false);
    default: break;
  }
  QLineEdit::keyPressEvent(event);
  event->accept();  // letters and arrows are never commands here
}

void LetterBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  // A menu of its own, or another program in front, takes nothing away.
  if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) End(true);
}

}  // namespace kinalyx
