#pragma once

#include <memory>
#include <optional>
#include <string>

#include "library/JobRunner.h"
#include "platform/host/ChildProcess.h"
#include "platform/media/TrimCommand.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {

/// The pictures per second with which a video is cut; 30 for one that does not tell its own.
/// @param info  null for a video that is not known
int TrimRate(const VideoInfo* info);

/// Has the program `avitrim` cut a video, and waits for it.
class TrimJob final : public IJob {
 public:
  /// @param program  path of `avitrim`
  TrimJob(std::string program, TrimRequest request) : program_(std::move(program)), request_(std::move(request)) {}

  bool Step() override;
  void Cancel() override;
  JobProgress Progress() const override;

  bool Saved() const { return saved_; }
  bool Cancelled() const { return cancelled_; }
  const std::string& Error() const { return error_; }

 private:
  std::string program_;
  TrimRequest request_;
  std::unique_ptr<ChildProcess> process_;
  double part_ = 0;
  bool saved_ = false;
  bool cancelled_ = false;
  std::string error_;
};

}  // namespace kinalyx
