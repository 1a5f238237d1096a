#include "workspace/compare/Carve.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "platform/paint/Blend.h"
#include "workspace/stage/PlayerPlace.h"

namespace kinalyx {
namespace {

constexpr int kSmallestArea = 8;  // pixels; less is a click, not an area

}  // namespace

Carve::Carve(IHost& host, Stage& stage, ICarveView& view, ICompareEvents& events)
    : host_(host), stage_(stage), view_(view), events_(events) {}

// ---------------------------------------------------------------- beginning and ending

bool Carve::CanShow() const { return Shown() || stage_.HasVideo(stage_.CurrentWindow); }

void Carve::ToggleCarve() {
  if (Shown()) return End();
  if (!CanShow()) return;
  events_.GiveWay();
  slot_ = stage_.CurrentWindow;
  percent_ = 100;
  view_.ShowCarve(true);
  BeginMarking();
}

void Carve::End() {
  CarveTimer_.Stop();
  view_.ShowCarvePic(slot_, false);
  view_.ShowPiece(Surface(), {});
  slot_ = 0;
  area_.reset();
  markFrom_.reset();
  grab_.reset();
  piece_ = cut_ = Surface();
  view_.ShowCarve(false);
}

void Carve::MarkAnew() {
  if (!Shown()) return;
  events_.GiveWay();
  if (!stage_.IsShown(slot_)) stage_.ComeHome();
  if (!stage_.IsShown(slot_)) return End();
  BeginMarking();
}

void Carve::BeginMarking() {
  CarveTimer_.Stop();
  area_.reset();
  grab_.reset();
  view_.ShowPiece(Surface(), {});
  view_.ShowMark(0, 0, 0, 0);
  view_.ShowCarvePic(slot_, true);
}

void Carve::StopMarking() {
  if (Shown() && !Floating()) End();
}

void Carve::VideoClosing(int slot) {
  if (slot == slot_) End();
}

void Carve::LayoutChanged() {
  if (!Shown() || Floating()) return;
  if (!stage_.IsShown(slot_)) return End();
  markFrom_.reset();
  view_.ShowCarvePic(slot_, true);  // the canvas follows
}

// ---------------------------------------------------------------- marking

void Carve::BeginMark(POINTAPI point) {
  if (Shown() && !Floating()) markFrom_ = point;
}

void Carve::MoveMark(POINTAPI point) {
  if (markFrom_) Mark(point);
}

void Carve::Mark(POINTAPI to) {
  view_.ShowMark(std::min(markFrom_->x, to.x), std::min(markFrom_->y, to.y), std::abs(to.x - markFrom_->x),
                 std::abs(to.y - markFrom_->y));
}

void Carve::EndMark(POINTAPI point) {
  if (!markFrom_) return;
  const POINTAPI from = *markFrom_;
  markFrom_.reset();
  view_.ShowMark(0, 0, 0, 0);
  const AVIControl& player = stage_.MP(slot_);
  const int width = player.ControlWidthPixels();
  const int height = player.ControlHeightPixels();
  const int left = std::clamp(std::min(from.x, point.x), 0, width);
  const int top = std::clamp(std::min(from.y, point.y), 0, height);
  const int right = std::clamp(std::max(from.x, point.x), 0, width);
  const int bottom = std::clamp(std::max(from.y, point.y), 0, height);
  if (right - left < kSmallestArea || bottom - top < kSmallestArea) return;
  area_ = Part{static_cast<double>(left) / width, static_cast<double>(top) / height,
               static_cast<double>(right - left) / width, static_cast<double>(bottom - top) / height};
  const POINTAPI picture = PlayerCornerOnStage(stage_.At(OtherSlot()));
  corner_ = {picture.x + left, picture.y + top};
  view_.ShowCarvePic(slot_, false);
  CmdDisCarve();
}

int Carve::OtherSlot() const {
  for (int n = 1; n < kSlots; ++n) {
    const int slot = (slot_ - 1 + n) % kSlots + 1;
    if (stage_.IsShown(slot) && stage_.HasVideo(slot)) return slot;
  }
  return slot_;
}

// ---------------------------------------------------------------- the piece

void Carve::CmdDisCarve() {
  CarveTimer_.Stop();
  if (!area_) return;
  const Surface& picture = stage_.MP(slot_).Picture();
  const int width = std::max(1, static_cast<int>(std::lround(area_->width * picture.Width())));
  const int height = std::max(1, static_cast<int>(std::lround(area_->height * picture.Height())));
  const int left = static_cast<int>(std::lround(area_->left * picture.Width()));
  const int top = static_cast<int>(std::lround(area_->top * picture.Height()));
  if (cut_.Width() != width || cut_.Height() != height) cut_ = Surface(width, height);
  CopyPart(picture, left, top, width, height, cut_, 0, 0);
  const int shownWidth = std::max(1, width * percent_ / 100);
  const int shownHeight = std::max(1, height * percent_ / 100);
  if (piece_.Width() != shownWidth || piece_.Height() != shownHeight) piece_ = Surface(shownWidth, shownHeight);
  StretchRows(RowsOf(cut_), piece_, scratch_);
  view_.ShowPiece(piece_, corner_);
}

/// The scale grows and shrinks the piece about its middle.
void Carve::ScalePiece(int percent) {
  percent = std::clamp(percent, kSmallest, kLargest);
  if (percent == percent_) return;
  percent_ = percent;
  const POINTAPI middle{corner_.x + piece_.Width() / 2, corner_.y + piece_.Height() / 2};
  if (area_) corner_ = {middle.x - cut_.Width() * percent_ / 200, middle.y - cut_.Height() * percent_ / 200};
  CmdDisCarve();
}

void Carve::GrabPiece(POINTAPI point) {
  if (Floating()) grab_ = POINTAPI{point.x - corner_.x, point.y - corner_.y};
}

void Carve::DragPiece(POINTAPI point) {
  if (grab_) Nudge(point.x - grab_->x - corner_.x, point.y - grab_->y - corner_.y);
}

void Carve::ReleasePiece() { grab_.reset(); }

void Carve::Nudge(int dx, int dy) {
  if (!Floating()) return;
  corner_ = {corner_.x + dx, corner_.y + dy};
  view_.ShowPiece(piece_, corner_);
}

// ---------------------------------------------------------------- from the players

void Carve::Signal(int slot) {
  if (slot != slot_ || !Floating() || CarveTimer_.Running()) return;
  CarveTimer_ = HostTimer(host_, 0, false, [this] { UpdatePiece(); });
}

void Carve::PicturesChanged() {
  LayoutChanged();
  Signal(slot_);
}

/// Keeps the piece up to date, once for everything that one turn of the event loop has changed.
void Carve::UpdatePiece() { CmdDisCarve(); }

}  // namespace kinalyx
