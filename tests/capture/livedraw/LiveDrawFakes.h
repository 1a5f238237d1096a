#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "../Fakes.h"
#include "capture/livedraw/LiveDrawSession.h"
#include "capture/templates/CaptureTemplates.h"
#include "core/Settings.h"
#include "support/TempFolder.h"
#include "support/TestHost.h"

namespace kinalyx::test {

/// A graph of one camera, of which the test is the camera and what moves before it.
class FakeLiveGraph final : public IGraph {
 public:
  struct Renderer final : IRendererFilter {
    LivePicture latest;
    LivePicture Latest() override { return latest; }
    void WantSize(int, int) override {}
  };
  struct Detector final : IMotionDetectionFilter {
    std::map<int, MotionRect> regions;
    std::vector<int> fired, moving;
    int sensitivity = 0;
    int last = 0;

    int AddRegion(const MotionRect& place) override {
      regions[++last] = place;
      return last;
    }
    void MoveRegion(int region, const MotionRect& place) override { regions.at(region) = place; }
    void DeleteRegion(int region) override { regions.erase(region); }
    void KillRegions() override { regions.clear(); }
    void SetSensitivity(int value) override { sensitivity = value; }
    std::vector<int> TakeFired() override { return std::exchange(fired, {}); }
    std::vector<int> Moving() const override { return moving; }
  };

  explicit FakeLiveGraph(IGraphEvents& told) : events(told) {}

  /// A picture of 64 x 48 whose left half is dark and whose right half is bright.
  void Show() {
    auto pixels = std::make_shared<std::vector<std::uint8_t>>(64 * 48 * 4);
    for (std::size_t i = 0; i < pixels->size(); ++i) (*pixels)[i] = i / 4 % 64 < 32 ? 20 : 220;
    renderer.latest = {64, 48, 64 * 4, 4.0 / 3, 0, std::shared_ptr<const std::uint8_t>(pixels, pixels->data())};
    events.PictureCame("Video Renderer");
  }

  Outcome GraphXmlLoad(std::string_view text) override {
    GraphClear();
    loaded = text;
    return {};
  }
  Outcome GraphSetDevice(std::string_view, std::string_view name) override {
    device = name;
    return {};
  }
  Outcome GraphSetVideoFormat(std::string_view, int, int, std::string_view) override { return {}; }
  Outcome GraphSetFrameTime(std::string_view, double) override { return {}; }
  Outcome GraphSetAudioPin(int) override { return {}; }
  Outcome GraphSetFileSource(std::string_view, std::string_view) override { return {}; }
  Outcome GraphSetFileSink(std::string_view, std::string_view) override { return {}; }
  Outcome GraphRun() override {
    running = true;
    ++runs;
    return {};
  }
  Outcome GraphStop() override {
    running = false;
    return {};
  }
  void GraphClear() override {
    loaded.clear();
    device.clear();
    running = false;
    detector = {};
  }

  IGraphEvents& events;
  std::string loaded;
  std::string device;
  bool running = false;
  int runs = 0;
  Renderer renderer;
  Detector detector;

 protected:
  IGraphFilter* Filter(std::string_view label) override {
    if (loaded.empty()) return nullptr;
    if (label == "Video Renderer") return &renderer;
    return label == "MV Motion Detection" ? &detector : nullptr;
  }
};

struct FakeSounds final : IShortSounds {
  std::vector<std::string> played;
  void Play(const std::string& path) override { played.push_back(path); }
};

/// A window that remembers what it was asked.
struct FakeLiveView final : ILiveDrawView {
  int repaints = 0;
  LivePointer pointer = LivePointer::Nothing;
  int zoneMenus = 0;
  std::optional<POINTAPI> textAt;

  void Repaint() override { ++repaints; }
  void LiveDrawChanged() override {}
  void CamerasChanged() override {}
  void ShowPointer(LivePointer shown) override { pointer = shown; }
  void ShowShapeMenu(POINTAPI) override {}
  void ShowZoneMenu(POINTAPI) override { ++zoneMenus; }
  void AskText(POINTAPI at, const std::string&) override { textAt = at; }
};

/// A program with one camera, and live draw in a window of 640 x 480.
class LiveDrawFixture {
 public:
  LiveDrawFixture() {
    devices.cameras.push_back(MakeCamera("Webcam"));
    settings.LoadSettings();
    settings.LoadCaptureSettings();
    Start();
  }

  /// As if the program were started anew.
  void Start() {
    session.reset();
    setup.reset();
    setup = std::make_unique<CaptureSetup>(settings, devices);
    session = std::make_unique<LiveDrawSession>(LiveDrawSession::Parts{.host = host,
                                                                       .settings = settings,
                                                                       .setup = *setup,
                                                                       .sounds = sounds,
                                                                       .makeGraph = [this](IGraphEvents& events) {
                                                                         auto made =
                                                                             std::make_unique<FakeLiveGraph>(events);
                                                                         graph = made.get();
                                                                         return made;
                                                                       }});
    session->SetView(&view);
    session->SetRoom(640, 480);
  }

  void OpenLive() {
    session->Open();
    graph->Show();
  }
  void Drag(POINTAPI from, POINTAPI to) {
    session->MouseDown(1, false, from);
    session->MouseMove(1, false, {(from.x + to.x) / 2, (from.y + to.y) / 2});
    session->MouseMove(1, false, to);
    session->MouseUp(1, false, to);
  }
  void DrawLine(POINTAPI from, POINTAPI to) {
    session->TakeTool([](DrawingTools& tools) { tools.TakeTool(kLine); });
    Drag(from, to);
  }
  void AddZone(POINTAPI from, POINTAPI to) {
    session->PressZone();
    Drag(from, to);
  }
  std::vector<Shape> Drawings() const { return DrawingsOf(session->Board().List()); }
  /// Something moves in the n-th zone.
  void Move(std::size_t zone) {
    auto region = graph->detector.regions.begin();
    std::advance(region, zone);
    graph->detector.fired = graph->detector.moving = {region->first};
  }

  TempFolder folder;
  TestHost host;
  Settings settings{host, folder.Path("data"), folder.Path("app")};
  FakeDevices devices;
  FakeSounds sounds;
  FakeLiveView view;
  FakeLiveGraph* graph = nullptr;
  std::unique_ptr<CaptureSetup> setup;
  std::unique_ptr<LiveDrawSession> session;
};

}  // namespace kinalyx::test
