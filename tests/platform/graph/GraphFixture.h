#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <atomic>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <thread>

#include "platform/graph/DeviceSources.h"
#include "platform/graph/LiveGraph.h"
#include "platform/graph/TestCamera.h"
#include "platform/graph/TestPicture.h"
#include "platform/media/RecordingFile.h"
#include "platform/media/VideoFile.h"
#include "support/TempFolder.h"
#include "support/TestVideos.h"

namespace kinalyx::test {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// Cameras as the library for graphs describes them, and the Test Camera.
class PlayedCameras final : public DeviceSources {
 public:
  PlayedCameras() {
    FoundDevice test;
    test.device.name = "Test Camera";
    test.device.origin = Device::Origin::Test;
    test.device.modes = TestCameraModes();
    Replace({test});
  }

  GstElement* MakeCameraSource(const std::string& name, const PictureMode* wanted) const override {
    if (name == "hangs") {
      ++hanging;
      while (!freed) std::this_thread::sleep_for(10ms);
      return nullptr;
    }
    const auto found = played.find(name);
    if (found == played.end()) return DeviceSources::MakeCameraSource(name, wanted);
    if (!GstBegun()) return nullptr;
    return gst_parse_bin_from_description(found->second.c_str(), true, nullptr);
  }

  GstElement* MakeMicrophoneSource(const std::string&) const override {
    return gst_parse_bin_from_description(microphone.c_str(), true, nullptr);
  }

  std::map<std::string, std::string> played;
  std::string microphone = "audiotestsrc is-live=true volume=0.5";
  std::atomic<bool> freed = false;
  mutable std::atomic<int> hanging = 0;
};

struct Told final : IGraphEvents {
  void PictureCame(const std::string& label) override { ++pictures[label]; }
  void SourceFailed(const std::string& label, const std::string& why) override { failed[label] = why; }
  void SinkFailed(const std::string& label, const std::string& why) override { sinks[label] = why; }
  void PreviewFailed(const std::string& label) override { ++dark[label]; }
  void TriggerFired(const std::string&, int shot, std::int64_t ns) override { fired[shot] = ns; }
  void EndOfStream() override { ended = true; }

  std::map<std::string, int> pictures;
  std::map<std::string, std::string> failed;
  std::map<std::string, std::string> sinks;
  std::map<std::string, int> dark;
  std::map<int, std::int64_t> fired;
  bool ended = false;
};

/// How many pictures of the Test Camera a file has; -1 where their numbers do not follow each other.
inline std::int64_t PicturesInARow(const std::string& path) {
  const auto video = OpenedVideo(path);
  std::optional<int> before;
  for (int n = 0; n < video->Info().frameCount; ++n) {
    const FrameRows rows = video->Frame(n, 32);
    const std::uint8_t* top = rows.bits + static_cast<std::ptrdiff_t>(rows.height - 1) * rows.rowBytes;
    const auto number = ReadFrameNumber(top, rows.width, rows.height, -rows.rowBytes);
    if (!number || (before && *number != *before + 1)) return -1;
    before = *number;
  }
  return video->Info().frameCount;
}

class LiveGraphs : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    static int count = 1;
    static char name[] = "test";
    static char* names[] = {name, nullptr};
    if (!QCoreApplication::instance()) static QCoreApplication application(count, names);
  }

  /// Turns the event loop until something is so, as long as a slow machine may need.
  bool Comes(const std::function<bool()>& what) {
    for (const auto until = Clock::now() + 20s; Clock::now() < until; std::this_thread::sleep_for(2ms)) {
      QCoreApplication::processEvents();
      if (what()) return true;
    }
    return false;
  }
  template <typename Face>
  Face& Of(std::string_view label) {
    return *graph.GraphFilterByLabel<Face>(label);
  }
  ITriggerSourceFilter& Gate(std::string_view label = "MV Trigger Source") { return Of<ITriggerSourceFilter>(label); }
  RecordingTally Tally(std::string_view label = "FileWriter") { return Of<IWriterFilter>(label).Tally(); }
  LivePicture Seen(std::string_view label = "Video Renderer") { return Of<IRendererFilter>(label).Latest(); }

  TempFolder folder;
  Told told;
  std::shared_ptr<PlayedCameras> cameras = std::make_shared<PlayedCameras>();
  LiveGraph graph{told, cameras, MakeQtPost()};
};

}  // namespace kinalyx::test
