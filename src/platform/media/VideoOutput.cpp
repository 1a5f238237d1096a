#include "platform/media/VideoOutput.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "platform/files/FileCopy.h"
#include "platform/files/PartFiles.h"

namespace kinalyx {

VideoOutput::~VideoOutput() {
  output_.reset();
  if (!partial_.empty()) std::remove(partial_.c_str());
}

int VideoOutput::Open(const char* muxer) {
  AVFormatContext* context = nullptr;
  if (const int result = avformat_alloc_output_context2(&context, nullptr, muxer, nullptr); result < 0) return result;
  output_.reset(context);
  const std::string partial = PartNameBeside(path_);
  // A container that puts its index in front reads its own file again.
  context->url = av_strdup(("file:" + partial).c_str());
  const int result = avio_open(&context->pb, context->url, AVIO_FLAG_WRITE);
  if (result >= 0) partial_ = partial;
  return result;
}

AVStream* VideoOutput::AddStream() { return avformat_new_stream(output_.get(), nullptr); }

int VideoOutput::Start(AVDictionary** options) { return avformat_write_header(output_.get(), options); }

int VideoOutput::Write(AVPacket& packet, const AVStream& stream, AVRational unit) {
  packet.stream_index = stream.index;
  packet.pos = -1;
  av_packet_rescale_ts(&packet, unit, stream.time_base);
  return av_interleaved_write_frame(output_.get(), &packet);
}

bool VideoOutput::Close(std::string& message) {
  int result = av_write_trailer(output_.get());
  const int closed = avio_closep(&output_->pb);
  output_.reset();
  if (result >= 0) result = closed;
  if (result < 0) message = AvError(result);
  return result >= 0;
}

bool VideoOutput::Finish(bool replace, std::string& message) {
  const auto fail = [&](const std::string& reason) {
    message = reason;
    return false;
  };
  if (output_ && !Close(message)) return false;
  if (replace) {
    // What it replaces is gone for good: first this one must be safe.
    const int file = ::open(partial_.c_str(), O_RDONLY | O_CLOEXEC);
    const bool flushed = file >= 0 && ::fsync(file) == 0;
    const int reason = errno;
    if (file >= 0) ::close(file);
    if (!flushed) return fail(std::strerror(reason));
    if (std::rename(partial_.c_str(), path_.c_str()) != 0) return fail(std::strerror(errno));
  } else if (RealDisk().RenameNew(partial_, path_) < 0) {
    return fail(std::strerror(errno));
  }
  partial_.clear();
  return true;
}

}  // namespace kinalyx
