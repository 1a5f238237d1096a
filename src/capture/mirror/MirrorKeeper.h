#pragma once

#include <deque>
#include <list>
#include <memory>
#include <string>
#include <vector>

#include "capture/RecordingSaver.h"
#include "capture/VideoNaming.h"
#include "capture/WorkingFiles.h"
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
/// folder, one after the other, under the names that the naming gives. Any number of them may be on their way, also of
/// graphs that have been stopped: a slow disk may take a while.
class MirrorKeeper {
 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    VideoNaming& naming;
    const WorkingFiles& files;
    JobRunner& jobs;
    IKeeperEvents& events;
  };
  /// All outlives this.
  explicit MirrorKeeper(Parts parts) : parts_(parts) {}

  /// False, and told, where there is nowhere to keep it, or the graph writes nothing yet. Who is asked to type names
  /// gets one all the same: nobody stands at the desk.
  /// @param second    the name is that of camera 2
  /// @param pictures  at least one
  bool Keep(IBlockRecordingFilter& recorder, bool second, std::vector<PackedPicture> pictures);
  /// Takes what has been written; asks again by itself as long as something is awaited.
  void TakeWritten();
  /// Something is being written or taken to its folder.
  bool Busy() const;

 private:
  class SaveEvents;

  /// What becomes of the blocks to come of a run of a graph.
  struct Run {
    std::shared_ptr<IBlockWriter> writer;
    std::deque<SaveRequest> awaited;
  };

  std::string NextPath(bool second);
  void Take(Run& run);
  void Poll();
  void Lose(const SaveRequest& request, const std::string& why);
  void SaveNext();
  void Saved(const SavedRecording& saved);

  Parts parts_;
  std::list<Run> runs_;
  std::deque<SaveRequest> waiting_;  ///< the first one is being saved
  bool saving_ = false;
  HostTimer poll_;
};

}  // namespace kinalyx
