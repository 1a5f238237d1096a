#include "platform/media/FileInput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace kinalyx {
namespace {

constexpr int kBufferBytes = 1 << 17;
/// What a walk through hollow packets sees of each, so that nobody finds old memory there.
constexpr int kHollowBytes = 256;

int RefuseToOpen(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**) { return AVERROR(EACCES); }

}  // namespace

struct FileInput::File {
  explicit File(int opened) : descriptor(opened) {}
  ~File() { close(descriptor); }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  const int descriptor;
};

std::unique_ptr<FileInput> FileInput::Open(const std::string& path, std::string& message) {
  // Without waiting for whoever may write into a pipe.
  const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) {
    message = std::strerror(errno);
    return nullptr;
  }
  auto file = std::make_shared<const File>(descriptor);
  struct stat status {};
  if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
    message = "not a file";
    return nullptr;
  }
  std::unique_ptr<FileInput> input(new FileInput(std::move(file)));
  input->bytes_ = status.st_size;
  if (!input->context_) message = "out of memory";
  return input->context_ ? std::move(input) : nullptr;
}

std::unique_ptr<FileInput> FileInput::Again() const {
  std::unique_ptr<FileInput> input(new FileInput(file_));
  input->bytes_ = bytes_;
  return input->context_ ? std::move(input) : nullptr;
}

FileInput::FileInput(std::shared_ptr<const File> file) : file_(std::move(file)) {
  auto* buffer = static_cast<unsigned char*>(av_malloc(kBufferBytes));
  if (buffer) context_ = avio_alloc_context(buffer, kBufferBytes, 0, this, &ReadPart, nullptr, &MoveTo);
  if (!context_) av_free(buffer);
}

FileInput::~FileInput() {
  if (!context_) return;
  av_freep(&context_->buffer);
  avio_context_free(&context_);
}

InputHandle FileInput::OpenContainer(const char* whitelist, int& error) {
  AVFormatContext* context = avformat_alloc_context();
  error = AVERROR(ENOMEM);
  if (!context) return nullptr;
  context->pb = context_;
  context->io_open = &RefuseToOpen;
  AVDictionary* options = nullptr;
  av_dict_set(&options, "format_whitelist", whitelist, 0);
  av_dict_set(&options, "protocol_whitelist", "file", 0);
  error = avformat_open_input(&context, "", nullptr, &options);
  av_dict_free(&options);
  return InputHandle(error < 0 ? nullptr : context);
}

bool FileInput::ReadAt(std::int64_t place, std::span<std::uint8_t> to) const {
  return pread(file_->descriptor, to.data(), to.size(), place) == static_cast<ssize_t>(to.size());
}

int FileInput::ReadPart(void* self, std::uint8_t* to, int count) {
  auto& input = *static_cast<FileInput*>(self);
  ssize_t got = 0;
  if (input.hollow_) {
    got = static_cast<ssize_t>(std::clamp<std::int64_t>(input.bytes_ - input.place_, 0, count));
    std::fill_n(to, std::min<ssize_t>(got, kHollowBytes), std::uint8_t{0});
  } else {
    do {
      got = pread(input.file_->descriptor, to, static_cast<std::size_t>(count), input.place_);
    } while (got < 0 && errno == EINTR);
  }
  if (got < 0) return AVERROR(errno);
  input.place_ += got;
  return got == 0 ? AVERROR_EOF : static_cast<int>(got);
}

std::int64_t FileInput::MoveTo(void* self, std::int64_t offset, int from) {
  auto& input = *static_cast<FileInput*>(self);
  std::int64_t place = offset;
  switch (from & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE: return input.bytes_;
    case SEEK_SET: break;
    case SEEK_CUR: place += input.place_; break;
    case SEEK_END: place += input.bytes_; break;
    default: return AVERROR(EINVAL);
  }
  if (place < 0) return AVERROR(EINVAL);
  return input.place_ = place;
}

}  // namespace kinalyx
