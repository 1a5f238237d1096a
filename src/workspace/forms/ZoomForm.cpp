#include "workspace/forms/ZoomForm.h"

#include <QEvent>
#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/widgets/Scale.h"
#include "workspace/forms/StageLook.h"
#include "workspace/forms/StageParts.h"

namespace kinalyx {

ZoomForm::ZoomForm(ZoomPan& zoom, QWidget* parent) : FloatCard("ZoomForm", tr("Zoom"), parent), zoom_(zoom) {
  content_ = new QWidget(this);
  auto* grid = new QGridLayout(content_);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(4);

  struct Place {
    const char* icon;
    QString tip;
    int row;
    int column;
  };
  const Place pans[] = {{"chevron-up", tr("Pan up (keypad 8); hold to go on"), 0, 1},
                        {"chevron-right", tr("Pan right (keypad 6); hold to go on"), 1, 2},
                        {"chevron-down", tr("Pan down (keypad 2); hold to go on"), 2, 1},
                        {"chevron-left", tr("Pan left (keypad 4); hold to go on"), 1, 0},
                        {"pan", tr("Back to the centre at full size (keypad 5)"), 1, 1}};
  for (int i = 0; i < 5; ++i) {
    QToolButton* pan = StageButton(QString("PanBtn%1").arg(i), pans[i].icon, pans[i].tip, content_);
    FixSize(pan, {36, 36});
    connect(pan, &QToolButton::pressed, this, [this, i] { zoom_.BeginPan(static_cast<PanMove>(i)); });
    connect(pan, &QToolButton::released, this, [this] { zoom_.EndPan(); });
    grid->addWidget(pan, pans[i].row, pans[i].column);
  }

  grid->setColumnMinimumWidth(3, 10);
  const Place zooms[] = {{"zoom-out", tr("Zoom out (-)"), 2, 4}, {"zoom", tr("Zoom in (+)"), 0, 4}};
  for (int i = 0; i < 2; ++i) {
    QToolButton* button = StageButton(QString("ZoomBtn%1").arg(i), zooms[i].icon, zooms[i].tip, content_);
    FixSize(button, {56, 36});
    button->setAutoRepeat(true);
    button->setAutoRepeatDelay(350);
    button->setAutoRepeatInterval(80);
    connect(button, &QToolButton::clicked, this, [this, i] { zoom_.Zoom(static_cast<ZoomMove>(i)); });
    grid->addWidget(button, zooms[i].row, zooms[i].column);
  }
  auto* whole = new QToolButton(content_);
  whole->setObjectName("ZoomBtn2");
  whole->setText(tr("1 to 1"));
  whole->setToolTip(tr("Full size, centred (J)"));
  whole->setFocusPolicy(Qt::NoFocus);
  FixSize(whole, {56, 36});
  connect(whole, &QToolButton::clicked, this, [this] { zoom_.Zoom(ZoomMove::Whole); });
  grid->addWidget(whole, 1, 4);
  figure_ = new FigureLabel("ZoomPercent", {}, content_);
  figure_->setAlignment(Qt::AlignCenter);
  figure_->setToolTip(tr("Zoom of the current window"));
  grid->addWidget(figure_, 3, 4);
  fit_ = StageButton("ZoomFitBtn", "fit", tr("Fit the whole picture in its window, or fill the window (W)"), content_);
  fit_->setCheckable(true);
  FixSize(fit_, {36, 36});
  connect(fit_, &QToolButton::clicked, this, [this] { zoom_.ToggleFit(); });
  grid->addWidget(fit_, 3, 1);
  ShowZoom(1, false);
  Body()->addWidget(content_);
  FirstDress();
}

void ZoomForm::ShowZoom(double zoom, bool fits) {
  figure_->setText(tr("%1 %").arg(qRound(zoom * 100)));
  fit_->setChecked(fits);
}

void ZoomForm::hideEvent(QHideEvent* event) {
  zoom_.EndPan();  // the button that is down goes with the form
  FloatCard::hideEvent(event);
}

void ZoomForm::Dress() {
  FloatCard::Dress();
  WearStageSheet(content_, kCompareSheet);
  DressStageButtons(content_);
}

}  // namespace kinalyx
