#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "platform/media/AvHandles.h"

namespace kinalyx {

/// A file as the library reads it: this one and no other, whatever its content would like to have opened.
class FileInput {
 public:
  /// Opens a file for reading; null with the reason in `message` when it is none or may not be read. A pipe or a
  /// device, which would be waited for without end, is none.
  static std::unique_ptr<FileInput> Open(const std::string& path, std::string& message);
  /// A second reader of the same file, also where its name has gone or has become another's; null without memory.
  std::unique_ptr<FileInput> Again() const;
  ~FileInput();
  FileInput(const FileInput&) = delete;
  FileInput& operator=(const FileInput&) = delete;

  /// Looks for one of the containers in `whitelist` (names of the library, with commas) by the content alone.
  /// Null with the library's code in `error`. The result reads through this object, which must outlive it.
  InputHandle OpenContainer(const char* whitelist, int& error);

  std::int64_t Bytes() const { return bytes_; }
  /// Fills `to` with what stands at a place of the file; false when that is not all there.
  bool ReadAt(std::int64_t place, std::span<std::uint8_t> to) const;
  /// From now on everything that is read costs nothing and means nothing: for a walk through packets whose
  /// places the container has told already, and whose content nobody looks at.
  void BecomeHollow() { hollow_ = true; }

 private:
  struct File;
  explicit FileInput(std::shared_ptr<const File> file);
  static int ReadPart(void* self, std::uint8_t* to, int count);
  static std::int64_t MoveTo(void* self, std::int64_t offset, int from);

  std::shared_ptr<const File> file_;
  AVIOContext* context_ = nullptr;
  std::int64_t bytes_ = 0;
  std::int64_t place_ = 0;
  bool hollow_ = false;
};

}  // namespace kinalyx
