#pragma once

#include <functional>
#include <string>
#include <vector>

#include "workspace/keeping/Keeping.h"
#include "workspace/stage/Stage.h"

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
};

/// The roads by which videos enter and leave the slots, and what is switched on each: the mirror and the fields.
class Videos {
 public:
  Videos(IHost& host, Stage& stage, Keeping& keeping, IVideoEvents& events);

  /// The one road by which a video enters a slot. False when it could not be opened, or when the video
  /// there before could not be closed; the user has been told.
  bool OpenVideo(int slot, const std::string& path);
  /// The one road out of a slot. Its drawings and notes are written first; when that fails the user may
  /// try again, lose them, or keep the video open, which is the only case of false.
  bool CloseVideo(int slot);
  /// False when the user kept one open.
  bool CloseAll();
  /// Opens again what CloseAll closed last: the same videos at the same pictures, mirrored and
  /// zoomed as they were, in the same layout.
  /// Nothing happens once a video stands in a slot.
  void ReopenClosed();
  bool CanReopen() const { return !closed_.videos.empty() && !stage_.AnyVideo(); }
  /// Opens a file in the first free slot and widens the layout when more slots are in use than it shows.
  /// Returns the slot, or 0 with nothing changed. `status` gets the words for a status line.
  int SendToAnalysis(const std::string& path, const std::function<void(const std::string&)>& status = {});
  /// Opens several files in successive windows, beginning with the current one; a window that the layout
  /// does not show ends it.
  void OpenFamily(const std::vector<std::string>& paths);
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
  /// A video as it stood when all were closed.
  struct ClosedVideo {
    int slot = 1;
    std::string path;
    int position = 0;
    bool flipped = false;
    double zoom = 1;
    double panX = 0;
    double panY = 0;
  };
  struct ClosedStage {
    std::vector<ClosedVideo> videos;
    std::string layout;
    int currentWindow = 1;
  };

  bool Vacate(int slot);
  bool Fill(int first, int last);
  void RefuseVideo(int slot, const std::string& path, bool hasStream);
  void Flip(int slot);
  void Reopen(const ClosedVideo& video);

  IHost& host_;
  Stage& stage_;
  Keeping& keeping_;
  IVideoEvents& events_;
  ClosedStage closed_;  ///< what was closed last, all at once
};

}  // namespace kinalyx
