#include "workspace/forms/DrawCaption.h"

#include <QBoxLayout>
#include <QEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QToolButton>

#include "platform/widgets/Icons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {

DrawCaption::DrawCaption(QWidget* parent) : StagePanel("DrawCaption", parent) {
  setProperty("look", "card");
  auto* row = new QHBoxLayout(this);
  row->setSpacing(8);
  swatch_ = new QFrame(this);
  swatch_->setObjectName("VectorColorDisplay");
  FixSize(swatch_, {14, 14});
  text_ = MakeLabel("DrawText", "", nullptr, this);
  off_ = new QToolButton(this);
  off_->setObjectName("DrawOffBtn");
  FixSize(off_, {22, 22});
  FixIcon(off_, 14);
  off_->setFocusPolicy(Qt::NoFocus);
  off_->setToolTip(tr("Put the tool down"));
  off_->setAccessibleName(off_->toolTip());
  connect(off_, &QToolButton::clicked, this, &DrawCaption::Off);
  row->addWidget(swatch_);
  row->addWidget(text_);
  row->addWidget(off_);
  ShowParts(false);
  setMouseTracking(true);
  for (QWidget* part : {static_cast<QWidget*>(swatch_), static_cast<QWidget*>(text_)})
    part->setAttribute(Qt::WA_TransparentForMouseEvents);
  off_->setCursor(Qt::ArrowCursor);
  hide();
  FirstDress();
}

QWidget* DrawCaption::Beneath(const QPoint& at) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  QWidget* const found = parentWidget()->childAt(mapToParent(at));
  setAttribute(Qt::WA_TransparentForMouseEvents, false);
  return found;
}

bool DrawCaption::event(QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease && type != QEvent::MouseMove &&
      type != QEvent::MouseButtonDblClick)
    return QFrame::event(event);
  const auto& mouse = static_cast<const QMouseEvent&>(*event);
  QWidget* const target = pressed_ ? pressed_.data() : Beneath(mouse.position().toPoint());
  if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick) pressed_ = target;
  if (type == QEvent::MouseButtonRelease && mouse.buttons() == Qt::NoButton) pressed_ = nullptr;
  if (!target) return true;
  setCursor(target->cursor());
  QMouseEvent through(type, target->mapFromGlobal(mouse.globalPosition()), mouse.globalPosition(), mouse.button(),
                      mouse.buttons(), mouse.modifiers());
  QCoreApplication::sendEvent(target, &through);
  return true;
}

void DrawCaption::SetText(const QString& text) {
  const QString words = text.trimmed();
  if (words == text_->text()) return;
  text_->setText(words);
  setVisible(!words.isEmpty());
  emit Changed();
}

void DrawCaption::ShowColor(Colour colour) {
  swatch_->setStyleSheet(QString("background: %1; border: 1px solid rgba(255, 255, 255, 150); border-radius: 4px;")
                             .arg(ToQColor(colour).name()));
  ShowParts(true);
  emit Changed();
}

void DrawCaption::HideColor() {
  if (swatch_->isHidden()) return;
  ShowParts(false);
  emit Changed();
}

/// Colour and button come and go together; without them the words stand in the middle of the card.
void DrawCaption::ShowParts(bool shown) {
  swatch_->setVisible(shown);
  off_->setVisible(shown);
  layout()->setContentsMargins(10, shown ? 4 : 6, shown ? 4 : 10, shown ? 4 : 6);
}

void DrawCaption::Dress() {
  WearStageSheet(this, kCardSheet);
  off_->setIcon(Icon("close", StageLook::Current().ink));
}

}  // namespace kinalyx
