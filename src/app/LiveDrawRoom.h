#pragma once

#include <memory>

#include "app/CaptureRoom.h"
#include "capture/livedraw/LiveDrawSession.h"
#include "capture/livedraw/forms/LiveDrawForm.h"

namespace kinalyx {

/// Live draw: its session, which is made when it is first wanted and stays for the run of the program, and its window.
class LiveDrawRoom {
 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    CaptureRoom& capture;
    ILiveDrawWays& ways;
  };
  /// All outlives the room.
  explicit LiveDrawRoom(Parts parts);
  ~LiveDrawRoom();

  /// Opens the window, or brings it to the front.
  void Show();
  /// The capture page has the cameras, or has let them go.
  void GiveCameraAway(bool away);
  /// With the program.
  void Close();

 private:
  Parts parts_;
  bool away_ = false;
  std::unique_ptr<LiveDrawSession> session_;
  std::unique_ptr<LiveDrawForm> form_;
};

}  // namespace kinalyx
