#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/files/Result.h"
#include "platform/media/VideoInfo.h"

namespace kinalyx {

/// One picture as rows of blue, green, red (24 bits) or blue, green, red, unused (32 bits), bottom row
/// first, each row padded to a multiple of 4 bytes. The view is good until the next call on its file.
struct FrameRows {
  const std::uint8_t* bits = nullptr;  ///< null when the picture could not be had
  int width = 0;
  int height = 0;
  int rowBytes = 0;
  int bitCount = 0;

  explicit operator bool() const { return bits != nullptr; }
};

/// A picture that could be had without waiting.
struct FrameAtHand {
  /// Other than those of Frame they may be smaller than the video, in its proportions. Empty only when no
  /// picture of the file has been decoded yet, or for what Frame refuses.
  FrameRows rows;
  int frame = -1;      ///< whose picture this is: the one asked for, or one near it
  bool exact = false;  ///< the rows are what Frame gives; else a stand-in, to be seen and not measured
};

/// One open video. Gives the picture of any frame number exactly, in any order: frame n is the nth
/// picture that a decode from the start would show, whichever way it is reached. Decodes ahead on a
/// worker of its own and keeps a bounded store of pictures; the memory budget is shared by all open
/// files of the process. Used from one thread at a time.
class VideoFile {
 public:
  /// Opens a file and indexes its pictures. Never throws; a failure is NotFound, NoMedia or NoFrames, in the
  /// words of the library for a log or a tip.
  static Result<std::unique_ptr<VideoFile>> Open(const std::string& path);
  ~VideoFile();
  VideoFile(const VideoFile&) = delete;
  VideoFile& operator=(const VideoFile&) = delete;

  const VideoInfo& Info() const;

  /// Playing time in milliseconds of the start of frame n; n = frameCount gives the end.
  double SampleToTime(int n) const;
  /// The frame that is shown at a playing time in milliseconds; before the start the first, after the end the last.
  int FrameAtTime(double ms) const;

  /// The picture of frame n with 24 or 32 bits per pixel. A damaged packet gives the nearest picture
  /// that could be decoded before it; no picture at all, an n outside 0 to frameCount - 1, another bit
  /// count, or a file that vanished give an empty view. Never waits longer than the decode needs.
  FrameRows Frame(int n, int bitCount);

  /// Writes the rows of one field of frame n among those of a picture of 24 bits; the rows between stay. False where
  /// that is no faster than taking them from Frame, or the picture cannot be had: ask Frame.
  /// @param lowest  whether the lowest row belongs to the field
  bool Field(int n, bool lowest, std::vector<std::uint8_t>& bits);

  /// What there is of frame n at once: its exact picture, or else a stand-in, which is its own picture at about
  /// the size of the window or the nearest other one. The exact picture is then on its way until another frame
  /// is asked for, and the news tell when there is something better. Same arguments and view as Frame.
  FrameAtHand FrameNow(int n, int bitCount);
  /// A picture for a glance at frame n, which moves nothing and orders nothing: the nearest of those that have been
  /// decoded, and of the stand-ins, with 32 bits. Where every picture comes fast it is the frame itself. The view is
  /// good until the next glimpse; those of the other operations stay good.
  FrameAtHand Glimpse(int n);
  /// `news` is called, from a thread of this file, whenever a better picture than the last one that FrameNow
  /// gave has come: ask again. It must not call this file and must not block; null for none. After the return
  /// the old one is not called any more.
  void OnBetterPicture(std::function<void()> news);
  /// True for a file whose pictures take long, so that FrameNow may give stand-ins; with any other the picture of
  /// Frame comes as fast.
  bool HasStandIns() const;
  /// True when FrameNow gives every frame its own picture at once, as far as it can be decoded at all.
  bool EveryFrameIsAtHand() const;
  /// The pixels that the picture has on the screen, for the size of stand-ins. 960 x 540 until it is told.
  void SetShownSize(int width, int height);

 private:
  struct Engine;
  explicit VideoFile(std::unique_ptr<Engine> engine);
  std::unique_ptr<Engine> engine_;
};

/// Only the properties, without a worker or a picture; nothing when the file is no video.
std::unique_ptr<VideoInfo> ReadVideoInfo(const std::string& path);

/// Sets the bytes of decoded pictures that all open files may keep together (default 256 MiB).
void SetPictureBudget(std::size_t bytes);

}  // namespace kinalyx
