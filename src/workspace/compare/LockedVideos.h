#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "platform/host/Host.h"
#include "video/PlayScheduler.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// The dual controls, by the index of their buttons in `DualControl`.
enum class DualMove { Back = 0, Forward = 1, Rewind = 2 };

/// Holds videos together from the positions at which they stand: slots 1 and 2, slots 3 and 4, or all
/// four. The distance between the positions is the synchronisation that the user chose; whatever moves
/// locked videos together keeps it to the frame. Videos that were taken at different rates are held by the time
/// from there instead: one of 60 pictures a second goes by two while one of 30 goes by one.
class LockedVideos {
 public:
  LockedVideos(IHost& host, PlayScheduler& scheduler, Stage& stage);
  ~LockedVideos();

  // --- locking

  /// Slots that a lock holds: element 0 slots 1 and 2, element 1 slots 3 and 4, element 2 all four.
  std::array<bool, 3> DualLocked{};
  /// Lowest and highest position of slot 1, lowest and highest of slot 2.
  std::array<int, 4> LockRangeA{};
  /// The same of slots 3 and 4.
  std::array<int, 4> LockRangeB{};

  /// Locks slots 1 and 2 (1), slots 3 and 4 (2) or all four (any other value), in place of a lock that
  /// holds one of them. False, with nothing changed, when one of the slots is empty.
  bool DualLock(int Which);
  /// Ends the lock that holds a slot; a slot without one is ignored.
  void DualUnlock(int slot);
  /// Locks the pair of the current window, or unlocks what holds it. False when it has no pair, one of
  /// the two is empty, or the layout shows a single window.
  bool ToggleLock();
  /// The same for all four, in a layout that shows them.
  bool LockAll();
  /// Whether cmdDualPlay or LockAll would do something.
  bool CanLock() const;
  bool CanLockAll() const;
  bool AllLocked() const { return DualLocked[2]; }
  /// Whether videos of different rates are held by the time; without it by their pictures as all others are. What is
  /// locked is held anew from where it stands.
  void HoldByTime(bool on);
  /// The videos locked with this one were taken at different rates.
  bool RatesDiffer(int slot) const;
  /// They are held by the time.
  bool IsHeldByTime(int slot) const;

  /// While true the transport's own commands are refused for the slot.
  bool IsLocked(int slot) const;
  /// The slots locked with this one, it first; empty without a lock.
  std::vector<int> LockedWith(int slot) const;

  struct Bounds {
    int lowest = 0;
    int highest = 0;  ///< below `lowest` when the videos cannot move at all
  };
  /// Where a slot may move under its lock; nothing without one.
  std::optional<Bounds> BoundsOf(int slot) const;
  /// The ends of a slot's scroll bar: those of its lock, or else of the whole video; equal ones for an empty
  /// slot and where nothing moves.
  Bounds BarOf(int slot) const;

  // --- moving

  /// Moves the videos of the lock as one of the dual controls says.
  void MoveTogether(DualMove move);
  /// Moves the videos locked with the current window one position. At an end of the lock nothing moves.
  /// A current window without a lock steps alone.
  void DualControlStep(bool Forward);
  /// The same for the videos locked with any slot, of which it has one.
  void StepTogether(int slot, bool forward);
  /// Shows the lowest position of each video locked with the current window.
  void DualControlRewind() { RewindTogether(stage_.CurrentWindow); }
  void RewindTogether(int slot);
  /// Brings a slot's video to a position inside its bounds, and those locked with it along.
  void DualControlScroll(int slot, int Position);
  /// The same for any slot with a video: without a lock it moves alone. A position that is shown already is
  /// left alone.
  void Seek(int slot, int position);
  /// Moves each video locked with a slot by positions, but for one that has not so many left; where they are held by
  /// the time, to the moment that the slot shows.
  void StepPartners(int slot, int by);

  // --- playing together

  /// Plays the videos locked with the current window by one clock, or pauses them. From the last
  /// position, or the one before, they start at the first. Late positions are skipped for all alike; the
  /// last is always drawn. Where the user wants a part of the current video, that part is played.
  void PlayTogether() { PlayTogether(stage_.CurrentWindow, true); }
  /// The same from any slot, forward or back to the lowest positions.
  void PlayTogether(int slot, bool forward);
  /// Ends what the videos locked with a slot do together; without a slot, what all do.
  void StopTogether(int slot);
  void StopTogether();
  /// Some play together.
  bool PlayingTogether() const;
  /// A common play moves this slot's video.
  bool PlayingTogether(int slot) const;
  /// The slot from which it was begun; 0 without one.
  int LeadOf(int slot) const;
  bool PlaysBack(int slot) const;
  /// Percent of the current window's own speed, 1 to 1000; others are refused with false. A play goes on
  /// at the new speed.
  bool setTogetherSpeed(int percent);
  int TogetherSpeed() const { return speed_; }
  /// Begins anew at the end, until it is stopped.
  void setTogetherRepeat(bool on);
  bool TogetherRepeat() const { return repeat_; }

  // --- from the videos

  /// A video leaves its slot.
  void VideoClosing(int slot) { DualUnlock(slot); }
  /// A locked video may count its positions in another way now (fields split or joined), or be known to have been
  /// taken at another rate: the lock then holds from where the videos stand.
  void VideosChanged();

 private:
  class Run;

  /// The lock that holds a slot, as an index of DualLocked; -1 for none.
  int LockOf(int slot) const;
  std::vector<int> SlotsOf(int lock) const;
  bool AllOpen(const std::vector<int>& slots) const;
  Run& RunOf(int slot) const { return *runs_[slot <= 2 || AllLocked() ? 0 : 1]; }
  int Lowest(int slot) const;
  int Highest(int slot) const;
  void SetRanges(const std::vector<int>& slots);
  /// How a slot's video counted its positions when its lock took hold.
  struct Tie {
    int anchor = 0;      ///< the position at which it stood
    int length = 0;      ///< positions
    double takenMs = 0;  ///< of the movement, from one position to the next
    bool byTime = false;
  };
  Tie& TieOf(int slot) { return ties_[static_cast<std::size_t>(slot - 1)]; }
  const Tie& TieOf(int slot) const { return ties_[static_cast<std::size_t>(slot - 1)]; }
  bool RatesDiffer(const std::vector<int>& slots) const;
  /// Milliseconds of the movement from where a slot's video was locked to a position.
  double MomentOf(int slot, int position) const;
  int PositionAt(int slot, double moment) const;
  /// Where a slot's video belongs while one locked with it shows a position.
  int Along(int slot, int lead, int position) const;
  /// The slot that counts: where they are held by the time the one with the most pictures, else the first.
  int Counting(const std::vector<int>& slots) const;
  /// Milliseconds of a play from one position of the counting slot to the next.
  double Interval(const std::vector<int>& slots) const;
  void Clear(int lock);
  void Stop(Run& run);
  void NoteChange() { stage_.News().Note(kLocksChanged); }

  IHost& host_;
  Stage& stage_;
  std::array<std::unique_ptr<Run>, 2> runs_;  ///< of the first pair or all four, and of the second pair
  std::array<Tie, 4> ties_{};
  bool holdByTime_ = false;
  int speed_ = 100;
  bool repeat_ = false;
};

}  // namespace kinalyx
