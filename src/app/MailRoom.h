#pragma once

#include <memory>

#include "core/MailSettings.h"
#include "core/Settings.h"
#include "distribution/mail/MailDesk.h"
#include "distribution/mail/SnapshotDesk.h"
#include "distribution/mail/SnapshotQueue.h"
#include "library/LibraryTree.h"
#include "library/Profile.h"
#include "platform/graph/IShortSounds.h"
#include "platform/host/Host.h"

namespace kinalyx {

class AnalysisForm;

/// Snapshots of the stage and the mail that takes them to the student. The queue lives as long as the analysis section
/// that stands; what is not sent by then is asked for.
class MailRoom {
 public:
  struct Parts {
    IHost& host;
    const Settings& settings;
    MailSettings& mail;
    const ProfileFields& fields;
    const LastStudentInfo& remembered;
    IShortSounds& sounds;
  };
  /// All outlives the room.
  explicit MailRoom(Parts parts);
  ~MailRoom();

  /// The section that stands now; null when it goes, and the queue with it.
  void Serve(AnalysisForm* analysis);
  void TakeSnapshot();
  void SendSnapshots();
  /// Whether the section may go. Asks where pictures have not been sent.
  bool MayLeave();

 private:
  bool FolderAnswers();
  void AskForLeft();

  Parts parts_;
  SnapshotQueue queue_;
  MailDesk desk_;
  AnalysisForm* analysis_ = nullptr;
  std::unique_ptr<SnapshotDesk> snapshots_;
};

}  // namespace kinalyx
