#include "platform/net/AttachedFile.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/net/MailText.h"

namespace kinalyx {
namespace {

constexpr std::int64_t kLineBytes = 57;    // of the file
constexpr std::int64_t kLineLetters = 76;  // that stand for them
constexpr std::int64_t kLineEnd = 2;
constexpr std::int64_t kLinesAtOnce = 4096;

}  // namespace

AttachedFile::AttachedFile(const MailAttachment& attachment)
    : path_(attachment.path), name_(LastName(attachment.name.empty() ? attachment.path : attachment.name)) {}

AttachedFile::~AttachedFile() {
  if (file_ >= 0) ::close(file_);
}

Outcome AttachedFile::Open() {
  // O_NONBLOCK: a pipe in the place of the file must not hold us up.
  file_ = ::open(path_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  struct stat info {};
  if (file_ < 0 || ::fstat(file_, &info) != 0 || !S_ISREG(info.st_mode))
    return {Fault::NotFound,
            Tr("The file \"{}\" cannot be read: {}.", name_, file_ < 0 ? std::strerror(errno) : Tr("it is no file"))};
  size_ = info.st_size;
  return {};
}

void AttachedFile::Join(curl_mime* mime) {
  curl_mimepart* part = curl_mime_addpart(mime);
  curl_mime_data_cb(part, EncodedSize(), &AttachedFile::Read, &AttachedFile::Seek, nullptr, this);
  headers_.Add(fmt::format("Content-Type: {};\r\n name={}", ContentTypeOf(name_), EncodedQuoted()));
  headers_.Add("Content-Disposition: attachment" + EncodedParameter("filename", name_));
  headers_.Add("Content-Transfer-Encoding: base64");
  curl_mime_headers(part, headers_.Get(), 0);
}

std::int64_t AttachedFile::EncodedSize() const {
  const std::int64_t last = size_ % kLineBytes;
  const std::int64_t lastLetters = (last + 2) / 3 * 4;
  return size_ / kLineBytes * (kLineLetters + kLineEnd) + (last > 0 ? lastLetters + kLineEnd : 0);
}

/// The name once more, as readers of old look for it.
std::string AttachedFile::EncodedQuoted() const {
  const std::string text = EncodedText(name_);
  std::string quoted = "\"";
  for (const char letter : text) {
    if (letter == '"' || letter == '\\') quoted += '\\';
    quoted += letter;
  }
  return quoted + '"';
}

/// The next lines, which are whole but for the last of the file. False where the file is no longer what it was.
bool AttachedFile::PackMore() {
  packed_.clear();
  taken_ = 0;
  QByteArray bytes(std::min(kLineBytes * kLinesAtOnce, size_ - read_), Qt::Uninitialized);
  for (qsizetype filled = 0; filled < bytes.size();) {
    const ssize_t got = ::read(file_, bytes.data() + filled, static_cast<std::size_t>(bytes.size() - filled));
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return false;
    filled += got;
  }
  read_ += bytes.size();
  const QByteArray letters = bytes.toBase64();
  for (qsizetype at = 0; at < letters.size(); at += kLineLetters) {
    packed_.append(letters.constData() + at,
                   static_cast<std::size_t>(std::min<qsizetype>(kLineLetters, letters.size() - at)));
    packed_ += "\r\n";
  }
  return true;
}

std::size_t AttachedFile::Read(char* bytes, std::size_t size, std::size_t count, void* self) {
  auto& file = *static_cast<AttachedFile*>(self);
  if (file.taken_ == file.packed_.size() && file.read_ < file.size_ && !file.PackMore()) {
    file.changed_ = true;
    return CURL_READFUNC_ABORT;
  }
  const std::size_t sent = std::min(size * count, file.packed_.size() - file.taken_);
  std::memcpy(bytes, file.packed_.data() + file.taken_, sent);
  file.taken_ += sent;
  return sent;
}

/// The library goes back to the start alone.
int AttachedFile::Seek(void* self, curl_off_t offset, int origin) {
  auto& file = *static_cast<AttachedFile*>(self);
  if (origin != SEEK_SET || offset != 0 || ::lseek(file.file_, 0, SEEK_SET) < 0) return CURL_SEEKFUNC_FAIL;
  file.read_ = 0;
  file.packed_.clear();
  file.taken_ = 0;
  return CURL_SEEKFUNC_OK;
}

}  // namespace kinalyx
