#include "workspace/forms/CarvePanel.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/stage/PlayerPlace.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {

// ---------------------------------------------------------------- CarvePanel

CarvePanel::CarvePanel(Carve& carve, QWidget* parent)
    : FloatCard("CarvePanel", tr("Transparency Carve"), parent), carve_(carve) {
  content_ = new QWidget(this);
  auto* rows = new QVBoxLayout(content_);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(8);
  hint_ = MakeLabel("CarveHint", {}, nullptr, content_);
  hint_->setWordWrap(true);
  FixWidth(hint_, 250);
  rows->addWidget(hint_);
  auto* scale = new QHBoxLayout;
  scale->setSpacing(8);
  scale->addWidget(MakeLabel("CScrollLabel", tr("Size"), nullptr, content_));
  CScroll_ = new QSlider(Qt::Horizontal, content_);
  CScroll_->setObjectName("CScroll");
  CScroll_->setRange(Carve::kSmallest, Carve::kLargest);
  CScroll_->setPageStep(20);
  CScroll_->setAccessibleName(tr("Size of the piece"));
  CScroll_->setToolTip(CScroll_->accessibleName());
  CScroll_->setFocusPolicy(Qt::TabFocus);
  scale->addWidget(CScroll_, 1);
  percent_ = MakeLabel("CScrollPercent", {}, nullptr, content_);
  LeastWidth(percent_, 48);
  percent_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  scale->addWidget(percent_);
  rows->addLayout(scale);
  auto* shine = new QHBoxLayout;
  shine->setSpacing(8);
  shine->addWidget(MakeLabel("CarveOpacityLabel", tr("Opacity"), nullptr, content_));
  opacity_ = new QSlider(Qt::Horizontal, content_);
  opacity_->setObjectName("CarveOpacity");
  opacity_->setRange(15, 100);
  opacity_->setValue(100);
  opacity_->setAccessibleName(tr("Opacity of the piece"));
  opacity_->setToolTip(tr("How much of the piece is seen over the video beneath"));
  opacity_->setFocusPolicy(Qt::TabFocus);
  shine->addWidget(opacity_, 1);
  rows->addLayout(shine);
  anew_ = new QPushButton(tr("Cut Another Part"), content_);
  anew_->setObjectName("CarveAnewBtn");
  anew_->setToolTip(tr("Marks another area of the same video"));
  anew_->setFocusPolicy(Qt::TabFocus);
  rows->addWidget(anew_);
  Body()->addWidget(content_);
  connect(CScroll_, &QSlider::valueChanged, this, [this](int percent) {
    percent_->setText(QString("%1 %").arg(percent));
    carve_.ScalePiece(percent);
  });
  connect(opacity_, &QSlider::valueChanged, this, [this](int percent) { emit OpacityChanged(percent / 100.0); });
  connect(anew_, &QPushButton::clicked, this, [this] { carve_.MarkAnew(); });
  connect(this, &FloatCard::CloseWanted, this, [this] { carve_.ToggleCarve(); });
  FirstDress();
}

void CarvePanel::Begin() {
  {
    const QSignalBlocker quiet(CScroll_);
    CScroll_->setValue(carve_.CScroll());
  }
  percent_->setText(QString("%1 %").arg(carve_.CScroll()));
  opacity_->setValue(100);
  SetFloating(false);
}

void CarvePanel::SetFloating(bool floating) {
  hint_->setText(floating ? tr("Drag the piece to where you want it.")
                          : tr("Drag the mouse over the part of the video that you want to cut out."));
  CScroll_->setEnabled(floating);
  opacity_->setEnabled(floating);
  anew_->setEnabled(floating);
}

void CarvePanel::Dress() {
  FloatCard::Dress();
  WearStageSheet(content_, kCompareSheet);
  // Two lines, whatever it says: the card keeps its height.
  hint_->setFixedHeight(2 * QFontMetrics(UiFont()).lineSpacing() + 4);
}

// ---------------------------------------------------------------- CarveCanvas

CarveCanvas::CarveCanvas(Carve& carve, Stage& theStage, QWidget* stage)
    : QWidget(stage), carve_(carve), theStage_(theStage) {
  setObjectName("CarvePic");
  setCursor(Qt::CrossCursor);
  hide();
}

void CarveCanvas::ShowOver(int slot) {
  slot_ = slot;
  mark_ = {};
  const Slot& at = theStage_.At(slot);
  setGeometry((at.cell.Left + at.panel.Left) / kTwipsPerPixel, (at.cell.Top + at.panel.Top) / kTwipsPerPixel,
              at.panel.Width / kTwipsPerPixel, at.panel.Height / kTwipsPerPixel);
  show();
  raise();
}

QPointF CarveCanvas::Corner() const {
  const POINTAPI corner = PlayerCorner(theStage_.At(slot_));
  return QPointF(corner.x, corner.y) / devicePixelRatioF();
}

void CarveCanvas::ShowMark(int left, int top, int width, int height) {
  const qreal ratio = devicePixelRatioF();
  const QPointF corner = Corner() + QPointF(left, top) / ratio;
  mark_ = width > 0 || height > 0 ? QRectF(corner, QSizeF(width, height) / ratio).toRect() : QRect();
  update();
}

POINTAPI CarveCanvas::PicturePoint(const QMouseEvent& event) const {
  const QPointF at = (event.position() - Corner()) * devicePixelRatioF();
  return {qRound(at.x()), qRound(at.y())};
}

void CarveCanvas::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QRegion shade(rect());
  if (!mark_.isEmpty()) shade -= mark_;
  painter.setClipRegion(shade);
  painter.fillRect(rect(), QColor(0, 0, 0, 90));
  painter.setClipping(false);
  if (mark_.isEmpty()) return;
  painter.setPen(QPen(StageLook::Current().mark, 2));
  painter.drawRect(mark_);
}

void CarveCanvas::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) carve_.BeginMark(PicturePoint(*event));
}

void CarveCanvas::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() & Qt::LeftButton) carve_.MoveMark(PicturePoint(*event));
}

void CarveCanvas::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) carve_.EndMark(PicturePoint(*event));
}

// ---------------------------------------------------------------- CarvePiece

CarvePiece::CarvePiece(Carve& carve, QWidget* stage) : SurfaceView("picRot", stage), carve_(carve) {
  setCursor(Qt::SizeAllCursor);
  setToolTip(tr("Drag the piece to where you want it"));
}

void CarvePiece::ShowAt(const Surface& piece, POINTAPI corner) {
  if (piece.Empty()) return hide();
  Show(piece);
  const qreal ratio = devicePixelRatioF();
  setGeometry(qRound(corner.x / ratio), qRound(corner.y / ratio), qRound(piece.Width() / ratio),
              qRound(piece.Height() / ratio));
  if (!isHidden()) return;
  show();
  raise();
}

void CarvePiece::SetOpacity(double opacity) {
  opacity_ = opacity;
  setAttribute(Qt::WA_OpaquePaintEvent, opacity >= 1);
  update();
}

void CarvePiece::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setOpacity(opacity_);
  if (!Picture().isNull()) painter.drawImage(0, 0, Picture());
  painter.setOpacity(1);
  painter.setPen(QPen(StageLook::Current().accent, 2));
  painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
}

POINTAPI CarvePiece::StagePoint(const QMouseEvent& event) const {
  const QPointF at = mapToParent(event.position()) * devicePixelRatioF();
  return {qRound(at.x()), qRound(at.y())};
}

void CarvePiece::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) carve_.GrabPiece(StagePoint(*event));
}

void CarvePiece::mouseMoveEvent(QMouseEvent* event) { carve_.DragPiece(StagePoint(*event)); }

}  // namespace kinalyx
