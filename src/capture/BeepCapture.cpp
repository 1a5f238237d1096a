#include "capture/BeepCapture.h"

#include <fmt/format.h>

#include <algorithm>

#include "core/Settings.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr int kSecondMs = 1000;
constexpr int kLastSeconds = 3;  ///< which are told apart by a sound of their own

}  // namespace

std::string BeepCapture::Caption() const { return Running() ? Tr("Stop Beep Capture") : Tr("Start Beep Capture"); }

void BeepCapture::Press() {
  if (Running()) return Stop();
  if (parts_.naming.Shown().empty()) {
    parts_.host.Message(MessageKind::Information, "", Tr("You must name the video before saving!"));
    parts_.naming.ChangeName();
    return;
  }
  BeepCycleNumber_ = 1;
  kept_ = 0;
  note_.clear();
  stopped_ = false;
  Begin();
}

void BeepCapture::Begin() {
  BeepState_ = State::Counting;
  parts_.cameras.Say(Tr("Preparing to Capture"));
  BeepCountdown_ = std::clamp(parts_.settings.BeepPausetime, 1, kMostBeepSeconds);
  Wait(kSecondMs);
  parts_.events.BeepChanged();
}

void BeepCapture::Wait(int milliseconds) {
  BeepTimer_ = HostTimer(parts_.host, milliseconds, false, [this] { Tick(); });
}

void BeepCapture::Tick() {
  switch (BeepState_) {
    case State::Counting: CountDown(); break;
    case State::Starting: StartVideo(); break;
    case State::Capturing: EndVideo(); break;
    case State::Idle:
    case State::Saving: break;
  }
}

void BeepCapture::CountDown() {
  Play("typing1.wav");
  if (BeepCountdown_ <= kLastSeconds && BeepCountdown_ > 1) Play("countdown.wav");
  parts_.cameras.Say(
      Tr("Getting Ready to Capture Video #{} of {} in {} seconds", BeepCycleNumber_, Cycles(), BeepCountdown_));
  Show(std::to_string(BeepCountdown_));
  if (--BeepCountdown_ == 0) BeepState_ = State::Starting;
  Wait(kSecondMs);
}

void BeepCapture::StartVideo() {
  Play("startbeep.wav");
  Show("0");
  BeepState_ = State::Capturing;
  if (!parts_.cameras.StartTimed(*this)) return TimedFailed();
  Wait(std::clamp(parts_.settings.BeepCapTime, 1, kMostBeepSeconds) * kSecondMs);
}

void BeepCapture::EndVideo() {
  BeepTimer_.Stop();
  BeepState_ = State::Saving;
  Show({});
  parts_.cameras.Say(Tr("Saving Video"));
  Play("endbeep.wav");
  parts_.cameras.StopTimed();
}

int BeepCapture::Cycles() const { return std::clamp(parts_.settings.BeepCycles, 1, kMostBeepCycles); }

void BeepCapture::TimedKept(const std::string& note) {
  if (!note.empty()) note_ = " " + note;
  ++kept_;
  ++BeepCycleNumber_;
  if (stopped_ || BeepCycleNumber_ > Cycles()) return Finish();
  Begin();
}

void BeepCapture::TimedFailed() {
  BeepTimer_.Stop();
  BeepState_ = State::Idle;
  Show({});
}

void BeepCapture::Finish() {
  BeepTimer_.Stop();
  BeepState_ = State::Idle;
  Show({});
  // The misspelling is what users have always read here.
  std::string words = kept_ == 1 ? Tr("Beep Capture Complete. 1 video succesfully created.")
                                 : Tr("Beep Capture Complete. {} videos succesfully created.", kept_);
  if (stopped_) words = Tr("Beep Capture Stopped. Ready to Record.");
  parts_.cameras.Say(words + note_);
}

void BeepCapture::Stop() {
  switch (BeepState_) {
    case State::Idle: return;
    case State::Saving: stopped_ = true; return;
    case State::Capturing:
      // The video in hand is finished.
      stopped_ = true;
      return EndVideo();
    case State::Counting:
    case State::Starting: break;
  }
  BeepTimer_.Stop();
  BeepState_ = State::Idle;
  Show({});
  parts_.cameras.Say(Tr("Capture Interrupted, Ready for Capture."));
}

void BeepCapture::Play(const char* sound) const { parts_.sounds.Play(JoinPath(parts_.soundFolder, sound)); }

void BeepCapture::Show(std::string count) {
  count_ = std::move(count);
  parts_.events.BeepChanged();
}

}  // namespace kinalyx
