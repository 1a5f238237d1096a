#include "capture/livedraw/LiveDrawSession.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr int kMotionMs = 20;         // how often the zones are asked
constexpr int kGlowMs = 900;          // for which one that has fired glows
constexpr int kKeepMs = 1500;         // after the last change
constexpr int kKeepAgainMs = 60'000;  // after the disk has refused
constexpr std::size_t kSteps = 50;    // that can be undone

bool SameDrawings(const std::vector<Shape>& a, const std::vector<Shape>& b) {
  return std::ranges::equal(a, b, [](const Shape& x, const Shape& y) { return IsSameDrawing(x, y); });
}

}  // namespace

LiveDrawSession::LiveDrawSession(Parts parts)
    : parts_(std::move(parts)),
      kept_(ReadLiveDraw(JoinPath(parts_.settings.DataPath, "livedraw.json"))),
      board_(parts_.settings, *this),
      camera_(parts_.host, parts_.setup, parts_.makeGraph, *this) {
  zones_.Replace(std::exchange(kept_.zones, {}));
  board_.Replace(std::exchange(kept_.drawings, {}), kept_.grid);
  noted_ = Finished();
  camera_.SetMirror(kept_.mirror);
  camera_.SetSensitivity(kept_.sensitivity);
  camera_.SetZones(zones_.All());
}

LiveDrawSession::~LiveDrawSession() {
  view_ = nullptr;
  Keep();
}

void LiveDrawSession::Open() {
  open_ = true;
  camera_.Open();
  BeginWatching();
}

void LiveDrawSession::Close() {
  if (!open_) return;
  EndZoneDrag();
  open_ = false;
  SetAdding(false);
  board_.Tools().PutToolDown();
  board_.Hand().LetGo();
  zones_.Take(0);
  camera_.Close();
  board_.SetPicture(false);
  MotionTimer_.Stop();
  fired_.clear();
  moving_.clear();
  Keep();
}

// ---------------------------------------------------------------- what is kept

void LiveDrawSession::KeepLater() {
  keep_ = HostTimer(parts_.host, kKeepMs, false, [this] { Keep(); });
}

void LiveDrawSession::Keep() {
  if (!keep_.Running()) return;
  keep_.Stop();
  LiveDrawKept kept = kept_;
  kept.mirror = camera_.Mirror();
  kept.zones = zones_.All();
  kept.grid = board_.List().GridOn;
  kept.drawings = {Finished(), board_.View()};
  // Where the picture never was, its mirror was not either.
  kept.drawings.view.mirrored = kept.mirror;
  const Outcome written = WriteLiveDraw(JoinPath(parts_.settings.DataPath, "livedraw.json"), kept);
  if (written) return;
  parts_.host.Note(MessageKind::Warning, fmt::format("Live draw could not be kept. {}", written.Why()));
  if (open_) keep_ = HostTimer(parts_.host, kKeepAgainMs, false, [this] { Keep(); });
}

// ---------------------------------------------------------------- buttons

void LiveDrawSession::PressFreeze() { camera_.Frozen() ? camera_.GoLive() : camera_.Freeze(); }

void LiveDrawSession::PressZone() {
  if (!adding_ && zones_.Full())
    return parts_.host.Message(MessageKind::Information, "",
                               Tr("There is room for twelve hot zones. Remove one of them first."));
  if (!adding_) board_.Tools().PutToolDown();
  SetAdding(!adding_ && board_.HasPicture());
}

void LiveDrawSession::SetAdding(bool adding) {
  draft_.reset();
  if (std::exchange(adding_, adding) == adding) return;
  if (adding) {
    board_.Hand().LetGo();
    zones_.Take(0);
  }
  Show(adding ? LivePointer::NewZone : LivePointer::Nothing);
  Repaint();
  Changed();
}

/// Drawings and zones stay on what they lie on, and turn with it.
void LiveDrawSession::SetMirror(bool on) {
  if (on == camera_.Mirror()) return;
  SetAdding(false);
  kept_.mirror = on;
  zones_.Mirror();
  const auto turn = [](auto& steps) {
    for (auto& [step, before] : steps) {
      HotZones turned;
      turned.Replace(before);
      turned.Mirror();
      before = turned.All();
    }
  };
  turn(done_);
  turn(undone_);
  // Before the camera begins anew: its zones are those of the pictures to come.
  camera_.SetZones(zones_.All());
  camera_.SetMirror(on);
  FollowView();
  KeepLater();
  Repaint();
  Changed();
}

void LiveDrawSession::SetSensitivity(int sensitivity) {
  kept_.sensitivity = std::clamp(sensitivity, 0, 100);
  camera_.SetSensitivity(kept_.sensitivity);
  KeepLater();
}

void LiveDrawSession::SetMuted(bool muted) {
  kept_.muted = muted;
  KeepLater();
  Changed();
}

void LiveDrawSession::SetWordsShown(bool shown) {
  kept_.words = shown;
  KeepLater();
  Repaint();
  Changed();
}

void LiveDrawSession::ChooseColour(int index) { board_.Tools().ChooseColour(index); }
void LiveDrawSession::ChooseWidth(int pixels) { board_.ChooseWidth(pixels); }

void LiveDrawSession::TakeTool(const std::function<void(DrawingTools&)>& take) {
  SetAdding(false);
  zones_.Take(0);
  take(board_.Tools());
  Repaint();
  Changed();
}

void LiveDrawSession::ToggleGrid() {
  board_.Tools().SetGridMode(!board_.List().GridOn);
  KeepLater();
  Changed();
}

void LiveDrawSession::RemoveLast() { board_.Tools().DeleteLast(); }
void LiveDrawSession::RemoveAll() { board_.Tools().DeleteAll(); }

void LiveDrawSession::WriteText(POINTAPI at, const std::string& text, bool anew) {
  if (!board_.HasPicture()) {
    unwritten_ = Letters{at, text, anew};
    return;
  }
  board_.Tools().WriteText(DrawingBoard::kWindow, at, text, anew);
}

void LiveDrawSession::RemoveTaken() {
  if (board_.Hand().Taken()) return board_.Hand().Remove();
  if (zones_.Taken() == 0) return;
  const std::vector<HotZone> before = zones_.All();
  zones_.Remove(zones_.Taken());
  ZonesChanged(before);
}

void LiveDrawSession::RemoveZones() {
  const std::vector<HotZone> before = zones_.All();
  PutZones({});
  if (before != zones_.All()) ZonesChanged(before);
}

// ---------------------------------------------------------------- the past

void LiveDrawSession::PutZones(const std::vector<HotZone>& zones) {
  zones_.Replace(zones);
  camera_.SetZones(zones_.All());
  BeginWatching();
  KeepLater();
  Repaint();
  Changed();
}

void LiveDrawSession::ZonesChanged(const std::vector<HotZone>& before) {
  done_.emplace_back(Step::Zones, before);
  if (done_.size() > kSteps) done_.erase(done_.begin());
  undone_.clear();
  camera_.SetZones(zones_.All());
  BeginWatching();
  KeepLater();
  Repaint();
  Changed();
}

void LiveDrawSession::DrawingsDone() {
  std::vector<Shape> now = Finished();
  const bool changed = !SameDrawings(now, noted_);
  noted_ = std::move(now);
  if (changed && !stepping_) {
    done_.emplace_back(Step::Drawings, std::vector<HotZone>());
    if (done_.size() > kSteps) done_.erase(done_.begin());
    undone_.clear();
  }
  KeepLater();
  Repaint();
  Changed();
}

bool LiveDrawSession::CanUndo() const { return board_.List().Adding || !done_.empty(); }
bool LiveDrawSession::CanRedo() const { return !undone_.empty(); }

/// Whatever was done last, be it to a drawing or to a zone.
void LiveDrawSession::Undo() {
  SetAdding(false);
  DrawingTools& tools = board_.Tools();
  if (board_.List().Adding) return UndoWhatIsDrawn();
  while (!done_.empty()) {
    auto [step, before] = std::move(done_.back());
    done_.pop_back();
    if (step == Step::Zones) {
      undone_.emplace_back(step, zones_.All());
      return PutZones(before);
    }
    if (!tools.CanUndo(DrawingBoard::kWindow)) continue;
    undone_.emplace_back(step, std::move(before));
    const bool was = std::exchange(stepping_, true);
    tools.Undo(DrawingBoard::kWindow);
    stepping_ = was;
    return Changed();
  }
}

/// A stroke is finished by it, and can be had back; of a path a point goes, of all else what there is of it.
void LiveDrawSession::UndoWhatIsDrawn() {
  DrawingTools& tools = board_.Tools();
  const bool could = tools.CanRedo(DrawingBoard::kWindow);
  const bool was = std::exchange(stepping_, true);
  tools.Undo(DrawingBoard::kWindow);
  stepping_ = was;
  if (!could && tools.CanRedo(DrawingBoard::kWindow)) undone_ = {{Step::Drawings, {}}};
  Changed();
}

void LiveDrawSession::Redo() {
  SetAdding(false);
  DrawingTools& tools = board_.Tools();
  while (!undone_.empty()) {
    auto [step, after] = std::move(undone_.back());
    undone_.pop_back();
    if (step == Step::Zones) {
      done_.emplace_back(step, zones_.All());
      return PutZones(after);
    }
    if (!tools.CanRedo(DrawingBoard::kWindow)) continue;
    done_.emplace_back(step, std::move(after));
    const bool was = std::exchange(stepping_, true);
    tools.Redo(DrawingBoard::kWindow);
    stepping_ = was;
    return Changed();
  }
}

// ---------------------------------------------------------------- zones that fire

/// Nobody is asked where there is nothing to be told.
void LiveDrawSession::BeginWatching() {
  if (!open_ || zones_.All().empty()) return;
  if (!MotionTimer_.Running()) MotionTimer_ = HostTimer(parts_.host, kMotionMs, true, [this] { MotionTimer_Timer(); });
}

void LiveDrawSession::MotionTimer_Timer() {
  const std::int64_t now = parts_.host.timeGetTime();
  const std::vector<int> fired = camera_.TakeFired();
  for (const int zone : fired) fired_[zone] = now;
  if (!fired.empty() && !kept_.muted)
    parts_.sounds.Play(JoinPath(JoinPath(parts_.settings.AppPath, "pictures"), "beep.wav"));
  std::vector<int> moving = camera_.Moving();
  const bool glowing = !fired_.empty();
  std::erase_if(fired_, [now](const auto& each) { return now - each.second > kGlowMs; });
  if (std::exchange(moving_, moving) != moving || glowing) Repaint();
  if (zones_.All().empty() && fired_.empty()) MotionTimer_.Stop();
}

double LiveDrawSession::Glow(int zone) const {
  const auto found = fired_.find(zone);
  if (found == fired_.end()) return 0;
  const auto age = static_cast<double>(parts_.host.timeGetTime() - found->second);
  return std::clamp(1 - age / kGlowMs, 0.0, 1.0);
}

bool LiveDrawSession::Moves(int zone) const { return std::ranges::find(moving_, zone) != moving_.end(); }

std::optional<MotionRect> LiveDrawSession::Draft() const {
  return draft_ ? std::optional(RectBetween(draft_->from, draft_->to)) : std::nullopt;
}

// ---------------------------------------------------------------- what is seen

void LiveDrawSession::SetRoom(int width, int height) {
  roomWidth_ = width;
  roomHeight_ = height;
  camera_.WantSize(width, height);
  FollowView();
}

PictureBox LiveDrawSession::Box() const {
  const int width = std::min(roomWidth_, static_cast<int>(std::lround(roomHeight_ * aspect_)));
  const int height = std::min(roomHeight_, static_cast<int>(std::lround(width / aspect_)));
  return {(roomWidth_ - width) / 2, (roomHeight_ - height) / 2, width, height};
}

void LiveDrawSession::FollowView() {
  const PictureBox box = Box();
  board_.Follow({box.width, box.height, camera_.Mirror()});
  noted_ = Finished();
}

std::vector<Shape> LiveDrawSession::Finished() const {
  std::vector<Shape> shapes = DrawingsOf(board_.List());
  std::erase_if(shapes, [](const Shape& shape) { return !shape.Locked; });
  return shapes;
}

const Surface& LiveDrawSession::Compose() {
  const LivePicture& picture = camera_.Picture();
  const PictureBox box = Box();
  if (!picture.pixels || box.width < 1 || box.height < 1) {
    surface_ = Surface();
    return surface_;
  }
  if (surface_.Width() != box.width || surface_.Height() != box.height) surface_ = Surface(box.width, box.height);
  StretchRows({picture.pixels.get(), picture.width, picture.height, picture.stride, 32, false}, surface_, scratch_);
  if (camera_.PictureMirrored() != camera_.Mirror()) MirrorHorizontal(surface_, scratchSurface_);
  board_.Paint(surface_, kept_.words);
  return surface_;
}

void LiveDrawSession::Changed() const {
  if (view_) view_->LiveDrawChanged();
}

void LiveDrawSession::Repaint() const {
  if (view_) view_->Repaint();
}

void LiveDrawSession::Show(LivePointer pointer) {
  if (std::exchange(pointer_, pointer) != pointer && view_) view_->ShowPointer(pointer);
}

// ---------------------------------------------------------------- the camera

void LiveDrawSession::LivePictureCame() {
  const LivePicture& picture = camera_.Picture();
  if (picture.aspect > 0.1 && picture.aspect < 10 && std::exchange(aspect_, picture.aspect) != picture.aspect)
    FollowView();
  Repaint();
}

void LiveDrawSession::CameraChanged() {
  const bool there = camera_.Picture().pixels != nullptr;
  if (!there) SetAdding(false);
  board_.SetPicture(there);
  if (const auto letters = there ? std::exchange(unwritten_, std::nullopt) : std::nullopt)
    WriteText(letters->at, letters->text, letters->anew);
  Repaint();
  Changed();
}

void LiveDrawSession::CamerasChanged() {
  if (view_) view_->CamerasChanged();
}

// ---------------------------------------------------------------- to analysis

Outcome LiveDrawSession::SaveMacro(Macros& macros, const std::string& name) const {
  ShapeList list = board_.List();
  list.Shapes = Finished();
  list.NumShapes = static_cast<std::int16_t>(list.Shapes.size());
  list.Adding = false;
  list.GridOn = false;
  return macros.CreateMacro(name, list);
}

}  // namespace kinalyx
