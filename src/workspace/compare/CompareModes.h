#pragma once

#include <string>

#include "video/PlayScheduler.h"
#include "workspace/compare/Carve.h"
#include "workspace/compare/LineUp.h"
#include "workspace/compare/LockedVideos.h"
#include "workspace/compare/MultiPicture.h"
#include "workspace/compare/Transparency.h"
#include "workspace/compare/StrobeControl.h"
#include "workspace/compare/ZoomPan.h"

namespace kinalyx {

/// What the controls of locked videos show.
struct DualState {
  bool shown = false;   ///< a lock holds the current window, or transparency mode is up
  bool locked = false;  ///< the current window is locked
  bool allLocked = false;
  bool canLock = false;
  bool canLockAll = false;
  bool playing = false;
  bool repeat = false;
  bool ratesDiffer = false;  ///< of the locked videos
  bool byTime = false;       ///< they are held by the time
  int speed = 100;           ///< percent
  int lowest = 0;            ///< ends of the shared bar
  int highest = 0;
  int position = 0;
  std::string line;  ///< where the videos stand, "12 + 29"
};

/// What the modes that compare videos ask of the window that shows them.
class ICompareView : public ITransparencyView, public IMultiPictureView, public ICarveView {
 public:
  /// The controls beside the lock, and the lock picture on the cells.
  virtual void ShowDual(const DualState& state) = 0;
  virtual void ShowZoomForm(bool shown) = 0;
  /// Opens or closes the strobe window, which hands itself to StrobeControl.
  virtual void ShowStrobeForm(bool shown) = 0;
};

/// The modes in which videos are compared, as one part of the workspace: lock, transparency, film strip,
/// carve, strobe, zoom. Passes on to each what the players and the stage tell.
///
/// Transparency, strip and carve show the videos in other ways than side by side, and only one of them is
/// up at a time. Lock, strobe and zoom work within each, but for what would pull locked videos apart.
class CompareModes {
 public:
  CompareModes(IHost& host, Settings& settings, PlayScheduler& scheduler, Stage& stage, ICompareView& view,
               ICompareEvents& events);

  LockedVideos& Locks() { return locks_; }
  kinalyx::LineUp& LineUp() { return lineUp_; }
  const LockedVideos& Locks() const { return locks_; }
  kinalyx::Transparency& Transparency() { return transparency_; }
  MultiPicture& Strip() { return strip_; }
  Carve& Carving() { return carve_; }
  StrobeControl& Strobe() { return strobe_; }
  ZoomPan& Zoom() { return zoom_; }

  /// The zoom window, and the strobe window with its choices.
  void ToggleZoomForm();
  void ToggleStrobeForm();
  bool ZoomShown() const { return zoomShown_; }
  bool StrobeShown() const { return strobeShown_; }

  /// Whether locked videos of different rates go by the time; it is remembered.
  void HoldLocksByTime(bool on);

  /// Why a mode cannot be entered now, as the user is told; empty when it can be entered or left.
  std::string WhyNoTransparency() const;
  std::string WhyNoStrip() const;
  std::string WhyNoCarve() const;
  /// The mode that has the stage, in words for the user who must leave it first; empty when none has.
  std::string StageTaken() const;

  /// Leaves the mode that is up, the innermost first; false when there is none.
  bool Escape();
  /// Closes the cards for strobing and zooming; false when none was open.
  bool CloseCards();
  /// A square was drawn, with opposite corners in pixels of the slot's picture; true takes it.
  bool TakeSquare(int slot, POINTAPI corner, POINTAPI opposite) { return strip_.TakeSquare(slot, corner, opposite); }
  /// The mouse is wanted for drawing: no mode waits for an area to be marked with it any longer.
  void StopWaiting();
  /// A drawing tool moved a player: mix and piece follow.
  void MPManualSignal();
  /// Leaves everything, for the end of the section.
  void CloseAll();

  // --- from the players and the stage
  void Signal(int slot);
  void Notify(int slot) { transparency_.Notify(slot); }
  void VideoClosing(int slot);
  /// @param changes  a sum of StageChange
  void StageChanged(unsigned changes);
  /// Shows the dual controls as they are: where the videos stand, and what the lock and its play do.
  void ShowDual();

 private:
  Settings& settings_;
  Stage& stage_;
  ICompareView& view_;
  LockedVideos locks_;
  kinalyx::LineUp lineUp_;
  kinalyx::Transparency transparency_;
  MultiPicture strip_;
  Carve carve_;
  StrobeControl strobe_;
  ZoomPan zoom_;
  bool zoomShown_ = false;
  bool strobeShown_ = false;
};

}  // namespace kinalyx
