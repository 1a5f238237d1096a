#include "workspace/compare/CompareModes.h"

#include <fmt/format.h>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr const char* kOpenFirst = TrLater("Open a video first");
constexpr const char* kLeaveCarve = TrLater("Leave the transparency carve first (Esc)");

}  // namespace

CompareModes::CompareModes(IHost& host, Settings& settings, PlayScheduler& scheduler, Stage& stage, ICompareView& view,
                           ICompareEvents& events)
    : settings_(settings),
      stage_(stage),
      view_(view),
      locks_(host, scheduler, stage),
      lineUp_(stage, locks_),
      transparency_(host, settings, stage, locks_, view, events),
      strip_(host, stage, view, events),
      carve_(host, stage, view, events),
      strobe_(settings, stage, locks_),
      zoom_(host, stage) {
  locks_.HoldByTime(settings.LockByTime == 1);
}

// ---------------------------------------------------------------- one mode at a time

std::string CompareModes::StageTaken() const {
  if (transparency_.TransparencyOn()) return Tr("Leave transparency mode first (Esc)");
  if (strip_.Shown()) return Tr("Leave multi-picture mode first (Esc)");
  return {};
}

std::string CompareModes::WhyNoTransparency() const {
  if (transparency_.TransparencyOn()) return {};
  if (carve_.Shown()) return Tr(kLeaveCarve);
  if (strip_.Shown()) return StageTaken();
  return transparency_.CanShow() ? "" : Tr("Open videos in windows 1 and 2 first");
}

std::string CompareModes::WhyNoStrip() const {
  if (strip_.Shown()) return {};
  if (carve_.Shown()) return Tr(kLeaveCarve);
  if (transparency_.TransparencyOn()) return StageTaken();
  if (!strip_.CanShow()) return Tr(kOpenFirst);
  // Its pictures are fetched by moving the video, which the others of a lock do not follow.
  return locks_.IsLocked(stage_.CurrentWindow) ? Tr("Unlock the videos first") : "";
}

std::string CompareModes::WhyNoCarve() const {
  if (carve_.Shown()) return {};
  if (const std::string taken = StageTaken(); !taken.empty()) return taken;
  return carve_.CanShow() ? "" : Tr(kOpenFirst);
}

void CompareModes::StopWaiting() {
  strip_.StopWaiting();
  carve_.StopMarking();
}

// ---------------------------------------------------------------- windows

void CompareModes::ToggleZoomForm() {
  zoomShown_ = !zoomShown_;
  view_.ShowZoomForm(zoomShown_);
}

void CompareModes::ToggleStrobeForm() {
  strobeShown_ = !strobeShown_;
  view_.ShowStrobeForm(strobeShown_);
  if (!strobeShown_) strobe_.SetWindow(nullptr);
}

bool CompareModes::Escape() {
  if (strobe_.StrobeRunning()) {
    strobe_.ToggleStrobe();
  } else if (carve_.Shown()) {
    carve_.ToggleCarve();
  } else if (transparency_.TransparencyOn()) {
    transparency_.LeaveTransparency();
  } else if (strip_.Shown()) {
    strip_.ToggleStrip();
  } else {
    return false;
  }
  return true;
}

bool CompareModes::CloseCards() {
  const bool shown = StrobeShown() || zoomShown_;
  if (StrobeShown()) ToggleStrobeForm();
  if (zoomShown_) ToggleZoomForm();
  return shown;
}

void CompareModes::CloseAll() {
  while (Escape()) {
  }
  locks_.StopTogether();
  for (const int slot : {1, 3}) locks_.DualUnlock(slot);
  CloseCards();
}

void CompareModes::MPManualSignal() {
  transparency_.MPManualSignal();
  carve_.MPManualSignal();
}

// ---------------------------------------------------------------- dual controls

void CompareModes::HoldLocksByTime(bool on) {
  settings_.Set(settings_.LockByTime, on ? 1 : 0);
  locks_.HoldByTime(on);
}

void CompareModes::ShowDual() {
  const int slot = stage_.CurrentWindow;
  DualState state;
  state.locked = locks_.IsLocked(slot);
  state.shown = state.locked || transparency_.TransparencyOn();
  state.allLocked = locks_.AllLocked();
  state.canLock = locks_.CanLock();
  state.canLockAll = locks_.CanLockAll();
  state.playing = locks_.PlayingTogether(slot);
  state.repeat = locks_.TogetherRepeat();
  state.ratesDiffer = locks_.RatesDiffer(slot);
  state.byTime = locks_.IsHeldByTime(slot);
  state.speed = locks_.TogetherSpeed();
  if (state.locked) {
    state.lowest = locks_.BarOf(slot).lowest;
    state.highest = locks_.BarOf(slot).highest;
    state.position = stage_.MP(slot).Position();
    const int first = state.allLocked || slot <= 2 ? 1 : 3;
    const int last = state.allLocked || slot > 2 ? 4 : 2;
    for (int each = first; each <= last; ++each)
      state.line += fmt::format("{}{}", each == first ? "" : " + ", stage_.MP(each).Position());
  }
  view_.ShowDual(state);
}

// ---------------------------------------------------------------- from the players and the stage

void CompareModes::Signal(int slot) {
  strip_.Signal(slot);
  transparency_.Signal(slot);
  carve_.Signal(slot);
  strobe_.Signal(slot);
  if (locks_.IsLocked(slot)) ShowDual();
}

void CompareModes::VideoClosing(int slot) {
  strobe_.VideoClosing(slot);
  carve_.VideoClosing(slot);
  strip_.VideoClosing(slot);
  locks_.VideoClosing(slot);
}

void CompareModes::StageChanged(unsigned changes) {
  if (changes & kPicturesChanged) {
    transparency_.PicturesChanged();
    strip_.PicturesChanged();
    carve_.PicturesChanged();
  }
  if (changes & (kVideoChanged | kLocksChanged)) transparency_.StateChanged();
  if (changes & kVideoChanged) {
    carve_.LayoutChanged();
    strobe_.StateChanged();
  }
  if (changes & kVideoChanged) locks_.VideosChanged();
  if (changes & kLocksChanged) strobe_.LocksChanged();
  if (changes & kFocusChanged) strobe_.FocusChanged();
  if (changes != kCommandsChanged) ShowDual();
}

}  // namespace kinalyx
