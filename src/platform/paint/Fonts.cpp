#include "platform/paint/Fonts.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <algorithm>
#include <cmath>

namespace kinalyx {

bool HasFonts() { return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr; }

QFont FontOfHeight(int height) {
  QFont font = QGuiApplication::font();
  font.setPixelSize(std::max(1, height));
  const double lineHeight = QFontMetricsF(font).height();
  if (lineHeight > 0) font.setPixelSize(std::max(1, static_cast<int>(std::floor(height * height / lineHeight))));
  return font;
}

}  // namespace kinalyx
