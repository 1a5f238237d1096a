#pragma once

#include <functional>
#include <memory>

#include "core/Settings.h"
#include "library/LibraryTree.h"
#include "platform/host/Host.h"

namespace kinalyx {

class CaptureRoom;
class MirrorForm;

/// The delayed mirror of the program: a window of its own, made when it is first wanted. It and the capture page
/// never hold a camera both.
class MirrorRoom {
 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    const LastStudentInfo& remembered;
    CaptureRoom& capture;
    std::function<void()> closed;  ///< told, after the window has gone
  };
  /// All outlives the room.
  explicit MirrorRoom(Parts parts);
  ~MirrorRoom();

  /// Opens the window, or brings it to the front.
  void Open();
  bool IsOpen() const;
  /// The capture page is about to open, or has been left: it needs the cameras, or not any more.
  void Lend(bool lent);
  /// Whether the program may end; not while a video is on its way to its folder.
  bool MayClose();
  void Close();

 private:
  Parts parts_;
  std::unique_ptr<MirrorForm> form_;
  bool lent_ = false;
};

}  // namespace kinalyx
