#include "platform/host/DesktopManners.h"

// Qt's word "signals" is a name in the headers of GIO.
#undef signals
#include <gio/gio.h>

#include <QFontInfo>
#include <QGuiApplication>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>
#include <memory>

namespace kinalyx {

namespace {

/// Up to here a font is one that desktops have by themselves: 9 to 11 points at 96 dots an inch.
constexpr double kUsualPixels = 15;
constexpr double kMostScale = 1.5;

/// GNOME's and its relatives'.
bool GnomeIsStill() {
  constexpr const char* kSchema = "org.gnome.desktop.interface";
  constexpr const char* kKey = "enable-animations";
  // To ask for a schema that is not there ends the program.
  GSettingsSchemaSource* source = g_settings_schema_source_get_default();
  const std::unique_ptr<GSettingsSchema, void (*)(GSettingsSchema*)> schema(
      source ? g_settings_schema_source_lookup(source, kSchema, TRUE) : nullptr,
      [](GSettingsSchema* s) { g_settings_schema_unref(s); });
  if (!schema || !g_settings_schema_has_key(schema.get(), kKey)) return false;
  GSettings* settings = g_settings_new(kSchema);
  const bool still = !g_settings_get_boolean(settings, kKey);
  g_object_unref(settings);
  return still;
}

bool PlasmaIsStill() {
  const QString file = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, "kdeglobals");
  if (file.isEmpty()) return false;
  return QSettings(file, QSettings::IniFormat).value("KDE/AnimationDurationFactor", 1.0).toDouble() == 0;
}

}  // namespace

DesktopManners AskDesktop() {
  const double pixels = QFontInfo(QGuiApplication::font()).pixelSize();
  return {.textScale = std::clamp(pixels / kUsualPixels, 1.0, kMostScale), .still = GnomeIsStill() || PlasmaIsStill()};
}

}  // namespace kinalyx
