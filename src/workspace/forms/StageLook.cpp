#include "workspace/forms/StageLook.h"

#include <QWidget>

#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

const char* const kCardSheet =
    "[look=\"card\"] { background: @card; border: 1px solid @cardLine; border-radius: 8px; }"
    "[look=\"card\"] QLabel { color: @ink; background: transparent; border: none; }"
    "[look=\"card\"] QLabel[muted=\"true\"] { color: @faintInk; font-size: @11; }"
    "[look=\"card\"] QToolButton { border: none; border-radius: 6px; background: transparent; padding: 0; }"
    "[look=\"card\"] QToolButton:hover { background: @hover; }"
    "[look=\"card\"] QPushButton { background: @hover; color: @ink; border: 1px solid @cardLine; border-radius: 8px;"
    "  padding: 0 @12; min-height: @32-2; max-height: @32-2; }"
    "[look=\"card\"] QPushButton:hover { border-color: @accent; }"
    "[look=\"card\"] QPushButton:pressed, [look=\"card\"] QPushButton[main=\"true\"] { background: @accentFill; }"
    "[look=\"card\"] QPushButton[main=\"true\"]:hover { background: @accentHover; }"
    "[look=\"card\"] QPushButton:focus { border-color: @accent; }"
    "[look=\"card\"] QPushButton:disabled { color: @faintInk; background: @card; }"
    "[look=\"card\"] QLineEdit { background: @ground; color: @ink; border: 1px solid @outline; border-radius: 6px;"
    "  padding: 0 8px; min-height: @30-2; max-height: @30-2; selection-background-color: @accentFill; }"
    "[look=\"card\"] QLineEdit:focus { border: 1px solid @accent; }"
    "[look=\"card\"] QPlainTextEdit { background: @ground; color: @ink; border: 1px solid @outline; border-radius: 6px;"
    "  padding: 4px; selection-background-color: @accentFill; }"
    "[look=\"card\"] QPlainTextEdit:focus { border: 1px solid @accent; padding: 4px; }"
    "[look=\"card\"] QScrollBar::handle { background: @outline; }"
    "[look=\"card\"] QRadioButton, [look=\"card\"] QCheckBox { color: @ink; }";

StageLook StageLook::Current() {
  const Theme theme = CurrentTheme();
  StageLook look;
  look.ground = theme.stage;
  look.accent = theme.stageFrame;
  look.ink = theme.stageText;
  look.accentFill = Readable(ToneOf(theme.accent, 0.6, 0.32), look.ink);
  look.accentHover = Readable(ToneOf(theme.accent, 0.6, 0.39), look.ink);
  look.card = Mix(Mix(theme.stage, Qt::white, 0.05), look.accentFill, 0.14);
  look.cardLine = Mix(look.card, Qt::white, 0.18);
  look.outline = Readable(Mix(look.card, Qt::white, 0.3), look.card, 3);
  look.hover = Mix(look.card, Qt::white, 0.08);
  look.faintInk = Readable(Mix(theme.stageText, theme.stage, 0.5), look.hover);
  look.mark = QColor(0xff, 0xcf, 0x5a);
  return look;
}

void WearStageSheet(QWidget* widget, const char* sheet) {
  const StageLook look = StageLook::Current();
  const std::pair<const char*, QColor> colours[] = {
      // Longer names first where one begins another.
      {"@accentFill", look.accentFill},
      {"@accentHover", look.accentHover},
      {"@accent", look.accent},
      {"@cardLine", look.cardLine},
      {"@card", look.card},
      {"@outline", look.outline},
      {"@faintInk", look.faintInk},
      {"@ground", look.ground},
      {"@hover", look.hover},
      {"@ink", look.ink},
      {"@mark", look.mark},
  };
  QString dressed = QString::fromLatin1(sheet);
  for (const auto& [name, colour] : colours) dressed.replace(QLatin1String(name), colour.name());
  dressed = WithSizes(dressed);
  if (widget->styleSheet() != dressed) widget->setStyleSheet(dressed);
}

}  // namespace kinalyx
