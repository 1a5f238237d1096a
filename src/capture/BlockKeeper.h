#pragma once

#include <array>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "capture/CaptureSetup.h"
#include "capture/RecordingSaver.h"
#include "capture/VideoNaming.h"
#include "library/JobRunner.h"
#include "platform/graph/IGraph.h"

namespace kinalyx {

/// What becomes of blocks.
class IBlockEvents {
 public:
  virtual ~IBlockEvents() = default;
  /// A trigger's block is a video, with two cameras two, in the folder of the student.
  virtual void BlockKept(const SavedRecording& saved, int videos) = 0;
  /// It is not: no picture came, or the folder takes none. What was written stays where it is, and is offered as an
  /// unfinished recording.
  virtual void BlockLost(const std::string& why) = 0;
};

/// Takes blocks from where they were written to the folder of the student, one after the other, each under the next
/// name: what is triggered meanwhile waits its turn.
class BlockKeeper {
 public:
  struct Parts {
    Settings& settings;
    CaptureSetup& setup;
    VideoNaming& naming;
    JobRunner& jobs;
    IBlockEvents& events;
    std::string trimProgram;
  };
  /// All of it outlives this.
  explicit BlockKeeper(Parts parts) : parts_(std::move(parts)) {}
  ~BlockKeeper();

  /// A graph begins to run.
  /// @param cameras  1 or 2: that many blocks belong to each trigger
  /// @param second   the only camera is camera 2
  void Begin(int cameras, bool second);
  void Take(int camera, std::vector<WrittenBlock> blocks);
  /// The graph has been stopped: a trigger of which one camera's block is missing is kept without it.
  void End();
  /// Blocks wait, or are being kept.
  bool Busy() const { return keeping_ || !waiting_.empty(); }

 private:
  struct Shot {
    std::array<WrittenBlock, 2> blocks;
    std::array<bool, 2> come{};
    bool second = false;
  };
  class Events;

  void Ready(const Shot& shot);
  void KeepNext();
  void Over(const SavedRecording& saved);

  Parts parts_;
  int cameras_ = 1;
  bool second_ = false;
  std::map<int, Shot> shots_;  ///< not complete yet
  std::deque<Shot> waiting_;   ///< of which there are pictures
  bool keeping_ = false;       ///< the first of them
  int videos_ = 0;             ///< of it
  std::shared_ptr<BlockKeeper*> self_ = std::make_shared<BlockKeeper*>(this);
};

}  // namespace kinalyx
