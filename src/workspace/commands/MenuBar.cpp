#include "workspace/commands/MenuBar.h"

#include <algorithm>
#include <cctype>

namespace kinalyx {
MenuBar::MenuBar(const CommandTargets& targets, ICommandsView& view, INavigation& navigation)
    : stage_(targets.stage),
      videos_(targets.videos),
      transport_(targets.transport),
      tools_(targets.tools),
      edits_(targets.edits),
      times_(targets.times),
      timer_(targets.timer),
      notes_(targets.notes),
      rateTest_(targets.rateTest),
      ruler_(targets.ruler),
      compare_(targets.compare),
      view_(view),
      navigation_(navigation) {
  AddGoTo();
  AddVideo();
  AddDraw();
  AddTimes();
  AddWindows();
  AddTools();
  AddAdvanced();
  AddSetup();
  AddBrisko();
  AddKeysAlone();
  AddKeys();
}

const Command* MenuBar::Find(const std::string& name) const {
  const auto found = std::ranges::find_if(
      commands_, [&](const Command& command) { return command.item == name || command.button == name; });
  return found == commands_.end() || name.empty() ? nullptr : &*found;
}

bool MenuBar::Run(const std::string& name) {
  const Command* command = Find(name);
  if (!command || !command->Reason().empty()) return false;
  command->run();
  stage_.News().Note(kCommandsChanged);
  return true;
}

void MenuBar::RunTwice(const std::string& name) {
  const Command* command = Find(name);
  if (!command || !command->twice || !command->Reason().empty()) return;
  // The first click may have put down what was in hand.
  if (command->checked && !command->checked()) command->run();
  command->twice();
  stage_.News().Note(kCommandsChanged);
}

void MenuBar::SetProfilesTitle(const std::string& title) {
  std::ranges::find(commands_, "VLib", &Command::item)->caption = title + " - Home key";
}

bool MenuBar::PreparetoExit() {
  StoodStage stood = videos_.Stood();  // with its locks, which go now
  compare_.CloseAll();
  ruler_.CancelCalibration();
  if (tools_.Drawing()) tools_.PutToolDown();
  edits_.CloseAll();
  notes_.Close();
  timer_.Close();
  return videos_.CloseAll(std::move(stood));
}

// ---------------------------------------------------------------- keys

void MenuBar::SelectByKeypad(int slot) {
  transport_.StepReleased();
  stage_.SelectWindow(slot);
}

void MenuBar::Escape() {
  // What is in hand is put down first; only a free hand closes the videos.
  if (rateTest_.Running()) {
    rateTest_.Stop();
  } else if (ruler_.Shown()) {
    ruler_.CancelCalibration();
  } else if (tools_.Drawing()) {
    tools_.PutToolDown();
  } else if (edits_.Escape()) {
    // The edit bar or one of its panels has gone.
  } else if (compare_.Escape()) {
    // a mode was left
  } else if (view_.CloseOpenPanel()) {
    // the lists of the library have gone
  } else if (notes_.Shown()) {
    notes_.Close();
  } else if (timer_.Shown()) {
    timer_.Close();
  } else if (compare_.CloseCards()) {
    // a strobe or zoom card has gone
  } else if (stage_.Maximized()) {
    stage_.ToggleMaximize();
  } else {
    Run("MnuCloseAll");
  }
}

/// Runs what a key stands for; true when it stands for something, which need not be possible now.
bool MenuBar::Press(KeyStroke::Kind kind, int value, int shift) {
  const auto meant = [&](const KeyStroke& key) {
    return key.kind == kind && key.value == value && key.shift.value_or(shift) == shift;
  };
  const auto command =
      std::ranges::find_if(commands_, [&](const Command& each) { return std::ranges::any_of(each.keys, meant); });
  if (command == commands_.end()) return false;
  Run(command->item);
  return true;
}

bool MenuBar::PressKey(int KeyCode, int Shift) {
  if (!edits_.PressKey(KeyCode, Shift)) return Press(KeyStroke::Kind::Code, KeyCode, Shift);
  stage_.News().Note(kCommandsChanged);
  return true;
}

bool MenuBar::PressLetter(int KeyAscii) {
  return KeyAscii >= 0 && KeyAscii < 128 && Press(KeyStroke::Kind::Letter, std::toupper(KeyAscii), 0);
}

}  // namespace kinalyx
