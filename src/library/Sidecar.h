#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/Measurement.h"
#include "drawing/Shape.h"
#include "platform/files/FileStore.h"
#include "platform/media/VideoFile.h"
#include "platform/paint/Geometry.h"

namespace kinalyx {

class Settings;

/// A picture of a video: where split fields count as two, the second of a frame has a moment of its own.
struct VideoMoment {
  int Frame = 0;
  bool SecondField = false;

  /// As a player counts, and back.
  int Position(bool splitFields) const { return splitFields ? 2 * Frame + (SecondField ? 1 : 0) : Frame; }
  static VideoMoment At(int position, bool splitFields) {
    return splitFields ? VideoMoment{position / 2, position % 2 != 0} : VideoMoment{position, false};
  }
  friend auto operator<=>(const VideoMoment&, const VideoMoment&) = default;
};

/// A moment that the user keeps.
struct VideoMark {
  VideoMoment Moment;
  std::string Name;     ///< UTF-8, mostly empty
  std::string Unknown;  ///< what a later version has written of it, as JSON; only carried along

  friend bool operator==(const VideoMark&, const VideoMark&) = default;
};

/// What was found in a video and has no place in its sidecar. It lives in a file of its own, see Study.h, as
/// the times of the drawings do.
struct StudyData {
  std::vector<VideoMark> Marks;
  std::optional<VideoRuler> Ruler;
  double TrueRate = 0;  ///< pictures per second when it was taken, as the user knows it; 0: as the file says
  std::optional<VideoMoment> LockedAt;  ///< the picture on which it was locked to another video last
  std::string Unknown;                  ///< what a later version has written, as JSON; only carried along
  bool Unread = false;                  ///< as SlotData::Unread

  friend bool operator==(const StudyData&, const StudyData&) = default;
};

/// What the analysis section knows of one video, beside the video itself: how its fields are shown, the
/// drawings on it and the instructor's notes. It lives in the sidecar file, `X.ved` next to `X.avi`, `X.mp4.ved` next
/// to `X.mp4`.
struct SlotData {
  bool Wide = false;
  bool ReverseFields = false;
  bool SplitFields = false;
  std::string Notes;  ///< UTF-8; line ends as they stand in the notes box
  float CValue = 0;
  std::int32_t RealFrameRate = 0;  ///< pictures per second; 0 means the rate stored in the video

  /// The drawings, in pixels of a window of `PictureWidth` x `PictureHeight`. A window of
  /// another size stretches them to show them.
  ShapeList Shapes;
  int NextShape = 0;      ///< the slot's running shape counter
  int PictureWidth = 0;   ///< pixels; 0 when no shapes were stored
  int PictureHeight = 0;  ///< pixels

  /// The file holds something that could not be read: it is foreign or damaged, or the disk refused. As
  /// long as there is nothing new to store it is left alone; a write keeps it beside, see KeptPath.
  bool Unread = false;

  StudyData Study;
};

/// Longest notes that a sidecar holds, in characters: their length is stored in 16 bits, signed. The notes
/// box accepts no more; WriteVideoData cuts what is longer and says so.
inline constexpr std::size_t kMaxNotes = 32767;
/// The length of notes in characters, as kMaxNotes counts them.
std::size_t NotesLength(std::string_view notes);
/// As much of the beginning of notes as a sidecar holds.
std::string_view FittingNotes(std::string_view notes);

/// Largest side of the picture of stored drawings, pixels: it is stored in twips, in 16 bits. The drawings of
/// a larger one are stored as those of a smaller one.
inline constexpr int kMostPictureSide = 32767 / kTwipsPerPixel;

/// The sidecar of a video, see SidecarName. One that is there in
/// other letters, as "VED" from another system, is the sidecar as long as there is none in small ones.
std::string SidecarPath(std::string_view videoPath);

/// What holds for a video without a sidecar: both field options for dvsd of 720 x 480 or 720 x 576, split
/// fields alone for IV50 of height 480 at 32 pictures a second or more, nothing for any other.
SlotData DefaultVideoData(const VideoInfo& video);

/// Reads a sidecar. Never fails:
/// - a missing, empty or foreign file gives the defaults of the video;
/// - a file cut short gives what it holds, then blanks in its texts, zeros in its numbers, and no
///   drawings past its end; that, or anything else that does not come out even, makes it `Unread`;
/// - a file of the old format `V` is converted and, when it comes out even, written back in the present one.
/// Reading never makes a file. `path` is the sidecar's.
/// @param toolColours  colours for the drawings of an old file, by kind of shape: the settings' NewColors
SlotData ReadVideoData(const std::string& path, const VideoInfo& video, std::span<const Colour> toolColours);

/// Replaces the sidecar; the file is the old or the new one, whole, whatever happens.
/// @return what the user must know of a save that has succeeded: what had to be left out (notes past kMaxNotes)
///         and where the file before is kept; mostly empty
Result<std::string> WriteVideoData(const std::string& path, const SlotData& data, IDisk& disk = RealDisk());

/// The first sidecar of a video that has just been captured or saved: 8 bytes, flags alone. The fields
/// come from the settings for camera captures, or, without `fromCamera`, for high definition imports.
Outcome WriteCaptureVideoData(const std::string& path, bool fromCamera, bool wide, const Settings& settings);

/// The same with the flags of `data`.
Outcome WriteVideoFlags(const std::string& path, const SlotData& data);

/// The first sidecar of an imported video, likewise 8 bytes. Wide when width / height is above 1.5;
/// dvsd turns both field options on, any other video takes `reverseFields` as the user chose.
Outcome WriteImportedVideoData(const std::string& path, const VideoInfo& video, bool reverseFields);

/// What the browsers show of a sidecar: the two flag characters of its drawings and its notes.
struct SidecarMarks {
  char First = ' ';
  char Second = ' ';

  bool HasDrawings() const { return First == 'S'; }
  bool HasNotes() const { return Second == 'N'; }
};

/// Reads those two bytes and no more; blanks where there are none.
SidecarMarks ReadSidecarMarks(const std::string& path);
/// The notes alone, of a file of the present format; empty where there are none.
std::string ReadSidecarNotes(const std::string& path);

}  // namespace kinalyx
