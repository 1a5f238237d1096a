#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/files/Result.h"
#include "platform/media/AvHandles.h"
#include "platform/media/PictureShape.h"
#include "platform/media/VideoOutput.h"

namespace kinalyx {

/// One file of a video for the web while it is being written. Only for the sources of this room.
class WebFile {
 public:
  enum class Kind {
    Wmv,  ///< Windows Media: wmv2 and wmav2
    Mp4,  ///< H.264 and AAC, with its index in front: browsers and telephones play it while it comes
  };
  struct Form {
    PictureSize size;
    AVRational rate{30, 1};  ///< places per second
    AVColorSpace colours = AVCOL_SPC_SMPTE170M;
    bool sound = false;
  };
  static constexpr int kSoundRate = 48000;  ///< samples per second of each of two channels

  WebFile(std::string path, Kind kind) : output_(std::move(path)), kind_(kind) {}

  /// Negative is an error of the library, here as in all that follows.
  int Open(const Form& form);
  /// @param picture  with its place in `pts`; places grow
  int Write(const AVFrame& picture);
  /// What is heard behind what was heard before: left and right in turn.
  int WriteSound(std::span<const std::int16_t> samples);
  /// Ends the file; one of that name gives way.
  Outcome Close();
  /// Bytes that have been written so far.
  std::int64_t Bytes() const { return bytes_; }

 private:
  int OpenPictures(const Form& form);
  int OpenSound();
  int SendSound(bool last);
  int Encode(AVCodecContext& codec, const AVFrame* frame, AVStream& stream);

  VideoOutput output_;
  Kind kind_;
  CodecHandle pictures_;
  CodecHandle sound_;
  AVStream* pictureStream_ = nullptr;
  AVStream* soundStream_ = nullptr;
  FrameHandle block_;
  PacketHandle packet_ = NewPacket();
  std::vector<std::int16_t> samples_;  ///< that do not fill a block yet
  std::int64_t soundTime_ = 0;         ///< samples that have been sent
  std::int64_t bytes_ = 0;
};

}  // namespace kinalyx
