#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/files/Result.h"
#include "platform/net/CurlSession.h"
#include "platform/net/IMailSender.h"

namespace kinalyx {

/// A file on its way into a message, packed in large pieces: the library's own packing sends a packet for every few
/// lines. The file must stay what it was when the message was begun: the readers get the whole of it, or nothing.
class AttachedFile {
 public:
  explicit AttachedFile(const MailAttachment& attachment);
  AttachedFile(const AttachedFile&) = delete;
  AttachedFile& operator=(const AttachedFile&) = delete;
  ~AttachedFile();

  /// Fails, in words for the user, where there is no file to be read.
  Outcome Open();
  /// Makes it a part of the message, which must not outlive it.
  void Join(curl_mime* mime);

  /// Bytes in the message.
  std::int64_t EncodedSize() const;
  /// It could not be read to the end that it had.
  bool Changed() const { return changed_; }
  const std::string& Name() const { return name_; }

 private:
  std::string EncodedQuoted() const;
  bool PackMore();
  static std::size_t Read(char* bytes, std::size_t size, std::size_t count, void* self);
  static int Seek(void* self, curl_off_t offset, int origin);

  std::string path_, name_;
  int file_ = -1;
  std::int64_t size_ = 0;
  std::int64_t read_ = 0;  ///< bytes of the file
  std::string packed_;     ///< lines that are ready
  std::size_t taken_ = 0;  ///< bytes of them that have gone
  bool changed_ = false;
  CurlList headers_;
};

}  // namespace kinalyx
