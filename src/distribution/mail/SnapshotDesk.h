#pragma once

#include <string>

#include "distribution/mail/SnapshotQueue.h"
#include "platform/graph/IShortSounds.h"
#include "platform/host/Host.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// The panel over the stage that tells of a snapshot.
class ISnapshotView {
 public:
  virtual ~ISnapshotView() = default;
  virtual void ShowEmailPnl(const std::string& words) = 0;
  virtual void HideEmailPnl() = 0;
};

/// "Email- Take SnapShot": a click of the shutter, the picture in the queue, and a panel that says so for a moment.
class SnapshotDesk {
 public:
  /// How long the panel stands.
  static constexpr int kShownMs = 3500;

  /// All outlives the desk.
  /// @param sound  path of the shutter's sound
  SnapshotDesk(IHost& host, SnapshotQueue& queue, IShortSounds& sounds, std::string sound, ISnapshotView& view)
      : host_(host), queue_(queue), sounds_(sounds), sound_(std::move(sound)), view_(view) {}

  /// Takes the picture of the stage into the queue, without the white around it, or tells why it cannot.
  void TTES_Click(const Surface& picture);

 private:
  void EmailTimer_Timer();

  IHost& host_;
  SnapshotQueue& queue_;
  IShortSounds& sounds_;
  std::string sound_;
  ISnapshotView& view_;
  HostTimer EmailTimer_;
};

}  // namespace kinalyx
