#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "drawing/DrawingTools.h"
#include "workspace/compare/CompareModes.h"
#include "workspace/transport/DisplayRateTest.h"
#include "workspace/edits/DrawingEdits.h"
#include "workspace/edits/DrawingTimes.h"
#include "workspace/keeping/Keeping.h"
#include "workspace/edits/RulerCalibration.h"
#include "workspace/transport/Transport.h"
#include "workspace/edits/VideoNotes.h"
#include "workspace/transport/VideoTimer.h"
#include "workspace/stage/Stage.h"
#include "workspace/commands/ICommandsView.h"
#include "workspace/commands/INavigation.h"
#include "workspace/videos/Videos.h"

namespace kinalyx {

/// What the commands work on.
struct CommandTargets {
  Stage& stage;
  Keeping& keeping;
  Videos& videos;
  Transport& transport;
  DrawingTools& tools;
  DrawingEdits& edits;
  DrawingTimes& times;
  VideoTimer& timer;
  VideoNotes& notes;
  DisplayRateTest& rateTest;
  RulerCalibration& ruler;
  StageHint& hint;
  CompareModes& compare;
};

/// A key of the workspace: one that is no text, by its code, or a letter in either case.
struct KeyStroke {
  enum class Kind { Code, Letter };

  Kind kind = Kind::Code;
  int value = 0;               ///< see KeyCodes.h; of a letter its capital
  std::optional<int> shift{};  ///< the sum of the keys that must be held with it; nothing: any but Ctrl
};

/// What the key is called: "Left", "Ctrl+O", "J".
std::string KeyText(const KeyStroke& key);

/// One command of the analysis section: an entry of a menu, a button of the tool strip, what a key does, or all
/// of them. The table is the dictionary from the system's names to the operations of the logic.
struct Command {
  std::string item;     ///< the system's name of the menu item, or of a button without one
  std::string menu;     ///< title of its menu; empty: on the menu bar itself, or, without a caption, in none
  std::string caption;  ///< with the key that calls it; empty for a separator
  std::string button;   ///< the system's name of the tool button, where it is another
  std::string icon;
  std::string tip;            ///< of the button; what it is called there
  int group = 0;              ///< buttons of one group stand together on the strip, in the order of the groups
  std::function<void()> run;  ///< empty: the command comes later
  /// Why it cannot run now, in words for the user; empty text: it can. No function: it always can.
  std::function<std::string()> obstacle = {};
  std::function<bool()> checked = {};  ///< empty: the command has no state
  std::function<void()> twice = {};    ///< what a double click on its button does besides; empty: nothing
  bool spare = false;                  ///< its button is among the first to leave a strip that is too narrow
  std::vector<KeyStroke> keys = {};
  bool keyInColumn = false;  ///< its key stands in the column of the keys also where the caption names one
  std::string how = {};      ///< one uses it, for the tip

  /// The feature is not built yet; such a command is nowhere to be seen.
  bool Coming() const { return !run; }
  /// Why it is disabled, empty while it is not.
  std::string Reason() const { return Coming() ? "coming" : obstacle ? obstacle() : ""; }
};

/// The command table of the workspace: what the menus and the tool strip hold, what is enabled, and
/// what each entry does. The form only shows it; the keys call the same entries.
class MenuBar {
 public:
  MenuBar(const CommandTargets& targets, ICommandsView& view, INavigation& navigation);

  /// Takes the keys of an editor, or the classic ones; menus and tips follow.
  void TakeKeys(bool editor);
  /// What a command is called by, in words for a tip; empty for one without a key.
  std::string KeyOf(const std::string& name) const;

  /// All commands in the order of the menus.
  const std::vector<Command>& Commands() const { return commands_; }
  /// Runs a command by its item or button name when it is enabled; false when it is not or unknown.
  bool Run(const std::string& name);
  /// After a double click on its button, whose first click has run it.
  void RunTwice(const std::string& name);
  /// Null for an unknown name.
  const Command* Find(const std::string& name) const;
  /// What can be done with the current window, for a menu of its own; null divides.
  std::vector<const Command*> WindowMenu() const;
  /// The title of the profiles page, with the user's word for a student, as the Go To menu shows it.
  void SetProfilesTitle(const std::string& title);
  /// Puts the tools down, writes and closes all videos and their small windows. False when the user
  /// kept a video open.
  bool PreparetoExit();

  /// Keys of the workspace that are no text; in Shift 1 is Shift and 2 Ctrl. True when the key was one of
  /// its own.
  bool PressKey(int KeyCode, int Shift);
  /// Letters, in either case.
  bool PressLetter(int KeyAscii);

 private:
  void AddGoTo();
  void AddVideo();
  void AddPlaying();
  void AddDraw();
  void AddTimes();
  void AddWindows();
  void AddTools();
  void AddAdvanced();
  void AddSetup();
  void AddBrisko();
  void AddKeysAlone();
  void cmdOpen();
  void SaveNow();
  std::string WordsOfSaved() const;
  void AddMark();
  bool Press(KeyStroke::Kind kind, int value, int shift);
  void Add(Command command);
  void AddSeparator(const char* menu);
  bool HasVideo() const { return stage_.HasVideo(stage_.CurrentWindow); }
  /// The obstacle of all that works on the current video; `further` is asked when there is one.
  std::function<std::string()> NeedsVideo(std::function<std::string()> further = {}) const;
  void SelectByKeypad(int slot);
  void Escape();

  Stage& stage_;
  Keeping& keeping_;
  Videos& videos_;
  Transport& transport_;
  DrawingTools& tools_;
  DrawingEdits& edits_;
  DrawingTimes& times_;
  VideoTimer& timer_;
  VideoNotes& notes_;
  DisplayRateTest& rateTest_;
  RulerCalibration& ruler_;
  StageHint& hint_;
  CompareModes& compare_;
  ICommandsView& view_;
  INavigation& navigation_;
  std::vector<Command> commands_;
};

}  // namespace kinalyx
