#include "workspace/commands/MenuBar.h"

#include <fmt/ranges.h>

#include <algorithm>
#include <cctype>
#include <set>

#include "platform/files/Tr.h"
#include "video/KeyCodes.h"

namespace kinalyx {
MenuBar::MenuBar(const CommandTargets& targets, ICommandsView& view, INavigation& navigation)
    : stage_(targets.stage),
      keeping_(targets.keeping),
      videos_(targets.videos),
      transport_(targets.transport),
      tools_(targets.tools),
      edits_(targets.edits),
      times_(targets.times),
      timer_(targets.timer),
      notes_(targets.notes),
      rateTest_(targets.rateTest),
      ruler_(targets.ruler),
      hint_(targets.hint),
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
  TakeKeys(false);
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
  std::ranges::find(commands_, "VLib", &Command::item)->caption = Tr("{} - Home key", title);
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

void MenuBar::SaveNow() {
  const bool saved = keeping_.SaveAll();
  if (!tools_.Drawing()) transport_.Announce(saved ? WordsOfSaved() : Tr("Not saved"));
}

/// One video is the one before the eyes; of several the names are told, as far as they can be read in passing.
std::string MenuBar::WordsOfSaved() const {
  constexpr std::size_t kReadInPassing = 2;
  std::set<std::string> names;
  for (int slot = 1; slot <= kSlots; ++slot)
    if (stage_.HasVideo(slot)) names.insert(NameOfVideo(stage_.At(slot).path));
  if (names.size() < 2) return Tr("Saved");
  return names.size() > kReadInPassing ? Tr("Saved: all {} videos", names.size())
                                       : Tr("Saved: {}", fmt::join(names, ", "));
}

/// A mark that is named is found again, and videos line up by it.
void MenuBar::AddMark() {
  const std::size_t before = stage_.Current().data.Study.Marks.size();
  transport_.AddMark();
  if (stage_.Current().data.Study.Marks.size() == before) return;
  const int position = stage_.Current().MP->Position();
  hint_.Show(stage_.CurrentWindow, Tr("Marked picture {}. Name it...", position), "NameMark", StageHint::kShort);
}

// ---------------------------------------------------------------- keys

void MenuBar::SelectByKeypad(int slot) {
  transport_.StepReleased();
  stage_.SelectWindow(slot);
}

void MenuBar::Escape() {
  // What lies over the stage goes, then what is in hand is put down; only a free hand closes the videos.
  if (view_.CloseMomentary()) {
    // a list that was opened for a moment has gone
  } else if (rateTest_.Running()) {
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

std::string KeyText(const KeyStroke& key) {
  constexpr std::pair<int, const char*> kNames[] = {
      {kKeySpace, TrLater("Space")},       {kKeyHome, TrLater("Home")},          {kKeyEnd, TrLater("End")},
      {kKeyLeft, TrLater("Left Arrow")},   {kKeyUp, TrLater("Up Arrow")},        {kKeyDown, TrLater("Down Arrow")},
      {kKeyRight, TrLater("Right Arrow")}, {kKeyEscape, TrLater("Esc")},         {kKeyDelete, TrLater("Del")},
      {kKeyPageUp, TrLater("Page Up")},    {kKeyPageDown, TrLater("Page Down")}, {kKeyCtrl, TrLater("Ctrl")}};
  std::string text = key.shift.value_or(0) & kCtrl ? Tr("Ctrl") + "+" : "";
  if (key.shift.value_or(0) & kShift) text += Tr("Shift") + "+";
  if (key.kind == KeyStroke::Kind::Code) {
    for (const auto& [code, name] : kNames)
      if (code == key.value) return text + Tr(name);
    if (key.value >= kKeyNumpad0 && key.value <= kKeyNumpad9) return Tr("{}keypad {}", text, key.value - kKeyNumpad0);
    if (key.value >= kKeyF1 && key.value <= kKeyF12) return text + "F" + std::to_string(key.value - kKeyF1 + 1);
  }
  return text + static_cast<char>(key.value);
}

std::string MenuBar::KeyOf(const std::string& name) const {
  const Command* command = Find(name);
  return command && !command->keys.empty() ? KeyText(command->keys.front()) : "";
}

/// Runs what a key stands for; true when it stands for something, which need not be possible now.
bool MenuBar::Press(KeyStroke::Kind kind, int value, int shift) {
  // With Shift a key may be another one; where it is not, it is the key itself.
  const auto exactly = [&](const KeyStroke& key) {
    return key.kind == kind && key.value == value && key.shift == shift;
  };
  const auto loosely = [&](const KeyStroke& key) {
    return key.kind == kind && key.value == value && !key.shift && (!(shift & kCtrl) || value == kKeyCtrl);
  };
  auto command =
      std::ranges::find_if(commands_, [&](const Command& each) { return std::ranges::any_of(each.keys, exactly); });
  if (command == commands_.end())
    command =
        std::ranges::find_if(commands_, [&](const Command& each) { return std::ranges::any_of(each.keys, loosely); });
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
