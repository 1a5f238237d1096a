#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "support/TestHost.h"
#include "support/TestVideos.h"
#include "video/AVIControl.h"

namespace kinalyx::test {

/// A view that remembers what it was given.
class RecordingView final : public IPlayerView {
 public:
  void Present(const Surface& picture) override {
    ++presented;
    empty = picture.Empty();
    shown = picture;
  }
  void SetBackColor(Colour colour) override { colours.push_back(colour); }

  int presented = 0;
  bool empty = true;
  Surface shown;
  std::vector<Colour> colours;
};

/// A sink that writes down every call, and does what a test tells it to do inside them.
class RecordingSink final : public IFrameInterface {
 public:
  void PreDrawFrame(Canvas& hDC, int ID) override {
    calls.push_back("draw " + std::to_string(ID));
    if (onDraw) onDraw(hDC);
  }
  void Signal(int Frame, int ID) override {
    calls.push_back("signal " + std::to_string(Frame) + " " + std::to_string(ID));
    signalled.push_back(Frame);
    if (onSignal) onSignal(Frame);
  }
  void Notify(int Frame, int ID) override {
    calls.push_back("notify " + std::to_string(Frame) + " " + std::to_string(ID));
    notified.push_back(Frame);
    if (onNotify) onNotify();
  }
  void StrobeEnded(int) override { ++strobesEnded; }

  int strobesEnded = 0;
  std::vector<std::string> calls;
  std::vector<int> signalled;
  std::vector<int> notified;
  std::function<void(Canvas&)> onDraw;
  std::function<void(int)> onSignal;
  std::function<void()> onNotify;
};

/// A player of 200 x 150 pixels with a view and a sink, under a hand-turned clock.
struct Player {
  TestHost host;
  PlayScheduler scheduler{host};
  PlayerServices services{host, scheduler};
  RecordingView view;
  RecordingSink sink;
  std::unique_ptr<AVIControl> control = std::make_unique<AVIControl>(services, &view);

  Player() {
    control->Resize(200, 150);
    control->SetFrameInterface(&sink);
    control->setID(4);
  }
  AVIControl* operator->() { return control.get(); }
  bool Load(const TestVideo& video, bool split = false, bool reverse = false) {
    return control->Load(MakeTestVideo(video), split, reverse);
  }
  /// The number that the view shows.
  std::optional<int> Shown() const { return NumberOn(view.shown); }

  static std::optional<int> NumberOn(const Surface& surface) {
    if (surface.Empty()) return std::nullopt;
    return ReadNumber({surface.Row(0), surface.Width(), surface.Height(), surface.Stride(), 32});
  }
};

}  // namespace kinalyx::test
