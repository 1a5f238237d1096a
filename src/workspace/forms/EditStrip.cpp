#include "workspace/forms/EditStrip.h"

#include <QBoxLayout>
#include <QEvent>
#include <QMouseEvent>
#include <algorithm>

#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/StageLook.h"
#include "workspace/forms/StageParts.h"

namespace kinalyx {
namespace {

constexpr int kWordsGap = 6;  // between the words and the buttons beside them
constexpr int kFromEdge = 8;  // between the strip and the lower edge of its picture
constexpr const char* kHandleProperty = "handle";

constexpr const char* kStripSheet =
    "[look=\"card\"] { background: @card; border: 1px solid @cardLine; border-radius: 8px; }"
    "[look=\"card\"] QLabel { color: @ink; background: transparent; border: none; }"
    "[look=\"card\"] QToolButton { border: none; border-radius: 6px; background: transparent; color: @ink; padding: 0; "
    "}"
    "[look=\"card\"] QToolButton:hover { background: @hover; }"
    "[look=\"card\"] QToolButton:pressed, [look=\"card\"] QToolButton:checked { background: @accentFill; }"
    "[look=\"card\"] QToolButton:disabled { background: transparent; }"
    "[look=\"card\"] QToolButton[main=\"true\"] { background: @accentFill; }"
    "[look=\"card\"] QToolButton[main=\"true\"]:hover { background: @accentHover; }";

bool Dragged(EditHandle handle) { return handle >= kMoveHandle && handle <= kRotateHandle; }

}  // namespace

EditStrip::EditStrip(QWidget* stage) : StagePanel("picEditBar", stage) {
  setProperty("look", "card");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 4, 6, 4);
  row->setSpacing(2);
  AddHandle(kNextHandle, "next-shape", tr("Next drawing (Tab)"));
  AddHandle(kMoveHandle, "pan", tr("Move: drag from here, or press Shift and an arrow key"));
  AddHandle(kScaleHandle, "scale", tr("Change the size: drag up or down from here"));
  AddHandle(kRotateHandle, "rotate", tr("Turn: drag round this handle"));
  AddHandle(kDeleteHandle, "trash", tr("Delete the selected drawing (Delete)"));
  multi_ = StageButton("ribEBBtn", "select-all", tr("Edit all drawings of the window as one"), this);
  multi_->setCheckable(true);
  connect(multi_, &QToolButton::clicked, this, [this](bool down) { edits_->EditAll(down); });
  row->addWidget(multi_);
  row->addSpacing(kWordsGap);
  words_ = MakeLabel("EditWords", {}, nullptr, this);
  FixFont(words_, 12, 400);
  words_->setAttribute(Qt::WA_TransparentForMouseEvents);
  row->addWidget(words_);
  row->addSpacing(kWordsGap);
  AddHandle(kEndHandle, "check", tr("Done (Esc)"));
  handles_[kEndHandle]->setProperty("main", true);
  hide();
  FirstDress();
}

void EditStrip::AddHandle(EditHandle handle, const char* icon, const QString& tip) {
  QToolButton* button = StageButton(QString("cmdEBBtn%1").arg(handle), icon, tip, this);
  button->setProperty(kHandleProperty, handle);
  if (Dragged(handle)) {
    button->setCursor(handle == kMoveHandle    ? Qt::SizeAllCursor
                      : handle == kScaleHandle ? Qt::SizeVerCursor
                                               : Qt::OpenHandCursor);
    button->installEventFilter(this);
  } else {
    connect(button, &QToolButton::clicked, this, [this, handle] { edits_->UseHandle(handle); });
  }
  layout()->addWidget(button);
  handles_[static_cast<std::size_t>(handle)] = button;
}

// ---------------------------------------------------------------- handles

void EditStrip::EnableHandle(EditHandle handle, bool enabled) {
  QToolButton* button = handles_[static_cast<std::size_t>(handle)];
  if (button) button->setEnabled(enabled);
}

bool EditStrip::HandleEnabled(EditHandle handle) const {
  const QToolButton* button = handles_[static_cast<std::size_t>(handle)];
  return button && button->isEnabled();
}

void EditStrip::SetMultiButton(bool enabled, bool down) {
  multi_->setEnabled(enabled);
  multi_->setChecked(down);
}

void EditStrip::SetWords(const QString& words) {
  if (words == words_->text()) return;
  words_->setText(words);
  Arrange();
}

QPoint EditStrip::HandleCentre(EditHandle handle) const {
  const QToolButton* button = handles_[static_cast<std::size_t>(handle)];
  return button->mapTo(parentWidget(), button->rect().center());
}

QSize EditStrip::HandleSize(EditHandle handle) const {
  const QToolButton* button = handles_[static_cast<std::size_t>(handle)];
  return button ? button->size() : QSize();
}

bool EditStrip::eventFilter(QObject* watched, QEvent* event) {
  return DragHandle(static_cast<EditHandle>(watched->property(kHandleProperty).toInt()), *event);
}

/// Hands the left button on to the edit bar, in twips of the handle, 15 to a pixel of the picture. The
/// button itself sees press and release as well, so that it looks pressed.
bool EditStrip::DragHandle(EditHandle handle, QEvent& event) {
  const auto type = event.type();
  if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove && type != QEvent::MouseButtonRelease) return false;
  const auto& mouse = static_cast<QMouseEvent&>(event);
  const QPointF at = mouse.position() * devicePixelRatioF() * kTwipsPerPixel;
  const auto x = static_cast<float>(at.x());
  const auto y = static_cast<float>(at.y());
  if (type == QEvent::MouseButtonPress && mouse.button() == Qt::LeftButton) edits_->GrabHandle(handle, x, y);
  if (type == QEvent::MouseMove && edits_->Dragging()) edits_->DragHandle(x, y);
  if (type == QEvent::MouseButtonRelease && mouse.button() == Qt::LeftButton) edits_->ReleaseHandle();
  if (handle == kRotateHandle && edits_->Dragging())
    emit TurnedTo(handles_[kRotateHandle]->mapTo(parentWidget(), mouse.position().toPoint()));
  // A move that leaves the button would come to the strip next, and move that.
  return type == QEvent::MouseMove;
}

// ---------------------------------------------------------------- place

void EditStrip::PlaceOver(int window, const QRect& picture) {
  if (window == window_ && picture == picture_) return;
  if (window != window_) moved_.reset();
  window_ = window;
  picture_ = picture;
  Arrange();
}

/// At the lower edge of its picture, or where the user has put it; always inside the stage. Over a narrow
/// picture it does without words.
void EditStrip::Arrange() {
  const QMargins edges = layout()->contentsMargins();
  int buttons = edges.left() + edges.right() + 2 * kWordsGap;
  for (const QToolButton* button : findChildren<QToolButton*>()) buttons += button->width() + layout()->spacing();
  words_->setVisible(buttons + words_->minimumWidth() <= picture_.width());
  adjustSize();
  const QPoint wanted = moved_ ? picture_.topLeft() + *moved_
                               : QPoint(picture_.center().x() - width() / 2, picture_.bottom() - kFromEdge - height());
  MoveInside(wanted);
}

void EditStrip::MovedTo(QPoint corner) {
  moved_ = corner - picture_.topLeft();
  Arrange();
}

void EditStrip::Dress() {
  WearStageSheet(this, kStripSheet);
  DressStageButtons(this);
  words_->setMinimumWidth(QFontMetrics(UiFont(12)).horizontalAdvance(tr("Parallelogram, 10 of 10")));
  if (!isHidden()) Arrange();
}

}  // namespace kinalyx
