#include "workspace/transport/Transport.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <cstdlib>

#include "workspace/videos/PlayerMoves.h"

namespace kinalyx {
namespace {

constexpr int kRepeatDelay = 350;    // milliseconds before a held step button repeats
constexpr int kRepeatInterval = 60;  // milliseconds between two steps of a held button
constexpr std::size_t kMarks = 10;

/// Seconds with two figures after the point and none before it below one: "1.23", ".50".
std::string Seconds(double seconds) {
  const double rounded = std::floor(seconds * 100 + 0.5) / 100;
  std::string text = fmt::format("{:.2f}", rounded);
  if (text.starts_with("0.")) text.erase(0, 1);
  return text;
}

}  // namespace

Transport::Transport(IHost& host, Settings& settings, Stage& stage, Keeping& keeping, LockedVideos& locks,
                     ITransportView& view)
    : host_(host), settings_(settings), stage_(stage), keeping_(keeping), locks_(locks), view_(view) {}

/// The player of the current window; null while it is empty.
AVIControl* Transport::Player() {
  return stage_.HasVideo(stage_.CurrentWindow) ? &stage_.MP(stage_.CurrentWindow) : nullptr;
}

void Transport::TogglePlay() {
  if (AVIControl* player = Locked() ? nullptr : Player()) {
    view_.SetPlayPicture(!player->IsPlaying());
    kinalyx::TogglePlay(*player);
  }
  stage_.FocusKeyBox();
}

void Transport::Rewind() {
  if (AVIControl* player = Locked() ? nullptr : Player()) GoTo(*player, 0);
  stage_.FocusKeyBox();
}

void Transport::StepForward() {
  if (AVIControl* player = Locked() ? nullptr : Player()) StepBy(*player, 1);
}

void Transport::StepBack() {
  if (AVIControl* player = Locked() ? nullptr : Player()) StepBy(*player, -1);
}

void Transport::Seek(int position) {
  if (Player()) locks_.Seek(stage_.CurrentWindow, position);
}

void Transport::StepPressed(bool forward, float x) {
  ForwardHeld_ = forward;
  BackHeld_ = !forward;
  HeldStartX_ = HeldX_ = x;
  if (Locked()) {
    locks_.DualControlStep(forward);
  } else {
    forward ? StepForward() : StepBack();
  }
  FRtimer_ = HostTimer(host_, kRepeatDelay, false,
                       [this] { FRtimer_ = HostTimer(host_, kRepeatInterval, true, [this] { HeldStep(); }); });
}

void Transport::StepReleased() {
  ForwardHeld_ = BackHeld_ = false;
  FRtimer_.Stop();
}

void Transport::HeldStep() {
  AVIControl* player = Player();
  if (!player) return;
  if (Locked()) return locks_.DualControlStep(ForwardHeld_);
  const int step = std::abs(static_cast<int>(std::floor(HeldX_ - HeldStartX_))) / 100;
  if (ForwardHeld_ && player->Position() + step < player->VideoLength() - 1)
    player->Play(player->Position() + step + 1);
  if (BackHeld_ && player->Position() - step > 0) player->Play(player->Position() - step - 1);
}

void Transport::ToggleSlomo() {
  if (AVIControl* player = Locked() ? nullptr : Player()) ToggleSlow(*player, settings_.SlomoSpeed);
  ShowCurrent();
}

void Transport::ToggleLoop() {
  if (AVIControl* player = Locked() ? nullptr : Player()) SetLoop(*player, !player->Repeat());
  ShowCurrent();
}

/// "Loop all" takes the videos in sight that move by themselves.
bool Transport::CanLoop(int slot) const {
  return stage_.IsShown(slot) && stage_.HasVideo(slot) && !locks_.IsLocked(slot);
}

bool Transport::AllLooping() const {
  bool any = false;
  for (int slot = 1; slot <= kSlots; ++slot) {
    if (!CanLoop(slot)) continue;
    if (!stage_.MP(slot).Repeat()) return false;
    any = true;
  }
  return any;
}

void Transport::ToggleLoopAll() {
  const bool on = !AllLooping();
  for (int slot = 1; slot <= kSlots; ++slot)
    if (CanLoop(slot)) SetLoop(stage_.MP(slot), on);
  ShowCurrent();
}

void Transport::AddMark() {
  Slot& slot = stage_.Current();
  if (slot.path.empty() || slot.data.Study.Marks.size() >= kMarks) return;
  slot.data.Study.Marks.push_back({VideoMoment::At(slot.MP->Position(), slot.MP->SplitFields()), {}, {}});
  MarksChanged();
}

void Transport::GoToMark(int n) {
  const Slot& slot = stage_.Current();
  if (n < 0 || n >= static_cast<int>(slot.data.Study.Marks.size())) return;
  Seek(slot.data.Study.Marks[static_cast<std::size_t>(n)].Moment.Position(slot.MP->SplitFields()));
}

void Transport::NameMark(int n, const std::string& name) {
  auto& marks = stage_.Current().data.Study.Marks;
  if (n < 0 || n >= static_cast<int>(marks.size())) return;
  std::string& present = marks[static_cast<std::size_t>(n)].Name;
  if (std::exchange(present, name) != name) MarksChanged();
}

void Transport::RemoveMark(int n) {
  auto& marks = stage_.Current().data.Study.Marks;
  if (n < 0 || n >= static_cast<int>(marks.size())) return;
  marks.erase(marks.begin() + n);
  MarksChanged();
}

void Transport::ClearMarks() {
  auto& marks = stage_.Current().data.Study.Marks;
  if (marks.empty()) return;
  marks.clear();
  MarksChanged();
}

void Transport::MarksChanged() {
  keeping_.FieldsChanged(stage_.CurrentWindow);
  ShowMarks();
  stage_.News().Note(kCommandsChanged);
}

void Transport::ShowMarks() {
  const Slot& slot = stage_.Current();
  std::vector<ShownMark> marks;
  for (const VideoMark& mark : slot.data.Study.Marks)
    marks.push_back({mark.Moment.Position(slot.MP->SplitFields()), mark.Name});
  view_.SetMarks(marks);
}

/// Positions per second as they were taken, where they are told otherwise than by the times of the pictures; else 0.
double Transport::KnownRate(int slot) const {
  const Slot& at = stage_.At(slot);
  if (at.SlotFrameRate > 0) return at.SlotFrameRate;
  if (at.data.RealFrameRate > 0) return at.data.RealFrameRate;
  const double told = at.MP->Info() ? at.MP->Info()->captureRate : 0;
  const double taken = at.data.Study.TrueRate > 0 ? at.data.Study.TrueRate : told;
  return taken * (at.MP->SplitFields() ? 2 : 1);
}

double Transport::RateOfFile() const {
  const Slot& at = stage_.Current();
  const double told = at.MP->Info() ? at.MP->Info()->captureRate : 0;
  return told > 0 ? told : at.frameRate;
}

void Transport::SetTrueRate(double rate) {
  if (!stage_.HasVideo(stage_.CurrentWindow)) return;
  const double taken = rate > 0 && rate <= kFastestRate ? rate : 0;
  if (std::exchange(stage_.Current().data.Study.TrueRate, taken) == taken) return;
  keeping_.FieldsChanged(stage_.CurrentWindow);
  stage_.Current().MP->Refresh();
  stage_.News().Note(kVideoChanged);
}

double Transport::SecondsAt(int slot) const {
  const AVIControl& player = stage_.MP(slot);
  const bool ownTimes = player.Info() && player.Info()->rateVaries && KnownRate(slot) <= 0;
  return ownTimes ? player.TimeOf(player.Position()) / 1000 : player.Position() / DisplayRate(slot);
}

double Transport::DisplayRate(int slot) const {
  if (const double known = KnownRate(slot); known > 0) return known;
  const Slot& at = stage_.At(slot);
  const double rate = at.frameRate * (at.MP->SplitFields() ? 2 : 1);
  return rate > 0 ? rate : 30;  // the file does not tell
}

std::string Transport::DisplayLine(int slot) const {
  if (!stage_.HasVideo(slot)) return "0 seconds | 00/00 frames  ";
  const Slot& at = stage_.At(slot);
  return fmt::format("{} seconds | {}/{} frames  ", Seconds(SecondsAt(slot)), at.MP->Position(),
                     at.MP->VideoLength() - 1);
}

void Transport::DisplayData(const std::string& text) {
  view_.SetDisplayText(text);
  if (text.empty()) ShowPosition();
}

void Transport::ShowPosition() {
  const int slot = stage_.CurrentWindow;
  std::string counter;
  if (ShowFrameCounter && stage_.HasVideo(slot)) {
    const auto width = std::to_string(stage_.MP(slot).VideoLength() - 1).size();
    counter = fmt::format("{:0{}}", stage_.MP(slot).Position(), std::min<std::size_t>(width, 4));
  }
  view_.SetDisplayLine(DisplayLine(slot), counter);
}

void Transport::ShowCell(int slot) {
  if (!stage_.HasVideo(slot)) {
    view_.SetCellPosition(slot, 0, 0, "");
    return;
  }
  view_.SetCellPosition(slot, stage_.MP(slot).Position(), stage_.MP(slot).VideoLength() - 1, DisplayLine(slot));
}

void Transport::ScrollBarSetup() {
  AVIControl* player = Player();
  const auto [lowest, highest] = locks_.BarOf(stage_.CurrentWindow);
  view_.SetScrollRange(lowest, highest);
  view_.SetScrollValue(player ? player->Position() : 0);
}

void Transport::ShowCurrent() {
  AVIControl* player = Player();
  ScrollBarSetup();
  ShowPosition();
  ShowCell(stage_.CurrentWindow);
  view_.SetSlomoButton(player && player->Speed() != 100);
  view_.SetLoopButton(player && player->Repeat());
  view_.SetPlayPicture(player && (player->IsPlaying() || locks_.PlayingTogether(stage_.CurrentWindow)));
  ShowMarks();
}

void Transport::ShowAll() {
  for (int slot = 1; slot <= kSlots; ++slot) ShowCell(slot);
  ShowCurrent();
}

void Transport::Signal(int slot) {
  ShowCell(slot);
  if (slot != stage_.CurrentWindow) return;
  ShowPosition();
  view_.SetScrollValue(stage_.MP(slot).Position());
}

void Transport::Notify(int slot) {
  if (slot == stage_.CurrentWindow) ShowCurrent();
}

}  // namespace kinalyx
