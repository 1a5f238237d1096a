#include "workspace/AnalysisWorkspace.h"

#include <fmt/format.h>

#include <utility>

#include "core/Vocabulary.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {
namespace {

constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;
constexpr int kMiddleButton = 4;

std::string SessionPath(const Settings& settings) { return JoinPath(settings.DataPath, "session.json"); }

}  // namespace

AnalysisWorkspace::AnalysisWorkspace(IHost& host, Settings& settings, PlayScheduler& scheduler, IWorkspaceView& view,
                                     IDrawingEditsView& editsView, ICompareView& compareView, INavigation& navigation,
                                     ISoundOutput* sound)
    : host_(host),
      settings_(settings),
      view_(view),
      navigation_(navigation),
      stage_(host, settings, view, *this),
      tools_(engine_, settings, *this),
      keeping_(host, settings, stage_, tools_),
      videos_(host, stage_, keeping_, *this, SessionPath(settings)),
      compare_(host, settings, scheduler, stage_, compareView, *this),
      transport_(host, settings, stage_, keeping_, compare_.Locks(), view),
      sound_(host, settings, stage_, compare_.Locks(), sound),
      edits_(host, settings, stage_, tools_, *this, editsView),
      times_(stage_, tools_, *this),
      timer_(stage_, transport_, view),
      notes_(stage_, keeping_, view),
      rateTest_(host, stage_),
      hint_(host, view),
      speedHint_(stage_, transport_, tools_, hint_),
      ruler_(settings, tools_, *this, stage_, keeping_, view, hint_),
      menuBar_({stage_, keeping_, videos_, transport_, tools_, edits_, times_, timer_, notes_, rateTest_, ruler_, hint_,
                compare_},
               view, navigation) {
  menuBar_.TakeKeys(settings_.KeysAndTools == kEditorKeys);
  menuBar_.SetProfilesTitle(Vocabulary(settings_).Profiles());
}

void AnalysisWorkspace::FollowInSession(const Settings& settings, const std::string& from, const std::string& to) {
  kinalyx::FollowInSession(SessionPath(settings), from, to);
}

void AnalysisWorkspace::AttachPlayer(int slot, AVIControl& player) {
  stage_.AttachPlayer(slot, player);
  player.SetFrameInterface(this);
  player.SetMouseKeyboardInterface(this);
}

void AnalysisWorkspace::DetachPlayers() {
  for (int slot = 1; slot <= kSlots; ++slot) {
    if (!stage_.At(slot).MP) continue;
    stage_.MP(slot).ReleaseFrameInterface();
    stage_.MP(slot).ReleaseMouseKeyboardInterface();
  }
}

void AnalysisWorkspace::Start() {
  stage_.FormReset();
  stage_.FocusSet();
  stage_.News().Tell();
}

// ---------------------------------------------------------------- from the rooms

void AnalysisWorkspace::StageChanged(unsigned changes) {
  if (changes & kFocusChanged) ShowFocus();
  if (changes & (kFocusChanged | kVideoChanged | kLocksChanged)) {
    transport_.ShowAll();
    timer_.UpdateTimer();
    notes_.SetupNotesPnl();
  }
  if (changes & kLocksChanged) KeepLocks();
  compare_.StageChanged(changes);
  videos_.StageChanged();
  sound_.Follow();
  speedHint_.Look();
  view_.CommandsChanged();
}

/// A video keeps the picture on which it was locked to another.
void AnalysisWorkspace::KeepLocks() {
  for (int slot = 1; slot <= kSlots; ++slot) {
    bool& before = locked_[static_cast<std::size_t>(slot)];
    const bool now = compare_.Locks().IsLocked(slot);
    if (std::exchange(before, now) || !now) continue;
    const AVIControl& player = stage_.MP(slot);
    stage_.At(slot).data.Study.LockedAt = VideoMoment::At(player.Position(), player.SplitFields());
    keeping_.FieldsChanged(slot);
  }
}

/// What another current window brings with it: panels that belong to one window close, and what was measured
/// in the window before is shown no longer. A tool in hand stays announced.
void AnalysisWorkspace::ShowFocus() {
  notes_.Close();
  if (!tools_.Drawing() && tools_.MeasuredWindow() != stage_.CurrentWindow) {
    tools_.DropMeasure();
    transport_.DisplayData("");
  }
  edits_.FocusChanged();
}

void AnalysisWorkspace::VideoClosing(int slot) {
  edits_.VideoClosing(slot);
  if (slot == stage_.CurrentWindow) {
    transport_.StepReleased();
    ruler_.CancelCalibration();
    if (tools_.Drawing()) tools_.PutToolDown();
  }
  compare_.VideoClosing(slot);
}

void AnalysisWorkspace::VideoClosed(int slot) {
  timer_.Forget(slot);
  ruler_.VideoClosed(slot);
  speedHint_.VideoClosed(slot);
  hint_.Hide(slot);
}

void AnalysisWorkspace::VideosGone(int count, const std::string& name) {
  navigation_.OfferReopen(count == 1 ? Tr("\"{}\" was closed.", name) : Tr("{} videos were closed.", count));
}

void AnalysisWorkspace::LockAgain(const std::array<bool, 3>& locks) {
  for (std::size_t i = 0; i < locks.size(); ++i)
    if (locks[i]) compare_.Locks().DualLock(static_cast<int>(i) + 1);
}

void AnalysisWorkspace::GiveWay() {
  ruler_.CancelCalibration();  // without its tool it would wait for ever
  tools_.PutToolDown();
  edits_.PutAway();
  notes_.Close();
}

void AnalysisWorkspace::TakeSquareTool() {
  if (!tools_.Drawing() || tools_.DrawKind() != kSquare) tools_.TakeTool(kSquare);
  stage_.News().Note(kCommandsChanged);
}

void AnalysisWorkspace::Select(int slot) {
  if (slot == stage_.CurrentWindow) return;
  transport_.StepReleased();
  stage_.SelectWindow(slot);
}

void AnalysisWorkspace::SettingsChanged() {
  for (int slot = 1; slot <= kSlots; ++slot) {
    stage_.MP(slot).setDrawWidth(settings_.CadWidth);
    stage_.MP(slot).Refresh();
  }
  stage_.SettingsChanged();
  menuBar_.TakeKeys(settings_.KeysAndTools == kEditorKeys);
  menuBar_.SetProfilesTitle(Vocabulary(settings_).Profiles());
  stage_.News().Note(kVideoChanged);
}

// ---------------------------------------------------------------- from the window

void AnalysisWorkspace::StageResized() {
  stage_.FormReset();
  notes_.SetupNotesPnl();
}

void AnalysisWorkspace::CellPressed(int slot) {
  Select(slot);
  stage_.FocusKeyBox();
}

void AnalysisWorkspace::CellDoubleClicked(int slot) {
  Select(slot);
  if (!stage_.HasVideo(slot)) menuBar_.Run("vo");
}

int AnalysisWorkspace::OpenFiles(int slot, const std::vector<std::string>& paths) {
  if (paths.empty()) return 0;
  const auto refuse = [this](MessageKind kind, const std::string& words) {
    host_.Message(kind, "", words);
    return 0;
  };
  auto videos = host_.Drives().Ask(paths.front(), [paths] { return VideosAmong(paths); });
  if (!videos) return refuse(MessageKind::Warning, Tr("The drive with the videos is not answering."));
  if (videos->empty()) return refuse(MessageKind::Information, Tr("There is no video among these files."));
  int opened = 0;
  if (slot > 0) {
    Select(slot);
    if (!videos_.OpenVideo(slot, videos->front())) return 0;
    videos->erase(videos->begin());
    ++opened;
  }
  std::string status;
  for (const std::string& path : *videos) {
    if (videos_.SendToAnalysis(path, [&](const std::string& words) { status = words; }) == 0) break;
    ++opened;
  }
  if (stage_.VideoCount() == kSlots && !status.empty()) host_.Message(MessageKind::Information, "", status);
  return opened;
}

bool AnalysisWorkspace::OpenTogether(const std::vector<std::string>& paths) {
  std::vector<int> slots;
  for (const std::string& path : paths)
    if (const int slot = videos_.SendToAnalysis(path)) slots.push_back(slot);
  if (slots.size() == 2 && slots[1] == slots[0] + 1 && (slots[0] == 1 || slots[0] == 3))
    compare_.Locks().DualLock(slots[0] == 1 ? 1 : 2);
  return !slots.empty();
}

void AnalysisWorkspace::PutToolDown() {
  tools_.PutToolDown();
  stage_.News().Note(kCommandsChanged);
  stage_.FocusKeyBox();
}

void AnalysisWorkspace::ChooseColour(int Index) {
  tools_.ChooseColour(Index);
  view_.SetColorButton(Index);
  stage_.FocusKeyBox();
}

void AnalysisWorkspace::ChooseWidth(int pixels) {
  tools_.ChooseWidth(pixels);
  stage_.News().Note(kCommandsChanged);
  stage_.FocusKeyBox();
}

void AnalysisWorkspace::ShapeTaken() {
  edits_.ShowTaken();
  stage_.News().Note(kCommandsChanged);
}

// ---------------------------------------------------------------- from the players

void AnalysisWorkspace::PreDrawFrame(Canvas& hDC, int ID) {
  keeping_.FollowPicture(ID);
  tools_.PreDrawFrame(hDC, ID);
  edits_.FramePainted(ID);
}

void AnalysisWorkspace::Signal(int, int ID) {
  transport_.Signal(ID);
  if (ID == stage_.CurrentWindow) timer_.UpdateTimer();
  rateTest_.Signal(ID);
  compare_.Signal(ID);
  sound_.Follow();
}

void AnalysisWorkspace::Notify(int, int ID) {
  transport_.Notify(ID);
  rateTest_.Notify(ID);
  compare_.Notify(ID);
  sound_.Follow();
  stage_.News().Note(kCommandsChanged);
}

void AnalysisWorkspace::StrobeEnded(int ID) { compare_.Strobe().StrobeEnded(ID); }

void AnalysisWorkspace::MouseDown(int Button, int Shift, float X, float Y, int ID) {
  if (Button == kMiddleButton) return compare_.Zoom().DragBegin(ID, X, Y);
  pressedAt_ = {static_cast<std::int32_t>(X), static_cast<std::int32_t>(Y)};
  if (!tools_.MouseDown(Button, Shift, X, Y, ID)) {
    Select(ID);
    if (Button == kLeftButton && !edits_.Editing()) compare_.Zoom().HandDown(ID, X, Y);
    if (Button == kRightButton) view_.ShowWindowMenu();
  }
  stage_.News().Note(kCommandsChanged);
  stage_.FocusKeyBox();
}

void AnalysisWorkspace::MouseMove(int Button, int Shift, float X, float Y, int ID) {
  if (compare_.Zoom().Dragging()) return compare_.Zoom().DragMove(X, Y);
  tools_.MouseMove(Button, Shift, X, Y, ID);
}

void AnalysisWorkspace::MouseUp(int Button, int Shift, float X, float Y, int ID) {
  if (Button == kMiddleButton) return compare_.Zoom().DragEnd();
  if (Button == kLeftButton && compare_.Zoom().HandUp()) return;
  if (tools_.MouseUp(Button, Shift, X, Y, ID)) stage_.News().Note(kCommandsChanged);
}

void AnalysisWorkspace::DblClick(int ID) {
  if (!stage_.HasVideo(ID)) return CellDoubleClicked(ID);
  tools_.MouseTwice(pressedAt_, ID);
}

void AnalysisWorkspace::KeyDown(int KeyCode, int Shift, int) { menuBar_.PressKey(KeyCode, Shift); }

void AnalysisWorkspace::KeyPress(int KeyAscii, int) { menuBar_.PressLetter(KeyAscii); }

// ---------------------------------------------------------------- for the drawing tools

bool AnalysisWorkspace::IsPlaying(int window) {
  return stage_.MP(window).IsPlaying() || compare_.Locks().PlayingTogether(window);
}

void AnalysisWorkspace::StopClick(int window) {
  compare_.Locks().StopTogether();
  stage_.MP(stage_.CurrentWindow).StopPlay();
  transport_.StepReleased();
  if (stage_.IsShown(window)) stage_.CurrentWindow = window;
  view_.SetLoopButton(false);
  stage_.FocusSet();
}

void AnalysisWorkspace::ReleaseLoopButton() {
  AVIControl& player = stage_.MP(stage_.CurrentWindow);
  if (!player.Repeat()) return;
  player.StopPlay();
  player.setRepeat(false);
  view_.SetLoopButton(false);
}

double AnalysisWorkspace::PositionsPerSecond(int window) {
  return stage_.HasVideo(window) ? transport_.DisplayRate(window) : 0;
}

int AnalysisWorkspace::FrameOf(int window) {
  const AVIControl& player = stage_.MP(window);
  return player.SplitFields() ? player.Position() / 2 : player.Position();
}

bool AnalysisWorkspace::OnLastFrame(int window) {
  const AVIControl& player = stage_.MP(window);
  return player.Position() >= player.VideoLength() - 1;
}

/// A step of a path: locked videos go along as far as they can.
void AnalysisWorkspace::MoveFrame(int window, int by) {
  AVIControl& player = stage_.MP(window);
  if (const int to = player.Position() + by; to >= 0 && to < player.VideoLength()) player.Play(to);
  compare_.MPManualSignal();
  compare_.Locks().StepPartners(window, by);
}

void AnalysisWorkspace::DrawingsChanged(int window) {
  ruler_.DrawingFinished(window);
  ruler_.PathFinished(window);
  keeping_.DrawingsChanged();
  stage_.News().Note(kPicturesChanged);
}

bool AnalysisWorkspace::TakeSquare(int window, const Shape& square) {
  return square.Pts.size() >= 2 && compare_.TakeSquare(window, square.Pts[0], square.Pts[1]);
}

void AnalysisWorkspace::ShowDrawError(const std::string& text) {
  // Told from the event loop: the frame that failed is still being drawn.
  drawError_ = HostTimer(host_, 0, false, [this, text] { host_.Message(MessageKind::Warning, "", text); });
}

}  // namespace kinalyx
