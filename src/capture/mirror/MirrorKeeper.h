#pragma once

#include <array>
#include <deque>
#include <string>
#include <vector>

#include "capture/RecordingSaver.h"
#include "capture/VideoNaming.h"
#include "library/JobRunner.h"
#include "platform/graph/IGraph.h"
#include "platform/host/Host.h"

namespace kinalyx {

class Settings;

/// What is told of videos that are kept.
class IKeeperEvents {
 public:
  virtual ~IKeeperEvents() = default;
  /// @param words  for the window: "Kept: (003) swing", or why it was not
  /// @param good   it was
  virtual void KeepTold(const std::string& words, bool good) = 0;
};

/// Makes of pictures that a graph remembers videos of the student: the graph writes them, then they are taken to the
/// folder, one after the other, under the names that the naming gives. Any number of them may be on their way.
class MirrorKeeper {
 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    VideoNaming& naming;
    JobRunner& jobs;
    IKeeperEvents& events;
  };
  /// All outlives this.
  explicit MirrorKeeper(Parts parts) : parts_(parts) {}

  /// False, with a message, where the next video has no name yet.
  /// @param camera    0 or 1, whose recorder it is
  /// @param second    the name is that of camera 2
  /// @param pictures  at least one
  bool Keep(IBlockRecordingFilter& recorder, int camera, bool second, std::vector<PackedPicture> pictures);
  /// Takes what the recorder of a camera has written.
  void TakeWritten(IBlockRecordingFilter& recorder, int camera);
  /// Nothing comes any more of what a recorder has not written yet.
  void GiveUp(int camera);
  /// Something is being written or taken to its folder.
  bool Busy() const;

 private:
  class SaveEvents;

  bool RefuseUnlessNamed(bool second);
  void SaveNext();
  void Saved(const SavedRecording& saved);

  Parts parts_;
  std::array<std::deque<SaveRequest>, 2> awaited_;  ///< what the blocks to come become, by camera
  std::deque<SaveRequest> waiting_;
  bool saving_ = false;
};

}  // namespace kinalyx
