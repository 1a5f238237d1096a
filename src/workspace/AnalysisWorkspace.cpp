#include "workspace/AnalysisWorkspace.h"

#include <utility>

#include "core/Vocabulary.h"

namespace kinalyx {
namespace {

constexpr int kMiddleButton = 4;

}  // namespace

AnalysisWorkspace::AnalysisWorkspace(IHost& host, Settings& settings, PlayScheduler& scheduler, IWorkspaceView& view,
                                     IDrawingEditsView& editsView, ICompareView& compareView, Navigation navigation)
    : host_(host),
      settings_(settings),
      view_(view),
      workspace_(host, settings, view),
      compare_(host, settings, scheduler, workspace_, compareView),
      transport_(host, settings, workspace_, compare_.Locks(), view),
      tools_(engine_, settings, *this),
      drawings_(workspace_, tools_),
      autoSave_(host, settings, workspace_),
      edits_(host, settings, workspace_, tools_, *this, editsView),
      timer_(workspace_, transport_, view),
      notes_(workspace_, view),
      rateTest_(host, workspace_),
      ruler_(settings, tools_, *this, view),
      menuBar_({workspace_, transport_, tools_, edits_, timer_, notes_, rateTest_, ruler_, compare_}, view,
               std::move(navigation)) {
  menuBar_.SetProfilesTitle(Vocabulary(settings_).Profiles());
  transport_.PositionShown = [this] { timer_.UpdateTimer(); };
  ConnectModes();
  ConnectVideos();
}

void AnalysisWorkspace::ConnectModes() {
  compare_.Entering = [this] { GiveWay(); };
  compare_.LocksChanged = [this] {
    transport_.ShowCurrent();
    view_.CommandsChanged();
  };
  compare_.Strobe().RunningChanged = [this] { view_.CommandsChanged(); };
  compare_.TransparencySwitched = [this](bool on) { workspace_.BarHidden = on; };
  compare_.Strip().SquareWanted = [this] {
    if (!tools_.Drawing() || tools_.DrawKind() != kSquare) tools_.TakeTool(kSquare);
    view_.CommandsChanged();
  };
}

void AnalysisWorkspace::ConnectVideos() {
  workspace_.FootHeight = [this](int slot, int height) { return notes_.FootHeight(slot, height); };
  workspace_.PlayerResized = [this](int slot) {
    drawings_.PlayerResized(slot);
    compare_.PlayerResized(slot);
  };
  workspace_.PictureFlipped = [this](int slot) {
    drawings_.PictureFlipped(slot);
    compare_.DrawingsChanged(slot);
  };
  workspace_.VideoOpened = [this](int slot) {
    drawings_.VideoOpened(slot);
    compare_.VideoOpened(slot);
  };
  workspace_.CollectData = [this](int slot) { return drawings_.CollectData(slot); };
  workspace_.DataChanged = [this] { autoSave_.Changed(); };
  workspace_.DataSaved = [this](int slot) { drawings_.DataSaved(slot); };
  workspace_.VideoClosing = [this](int slot) {
    edits_.VideoClosing(slot);
    if (slot == workspace_.CurrentWindow) {
      transport_.StepReleased();
      ruler_.CancelCalibration();
      if (tools_.Drawing()) tools_.PutToolDown();
    }
    compare_.VideoClosing(slot);
  };
  workspace_.VideoClosed = [this](int slot) {
    drawings_.VideoClosed(slot);
    timer_.Forget(slot);
  };
  workspace_.FocusChanged = [this] {
    ShowFocus();
    compare_.FocusChanged();
  };
  workspace_.StateChanged = [this] {
    transport_.ShowCurrent();
    notes_.SetupNotesPnl();
    compare_.StateChanged();
  };
}

void AnalysisWorkspace::AttachPlayer(int slot, AVIControl& player) {
  workspace_.AttachPlayer(slot, player);
  player.SetFrameInterface(this);
  player.SetMouseKeyboardInterface(this);
}

void AnalysisWorkspace::DetachPlayers() {
  for (int slot = 1; slot <= kSlots; ++slot) {
    if (!workspace_.At(slot).MP) continue;
    workspace_.MP(slot).ReleaseFrameInterface();
    workspace_.MP(slot).ReleaseMouseKeyboardInterface();
  }
}

void AnalysisWorkspace::Start() {
  workspace_.FormReset();
  workspace_.FocusSet();
}

/// What another current window brings with it: panels that belong to one window close, and the line, the
/// bars and the buttons show the new one.
void AnalysisWorkspace::ShowFocus() {
  notes_.Close();
  // A tool in hand stays announced; a measure belonged to the window before.
  if (!tools_.Drawing()) {
    tools_.DropMeasure();
    transport_.DisplayData("");
  }
  edits_.FocusChanged();
  transport_.ShowCurrent();
}

/// A mode takes the stage, or the mouse: what is in hand is put down, and what lies on a picture goes.
void AnalysisWorkspace::GiveWay() {
  ruler_.CancelCalibration();  // without its tool it would wait for ever
  tools_.PutToolDown();
  edits_.PutAway();
  notes_.Close();
}

void AnalysisWorkspace::Select(int slot) {
  if (slot == workspace_.CurrentWindow) return;
  transport_.StepReleased();
  workspace_.SelectWindow(slot);
}

void AnalysisWorkspace::SettingsChanged() {
  for (int slot = 1; slot <= kSlots; ++slot) {
    workspace_.MP(slot).setDrawWidth(settings_.CadWidth);
    workspace_.MP(slot).Refresh();
  }
  menuBar_.SetProfilesTitle(Vocabulary(settings_).Profiles());
  view_.CommandsChanged();
}

// ---------------------------------------------------------------- from the window

void AnalysisWorkspace::StageResized() {
  workspace_.FormReset();
  notes_.SetupNotesPnl();
}

void AnalysisWorkspace::CellPressed(int slot) {
  Select(slot);
  view_.FocusKeyBox();
}

void AnalysisWorkspace::CellDoubleClicked(int slot) {
  Select(slot);
  if (!workspace_.HasVideo(slot)) menuBar_.Run("vo");
}

void AnalysisWorkspace::PutToolDown() {
  tools_.PutToolDown();
  view_.CommandsChanged();
  view_.FocusKeyBox();
}

void AnalysisWorkspace::ChooseColour(int Index) {
  tools_.ChooseColour(Index);
  view_.SetColorButton(Index);
  view_.FocusKeyBox();
}

// ---------------------------------------------------------------- from the players

void AnalysisWorkspace::PreDrawFrame(Canvas& hDC, int ID) {
  tools_.PreDrawFrame(hDC, ID);
  edits_.FramePainted(ID);
}

void AnalysisWorkspace::Signal(int, int ID) {
  transport_.Signal(ID);
  rateTest_.Signal(ID);
  compare_.Signal(ID);
}

void AnalysisWorkspace::Notify(int, int ID) {
  transport_.Notify(ID);
  rateTest_.Notify(ID);
  compare_.Notify(ID);
  view_.CommandsChanged();
}

void AnalysisWorkspace::StrobeEnded(int ID) { compare_.Strobe().StrobeEnded(ID); }

void AnalysisWorkspace::MouseDown(int Button, int Shift, float X, float Y, int ID) {
  if (Button == kMiddleButton) return compare_.Zoom().DragBegin(ID, X, Y);
  if (!tools_.MouseDown(Button, Shift, X, Y, ID)) Select(ID);
  view_.CommandsChanged();
  view_.FocusKeyBox();
}

void AnalysisWorkspace::MouseMove(int Button, int Shift, float X, float Y, int ID) {
  if (compare_.Zoom().Dragging()) return compare_.Zoom().DragMove(X, Y);
  tools_.MouseMove(Button, Shift, X, Y, ID);
}

void AnalysisWorkspace::MouseUp(int Button, int Shift, float X, float Y, int ID) {
  if (Button == kMiddleButton) return compare_.Zoom().DragEnd();
  if (tools_.MouseUp(Button, Shift, X, Y, ID)) view_.CommandsChanged();
}

void AnalysisWorkspace::DblClick(int ID) {
  if (!workspace_.HasVideo(ID)) CellDoubleClicked(ID);
}

void AnalysisWorkspace::KeyDown(int KeyCode, int Shift, int) { menuBar_.PressKey(KeyCode, Shift); }

void AnalysisWorkspace::KeyPress(int KeyAscii, int) { menuBar_.PressLetter(KeyAscii); }

// ---------------------------------------------------------------- for the drawing tools

bool AnalysisWorkspace::IsPlaying(int window) {
  return workspace_.MP(window).IsPlaying() || compare_.Locks().PlayingTogether(window);
}

void AnalysisWorkspace::StopClick(int window) {
  compare_.Locks().StopTogether();
  workspace_.MP(workspace_.CurrentWindow).StopPlay();
  transport_.StepReleased();
  if (workspace_.IsShown(window)) workspace_.CurrentWindow = window;
  view_.SetLoopButton(false);
  workspace_.FocusSet();
}

void AnalysisWorkspace::ReleaseLoopButton() {
  AVIControl& player = workspace_.MP(workspace_.CurrentWindow);
  if (!player.Repeat()) return;
  player.StopPlay();
  player.setRepeat(false);
  view_.SetLoopButton(false);
}

bool AnalysisWorkspace::OnLastFrame(int window) {
  const AVIControl& player = workspace_.MP(window);
  return player.Position() >= player.VideoLength() - 1;
}

void AnalysisWorkspace::AdvanceFrame(int window) {
  if (!OnLastFrame(window)) workspace_.MP(window).Play(workspace_.MP(window).Position() + 1);
  compare_.MPManualSignal();
  compare_.Locks().AdvancePartners(window);
}

void AnalysisWorkspace::DrawingsChanged(int window) {
  compare_.DrawingsChanged(window);
  autoSave_.Changed();
  view_.CommandsChanged();
}

bool AnalysisWorkspace::TakeSquare(int window, const Shape& square) {
  return square.Pts.size() >= 2 && compare_.TakeSquare(window, square.Pts[0], square.Pts[1]);
}

void AnalysisWorkspace::ShowDrawError(const std::string& text) {
  // Told from the event loop: the frame that failed is still being drawn.
  drawError_ = HostTimer(host_, 0, false, [this, text] { host_.Message(MessageKind::Warning, "", text); });
}

}  // namespace kinalyx
