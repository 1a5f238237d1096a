#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kinalyx {

/// What a lesson's entry begins with; a video's begins with its name.
inline constexpr std::string_view kLessonEntry = "(Lesson)-";

/// An entry of the list: one file that a student is to get.
struct FileToSend {
  std::string path;
  bool lesson = false;
  std::int64_t bytes = 0;     ///< when it was added
  std::string Name() const;   ///< of the file
  std::string Entry() const;  ///< as it is listed
};

/// The Files to Send list, which mail, web page and disc share. It survives whatever fails with it.
class FilesToSend {
 public:
  /// @return what the user is told: also that the file is listed already, or is not there
  std::string Add(const std::string& path, bool lesson);
  /// @param index  from 0; out of range is nothing
  std::string Remove(std::size_t index);
  void Clear() { files_.clear(); }

  const std::vector<FileToSend>& Files() const { return files_; }
  bool Empty() const { return files_.empty(); }
  /// The sum of their lengths as it stands on the disk now; one that is gone counts nothing.
  std::int64_t Bytes() const;

 private:
  std::vector<FileToSend> files_;
};

/// Whole megabytes, counted upward: "1,234MB".
std::string MegabytesText(std::int64_t bytes);

}  // namespace kinalyx
