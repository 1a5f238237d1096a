#include "platform/widgets/Theme.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <algorithm>
#include <cmath>

#include "platform/widgets/Scale.h"
#include "platform/widgets/Style.h"

namespace kinalyx {

namespace {

constexpr SchemeSlots kFirstScheme{8867609, 15984088, 16777215, 15850180};
// The application object carries what it wears.
constexpr const char* kThemeProperty = "kinalyxTheme";
constexpr const char* kStyledProperty = "kinalyxStyled";
constexpr const char* kSheetProperty = "kinalyxSheet";
constexpr const char* kScaledProperty = "kinalyxScaled";

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

// Some schemes name black for the text of nearly black buttons. The light panel colour then speaks in
// its place, so that the page keeps to the scheme's own colours.
QColor TextOnAccent(const QColor& accent, const QColor& named, const QColor& panel) {
  if (ContrastRatio(named, accent) >= 4.5) return named;
  if (ContrastRatio(panel, accent) >= 4.5) return panel;
  return Readable(named, accent);
}

}  // namespace

double ContrastRatio(const QColor& a, const QColor& b) {
  const double first = Luminance(a);
  const double second = Luminance(b);
  const double dark = std::min(first, second);
  const double light = std::max(first, second);
  return (light + 0.05) / (dark + 0.05);
}

QColor Mix(const QColor& a, const QColor& b, double part) {
  const auto blend = [part](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * part)); };
  return QColor(blend(a.red(), b.red()), blend(a.green(), b.green()), blend(a.blue(), b.blue()));
}

QColor Readable(const QColor& wanted, const QColor& ground, double ratio) {
  const QColor target = ContrastRatio(Qt::white, ground) > ContrastRatio(Qt::black, ground) ? Qt::white : Qt::black;
  for (int step = 0; step < 20; ++step) {
    const QColor tried = Mix(wanted, target, step / 20.0);
    if (ContrastRatio(tried, ground) >= ratio) return tried;
  }
  return target;
}

QColor ToneOf(const QColor& colour, double saturation, double lightness) {
  const auto light = static_cast<float>(lightness);
  if (colour.hslSaturationF() < 0.15) return QColor::fromHslF(0.58f, 0.08f, light);
  return QColor::fromHslF(colour.hslHueF(), static_cast<float>(saturation), light);
}

QColor ToQColor(std::int32_t colour) { return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF); }

std::int32_t FromQColor(const QColor& color) { return color.red() | (color.green() << 8) | (color.blue() << 16); }

Theme Theme::FromSlots(const SchemeSlots& scheme) {
  Theme t;
  t.scheme = scheme;
  t.accent = ToQColor(scheme[0]);
  t.panel = ToQColor(scheme[1]);
  t.backdrop = ToQColor(scheme[3]);
  t.accentText = TextOnAccent(t.accent, ToQColor(scheme[2]), t.panel);
  t.dark = ContrastRatio(t.panel, Qt::white) > ContrastRatio(t.panel, Qt::black);
  // A near-black accent cannot be darkened, so it answers the mouse by growing lighter.
  t.accentHover = Mix(t.accent, t.panel, 0.16);
  t.accentPressed = Mix(t.accent, t.panel, 0.28);
  t.field = t.dark ? Mix(t.panel, Qt::black, 0.3) : Mix(t.panel, Qt::white, 0.88);
  t.line = Mix(Mix(t.panel, t.backdrop, 0.5), t.accent, t.dark ? 0.5 : 0.22);
  t.outline = Readable(Mix(t.line, t.accent, 0.2), t.field, 3);
  t.idle = Mix(t.panel, t.backdrop, 0.5);
  t.text = t.dark ? Mix(t.panel, Qt::white, 0.86)
                  : Readable(Mix(Mix(t.accent, t.panel, 0.06), Qt::black, 0.55), t.backdrop, 7);
  t.heading = t.dark ? Mix(t.panel, Qt::white, 0.94) : Readable(t.accent, t.panel);
  t.muted = Readable(Readable(Mix(t.text, t.panel, 0.38), t.panel), t.backdrop);
  // Not inviting, but still to be made out, also on the fill of a disabled button.
  t.faint = Readable(Readable(Mix(t.text, t.panel, 0.58), Mix(t.panel, t.line, 0.35), 3), t.backdrop, 3);
  t.ring = Readable(Readable(Mix(t.accent, t.panel, 0.45), t.panel, 3), t.backdrop, 3);
  t.selection = Mix(t.field, t.panel, 0.75);
  t.stage = QColor(0x12, 0x16, 0x1b);
  t.stageLine = QColor(0x2a, 0x31, 0x39);
  t.stageFrame = ToneOf(t.accent, 0.75, 0.64);
  t.stageText = Mix(t.panel, Qt::white, t.dark ? 0.86 : 0.5);
  t.stageOutline = Mix(t.stage, Qt::white, 0.42);
  return t;
}

QFont UiFont(int pixels, int weight) {
  static const QString kFamily = QFontDatabase::families().contains("Inter")
                                     ? QStringLiteral("Inter")
                                     : QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
  QFont font(kFamily);
  font.setPixelSize(Px(pixels));
  font.setWeight(static_cast<QFont::Weight>(weight));
  return font;
}

QPalette PaletteOf(const Theme& t) {
  QPalette p;
  p.setColor(QPalette::Window, t.backdrop);
  p.setColor(QPalette::WindowText, t.text);
  p.setColor(QPalette::Base, t.field);
  p.setColor(QPalette::AlternateBase, t.selection);
  p.setColor(QPalette::Text, t.text);
  p.setColor(QPalette::PlaceholderText, t.muted);
  p.setColor(QPalette::Button, t.panel);
  p.setColor(QPalette::ButtonText, t.text);
  p.setColor(QPalette::BrightText, t.accentText);
  p.setColor(QPalette::Highlight, t.accent);
  p.setColor(QPalette::HighlightedText, t.accentText);
  p.setColor(QPalette::ToolTipBase, t.text);
  p.setColor(QPalette::ToolTipText, t.field);
  p.setColor(QPalette::Link, t.heading);
  p.setColor(QPalette::LinkVisited, t.heading);
  p.setColor(QPalette::Light, Mix(t.panel, Qt::white, 0.6));
  p.setColor(QPalette::Midlight, Mix(t.panel, Qt::white, 0.3));
  p.setColor(QPalette::Mid, t.line);
  p.setColor(QPalette::Dark, Mix(t.line, t.text, 0.4));
  p.setColor(QPalette::Shadow, Mix(t.text, Qt::black, 0.5));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    p.setColor(QPalette::Disabled, role, t.faint);
  }
  return p;
}

void ApplyTheme(QApplication& application, const Theme& theme) {
  application.setProperty(kThemeProperty, QVariant::fromValue(theme));
  if (!application.property(kStyledProperty).toBool()) {
    application.setProperty(kStyledProperty, true);
    application.setStyle(MakeStyle());
  }
  if (application.property(kScaledProperty).toInt() != TextPixels()) {
    application.setProperty(kScaledProperty, TextPixels());
    application.setFont(UiFont());
    for (QWidget* form : QApplication::topLevelWidgets()) ScaleContent(*form);
  }
  application.setPalette(PaletteOf(theme));
  application.setProperty(kSheetProperty, StyleSheetOf(theme));
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->testAttribute(Qt::WA_WState_Polished)) WearTheme(*window);
}

// The windows wear the sheet, not the application: the toolkit dresses every widget in a window once, but for
// the application once for each widget around it.
void WearTheme(QWidget& window) {
  if (window.parentWidget()) return;  // it wears what its parent does
  const QString sheet = qApp->property(kSheetProperty).toString();
  if (window.styleSheet() != sheet) window.setStyleSheet(sheet);
}

Theme CurrentTheme() {
  if (qApp) {
    const QVariant worn = qApp->property(kThemeProperty);
    if (worn.canConvert<Theme>()) return worn.value<Theme>();
  }
  return Theme::FromSlots(kFirstScheme);
}

}  // namespace kinalyx
