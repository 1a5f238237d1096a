#pragma once

#include <memory>

#include "core/MailSettings.h"
#include "core/Settings.h"
#include "distribution/send/FilesToSend.h"
#include "distribution/send/SendWish.h"
#include "library/LibraryTree.h"
#include "platform/disc/DiscDrives.h"
#include "platform/host/Host.h"

class QWidget;

namespace kinalyx {

class DiscPanel;
class FTPUploadForm;
class SendPage;

/// The Send Lessons page of the program: its list, and the form that sends it.
class SendRoom {
 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    const MailSettings& mail;
    const LastStudentInfo& remembered;
    QWidget& over;  ///< the main window, which goes first
  };
  /// All outlives the room.
  explicit SendRoom(Parts parts);
  ~SendRoom();

  /// The page; its owner is who shows it.
  SendPage* MakePage();
  FilesToSend& Files() { return files_; }
  /// Whether the program may end: asks where something is still being sent.
  bool MayClose();
  /// The program ends: what is being sent is given up, and the form goes.
  void Close();

 private:
  void Send(const SendWish& wish);

  Parts parts_;
  FilesToSend files_;
  MachineDrives drives_;
  DiscPanel* disc_ = nullptr;      ///< owned by the page
  FTPUploadForm* form_ = nullptr;  ///< owned by the main window, and made when it is first wanted
};

}  // namespace kinalyx
