#pragma once

#include <memory>
#include <string>

#include "platform/media/AvHandles.h"

namespace kinalyx {

/// An AVI file that is being written, under a hidden name beside its final one. Only for the sources of
/// this room. Results as the library has them: negative is an error.
class AviOutput {
 public:
  explicit AviOutput(std::string path) : path_(std::move(path)) {}
  /// Without Finish, removes what was written.
  ~AviOutput();
  AviOutput(const AviOutput&) = delete;
  AviOutput& operator=(const AviOutput&) = delete;

  int Open();
  /// A new stream, owned by this object; null when there is no memory. Fill in its parameters and its
  /// wish for a time base before Start.
  AVStream* AddStream();
  int Start();
  /// Takes a packet's content; its times are in `unit`.
  int Write(AVPacket& packet, const AVStream& stream, AVRational unit);
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
