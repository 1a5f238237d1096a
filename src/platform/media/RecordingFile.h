#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "platform/files/Result.h"
#include "platform/media/RecordingTally.h"

namespace kinalyx {

/// How the pictures of a recording are packed. Rows of raw pictures are padded to 4 bytes, the top row first.
struct RecordingFormat {
  enum class Codec { Mjpeg, RawBgr24, RawYuy2, Dv };
  Codec codec = Codec::Mjpeg;
  int width = 0;
  int height = 0;
  double promisedRate = 0;  ///< pictures a second that the camera promises; 0 unknown
  enum class Fields { None, TopFirst, BottomFirst } fields = Fields::None;
};

/// An AVI file that grows while a camera runs. Its pictures are the camera's own bytes. Each stands in its place: where
/// the time stamps leave a gap, the places of the missing pictures are kept, and the last one before stands there. What
/// only came late leaves none; that is certain within about a second, and until then a gap is taken for what it seems.
/// The file's rate is the one that the time stamps measured; it stands in the header from the first second on and is
/// brought up to date every second, so a recording that is broken off lacks its index alone, see MendRecording. Files
/// grow past 4 GB. One thread uses it.
class RecordingFile {
 public:
  /// Begins a file; there must be none of that name. As long as it is open, nobody else mends it.
  static Result<std::unique_ptr<RecordingFile>> Create(const std::string& path, const RecordingFormat& format);
  /// Closes.
  ~RecordingFile();

  /// Appends one picture; when this returns, it outlives the program. After a failure nothing more is taken, and Close
  /// keeps what is there.
  /// @param ns  time at which the camera took it; ever later ones. One that is not later than the one before is
  ///            left out and counts as nothing. So is a raw picture that is cut; what is behind a whole one is too.
  Outcome Write(std::span<const std::byte> picture, std::int64_t ns);
  /// How it stands.
  const RecordingTally& Tally() const;
  /// Writes the index and the final rate, and flushes to the disk.
  Outcome Close();

 private:
  struct Engine;
  explicit RecordingFile(std::unique_ptr<Engine> engine);
  std::unique_ptr<Engine> engine_;
};

/// Whether a file is a recording that was broken off: it lacks its index, and nobody is writing it.
bool IsUnfinishedRecording(const std::string& path);
/// Makes a recording that was broken off whole, in place: its index is made anew from what it holds, a picture that
/// was cut goes, and over damaged places it goes on with the next picture. One that is itself broken off can be done
/// again. Refused while somebody writes the file.
/// @return what it holds now, with times from its first picture on; with no picture at all it fails with NoFrames, and
///         the file stays as it was
Result<RecordingTally> MendRecording(const std::string& path);

}  // namespace kinalyx
