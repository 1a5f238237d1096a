#include "workspace/videos/Videos.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {

Videos::Videos(IHost& host, Stage& stage, Keeping& keeping, IVideoEvents& events, std::string sessionPath)
    : host_(host), stage_(stage), keeping_(keeping), events_(events), sessionPath_(std::move(sessionPath)) {}

// ---------------------------------------------------------------- opening

bool Videos::OpenVideo(int slot, const std::string& path) {
  if (slot < 1 || slot > kSlots) return false;
  const bool another = stage_.HasVideo(slot);
  if (!Vacate(slot)) return false;
  const auto info = ReadVideoInfo(path);
  if (!info) {
    RefuseVideo(slot, path, false);
    return false;
  }
  keeping_.Read(slot, path, *info);
  Slot& at = stage_.At(slot);
  if (!at.MP->Load(path, at.data.SplitFields, at.data.ReverseFields)) {
    RefuseVideo(slot, path, true);
    return false;
  }
  at.path = path;
  at.frameRate = info->scale > 0 ? static_cast<double>(info->rate) / static_cast<double>(info->scale) : 0;
  keeping_.VideoOpened(slot);
  events_.VideoOpened(slot);
  stage_.ShowTitle(slot);
  // Reversed fields open on the second one of the first picture; every film is shown from its start.
  if (at.MP->Position() == 1) at.MP->DrawFrame(0);
  if (stage_.IsShown(slot)) {
    stage_.MPResize(slot);
  } else {
    at.MP->Refresh();
  }
  stage_.News().Note(kVideoChanged);
  if (another && stage_.Maximized()) stage_.ComeHome();
  return true;
}

void Videos::RefuseVideo(int slot, const std::string& path, bool hasStream) {
  Slot& at = stage_.At(slot);
  at.data = {};
  const bool gone = !FileExists(path);
  if (!hasStream && !gone) at.MP->Load(path, false, false);  // fails, and leaves the colour that says why
  if (stage_.Maximized() && !stage_.HasVideo(stage_.CurrentWindow)) stage_.ComeHome();
  // That colour stands in the cell until another video takes the place; where there is no file there is nothing to say.
  gone ? stage_.HidePlayer(slot) : stage_.ShowColour(slot);
  stage_.News().Note(kVideoChanged);
  host_.Message(MessageKind::Warning, "",
                gone        ? Tr("The video \"{}\" is no longer there.", LastName(path))
                : hasStream ? Tr("The video \"{}\" is damaged: it holds no picture that can be shown.", LastName(path))
                            : Tr("The specified file does not contain media streams, make sure you choose a "
                                 "valid media file"));
}

int Videos::SendToAnalysis(const std::string& path, const std::function<void(const std::string&)>& status) {
  const auto tell = [&](const std::string& words) {
    if (status) status(words);
  };
  int slot = 1;
  while (slot <= kSlots && stage_.HasVideo(slot)) ++slot;
  if (slot > kSlots) {
    tell(Tr("All 8 windows already have videos in them. Send to analysis failed."));
    return 0;
  }
  tell(Tr("Loading Analysis Section..."));
  tell(Tr("Sending current video to Analysis..."));
  if (!OpenVideo(slot, path)) {
    tell("");
    return 0;
  }
  // What has the stage gives way, unless the video came into one of the windows that it shows.
  if (!stage_.IsShown(slot)) stage_.ComeHome();
  const int used = stage_.VideoCount();
  if (!stage_.Home().Away() && used > Val(stage_.ScreenLayout))
    stage_.SetScreen(used == 5 || used == 7 ? used + 1 : used);
  stage_.SelectWindow(slot);
  tell(Tr("Current video was sent to Analysis."));
  return slot;
}

int Videos::OpenFamily(const std::vector<std::string>& paths) {
  int opened = 0;
  for (const std::string& path : paths) {
    if (opened > 0) {
      if (!stage_.IsShown(stage_.CurrentWindow + 1)) break;
      stage_.SelectWindow(stage_.CurrentWindow + 1);
    }
    if (!OpenVideo(stage_.CurrentWindow, path)) break;
    ++opened;
  }
  return opened;
}

// ---------------------------------------------------------------- filling

bool Videos::CanFill() const {
  return stage_.HasVideo(stage_.CurrentWindow) && FindScreenMode(stage_.ScreenLayout) && stage_.SlotsShown() > 1;
}

bool Videos::CanFillRows() const { return CanFill() && LastOfTopRow(stage_.ScreenLayout) > 0; }

bool Videos::Fill(int first, int last) {
  const std::string path = stage_.Current().path;
  for (int slot = first; slot <= last; ++slot)
    if (slot != stage_.CurrentWindow && !OpenVideo(slot, path)) return false;
  return true;
}

void Videos::FillAll() {
  if (CanFill()) Fill(1, stage_.SlotsShown());
}

void Videos::FillTopRow() {
  if (CanFillRows()) Fill(1, LastOfTopRow(stage_.ScreenLayout));
}

void Videos::FillBottomRow() {
  if (CanFillRows()) Fill(LastOfTopRow(stage_.ScreenLayout) + 1, stage_.SlotsShown());
}

// ---------------------------------------------------------------- closing

bool Videos::CloseVideo(int slot) {
  const bool had = stage_.HasVideo(slot);
  StoodStage closed;
  if (had) closed.videos.push_back(Stood(slot));
  if (!Close(slot)) return false;
  if (had) Remember(std::move(closed));
  return true;
}

bool Videos::Close(int slot) {
  const bool had = stage_.HasVideo(slot);
  if (!Vacate(slot)) return false;
  if (!had) return true;
  stage_.News().Note(kVideoChanged);
  if (stage_.Maximized()) stage_.ComeHome();
  return true;
}

/// Empties a slot, for good or for the next video, which is for the caller to tell. False when the user
/// keeps the video open.
bool Videos::Vacate(int slot) {
  AVIControl* player = stage_.At(slot).MP;
  if (!stage_.HasVideo(slot)) {
    if (player) stage_.HidePlayer(slot);  // clears the colour that a damaged file left
    return true;
  }
  player->StopPlay();
  events_.VideoClosing(slot);
  if (!keeping_.SaveOrAsk(slot)) return false;
  events_.VideoClosed(slot);
  keeping_.VideoClosed(slot);
  player->Unload();
  stage_.HidePlayer(slot);
  player->setFlipHorizontal(false);
  player->setSpeed(100);
  stage_.Clear(slot);
  return true;
}

bool Videos::CloseAll(std::optional<StoodStage> stood) {
  stage_.ComeHome();
  StoodStage closed = stood ? std::move(*stood) : Stood();
  bool all = true;
  for (const StoodVideo& video : closed.videos) all = Close(video.slot) && all;
  rest_ = {};
  if (!closed.videos.empty()) {
    std::ignore = WriteSession(sessionPath_, closed);  // a convenience: who cannot keep it loses nothing
    session_ = closed;
    Remember(std::move(closed));
  }
  stage_.CurrentWindow = 1;
  stage_.FocusSet();
  return all;
}

void Videos::UndoLastOpen() {
  if (!CloseVideo(stage_.CurrentWindow) || stage_.CurrentWindow == 1) return;
  stage_.SelectWindow(stage_.CurrentWindow - 1);
}

// ---------------------------------------------------------------- bringing back

StoodVideo Videos::Stood(int slot) const {
  const Slot& at = stage_.At(slot);
  return {.slot = slot,
          .path = at.path,
          .moment = VideoMoment::At(at.MP->Position(), at.MP->SplitFields()),
          .flipped = at.MP->FlipHorizontal(),
          .zoom = at.VideoZoom,
          .fits = at.Fits,
          .panX = at.PanX,
          .panY = at.PanY};
}

StoodStage Videos::Stood() const {
  // What has the stage to itself for a while is not where it comes home to.
  const bool away = !FindScreenMode(stage_.ScreenLayout);
  StoodStage stage{{}, away ? stage_.Home().SavedLayout : stage_.ScreenLayout, stage_.CurrentWindow, events_.Locks()};
  for (int slot = 1; slot <= kSlots; ++slot)
    if (stage_.HasVideo(slot)) stage.videos.push_back(Stood(slot));
  return stage;
}

void Videos::Remember(StoodStage closed) {
  constexpr std::size_t kMost = 20;
  const int count = static_cast<int>(closed.videos.size());
  const std::string name = NameOfVideo(closed.videos.front().path);
  sessionRead_ = true;  // what was closed in this run comes first, and what was open before it is in it, or gone
  closed.stayed = OpenPaths();
  closed_.push_back(std::move(closed));
  if (closed_.size() > kMost) closed_.erase(closed_.begin());
  events_.VideosGone(count, name);
}

std::vector<std::string> Videos::OpenPaths() const {
  std::vector<std::string> paths;
  for (int slot = 1; slot <= kSlots; ++slot)
    if (stage_.HasVideo(slot)) paths.push_back(stage_.At(slot).path);
  return paths;
}

/// What of it is not open again. A video that stood in several windows is wanted so often.
std::vector<StoodVideo> Videos::Missing(const StoodStage& closed) const {
  std::vector<std::string> open = OpenPaths();
  const auto strike = [&open](const std::string& path) {
    const auto found = std::ranges::find(open, path);
    if (found == open.end()) return false;
    open.erase(found);
    return true;
  };
  for (const std::string& path : closed.stayed) strike(path);
  std::vector<StoodVideo> missing;
  std::ranges::copy_if(closed.videos, std::back_inserter(missing),
                       [&](const StoodVideo& video) { return !strike(video.path); });
  return missing;
}

bool Videos::CanReopen() {
  if (!std::exchange(sessionRead_, true))
    if (auto session = ReadSession(sessionPath_)) closed_.push_back(std::move(*session));
  while (!closed_.empty() && Missing(closed_.back()).empty()) closed_.pop_back();
  return !closed_.empty() && stage_.VideoCount() < kSlots;
}

/// The slot into which it came: its own, or when that is taken the first free one.
std::optional<int> Videos::Reopen(const StoodVideo& video) {
  int slot = video.slot;
  if (stage_.HasVideo(slot)) slot = 1;
  while (slot <= kSlots && stage_.HasVideo(slot)) ++slot;
  if (slot > kSlots || !OpenVideo(slot, video.path)) return std::nullopt;
  Slot& at = stage_.At(slot);
  at.VideoZoom = video.zoom;
  at.Fits = video.fits;
  at.PanX = video.panX;
  at.PanY = video.panY;
  if (video.flipped) Flip(slot);
  stage_.MPResize(slot);
  at.MP->DrawFrame(std::clamp(video.moment.Position(at.MP->SplitFields()), 0, at.MP->VideoLength() - 1));
  return slot;
}

void Videos::ReopenClosed() {
  if (!CanReopen()) return;
  const std::vector<StoodVideo> missing = Missing(closed_.back());
  const StoodStage closed = std::move(closed_.back());
  closed_.pop_back();
  const bool empty = !stage_.AnyVideo();
  if (empty && !closed.layout.empty()) {
    stage_.ComeHome();
    stage_.ScreenLayout = closed.layout;
    stage_.FormReset();
  }
  int shown = 0;
  bool all = true;
  for (const StoodVideo& video : missing) {
    const auto slot = Reopen(video);
    if (!slot) all = false;
    else if (shown == 0 || video.slot == closed.currentWindow) shown = *slot;
  }
  if (shown > 0 && !stage_.IsShown(shown)) {
    stage_.ComeHome();
    stage_.SetScreen(std::min(kSlots, std::max(shown, stage_.VideoCount() + stage_.VideoCount() % 2)));
  }
  if (empty && !closed.layout.empty()) stage_.SelectWindow(closed.currentWindow);
  else if (shown > 0) stage_.SelectWindow(shown);
  if (empty && all) events_.LockAgain(closed.locks);
  stage_.News().Note(kVideoChanged);
}

void Videos::SaveSession() {
  rest_ = {};
  StoodStage now = Stood();
  if (now.videos.empty() || now == session_) return;
  if (WriteSession(sessionPath_, now)) session_ = std::move(now);
}

void Videos::PathChanged(const std::string& from, const std::string& to) {
  for (StoodStage& closed : closed_) closed.Follow(from, to);
  if (session_) session_->Follow(from, to);
  FollowInSession(sessionPath_, from, to);
}

void Videos::StageChanged() {
  constexpr int kRest = 3000;  // milliseconds
  rest_ = stage_.AnyVideo() ? HostTimer(host_, kRest, false, [this] { SaveSession(); }) : HostTimer();
}

// ---------------------------------------------------------------- mirror and fields

void Videos::ToggleFlip() {
  if (stage_.HasVideo(stage_.CurrentWindow)) Flip(stage_.CurrentWindow);
}

void Videos::Flip(int slot) {
  AVIControl& player = stage_.MP(slot);
  player.setFlipHorizontal(!player.FlipHorizontal());
  player.Refresh();
  stage_.News().Note(kPicturesChanged);
}

void Videos::ToggleSplitFields() {
  const int slot = stage_.CurrentWindow;
  if (!stage_.HasVideo(slot)) return;
  Slot& at = stage_.At(slot);
  // The position stays on its frame, although its number doubles or halves.
  at.MP->StopPlay();
  const int frame = at.MP->SplitFields() ? at.MP->Position() / 2 : at.MP->Position();
  at.data.SplitFields = !at.MP->SplitFields();
  keeping_.FieldsChanged(slot);
  at.MP->setSplitFields(at.data.SplitFields);
  at.MP->DrawFrame(at.data.SplitFields ? 2 * frame : frame);
  events_.FieldsSplit(slot);
  stage_.News().Note(kVideoChanged);
}

void Videos::ToggleReverseFields() {
  const int slot = stage_.CurrentWindow;
  if (!stage_.HasVideo(slot)) return;
  Slot& at = stage_.At(slot);
  const int position = at.MP->Position();
  at.data.ReverseFields = !at.MP->ReverseFields();
  keeping_.FieldsChanged(slot);
  at.MP->setReverseFields(at.data.ReverseFields);
  // The play goes on by itself; a picture that stands still keeps its number and shows its other field.
  if (!at.MP->IsPlaying()) at.MP->DrawFrame(position);
  stage_.News().Note(kCommandsChanged);
}

}  // namespace kinalyx
