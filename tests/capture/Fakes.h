#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "capture/CaptureSession.h"

namespace kinalyx::test {

/// Devices that a test plugs in and out.
class FakeDevices final : public IDevices {
 public:
  std::vector<Device> cameras;
  std::vector<Device> microphones;
  bool known = true;
  std::vector<std::string> network;
  std::vector<CameraControl> controls;

  void Plug(Device camera) {
    cameras.push_back(std::move(camera));
    if (events_) events_->DevicesChanged();
  }
  void Pull(const std::string& name) {
    std::erase_if(cameras, [&](const Device& device) { return device.name == name; });
    if (events_) events_->DevicesChanged();
  }

  void SetEvents(IDevicesEvents* events) override { events_ = events; }
  const std::vector<Device>& Cameras() const override { return cameras; }
  const std::vector<Device>& Microphones() const override { return microphones; }
  bool Known() const override { return known; }
  void SetNetworkCameras(const std::vector<std::string>& addresses) override { network = addresses; }
  std::vector<CameraControl> Controls(const std::string&) override { return controls; }
  Outcome SetControl(const std::string&, std::uint32_t id, int value) override {
    for (CameraControl& control : controls)
      if (control.id == id) control.value = value;
    return {};
  }
  Outcome ChooseLine(const std::string& name, const std::string& line) override {
    for (Device& microphone : microphones)
      if (microphone.name == name) microphone.line = line;
    return {};
  }

 private:
  IDevicesEvents* events_ = nullptr;
};

inline Device MakeCamera(std::string name) {
  Device device;
  device.name = std::move(name);
  device.modes = {{640, 480, 30, "YUY2"},
                  {1280, 720, 30, "MJPG"},
                  {1280, 720, 10, "YUY2"},
                  {1920, 1080, 60, "MJPG"},
                  {3840, 2160, 30, "MJPG"}};
  return device;
}

/// A graph that remembers what it was told, and of which the test is the cameras.
class FakeGraph final : public IGraph {
 public:
  struct Gate final : ITriggerSourceFilter {
    bool armed = false;
    void Arm(bool on) override { armed = on; }
  };
  struct Writer final : IWriterFilter {
    RecordingTally tally;
    RecordingTally Tally() override { return tally; }
  };

  /// Blocks are what the test says.
  struct BlockWriter final : IBlockWriter {
    std::vector<WrittenBlock> written;
    bool writing = false;
    bool Writing() const override { return writing; }
    std::vector<WrittenBlock> TakeWritten() override { return std::exchange(written, {}); }
  };
  struct Block final : IBlockRecordingFilter {
    double start = 0;
    double end = 0;
    std::shared_ptr<BlockWriter> writer;  ///< of the run
    void BlockRecordingSetStart(double seconds) override { start = seconds; }
    void BlockRecordingSetEnd(double seconds) override { end = seconds; }
    double EndOffset() const override { return end; }
    std::shared_ptr<IBlockWriter> Blocks() const override { return writer; }
    void Remember(double) override {}
    void SetBound(std::int64_t) override {}
    RingTally Ring() const override { return {1.5, 3 << 20, 64 << 20}; }
    std::optional<PackedPicture> PictureAt(std::int64_t) const override { return std::nullopt; }
    std::vector<PackedPicture> Pictures(std::int64_t, std::int64_t) const override { return {}; }
    void WritePictures(std::vector<PackedPicture>) override {}
  };
  struct Switch final : ISwitchFilter {
    int fired = 0;
    bool Fire(std::int64_t) override { return ++fired > 0; }
  };
  struct Trigger final : IAudioTriggerFilter {
    double level = 0;
    double threshold = 0;
    double gain = 0;
    double Level() override { return level; }
    void SetThreshold(double value) override { threshold = value; }
    void SetGain(double value) override { gain = value; }
  };

  std::string loaded;
  std::map<std::string, std::string, std::less<>> devices;
  std::map<std::string, std::string, std::less<>> formats;
  std::map<std::string, std::string, std::less<>> sinks;
  std::map<std::string, double, std::less<>> times;
  bool running = false;
  Gate gates[2];
  Writer writers[2];
  Block blocks[2];
  Switch button;
  Trigger trigger;

  Outcome GraphXmlLoad(std::string_view text) override {
    GraphClear();
    loaded = text;
    return {};
  }
  Outcome GraphSetDevice(std::string_view label, std::string_view device) override {
    devices[std::string(label)] = device;
    return {};
  }
  Outcome GraphSetVideoFormat(std::string_view label, int width, int height, std::string_view format) override {
    formats[std::string(label)] = std::to_string(width) + "x" + std::to_string(height) + " " + std::string(format);
    return {};
  }
  Outcome GraphSetFrameTime(std::string_view label, double seconds) override {
    times[std::string(label)] = seconds;
    return {};
  }
  Outcome GraphSetAudioPin(int) override { return {}; }
  Outcome GraphSetFileSource(std::string_view, std::string_view) override { return {}; }
  Outcome GraphSetFileSink(std::string_view label, std::string_view path) override {
    sinks[std::string(label)] = path;
    return {};
  }
  Outcome GraphRun() override {
    running = true;
    for (Block& block : blocks) block.writer = std::make_shared<BlockWriter>();
    return {};
  }
  Outcome GraphStop() override {
    running = false;
    return {};
  }
  void GraphClear() override {
    loaded.clear();
    devices.clear();
    formats.clear();
    sinks.clear();
    running = false;
    for (Gate& gate : gates) gate.armed = false;
  }

 protected:
  IGraphFilter* Filter(std::string_view label) override {
    const bool second = label.ends_with('2');
    if (label.starts_with("MV Trigger")) return &gates[second];
    if (label.starts_with("MV Block")) return &blocks[second];
    if (label == "MV Switch") return &button;
    if (label == "Audio Trigger") return &trigger;
    if (label.starts_with("FileWriter")) return &writers[second];
    return nullptr;
  }
};

}  // namespace kinalyx::test
