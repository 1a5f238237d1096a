#pragma once

#include <cstddef>
#include <string>

namespace kinalyx {

/// The calls by which saves, copies and removals change the disk, so that a test can make each of them fail in
/// turn. Results as the system calls have them: negative is a failure, with the reason in errno.
class IDisk {
 public:
  virtual ~IDisk() = default;
  virtual int OpenSource(const std::string& path, bool followLink) = 0;  ///< for reading
  virtual int OpenNew(const std::string& path) = 0;  ///< for writing; fails when there is something of that name
  /// The same for what nobody but the owner may read, from its first moment on.
  virtual int OpenNewForOwner(const std::string& path) { return OpenNew(path); }
  virtual long Write(int file, const void* bytes, std::size_t count) = 0;  ///< bytes written; may be fewer
  /// Copies the next bytes, at most `count`; 0 at the end of the source.
  virtual long Transfer(int from, int to, std::size_t count) = 0;
  virtual long Read(int file, void* bytes, std::size_t count) = 0;  ///< bytes read; 0 at the end
  /// Has an empty new file share all bytes of another, which costs nothing; most file systems cannot.
  virtual int Clone(int from, int to) = 0;
  virtual int Flush(int file) = 0;
  /// Begins to flush and waits for nothing: what flushes a large file in the end has little left to do.
  virtual void BeginFlush(int file) = 0;
  /// What is read of a flushed file next comes from the disk, not from memory, where the system can do that.
  virtual void ForgetCached(int file) = 0;
  virtual int Close(int file) = 0;
  virtual int Rename(const std::string& from, const std::string& to) = 0;     ///< replaces a file of that name
  virtual int RenameNew(const std::string& from, const std::string& to) = 0;  ///< never replaces anything
  virtual int MakeFolder(const std::string& path) = 0;
  virtual int MakeLink(const std::string& target, const std::string& path) = 0;
  virtual int FlushFolder(const std::string& path) = 0;
  virtual int Remove(const std::string& path) = 0;        ///< a file or a link
  virtual int RemoveFolder(const std::string& path) = 0;  ///< an empty folder
  /// How long a part lies untouched before it counts as dead. A copy that is alive writes every few seconds; a
  /// slow drive may need minutes for what it has in its buffers.
  virtual int DeadPartSeconds() const { return 3600; }
};

/// The disk of this machine.
IDisk& RealDisk();

}  // namespace kinalyx
