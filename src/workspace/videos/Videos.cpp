#include "workspace/videos/Videos.h"

#include <utility>

#include "platform/files/Folders.h"

namespace kinalyx {

Videos::Videos(IHost& host, Stage& stage, Keeping& keeping, IVideoEvents& events)
    : host_(host), stage_(stage), keeping_(keeping), events_(events) {}

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
  if (!hasStream) at.MP->Load(path, false, false);  // fails, and leaves the colour that says why
  if (stage_.Maximized() && !stage_.HasVideo(stage_.CurrentWindow)) stage_.ComeHome();
  // That colour stands in the cell until another video takes the place.
  stage_.ShowColour(slot);
  stage_.News().Note(kVideoChanged);
  host_.Message(MessageKind::Warning, "",
                !FileExists(path) ? "The video \"" + LastName(path) + "\" is no longer there."
                : hasStream ? "The video \"" + LastName(path) + "\" is damaged: it holds no picture that can be shown."
                            : "The specified file does not contain media streams, make sure you choose a "
                              "valid media file");
}

int Videos::SendToAnalysis(const std::string& path, const std::function<void(const std::string&)>& status) {
  const auto tell = [&](const char* words) {
    if (status) status(words);
  };
  int slot = 1;
  while (slot <= kSlots && stage_.HasVideo(slot)) ++slot;
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
  if (!stage_.IsShown(slot)) stage_.ComeHome();
  const int used = stage_.VideoCount();
  if (!stage_.Home().Away() && used > Val(stage_.ScreenLayout))
    stage_.SetScreen(used == 5 || used == 7 ? used + 1 : used);
  stage_.SelectWindow(slot);
  tell("Current video was sent to Analysis.");
  return slot;
}

void Videos::OpenFamily(const std::vector<std::string>& paths) {
  bool first = true;
  for (const std::string& path : paths) {
    if (!std::exchange(first, false)) {
      if (!stage_.IsShown(stage_.CurrentWindow + 1)) return;
      stage_.SelectWindow(stage_.CurrentWindow + 1);
    }
    if (!OpenVideo(stage_.CurrentWindow, path)) return;
  }
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

bool Videos::CloseAll() {
  stage_.ComeHome();
  ClosedStage closed{{}, stage_.ScreenLayout, stage_.CurrentWindow};
  for (int slot = 1; slot <= kSlots; ++slot) {
    if (!stage_.HasVideo(slot)) continue;
    const Slot& at = stage_.At(slot);
    closed.videos.push_back(
        {slot, at.path, at.MP->Position(), at.MP->FlipHorizontal(), at.VideoZoom, at.PanX, at.PanY});
  }
  bool all = true;
  for (const ClosedVideo& video : closed.videos) all = CloseVideo(video.slot) && all;
  if (!closed.videos.empty()) closed_ = std::move(closed);
  stage_.CurrentWindow = 1;
  stage_.FocusSet();
  return all;
}

void Videos::UndoLastOpen() {
  if (!CloseVideo(stage_.CurrentWindow) || stage_.CurrentWindow == 1) return;
  stage_.SelectWindow(stage_.CurrentWindow - 1);
}

void Videos::Reopen(const ClosedVideo& video) {
  if (!OpenVideo(video.slot, video.path)) return;
  Slot& at = stage_.At(video.slot);
  at.VideoZoom = video.zoom;
  at.PanX = video.panX;
  at.PanY = video.panY;
  if (video.flipped) Flip(video.slot);
  stage_.MPResize(video.slot);
  at.MP->DrawFrame(video.position);
}

void Videos::ReopenClosed() {
  if (!CanReopen()) return;
  stage_.ComeHome();
  const ClosedStage closed = std::exchange(closed_, {});
  stage_.ScreenLayout = closed.layout;
  stage_.FormReset();
  for (const ClosedVideo& video : closed.videos) Reopen(video);
  stage_.SelectWindow(closed.currentWindow);
  stage_.News().Note(kVideoChanged);
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
