#pragma once

#include <memory>
#include <string>
#include <utility>

#include "library/JobRunner.h"
#include "platform/media/Conversion.h"
#include "platform/media/VideoInfo.h"

namespace kinalyx {

/// One file that is to become a video of the library.
struct ImportOrder {
  std::string source;
  std::string destination;  ///< path of the new video, whose folder is made where it is missing
  double startMs = 0;       ///< of the part that is wanted
  double endMs = 0;         ///< 0 for the end of the video
  bool keepSize = true;     ///< pictures stay as large as they are; else as the templates say
  bool edge = false;        ///< tape is sharpened a little
  bool reverseFields = false;
  bool moveSource = false;  ///< the original goes to `Converted Videos` afterwards
};

/// Converts one file, gives the new video its first sidecar, and puts the original away. On a worker.
class ConvertJob final : public IJob {
 public:
  enum class State {
    Running,
    Saved,
    Unreadable,  ///< the source is no video, or none that can be read
    NotSaved,    ///< the disk refused, or a picture could not be coded: nothing stands under the new name
    Cancelled,
  };

  explicit ConvertJob(ImportOrder order) : order_(std::move(order)) {}

  bool Step() override;
  void Cancel() override;
  JobProgress Progress() const override;

  const ImportOrder& Order() const { return order_; }
  State Status() const { return state_; }
  /// Why it failed.
  const std::string& Error() const { return error_; }
  /// Of a saved video: why it has no sidecar, or why the original is still where it was; empty when all went well.
  const std::string& Remark() const { return remark_; }
  /// Where the original stands now, where it was to be moved and has been.
  const std::string& MovedTo() const { return movedTo_; }

 private:
  bool Begin();
  void Finish();
  bool End(State state, const std::string& error);

  ImportOrder order_;
  State state_ = State::Running;
  VideoInfo source_;
  std::unique_ptr<Conversion> conversion_;
  std::string error_;
  std::string remark_;
  std::string movedTo_;
};

}  // namespace kinalyx
