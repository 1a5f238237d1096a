#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/Settings.h"
#include "support/TestHost.h"
#include "support/TestVideos.h"
#include "workspace/Workspace.h"

namespace kinalyx::test {

/// A workspace with eight real players on a stage of 1200 by 600 pixels and no window.
class CompareStage : private IWorkspaceView, private IFrameInterface {
 public:
  explicit CompareStage(const std::string& layout = "2")
      : settings(host, TestPath("data"), TestPath("program")), workspace(host, settings, *this) {
    workspace.PlayerResized = [](int) {};
    workspace.PictureFlipped = [](int) {};
    workspace.VideoOpened = [](int) {};
    workspace.VideoClosing = [this](int slot) {
      if (closing) closing(slot);
    };
    workspace.VideoClosed = [](int) {};
    workspace.DataSaved = [](int) {};
    workspace.CollectData = [](int) { return false; };
    workspace.FocusChanged = [] {};
    workspace.StateChanged = [this] {
      if (stateChanged) stateChanged();
    };
    workspace.ScreenLayout = layout;
    for (int slot = 1; slot <= kSlots; ++slot) {
      auto& player = players_[static_cast<std::size_t>(slot - 1)];
      player = std::make_unique<AVIControl>(services, nullptr);
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
  Workspace workspace;
  int panelWidth = 1200;   ///< pixels
  int panelHeight = 600;

  std::function<void(int slot)> closing;
  std::function<void()> stateChanged;
  std::function<void(int slot)> signalled;
  std::function<void(int slot)> notified;
  std::function<void(Canvas&, int slot)> painted;

 private:
  int MainPanelWidth() override { return panelWidth * kTwipsPerPixel; }
  int MainPanelHeight() override { return panelHeight * kTwipsPerPixel; }
  void PlaceCell(int, const TwipRect&, const TwipRect&) override {}
  void HideCell(int) override {}
  void PlacePlayer(int slot, const TwipRect& place, bool shown) override {
    if (shown) workspace.MP(slot).Resize(place.Width / kTwipsPerPixel, place.Height / kTwipsPerPixel);
  }
  void PaintBorder(int, bool) override {}
  void SetCellTitle(int, const std::string&) override {}
  void SetCellPosition(int, int, int, const std::string&) override {}
  void PlacePlayBar(const TwipRect&) override {}
  void SetScrollRange(int) override {}
  void SetScrollValue(int) override {}
  void SetPlayPicture(bool) override {}
  void SetSlomoButton(bool) override {}
  void SetLoopButton(bool) override {}
  void SetDisplayLine(const std::string&, const std::string&) override {}
  void SetMarks(const std::vector<int>&) override {}
  void SetDisplayText(const std::string&) override {}
  void ShowVectorColor(Colour) override {}
  void HideVectorColor() override {}
  void SetColorButton(int) override {}
  void ShowNotesPnl(const TwipRect&, const std::string&) override {}
  void HideNotesPnl() override {}
  void ShowVideoTimer(bool) override {}
  void SetVideoTimer(const std::string&, bool, const std::string&) override {}
  void ShowCalibration(bool) override {}
  void SetCalibrationLength(const std::string&) override {}
  void ShowNotesform() override {}
  void ShowOpenPanel() override {}
  void CommandsChanged() override {}
  void FocusKeyBox() override {}

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
