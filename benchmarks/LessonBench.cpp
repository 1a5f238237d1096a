#include <fmt/format.h>
#include <gst/app/gstappsrc.h>
#include <sys/resource.h>

#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstring>
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
#include "support/FlashLesson.h"

namespace kinalyx::bench {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kWidth = 1280, kHeight = 800;
constexpr int kPictures = 30;  // that are shown over and over
constexpr auto kTime = 20s;

/// A screen with two videos on it: a pattern that moves in a third of the picture, and stands still in the rest.
const std::vector<GstBuffer*>& Screens() {
  static std::vector<GstBuffer*> screens;
  if (!screens.empty() || !GstBegun()) return screens;
  for (int n = 0; n < kPictures; ++n) {
    GstBuffer* buffer = gst_buffer_new_allocate(nullptr, std::size_t{kWidth} * kHeight * 4, nullptr);
    GstMapInfo map;
    gst_buffer_map(buffer, &map, GST_MAP_WRITE);
    for (int y = 0; y < kHeight; ++y)
      for (int x = 0; x < kWidth; ++x) {
        const bool moves = y > 200 && y < 600 && x % (kWidth / 2) > 100 && x % (kWidth / 2) < 500;
        const double wave = std::sin((x + (moves ? 6 * n : 0)) * 0.05) * std::cos((y + (moves ? 3 * n : 0)) * 0.07);
        const auto grey = static_cast<std::uint8_t>(128 + 100 * wave);
        std::memset(map.data + (std::size_t{kWidth} * static_cast<std::size_t>(y) + static_cast<std::size_t>(x)) * 4,
                    grey, 4);
      }
    gst_buffer_unmap(buffer, &map);
    screens.push_back(buffer);
  }
  return screens;
}

const char* const kScreen =
    "appsrc name=screen is-live=true format=time do-timestamp=true max-buffers=4 leaky-type=upstream "
    "caps=video/x-raw,format=BGRx,width=1280,height=800,framerate=15/1";
const char* const kVoice = "audiotestsrc is-live=true wave=pink-noise volume=0.3 samplesperbuffer=480";

/// Gives a source these pictures, punctually, until it goes.
class Showing {
 public:
  explicit Showing(GstElement* source) : source_(GST_ELEMENT(gst_object_ref(source))), thread_([this] { Show(); }) {}
  ~Showing() {
    done_ = true;
    thread_.join();
  }

 private:
  void Show() {
    auto next = Clock::now();
    for (std::size_t n = 0; !done_; ++n) {
      GstBuffer* picture = gst_buffer_copy(Screens()[n % kPictures]);
      GST_BUFFER_PTS(picture) = GST_BUFFER_DTS(picture) = GST_CLOCK_TIME_NONE;
      gst_app_src_push_buffer(GST_APP_SRC(source_.get()), picture);
      std::this_thread::sleep_until(next += std::chrono::nanoseconds(1'000'000'000 / LessonFile::kRate));
    }
  }

  GstRef<GstElement> source_;
  std::atomic<bool> done_ = false;
  std::thread thread_;
};

class ShownScreen final : public DeviceSources {
 public:
  GstElement* MakeCameraSource(const std::string&, const PictureMode*) const override {
    GstElement* source = gst_parse_launch(kScreen, nullptr);
    const std::lock_guard lock(mutex_);
    showing_ = std::make_unique<Showing>(source);
    return source;
  }
  GstElement* MakeMicrophoneSource(const std::string&) const override {
    return gst_parse_bin_from_description(kVoice, true, nullptr);
  }

 private:
  mutable std::mutex mutex_;
  mutable std::unique_ptr<Showing> showing_;
};

struct Silent final : IGraphEvents {
  void PictureCame(const std::string&) override {}
  void SourceFailed(const std::string&, const std::string& why) override { fault = why; }
  void SinkFailed(const std::string&, const std::string& why) override { fault = why; }
  void EndOfStream() override {}
  std::string fault;
};

double ProcessorSeconds() {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(used.ru_utime) + seconds(used.ru_stime);
}

void Wait(Clock::duration time) {
  QEventLoop loop;
  QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(time), &loop, &QEventLoop::quit);
  loop.exec();
}

double Share(double before) {
  return 100 * (ProcessorSeconds() - before) / std::chrono::duration<double>(kTime).count();
}

/// Percent of one core that a lesson takes.
double RecordLesson() {
  const std::string file = ScratchFolder() + "/lesson.mkv";
  Silent events;
  LiveGraph graph(events, std::make_shared<ShownScreen>(), MakeQtPost());
  if (const Outcome loaded = graph.GraphXmlLoad(MVScreenRecorder); !loaded) throw std::runtime_error(loaded.Why());
  (void)graph.GraphSetDevice("VideoSource", "screen");
  for (const char* label : {"AudioSource", "Audio Trigger"}) (void)graph.GraphSetDevice(label, "microphone");
  (void)graph.GraphSetFileSink("File writer", file);
  (void)graph.GraphRun();
  Wait(1s);
  const double before = ProcessorSeconds();
  Wait(kTime);
  const double share = Share(before);
  (void)graph.GraphStop();
  const RecordingTally tally = graph.GraphFilterByLabel<IWriterFilter>("File writer")->Tally();
  std::filesystem::remove(file);
  if (!events.fault.empty()) throw std::runtime_error(events.fault);
  if (tally.pictures < 20 * LessonFile::kRate) throw std::runtime_error("pictures are missing");
  return share;
}

/// The same by a line for the library's own tool, the level of the microphone included. None of its containers takes
/// such a voice, so that goes to a file as it is.
double RecordBare() {
  const std::string file = ScratchFolder() + "/bare.avi";
  const std::string line = fmt::format(
      "{} ! queue max-size-buffers=4 ! videoconvert ! avenc_msmpeg4v2 bitrate={} gop-size=60 qmin=2 qmax=12 ! queue ! "
      "avimux ! filesink async=false location={} {} ! audioconvert ! audioresample ! "
      "audio/x-raw,format=S16LE,rate=48000,channels=1 ! avenc_adpcm_ms ! queue ! filesink async=false "
      "location={}.adpcm "
      "{} ! audioconvert ! level interval=50000000 ! fakesink sync=false async=false",
      kScreen, kWidth * kHeight * 3, file, kVoice, file, kVoice);
  GError* error = nullptr;
  const GstRef<GstElement> pipeline(GST_ELEMENT(gst_object_ref_sink(gst_parse_launch(line.c_str(), &error))));
  if (error) throw std::runtime_error(error->message);
  gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
  const GstRef<GstElement> source(gst_bin_get_by_name(GST_BIN(pipeline.get()), "screen"));
  auto showing = std::make_unique<Showing>(source.get());
  Wait(1s);
  const double before = ProcessorSeconds();
  Wait(kTime);
  const double share = Share(before);
  showing.reset();
  gst_element_set_state(pipeline.get(), GST_STATE_NULL);
  if (std::filesystem::file_size(file) < 1'000'000) throw std::runtime_error("nothing was written");
  std::filesystem::remove(file);
  std::filesystem::remove(file + ".adpcm");
  return share;
}

/// Milliseconds between a flash and its click in the last minute of ten, at the worst.
double OutOfStep(LessonKind kind, double tooFast) {
  const std::string raw = ScratchFolder() + "/flash.mkv";
  const std::string kept = ScratchFolder() + (kind == LessonKind::Mp4 ? "/flash.mp4" : "/flash.avi");
  const test::FlashLesson lesson{.kind = kind, .tooFast = tooFast};
  if (const Outcome made = lesson.Record(raw); !made) throw std::runtime_error(made.Why());
  if (const Outcome made = test::KeepLesson(raw, kept); !made) throw std::runtime_error(made.Why());
  const std::vector<double> clicks = test::ClicksIn(kept), flashes = test::FlashesIn(kept);
  if (clicks.size() != 60 || flashes.size() != 60) throw std::runtime_error("clicks or flashes are missing");
  double worst = 0;
  for (std::size_t i = 54; i < 60; ++i) worst = std::max(worst, 1000 * std::abs(clicks[i] - flashes[i]));
  std::filesystem::remove(raw);
  std::filesystem::remove(kept);
  return worst;
}

const Register kProcessor({"lesson_cpu", {Target::Of::Ratio, 1.2, 1.0}, [] {
                             if (Screens().empty()) throw std::runtime_error("no library for graphs");
                             const double ours = RecordLesson();
                             return Figure{ours, "%", RecordBare()};
                           }});

const Register kSync({"lesson_sync", {Target::Of::AtMost, 40, 20}, [] {
                        double worst = 0;
                        for (const LessonKind kind : {LessonKind::Avi, LessonKind::Mp4})
                          for (const double tooFast : {-2e-4, 2e-4}) worst = std::max(worst, OutOfStep(kind, tooFast));
                        return Figure{worst, "ms"};
                      }});

}  // namespace
}  // namespace kinalyx::bench
