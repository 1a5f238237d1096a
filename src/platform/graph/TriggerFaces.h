#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/graph/BlockLane.h"
#include "platform/graph/GraphNews.h"
#include "platform/graph/IGraph.h"
#include "platform/graph/ImpactDetector.h"
#include "platform/graph/PictureRing.h"

namespace kinalyx {

// The faces of triggers and of what they have written. Each lives as long as its graph is loaded, and is shared with
// the threads of its runs.

/// A block recorder.
class BlockFace final : public IBlockRecordingFilter {
 public:
  BlockFace();

  void BlockRecordingSetStart(double seconds) override;
  void BlockRecordingSetEnd(double seconds) override;
  double EndOffset() const override;
  std::shared_ptr<IBlockWriter> Blocks() const override;
  void Remember(double seconds) override;
  void SetBound(std::int64_t bytes) override;
  RingTally Ring() const override;
  std::optional<PackedPicture> PictureAt(std::int64_t ns) const override;
  std::vector<PackedPicture> Pictures(std::int64_t fromNs, std::int64_t toNs) const override;
  void WritePictures(std::vector<PackedPicture> pictures) override;

  /// The ring begins anew, and its blocks go over this lane.
  std::shared_ptr<BlockLane> MakeLane(const std::string& label, const GraphNews& news);
  /// A trigger has fired. Any thread.
  void Write(int shot, std::int64_t triggerNs);

 private:
  void FitReach();
  std::shared_ptr<BlockLane> Lane() const;

  const std::shared_ptr<PictureRing> ring_;
  mutable std::mutex mutex_;
  std::shared_ptr<BlockLane> lane_;  ///< of the run, also when it has ended
  double startSeconds_ = -1;
  double endSeconds_ = 1;
  double remembered_ = 0;  ///< seconds
  int written_ = 0;        ///< without a trigger
};

/// Leads one trigger to all block recorders behind it, at one instant.
class TriggerLine {
 public:
  explicit TriggerLine(std::string label) : label_(std::move(label)) {}

  /// Before the first run.
  void Connect(std::shared_ptr<BlockFace> block);
  void Begin(const GraphNews& news);
  void End();
  /// Any thread.
  /// @param ns  of CLOCK_MONOTONIC
  /// @return  false without a run, and while the window of the trigger before is not over
  bool Fire(std::int64_t ns);

 private:
  const std::string label_;
  std::mutex mutex_;
  std::vector<std::shared_ptr<BlockFace>> blocks_;
  std::optional<GraphNews> news_;
  int shots_ = 0;
  std::int64_t busyUntilNs_ = 0;
};

class SwitchFace final : public ISwitchFilter {
 public:
  explicit SwitchFace(std::shared_ptr<TriggerLine> line) : line_(std::move(line)) {}
  bool Fire(std::int64_t ns) override;

 private:
  std::shared_ptr<TriggerLine> line_;
};

class AudioTriggerFace final : public IAudioTriggerFilter {
 public:
  explicit AudioTriggerFace(std::shared_ptr<TriggerLine> line) : line_(std::move(line)) {}
  double Level() override;
  void SetThreshold(double level) override;
  void SetGain(double gain) override;

  /// @param samples  of one channel
  /// @param ns       when the first was taken, nanoseconds of CLOCK_MONOTONIC
  void Hear(std::span<const float> samples, int rate, std::int64_t ns);

 private:
  std::shared_ptr<TriggerLine> line_;
  std::mutex mutex_;
  ImpactDetector detector_;
};

}  // namespace kinalyx
