#include "platform/widgets/Scale.h"

#include <QAbstractButton>
#include <QApplication>
#include <QRegularExpression>
#include <QScreen>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

// The application object carries what it wears, and each widget the lengths that were designed for it.
constexpr const char* kTextProperty = "kinalyxText";
constexpr const char* kLengthsProperty = "kinalyxLengths";

struct Lengths {
  int fixedWidth = 0;  // 0: none was designed
  int fixedHeight = 0;
  int leastWidth = 0;
  int leastHeight = 0;
  int mostWidth = 0;
  int icon = 0;
  int font = 0;
  int weight = 0;
  QString sheet;
};

void Take(QWidget& widget, const Lengths& lengths) {
  if (lengths.fixedWidth) widget.setFixedWidth(Px(lengths.fixedWidth));
  if (lengths.fixedHeight) widget.setFixedHeight(Px(lengths.fixedHeight));
  if (lengths.leastWidth) widget.setMinimumWidth(Px(lengths.leastWidth));
  if (lengths.leastHeight) widget.setMinimumHeight(Px(lengths.leastHeight));
  if (lengths.mostWidth) widget.setMaximumWidth(Px(lengths.mostWidth));
  if (lengths.font) widget.setFont(UiFont(lengths.font, lengths.weight));
  if (auto* button = qobject_cast<QAbstractButton*>(&widget); button && lengths.icon)
    button->setIconSize(QSize(Px(lengths.icon), Px(lengths.icon)));
  if (lengths.sheet.isEmpty()) return;
  const QString sheet = WithSizes(lengths.sheet);
  if (widget.styleSheet() != sheet) widget.setStyleSheet(sheet);
}

template <typename Change>
void Keep(QWidget* widget, Change change) {
  auto lengths = widget->property(kLengthsProperty).value<Lengths>();
  change(lengths);
  widget->setProperty(kLengthsProperty, QVariant::fromValue(lengths));
  Take(*widget, lengths);
}

}  // namespace

int TextPixels() {
  const QVariant worn = qApp ? qApp->property(kTextProperty) : QVariant();
  return worn.isValid() ? worn.toInt() : kTextPixels;
}

bool SetTextPixels(QApplication& application, int pixels) {
  if (pixels == TextPixels()) return false;
  application.setProperty(kTextProperty, pixels);
  return true;
}

int Px(double designed) {
  return static_cast<int>(std::lround(designed * std::max(TextPixels(), kTextPixels) / kTextPixels));
}

QString WithSizes(const QString& sheet) {
  static const QRegularExpression kLength("@(\\d+)(?:-(\\d+)|/(\\d+))?");
  QString result;
  qsizetype done = 0;
  for (auto found = kLength.globalMatch(sheet); found.hasNext();) {
    const auto match = found.next();
    result += sheet.mid(done, match.capturedStart() - done);
    const int parts = match.hasCaptured(3) ? std::max(match.captured(3).toInt(), 1) : 1;
    result += QString::number((Px(match.captured(1).toInt()) - match.captured(2).toInt()) / parts) + "px";
    done = match.capturedEnd();
  }
  return result + sheet.mid(done);
}

void FixWidth(QWidget* widget, int designed) {
  Keep(widget, [&](Lengths& lengths) { lengths.fixedWidth = designed; });
}

void FixHeight(QWidget* widget, int designed) {
  Keep(widget, [&](Lengths& lengths) { lengths.fixedHeight = designed; });
}

void FixSize(QWidget* widget, QSize designed) {
  Keep(widget, [&](Lengths& lengths) {
    lengths.fixedWidth = designed.width();
    lengths.fixedHeight = designed.height();
  });
}

void LeastWidth(QWidget* widget, int designed) {
  Keep(widget, [&](Lengths& lengths) { lengths.leastWidth = designed; });
}

void LeastHeight(QWidget* widget, int designed) {
  Keep(widget, [&](Lengths& lengths) { lengths.leastHeight = designed; });
}

void MostWidth(QWidget* widget, int designed) {
  Keep(widget, [&](Lengths& lengths) { lengths.mostWidth = designed; });
}

void FixIcon(QAbstractButton* button, int designed) {
  Keep(button, [&](Lengths& lengths) { lengths.icon = designed; });
}

void FixFont(QWidget* widget, int pixels, int weight) {
  Keep(widget, [&](Lengths& lengths) {
    lengths.font = pixels;
    lengths.weight = weight;
  });
}

void WearSheet(QWidget* widget, const QString& sheet) {
  Keep(widget, [&](Lengths& lengths) { lengths.sheet = sheet; });
}

void ScaleContent(QWidget& target) {
  const auto take = [](QWidget& widget) {
    const QVariant kept = widget.property(kLengthsProperty);
    if (kept.isValid()) Take(widget, kept.value<Lengths>());
  };
  take(target);
  for (QWidget* child : target.findChildren<QWidget*>()) take(*child);
}

void ScaleForm(QWidget& target, const QWidget& reference) {
  ScaleContent(target);
  target.adjustSize();
  if (!target.isWindow()) return;
  const QWidget& main = *reference.window();
  QRect place(QPoint(), target.size());
  place.moveCenter(main.geometry().center());
  if (const QScreen* screen = main.screen()) {
    const QRect room = screen->availableGeometry();
    place.moveLeft(std::max(room.left(), std::min(place.left(), room.right() + 1 - place.width())));
    place.moveTop(std::max(room.top(), std::min(place.top(), room.bottom() + 1 - place.height())));
  }
  target.move(place.topLeft());
}

}  // namespace kinalyx
