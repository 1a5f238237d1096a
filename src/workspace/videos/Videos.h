#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/host/Host.h"
#include "workspace/keeping/Keeping.h"
#include "workspace/stage/Stage.h"
#include "workspace/videos/StoodStage.h"

namespace kinalyx {

/// Who must act in the middle of what happens to a video; everybody else reads the stage's news.
class IVideoEvents {
 public:
  virtual ~IVideoEvents() = default;
  /// A video has entered a slot.
  virtual void VideoOpened(int slot) = 0;
  /// A video is about to be written and to leave: what is under construction on it ends.
  virtual void VideoClosing(int slot) = 0;
  /// It is written, and about to be unloaded.
  virtual void VideoClosed(int slot) = 0;
  /// Its positions are fields now, or frames again.
  virtual void FieldsSplit(int slot) = 0;
  /// So many videos were closed, and can be brought back. `name` is that of a single one.
  virtual void VideosGone(int count, const std::string& name) = 0;
  /// Which videos are locked together, and shall be again: slots 1 and 2, slots 3 and 4, all four.
  virtual std::array<bool, 3> Locks() const = 0;
  virtual void LockAgain(const std::array<bool, 3>& locks) = 0;
};

/// The roads by which videos enter and leave the slots, and what is switched on each: the mirror and the fields.
class Videos {
 public:
  /// @param sessionPath  of the file that keeps the stage from one run of the program to the next
  Videos(IHost& host, Stage& stage, Keeping& keeping, IVideoEvents& events, std::string sessionPath);

  /// The one road by which a video enters a slot. False when it could not be opened, or when the video
  /// there before could not be closed; the user has been told.
  bool OpenVideo(int slot, const std::string& path);
  /// The one road out of a slot. Its drawings and notes are written first; when that fails the user may
  /// try again, lose them, or keep the video open, which is the only case of false.
  bool CloseVideo(int slot);
  /// False when the user kept one open.
  /// @param stood  the stage as it shall come back, where that is no longer what stands on it
  bool CloseAll(std::optional<StoodStage> stood = {});
  /// What stands on the stage now.
  StoodStage Stood() const;
  /// Opens again what was closed last, one video or all: at the same pictures, mirrored and zoomed as they were.
  /// On an empty stage the layout and the locks come back too; else the videos go where there is room. At first
  /// that is what stood on the stage when the program ended, yesterday or whenever. What has been opened again
  /// meanwhile stays as it is and does not come a second time.
  void ReopenClosed();
  bool CanReopen();
  /// Keeps what stands on the stage for the next start of the program. With nothing on it, what was kept stays.
  void SaveSession();
  /// A video, or a folder, has another path now: what was closed comes back from there.
  void PathChanged(const std::string& from, const std::string& to);
  /// The stage is another one: it is kept when the hands rest.
  void StageChanged();
  /// Opens a file in the first free slot and widens the layout when more slots are in use than it shows.
  /// Returns the slot, or 0 with nothing changed. `status` gets the words for a status line.
  int SendToAnalysis(const std::string& path, const std::function<void(const std::string&)>& status = {});
  /// Opens several files in successive windows, beginning with the current one; a window that the layout
  /// does not show ends it. Returns how many were opened.
  int OpenFamily(const std::vector<std::string>& paths);
  /// Closes the current video and goes back to the window before.
  void UndoLastOpen();

  /// Loads the current file into the other slots: all, those of the top row, those of the bottom row.
  void FillAll();
  void FillTopRow();
  void FillBottomRow();
  bool CanFill() const;
  bool CanFillRows() const;

  // --- the current video
  void ToggleFlip();
  void ToggleSplitFields();
  void ToggleReverseFields();

 private:
  bool Vacate(int slot);
  bool Fill(int first, int last);
  void RefuseVideo(int slot, const std::string& path, bool hasStream);
  void Flip(int slot);
  std::vector<StoodVideo> Missing(const StoodStage& closed) const;
  std::vector<std::string> OpenPaths() const;
  std::optional<int> Reopen(const StoodVideo& video);
  StoodVideo Stood(int slot) const;
  bool Close(int slot);
  void Remember(StoodStage closed);

  IHost& host_;
  Stage& stage_;
  Keeping& keeping_;
  IVideoEvents& events_;
  const std::string sessionPath_;
  std::vector<StoodStage> closed_;     ///< the latest last
  bool sessionRead_ = false;           ///< what the program had on the stage the last time is in `closed_`
  std::optional<StoodStage> session_;  ///< as it was written last
  HostTimer rest_;
};

}  // namespace kinalyx
