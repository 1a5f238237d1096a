#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/graph/FileLane.h"
#include "platform/graph/GraphNews.h"
#include "platform/graph/PictureRing.h"

namespace kinalyx {

/// The way of one camera's pictures into a ring, and out of it to the file of each block: a thread of its own writes,
/// one block after the other, while the ring goes on. A disk that is behind loses pictures only once the bound of the
/// ring is reached, and the file counts them. A thread that hangs in its disk is left to itself.
class BlockLane final : public IPictureLane, public IBlockWriter {
 public:
  /// A stretch of time of which a file is to be made.
  struct Window {
    int shot = 0;
    std::int64_t triggerNs = 0;
    std::int64_t fromNs = 0;  ///< both ends counted
    std::int64_t toNs = 0;
  };

  /// @param label  of the block recorder, for the news
  BlockLane(std::string label, GraphNews news, std::shared_ptr<PictureRing> ring);
  ~BlockLane() override;
  BlockLane(const BlockLane&) = delete;
  BlockLane& operator=(const BlockLane&) = delete;

  /// The path beside which blocks are written, see BlockPath.
  void Open(const std::string& path) override;
  /// The windows end there at the latest.
  void Close(std::int64_t lastNs) override;
  void CloseNow() override;
  bool WaitClosed(std::chrono::steady_clock::time_point until) const override;
  /// Of the block under way, or of the last one.
  RecordingTally Tally() const override;
  void Push(PackedPicture picture) override;

  void Write(const Window& window);
  void Write(int shot, std::vector<PackedPicture> pictures);
  bool Writing() const override;
  std::vector<WrittenBlock> TakeWritten() override;

 private:
  struct Desk;
  std::shared_ptr<Desk> desk_;  ///< shared with the thread, which may outlive this
};

}  // namespace kinalyx
