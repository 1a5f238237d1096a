#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "library/JobRunner.h"
#include "library/Sidecar.h"
#include "library/TrimJob.h"
#include "platform/files/FileCopy.h"
#include "platform/media/RecordingTally.h"

namespace kinalyx {

/// A recording of one camera or two, and what is to become of it.
struct SaveRequest {
  std::array<std::string, 2> recorded;  ///< the working files; the second is empty for one camera
  std::array<std::string, 2> videos;    ///< the full paths under which they are kept
  std::array<RecordingTally, 2> tallies;
  int firstFrame = 0;
  int lastFrame = 0;                 ///< 0: to the end
  std::array<bool, 2> recompress{};  ///< codes the pictures anew
  bool dv = false;                   ///< from tape: the pictures tell their fields themselves, and get no sidecar
  SlotData flags;                    ///< of the sidecars, see CaptureFlags
  std::string trimProgram;           ///< path of `avitrim`
};

/// What has come of it: all videos are kept, or none is and the working files are as they were.
struct SavedRecording {
  std::array<std::string, 2> videos;  ///< where they stand now; under the next number where the name was taken
  std::string why;                    ///< nothing was kept, for this reason
  std::string note;                   ///< what the user must know although it was
  bool cancelled = false;

  bool Done() const { return why.empty() && !cancelled; }
};

/// Keeps a recording: cuts it where that is wanted, and takes it with its sidecar to the folder of the student. What is
/// there is never replaced, not even what another window has put there in the meantime. A cut leaves the working files
/// behind, to be thrown away by who knows that all went well.
class RecordingSaver final : public IJob {
 public:
  explicit RecordingSaver(SaveRequest request, IDisk& disk = RealDisk());
  /// Removes what is left of a cut.
  ~RecordingSaver() override;

  bool Step() override;
  void Cancel() override;
  JobProgress Progress() const override;
  const SavedRecording& Saved() const { return saved_; }

 private:
  std::size_t Cameras() const { return request_.recorded[1].empty() ? 1 : 2; }
  bool Cuts(std::size_t camera) const {
    return request_.recompress[camera] || request_.firstFrame > 0 || request_.lastFrame > 0;
  }
  bool CutOn();
  bool BeginMove();
  void TakeNextNumber();
  bool MoveOn();
  void Finish();
  bool Fail(std::string why);

  SaveRequest request_;
  IDisk& disk_;
  SavedRecording saved_;
  std::array<std::string, 2> sources_;  ///< what is kept: the working files, or what was cut of them
  std::size_t cut_ = 0;                 ///< cameras that have been cut
  std::array<bool, 2> described_{};     ///< they have their sidecars
  std::optional<TrimJob> trim_;
  std::optional<CopyJob> move_;
  bool done_ = false;
};

}  // namespace kinalyx
