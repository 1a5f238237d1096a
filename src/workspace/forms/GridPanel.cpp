#include "workspace/forms/GridPanel.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "workspace/forms/StageLook.h"
#include "workspace/forms/StageParts.h"

namespace kinalyx {

GridPanel::GridPanel(DrawingEdits& edits, QWidget* stage)
    : FloatCard("GridPanel", tr("Adjust Grid Size"), stage), edits_(edits) {
  content_ = new QWidget(this);
  FixWidth(content_, 280);
  auto* rows = new QVBoxLayout(content_);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(8);
  size_ = MakeLabel("GridSize", {}, nullptr, content_);
  rows->addWidget(size_);
  HScroll3_ = new QSlider(Qt::Horizontal, content_);
  HScroll3_->setObjectName("HScroll3");
  HScroll3_->setRange(kGridSizeLeast, kGridSizeMost);
  HScroll3_->setPageStep(5);
  HScroll3_->setAccessibleName(tr("Squares across the picture"));
  HScroll3_->setToolTip(HScroll3_->accessibleName());
  HScroll3_->setFocusPolicy(Qt::StrongFocus);
  rows->addWidget(HScroll3_);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  show_ = new QPushButton(tr("Show Grid"), content_);
  show_->setObjectName("GridPanelShow");
  show_->setCheckable(true);
  auto* close = new QPushButton(tr("Close"), content_);
  close->setObjectName("GridSizeClose");
  for (QPushButton* button : {show_, close}) {
    button->setFocusPolicy(Qt::TabFocus);
    buttons->addWidget(button, 1);
  }
  rows->addLayout(buttons);
  Body()->addWidget(content_);

  connect(HScroll3_, &QSlider::valueChanged, this, [this](int divisions) {
    ShowSize(divisions);
    edits_.SetGridSize(divisions);
  });
  connect(show_, &QPushButton::clicked, this, [this] {
    edits_.ToggleGrid();
    Update();
  });
  connect(close, &QPushButton::clicked, this, [this] { edits_.CloseGridPanel(); });
  connect(this, &FloatCard::CloseWanted, this, [this] { edits_.CloseGridPanel(); });
  FirstDress();
}

void GridPanel::ShowSize(int divisions) { size_->setText(tr("%1 squares across the picture").arg(divisions)); }

void GridPanel::Begin() {
  {
    const QSignalBlocker quiet(HScroll3_);
    HScroll3_->setValue(edits_.GridSize());
  }
  ShowSize(HScroll3_->value());
  Update();
  Open(Place::Top);
}

void GridPanel::Update() {
  show_->setEnabled(edits_.HasVideo());
  show_->setToolTip(edits_.HasVideo() ? tr("Turns the grid of the current window on or off (F12)")
                                      : tr("Open a video first"));
  show_->setChecked(edits_.HasVideo() && edits_.GridOn());
}

void GridPanel::Dress() {
  FloatCard::Dress();
  WearStageSheet(content_, kCompareSheet);
}

}  // namespace kinalyx
