#include "workspace/Workspace.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "library/SidecarMerge.h"
#include "platform/host/DriveWatch.h"
#include "workspace/MultiPicture.h"
#include "workspace/PlayerPlace.h"

namespace kinalyx {
namespace {

constexpr int kBorder = 4 * kTwipsPerPixel;      // gap and frame round a cell
constexpr int kBarHeight = 40 * kTwipsPerPixel;  // strip under the picture where the play bar stands
constexpr int kTallBarHeight = 72 * kTwipsPerPixel;
constexpr int kNarrowCell = 900 * kTwipsPerPixel;  // below this width the bar takes two rows

std::string NameWithoutExtension(const std::string& file) {
  const auto dot = file.rfind('.');
  return dot == std::string::npos ? file : file.substr(0, dot);
}

/// "Erica Sample · (003) FO driver" from the path of a video.
std::string CellTitle(const std::string& path) {
  const std::string file = LastName(path);
  const std::string folder = LastName(path.substr(0, path.size() - std::min(path.size(), file.size() + 1)));
  const std::string name = NameWithoutExtension(file);
  return folder.empty() ? name : folder + " \u00B7 " + name;
}

}  // namespace

Workspace::Workspace(IHost& host, Settings& settings, IWorkspaceView& view)
    : host_(host), settings_(settings), view_(view) {
  if (const ScreenMode* mode = FindScreenMode(settings.ScreenModeNumber())) ScreenLayout = mode->Code;
}

void Workspace::AttachPlayer(int slot, AVIControl& player) {
  At(slot).MP = &player;
  player.setID(slot);
  player.setDrawMode(static_cast<int>(Rop2::CopyPen));
  player.setDrawWidth(settings_.CadWidth);
}

bool Workspace::AnyVideo() const {
  return std::ranges::any_of(slots_, [](const Slot& slot) { return !slot.path.empty(); });
}

bool Workspace::CheckOpenInAnalysis(const std::string& path) const {
  // The same file may be reached over a link to its folder.
  return !path.empty() && std::ranges::any_of(slots_, [&](const Slot& slot) {
    return slot.path == path || (LastName(slot.path) == LastName(path) && SamePlace(slot.path, path));
  });
}

int Workspace::SlotsShown() const { return Alone() ? 1 : Val(ScreenLayout); }

bool Workspace::IsShown(int slot) const {
  return Alone() ? slot == CurrentWindow : slot >= 1 && slot <= Val(ScreenLayout);
}

// ---------------------------------------------------------------- layouts

void Workspace::SetScreen(int Mode, bool Force) {
  const ScreenMode* mode = FindScreenMode(Mode);
  if (!mode) return;
  if (home_.Away()) {
    home_.SavedLayout = mode->Code;
    ComeHome();
  } else if (Force || ScreenLayout != mode->Code) {
    ScreenLayout = mode->Code;
    ShowLayout(CurrentWindow);
  }
  view_.FocusKeyBox();
}

/// Shows the present layout with this window as the current one, or window 1 where it is not shown.
void Workspace::ShowLayout(int window) {
  const int before = std::exchange(CurrentWindow, window);
  if (!IsShown(CurrentWindow)) CurrentWindow = 1;
  FormReset();
  if (CurrentWindow != before) FocusSet();
  StateChanged();
  view_.CommandsChanged();
}

void Workspace::TakeStage(std::string_view layout, std::function<void()> ended) {
  home_.Take(ScreenLayout, CurrentWindow, std::move(ended));
  ScreenLayout = layout;
  ShowLayout(CurrentWindow);
}

void Workspace::ComeHome() {
  if (!home_.Away()) return;
  ScreenLayout = home_.SavedLayout;
  home_.Leave();
  ShowLayout(home_.SavedWindow);
}

void Workspace::FormReset() {
  const std::vector<TwipRect> cells = LayoutCells(ScreenLayout, view_.MainPanelWidth(), view_.MainPanelHeight());
  for (int slot = 1; slot <= kSlots; ++slot) {
    if (!IsShown(slot)) {
      view_.HideCell(slot);
      continue;
    }
    Slot& at = At(slot);
    at.cell = cells[Alone() ? 0 : static_cast<std::size_t>(slot - 1)];
    if (MultiFrame()) at.cell = MultiPicture::Cell(view_.MainPanelWidth(), view_.MainPanelHeight(), at.data.Wide);
    at.panel = {kBorder, kBorder, std::max(at.cell.Width - 2 * kBorder, kTwipsPerPixel),
                std::max(at.cell.Height - 2 * kBorder - (BarHidden ? 0 : BarHeight(at.cell)), kTwipsPerPixel)};
    if (FootHeight) at.panel.Height -= FootHeight(slot, at.panel.Height);
    view_.PlaceCell(slot, at.cell, at.panel);
    view_.PaintBorder(slot, slot == CurrentWindow);
    MPResize(slot);
  }
  SetPlayBar();
}

/// The bar has a strip of its own under every picture, so that it never covers a foot or a ball, and no
/// picture changes its size when another window becomes current.
int Workspace::BarHeight(const TwipRect& cell) const {
  const int height = cell.Width < kNarrowCell * BarScale ? kTallBarHeight : kBarHeight;
  return static_cast<int>(std::lround(height * BarScale));
}

void Workspace::MPResize(int slot) {
  Slot& at = At(slot);
  if (!HasVideo(slot)) {
    view_.PlacePlayer(slot, {}, false);
    return;
  }
  const int oldWidth = at.MP->ControlWidthPixels();
  const int oldHeight = at.MP->ControlHeightPixels();
  view_.PlacePlayer(slot, PlayerPlace(at), true);
  const bool resized = oldWidth != at.MP->ControlWidthPixels() || oldHeight != at.MP->ControlHeightPixels();
  if (resized || !at.placed) {
    at.placed = true;
    PlayerResized(slot);
  }
  at.MP->Refresh();
}

void Workspace::SetPlayBar() {
  const TwipRect& cell = Current().cell;
  const int bar = BarHeight(cell);
  view_.PlacePlayBar(
      {cell.Left + kBorder, cell.Top + cell.Height - kBorder - bar, std::max(0, cell.Width - 2 * kBorder), bar});
}

void Workspace::FocusSet() {
  view_.PaintBorder(CurrentWindow, true);
  FocusChanged();
  for (int slot = 1; slot <= Val(ScreenLayout); ++slot)
    if (slot != CurrentWindow) view_.PaintBorder(slot, false);
  SetPlayBar();
  view_.CommandsChanged();
}

void Workspace::SelectWindow(int slot) {
  if (slot == CurrentWindow || slot < 1 || slot > kSlots || !IsShown(slot)) return;
  CurrentWindow = slot;
  FocusSet();
}

bool Workspace::ToggleMaximize() {
  if (Maximized()) {
    ComeHome();
  } else {
    if (!HasVideo(CurrentWindow)) return false;
    TakeStage(kMaximized);
  }
  return true;
}

// ---------------------------------------------------------------- videos

bool Workspace::OpenVideo(int slot, const std::string& path) {
  if (slot < 1 || slot > kSlots) return false;
  const bool another = HasVideo(slot);
  if (!Vacate(slot)) return false;
  // A video that stands in another slot too comes with what has been drawn there so far.
  for (int other = 1; other <= kSlots; ++other)
    if (At(other).path == path) SaveData(other);

  Slot& at = At(slot);
  const auto info = ReadVideoInfo(path);
  if (!info) {
    RefuseVideo(slot, path, false);
    return false;
  }
  at.base = at.data = ReadVideoData(SidecarPath(path), *info, settings_.NewColors);
  at.sidecarStamp = StampOf(SidecarPath(path));
  if (!at.MP->Load(path, at.data.SplitFields, at.data.ReverseFields)) {
    RefuseVideo(slot, path, true);
    return false;
  }
  at.path = path;
  at.frameRate = info->scale > 0 ? static_cast<double>(info->rate) / static_cast<double>(info->scale) : 0;
  at.marks.clear();
  at.SlotFrameRate = 0;
  at.VideoZoom = 1.0;
  at.PanX = at.PanY = 0;
  at.changed = at.savedElsewhere = at.refused = at.placed = false;
  VideoOpened(slot);
  ShowTitle(slot);
  // Reversed fields open on the second one of the first picture; every film is shown from its start.
  if (at.MP->Position() == 1) at.MP->DrawFrame(0);
  if (IsShown(slot)) {
    MPResize(slot);
  } else {
    at.MP->Refresh();
  }
  StateChanged();
  view_.CommandsChanged();
  if (another && Maximized()) ComeHome();
  return true;
}

void Workspace::RefuseVideo(int slot, const std::string& path, bool hasStream) {
  Slot& at = At(slot);
  at.data = {};
  if (!hasStream) at.MP->Load(path, false, false);  // fails, and leaves the colour that says why
  if (Maximized() && !HasVideo(CurrentWindow)) ComeHome();
  // That colour stands in the cell until another video takes the place.
  if (IsShown(slot)) view_.PlacePlayer(slot, {0, 0, at.panel.Width, at.panel.Height}, true);
  StateChanged();
  view_.CommandsChanged();
  host_.Message(MessageKind::Warning, "",
                !FileExists(path) ? "The video \"" + LastName(path) + "\" is no longer there."
                : hasStream       ? "The video \"" + LastName(path) + "\" is damaged: it holds no picture that can be shown."
                                  : "The specified file does not contain media streams, make sure you choose a "
                                    "valid media file");
}

bool Workspace::CloseVideo(int slot) {
  const bool had = HasVideo(slot);
  if (!Vacate(slot)) return false;
  if (!had) return true;
  StateChanged();
  if (Maximized()) ComeHome();
  view_.CommandsChanged();
  return true;
}

/// Empties a slot, for good or for the next video, which is for the caller to tell. False when the user
/// keeps the video open.
bool Workspace::Vacate(int slot) {
  Slot& at = At(slot);
  if (!HasVideo(slot)) {
    if (at.MP) view_.PlacePlayer(slot, {}, false);  // clears the colour that a damaged file left
    return true;
  }
  if (at.MP->IsPlaying()) at.MP->StopPlay();
  VideoClosing(slot);
  if (!SaveOrAsk(slot)) return false;
  VideoClosed(slot);
  at.MP->Unload();
  view_.PlacePlayer(slot, {}, false);
  at.MP->setFlipHorizontal(false);
  at.MP->setSpeed(100);
  Slot empty;
  empty.MP = at.MP;
  empty.cell = at.cell;
  empty.panel = at.panel;
  at = std::move(empty);
  ShowTitle(slot);
  view_.SetCellPosition(slot, 0, 0, "");
  return true;
}

bool Workspace::HasUnsaved(int slot) { return CollectData(slot) || At(slot).changed; }

bool Workspace::SaveData(int slot, std::string* error) {
  Slot& at = At(slot);
  const bool changed = HasUnsaved(slot);
  // With nothing of its own to say a slot leaves alone what another one wrote for the same video, and what
  // could not be read.
  if (!changed && (at.savedElsewhere || at.data.Unread)) return true;
  if (!host_.Drives().Answers(settings_.LibraryPath, at.path)) {
    if (error) *error = "the drive is not answering";
    return false;
  }
  const std::string sidecar = SidecarPath(at.path);
  if (StampOf(sidecar) != at.sidecarStamp) at.savedElsewhere = true;
  if (!changed && at.savedElsewhere) return true;
  // A video that somebody else has taken away needs no sidecar; new work on it is kept all the same.
  if (!changed && !FileExists(at.path)) return true;
  // Both have something to say: whoever saves brings it together. What was drawn there does not stand in this
  // window, which therefore has a base of its own.
  MergedData merged{at.data, at.data.Shapes};
  if (at.savedElsewhere && at.MP->Info() && FileSize(sidecar).value_or(0) > 0) {
    const SlotData theirs = ReadVideoData(sidecar, *at.MP->Info(), settings_.NewColors);
    if (theirs.Unread) merged.whole.Unread = true;  // and what is missing in it was not deleted: it is kept beside
    else merged = MergeVideoData(at.data, theirs, at.base);
  }
  SlotData& whole = merged.whole;
  const std::string_view fitting = FittingNotes(whole.Notes);
  if (fitting.size() < whole.Notes.size()) whole.Unread = true;  // what is about to be cut stands in the file before
  std::string reason;
  const bool written = WriteVideoData(sidecar, whole, &reason);
  if (!written) host_.Note(MessageKind::Warning, "a sidecar could not be saved: " + reason);
  if (error) *error = reason;
  if (!written) return false;
  at.sidecarStamp = StampOf(sidecar);
  at.changed = at.data.Unread = false;
  const bool notesCame = at.data.Notes != fitting;
  at.data.Notes = fitting;
  at.base = at.data;
  at.base.Shapes = std::move(merged.own);
  at.base.PictureWidth = whole.PictureWidth;
  at.base.PictureHeight = whole.PictureHeight;
  DataSaved(slot);
  for (Slot& other : slots_)
    if (&other != &at && other.path == at.path) other.savedElsewhere = true;
  if (notesCame) StateChanged();
  return true;
}

bool Workspace::SaveOrAsk(int slot) {
  std::string error;
  while (!SaveData(slot, &error)) {
    // A library that cannot be written to is no reason to ask as long as nothing gets lost.
    if (!HasUnsaved(slot)) return true;
    const std::string name = NameWithoutExtension(LastName(At(slot).path));
    if (host_.Question("Drawings not saved",
                       fmt::format("The drawings and notes of \"{}\" could not be saved: {}. Would you like to try again?",
                                   name, error)))
      continue;
    return host_.Question("Drawings not saved",
                          fmt::format("Close \"{}\" all the same? Its new drawings and notes will be lost. Answer No to "
                                      "keep it open.",
                                      name));
  }
  const std::string& path = At(slot).path;
  const auto sidecarAlone = [path] { return !FileExists(path) && FileExists(SidecarPath(path)); };
  if (error.empty() && host_.Drives().Ask(settings_.LibraryPath, sidecarAlone).value_or(false))
    error = fmt::format("Somebody else has renamed, moved or deleted the video \"{}\". Its drawings and notes are kept in {}.",
                        NameWithoutExtension(LastName(path)), SidecarPath(path));
  if (!error.empty()) host_.Message(MessageKind::Warning, "", error);
  return true;
}

void Workspace::SetNotes(int slot, const std::string& notes) {
  Slot& at = At(slot);
  if (!HasVideo(slot) || at.data.Notes == notes) return;
  at.data.Notes = notes;
  at.changed = true;
  DataChanged();
}

bool Workspace::CloseAll() {
  ComeHome();
  ClosedStage stage{{}, ScreenLayout, CurrentWindow};
  for (int slot = 1; slot <= kSlots; ++slot) {
    if (!HasVideo(slot)) continue;
    const Slot& at = At(slot);
    stage.videos.push_back({slot, at.path, at.MP->Position(), at.MP->FlipHorizontal(), at.VideoZoom, at.PanX, at.PanY});
  }
  bool all = true;
  for (const ClosedVideo& video : stage.videos) all = CloseVideo(video.slot) && all;
  if (!stage.videos.empty()) closed_ = std::move(stage);
  CurrentWindow = 1;
  FocusSet();
  view_.CommandsChanged();
  return all;
}

bool Workspace::CanReopen() const {
  return !closed_.videos.empty() && std::ranges::all_of(slots_, [](const Slot& at) { return at.path.empty(); });
}

void Workspace::Reopen(const ClosedVideo& video) {
  if (!OpenVideo(video.slot, video.path)) return;
  Slot& at = At(video.slot);
  at.VideoZoom = video.zoom;
  at.PanX = video.panX;
  at.PanY = video.panY;
  if (video.flipped) Flip(video.slot);
  MPResize(video.slot);
  at.MP->DrawFrame(video.position);
}

void Workspace::ReopenClosed() {
  if (!CanReopen()) return;
  ComeHome();
  const ClosedStage stage = std::exchange(closed_, {});
  ScreenLayout = stage.layout;
  FormReset();
  for (const ClosedVideo& video : stage.videos) Reopen(video);
  SelectWindow(stage.currentWindow);
  view_.CommandsChanged();
}

int Workspace::SendToAnalysis(const std::string& path, const std::function<void(const std::string&)>& status) {
  const auto tell = [&](const char* words) {
    if (status) status(words);
  };
  int slot = 1;
  while (slot <= kSlots && HasVideo(slot)) ++slot;
  if (slot > kSlots) {
    tell("All 8 windows already have videos in them. Send to analysis failed.");
    return 0;
  }
  tell("Loading Analysis Section...");
  tell("Sending current video to Analysis...");
  if (!OpenVideo(slot, path)) {
    tell("");
    return 0;
  }
  // What has the stage gives way, unless the video came into one of the windows that it shows.
  if (!IsShown(slot)) ComeHome();
  const auto used = static_cast<int>(std::ranges::count_if(slots_, [](const Slot& at) { return !at.path.empty(); }));
  if (!home_.Away() && used > Val(ScreenLayout)) SetScreen(used == 5 || used == 7 ? used + 1 : used);
  SelectWindow(slot);
  tell("Current video was sent to Analysis.");
  return slot;
}

void Workspace::OpenFamily(const std::vector<std::string>& paths) {
  bool first = true;
  for (const std::string& path : paths) {
    if (!std::exchange(first, false)) {
      if (!IsShown(CurrentWindow + 1)) return;
      SelectWindow(CurrentWindow + 1);
    }
    if (!OpenVideo(CurrentWindow, path)) return;
  }
}

void Workspace::UndoLastOpen() {
  if (!CloseVideo(CurrentWindow) || CurrentWindow == 1) return;
  SelectWindow(CurrentWindow - 1);
}

bool Workspace::CanFill() const {
  return HasVideo(CurrentWindow) && FindScreenMode(ScreenLayout) && SlotsShown() > 1;
}

bool Workspace::CanFillRows() const { return CanFill() && LastOfTopRow(ScreenLayout) > 0; }

bool Workspace::Fill(int first, int last) {
  const std::string path = Current().path;
  for (int slot = first; slot <= last; ++slot)
    if (slot != CurrentWindow && !OpenVideo(slot, path)) return false;
  return true;
}

void Workspace::FillAll() {
  if (CanFill()) Fill(1, SlotsShown());
}

void Workspace::FillTopRow() {
  if (CanFillRows()) Fill(1, LastOfTopRow(ScreenLayout));
}

void Workspace::FillBottomRow() {
  if (CanFillRows()) Fill(LastOfTopRow(ScreenLayout) + 1, SlotsShown());
}

void Workspace::ShowTitle(int slot) {
  const Slot& at = At(slot);
  view_.SetCellTitle(slot, at.path.empty() ? "" : CellTitle(at.path) + (at.refused ? " · not saved" : ""));
}

void Workspace::SetRefused(int slot, bool refused) {
  if (std::exchange(At(slot).refused, refused) != refused) ShowTitle(slot);
}

// ---------------------------------------------------------------- video commands

void Workspace::ToggleFlip() {
  if (!HasVideo(CurrentWindow)) return;
  Flip(CurrentWindow);
  view_.CommandsChanged();
}

void Workspace::Flip(int slot) {
  AVIControl& player = MP(slot);
  player.setFlipHorizontal(!player.FlipHorizontal());
  PictureFlipped(slot);
  player.Refresh();
}

void Workspace::ToggleSplitFields() {
  if (!HasVideo(CurrentWindow)) return;
  Slot& at = Current();
  // The position stays on its frame, although its number doubles or halves.
  if (at.MP->IsPlaying()) at.MP->StopPlay();
  const int frame = at.MP->SplitFields() ? at.MP->Position() / 2 : at.MP->Position();
  at.data.SplitFields = !at.MP->SplitFields();
  at.changed = true;
  DataChanged();
  for (int& mark : at.marks) mark = at.data.SplitFields ? 2 * mark : mark / 2;
  at.MP->setSplitFields(at.data.SplitFields);
  at.MP->DrawFrame(at.data.SplitFields ? 2 * frame : frame);
  StateChanged();
  view_.CommandsChanged();
}

void Workspace::ToggleReverseFields() {
  if (!HasVideo(CurrentWindow)) return;
  Slot& at = Current();
  const int position = at.MP->Position();
  at.data.ReverseFields = !at.MP->ReverseFields();
  at.changed = true;
  DataChanged();
  at.MP->setReverseFields(at.data.ReverseFields);
  // The play goes on by itself; a picture that stands still keeps its number and shows its other field.
  if (!at.MP->IsPlaying()) at.MP->DrawFrame(position);
  view_.CommandsChanged();
}

void Workspace::SetZoom(double zoom) {
  if (!HasVideo(CurrentWindow)) return;
  Current().VideoZoom = NearestZoom(zoom);
  MPResize(CurrentWindow);
}

void Workspace::Pan(double dx, double dy) {
  if (!HasVideo(CurrentWindow)) return;
  Current().PanX += dx;
  Current().PanY += dy;
  MPResize(CurrentWindow);
}

void Workspace::ResetZoom() {
  Current().PanX = Current().PanY = 0;
  SetZoom(1.0);
}

}  // namespace kinalyx
