#include "workspace/MenuBar.h"

#include <algorithm>
#include <cctype>

#include "video/KeyCodes.h"

namespace kinalyx {
namespace {


}  // namespace

MenuBar::MenuBar(const CommandTargets& targets, IWorkspaceView& view, Navigation navigation)
    : workspace_(targets.workspace),
      transport_(targets.transport),
      tools_(targets.tools),
      edits_(targets.edits),
      timer_(targets.timer),
      notes_(targets.notes),
      rateTest_(targets.rateTest),
      ruler_(targets.ruler),
      compare_(targets.compare),
      view_(view),
      navigation_(std::move(navigation)) {
  AddGoTo();
  AddVideo();
  AddDraw();
  AddWindows();
  AddTools();
  AddAdvanced();
  AddSetup();
  AddBrisko();
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
  view_.CommandsChanged();
  return true;
}

void MenuBar::SetProfilesTitle(const std::string& title) {
  std::ranges::find(commands_, "VLib", &Command::item)->caption = title + " - Home key";
}

bool MenuBar::PreparetoExit() {
  compare_.CloseAll();
  ruler_.CancelCalibration();
  if (tools_.Drawing()) tools_.PutToolDown();
  edits_.CloseAll();
  notes_.Close();
  timer_.Close();
  return workspace_.CloseAll();
}

// ---------------------------------------------------------------- keys

void MenuBar::SelectByKeypad(int slot) {
  transport_.StepReleased();
  workspace_.SelectWindow(slot);
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
  } else if (workspace_.Maximized()) {
    workspace_.ToggleMaximize();
  } else {
    Run("MnuCloseAll");
    return;
  }
  view_.CommandsChanged();
}

bool MenuBar::PressKey(int KeyCode, int Shift) {
  if (edits_.PressKey(KeyCode, Shift)) {
    view_.CommandsChanged();
    return true;
  }
  if (KeyCode == 'T' && Shift == (kShift | kCtrl)) {
    Run("ReopenVideos");
    return true;
  }
  if (KeyCode >= kKeyF1 && KeyCode <= kKeyF12) {
    Run("MenuDraw" + std::to_string(KeyCode - kKeyF1));
    return true;
  }
  if (KeyCode > kKey0 && KeyCode <= kKey0 + 8 && Shift == 0) {
    workspace_.SetScreen(KeyCode - kKey0);
    return true;
  }
  switch (KeyCode) {
    case kKeyRight: transport_.StepForward(); return true;
    case kKeyLeft: transport_.StepBack(); return true;
    case kKeyUp: transport_.Rewind(); return true;
    case kKeyDown: transport_.TogglePlay(); return true;
    case kKeyHome: Run("VLib"); return true;
    case kKeyEnd: Run("EKTMM"); return true;
    case kKeyPageUp: Run("CG"); return true;
    case kKeyPageDown: Run("PDkeyA"); return true;
    case kKeyDelete: Run("Lastcadoff"); return true;
    case kKeyCtrl: Run("TTES"); return true;
    case kKeyEscape: Escape(); return true;
    case kKeyNumpad0 + 8: workspace_.Pan(0, -kPanStep); return true;
    case kKeyNumpad0 + 2: workspace_.Pan(0, kPanStep); return true;
    case kKeyNumpad0 + 4: workspace_.Pan(-kPanStep, 0); return true;
    case kKeyNumpad0 + 6: workspace_.Pan(kPanStep, 0); return true;
    case kKeyNumpad0 + 5: workspace_.ResetZoom(); return true;
    case kKeyNumpad0 + 7: SelectByKeypad(1); return true;
    case kKeyNumpad0 + 9: SelectByKeypad(2); return true;
    case kKeyNumpad0 + 3: SelectByKeypad(3); return true;
    case kKeyNumpad0 + 1: SelectByKeypad(4); return true;
    default: return false;
  }
}

bool MenuBar::PressLetter(int KeyAscii) {
  const double zoom = workspace_.Current().VideoZoom;
  switch (KeyAscii >= 0 && KeyAscii < 128 ? std::toupper(KeyAscii) : 0) {
    case 'Y': workspace_.Pan(0, -kPanStep); return true;
    case 'B': workspace_.Pan(0, kPanStep); return true;
    case 'G': workspace_.Pan(-kPanStep, 0); return true;
    case 'H': workspace_.Pan(kPanStep, 0); return true;
    case 'J': workspace_.ResetZoom(); return true;
    case 'F': Run("vFlip"); return true;
    case 'Z': Run("MZoom"); return true;
    case 'O': Run("vo"); return true;
    case 'P': transport_.TogglePlay(); return true;
    case 'R': transport_.Rewind(); return true;
    case 'L': Run("vloop"); return true;
    case 'S': Run("vs"); return true;
    case 'C': Run("MnuClose"); return true;
    case 'M': Run("TMark"); return true;
    case '=':
    case '+': workspace_.SetZoom(zoom + kZoomStep); return true;
    case '-': workspace_.SetZoom(zoom - kZoomStep); return true;
    case '*': workspace_.SetZoom(1.0); return true;
    default: return false;
  }
}

}  // namespace kinalyx
