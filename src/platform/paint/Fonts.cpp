#include "platform/paint/Fonts.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <algorithm>
#include <cmath>

#include "platform/paint/QtFonts.h"

namespace kinalyx {

struct GraphicsSession::Application {
  std::string name = "kinalyx";
  std::string option = "-platform";
  std::string platform = "offscreen";
  char* words[4] = {name.data(), option.data(), platform.data(), nullptr};
  int count = 3;
  QGuiApplication application{count, words};
};

GraphicsSession::GraphicsSession() {
  if (!QCoreApplication::instance()) application_ = std::make_unique<Application>();
}

GraphicsSession::GraphicsSession(GraphicsSession&&) noexcept = default;
GraphicsSession& GraphicsSession::operator=(GraphicsSession&&) noexcept = default;
GraphicsSession::~GraphicsSession() = default;

bool HasFonts() { return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr; }

bool FontFamilyExists(const std::string& family) {
  return HasFonts() && QFontDatabase::families().contains(QString::fromStdString(family), Qt::CaseInsensitive);
}

double FontLineHeight(const FontFace& face) { return HasFonts() ? QFontMetricsF(ToQtFont(face)).lineSpacing() : 0; }

FontFace CanvasFont(int height) {
  FontFace face;
  if (!HasFonts()) return face;
  const QFont font = FontOfHeight(height);
  face.family = font.family().toStdString();
  face.pixels = font.pixelSize();
  return face;
}

QFont FontOfHeight(int height) {
  QFont font = QGuiApplication::font();
  height = std::max(1, height);
  font.setPixelSize(height);
  const double lineHeight = QFontMetricsF(font).height();
  if (lineHeight > 0)
    font.setPixelSize(std::max(1, static_cast<int>(std::floor(1.0 * height * height / lineHeight))));
  return font;
}

QFont ToQtFont(const FontFace& face) {
  QFont font = QGuiApplication::font();
  if (!face.family.empty()) font.setFamily(QString::fromStdString(face.family));
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(std::min(face.pixels, 10000.0)))));
  font.setBold(face.bold);
  font.setItalic(face.italic);
  font.setUnderline(face.underline);
  font.setStrikeOut(face.strikeOut);
  return font;
}

}  // namespace kinalyx
