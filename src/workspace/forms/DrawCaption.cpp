#include "workspace/forms/DrawCaption.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QToolButton>

#include "platform/widgets/Icons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {

DrawCaption::DrawCaption(QWidget* parent) : QFrame(parent) {
  setObjectName("DrawCaption");
  setProperty("look", "card");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(10, 4, 4, 4);
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
  connect(off_, &QToolButton::clicked, this, &DrawCaption::Off);
  row->addWidget(swatch_);
  row->addWidget(text_);
  row->addWidget(off_);
  swatch_->hide();
  hide();
  Dress();
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
                             .arg(ColorOf(colour).name()));
  swatch_->show();
  off_->setToolTip(tr("Put the tool down"));
  emit Changed();
}

void DrawCaption::HideColor() {
  if (swatch_->isHidden()) return;
  swatch_->hide();
  off_->setToolTip(tr("Hide"));
  emit Changed();
}

void DrawCaption::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::StyleChange && off_) Dress();
}

void DrawCaption::Dress() {
  WearStageSheet(this, kCardSheet);
  off_->setIcon(Icon("close", StageLook::Current().ink));
}

}  // namespace kinalyx
