#include <QStringList>

#include "platform/widgets/Scale.h"
#include "platform/widgets/Style.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

const char* const kButtons = R"(
QPushButton { background: @accent; color: @accentText; border: 2px solid @accent; border-radius: 8px;
  padding: 0 @12; min-height: @34-4; max-height: @34-4; font-weight: 600; }
QPushButton:hover { background: @accentHover; border-color: @accentHover; }
QPushButton:pressed { background: @accentPressed; border-color: @accentPressed; }
QPushButton:checked { background: @accentPressed; border-color: @accentPressed; }
QPushButton:focus { border-color: @focus; }
QPushButton:disabled { background: @disabledFill; border-color: @disabledFill; color: @faint; }
QPushButton[destroys="true"] { background: #b3261e; color: #ffffff; border-color: #b3261e; }
QPushButton[destroys="true"]:hover { background: #c5372e; border-color: #c5372e; }
QPushButton[destroys="true"]:pressed { background: #8f1d17; border-color: #8f1d17; }
QPushButton[destroys="true"]:focus { border-color: #f2d6d4; }
QPushButton[destroys="true"]:disabled { background: @disabledFill; border-color: @disabledFill; color: @faint; }
QPushButton[square="true"] { padding: 0; min-width: @34-4; max-width: @34-4; }

QPushButton[look="quiet"] { background: @field; color: @heading; border: 1px solid @outline; min-height: @34-2;
  max-height: @34-2; }
QPushButton[look="quiet"]:hover { background: @selection; border-color: @accent; }
QPushButton[look="quiet"]:pressed { background: @panel; }
QPushButton[look="quiet"]:checked { background: @accent; color: @accentText; border-color: @accent; }
QPushButton[look="quiet"]:focus { border: 2px solid @accent; min-height: @34-4; max-height: @34-4;
  padding: 0 @12-1; }
QPushButton[look="quiet"]:checked:focus { border-color: @focus; }
QPushButton[look="quiet"]:disabled { background: transparent; color: @faint; border-color: @line; }
QPushButton[look="quiet"]:checked:disabled { background: @disabledFill; color: @faint; border-color: @faint; }
QPushButton[look="quiet"][square="true"] { padding: 0; min-width: @34-2; max-width: @34-2; }
QPushButton[look="quiet"][square="true"]:focus { padding: 0; min-width: @34-4; max-width: @34-4; }

QPushButton[look="flat"] { background: transparent; color: @heading; border: 2px solid transparent; }
QPushButton[placed="true"] { min-width: 0; max-width: 200px; min-height: 0; max-height: 200px; }
QPushButton[look="flat"]:hover { background: @flatHover; border-color: @flatHover; }
QPushButton[look="flat"]:pressed { background: @flatPressed; border-color: @flatPressed; }
QPushButton[look="flat"]:checked { background: @accent; color: @accentText; border-color: @accent; }
QPushButton[look="flat"]:focus { border-color: @ring; }
QPushButton[look="flat"]:disabled { background: transparent; color: @faint; border-color: transparent; }

QPushButton[look="stage"] { background: transparent; color: @stageText; border: 2px solid transparent; }
QPushButton[look="stage"][over="picture"] { background: rgba(18, 22, 27, 150); }
QPushButton[look="stage"]:hover { background: #262d35; border-color: #262d35; }
QPushButton[look="stage"]:pressed { background: #323b45; border-color: #323b45; }
QPushButton[look="stage"]:checked { background: @stageAccent; border-color: @stageAccent; }
QPushButton[look="stage"]:focus { border-color: @stageFrame; }
QPushButton[look="stage"]:disabled { color: #626d77; }

QPushButton[look="section"] { background: transparent; color: @heading; border: 2px solid transparent;
  border-radius: 6px; text-align: left; padding: 0 @12; }
QPushButton[look="section"]:hover { background: @selection; border-color: @selection; }
QPushButton[look="section"]:checked { background: @accent; color: @accentText; border-color: @accent; }
QPushButton[look="section"]:focus { border-color: @ring; }
QPushButton[look="section"]:disabled { color: @faint; }

QPushButton[look="tile"] { background: transparent; border: none; padding: 0; min-height: 0; max-height: 1000px; }

QToolButton { background: transparent; border: 2px solid transparent; border-radius: 8px; padding: 4px; color: @heading; }
QToolButton:hover { background: @flatHover; border-color: @flatHover; }
QToolButton:pressed { background: @flatPressed; }
QToolButton:checked { background: @accent; border-color: @accent; color: @accentText; }
QToolButton:focus { border-color: @ring; }
)";

const char* const kFields = R"(
QLineEdit, QPlainTextEdit, QTextEdit, QAbstractSpinBox { background: @field; color: @text; border: 1px solid @outline;
  border-radius: 6px; padding: 0 9px; selection-background-color: @accent; selection-color: @accentText; }
QLineEdit, QAbstractSpinBox { min-height: @34-2; max-height: @34-2; }
QLineEdit[compact="true"] { min-height: @28-2; max-height: @28-2; padding: 0 7px; }
QPlainTextEdit, QTextEdit { padding: 6px; }
QLineEdit:hover, QPlainTextEdit:hover, QAbstractSpinBox:hover { border-color: @accent; }
QLineEdit:focus, QPlainTextEdit:focus, QTextEdit:focus, QAbstractSpinBox:focus { border: 2px solid @accent;
  padding: 0 8px; }
QLineEdit:focus, QAbstractSpinBox:focus { min-height: @34-4; max-height: @34-4; }
QLineEdit[compact="true"]:focus { min-height: @28-4; max-height: @28-4; padding: 0 6px; }
QPlainTextEdit:focus, QTextEdit:focus { padding: 5px; }
QLineEdit:disabled, QPlainTextEdit:disabled, QAbstractSpinBox:disabled { background: @idle; color: @faint;
  border-color: @line; }
QLineEdit:read-only { background: @idle; border-color: @line; }
QAbstractSpinBox { padding-right: 6px; }
QSpinBox::up-button, QSpinBox::down-button { width: 0; border: none; }
QTextBrowser { background: @field; border: none; border-radius: 0; padding: 0; }
QTextBrowser:focus { border: none; padding: 0; }
QComboBox QLineEdit, QComboBox QLineEdit:focus { border: none; padding: 0; min-height: @20; }
QComboBox QAbstractItemView { background: @field; color: @text; border: 1px solid @lineStrong; outline: 0;
  selection-background-color: @accent; selection-color: @accentText; padding: 4px; }
QComboBox QAbstractItemView::item { min-height: @30; padding: 0 8px; border-radius: 5px; }
QComboBox QAbstractItemView::item:selected { background: @accent; color: @accentText; }
QListView { background: @field; color: @text; border: none; outline: 0; }
QTreeView { background: @field; color: @text; border: 1px solid @line; border-radius: 8px; outline: 0;
  selection-background-color: @accent; selection-color: @accentText; }
QHeaderView { background: transparent; border: none; }
QHeaderView::section { background: @panel; color: @muted; border: none; border-bottom: 1px solid @line;
  padding: 4px 8px; }
QCheckBox, QRadioButton { color: @text; background: transparent; }
QCheckBox:disabled, QRadioButton:disabled { color: @faint; }
QSlider { min-height: 24px; }
QSlider::groove:horizontal { height: 4px; border-radius: 2px; background: @outline; }
QSlider::sub-page:horizontal { height: 4px; border-radius: 2px; background: @accent; }
QSlider::handle:horizontal { width: 16px; height: 16px; margin: -7px 0; border-radius: 9px; background: @accent;
  border: 1px solid @field; }
QSlider::handle:horizontal:hover { background: @accentHover; }
QSlider::handle:horizontal:focus { background: @field; border: 4px solid @accent; width: 10px; height: 10px; }
QSlider::groove:horizontal:disabled { background: @line; }
QSlider::sub-page:horizontal:disabled, QSlider::handle:horizontal:disabled { background: @faint; }
QScrollBar:vertical { background: transparent; width: 12px; margin: 0; border: none; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 0; border: none; }
QScrollBar::handle { background: @lineStrong; border-radius: 4px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 32px; }
QScrollBar::handle:horizontal { min-width: 32px; }
QScrollBar::handle:hover { background: @outline; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; border: none; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QAbstractScrollArea::corner { background: transparent; border: none; }
QProgressBar { background: @panel; border: 1px solid @line; border-radius: 6px; text-align: center; color: @text;
  min-height: @18-2; max-height: @18-2; }
QProgressBar::chunk { background: @accent; border-radius: 5px; }
)";

const char* const kFrames = R"(
QMainWindow, QDialog { background: @backdrop; }
QScrollArea, QScrollArea > QWidget > QWidget[look="clear"] { background: transparent; border: none; }
QFrame[look="panel"] { background: @field; border: 1px solid @line; border-radius: 8px; }
QFrame[look="panelHead"] { background: @panel; border: none; border-bottom: 1px solid @line;
  border-top-left-radius: 7px; border-top-right-radius: 7px; }
QFrame[look="panelFoot"] { background: transparent; border: none; border-top: 1px solid @line; }
QFrame[look="header"] { background: @headBar; border: none; }
QFrame[look="header"] QPushButton { background: @headBar; border-color: @headBar; }
QFrame[look="header"] QPushButton:hover { background: @accentHover; border-color: @accentHover; }
QFrame[look="header"] QPushButton:pressed { background: @accentPressed; border-color: @accentPressed; }
QFrame[look="rail"] { background: @panel; border: none; border-right: 1px solid @line; }
QFrame[look="strip"] { background: @panel; border: none; border-bottom: 1px solid @line; }
QFrame[look="status"] { background: @idle; border: none; border-radius: 6px; }
QFrame[look="stage"] { background: #12161b; border: none; }
QFrame[look="divider"] { background: @line; border: none; }
QLabel { background: transparent; border: none; }
QLabel:disabled { color: @faint; }
QLabel[look="logo"] { background: #ffffff; color: #3a3f45; border: 1px solid @line; border-radius: 6px; font-size: @11; }
QLabel[look="caption"] { color: @muted; font-size: @11; }
QLabel[look="muted"] { color: @muted; }
QLabel[look="heading"] { color: @heading; font-weight: 600; }
QLabel[look="title"] { color: @heading; font-size: @18; font-weight: 600; }
QLabel[look="brand"] { color: @accentText; font-weight: 700; }
QLabel[look="pageTitle"] { color: @accentTextSoft; }
QLabel[look="mark"] { background: @accent; color: @accentText; border-radius: @20/2; padding: 0 10px;
  min-height: @20; max-height: @20; font-size: @12; }
QLabel[look="markOff"] { background: @panel; color: #808080; border-radius: @20/2; padding: 0 10px;
  min-height: @20; max-height: @20; font-size: @12; }
QToolTip { background: @text; color: @field; border: 1px solid @muted; padding: 2px 3px; font-size: @12; }
QMenuBar { background: @panel; color: @text; border: none; border-bottom: 1px solid @line; padding: 0 8px; }
QMenuBar::item { background: transparent; padding: @5 @10; border-radius: 5px; }
QMenuBar::item:selected { background: @flatHover; }
QMenuBar::item:pressed { background: @accent; color: @accentText; }
QMenu { background: @field; color: @text; border: 1px solid @lineStrong; padding: 5px; }
QMenu::item { padding: @6 @28 @6 @12; min-height: @20; border-radius: 5px; }
QMenu::item:selected { background: @accent; color: @accentText; }
QMenu::item:disabled { color: @faint; background: transparent; }
QMenu::separator { height: 1px; background: @line; margin: 5px 8px; }
QMenu::icon { padding-left: 8px; }
QSplitter::handle { background: transparent; }
)";

// Message boxes and the dialog that picks files are the toolkit's; they are to look like the program's own.
const char* const kDialogs = R"(
QDialogButtonBox QPushButton { min-width: @60; background: @field; color: @heading; border: 1px solid @outline;
  min-height: @34-2; max-height: @34-2; }
QDialogButtonBox QPushButton:hover { background: @selection; border-color: @accent; }
QDialogButtonBox QPushButton:pressed { background: @panel; }
QDialogButtonBox QPushButton:default { background: @accent; color: @accentText; border-color: @accent; }
QDialogButtonBox QPushButton:default:hover { background: @accentHover; border-color: @accentHover; }
QDialogButtonBox QPushButton:focus { border: 2px solid @accent; min-height: @34-4; max-height: @34-4; padding: 0 @12-1; }
QDialogButtonBox QPushButton:default:focus { border-color: @focus; }
QDialogButtonBox QPushButton:disabled { background: transparent; color: @faint; border-color: @line; }
QFileDialog QListView, QFileDialog QTreeView { background: @field; color: @text; border: 1px solid @line; outline: 0; }
QFileDialog QTreeView::item, QFileDialog QListView::item { min-height: @26; padding: 0 4px; }
QFileDialog QTreeView::item:hover, QFileDialog QListView::item:hover { background: @selection; }
QFileDialog QTreeView::item:selected, QFileDialog QListView::item:selected { background: @accent; color: @accentText; }
QHeaderView { background: @panel; border: none; }
QHeaderView::section { background: @panel; color: @heading; font-weight: 600; border: none;
  border-right: 1px solid @line; border-bottom: 1px solid @line; padding: 5px 8px; }
)";

}  // namespace

QString StyleSheetOf(const Theme& t) {
  const std::pair<const char*, QColor> colours[] = {
      // Longer names first where one begins another.
      {"@headBar", t.dark ? t.panel : t.accent},
      {"@accentTextSoft", Mix(t.accentText, t.accent, 0.15)},
      {"@accentText", t.accentText},
      {"@accentHover", t.accentHover},
      {"@accentPressed", t.accentPressed},
      {"@accent", t.accent},
      {"@stageAccent", Readable(Mix(t.stageFrame, t.stage, 0.5), t.stageText)},
      {"@stageText", t.stageText},
      {"@disabledFill", Mix(t.panel, t.line, 0.35)},
      {"@focus", Mix(t.accentText, t.accent, 0.35)},
      {"@stageFrame", t.stageFrame},
      {"@ring", t.ring},
      {"@idle", t.idle},
      {"@outline", t.outline},
      {"@flatHover", Mix(t.panel, t.line, 0.6)},
      {"@flatPressed", Mix(t.panel, t.line, 0.85)},
      {"@selection", t.selection},
      {"@panel", t.panel},
      {"@backdrop", t.backdrop},
      {"@field", t.field},
      {"@heading", t.heading},
      {"@lineStrong", Mix(t.line, t.text, 0.3)},
      {"@line", t.line},
      {"@muted", t.muted},
      {"@faint", t.faint},
      {"@text", t.text},
  };
  QString sheet = QString::fromLatin1(kFrames) + QString::fromLatin1(kButtons) + QString::fromLatin1(kFields) +
                  QString::fromLatin1(kDialogs);
  for (const auto& [name, colour] : colours) sheet.replace(QLatin1String(name), colour.name());
  return WithSizes(sheet);
}

}  // namespace kinalyx
