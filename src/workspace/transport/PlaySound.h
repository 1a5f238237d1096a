#pragma once

#include <string>

#include "core/Settings.h"
#include "platform/graph/ISoundOutput.h"
#include "platform/host/Host.h"
#include "workspace/compare/LockedVideos.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// Lets the video of the current window be heard while it plays forward at full speed, or the one that leads a locked
/// pair; in step with its pictures, whatever the user does meanwhile.
class PlaySound {
 public:
  /// @param output  null: nothing is ever heard
  PlaySound(IHost& host, Settings& settings, Stage& stage, LockedVideos& locks, ISoundOutput* output)
      : host_(host), settings_(settings), stage_(stage), locks_(locks), output_(output) {}
  ~PlaySound() { Stop(); }

  /// Whatever may have begun, moved or ended a play has happened.
  void Follow();
  /// The section is on the screen, or has gone from it.
  void SetAudible(bool on);
  /// Percent, kept in the settings; 0 is silent.
  void SetVolume(int percent);
  int Volume() const { return settings_.SoundVolume; }
  /// The current video has sound.
  bool CanBeHeard() const;

 private:
  int SlotHeard() const;
  void Stop();

  IHost& host_;
  Settings& settings_;
  Stage& stage_;
  LockedVideos& locks_;
  ISoundOutput* output_;
  bool audible_ = true;
  std::string path_;        ///< of what is heard; empty for nothing
  double fromMs_ = 0;       ///< of the video, at
  std::int64_t since_ = 0;  ///< this moment of the host's clock
};

}  // namespace kinalyx
