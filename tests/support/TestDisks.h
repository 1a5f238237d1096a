#pragma once

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string>

#include "platform/files/Disk.h"

namespace kinalyx::test {

/// Passes every call on to another disk. What a test wants otherwise it overrides.
class PassingDisk : public IDisk {
 public:
  explicit PassingDisk(IDisk& disk = RealDisk()) : disk_(disk) {}
  int OpenSource(const std::string& path, bool follow) override { return disk_.OpenSource(path, follow); }
  int OpenNew(const std::string& path) override { return disk_.OpenNew(path); }
  long Write(int file, const void* bytes, std::size_t count) override { return disk_.Write(file, bytes, count); }
  long Transfer(int from, int to, std::size_t count) override { return disk_.Transfer(from, to, count); }
  long Read(int file, void* bytes, std::size_t count) override { return disk_.Read(file, bytes, count); }
  int Clone(int from, int to) override { return disk_.Clone(from, to); }
  int Flush(int file) override { return disk_.Flush(file); }
  void BeginFlush(int file) override { disk_.BeginFlush(file); }
  void ForgetCached(int file) override { disk_.ForgetCached(file); }
  int Close(int file) override { return disk_.Close(file); }
  int Rename(const std::string& from, const std::string& to) override { return disk_.Rename(from, to); }
  int RenameNew(const std::string& from, const std::string& to) override { return disk_.RenameNew(from, to); }
  int MakeFolder(const std::string& path) override { return disk_.MakeFolder(path); }
  int MakeLink(const std::string& target, const std::string& path) override { return disk_.MakeLink(target, path); }
  int FlushFolder(const std::string& path) override { return disk_.FlushFolder(path); }
  int Remove(const std::string& path) override { return disk_.Remove(path); }
  int RemoveFolder(const std::string& path) override { return disk_.RemoveFolder(path); }
  int DeadPartSeconds() const override { return disk_.DeadPartSeconds(); }

 private:
  IDisk& disk_;
};

/// Fails one call, counted from 0, and from then on works again. Writes take half of what they are given, as a
/// disk may.
class FailingDisk final : public PassingDisk {
 public:
  explicit FailingDisk(int failing) : left_(failing) {}
  bool Failed() const { return left_ < 0; }

  int OpenSource(const std::string& path, bool follow) override {
    return Bad() ? -1 : PassingDisk::OpenSource(path, follow);
  }
  int OpenNew(const std::string& path) override { return Bad() ? -1 : PassingDisk::OpenNew(path); }
  long Write(int file, const void* bytes, std::size_t count) override {
    return Bad() ? -1 : PassingDisk::Write(file, bytes, std::min(count, std::max<std::size_t>(4, count / 2)));
  }
  long Transfer(int from, int to, std::size_t count) override {
    if (!Bad()) return PassingDisk::Transfer(from, to, count);
    PassingDisk::Transfer(from, to, count / 2);  // a disk that fills up takes a part first
    errno = ENOSPC;
    return -1;
  }
  long Read(int file, void* bytes, std::size_t count) override {
    return Bad() ? -1 : PassingDisk::Read(file, bytes, count);
  }
  int Flush(int file) override { return Bad() ? -1 : PassingDisk::Flush(file); }
  int Close(int file) override {
    const int result = PassingDisk::Close(file);  // a failing close still gives the handle back
    return Bad() ? -1 : result;
  }
  int Rename(const std::string& from, const std::string& to) override {
    return Bad() ? -1 : PassingDisk::Rename(from, to);
  }
  int RenameNew(const std::string& from, const std::string& to) override {
    return Bad() ? -1 : PassingDisk::RenameNew(from, to);
  }
  int MakeFolder(const std::string& path) override { return Bad() ? -1 : PassingDisk::MakeFolder(path); }
  int MakeLink(const std::string& target, const std::string& path) override {
    return Bad() ? -1 : PassingDisk::MakeLink(target, path);
  }
  int FlushFolder(const std::string& path) override { return Bad() ? -1 : PassingDisk::FlushFolder(path); }
  int Remove(const std::string& path) override { return Bad() ? -1 : PassingDisk::Remove(path); }
  int RemoveFolder(const std::string& path) override { return Bad() ? -1 : PassingDisk::RemoveFolder(path); }

 private:
  bool Bad() {
    if (left_-- != 0) return false;
    errno = EIO;
    return true;
  }

  int left_;
};

/// A disk on which nothing can be renamed from one place to another, as between two drives.
class TwoDrives : public PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  int RenameNew(const std::string& from, const std::string& to) override {
    if (std::filesystem::path(from).parent_path() == std::filesystem::path(to).parent_path())
      return PassingDisk::RenameNew(from, to);
    errno = EXDEV;
    return -1;
  }
};

/// A disk for which nobody waits, and which takes a part of a write at a time.
class HastyDisk : public PassingDisk {
 public:
  long Write(int file, const void* bytes, std::size_t count) override {
    return PassingDisk::Write(file, bytes, std::min<std::size_t>(count, 700));
  }
  int Flush(int) override { return 0; }
  int FlushFolder(const std::string&) override { return 0; }
};

/// A disk on which every part counts as dead at once.
class ImpatientDisk final : public PassingDisk {
 public:
  int DeadPartSeconds() const override { return 0; }
};

}  // namespace kinalyx::test
