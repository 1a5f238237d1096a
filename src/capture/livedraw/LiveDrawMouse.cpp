// The mouse of live draw: it goes to a zone that is being added, else to the tool in hand, else to the drawing and else
// to the zone that lies under it.

#include <algorithm>
#include <utility>

#include "capture/livedraw/LiveDrawSession.h"

namespace kinalyx {

POINTAPI LiveDrawSession::OnPicture(POINTAPI at) const {
  const PictureBox box = Box();
  return {at.x - box.left, at.y - box.top};
}

PicturePoint LiveDrawSession::InParts(POINTAPI at) const {
  const PictureBox box = Box();
  return {static_cast<double>(at.x) / std::max(1, box.width), static_cast<double>(at.y) / std::max(1, box.height)};
}

std::optional<ZonePart> LiveDrawSession::ZoneAt(POINTAPI at) const {
  constexpr double kReach = 9;  // pixels
  const PictureBox box = Box();
  return zones_.At(InParts(at), {kReach / std::max(1, box.width), kReach / std::max(1, box.height)});
}

/// True when a zone was under the mouse.
bool LiveDrawSession::PressZoneAt(int button, POINTAPI at) {
  EndZoneDrag();
  const auto part = ZoneAt(at);
  if (!part) {
    if (zones_.Taken() > 0) Repaint();
    zones_.Take(0);
    Changed();
    return false;
  }
  zones_.Take(part->id);
  if (button == 1) {
    grabbed_ = zones_.All();
    zones_.Grab(*part, InParts(at));
  } else if (view_) {
    view_->ShowZoneMenu(at);
  }
  Repaint();
  Changed();
  return true;
}

/// A menu, or a window that closes, may have had the release of the button.
void LiveDrawSession::EndZoneDrag() {
  if (zones_.Release()) ZonesChanged(std::exchange(grabbed_, {}));
}

void LiveDrawSession::MouseDown(int button, bool shift, POINTAPI at) {
  if (!board_.HasPicture() || (button != 1 && button != 2)) return;
  const POINTAPI point = OnPicture(at);
  if (adding_) {
    if (button != 1) return SetAdding(false);
    draft_ = Corners{InParts(point), InParts(point)};
    return;
  }
  const bool drawing = board_.Tools().Drawing();
  const bool taken = board_.Tools().MouseDown(button, shift ? 1 : 0, static_cast<float>(point.x),
                                              static_cast<float>(point.y), DrawingBoard::kWindow);
  if (drawing) return;
  if (taken) {
    if (zones_.Taken() > 0) zones_.Take(0);
    return Changed();
  }
  PressZoneAt(button, point);
}

void LiveDrawSession::MouseMove(int button, bool shift, POINTAPI at) {
  if (!board_.HasPicture()) return;
  const POINTAPI point = OnPicture(at);
  if (adding_) {
    Show(LivePointer::NewZone);
    if (!draft_) return;
    draft_->to = InParts(point);
    return Repaint();
  }
  if (zones_.Held() && button != 1) EndZoneDrag();
  if (zones_.Held()) {
    if (zones_.DragTo(InParts(point))) Repaint();
    return;
  }
  (void)board_.Tools().MouseMove(button, shift ? 1 : 0, static_cast<float>(point.x), static_cast<float>(point.y),
                                 DrawingBoard::kWindow);
  if (button != 0 || board_.Tools().Drawing() || pointer_ == LivePointer::Shape || pointer_ == LivePointer::Point)
    return;
  const auto part = ZoneAt(point);
  const auto pointerOf = [](const ZonePart& zone) {
    const bool level = zone.left || zone.right, upright = zone.top || zone.bottom;
    if (level && upright) return zone.left == zone.top ? LivePointer::ZoneFalling : LivePointer::ZoneRising;
    return level ? LivePointer::ZoneLevel : upright ? LivePointer::ZoneUpright : LivePointer::Zone;
  };
  Show(part ? pointerOf(*part) : LivePointer::Nothing);
}

void LiveDrawSession::MouseUp(int button, bool shift, POINTAPI at) {
  const POINTAPI point = OnPicture(at);
  if (adding_) {
    const auto draft = std::exchange(draft_, std::nullopt);
    if (button != 1 || !draft) return;
    const std::vector<HotZone> before = zones_.All();
    // What is too small was no drag: the zone is still to come.
    if (zones_.Add(draft->from, InParts(point)) == 0) return Repaint();
    SetAdding(false);
    return ZonesChanged(before);
  }
  if (zones_.Held()) return EndZoneDrag();
  (void)board_.Tools().MouseUp(button, shift ? 1 : 0, static_cast<float>(point.x), static_cast<float>(point.y),
                               DrawingBoard::kWindow);
  Changed();
}

void LiveDrawSession::MouseTwice(POINTAPI at) {
  if (board_.HasPicture() && !adding_) board_.Tools().MouseTwice(OnPicture(at), DrawingBoard::kWindow);
}

bool LiveDrawSession::Escape() {
  if (adding_) {
    SetAdding(false);
  } else if (board_.Tools().Drawing()) {
    board_.Tools().PutToolDown();
  } else if (board_.Hand().Taken()) {
    board_.Hand().LetGo();
  } else if (zones_.Taken() > 0) {
    zones_.Take(0);
  } else {
    return false;
  }
  Repaint();
  Changed();
  return true;
}

bool LiveDrawSession::PressPathKey(bool end) {
  if (!board_.Tools().TracingPath()) return false;
  end ? board_.Tools().EndPath() : board_.Tools().Undo(DrawingBoard::kWindow);
  return true;
}

void LiveDrawSession::ShowPointer(HandPointer pointer) {
  Show(pointer == HandPointer::Point   ? LivePointer::Point
       : pointer == HandPointer::Shape ? LivePointer::Shape
                                       : LivePointer::Nothing);
}

void LiveDrawSession::ShowShapeMenu(POINTAPI at) {
  if (view_) view_->ShowShapeMenu(at);
}

void LiveDrawSession::AskText(POINTAPI at, const std::string& text) {
  if (view_) view_->AskText(at, text);
}

}  // namespace kinalyx
