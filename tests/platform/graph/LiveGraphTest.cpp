#include "platform/graph/LiveGraph.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <chrono>
#include <cmath>
#include <functional>
#include <map>
#include <thread>

#include "capture/templates/CaptureTemplates.h"
#include "platform/graph/DeviceSources.h"
#include "platform/graph/TestCamera.h"
#include "platform/graph/TestPicture.h"
#include "platform/media/VideoFile.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// Cameras as the library for graphs describes them, and the Test Camera.
class PlayedCameras final : public DeviceSources {
 public:
  PlayedCameras() {
    Device test;
    test.name = "Test Camera";
    test.origin = Device::Origin::Test;
    test.modes = TestCameraModes();
    Replace({{test, nullptr}});
  }

  GstElement* MakeCameraSource(const std::string& name, const PictureMode* wanted) const override {
    if (name == "hangs") {
      while (!freed) std::this_thread::sleep_for(10ms);
      return nullptr;
    }
    const auto found = played.find(name);
    if (found == played.end()) return DeviceSources::MakeCameraSource(name, wanted);
    if (!GstBegun()) return nullptr;
    return gst_parse_bin_from_description(found->second.c_str(), true, nullptr);
  }

  std::map<std::string, std::string> played;
  std::atomic<bool> freed = false;
};

struct Told final : IGraphEvents {
  void PictureCame(const std::string& label) override { ++pictures[label]; }
  void SourceFailed(const std::string& label, const std::string& why) override { failed[label] = why; }
  void SinkFailed(const std::string& label, const std::string& why) override { sinks[label] = why; }
  void EndOfStream() override { ended = true; }

  std::map<std::string, int> pictures;
  std::map<std::string, std::string> failed;
  std::map<std::string, std::string> sinks;
  bool ended = false;
};

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

TEST_F(LiveGraphs, OneCameraIsSeenAndWrittenFromClickToClick) {
  ASSERT_TRUE(graph.GraphXmlLoad(MVOneCamSSAN));
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource", "Test Camera"));
  ASSERT_TRUE(graph.GraphSetVideoFormat("VideoSource", 640, 480, "MJPG"));
  Of<IRendererFilter>("Video Renderer").WantSize(320, 320);
  ASSERT_TRUE(graph.GraphRun());
  ASSERT_TRUE(Comes([&] { return told.pictures["Video Renderer"] > 0; }));
  const LivePicture seen = Seen();
  ASSERT_TRUE(seen.pixels);
  EXPECT_EQ(std::pair(seen.width, seen.height), std::pair(320, 240));

  for (const char* name : {"first.avi", "second.avi"}) {
    SCOPED_TRACE(name);
    ASSERT_TRUE(graph.GraphSetFileSink("FileWriter", folder.Path(name)));
    Gate().Arm(true);
    EXPECT_TRUE(Comes([&] { return Tally().pictures >= 20; }));
    Gate().Arm(false);
    EXPECT_TRUE(Comes([&] { return !Tally().open; }));
    const RecordingTally tally = Tally();
    EXPECT_EQ(tally.lost, 0);
    EXPECT_NEAR(tally.rate, 30, 0.05);
    const auto video = VideoFile::Open(folder.Path(name));
    ASSERT_TRUE(video);
  }
  EXPECT_TRUE(graph.GraphStop());
  EXPECT_TRUE(told.failed.empty());
  EXPECT_TRUE(told.sinks.empty());
}

}  // namespace
}  // namespace kinalyx::test
