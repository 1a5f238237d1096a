#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/files/Result.h"
#include "platform/paint/PixelOps.h"

namespace kinalyx {

/// Keeps other windows of the program from a file as long as it stands. The lock is advisory and lies on the file
/// itself; the system releases it with the program, however that ends. Where the drive has no locks nothing is locked.
class HeldFile {
 public:
  HeldFile() = default;
  /// Takes a file, unless somebody holds it or it is none.
  explicit HeldFile(const std::string& path);
  HeldFile(HeldFile&& other) noexcept : file_(std::exchange(other.file_, -1)), locked_(other.locked_) {}
  HeldFile& operator=(HeldFile&& other) noexcept {
    std::swap(file_, other.file_);
    std::swap(locked_, other.locked_);
    return *this;
  }
  ~HeldFile();

  explicit operator bool() const { return file_ >= 0; }
  /// Nobody else can hold it; false on a drive without locks.
  bool Locked() const { return locked_; }

 private:
  int file_ = -1;
  bool locked_ = false;
};

/// Pictures that wait to be mailed: `email1.jpg` to `email100.jpg` of one folder. Two windows of the program may use
/// the folder at once; a picture belongs to the one that has taken it, and the other neither shows nor deletes it. What
/// a killed program has left belongs to nobody until it is asked for.
class SnapshotQueue {
 public:
  static constexpr int kMost = 100;

  /// @param folder  is made with the first picture
  explicit SnapshotQueue(std::string folder) : folder_(std::move(folder)) {}

  /// Saves a picture behind the others. Fault::Refused, in words for the user, when there are kMost already.
  /// @return its path
  Result<std::string> Add(const PixelRows& picture);
  /// Where the next picture would lie; for messages.
  std::string NextPath() const;

  /// The pictures in their order. One whose file somebody has deleted is passed over and forgotten.
  std::vector<std::string> Pictures();
  int Count() { return static_cast<int>(Pictures().size()); }
  std::int64_t Bytes();
  /// Deletes one of them; it stays when the disk refuses.
  Outcome Delete(const std::string& path);
  /// Deletes all of them; those that the disk keeps stay.
  Outcome ClearEmailQueue();

  /// Looks for pictures that nobody holds, and how many there are.
  int FindLeft();
  /// They come before those that were taken since.
  void TakeLeft();
  Outcome DeleteLeft();

 private:
  struct Picture {
    std::string path;
    HeldFile held;
  };
  std::string PathOf(int number) const;
  static Outcome DeleteAll(std::vector<Picture>& pictures);

  std::string folder_;
  std::vector<Picture> pictures_;
  std::vector<Picture> left_;
  int last_ = 0;  ///< the number that was given last
};

}  // namespace kinalyx
