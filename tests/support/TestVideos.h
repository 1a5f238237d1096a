#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/media/VideoFile.h"
#include "platform/media/VideoWriter.h"

namespace kinalyx::test {

/// One synthetic video. Every picture carries its number as a bar code across its whole height, so
/// that the number can be read back from either field and after lossy coding; behind it a pattern
/// moves, so that no two pictures are alike.
struct TestVideo {
  VideoFormat format;
  int frames = 30;
  /// The two fields carry numbers of their own, 2n in the rows 0, 2, 4 (counted from the top), 2n + 1 in
  /// the others, as an interlaced camera would give.
  bool fieldsDiffer = false;
};

/// Ready-made kinds for tests that do not care about the details.
TestVideo DvVideo(int frames);     ///< 720 x 480, 29.97, interlaced, fields differ
TestVideo MjpegVideo(int frames);  ///< 320 x 240, 30
TestVideo H264Video(int frames);   ///< 320 x 240, 30, GOP 250, two B frames
TestVideo RawVideo(int frames);    ///< 90 x 60, 30, bottom-up

/// Makes the video in a temporary folder, once per process for equal wishes, and gives its path. Empty
/// when it could not be written. The file belongs to the cache: copy it before changing it.
std::string MakeTestVideo(const TestVideo& video);
/// A path in the same folder, for a test's own files; the folder goes at the end of the process.
std::string TestPath(const std::string& name);

/// Draws one picture of a test video: 32-bit rows, top row first.
void PaintTestPicture(const TestVideo& video, int number, std::vector<std::uint8_t>& pixels);

/// The number that a picture carries; nothing when there is no picture or no readable code. With
/// `field` 0 or 1 reads only the rows of that field, counted from the top.
std::optional<int> ReadNumber(const FrameRows& rows, int field = -1);

/// Less memory for pictures; gives the default back at the end of a test.
class Budget {
 public:
  explicit Budget(std::size_t bytes) { SetPictureBudget(bytes); }
  ~Budget() { SetPictureBudget(std::size_t{256} << 20); }
};

/// The open video; throws when it cannot be opened.
std::unique_ptr<VideoFile> OpenedVideo(const std::string& path);

}  // namespace kinalyx::test
