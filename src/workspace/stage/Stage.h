#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/Settings.h"
#include "library/Sidecar.h"
#include "video/AVIControl.h"
#include "workspace/stage/IStageView.h"
#include "workspace/stage/Layout.h"
#include "workspace/stage/StageHome.h"
#include "workspace/stage/StageNews.h"

namespace kinalyx {

/// One of the eight places for a video.
struct Slot {
  AVIControl* MP = nullptr;  ///< the player, owned by the window
  std::string path;          ///< the open video, "" when none
  SlotData data;             ///< what its sidecar says, but for the drawings: those are on the picture
  double frameRate = 0;      ///< pictures per second, from the file
  double VideoZoom = 1.0;
  double PanX = 0;  ///< twips before zoom
  double PanY = 0;
  bool Fits = false;      ///< zoom 1 shows all of the picture; else it fills the height of its cell
  int SlotFrameRate = 0;  ///< set by the user; 0 means the video's own
  bool refused = false;   ///< its work could not be written when it was tried last

  TwipRect cell;   ///< the place in the grid
  TwipRect panel;  ///< the clip area, relative to the cell
  int foot = 0;    ///< twips beneath it that a panel has
};

/// The name of a video as the lists show it, from its path.
std::string NameOfVideo(const std::string& path);

/// The eight slots in their places: which of them the layout shows and where, which is current, and the way
/// home of what shows them otherwise. Videos enter and leave through Videos.
class Stage {
 public:
  Stage(IHost& host, const Settings& settings, IStageView& view, IStageEvents& events);

  /// Hands over the player of a slot: its number, pen and raster mode are set here. Players are not
  /// owned and must outlive the stage's use.
  void AttachPlayer(int slot, AVIControl& player);
  /// Where changes are noted.
  StageNews& News() { return news_; }

  // --- slots
  int CurrentWindow = 1;

  Slot& At(int slot) { return slots_[static_cast<std::size_t>(slot - 1)]; }
  const Slot& At(int slot) const { return slots_[static_cast<std::size_t>(slot - 1)]; }
  Slot& Current() { return At(CurrentWindow); }
  const Slot& Current() const { return At(CurrentWindow); }
  AVIControl& MP(int slot) const { return *At(slot).MP; }
  bool HasVideo(int slot) const { return !At(slot).path.empty(); }
  int VideoCount() const { return static_cast<int>(std::ranges::count_if(slots_, &HoldsVideo)); }
  bool AnyVideo() const { return VideoCount() > 0; }
  /// True when a slot, shown or hidden, holds this file.
  bool CheckOpenInAnalysis(const std::string& path) const;
  /// Writes the name of a slot's video over its picture, with what its owner must know of it.
  void ShowTitle(int slot);
  /// Nothing stands in a slot any more; its place stays.
  void Clear(int slot);

  // --- layouts
  std::string ScreenLayout = "1";

  /// Slots that the present layout shows; 1 in "MAX".
  int SlotsShown() const;
  bool IsShown(int slot) const;
  /// Size of the stage, twips.
  int PanelWidth() const { return view_.MainPanelWidth(); }
  int PanelHeight() const { return view_.MainPanelHeight(); }
  /// Changes the layout; without `Force` a second press of the present one only takes the focus back.
  /// A current window that the new layout does not show gives way to window 1. What has the stage to itself
  /// loses it, and comes home to the new layout.
  void SetScreen(int Mode, bool Force = false);
  /// Places all cells and the play bar; call it also when the panel's size has changed.
  void FormReset();
  /// Places the player of a slot in its cell; its drawings follow its size.
  void MPResize(int slot);
  /// A slot's video has come or gone: its player is shown in its place, or hidden.
  void HidePlayer(int slot);
  /// Fills a slot's cell with its player, which has nothing to show but its colour.
  void ShowColour(int slot);
  /// Shows all of a slot's picture, or lets it fill the height of its cell; at zoom 1 and in the middle.
  void SetFits(int slot, bool on);
  /// Takes over from the settings what stands beneath the pictures, and whether they fit or fill where that has
  /// changed there.
  void SettingsChanged();
  /// Docks the play bar under the picture of the current window.
  void SetPlayBar();
  /// A panel stands at the foot of a slot's picture, which makes room for it; 0 for none.
  void SetFoot(int slot);
  /// Nothing shows under the pictures, which take the bar's room too; FormReset makes it so.
  bool BarHidden = false;
  /// How much higher than designed the bars beneath the pictures are, for larger letters; FormReset makes
  /// it so.
  double BarScale = 1;

  // --- focus
  /// Makes CurrentWindow take effect.
  void FocusSet();
  /// Makes a slot current when it is not; out of range and hidden slots are ignored.
  void SelectWindow(int slot);
  /// The keys are the workspace's again.
  void FocusKeyBox() { view_.FocusKeyBox(); }

  // --- the stage to itself
  /// Gives the stage to something that shows the videos in another way, under a layout or one of the two
  /// states "MAX" and "MF". `taker` (null: nobody) is told when it loses it, before the layout comes back or
  /// the next one takes over.
  void TakeStage(std::string_view layout, ITakesStage* taker = nullptr);
  /// Ends what has the stage, and shows the layout and the window from before; nothing when nothing has.
  void ComeHome();
  const StageHome& Home() const { return home_; }
  /// Shows the current video alone, or goes back. An empty slot is refused with false.
  bool ToggleMaximize();
  bool Maximized() const { return ScreenLayout == kMaximized; }
  /// The current video stands beneath its film strip.
  bool MultiFrame() const { return ScreenLayout == kMultiFrame; }
  bool Alone() const { return Maximized() || MultiFrame(); }

  // --- zoom and pan of the current slot
  /// Clamped to 0.2 to 4.0.
  void SetZoom(double zoom);
  void Pan(double dx, double dy);
  void ResetZoom();

 private:
  static bool HoldsVideo(const Slot& slot) { return !slot.path.empty(); }
  void ShowLayout(int window);
  bool FitByDefault() const { return settings_.VideoFit == 1; }
  void ShowZoom(int slot);
  int BarHeight(const TwipRect& cell) const;
  int FilmHeight(const TwipRect& cell) const;

  const Settings& settings_;
  IStageView& view_;
  StageNews news_;
  std::array<Slot, kSlots> slots_;
  StageHome home_;
  bool fitByDefault_ = false;  ///< what the settings said last
  int foot_ = 0;               ///< slot that gives room to a panel; 0 none
};

}  // namespace kinalyx
