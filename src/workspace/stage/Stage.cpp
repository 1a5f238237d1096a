#include "workspace/stage/Stage.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "workspace/stage/PlayerPlace.h"

namespace kinalyx {
namespace {

constexpr int kBorder = 4 * kTwipsPerPixel;      // gap and frame round a cell
constexpr int kBarHeight = 40 * kTwipsPerPixel;  // strip under the picture where the play bar stands
constexpr int kTallBarHeight = 72 * kTwipsPerPixel;
constexpr int kNarrowCell = 960 * kTwipsPerPixel;  // below this width the bar takes two rows
constexpr int kFilmHeight = 40 * kTwipsPerPixel;   // row of pictures of the video
constexpr int kFilmFrom = 480 * kTwipsPerPixel;    // cells of this height have room for it
constexpr int kFootHeight = 150 * kTwipsPerPixel;

/// "Erica Sample · (003) FO driver" from the path of a video.
std::string CellTitle(const std::string& path) {
  const std::string file = LastName(path);
  const std::string folder = LastName(path.substr(0, path.size() - std::min(path.size(), file.size() + 1)));
  const std::string name = NameOfVideo(path);
  return folder.empty() ? name : folder + " \u00B7 " + name;
}

}  // namespace

std::string NameOfVideo(const std::string& path) {
  const std::string file = LastName(path);
  return file.substr(0, file.rfind('.'));
}

Stage::Stage(IHost& host, const Settings& settings, IStageView& view, IStageEvents& events)
    : settings_(settings), view_(view), news_(host, events) {
  if (const ScreenMode* mode = FindScreenMode(settings.ScreenModeNumber())) ScreenLayout = mode->Code;
  fitByDefault_ = FitByDefault();
  for (Slot& slot : slots_) slot.Fits = fitByDefault_;
}

void Stage::AttachPlayer(int slot, AVIControl& player) {
  At(slot).MP = &player;
  player.setID(slot);
  player.setDrawMode(Rop2::CopyPen);
  player.setDrawWidth(settings_.CadWidth);
}

// ---------------------------------------------------------------- slots

bool Stage::CheckOpenInAnalysis(const std::string& path) const {
  // The same file may be reached over a link to its folder.
  return !path.empty() && std::ranges::any_of(slots_, [&](const Slot& slot) {
    return slot.path == path || (LastName(slot.path) == LastName(path) && SamePlace(slot.path, path));
  });
}

void Stage::ShowTitle(int slot) {
  const Slot& at = At(slot);
  view_.SetCellTitle(slot, at.path.empty() ? "" : CellTitle(at.path) + (at.refused ? Tr(" · not saved") : ""));
}

void Stage::Clear(int slot) {
  Slot& at = At(slot);
  Slot empty;
  empty.MP = at.MP;
  empty.cell = at.cell;
  empty.panel = at.panel;
  empty.Fits = FitByDefault();
  at = std::move(empty);
  ShowTitle(slot);
}

// ---------------------------------------------------------------- layouts

int Stage::SlotsShown() const { return Alone() ? 1 : Val(ScreenLayout); }

bool Stage::IsShown(int slot) const { return Alone() ? slot == CurrentWindow : slot >= 1 && slot <= Val(ScreenLayout); }

void Stage::SetScreen(int Mode, bool Force) {
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
void Stage::ShowLayout(int window) {
  const int before = std::exchange(CurrentWindow, window);
  if (!IsShown(CurrentWindow)) CurrentWindow = 1;
  FormReset();
  if (CurrentWindow != before) FocusSet();
  news_.Note(kVideoChanged);
}

void Stage::FormReset() {
  const std::vector<TwipRect> cells = LayoutCells(ScreenLayout, view_.MainPanelWidth(), view_.MainPanelHeight());
  for (int slot = 1; slot <= kSlots; ++slot) {
    if (!IsShown(slot)) {
      view_.HideCell(slot);
      continue;
    }
    Slot& at = At(slot);
    at.cell = cells[Alone() ? 0 : static_cast<std::size_t>(slot - 1)];
    if (MultiFrame()) at.cell = CellBeneathStrip(view_.MainPanelWidth(), view_.MainPanelHeight(), at.data.Wide);
    at.panel = {kBorder, kBorder, std::max(at.cell.Width - 2 * kBorder, kTwipsPerPixel),
                std::max(at.cell.Height - 2 * kBorder - (BarHidden ? 0 : BarHeight(at.cell)), kTwipsPerPixel)};
    at.foot = slot == foot_ ? std::min(kFootHeight, at.panel.Height / 2) : 0;
    at.panel.Height -= at.foot;
    const int film = FilmHeight(at.cell);
    at.panel.Height -= film;
    view_.PlaceCell(slot, at.cell, at.panel);
    view_.PlaceFilm(slot, {kBorder, kBorder + at.panel.Height + at.foot, at.panel.Width, film});
    view_.PaintBorder(slot, slot == CurrentWindow);
    MPResize(slot);
  }
  SetPlayBar();
}

/// The bar has a strip of its own under every picture, so that it never covers a foot or a ball, and no
/// picture changes its size when another window becomes current.
int Stage::BarHeight(const TwipRect& cell) const {
  const int height = cell.Width < kNarrowCell * BarScale ? kTallBarHeight : kBarHeight;
  return static_cast<int>(std::lround(height * BarScale));
}

int Stage::FilmHeight(const TwipRect& cell) const {
  const bool room = cell.Height >= kFilmFrom * BarScale && !BarHidden && !MultiFrame();
  return room && settings_.BarPictures == 1 ? static_cast<int>(std::lround(kFilmHeight * BarScale)) : 0;
}

void Stage::MPResize(int slot) {
  Slot& at = At(slot);
  if (!HasVideo(slot)) return HidePlayer(slot);
  const int oldWidth = at.MP->ControlWidthPixels();
  const int oldHeight = at.MP->ControlHeightPixels();
  view_.PlacePlayer(slot, PlayerPlace(at), true);
  if (oldWidth != at.MP->ControlWidthPixels() || oldHeight != at.MP->ControlHeightPixels())
    news_.Note(kPicturesChanged);
  at.MP->Refresh();
  ShowZoom(slot);
}

void Stage::HidePlayer(int slot) {
  view_.PlacePlayer(slot, {}, false);
  view_.SetZoomFigure(slot, "");
}

/// A picture that is not seen as a whole says so.
void Stage::ShowZoom(int slot) {
  const Slot& at = At(slot);
  const bool moved = at.VideoZoom != 1 || at.PanX != 0 || at.PanY != 0;
  const std::string percent = std::to_string(std::lround(at.VideoZoom * 100)) + " %";
  view_.SetZoomFigure(slot, moved ? percent : ReachesOver(at) ? Tr("Sides cut off") : "");
}

void Stage::ShowColour(int slot) {
  if (IsShown(slot)) view_.PlacePlayer(slot, {0, 0, At(slot).panel.Width, At(slot).panel.Height}, true);
}

void Stage::SetFits(int slot, bool on) {
  Slot& at = At(slot);
  at.Fits = on;
  at.PanX = at.PanY = 0;
  at.VideoZoom = 1;
  MPResize(slot);
  news_.Note(kCommandsChanged);
}

void Stage::SettingsChanged() {
  FormReset();
  if (std::exchange(fitByDefault_, FitByDefault()) == FitByDefault()) return;
  for (int slot = 1; slot <= kSlots; ++slot) {
    if (HasVideo(slot) && IsShown(slot)) SetFits(slot, FitByDefault());
    else At(slot).Fits = FitByDefault();
  }
}

void Stage::SetPlayBar() {
  const TwipRect& cell = Current().cell;
  const int bar = BarHeight(cell);
  view_.PlacePlayBar(
      {cell.Left + kBorder, cell.Top + cell.Height - kBorder - bar, std::max(0, cell.Width - 2 * kBorder), bar});
}

void Stage::SetFoot(int slot) {
  foot_ = slot;
  FormReset();
}

// ---------------------------------------------------------------- focus

void Stage::FocusSet() {
  view_.PaintBorder(CurrentWindow, true);
  for (int slot = 1; slot <= Val(ScreenLayout); ++slot)
    if (slot != CurrentWindow) view_.PaintBorder(slot, false);
  SetPlayBar();
  news_.Note(kFocusChanged);
}

void Stage::SelectWindow(int slot) {
  if (slot == CurrentWindow || slot < 1 || slot > kSlots || !IsShown(slot)) return;
  CurrentWindow = slot;
  FocusSet();
}

// ---------------------------------------------------------------- the stage to itself

void Stage::TakeStage(std::string_view layout, ITakesStage* taker) {
  home_.Take(ScreenLayout, CurrentWindow, taker);
  ScreenLayout = layout;
  ShowLayout(CurrentWindow);
}

void Stage::ComeHome() {
  if (!home_.Away()) return;
  ScreenLayout = home_.SavedLayout;
  home_.Leave();
  ShowLayout(home_.SavedWindow);
}

bool Stage::ToggleMaximize() {
  if (Maximized()) {
    ComeHome();
  } else {
    if (!HasVideo(CurrentWindow)) return false;
    TakeStage(kMaximized);
  }
  return true;
}

// ---------------------------------------------------------------- zoom and pan

void Stage::SetZoom(double zoom) {
  if (!HasVideo(CurrentWindow)) return;
  Current().VideoZoom = NearestZoom(zoom);
  MPResize(CurrentWindow);
}

void Stage::Pan(double dx, double dy) {
  if (!HasVideo(CurrentWindow)) return;
  Current().PanX += dx;
  Current().PanY += dy;
  MPResize(CurrentWindow);
}

void Stage::ResetZoom() {
  Current().PanX = Current().PanY = 0;
  SetZoom(1.0);
}

}  // namespace kinalyx
