#pragma once

#include <memory>
#include <string>

#include "platform/media/AvHandles.h"

namespace kinalyx {

/// A video file that is being written, under a hidden name beside its final one. Only for the sources of
/// this room. Results as the library has them: negative is an error.
class VideoOutput {
 public:
  explicit VideoOutput(std::string path) : path_(std::move(path)) {}
  /// Without Finish, removes what was written.
  ~VideoOutput();
  VideoOutput(const VideoOutput&) = delete;
  VideoOutput& operator=(const VideoOutput&) = delete;

  /// @param muxer  the container, as the library names it
  int Open(const char* muxer = "avi");
  /// For notes and wishes, between Open and Start.
  AVFormatContext& Container() { return *output_; }
  /// A new stream, owned by this object; null when there is no memory. Fill in its parameters and its
  /// wish for a time base before Start.
  AVStream* AddStream();
  /// @param options  of the container; those that it knows are taken out
  int Start(AVDictionary** options = nullptr);
  /// Takes a packet's content; its times are in `unit`.
  int Write(AVPacket& packet, const AVStream& stream, AVRational unit);
  /// Completes the file under its hidden name, where it can be looked at.
  bool Close(std::string& message);
  const std::string& HiddenPath() const { return partial_; }
  /// Completes the file and gives it its name. With `replace` a file of that name gives way, after this
  /// one has reached the disk; without, the name must be free.
  bool Finish(bool replace, std::string& message);

 private:
  struct OutputDeleter {
    void operator()(AVFormatContext* context) const {
      if (context->pb) avio_closep(&context->pb);
      avformat_free_context(context);
    }
  };

  std::string path_;
  std::string partial_;  ///< empty while there is no file
  std::unique_ptr<AVFormatContext, OutputDeleter> output_;
};

}  // namespace kinalyx
