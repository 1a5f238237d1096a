#include <QEventLoop>
#include <QImage>
#include <QPainter>
#include <QTimer>
#include <array>
#include <chrono>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <vector>

#include "Bench.h"
#include "core/Settings.h"
#include "capture/mirror/MirrorSession.h"
#include "platform/files/Log.h"
#include "platform/graph/DeviceSources.h"
#include "platform/graph/LiveGraph.h"
#include "platform/graph/TestCamera.h"
#include "platform/graph/TestPicture.h"
#include "platform/host/QtHost.h"

namespace kinalyx::bench {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kPaneWidth = 960, kPaneHeight = 540;  // a quarter of a large screen
constexpr double kNs = 1e9;

std::int64_t Now() { return Clock::now().time_since_epoch() / 1ns; }

/// The Test Camera alone.
class OneCamera final : public IDevices {
 public:
  OneCamera() {
    FoundDevice found;
    found.device.name = "Test Camera";
    found.device.origin = Device::Origin::Test;
    found.device.modes = TestCameraModes();
    cameras_ = {found.device};
    sources_->Replace({found});
  }
  std::shared_ptr<const DeviceSources> Sources() const { return sources_; }

  void SetEvents(IDevicesEvents*) override {}
  const std::vector<Device>& Cameras() const override { return cameras_; }
  const std::vector<Device>& Microphones() const override { return none_; }
  bool Known() const override { return true; }
  void SetNetworkCameras(const std::vector<std::string>&) override {}
  std::vector<CameraControl> Controls(const std::string&) override { return {}; }
  Outcome SetControl(const std::string&, std::uint32_t, int) override { return {}; }
  Outcome ChooseLine(const std::string&, const std::string&) override { return {}; }

 private:
  std::vector<Device> cameras_;
  std::vector<Device> none_;
  std::shared_ptr<DeviceSources> sources_ = std::make_shared<DeviceSources>();
};

/// A window of four panes that shows what comes and measures, for each millisecond, how far what stands there is from
/// what was asked for.
class Mirror final : public IMirrorView {
 public:
  Mirror() { settings_.LoadSettings(); }

  double Measure() {
    session_.SetPanes(kMostPanes);
    for (int pane = 0; pane < kMostPanes; ++pane) session_.WantSize(pane, kPaneWidth, kPaneHeight);
    session_.Open();
    Show(22s);  // until the longest delay has its pictures
    shown_ = {};
    errors_.clear();
    Show(20s);
    session_.Close();
    if (errors_.size() < 10'000) throw std::runtime_error("the panes show nothing");
    if (wrong_) throw std::runtime_error("a pane shows a picture of another time");
    return Percentile(errors_, 0.95);
  }

  void MirrorChanged() override {}
  void PanePictureCame(int pane) override {
    const MirrorPane::Sight sight = session_.Show(pane);
    const LivePicture& picture = sight.picture;
    if (!picture.pixels || sight.standIn) return;
    const QImage image(picture.pixels.get(), picture.width, picture.height, picture.stride, QImage::Format_RGB32);
    QPainter(&window_).drawImage(pane % 2 * kPaneWidth, pane / 2 * kPaneHeight, image);
    CheckNumber(picture);
    const std::int64_t now = Now();
    Shown& before = shown_[static_cast<std::size_t>(pane)];
    const double asked = session_.Choices().Delay(pane) * kNs;
    for (std::int64_t at = before.sinceNs; before.sinceNs > 0 && at < now; at += 1'000'000)
      errors_.push_back(std::abs(static_cast<double>(at - before.takenAt) - asked) / 1e6);
    before = {now, picture.takenAt};
  }

 private:
  struct Shown {
    std::int64_t sinceNs = 0;
    std::int64_t takenAt = 0;
  };

  /// What is seen in a picture must be of the time that it is said to be of: pictures are numbered, and taken steadily.
  void CheckNumber(const LivePicture& picture) {
    const auto number = ReadFrameNumber(picture.pixels.get(), picture.width, picture.height, picture.stride);
    if (!number) return;
    const double zero = static_cast<double>(picture.takenAt) - *number * kNs / kRate;
    if (zero_ == 0) zero_ = zero;
    wrong_ = wrong_ || std::abs(zero - zero_) > kNs;
  }

  static void Show(Clock::duration time) {
    QEventLoop loop;
    QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(time), Qt::PreciseTimer, &loop,
                       &QEventLoop::quit);
    loop.exec();
  }

  static constexpr double kRate = 60;

  Log log_{ScratchFolder() + "/bench.log"};
  const std::unique_ptr<IHost> host_ = MakeQtHost(log_);
  Settings settings_{*host_, ScratchFolder() + "/mirror", ScratchFolder()};
  OneCamera devices_;
  CaptureSetup setup_{settings_, devices_};
  VideoNaming naming_{settings_, [] { return std::string("11/25/2026"); }};
  LastStudentInfo remembered_;
  WorkingFiles files_{ScratchFolder() + "/mirror"};
  JobRunner jobs_{*host_, JobRunner::On::Worker};
  std::shared_ptr<IPost> post_ = MakeQtPost();
  MirrorSession session_{{.host = *host_,
                          .settings = settings_,
                          .setup = setup_,
                          .naming = naming_,
                          .remembered = remembered_,
                          .files = files_,
                          .jobs = jobs_,
                          .view = *this,
                          .post = post_,
                          .now = Now,
                          .makeGraph = [this](IGraphEvents& events) -> std::unique_ptr<IGraph> {
                            return std::make_unique<LiveGraph>(events, devices_.Sources(), post_);
                          },
                          .choicesPath = ScratchFolder() + "/mirror.json"}};
  QImage window_{2 * kPaneWidth, 2 * kPaneHeight, QImage::Format_RGB32};
  std::array<Shown, kMostPanes> shown_{};
  std::vector<double> errors_;
  double zero_ = 0;
  bool wrong_ = false;
};

const Register kDelay({"delay_error", {Target::Of::AtMost, 40, 17}, [] {
                         Mirror mirror;
                         return Figure{mirror.Measure(), "ms"};
                       }});

}  // namespace
}  // namespace kinalyx::bench
