#include <fmt/format.h>
#include <gst/app/gstappsrc.h>
#include <sys/resource.h>

#include <QEventLoop>
#include <QImage>
#include <QPainter>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "Bench.h"
#include "capture/templates/CaptureTemplates.h"
#include "platform/graph/DeviceSources.h"
#include "platform/graph/LiveGraph.h"

namespace kinalyx::bench {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kRate = 60;
constexpr int kPictures = 30;  // that are shown over and over

/// The pictures of a camera that compresses, made once.
struct Reel {
  int width = 0;
  int height = 0;
  std::vector<GstBuffer*> pictures;  ///< for the whole run of the program

  std::string Caps() const { return fmt::format("image/jpeg,width={},height={},framerate={}/1", width, height, kRate); }
};

const Reel& ReelOf(int width, int height) {
  static std::vector<std::unique_ptr<Reel>> reels;
  for (const auto& reel : reels)
    if (reel->width == width && reel->height == height) return *reel;
  if (!GstBegun()) throw std::runtime_error("no library for graphs");
  auto reel = std::make_unique<Reel>();
  reel->width = width;
  reel->height = height;
  // About as much in a picture as a lawn gives.
  const std::string description = fmt::format(
      "videotestsrc num-buffers={} pattern=zone-plate kx2=12 ky2=8 kt=1 ! video/x-raw,format=I420,width={},height={} ! "
      "jpegenc quality=85 ! appsink name=end sync=false",
      kPictures, width, height);
  const GstRef<GstElement> pipeline(GST_ELEMENT(gst_object_ref_sink(gst_parse_launch(description.c_str(), nullptr))));
  const GstRef<GstElement> end(gst_bin_get_by_name(GST_BIN(pipeline.get()), "end"));
  gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
  GstSample* sample = nullptr;
  for (g_signal_emit_by_name(end.get(), "pull-sample", &sample); sample;
       g_signal_emit_by_name(end.get(), "pull-sample", &sample)) {
    reel->pictures.push_back(gst_buffer_copy_deep(gst_sample_get_buffer(sample)));
    gst_sample_unref(sample);
  }
  gst_element_set_state(pipeline.get(), GST_STATE_NULL);
  if (reel->pictures.empty()) throw std::runtime_error("no pictures could be made");
  return *reels.emplace_back(std::move(reel));
}

/// Gives a source the pictures of a reel, punctually, until it goes.
class Feeder {
 public:
  Feeder(GstElement* source, const Reel& reel)
      : source_(GST_ELEMENT(gst_object_ref(source))), reel_(reel), thread_([this] { Feed(); }) {}
  ~Feeder() {
    done_ = true;
    thread_.join();
  }

 private:
  void Feed() {
    auto next = Clock::now();
    for (std::size_t n = 0; !done_; ++n) {
      // The bytes are shared; only what says when is new.
      GstBuffer* picture = gst_buffer_copy(reel_.pictures[n % reel_.pictures.size()]);
      GST_BUFFER_PTS(picture) = GST_BUFFER_DTS(picture) = GST_CLOCK_TIME_NONE;
      gst_app_src_push_buffer(GST_APP_SRC(source_.get()), picture);
      std::this_thread::sleep_until(next += std::chrono::nanoseconds(1'000'000'000 / kRate));
    }
  }

  GstRef<GstElement> source_;
  const Reel& reel_;
  std::atomic<bool> done_ = false;
  std::thread thread_;
};

constexpr const char* kSource = "appsrc is-live=true format=time do-timestamp=true max-buffers=4 leaky-type=upstream";

/// Cameras "1920x1080" and the like.
class Cameras final : public DeviceSources {
 public:
  GstElement* MakeCameraSource(const std::string& name, const PictureMode*) const override {
    const Reel& reel = name.starts_with("1920") ? ReelOf(1920, 1080) : ReelOf(1280, 720);
    GstElement* source = gst_parse_launch(fmt::format("{} caps={}", kSource, reel.Caps()).c_str(), nullptr);
    const std::lock_guard lock(mutex_);
    feeders_.push_back(std::make_unique<Feeder>(source, reel));
    return source;
  }

 private:
  mutable std::mutex mutex_;
  mutable std::vector<std::unique_ptr<Feeder>> feeders_;
};

/// A window that shows what comes.
class Window final : public IGraphEvents {
 public:
  explicit Window(std::string_view text) {
    if (const Outcome loaded = graph_.GraphXmlLoad(text); !loaded) throw std::runtime_error(loaded.Why());
  }

  void PictureCame(const std::string& label) override {
    const LivePicture picture = graph_.GraphFilterByLabel<IRendererFilter>(label)->Latest();
    const QImage image(picture.pixels.get(), picture.width, picture.height, picture.stride, QImage::Format_RGB32);
    QPainter(&shown_).drawImage(0, 0, image);
    const auto now = Clock::now().time_since_epoch() / 1ns;
    delays_.push_back(static_cast<double>(now - picture.takenAt) / 1e6);
  }
  void SourceFailed(const std::string&, const std::string& why) override { fault_ = why; }
  void SinkFailed(const std::string&, const std::string& why) override { fault_ = why; }
  void EndOfStream() override {}

  void Open(std::string_view source, std::string_view camera, std::string_view renderer) {
    (void)graph_.GraphSetDevice(source, camera);
    graph_.GraphFilterByLabel<IRendererFilter>(renderer)->WantSize(shown_.width(), shown_.height());
  }
  void Show(Clock::duration time) {
    QEventLoop loop;
    QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(time), &loop, &QEventLoop::quit);
    loop.exec();
    if (!fault_.empty()) throw std::runtime_error(fault_);
  }
  /// Shows until something has been seen.
  void Await() {
    while (delays_.empty()) Show(10ms);
    Show(500ms);
    delays_.clear();
  }
  IGraph& Graph() { return graph_; }
  const std::vector<double>& Delays() const { return delays_; }

 private:
  std::string fault_;
  std::vector<double> delays_;
  QImage shown_{940, 530, QImage::Format_RGB32};
  LiveGraph graph_{*this, std::make_shared<Cameras>(), MakeQtPost()};
};

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
  Window window(MVTwoCamSS);
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
    given += std::round(static_cast<double>(tally.lastNs - tally.firstNs) * kRate / 1e9) + 1;
  }
  if (given < kRate) throw std::runtime_error("nothing was written");
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
        kSource, i, reel.Caps(), ScratchFolder());
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
                           Window window(MVOneCamSSAN);
                           window.Open("VideoSource", "1280x720", "Video Renderer");
                           (void)window.Graph().GraphRun();
                           window.Await();
                           window.Show(10s);
                           return Figure{Percentile(window.Delays(), 0.95), "ms"};
                         }});

const Register kStart({"start_capture", {Target::Of::AtMost, 150, 40}, [] {
                         Window window(MVOneCamSSAN);
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
