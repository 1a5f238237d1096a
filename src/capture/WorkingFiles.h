#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "platform/files/FileLock.h"
#include "platform/files/Result.h"

namespace kinalyx {

/// The files into which cameras are recorded, until a recording is kept or thrown away. Two windows at work in one
/// folder have files of their own.
class WorkingFiles {
 public:
  /// @param folder  made when it is first needed
  explicit WorkingFiles(std::string folder);

  /// Sees to it that a recording can begin. What lies under its names, left by a program that was killed, gets other
  /// names, see ParkRecordings.
  Outcome Prepare();
  /// Of camera 0 or 1.
  const std::string& Path(int camera) const { return paths_[static_cast<std::size_t>(camera)]; }
  /// Beside which the blocks of triggers are written, of camera 0 or 1. The seat is taken by Prepare.
  std::string TriggeredPath(int camera) const;
  /// Has a recording that could not be kept be found as an unfinished one, see ParkRecordings. What is not there, or
  /// has no name, is passed over.
  void Park(const std::string& path, const std::string& second) const;
  /// Throws away what was recorded.
  void Discard() const;

 private:
  void TakeSeat(int seat);

  std::string folder_;
  int seat_ = 1;
  std::unique_ptr<FileLock> lock_;  ///< of the seat, from the first recording on
  std::array<std::string, 2> paths_;
};

/// Takes recordings that nobody is at any more away from the names of the working files, so that these are free:
/// they are called "unfinished 3.avi", and "unfinished 3 camera 2.avi" where two cameras belong together.
void ParkRecordings(const std::string& folder);
/// The name of the recording of camera 2 beside that of camera 1, "unfinished 3.avi".
std::string ParkedNameOfSecond(std::string_view name);
/// True for the name of a working file.
bool IsWorkingName(std::string_view name);

}  // namespace kinalyx
