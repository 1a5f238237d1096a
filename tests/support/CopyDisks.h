#pragma once

#include <cerrno>
#include <filesystem>
#include <string>

#include "platform/files/FileCopy.h"

namespace kinalyx::test {

/// Fails one call, counted from 0, and from then on works again.
class FailingDisk final : public ICopyDisk {
 public:
  explicit FailingDisk(int failing) : left_(failing) {}
  bool Failed() const { return left_ < 0; }

  int OpenSource(const std::string& path, bool follow) override { return Bad() ? -1 : real_.OpenSource(path, follow); }
  int OpenNew(const std::string& path) override { return Bad() ? -1 : real_.OpenNew(path); }
  long Transfer(int from, int to, std::size_t count) override {
    if (!Bad()) return real_.Transfer(from, to, count);
    real_.Transfer(from, to, count / 2);  // a disk that fills up takes a part first
    errno = ENOSPC;
    return -1;
  }
  int Flush(int file) override { return Bad() ? -1 : real_.Flush(file); }
  int Close(int file) override {
    const int result = real_.Close(file);
    return Bad() ? -1 : result;
  }
  int RenameNew(const std::string& from, const std::string& to) override {
    return Bad() ? -1 : real_.RenameNew(from, to);
  }
  int MakeFolder(const std::string& path) override { return Bad() ? -1 : real_.MakeFolder(path); }
  int MakeLink(const std::string& target, const std::string& path) override {
    return Bad() ? -1 : real_.MakeLink(target, path);
  }
  int FlushFolder(const std::string& path) override { return real_.FlushFolder(path); }
  int Remove(const std::string& path) override { return Bad() ? -1 : real_.Remove(path); }
  int RemoveFolder(const std::string& path) override { return Bad() ? -1 : real_.RemoveFolder(path); }

 private:
  bool Bad() {
    if (left_-- != 0) return false;
    errno = EIO;
    return true;
  }

  ICopyDisk& real_ = RealCopyDisk();
  int left_;
};

/// A disk on which nothing can be renamed from one place to another, as between two drives.
class TwoDrives : public ICopyDisk {
 public:
  explicit TwoDrives(ICopyDisk& disk) : disk_(disk) {}
  int OpenSource(const std::string& path, bool follow) override { return disk_.OpenSource(path, follow); }
  int OpenNew(const std::string& path) override { return disk_.OpenNew(path); }
  long Transfer(int from, int to, std::size_t count) override { return disk_.Transfer(from, to, count); }
  int Flush(int file) override { return disk_.Flush(file); }
  int Close(int file) override { return disk_.Close(file); }
  int RenameNew(const std::string& from, const std::string& to) override {
    if (std::filesystem::path(from).parent_path() == std::filesystem::path(to).parent_path()) return disk_.RenameNew(from, to);
    errno = EXDEV;
    return -1;
  }
  int MakeFolder(const std::string& path) override { return disk_.MakeFolder(path); }
  int MakeLink(const std::string& target, const std::string& path) override { return disk_.MakeLink(target, path); }
  int FlushFolder(const std::string& path) override { return disk_.FlushFolder(path); }
  int Remove(const std::string& path) override { return disk_.Remove(path); }
  int RemoveFolder(const std::string& path) override { return disk_.RemoveFolder(path); }

 private:
  ICopyDisk& disk_;
};

}  // namespace kinalyx::test
