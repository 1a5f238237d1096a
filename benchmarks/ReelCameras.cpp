#include "ReelCameras.h"

#include <fmt/format.h>
#include <gst/app/gstappsrc.h>

#include <QEventLoop>
#include <QPainter>
#include <QTimer>
#include <stdexcept>

#include "platform/graph/TestCamera.h"

namespace kinalyx::bench {
namespace {

constexpr int kPictures = 30;  // that are shown over and over

}  // namespace

std::string Reel::Caps() const {
  return fmt::format("image/jpeg,width={},height={},framerate={}/1", width, height, kReelRate);
}

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

Feeder::Feeder(GstElement* source, const Reel& reel)
    : source_(GST_ELEMENT(gst_object_ref(source))), reel_(reel), thread_([this] { Feed(); }) {}

Feeder::~Feeder() {
  done_ = true;
  thread_.join();
}

void Feeder::Feed() {
  auto next = Clock::now();
  for (std::size_t n = 0; !done_; ++n) {
    // The bytes are shared; only what says when is new.
    GstBuffer* picture = gst_buffer_copy(reel_.pictures[n % reel_.pictures.size()]);
    GST_BUFFER_PTS(picture) = GST_BUFFER_DTS(picture) = GST_CLOCK_TIME_NONE;
    gst_app_src_push_buffer(GST_APP_SRC(source_.get()), picture);
    std::this_thread::sleep_until(next += std::chrono::nanoseconds(1'000'000'000 / kReelRate));
  }
}

ReelCameras::ReelCameras() {
  FoundDevice test;
  test.device.name = "Test Camera";
  test.device.origin = Device::Origin::Test;
  test.device.modes = TestCameraModes();
  Replace({test});
}

GstElement* ReelCameras::MakeCameraSource(const std::string& name, const PictureMode* wanted) const {
  if (name.starts_with("Test")) return DeviceSources::MakeCameraSource("Test Camera", wanted);
  const Reel& reel = name.starts_with("1920") ? ReelOf(1920, 1080) : ReelOf(1280, 720);
  GstElement* source = gst_parse_launch(fmt::format("{} caps={}", kReelSource, reel.Caps()).c_str(), nullptr);
  const std::lock_guard lock(mutex_);
  feeders_.push_back(std::make_unique<Feeder>(source, reel));
  return source;
}

CameraWindow::CameraWindow(std::string_view text) {
  if (const Outcome loaded = graph_.GraphXmlLoad(text); !loaded) throw std::runtime_error(loaded.Why());
}

void CameraWindow::PictureCame(const std::string& label) {
  const LivePicture picture = graph_.GraphFilterByLabel<IRendererFilter>(label)->Latest();
  const QImage image(picture.pixels.get(), picture.width, picture.height, picture.stride, QImage::Format_RGB32);
  QPainter(&shown_).drawImage(0, 0, image);
  const auto now = Clock::now().time_since_epoch() / 1ns;
  delays_.push_back(static_cast<double>(now - picture.takenAt) / 1e6);
  latest_ = picture;
}

void CameraWindow::Open(std::string_view source, std::string_view camera, std::string_view renderer) {
  (void)graph_.GraphSetDevice(source, camera);
  graph_.GraphFilterByLabel<IRendererFilter>(renderer)->WantSize(shown_.width(), shown_.height());
}

void CameraWindow::Show(Clock::duration time) {
  QEventLoop loop;
  QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(time), &loop, &QEventLoop::quit);
  loop.exec();
  if (!fault_.empty()) throw std::runtime_error(fault_);
}

void CameraWindow::Await() {
  while (delays_.empty()) Show(10ms);
  Show(500ms);
  delays_.clear();
}

}  // namespace kinalyx::bench
