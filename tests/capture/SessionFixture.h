#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Fakes.h"
#include "capture/CaptureSession.h"
#include "library/TempLibrary.h"
#include "platform/files/Folders.h"

namespace kinalyx::test {

struct FakePlayer final : IReviewPlayer {
  std::string path;
  int frame = 0;
  bool Load(const std::string& file) override {
    path = FileExists(file) ? file : "";
    return !path.empty();
  }
  void Unload() override { path.clear(); }
  int CurrentFrame() override { return frame; }
  int FrameCount() override { return 100; }
  void ShowFrame(int at) override { frame = at; }
  RecordingFacts Facts() override { return {.wide = true}; }
};

class SessionTest : public testing::Test,
                    public ICapturePage,
                    public IMeterEvents,
                    public ICaptureWays,
                    public INamingEvents {
 protected:
  SessionTest() {
    settings.LoadCaptureSettings();
    settings.VideoInSource = static_cast<int>(SourceKind::Webcam);
    settings.DVMode = false;
    devices.cameras = {MakeCamera("Left"), MakeCamera("Right")};
    setup = std::make_unique<CaptureSetup>(settings, devices);
    naming.SetFolder(folder);
    naming.SetEvents(this);
    auto made = std::make_unique<FakeGraph>();
    graph = made.get();
    session.emplace(CaptureSession::Parts{.host = library.host,
                                          .settings = settings,
                                          .setup = *setup,
                                          .naming = naming,
                                          .files = files,
                                          .page = *this,
                                          .meter = *this,
                                          .ways = *this,
                                          .jobs = jobs,
                                          .blockJobs = blockJobs,
                                          .trimProgram = ""});
    session->SetGraph(std::move(made));
    session->Open();
  }

  void CaptureChanged() override {}
  void LivePictureCame(int) override {}
  IReviewPlayer& ReviewPlayer(int camera) override { return players[camera]; }
  bool OpenInAnalysis(const std::vector<std::string>& paths) override {
    opened = paths;
    return true;
  }
  void GoToCaptureSetup() override {}
  void OpenMirror() override {}
  void SoundCame(double level, bool fired) override {
    heard = level;
    flashes += fired;
  }
  void NameChanged() override {}
  void NameWanted() override { ++namesWanted; }

  /// Records: the cameras write what the test gives them.
  void Record(const std::string& bytes = "pictures") {
    session->PressCapture();
    for (const auto& [label, path] : graph->sinks) std::ofstream(path) << bytes;
    session->PressCapture();
  }
  void RunJobs() {
    for (int i = 0; i < 200 && session->Saving(); ++i) library.host.Advance(20);
  }

  TempLibrary library;
  Settings& settings = library.settings;
  FakeDevices devices;
  std::string folder = library.Folder("Anna/Łucja");
  std::unique_ptr<CaptureSetup> setup;
  VideoNaming naming{settings, [] { return std::string("11/25/2026"); }};
  WorkingFiles files{library.Data("capture")};
  JobRunner jobs{library.host, JobRunner::On::HostTimer};
  JobRunner blockJobs{library.host, JobRunner::On::HostTimer};
  FakePlayer players[2];
  FakeGraph* graph = nullptr;
  std::optional<CaptureSession> session;
  std::vector<std::string> opened;
  int namesWanted = 0;
  double heard = 0;
  int flashes = 0;
};

}  // namespace kinalyx::test
