// A driving range of an afternoon: the Test Camera, a microphone that hears a ball every few seconds, and the capture
// session of the program between them. Says at the end what came of it, and fails where a video is missing, out of
// order or not whole.
//
//   kinalyx-range [SHOTS [SECONDS]]     500 shots, one every 0.7 seconds

#include <fmt/format.h>
#include <gst/gst.h>
#include <malloc.h>
#include <unistd.h>

#include <QApplication>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "capture/CaptureSession.h"
#include "core/Settings.h"
#include "library/VideoNames.h"
#include "platform/files/Log.h"
#include "platform/graph/DeviceSources.h"
#include "platform/graph/LiveGraph.h"
#include "platform/graph/TestCamera.h"
#include "platform/host/Post.h"
#include "platform/host/QtHost.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;

constexpr double kBefore = 0.3;
constexpr double kAfter = 0.2;

/// The Test Camera, and a microphone on which a ball is hit in even intervals.
class RangeDevices final : public DeviceSources, public IDevices {
 public:
  explicit RangeDevices(double interval) : interval_(interval) {
    FoundDevice camera;
    camera.device.name = "Test Camera";
    camera.device.origin = Device::Origin::Test;
    camera.device.modes = {{640, 480, 30, "MJPG"}};
    Replace({camera});
    cameras_ = {camera.device};
    Device microphone;
    microphone.name = "Mat";
    microphone.kind = Device::Kind::Microphone;
    microphones_ = {microphone};
  }

  GstElement* MakeMicrophoneSource(const std::string&) const override {
    // A click of the club on the ball, and what a range sounds like between.
    const std::string description = fmt::format(
        "audiomixer name=mix ! audioconvert ! capsfilter caps=audio/x-raw,rate=48000 "
        "audiotestsrc is-live=true wave=ticks freq=3500 sine-periods-per-tick=10 volume=0.8 tick-interval={} ! mix. "
        "audiotestsrc is-live=true wave=pink-noise volume=0.02 ! mix.",
        static_cast<std::int64_t>(interval_ * 1e9));
    return gst_parse_bin_from_description(description.c_str(), true, nullptr);
  }

  void SetEvents(IDevicesEvents*) override {}
  const std::vector<Device>& Cameras() const override { return cameras_; }
  const std::vector<Device>& Microphones() const override { return microphones_; }
  bool Known() const override { return true; }
  void SetNetworkCameras(const std::vector<std::string>&) override {}
  std::vector<CameraControl> Controls(const std::string&) override { return {}; }
  Outcome SetControl(const std::string&, std::uint32_t, int) override { return {}; }
  Outcome ChooseLine(const std::string&, const std::string&) override { return {}; }

 private:
  double interval_;
  std::vector<Device> cameras_;
  std::vector<Device> microphones_;
};

struct NoPlayer final : IReviewPlayer {
  bool Load(const std::string&) override { return false; }
  void Unload() override {}
  int CurrentFrame() override { return 0; }
  int FrameCount() override { return 0; }
  void ShowFrame(int) override {}
  RecordingFacts Facts() override { return {}; }
};

/// Nobody looks.
class Page final : public ICapturePage, public ICaptureWays, public IMeterEvents {
 public:
  void CaptureChanged() override {}
  void LivePictureCame(int) override { ++pictures; }
  IReviewPlayer& ReviewPlayer(int) override { return player_; }
  bool OpenInAnalysis(const std::vector<std::string>&) override { return false; }
  void GoToCaptureSetup() override {}
  void OpenMirror() override {}
  void SoundCame(double, bool) override {}

  std::int64_t pictures = 0;

 private:
  NoPlayer player_;
};

double ResidentMiB() {
  malloc_trim(0);
  std::ifstream file("/proc/self/statm");
  double pages = 0;
  file >> pages >> pages;
  return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

auto OpenFiles() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator());
}

void Wait(std::chrono::milliseconds time) {
  QEventLoop loop;
  QTimer::singleShot(time, &loop, &QEventLoop::quit);
  loop.exec();
}

/// How many of the videos are in order and whole.
int GoodOf(const std::vector<std::string>& names, const std::string& folder) {
  constexpr int kFewest = 13;  // of fifteen pictures that the window takes
  int good = 0;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const auto video = VideoFile::Open(folder + "/" + names[i]);
    const bool named = names[i].starts_with(fmt::format("({:03}) ", i + 1));
    if (named && video && (*video)->Info().frameCount >= kFewest) ++good;
    else
      fmt::print("{}: {}\n", names[i], video ? fmt::format("{} pictures", (*video)->Info().frameCount) : video.Why());
  }
  return good;
}

int Run(int shots, double interval) {
  QTemporaryDir place;
  Log log(place.path().toStdString() + "/log.txt");
  const std::unique_ptr<IHost> machine = MakeQtHost(log);
  IHost& host = *machine;
  const std::string data = place.path().toStdString();
  Settings settings(host, data, data);
  settings.LoadSettings();
  settings.LoadCaptureSettings();
  settings.VideoInSource = static_cast<int>(SourceKind::Webcam);
  settings.DVMode = settings.ImportCaptureMode = false;
  settings.CapMode = static_cast<int>(CaptureMethod::Sound);
  settings.TriggerTime = {fmt::format("{}", kBefore), fmt::format("{}", kAfter)};
  const std::string folder = settings.LibraryPath + "/Range";
  std::filesystem::create_directories(folder);

  const auto devices = std::make_shared<RangeDevices>(interval);
  CaptureSetup setup(settings, *devices);
  VideoNaming naming(settings, [] { return std::string("1/1/2030"); });
  naming.SetFolder(folder);
  WorkingFiles files(data + "/capture");
  JobRunner jobs(host, JobRunner::On::Worker), blockJobs(host, JobRunner::On::Worker);
  Page page;
  CaptureSession session({.host = host,
                          .settings = settings,
                          .setup = setup,
                          .naming = naming,
                          .files = files,
                          .page = page,
                          .meter = page,
                          .ways = page,
                          .jobs = jobs,
                          .blockJobs = blockJobs,
                          .trimProgram = {}});
  session.SetGraph(std::make_unique<LiveGraph>(session.GraphEvents(), devices, MakeQtPost()));
  session.Open();
  session.PressMonitor();
  const auto begun = std::chrono::steady_clock::now();
  const auto patience = std::chrono::duration<double>(shots * interval * 1.2 + 30);
  int told = 0;
  while (session.Triggers().CapturedCount() < shots && std::chrono::steady_clock::now() - begun < patience) {
    Wait(100ms);
    const int count = session.Triggers().CapturedCount();
    if (count < told) continue;
    fmt::print("{:4} videos, {:6.1f} MiB, {} open files, {}\n", count, ResidentMiB(), OpenFiles(), session.Status());
    std::fflush(stdout);
    told = count + std::max(1, shots / 10);
  }
  (void)session.Leave();
  while (session.Triggers().Keeping()) Wait(50ms);
  const std::vector<std::string> names = ListVideos(folder);
  const int good = GoodOf(names, folder);
  fmt::print("{} videos of {} shots, {} of them whole and in order; {:.1f} MiB, {} open files\n", names.size(), shots,
             good, ResidentMiB(), OpenFiles());
  return names.size() >= static_cast<std::size_t>(shots) && good == static_cast<int>(names.size()) ? 0 : 1;
}

}  // namespace
}  // namespace kinalyx

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const int shots = argc > 1 ? std::atoi(argv[1]) : 500;
  const double interval = argc > 2 ? std::atof(argv[2]) : 0.7;
  return kinalyx::Run(std::max(1, shots), std::max(0.6, interval));
}
