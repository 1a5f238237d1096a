#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kinalyx {

struct FileStamp;

/// Where stand-ins are kept on the disk, and how much.
struct StandInLimits {
  std::string folder;                              ///< made when missing
  std::int64_t all = std::int64_t{2} << 30;        ///< bytes of all files; the oldest go first
  std::int64_t one = std::int64_t{1} << 30;        ///< bytes of the stand-ins of one video
  std::int64_t leaveFree = std::int64_t{2} << 30;  ///< bytes that the drive keeps

  /// kinalyx/ in the user's cache folder.
  static StandInLimits OfUser();
};

/// The stand-ins of one video on the disk, kept from one opening of the video to the next: a heading that says
/// to which state of which file they belong, then one picture after another as they were made. It may be cut,
/// damaged or deleted at any time; what cannot be read is not there. Of two programs with the same video the
/// first writes.
class StandInFile {
 public:
  struct Place {
    int picture = 0;
    int longSide = 0;
    std::int64_t at = -1;
    std::uint32_t bytes = 0;
    std::uint32_t sum = 0;
  };
  using Found = std::function<void(const Place&)>;

  /// Opens the file of a video, or begins one, and tells what it holds; null when there can be none.
  static std::unique_ptr<StandInFile> Open(const StandInLimits& limits, const FileStamp& video, int pictures,
                                           const Found& found);
  ~StandInFile();
  StandInFile(const StandInFile&) = delete;
  StandInFile& operator=(const StandInFile&) = delete;

  /// Adds a picture; nothing when there is no room, or another program writes.
  std::optional<Place> Append(int picture, int longSide, std::span<const std::uint8_t> packed);
  /// The bytes, or nothing when they are not the ones that were written.
  std::optional<std::vector<std::uint8_t>> Read(const Place& place) const;
  bool HasRoom() const { return writes_; }
  /// Deletes the file: its video is not what it was.
  void Discard();

 private:
  StandInFile(std::string path, int file) : path_(std::move(path)), file_(file) {}
  bool ReadHeading(const FileStamp& video, int pictures) const;
  bool Begin(const FileStamp& video, int pictures);
  void Scan(int pictures, const Found& found);

  std::string path_;
  int file_ = -1;
  std::atomic<bool> writes_ = false;
  std::int64_t end_ = 0;
  std::int64_t most_ = 0;
};

/// Deletes the oldest files of stand-ins until `limits` are kept, other than the one named.
void CleanStandIns(const StandInLimits& limits, const std::string& keep);

}  // namespace kinalyx
