#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "library/JobRunner.h"
#include "platform/files/FileCopy.h"

namespace kinalyx {

// --- a video and what belongs to it

/// True when a folder holds a video of this file's name and format, in whatever case, or when the disk takes the
/// name for one that is there.
bool HasVideoNamed(const std::string& folder, std::string_view file);
/// A file that lies beside a video and belongs to it: its sidecar, its study file.
struct Companion {
  std::string path;
  std::string (*nameFor)(std::string_view);  ///< the name that it has beside a video of this file name
};
/// Those of a video that exist.
std::vector<Companion> CompanionsOf(const std::string& videoPath);
/// True when they belong to a second video as well, whose name differs in the case of its
/// extension alone.
bool SharesCompanions(const std::string& videoPath);
/// Makes way for a video: what lies there as a companion of its name, but without a video, is kept beside, see
/// KeptPath, so that its drawings neither vanish nor appear on another video. False when it stays there.
bool SetAsideOrphans(const std::string& folder, std::string_view file, IDisk& disk);
/// A video and its companions on the way to a folder, under a new file name.
CopyUnit VideoUnit(const std::string& videoPath, const std::string& folder, std::string_view file);

// --- many of them

/// One video that is to go to a folder.
struct VideoTransfer {
  std::string path;           ///< "" for a student without videos, who goes with profile and notes alone
  std::string folder;         ///< of the target; made when missing
  std::string studentFolder;  ///< whose profile and notes go along when the target has none; "" for none
};

/// Takes videos to other folders, each with its companions, one after the other. Where they are given new names rather
/// than stop it, one that cannot be read stops it no more: the others are taken, and its error tells of it at the end.
class VideoTransferJob final : public IJob {
 public:
  enum class OnClash {
    Stop,  ///< a video of that name at the target ends the job
    AddD,  ///< the name gets a "d" at its end until it is free
  };

  VideoTransferJob(CopyJob::Kind kind, OnClash onClash, std::vector<VideoTransfer> videos, IDisk& disk = RealDisk());
  /// Looks at each video when it has arrived, whether it can be opened.
  void LookAtEach() { looks_ = true; }

  bool Step() override;
  void Cancel() override;
  JobProgress Progress() const override;

  bool Cancelled() const { return cancelled_; }
  /// Videos that have arrived.
  int VideosDone() const { return static_cast<int>(arrived_.size()); }
  /// Where they stand now, in their order.
  const std::vector<std::string>& Arrived() const { return arrived_; }
  /// The first of them, counted among all videos that were to go.
  int FirstArrived() const { return firstArrived_; }
  /// Those among them that cannot be opened, where that was looked at.
  const std::vector<std::string>& Unreadable() const { return unreadable_; }
  /// Files that have arrived: the videos and their sidecars.
  int FilesDone() const { return filesDone_; }
  /// Students without videos that have come along.
  int StudentsDone() const { return studentsDone_; }
  /// Why it stopped, in words for the user, or what could not be removed after a move; empty otherwise.
  const std::string& Error() const { return error_; }
  bool Failed() const { return failed_; }
  /// It stopped because the target has a video of that name.
  bool NameTaken() const { return nameTaken_; }

 private:
  /// Of the next video, as far as it has been tried.
  std::string FileName() const;
  bool Begin();
  bool BeginOne();
  bool TakeStudent(const VideoTransfer& student);
  void TakeProfile(const VideoTransfer& video);
  bool EndOfOne();
  bool Fail(const std::string& error);
  bool FailForThoseLeft();

  CopyJob::Kind kind_;
  OnClash onClash_;
  std::vector<VideoTransfer> videos_;
  IDisk& disk_;
  std::size_t next_ = 0;
  std::string name_;  ///< the name that is tried for the next video; "" when none has been tried yet
  std::optional<CopyJob> copy_;
  std::int64_t bytesTotal_ = 0;
  std::int64_t bytesDone_ = 0;
  bool begun_ = false;
  bool cancelled_ = false;
  bool failed_ = false;
  bool nameTaken_ = false;
  bool looks_ = false;
  std::vector<std::string> arrived_;
  std::vector<std::string> unreadable_;
  std::vector<std::string> left_;  ///< why those could not be taken that did not stop it
  int firstArrived_ = 0;
  int studentsDone_ = 0;
  int filesDone_ = 0;
  std::string error_;
};

}  // namespace kinalyx
