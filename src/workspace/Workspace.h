#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/Settings.h"
#include "library/Sidecar.h"
#include "platform/files/Folders.h"
#include "video/AVIControl.h"
#include "workspace/IWorkspaceView.h"
#include "workspace/Layout.h"
#include "workspace/StageHome.h"

namespace kinalyx {

/// One of the eight places for a video.
struct Slot {
  AVIControl* MP = nullptr;  ///< the player, owned by the window
  std::string path;          ///< the open video, "" when none
  SlotData data;             ///< what the sidecar says of it; the drawings are elsewhere while it is open
  double frameRate = 0;      ///< pictures per second, from the file
  double VideoZoom = 1.0;
  double PanX = 0;           ///< twips before zoom
  double PanY = 0;
  int SlotFrameRate = 0;     ///< set by the user; 0 means the video's own
  std::vector<int> marks;    ///< positions, at most ten
  bool changed = false;      ///< fields or notes differ from what the sidecar held
  SlotData base;  ///< this slot's own work as it was read or written last, its drawings as the file has them
  std::optional<FileStamp> sidecarStamp;  ///< of its sidecar, as it was then
  bool savedElsewhere = false;  ///< another slot, or another workstation, has written the same sidecar since
  bool refused = false;         ///< its work could not be written when it was tried last
  bool placed = false;          ///< its video has had a place, and what is drawn over it the size

  TwipRect cell;   ///< the place in the grid
  TwipRect panel;  ///< the clip area, relative to the cell
};

/// The state of the analysis section: eight slots, the layout, the current window, and the roads by
/// which a video enters and leaves a slot. Knows no window system; what shows it is told through
/// IWorkspaceView.
class Workspace {
 public:
  Workspace(IHost& host, Settings& settings, IWorkspaceView& view);

  /// Hands over the player of a slot: its number, pen and raster mode are set here. Players are not
  /// owned and must outlive the workspace's use.
  void AttachPlayer(int slot, AVIControl& player);

  // --- shared state
  int CurrentWindow = 1;
  std::string ScreenLayout = "1";

  Slot& At(int slot) { return slots_[static_cast<std::size_t>(slot - 1)]; }
  const Slot& At(int slot) const { return slots_[static_cast<std::size_t>(slot - 1)]; }
  Slot& Current() { return At(CurrentWindow); }
  const Slot& Current() const { return At(CurrentWindow); }
  AVIControl& MP(int slot) const { return *At(slot).MP; }
  bool HasVideo(int slot) const { return !At(slot).path.empty(); }
  bool AnyVideo() const;
  /// True when a slot, shown or hidden, holds this file.
  bool CheckOpenInAnalysis(const std::string& path) const;
  /// Slots that the present layout shows; 1 in "MAX".
  int SlotsShown() const;
  bool IsShown(int slot) const;

  // --- layouts
  /// Changes the layout; without `Force` a second press of the present one only takes the focus back.
  /// A current window that the new layout does not show gives way to window 1. What has the stage to itself
  /// loses it, and comes home to the new layout.
  void SetScreen(int Mode, bool Force = false);
  /// Places all cells and the play bar; call it also when the panel's size has changed.
  void FormReset();
  /// Places the player of a slot in its cell; its drawings follow its size.
  void MPResize(int slot);
  /// Docks the play bar under the picture of the current window.
  void SetPlayBar();
  /// Makes CurrentWindow take effect.
  void FocusSet();
  /// Makes a slot current when it is not; out of range and hidden slots are ignored.
  void SelectWindow(int slot);
  /// Gives the stage to something that shows the videos in another way, under a layout or one of the two
  /// states "MAX" and "MF". `ended` is called before the layout comes back, or the next one takes over.
  void TakeStage(std::string_view layout, std::function<void()> ended = {});
  /// Ends what has the stage, and shows the layout and the window from before; nothing when nothing has.
  void ComeHome();
  const StageHome& Home() const { return home_; }
  /// Shows the current video alone, or goes back. An empty slot is refused with false.
  bool ToggleMaximize();
  bool Maximized() const { return ScreenLayout == kMaximized; }
  /// The current video stands beneath its film strip.
  bool MultiFrame() const { return ScreenLayout == kMultiFrame; }
  bool Alone() const { return Maximized() || MultiFrame(); }

  // --- videos
  /// The one road by which a video enters a slot. False when it could not be opened, or when the video
  /// there before could not be closed; the user has been told.
  bool OpenVideo(int slot, const std::string& path);
  /// The one road out of a slot. Its drawings and notes are written first; when that fails the user may
  /// try again, lose them, or keep the video open, which is the only case of false.
  bool CloseVideo(int slot);
  /// False when the user kept one open.
  bool CloseAll();
  /// Opens again what CloseAll closed last: the same videos at the same pictures, mirrored and
  /// zoomed as they were, in the same layout.
  /// Nothing happens once a video stands in a slot.
  void ReopenClosed();
  bool CanReopen() const;
  /// Opens a file in the first free slot and widens the layout when more slots are in use than it shows.
  /// Returns the slot, or 0 with nothing changed. `status` gets the words for a status line.
  int SendToAnalysis(const std::string& path, const std::function<void(const std::string&)>& status = {});
  /// Opens several files in successive windows, beginning with the current one; a window that the layout
  /// does not show ends it.
  void OpenFamily(const std::vector<std::string>& paths);
  /// Closes the current video and goes back to the window before.
  void UndoLastOpen();
  /// Loads the current file into the other slots: all, those of the top row, those of the bottom row.
  void FillAll();
  void FillTopRow();
  void FillBottomRow();
  bool CanFill() const;
  bool CanFillRows() const;

  /// Writes the sidecar of a slot now; false with the reason when the disk refuses.
  bool SaveData(int slot, std::string* error = nullptr);
  /// True when the slot holds drawings, notes or fields that its sidecar does not.
  bool HasUnsaved(int slot);
  /// Whether the disk does not take what was drawn and noted; its title says so.
  void SetRefused(int slot, bool refused);
  /// The notes of a slot's video; they are written by SaveData, and at the latest when it closes.
  void SetNotes(int slot, const std::string& notes);

  // --- video commands
  void ToggleFlip();
  void ToggleSplitFields();
  void ToggleReverseFields();
  /// Zoom, clamped to 0.2 to 4.0, and pan of the current slot.
  void SetZoom(double zoom);
  void Pan(double dx, double dy);
  void ResetZoom();

  /// Nothing shows under the pictures, which take the bar's room too; FormReset makes it so.
  bool BarHidden = false;
  /// How much higher than designed the bars beneath the pictures are, for larger letters; FormReset makes
  /// it so.
  double BarScale = 1;

  // --- seams for what lies on the pictures and beside them; all must be set before a video opens

  /// What a panel takes at the foot of a slot's picture of this height, both in twips; may be left unset.
  std::function<int(int slot, int height)> FootHeight;
  /// A slot's player has another size.
  std::function<void(int slot)> PlayerResized;
  /// A slot's picture was mirrored: its drawings turn with it.
  std::function<void(int slot)> PictureFlipped;
  /// A video has entered a slot and its data are read.
  std::function<void(int slot)> VideoOpened;
  /// A video is about to be written and to leave: what is under construction on it ends.
  std::function<void(int slot)> VideoClosing;
  /// It is written and about to be unloaded: its drawings go.
  std::function<void(int slot)> VideoClosed;
  /// Puts what lies on a slot's picture into its data; true when it differs from what was stored last.
  std::function<bool(int slot)> CollectData;
  /// The data of a slot have been stored.
  std::function<void(int slot)> DataSaved;
  /// The notes or fields of a slot have changed, and are to be stored.
  std::function<void()> DataChanged;
  /// The current window changed.
  std::function<void()> FocusChanged;
  /// Something else of the current window changed: its video, its fields, its loop.
  std::function<void()> StateChanged;

 private:
  /// A video as it stood when all were closed.
  struct ClosedVideo {
    int slot = 1;
    std::string path;
    int position = 0;
    bool flipped = false;
    double zoom = 1;
    double panX = 0;
    double panY = 0;
  };
  struct ClosedStage {
    std::vector<ClosedVideo> videos;
    std::string layout;
    int currentWindow = 1;
  };

  void ShowLayout(int window);
  bool Vacate(int slot);
  bool Fill(int first, int last);
  bool SaveOrAsk(int slot);
  void ShowTitle(int slot);
  int BarHeight(const TwipRect& cell) const;
  void RefuseVideo(int slot, const std::string& path, bool hasStream);
  void Flip(int slot);
  void Reopen(const ClosedVideo& video);

  IHost& host_;
  Settings& settings_;
  IWorkspaceView& view_;

  std::array<Slot, kSlots> slots_;
  StageHome home_;
  ClosedStage closed_;  ///< what was closed last, all at once
};

}  // namespace kinalyx
