#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "platform/graph/FileLane.h"
#include "platform/graph/GraphNews.h"
#include "platform/graph/IGraph.h"

namespace kinalyx {

// The faces of filters. Each lives as long as its graph is loaded, and is shared with the threads of its runs, some of
// which may outlive it.

/// Where a camera's pictures are seen.
class RendererFace final : public IRendererFilter {
 public:
  struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
  };

  explicit RendererFace(std::string label) : label_(std::move(label)) {}

  LivePicture Latest() override;
  void WantSize(int width, int height) override;

  // For the streaming threads.
  Size Wanted() const;
  /// A picture has been told and not been asked for yet: another one would only be passed over.
  bool Full() const;
  void Show(LivePicture picture, const GraphNews& news);
  /// For who watches, again and again while the camera gives pictures: true once when nothing has been shown for a
  /// while that could have been.
  bool Misses();

 private:
  const std::string label_;
  mutable std::mutex mutex_;
  LivePicture latest_;
  Size wanted_;
  bool told_ = false;
  bool shown_ = false;   ///< since it was watched last
  bool missed_ = false;  ///< and told
  std::int64_t watchedNs_ = 0;
  std::int64_t missingNs_ = 0;  ///< since when
};

/// The file that is written.
class WriterFace final : public IWriterFilter {
 public:
  RecordingTally Tally() override;
  void Pause(bool on) override;

  void SetPath(const std::string& path);
  /// Begins with what is pushed into the lane from now on.
  void Open();
  void Close(std::int64_t lastNs);
  void CloseNow();
  /// The way to the files in the run that begins; null when it has ended.
  void SetLane(std::shared_ptr<IFileLane> lane);
  std::shared_ptr<IFileLane> Lane() const;

 private:
  mutable std::mutex mutex_;
  std::string path_;
  std::shared_ptr<IFileLane> lane_;
  RecordingTally last_;  ///< of the lane before
};

/// From when on the gates of one graph that are armed let pictures through.
class GateMoment {
 public:
  /// @return  the moment, nanoseconds of CLOCK_MONOTONIC: that of the gate that was armed first
  std::int64_t Join();
  void Leave();

 private:
  std::mutex mutex_;
  int armed_ = 0;
  std::int64_t since_ = 0;
};

class GateFace final : public ITriggerSourceFilter {
 public:
  /// @param writer  the file behind the gate; null for none
  GateFace(std::shared_ptr<GateMoment> moment, std::shared_ptr<WriterFace> writer)
      : moment_(std::move(moment)), writer_(std::move(writer)) {}

  void Arm(bool on) override;

  /// Whether a picture of that time may pass. In a streaming thread.
  bool LetsThrough(std::int64_t ns);
  /// The run has begun: a gate that was armed before opens its file.
  void Begin();
  std::shared_ptr<WriterFace> Writer() const { return writer_; }

 private:
  std::shared_ptr<GateMoment> moment_;
  std::shared_ptr<WriterFace> writer_;
  std::mutex mutex_;
  bool armed_ = false;
  std::int64_t sinceNs_ = 0;
  std::int64_t lastNs_ = std::numeric_limits<std::int64_t>::min();  ///< of the last picture that passed
};

}  // namespace kinalyx
