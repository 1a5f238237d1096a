#include "workspace/forms/ColorRow.h"

#include <QBoxLayout>
#include <QPainter>
#include <QToolButton>
#include <algorithm>

#include "drawing/DrawingTools.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

constexpr const char* kNames[] = {TrLater("Red"),     TrLater("Yellow"), TrLater("Blue"),      TrLater("Green"),
                                  TrLater("Magenta"), TrLater("Teal"),   TrLater("Orange"),    TrLater("Dark green"),
                                  TrLater("Cyan"),    TrLater("White"),  TrLater("Dark blue"), TrLater("Pink")};

/// One of the choices of the palette, which leaves the keys to the workspace.
void MakeChoice(QToolButton& button, const QString& name, const QString& accessibleName) {
  button.setObjectName(name);
  button.setAccessibleName(accessibleName);
  FixSize(&button, {22, 24});
  button.setCheckable(true);
  button.setFocusPolicy(Qt::NoFocus);
  button.setCursor(Qt::PointingHandCursor);
  button.setAttribute(Qt::WA_Hover);
}

/// A dot of its colour with a rim that shows it on any ground; a ring round the one that is pressed.
class ColorButton : public QToolButton {
 public:
  ColorButton(int index, QWidget* parent) : QToolButton(parent) {
    colour_ = ToQColor(kColorChoices[static_cast<std::size_t>(index)]);
    MakeChoice(*this, QString("ColorChoiceBtn%1").arg(index), tr(kNames[index]));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const Theme theme = CurrentTheme();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF middle(width() / 2.0, height() / 2.0);
    QColor fill = colour_;
    if (!isEnabled()) fill = Mix(fill, theme.panel, 0.62);
    if (isChecked() || (isEnabled() && underMouse())) {
      painter.setPen(QPen(isChecked() ? theme.heading : theme.muted, 2));
      painter.setBrush(Qt::NoBrush);
      painter.drawEllipse(middle, width() * 0.43, width() * 0.43);
    }
    painter.setPen(QPen(isEnabled() ? Mix(theme.text, fill, 0.35) : Mix(theme.faint, theme.panel, 0.5), 1));
    painter.setBrush(fill);
    painter.drawEllipse(middle, width() * 0.3, width() * 0.3);
  }

 private:
  QColor colour_;
};

/// A line of its width; a ground round the one that is pressed.
class LineButton : public QToolButton {
 public:
  LineButton(const LineWidth& width, QWidget* parent) : QToolButton(parent), pixels_(width.pixels) {
    MakeChoice(*this, QString("WidthChoiceBtn%1").arg(width.pixels), tr("%1 lines").arg(tr(width.name)));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const Theme theme = CurrentTheme();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isChecked() || (isEnabled() && underMouse())) {
      painter.setPen(QPen(isChecked() ? theme.heading : theme.muted, 1.5));
      painter.drawRoundedRect(QRectF(rect()).adjusted(1, 2, -1, -2), 5, 5);
    }
    painter.setPen(QPen(isEnabled() ? theme.text : Mix(theme.faint, theme.panel, 0.5), std::min(pixels_, 7) * 0.8,
                        Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(width() * 0.27, height() * 0.66), QPointF(width() * 0.73, height() * 0.34));
  }

 private:
  int pixels_;
};

}  // namespace

QString ColorRow::NameOf(int index) { return tr(kNames[index]); }

ColorRow::ColorRow(QWidget* parent) : QWidget(parent) {
  setObjectName("ColorRow");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 8, 0);
  row->setSpacing(0);
  for (int i = 0; i < static_cast<int>(buttons_.size()); ++i) {
    auto* button = new ColorButton(i, this);
    connect(button, &QToolButton::clicked, this, [this, i] { emit Chosen(i); });
    row->addWidget(button);
    buttons_[static_cast<std::size_t>(i)] = button;
  }
  row->addSpacing(4);
  for (std::size_t i = 0; i < widths_.size(); ++i) {
    widths_[i] = new LineButton(kLineWidths[i], this);
    connect(widths_[i], &QToolButton::clicked, this, [this, i] { emit WidthChosen(kLineWidths[i].pixels); });
    row->addWidget(widths_[i]);
  }
  SetLive(false);
}

void ColorRow::PressWidth(int pixels) {
  for (std::size_t i = 0; i < widths_.size(); ++i) widths_[i]->setChecked(kLineWidths[i].pixels == pixels);
}

void ColorRow::Press(int index) {
  for (int i = 0; i < static_cast<int>(buttons_.size()); ++i)
    buttons_[static_cast<std::size_t>(i)]->setChecked(i == index);
}

void ColorRow::SetLive(bool live) {
  for (int i = 0; i < static_cast<int>(buttons_.size()); ++i) {
    QToolButton* button = buttons_[static_cast<std::size_t>(i)];
    button->setEnabled(live);
    button->setToolTip(live ? tr("Draw in this color: %1").arg(tr(kNames[i]).toLower())
                            : tr("Take up a drawing tool, or click a drawing, to choose its color"));
  }
  for (std::size_t i = 0; i < widths_.size(); ++i) {
    widths_[i]->setEnabled(live);
    widths_[i]->setToolTip(tr("%1 lines").arg(tr(kLineWidths[i].name)));
  }
}

}  // namespace kinalyx
