#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <string>

#include "capture/Fakes.h"
#include "distribution/lessons/LessonSession.h"
#include "platform/media/LessonFile.h"

namespace kinalyx::test {

/// Writes a lesson of so many grey pictures, without a voice.
inline void WriteLesson(const std::string& path, int pictures, LessonKind kind = LessonKind::Avi) {
  constexpr std::size_t kBytes = 64 * 48 * 3 / 2;
  const std::shared_ptr<std::uint8_t[]> grey(new std::uint8_t[kBytes]);
  std::memset(grey.get(), 128, kBytes);
  auto file = LessonFile::Create(path, {kind, 64, 48, false});
  if (!file) return;
  constexpr std::int64_t kSecond = 1'000'000'000;
  (void)(*file)->TakePicture({grey, grey.get()}, 0);
  (void)(*file)->Close(kSecond * pictures / LessonFile::kRate);
}

/// A graph that records what the test says; what it writes is a real lesson.
class LessonGraph final : public IGraph {
 public:
  struct Meter final : IAudioTriggerFilter {
    double level = 0.25;
    double Level() override { return level; }
  };
  struct Writer final : IWriterFilter {
    RecordingTally tally;
    bool paused = false;
    RecordingTally Tally() override { return tally; }
    void Pause(bool on) override { paused = on; }
  };

  std::string loaded;
  std::map<std::string, std::string, std::less<>> devices;
  std::string sink;
  bool running = false;
  bool diskHangs = false;
  Meter meter;
  Writer writer;

  Outcome GraphXmlLoad(std::string_view text) override {
    GraphClear();
    loaded = text;
    return {};
  }
  Outcome GraphSetDevice(std::string_view label, std::string_view device) override {
    devices[std::string(label)] = device;
    return {};
  }
  Outcome GraphSetVideoFormat(std::string_view, int, int, std::string_view) override { return {}; }
  Outcome GraphSetFrameTime(std::string_view, double) override { return {}; }
  Outcome GraphSetAudioPin(int) override { return {}; }
  Outcome GraphSetFileSource(std::string_view, std::string_view) override { return {}; }
  Outcome GraphSetFileSink(std::string_view, std::string_view path) override {
    sink = path;
    return {};
  }
  Outcome GraphRun() override {
    running = true;
    return {};
  }
  Outcome GraphStop() override {
    if (running && writer.tally.pictures > 0) WriteLesson(sink, static_cast<int>(writer.tally.pictures));
    running = false;
    return diskHangs ? Outcome::Failed("The disk does not answer.") : Outcome();
  }
  void GraphClear() override {
    loaded.clear();
    devices.clear();
    sink.clear();
    running = false;
    writer = {};
  }

 protected:
  IGraphFilter* Filter(std::string_view label) override {
    if (label == "Audio Trigger") return &meter;
    return label == "File writer" && !sink.empty() ? &writer : nullptr;
  }
};

/// A screen that answers when the test says so.
class FakeScreens final : public IScreens {
 public:
  Way way = Way::Direct;
  IScreenEvents* asked = nullptr;

  Way HowToSee() const override { return way; }
  std::string WhyNone() const override { return "There is no screen."; }
  void Open(const ScreenPlace&, IScreenEvents& events) override {
    asked = &events;
    if (way == Way::Direct) events.ScreenReady("screen");
  }
  void Close() override { asked = nullptr; }
};

}  // namespace kinalyx::test
