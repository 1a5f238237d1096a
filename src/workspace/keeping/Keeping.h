#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/Settings.h"
#include "platform/files/Folders.h"
#include "platform/files/Result.h"
#include "platform/host/Host.h"
#include "workspace/keeping/SlotDrawings.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// Keeps what is drawn, noted and switched on the videos of the eight slots: reads it from their sidecars, and
/// writes it as soon as the user's hands rest, so that a power cut costs a second of work and not the lesson.
/// What has no place in a sidecar stands in a study file beside it. A file that another slot, another window or another
/// workstation has written meanwhile is brought together with what this slot has made since it read it.
class Keeping {
 public:
  Keeping(IHost& host, const Settings& settings, Stage& stage, DrawingTools& tools);

  /// Reads the sidecar of a video that enters a slot into the slot's data. Slots that hold the same video write
  /// theirs first.
  void Read(int slot, const std::string& path, const VideoInfo& info);
  /// The slot's video is open: its drawings come on its picture.
  void VideoOpened(int slot) { drawings_.VideoOpened(slot, At(slot).base); }
  /// The slot's video leaves: its drawings go. What is to be kept has been saved.
  void VideoClosed(int slot);

  /// Fits the drawings of a slot to its picture, where that has another size or is mirrored.
  void FollowPicture(int slot) { drawings_.FollowPicture(slot); }
  /// A drawing of a slot as its sidecar has it, or will.
  std::optional<ExactDrawing> ExactOf(int slot, const Shape& shape) const { return drawings_.ExactOf(slot, shape); }
  /// Drawings may have changed: they are saved when the hands rest.
  void DrawingsChanged();
  /// The fields of a slot's data, or its study, have changed.
  void FieldsChanged(int slot);
  /// The notes of a slot's video.
  void SetNotes(int slot, const std::string& notes);

  /// True when the slot holds drawings, notes or fields that its sidecar does not.
  bool HasUnsaved(int slot) { return drawings_.Changed(slot, At(slot).base) || At(slot).changed; }
  /// Writes the sidecar of a slot now, where it has something to say. Gives what had to be left out, in words for
  /// the user: mostly nothing.
  Result<std::string> SaveData(int slot);
  /// Writes what is not written yet, of all slots. What cannot be written is told beside the video's name, and tried
  /// again and again; the result is then false.
  bool SaveAll();
  /// The same for a video that is about to close: when it fails the user may try again, lose the new work, or
  /// keep the video open, which is the only case of false.
  bool SaveOrAsk(int slot);

 private:
  /// The two files beside a video: its sidecar and its study.
  struct Stamps {
    std::optional<FileStamp> sidecar;
    std::optional<FileStamp> study;

    static Stamps Of(const std::string& videoPath);
    bool operator==(const Stamps&) const = default;
  };
  /// What is known of a slot's sidecar and study.
  struct Kept {
    SlotData base;  ///< this slot's own work as it was read or written last, its drawings as the file has them
    Stamps stamps;  ///< of its files, as they were then
    bool savedElsewhere = false;  ///< another slot, or another workstation, has written them since
    bool changed = false;         ///< fields, notes or study differ from what they held
  };

  Kept& At(int slot) { return kept_[static_cast<std::size_t>(slot - 1)]; }
  SlotData ReadBoth(const std::string& videoPath, const VideoInfo& info) const;
  Result<std::string> Write(int slot, SlotData mine);
  bool SaveAtRest(int slot);
  void ShowRefused(int slot, bool refused);

  IHost& host_;
  const Settings& settings_;
  Stage& stage_;
  SlotDrawings drawings_;
  std::array<Kept, kSlots> kept_;
  HostTimer rest_;
};

}  // namespace kinalyx
