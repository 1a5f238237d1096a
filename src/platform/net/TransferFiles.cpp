#include "platform/net/TransferFiles.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/Tr.h"

namespace kinalyx {

void TextSink::Attach(CURL* handle) {
  curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &TextSink::Write);
  curl_easy_setopt(handle, CURLOPT_WRITEDATA, this);
}

std::size_t TextSink::Write(char* bytes, std::size_t size, std::size_t count, void* self) {
  auto& sink = *static_cast<TextSink*>(self);
  if (size * count > sink.most_ - sink.text_.size()) {
    sink.tooLarge_ = true;
    return 0;
  }
  sink.text_.append(bytes, size * count);
  return size * count;
}

FileSink::~FileSink() {
  if (file_ >= 0) disk_.Close(file_);
  if (!part_.empty()) disk_.Remove(part_);
}

Outcome FileSink::Refuse() {
  const int reason = errno;
  trouble_ = {Fault::Unwritable,
              Tr("\"{}\" cannot be written: {}.", LastName(target_), std::strerror(reason ? reason : EIO))};
  return trouble_;
}

Outcome FileSink::Open() {
  if (EntryExists(target_)) return {Fault::Refused, Tr("\"{}\" is there already.", LastName(target_))};
  const std::string part = PartNameBeside(target_);
  file_ = disk_.OpenNew(part);
  if (file_ < 0) return Refuse();
  part_ = part;
  return {};
}

void FileSink::Attach(CURL* handle) {
  curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &FileSink::Write);
  curl_easy_setopt(handle, CURLOPT_WRITEDATA, this);
}

std::size_t FileSink::Write(char* bytes, std::size_t size, std::size_t count, void* self) {
  auto& sink = *static_cast<FileSink*>(self);
  const std::size_t wanted = size * count;
  for (std::size_t done = 0; done < wanted;) {
    errno = 0;
    const long written = sink.disk_.Write(sink.file_, bytes + done, wanted - done);
    if (written <= 0) {
      if (written == 0) errno = ENOSPC;
      (void)sink.Refuse();
      return 0;
    }
    done += static_cast<std::size_t>(written);
  }
  return wanted;
}

Outcome FileSink::Keep() {
  const bool flushed = disk_.Flush(file_) >= 0;
  const int reason = errno;
  const bool closed = disk_.Close(file_) >= 0;
  file_ = -1;
  if (!flushed) errno = reason;
  if (!flushed || !closed) return Refuse();
  if (disk_.RenameNew(part_, target_) < 0) {
    if (errno == EEXIST) return {Fault::Refused, Tr("\"{}\" is there already.", LastName(target_))};
    return Refuse();
  }
  part_.clear();
  disk_.FlushFolder(FolderOf(target_));
  return {};
}

FileSource::~FileSource() {
  if (file_ >= 0) ::close(file_);
}

Outcome FileSource::Open() {
  file_ = ::open(path_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  struct stat info {};
  if (file_ < 0 || ::fstat(file_, &info) != 0 || !S_ISREG(info.st_mode))
    return {Fault::NotFound, Tr("The file \"{}\" cannot be read: {}.", LastName(path_),
                                file_ < 0 ? std::strerror(errno) : Tr("it is no file"))};
  size_ = info.st_size;
  return {};
}

void FileSource::Attach(CURL* handle, CurlSession& session) {
  session_ = &session;
  curl_easy_setopt(handle, CURLOPT_UPLOAD, 1L);
  curl_easy_setopt(handle, CURLOPT_READFUNCTION, &FileSource::Read);
  curl_easy_setopt(handle, CURLOPT_READDATA, this);
  curl_easy_setopt(handle, CURLOPT_SEEKFUNCTION, &FileSource::Seek);
  curl_easy_setopt(handle, CURLOPT_SEEKDATA, this);
}

std::size_t FileSource::Read(char* bytes, std::size_t size, std::size_t count, void* self) {
  auto& source = *static_cast<FileSource*>(self);
  if (source.session_->CancelWanted()) {
    source.cancelled_ = true;
    return 0;
  }
  const auto wanted = static_cast<std::size_t>(
      std::min<std::int64_t>(static_cast<std::int64_t>(size * count), source.size_ - source.done_));
  const ssize_t got = wanted == 0 ? 0 : ::read(source.file_, bytes, wanted);
  if (got <= 0) return 0;  // the end, or less than there was: see Whole
  source.done_ += got;
  return static_cast<std::size_t>(got);
}

int FileSource::Seek(void* self, curl_off_t offset, int origin) {
  auto& source = *static_cast<FileSource*>(self);
  if (origin != SEEK_SET || ::lseek(source.file_, offset, SEEK_SET) < 0) return CURL_SEEKFUNC_FAIL;
  source.done_ = offset;
  return CURL_SEEKFUNC_OK;
}

}  // namespace kinalyx
