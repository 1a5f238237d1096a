#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/files/Disk.h"
#include "platform/files/Result.h"
#include "platform/net/CurlSession.h"

namespace kinalyx {

/// A text that comes from a server.
class TextSink {
 public:
  explicit TextSink(std::int64_t most) : most_(static_cast<std::size_t>(most)) {}
  void Attach(CURL* handle);
  bool TooLarge() const { return tooLarge_; }
  const std::string& Text() const { return text_; }

 private:
  static std::size_t Write(char* bytes, std::size_t size, std::size_t count, void* self);

  std::size_t most_;
  bool tooLarge_ = false;
  std::string text_;
};

/// A file that comes from a server, beside its name until all of it is on the disk.
class FileSink {
 public:
  FileSink(IDisk& disk, std::string target) : disk_(disk), target_(std::move(target)) {}
  FileSink(const FileSink&) = delete;
  FileSink& operator=(const FileSink&) = delete;
  /// What has not been kept goes.
  ~FileSink();

  /// Fault::Refused where something of that name is there.
  Outcome Open();
  void Attach(CURL* handle);
  /// Why the disk took no more; done where it took all.
  const Outcome& Trouble() const { return trouble_; }
  /// Gives it its name.
  Outcome Keep();

 private:
  static std::size_t Write(char* bytes, std::size_t size, std::size_t count, void* self);
  Outcome Refuse();

  IDisk& disk_;
  std::string target_, part_;
  int file_ = -1;
  Outcome trouble_;
};

/// A file that goes to a server: as many bytes as it had in the beginning. A cancel ends it early and in good order, so
/// that the connection stays of use.
class FileSource {
 public:
  explicit FileSource(std::string path) : path_(std::move(path)) {}
  FileSource(const FileSource&) = delete;
  FileSource& operator=(const FileSource&) = delete;
  ~FileSource();

  Outcome Open();
  void Attach(CURL* handle, CurlSession& session);
  std::int64_t Size() const { return size_; }
  /// All of it has been handed over.
  bool Whole() const { return done_ == size_ && !cancelled_; }
  bool Cancelled() const { return cancelled_; }

 private:
  static std::size_t Read(char* bytes, std::size_t size, std::size_t count, void* self);
  static int Seek(void* self, curl_off_t offset, int origin);

  std::string path_;
  CurlSession* session_ = nullptr;
  int file_ = -1;
  std::int64_t size_ = 0;
  std::int64_t done_ = 0;
  bool cancelled_ = false;
};

}  // namespace kinalyx
