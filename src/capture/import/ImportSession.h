#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "capture/IVideoNaming.h"
#include "capture/import/ConvertJob.h"
#include "capture/import/IImportEvents.h"
#include "capture/import/ImportList.h"
#include "core/Settings.h"
#include "library/JobRunner.h"
#include "platform/files/Tr.h"
#include "platform/host/Host.h"

namespace kinalyx {

/// The ways of importing: values of the key `VideoInSource`.
enum class ImportKind : std::int32_t {
  Camera = 2,     ///< from the folder of a camera
  Automatic = 8,  ///< what arrives in a folder that is watched
  Manual = 25,    ///< files picked by hand
};

/// Brings files from other cameras into the library: which files there are, which part of one is wanted, and their
/// conversion one after the other. A file that cannot be read stops itself and never those behind it. Conversion is
/// work on a worker; all calls and all news are on the user-interface thread.
class ImportSession {
 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    IVideoNaming& naming;
    IImportEvents& events;
    JobRunner::On on = JobRunner::On::Worker;
  };

  /// All that is passed outlives it.
  explicit ImportSession(const Parts& parts);
  /// Gives up a conversion that is under way.
  ~ImportSession();
  ImportSession(const ImportSession&) = delete;
  ImportSession& operator=(const ImportSession&) = delete;

  // --- what is shown

  ImportKind Kind() const { return kind_; }
  const std::vector<ImportRow>& Rows() const { return list_.Rows(); }
  /// Path of the selected file; empty for none.
  const std::string& Selected() const { return selected_; }
  const std::string& Status() const { return status_; }
  /// Folder of this kind; empty where none is set, and for files picked by hand.
  std::string Folder() const;
  /// That folder could not be read when it was looked at last: it is not there, or its drive does not answer.
  bool FolderGone() const { return folderGone_; }
  bool Busy() const { return jobs_.Busy(); }
  const JobProgress& Progress() const { return progress_; }
  /// Trim of the selected file, ms; nothing where it is not set.
  std::optional<double> TrimStart() const { return trimStart_; }
  std::optional<double> TrimEnd() const { return trimEnd_; }
  bool AutoActive() const { return autoActive_; }
  /// `AutoConvertBtn`.
  std::string AutoCaption() const { return autoActive_ ? Tr("Stop Auto Import") : Tr("Start Auto Import"); }
  /// `AutoImportLbl`.
  const std::string& AutoStatus() const { return autoStatus_; }

  // --- what the user does

  /// Takes another kind: the watch ends, and what waits is not converted any more. Reads its folder.
  void ChooseKind(ImportKind kind);
  /// Reads the folder of this kind anew; nothing for files picked by hand.
  void Refresh();
  /// The same for a camera that may have been plugged in meanwhile; a drive that does not answer is not waited for.
  void LookAgain();
  /// `List1_Click`; an unknown path selects nothing. Forgets the trim.
  void Select(const std::string& path);
  /// "Browse": picks files and adds them; the first new one is selected.
  void Browse();
  /// The same for files that were dropped; folders give what is in them. False when none is a video.
  bool AddFiles(const std::vector<std::string>& paths);
  /// Takes a file off the list that was picked by hand.
  void RemoveFromList(const std::string& path);
  /// "Set Start Point" and "Set End Point", at a time of the selected video in ms.
  void SetStartPoint(double ms);
  void SetEndPoint(double ms);
  void ClearTrim();
  /// False for a file that is being converted, or whose turn comes, and for one that is not in the list.
  bool CanSave(const std::string& path) const;
  /// "Save": converts these files, one after the other, each under the next name. The trim goes for the selected one.
  /// False, with a message, when it does not begin.
  bool Save(const std::vector<std::string>& paths);
  /// `AutoConvertBtn_Click`.
  void ToggleAuto();
  /// Videos come from elsewhere now: nothing is watched any more.
  void EndWatch();
  /// Gives up the file that is being converted and those behind it.
  void CancelConversion();

  /// `AutoTimer_Timer`: every second while the watch runs.
  void AutoTimer();
  /// Time in the words of the trim: "0:07.25".
  static std::string TimeText(double ms);

 private:
  class JobEvents;
  /// A stretch of a file, whose turn comes.
  struct Part {
    std::string path;
    double startMs = 0;
    double endMs = 0;  ///< 0 for the end of the video
  };
  bool HasFolder();
  void TakeFolder(bool writers, bool atOnce);
  bool NextName();
  bool TrimIsGood() const;
  /// Starts what stands first in the queue; false when that cannot begin.
  bool ConvertNext();
  bool ConvertFile(const Part& part);
  void EndOfStream(const ConvertJob* job);
  void TellSaved(const ConvertJob& job);
  void Mark(const std::string& path, ImportRow::State state, const std::string& remark = {});
  void Unqueue();
  void Trouble(const std::string& text);
  void CountDown();
  void SetStatus(std::string status);
  void SetAutoStatus(std::string status);
  void Changed() { parts_.events.ImportChanged(); }

  Parts parts_;
  ImportKind kind_ = ImportKind::Manual;
  ImportList list_;
  std::string selected_;
  std::string status_;
  std::string autoStatus_;
  bool folderGone_ = false;
  std::optional<double> trimStart_;
  std::optional<double> trimEnd_;
  std::deque<Part> queue_;
  std::string converting_;  ///< path of the source; empty when nothing is converted
  JobProgress progress_;
  bool autoActive_ = false;
  std::string counting_;  ///< the file whose countdown runs
  int secondsLeft_ = 0;
  HostTimer autoTimer_;
  bool telling_ = false;  ///< a message is open
  JobRunner jobs_;        ///< last: nobody calls when the rest has gone
};

}  // namespace kinalyx
