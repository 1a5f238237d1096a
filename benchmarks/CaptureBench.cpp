#include <fmt/format.h>
#include <sys/resource.h>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "Bench.h"
#include "ReelCameras.h"
#include "capture/templates/CaptureTemplates.h"

namespace kinalyx::bench {
namespace {

double ProcessorSeconds() {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(used.ru_utime) + seconds(used.ru_stime);
}

struct Recorded {
  double share = 0;    ///< of the pictures that reached the files
  double seconds = 0;  ///< of the processor
};

/// Two cameras are seen and written for so long.
Recorded RecordTwo(Clock::duration time) {
  const char* const kSources[] = {"VideoSource", "VideoSource 2"};
  const char* const kRenderers[] = {"Video Renderer", "Video Renderer 2"};
  const char* const kGates[] = {"MV Trigger Source", "MV Trigger Source 2"};
  const char* const kWriters[] = {"FileWriter", "FileWriter 2"};
  (void)ReelOf(1920, 1080);
  CameraWindow window(MVTwoCamSS);
  std::vector<std::string> files;
  for (int i = 0; i < 2; ++i) {
    window.Open(kSources[i], fmt::format("1920x1080 {}", i), kRenderers[i]);
    files.push_back(fmt::format("{}/live{}.avi", ScratchFolder(), i));
    (void)window.Graph().GraphSetFileSink(kWriters[i], files.back());
  }
  (void)window.Graph().GraphRun();
  window.Await();
  Recorded recorded;
  const double before = ProcessorSeconds();
  for (const char* gate : kGates) window.Graph().GraphFilterByLabel<ITriggerSourceFilter>(gate)->Arm(true);
  window.Show(time);
  recorded.seconds = ProcessorSeconds() - before;
  (void)window.Graph().GraphStop();
  double pictures = 0, given = 0;
  for (const char* writer : kWriters) {
    const RecordingTally tally = window.Graph().GraphFilterByLabel<IWriterFilter>(writer)->Tally();
    pictures += static_cast<double>(tally.pictures);
    given += std::round(static_cast<double>(tally.lastNs - tally.firstNs) * kReelRate / 1e9) + 1;
  }
  if (given < kReelRate) throw std::runtime_error("nothing was written");
  recorded.share = pictures / given;
  for (const std::string& file : files) std::filesystem::remove(file);
  return recorded;
}

/// The same by a line for the library's own tool.
double RecordTwoBare(Clock::duration time) {
  const Reel& reel = ReelOf(1920, 1080);
  std::string line;
  for (int i = 0; i < 2; ++i) {
    line += fmt::format(
        "{0} name=source{1} caps={2} ! tee name=t{1} t{1}. ! queue ! image/jpeg ! avimux ! filesink async=false "
        "location={3}/bare{1}.avi "
        "t{1}. ! queue leaky=downstream max-size-buffers=1 ! jpegdec ! videoscale ! videoconvert ! "
        "video/x-raw,format=BGRx,width=940,height=530 ! fakesink async=false sync=false ",
        kReelSource, i, reel.Caps(), ScratchFolder());
  }
  GError* error = nullptr;
  const GstRef<GstElement> pipeline(GST_ELEMENT(gst_object_ref_sink(gst_parse_launch(line.c_str(), &error))));
  if (error) throw std::runtime_error(error->message);
  gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
  std::vector<std::unique_ptr<Feeder>> feeders;
  for (const char* name : {"source0", "source1"}) {
    const GstRef<GstElement> source(gst_bin_get_by_name(GST_BIN(pipeline.get()), name));
    feeders.push_back(std::make_unique<Feeder>(source.get(), reel));
  }
  std::this_thread::sleep_for(500ms);
  const double before = ProcessorSeconds();
  std::this_thread::sleep_for(time);
  const double used = ProcessorSeconds() - before;
  if (std::filesystem::file_size(ScratchFolder() + "/bare1.avi") < 1'000'000)
    throw std::runtime_error("nothing was written");
  feeders.clear();
  gst_element_set_state(pipeline.get(), GST_STATE_NULL);
  for (int i = 0; i < 2; ++i) std::filesystem::remove(fmt::format("{}/bare{}.avi", ScratchFolder(), i));
  return used;
}

const Register kTwo({"capture_two_1080p60", {Target::Of::AtLeast, 0.999, 1.0}, [] {
                       return Figure{RecordTwo(60s).share, "part"};
                     }});

const Register kProcessor({"capture_cpu", {Target::Of::Ratio, 1.3, 1.0}, [] {
                             return Figure{RecordTwo(20s).seconds, "s", RecordTwoBare(20s)};
                           }});

const Register kLatency({"preview_latency", {Target::Of::AtMost, 60, 30}, [] {
                           CameraWindow window(MVOneCamSSAN);
                           window.Open("VideoSource", "1280x720", "Video Renderer");
                           (void)window.Graph().GraphRun();
                           window.Await();
                           window.Show(10s);
                           return Figure{Percentile(window.Delays(), 0.95), "ms"};
                         }});

const Register kStart({"start_capture", {Target::Of::AtMost, 150, 40}, [] {
                         CameraWindow window(MVOneCamSSAN);
                         window.Open("VideoSource", "1280x720", "Video Renderer");
                         (void)window.Graph().GraphRun();
                         window.Await();
                         std::vector<double> times;
                         for (int i = 0; i < 11; ++i) {
                           const std::string file = fmt::format("{}/start{}.avi", ScratchFolder(), i);
                           auto* gate = window.Graph().GraphFilterByLabel<ITriggerSourceFilter>("MV Trigger Source");
                           auto* writer = window.Graph().GraphFilterByLabel<IWriterFilter>("FileWriter");
                           times.push_back(MeasureMs([&] {
                             (void)window.Graph().GraphSetFileSink("FileWriter", file);
                             gate->Arm(true);
                             while (writer->Tally().pictures == 0) std::this_thread::sleep_for(500us);
                           }));
                           gate->Arm(false);
                           window.Show(200ms);
                           std::filesystem::remove(file);
                         }
                         return Figure{Percentile(times, 0.95), "ms"};
                       }});

}  // namespace
}  // namespace kinalyx::bench
