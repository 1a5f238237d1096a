#include "workspace/transport/Transport.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <cstdlib>

#include "platform/files/Tr.h"
#include "workspace/transport/Speeds.h"
#include "workspace/videos/PlayerMoves.h"
#include "workspace/stage/TakenRate.h"

namespace kinalyx {
namespace {

constexpr int kRepeatDelay = 350;    // milliseconds before a held step button repeats
constexpr int kRepeatInterval = 60;  // milliseconds between two steps of a held button
constexpr int kAnnounced = 1500;     // milliseconds that a word for a moment stands,
constexpr int kReading = 60;         // and more where so much for each letter is more
constexpr std::size_t kMarks = 10;
constexpr int kLeap = 10;  // pictures

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
    : host_(host),
      settings_(settings),
      stage_(stage),
      keeping_(keeping),
      locks_(locks),
      view_(view),
      all_(stage, locks) {}

/// The player of the current window; null while it is empty.
AVIControl* Transport::Player() const {
  return stage_.HasVideo(stage_.CurrentWindow) ? &stage_.MP(stage_.CurrentWindow) : nullptr;
}

bool Transport::Playing() const {
  const AVIControl* player = Player();
  return player && (player->IsPlaying() || locks_.PlayingTogether(stage_.CurrentWindow));
}

// ---------------------------------------------------------------- play, step and seek

void Transport::TogglePlay() {
  if (!Refused()) PlayPause();
  stage_.FocusKeyBox();
}

void Transport::PlayPause() {
  if (AVIControl* player = Player()) {
    if (MovesAll()) {
      all_.TogglePlay();
      ShowCurrent();
    } else if (Locked()) {
      locks_.PlayTogether();
    } else {
      view_.SetPlayPicture(!player->IsPlaying());
      kinalyx::TogglePlay(*player);
    }
  }
  stage_.FocusKeyBox();
}

void Transport::Rewind() {
  if (AVIControl* player = Refused() ? nullptr : Player()) {
    if (MovesAll()) {
      all_.Rewind();
    } else if (Locked()) {
      locks_.DualControlRewind();
    } else {
      GoTo(*player, 0);
    }
  }
  stage_.FocusKeyBox();
}

void Transport::Step(bool forward) {
  AVIControl* player = Refused() ? nullptr : Player();
  if (!player) return;
  if (MovesAll()) {
    all_.Step(forward);
  } else if (Locked()) {
    locks_.DualControlStep(forward);
  } else {
    StepBy(*player, forward ? 1 : -1);
  }
}

void Transport::Seek(int position) { Seek(stage_.CurrentWindow, position); }

void Transport::Seek(int slot, int position) {
  if (stage_.HasVideo(slot)) locks_.Seek(slot, position);
}

void Transport::Leap(bool forward) {
  const int move = forward ? kLeap : -kLeap;
  if (MovesAll()) {
    all_.Move(move);
  } else if (AVIControl* player = Player()) {
    Seek(player->Position() + move);
  }
}

void Transport::ToFirst() {
  if (Player()) Seek(locks_.BarOf(stage_.CurrentWindow).lowest);
}

void Transport::ToLast() {
  if (Player()) Seek(locks_.BarOf(stage_.CurrentWindow).highest);
}

void Transport::PlayForward() { Play(true); }
void Transport::PlayBackward() { Play(false); }

void Transport::Play(bool forward) {
  AVIControl* player = Player();
  if (!player) return;
  const bool back = player->PlaysBack() || locks_.PlaysBack(stage_.CurrentWindow);
  if (Playing() && back != forward) return SetSpeed(NextSpeed(Speed(), true));
  Pause();
  if (MovesAll()) {
    forward ? all_.TogglePlay() : all_.PlayBack();
  } else if (Locked()) {
    locks_.PlayTogether(stage_.CurrentWindow, forward);
  } else {
    forward ? kinalyx::TogglePlay(*player) : player->PlayBack();
  }
  ShowCurrent();
}

void Transport::Pause() {
  if (MovesAll()) return all_.Pause();
  locks_.StopTogether(stage_.CurrentWindow);
  if (AVIControl* player = Player()) player->StopPlay();
}

void Transport::ToggleMovesAll() {
  movesAll_ = !MovesAll();
  stage_.News().Note(kVideoChanged);
}

// ---------------------------------------------------------------- the part that is played

bool Transport::HasRange() const {
  const AVIControl* player = Player();
  return player && player->PlayRange() != AVIControl::Range{0, player->VideoLength() - 1};
}

void Transport::SetRange(int first, int last) {
  Player()->setPlayRange(AVIControl::Range{first, last});
  ShowCurrent();
  stage_.News().Note(kCommandsChanged);
}

void Transport::ToggleRangeStart() {
  AVIControl* player = Player();
  if (!player) return;
  const auto [first, last] = player->PlayRange();
  const int here = player->Position();
  if (here == first) return SetRange(0, last);
  SetRange(here, here < last ? last : player->VideoLength() - 1);
}

void Transport::ToggleRangeEnd() {
  AVIControl* player = Player();
  if (!player) return;
  const auto [first, last] = player->PlayRange();
  const int here = player->Position();
  if (here == last) return SetRange(first, player->VideoLength() - 1);
  SetRange(here > first ? first : 0, here);
}

void Transport::PlayWholeVideo() {
  if (AVIControl* player = Player()) SetRange(0, player->VideoLength() - 1);
}

// ---------------------------------------------------------------- a step button that is held

void Transport::StepPressed(bool forward, float x) {
  ForwardHeld_ = forward;
  BackHeld_ = !forward;
  HeldStartX_ = HeldX_ = x;
  if (Locked() && !MovesAll()) {
    locks_.DualControlStep(forward);
  } else {
    Step(forward);
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
  if (MovesAll()) return all_.Step(ForwardHeld_);
  if (Locked()) return locks_.DualControlStep(ForwardHeld_);
  const int step = std::abs(static_cast<int>(std::floor(HeldX_ - HeldStartX_))) / 100;
  if (ForwardHeld_ && player->Position() + step < player->VideoLength() - 1)
    player->Play(player->Position() + step + 1);
  if (BackHeld_ && player->Position() - step > 0) player->Play(player->Position() - step - 1);
}

// ---------------------------------------------------------------- speed and loop

void Transport::ToggleSlomo() {
  if (AVIControl* player = Refused() ? nullptr : Player()) {
    if (MovesAll() || Locked()) {
      SetSpeed(Speed() == 100 ? std::clamp<int>(settings_.SlomoSpeed, 1, 100) : 100);
    } else {
      ToggleSlow(*player, settings_.SlomoSpeed);
    }
  }
  ShowCurrent();
}

int Transport::Speed() const {
  if (Locked()) return locks_.TogetherSpeed();
  const AVIControl* player = Player();
  return player ? player->Speed() : 100;
}

void Transport::SetSpeed(int percent) {
  if (AVIControl* player = Player()) {
    if (MovesAll()) {
      all_.SetSpeed(percent);
    } else if (Locked()) {
      locks_.setTogetherSpeed(percent);
    } else {
      player->setSpeed(percent);
    }
  }
  ShowCurrent();
  stage_.FocusKeyBox();
}

void Transport::ToggleLoop() {
  if (AVIControl* player = Refused() ? nullptr : Player()) {
    if (MovesAll()) {
      all_.ToggleLoop();
    } else if (Locked()) {
      locks_.setTogetherRepeat(!locks_.TogetherRepeat());
    } else {
      SetLoop(*player, !player->Repeat());
    }
  }
  ShowCurrent();
}

void Transport::ToggleLoopAll() {
  all_.ToggleLoop();
  ShowCurrent();
}

// ---------------------------------------------------------------- marks

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

std::vector<std::string> Transport::NamesElsewhere() const {
  std::vector<std::string> names;
  for (int slot = 1; slot <= kSlots; ++slot) {
    if (slot == stage_.CurrentWindow || !stage_.HasVideo(slot)) continue;
    for (const VideoMark& mark : stage_.At(slot).data.Study.Marks)
      if (!mark.Name.empty() && std::ranges::find(names, mark.Name) == names.end()) names.push_back(mark.Name);
  }
  return names;
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

// ---------------------------------------------------------------- what is shown

std::optional<double> Transport::UntoldRate(int slot) const {
  const bool untold = stage_.HasVideo(slot) && KnownRate(stage_.At(slot)) <= 0;
  return untold ? std::optional(DisplayRate(slot) / (stage_.MP(slot).SplitFields() ? 2 : 1)) : std::nullopt;
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

bool Transport::GoesByOwnTimes(int slot) const {
  const VideoInfo* info = stage_.MP(slot).Info();
  return info && info->rateVaries && KnownRate(stage_.At(slot)) <= 0;
}

double Transport::SecondsAt(int slot, int position) const {
  return GoesByOwnTimes(slot) ? stage_.MP(slot).TimeOf(position) / 1000 : position / DisplayRate(slot);
}

double Transport::DisplayRate(int slot) const {
  if (const double known = KnownRate(stage_.At(slot)); known > 0) return known;
  const Slot& at = stage_.At(slot);
  const double rate = at.frameRate * (at.MP->SplitFields() ? 2 : 1);
  return rate > 0 ? rate : 30;  // the file does not tell
}

std::string Transport::DisplayLine(int slot) const {
  if (!stage_.HasVideo(slot)) return Tr("0 seconds | 00/00 frames  ");
  const Slot& at = stage_.At(slot);
  return Tr("{} seconds | {}/{} frames  ", Seconds(SecondsAt(slot)), at.MP->Position(), at.MP->VideoLength() - 1);
}

std::string Transport::TimeText(int slot, int position) const {
  return fmt::format("{} s | {}", Seconds(SecondsAt(slot, position)), position);
}

void Transport::DisplayData(const std::string& text) {
  announced_.Stop();
  view_.SetDisplayText(text);
  if (text.empty()) ShowPosition();
}

void Transport::Announce(const std::string& text) {
  DisplayData(text);
  announced_ = HostTimer(host_, std::max(kAnnounced, kReading * static_cast<int>(text.size())), false,
                         [this] { DisplayData(""); });
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
  const AVIControl::Range played = player ? player->PlayRange() : AVIControl::Range{lowest, highest};
  view_.SetPlayRange(played.first, played.last);
  view_.SetScrollValue(player ? player->Position() : 0);
}

void Transport::ShowCurrent() {
  AVIControl* player = Player();
  ScrollBarSetup();
  ShowPosition();
  ShowCell(stage_.CurrentWindow);
  const bool ofLock = Locked() && !Refused();
  view_.SetSlomoButton(player && (ofLock ? Speed() : player->Speed()) != 100);
  view_.SetSpeed(Speed());
  view_.SetLoopButton(player && (ofLock ? locks_.TogetherRepeat() : player->Repeat()));
  view_.SetPlayPicture(MovesAll() ? all_.Playing() : Playing());
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
  if (slot == stage_.CurrentWindow || MovesAll()) ShowCurrent();
}

}  // namespace kinalyx
