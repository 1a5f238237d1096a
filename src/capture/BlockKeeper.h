#pragma once

#include <array>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "capture/CaptureSetup.h"
#include "capture/RecordingSaver.h"
#include "capture/VideoNaming.h"
#include "capture/WorkingFiles.h"
#include "library/JobRunner.h"
#include "platform/graph/IGraph.h"

namespace kinalyx {

/// What becomes of blocks.
class IBlockEvents {
 public:
  virtual ~IBlockEvents() = default;
  /// A trigger's block is a video, with two cameras two, in the folder of the student.
  virtual void BlockKept(const SavedRecording& saved, int videos) = 0;
  /// It is not: no picture came, or the folder takes none. What was written is called an unfinished recording now.
  virtual void BlockLost(const std::string& why) = 0;
};

/// Takes blocks from where they were written to the folder of the student, one after the other, each under the next
/// name: what is triggered meanwhile waits its turn. Blocks belong to runs of a graph; of a run that has ended some may
/// still come.
class BlockKeeper {
 public:
  struct Parts {
    Settings& settings;
    CaptureSetup& setup;
    WorkingFiles& files;
    JobRunner& jobs;
    IBlockEvents& events;
    std::string trimProgram;
  };
  /// All of it outlives this.
  explicit BlockKeeper(Parts parts) : parts_(std::move(parts)) {}
  ~BlockKeeper();

  /// A graph begins to run. Its videos get names and the folder as they are chosen now, whoever is chosen later.
  /// @param cameras  1 or 2: that many blocks belong to each trigger
  /// @param second   the only camera is camera 2
  /// @return  number of the run
  int Begin(int cameras, bool second, const VideoNaming& naming);
  void Take(int run, int camera, std::vector<WrittenBlock> blocks);
  /// No more blocks of a run come: a trigger of which one camera's is missing is kept without it.
  void End(int run);
  /// Blocks wait, or are being kept.
  bool Busy() const { return keeping_ || !waiting_.empty(); }

 private:
  struct Run {
    int cameras = 1;
    bool second = false;
    std::shared_ptr<VideoNaming> naming;
  };
  struct Shot {
    Run run;
    std::array<WrittenBlock, 2> blocks;
    std::array<bool, 2> come{};
    std::string fault;  ///< of its cameras, in words
  };
  class Events;

  void Ready(Shot shot);
  void KeepNext();
  void Lose(const Shot& shot, const std::string& why);
  void Over(const SavedRecording& saved);

  Parts parts_;
  int lastRun_ = 0;
  std::map<int, Run> runs_;
  std::map<std::pair<int, int>, Shot> shots_;  ///< by run and number, not complete yet
  std::deque<Shot> waiting_;                   ///< of which there are pictures
  bool keeping_ = false;                       ///< the first of them
  int videos_ = 0;                             ///< of it
  std::shared_ptr<BlockKeeper*> self_ = std::make_shared<BlockKeeper*>(this);
};

}  // namespace kinalyx
