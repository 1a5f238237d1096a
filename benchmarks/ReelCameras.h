#pragma once

#include <gst/gst.h>

#include <QImage>
#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/graph/DeviceSources.h"
#include "platform/graph/LiveGraph.h"

namespace kinalyx::bench {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kReelRate = 60;
/// How the library's own tool makes a source that is fed.
constexpr const char* kReelSource =
    "appsrc is-live=true format=time do-timestamp=true max-buffers=4 leaky-type=upstream";

/// The pictures of a camera that compresses, made once.
struct Reel {
  int width = 0;
  int height = 0;
  std::vector<GstBuffer*> pictures;  ///< for the whole run of the program

  std::string Caps() const;
};

const Reel& ReelOf(int width, int height);

/// Gives a source the pictures of a reel, punctually, until it goes.
class Feeder {
 public:
  Feeder(GstElement* source, const Reel& reel);
  ~Feeder();

 private:
  void Feed();

  GstRef<GstElement> source_;
  const Reel& reel_;
  std::atomic<bool> done_ = false;
  std::thread thread_;
};

/// Cameras "1920x1080" and the like, and the Test Camera.
class ReelCameras final : public DeviceSources {
 public:
  ReelCameras();
  GstElement* MakeCameraSource(const std::string& name, const PictureMode* wanted) const override;

 private:
  mutable std::mutex mutex_;
  mutable std::vector<std::unique_ptr<Feeder>> feeders_;
};

/// A window that shows what cameras give.
class CameraWindow final : public IGraphEvents {
 public:
  explicit CameraWindow(std::string_view text);

  void PictureCame(const std::string& label) override;
  void SourceFailed(const std::string&, const std::string& why) override { fault_ = why; }
  void SinkFailed(const std::string&, const std::string& why) override { fault_ = why; }
  void EndOfStream() override {}

  void Open(std::string_view source, std::string_view camera, std::string_view renderer);
  void Show(Clock::duration time);
  /// Shows until something has been seen.
  void Await();
  IGraph& Graph() { return graph_; }
  /// Milliseconds from the camera to here.
  const std::vector<double>& Delays() const { return delays_; }
  const LivePicture& Latest() const { return latest_; }

 private:
  std::string fault_;
  std::vector<double> delays_;
  LivePicture latest_;
  QImage shown_{940, 530, QImage::Format_RGB32};
  LiveGraph graph_{*this, std::make_shared<ReelCameras>(), MakeQtPost()};
};

}  // namespace kinalyx::bench
