#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "AnalysisStage.h"
#include "core/Settings.h"
#include "support/TestHost.h"
#include "support/TestVideos.h"
#include "workspace/Workspace.h"

namespace kinalyx::test {

/// A workspace with eight real players on a stage of 1200 by 600 pixels over a window that only remembers.
class CompareStage : private IFrameInterface {
 public:
  explicit CompareStage(const std::string& layout = "2")
      : settings(host, TestPath("data"), TestPath("program")), workspace(host, settings, window) {
    window.width = 1200;
    window.height = 600;
    workspace.PlayerResized = [](int) {};
    workspace.PictureFlipped = [](int) {};
    workspace.VideoOpened = [](int) {};
    workspace.VideoClosing = [this](int slot) {
      if (closing) closing(slot);
    };
    workspace.VideoClosed = [](int) {};
    workspace.DataSaved = [](int) {};
    workspace.DataChanged = [] {};
    workspace.CollectData = [](int) { return false; };
    workspace.FocusChanged = [] {};
    workspace.StateChanged = [this] {
      if (stateChanged) stateChanged();
    };
    workspace.ScreenLayout = layout;
    for (int slot = 1; slot <= kSlots; ++slot) {
      auto& player = players_[static_cast<std::size_t>(slot - 1)];
      player = std::make_unique<AVIControl>(services, nullptr);
      window.players[static_cast<std::size_t>(slot)] = player.get();
      workspace.AttachPlayer(slot, *player);
      player->SetFrameInterface(this);
    }
    workspace.FormReset();
  }

  /// Opens a video of its own file in a slot and shows a position. False when it did not open.
  bool Open(int slot, const TestVideo& video, int position = 0) {
    if (!workspace.OpenVideo(slot, MakeTestVideo(video))) return false;
    workspace.MP(slot).DrawFrame(position);
    return true;
  }
  AVIControl& MP(int slot) { return workspace.MP(slot); }
  int At(int slot) { return workspace.MP(slot).Position(); }

  TestHost host;
  Settings settings;
  PlayScheduler scheduler{host};
  PlayerServices services{host, scheduler};
  FakeWindow window;
  Workspace workspace;

  std::function<void(int slot)> closing;
  std::function<void()> stateChanged;
  std::function<void(int slot)> signalled;
  std::function<void(int slot)> notified;
  std::function<void(Canvas&, int slot)> painted;

 private:
  void PreDrawFrame(Canvas& hDC, int ID) override {
    if (painted) painted(hDC, ID);
  }
  void Signal(int, int ID) override {
    if (signalled) signalled(ID);
  }
  void Notify(int, int ID) override {
    if (notified) notified(ID);
  }

  std::array<std::unique_ptr<AVIControl>, kSlots> players_;
};

}  // namespace kinalyx::test
