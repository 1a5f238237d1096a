#include "workspace/forms/StageParts.h"

#include <QPainter>
#include <algorithm>
#include <cstring>

#include "platform/widgets/Icons.h"
#include "platform/widgets/Scale.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr const char* kIconProperty = "stageIcon";
constexpr int kButton = 32;

void Dress(QToolButton* button) {
  const StageLook look = StageLook::Current();
  button->setIcon(Icon(button->property(kIconProperty).toString(), look.ink, look.ink, look.faintInk));
}

}  // namespace

const char* const kCompareSheet =
    "QFrame[look=\"bar\"] { background: @ground; border: none; border-top: 1px solid @cardLine; }"
    "QLabel { color: @ink; background: transparent; border: none; }"
    "QLabel[muted=\"true\"] { color: @faintInk; font-size: @11; }"
    "QToolButton { border: none; border-radius: 6px; background: transparent; color: @ink; padding: 0; }"
    "QToolButton:hover { background: @hover; }"
    "QToolButton:pressed, QToolButton:checked { background: @accentFill; }"
    "QToolButton:disabled { color: @faintInk; }"
    "QToolButton[main=\"true\"] { background: @accentFill; }"
    "QToolButton[main=\"true\"]:hover { background: @accentHover; }"
    "QToolButton[main=\"true\"]:disabled { background: @card; }"
    "QPushButton { background: @hover; color: @ink; border: 1px solid @cardLine; border-radius: 8px; padding: 0 @12;"
    "  min-height: @32-2; max-height: @32-2; }"
    "QPushButton:hover { border-color: @accent; }"
    "QPushButton:pressed, QPushButton:checked { background: @accentFill; }"
    "QPushButton:focus { border-color: @accent; }"
    "QPushButton:disabled { color: @faintInk; background: @card; }"
    "QPushButton[choice=\"true\"] { border-radius: 0; border-left-width: 0; background: @card; }"
    "QPushButton[choice=\"true\"]:checked { background: @accentFill; }"
    "QPushButton[place=\"first\"] { border-left-width: 1px; border-top-left-radius: 8px;"
    "  border-bottom-left-radius: 8px; }"
    "QPushButton[place=\"last\"] { border-top-right-radius: 8px; border-bottom-right-radius: 8px; }"
    "QSlider { background: transparent; min-height: 24px; }"
    "QSlider::groove:horizontal { height: 4px; background: @cardLine; border-radius: 2px; }"
    "QSlider::sub-page:horizontal { background: @accent; border-radius: 2px; }"
    "QSlider::sub-page:horizontal:disabled { background: @cardLine; }"
    "QSlider::handle:horizontal { width: 16px; margin: -6px 0; border-radius: 8px; background: white; }"
    "QSlider::handle:horizontal:disabled { background: @faintInk; }"
    "QSlider::handle:horizontal:focus { background: @mark; }"
    "QComboBox { color: @ink; min-height: @32; max-height: @32; }"
    "QComboBox:disabled { color: @faintInk; }"
    "QComboBox QLineEdit { color: @ink; selection-background-color: @accentFill; selection-color: @ink; }"
    "QComboBox QAbstractItemView { background: @card; color: @ink; border: 1px solid @cardLine;"
    "  selection-background-color: @accentFill; selection-color: @ink; }"
    "QComboBox QAbstractItemView::item:selected { background: @accentFill; color: @ink; }"
    "QScrollBar::handle { background: @outline; }";

QToolButton* StageButton(const QString& name, const QString& icon, const QString& tip, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setProperty(kIconProperty, icon);
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  button->setFocusPolicy(Qt::NoFocus);
  FixIcon(button, 20);
  FixSize(button, {kButton, kButton});
  Dress(button);
  return button;
}

void SetStageIcon(QToolButton* button, const QString& icon) {
  if (button->property(kIconProperty).toString() == icon) return;
  button->setProperty(kIconProperty, icon);
  Dress(button);
}

void DressStageButtons(QWidget* parent) {
  for (QToolButton* button : parent->findChildren<QToolButton*>())
    if (button->property(kIconProperty).isValid()) Dress(button);
}

// ---------------------------------------------------------------- SurfaceView

SurfaceView::SurfaceView(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  setAttribute(Qt::WA_OpaquePaintEvent);
  hide();
}

void SurfaceView::Show(const Surface& picture) {
  if (picture_.size() != QSize(picture.Width(), picture.Height()))
    picture_ = picture.Empty() ? QImage() : QImage(picture.Width(), picture.Height(), QImage::Format_RGB32);
  for (int y = 0; y < picture.Height(); ++y)
    std::memcpy(picture_.scanLine(y), picture.Row(y), static_cast<std::size_t>(picture.Stride()));
  picture_.setDevicePixelRatio(devicePixelRatioF());
  update();
}

void SurfaceView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), Qt::black);
  if (!picture_.isNull()) painter.drawImage(0, 0, picture_);
}

}  // namespace kinalyx
