#include "workspace/compare/MultiPicture.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "platform/files/Tr.h"
#include "platform/paint/Blend.h"
#include "workspace/compare/PictureExport.h"
#include "workspace/stage/PlayerPlace.h"

namespace kinalyx {
namespace {

constexpr double kPlainShape = 1.33333;
constexpr double kPictureShape = kPlainShape / 3;  // a third of a 4:3 video: room for one person upright
constexpr int kSmallestSquare = 8;                 // pixels; less is a slip of the hand

}  // namespace

MultiPicture::MultiPicture(IHost& host, Stage& stage, IMultiPictureView& view, ICompareEvents& events)
    : host_(host), stage_(stage), view_(view), events_(events) {}

// ---------------------------------------------------------------- entering and leaving

bool MultiPicture::CanShow() const { return shown_ || stage_.HasVideo(stage_.CurrentWindow); }

void MultiPicture::ToggleStrip() {
  if (shown_) {
    stage_.ComeHome();
  } else if (CanShow()) {
    Enter();
  }
}

void MultiPicture::Enter() {
  events_.GiveWay();
  slot_ = stage_.CurrentWindow;
  stage_.MP(slot_).setExactPictures(true);  // the strip keeps what is shown
  shown_ = true;
  waiting_ = false;
  from_ = last_ = -1;
  MultiFrameMode_ = true;  // what the new layout draws is no picture of the strip
  view_.ShowMultiPicture(true);
  stage_.TakeStage(kMultiFrame, this);
  ChooseMiddle();
  MakeStrip();
  InitialMF();
}

void MultiPicture::StageLost() {
  shown_ = waiting_ = MultiFrameMode_ = false;
  stage_.MP(slot_).setExactPictures(false);
  rebuild_.Stop();
  strip_ = Surface();
  view_.ShowMultiPicture(false);
}

void MultiPicture::VideoClosing(int slot) {
  if (shown_ && slot == slot_) stage_.ComeHome();
}

// ---------------------------------------------------------------- the source

int MultiPicture::SourceLeft() const {
  const Slot& slot = stage_.At(slot_);
  const double middle = SurfacePixels(slot, slot.panel.Width) / 2.0;
  return static_cast<int>(std::lround(middle + part_.left * SurfacePixels(slot, slot.panel.Height))) -
         PlayerCorner(slot).x;
}

int MultiPicture::SourceTop() const {
  const Slot& slot = stage_.At(slot_);
  const double middle = SurfacePixels(slot, slot.panel.Height) / 2.0;
  return static_cast<int>(std::lround(middle + part_.top * SurfacePixels(slot, slot.panel.Height))) -
         PlayerCorner(slot).y;
}

/// A third of the video in its middle, as high as the cell; an upright video gives more of its width.
void MultiPicture::ChooseMiddle() {
  const Slot& slot = stage_.At(slot_);
  const double cell = static_cast<double>(slot.panel.Width) / std::max(1, slot.panel.Height);
  const double shape =
      slot.data.Wide ? 16.0 / 9.0 : static_cast<double>(slot.MP->VideoWidth()) / std::max(1, slot.MP->VideoHeight());
  const double seen = std::min(cell, shape);
  const double width = std::max(seen / 3, std::min(seen, kPictureShape));
  part_ = {-width / 2, -0.5, width, 1.0};
}

void MultiPicture::MakeStrip() {
  const Slot& slot = stage_.At(slot_);
  const int height = SurfacePixels(slot, slot.panel.Height);
  PictureWidth_ = std::max(1, static_cast<int>(part_.width * height));
  PictureHeight_ = std::max(1, static_cast<int>(part_.height * height));
  const double shownWidth = static_cast<double>(PictureWidth_) * kStripPixels / PictureHeight_;  // layout pixels
  PictureCount_ = std::clamp(static_cast<int>(view_.StripWidth() / shownWidth), 1, kMostPictures);
  strip_ = Surface(PictureWidth_ * PictureCount_, PictureHeight_);
  source_ = {SourceLeft(), SourceTop()};
}

void MultiPicture::setSkipBox(const std::string& text) {
  const int skip = std::max(1, Val(text));
  if (skip == skip_) return;
  skip_ = skip;
  if (shown_) InitialMF();
}

void MultiPicture::LeaveStrip() {
  if (shown_) stage_.ComeHome();
}

void MultiPicture::CarveNew() {
  if (!shown_) return;
  host_.Message(
      MessageKind::Information, "",
      Tr("\"New Carve\" Active. Click on the video to draw a square around the area that you want to create a "
         "MultiPicture."));
  if (!shown_) return;
  events_.TakeSquareTool();
  waiting_ = true;  // not before the tool is in hand: taking up a tool ends any wait
}

bool MultiPicture::TakeSquare(int slot, POINTAPI corner, POINTAPI opposite) {
  if (!waiting_ || slot != slot_) return false;
  waiting_ = false;
  const int width = std::abs(opposite.x - corner.x);
  const int height = std::abs(opposite.y - corner.y);
  if (width < kSmallestSquare || height < kSmallestSquare) return true;
  const Slot& source = stage_.At(slot_);
  const POINTAPI player = PlayerCorner(source);
  const double cellWidth = SurfacePixels(source, source.panel.Width);
  const double cellHeight = SurfacePixels(source, source.panel.Height);
  part_ = {(player.x + std::min(corner.x, opposite.x) - cellWidth / 2) / cellHeight,
           (player.y + std::min(corner.y, opposite.y) - cellHeight / 2) / cellHeight, width / cellHeight,
           height / cellHeight};
  // Not before the square itself has gone from the picture.
  rebuild_ = HostTimer(host_, 0, false, [this] { Rebuild(); });
  return true;
}

// ---------------------------------------------------------------- the strip

void MultiPicture::Show(int position) {
  stage_.MP(slot_).Play(position);
  MFNextFrame();
}

void MultiPicture::InitialMF() {
  if (!shown_ || !stage_.HasVideo(slot_)) return;
  AVIControl& player = stage_.MP(slot_);
  player.StopPlay();
  MultiFrameMode_ = true;
  strip_.Clear(0);
  // The strip left the video on its own last picture: made anew, it is that of the same moment.
  const int p = from_ >= 0 && player.Position() == last_ ? from_ : player.Position();
  const int end = player.VideoLength() - 1;
  const int reach = PictureCount_ * skip_;
  if (p >= reach) {
    for (int f = p - reach; f <= p; f += skip_) Show(f);
  } else if (end - p <= reach) {
    // A video shorter than the strip leaves its first pictures black.
    for (int f = end - reach; f <= end; f += skip_)
      if (f >= 0) Show(f);
  } else {
    for (int n = 0; n < PictureCount_; ++n) Show(n * skip_);
  }
  from_ = p;
  MultiFrameMode_ = false;
  view_.PresentStrip(strip_, PictureCount_);
}

void MultiPicture::MFNextFrame() {
  ShiftLeft(strip_, PictureWidth_);
  last_ = stage_.MP(slot_).Position();
  TakeFrame();
}

/// The current frame becomes the last picture of the strip.
void MultiPicture::TakeFrame() {
  const int column = (PictureCount_ - 1) * PictureWidth_;
  for (int y = 0; y < strip_.Height(); ++y)
    std::fill_n(strip_.Row(y) + static_cast<std::ptrdiff_t>(column) * 4, PictureWidth_ * 4, std::uint8_t{0});
  CopyPart(stage_.MP(slot_).Picture(), SourceLeft(), SourceTop(), PictureWidth_, PictureHeight_, strip_, column, 0);
  if (!MultiFrameMode_) view_.PresentStrip(strip_, PictureCount_);
}

Outcome MultiPicture::SavePicture(const std::string& path) const { return ExportPicture(strip_, path); }

// ---------------------------------------------------------------- from outside

void MultiPicture::Signal(int slot) {
  if (!shown_ || MultiFrameMode_ || slot != slot_) return;
  const int position = stage_.MP(slot_).Position();
  if (source_ != POINTAPI{SourceLeft(), SourceTop()}) {
    PicturesChanged();
  } else if (position == last_) {
    TakeFrame();  // something was drawn on it
  } else {
    from_ = -1;  // from now on it is the strip of where the video has come to
    MFNextFrame();
  }
}

void MultiPicture::PicturesChanged() {
  if (!shown_ || rebuild_.Running()) return;
  rebuild_ = HostTimer(host_, 0, false, [this] { Rebuild(); });
}

void MultiPicture::Rebuild() {
  rebuild_.Stop();
  const int width = PictureWidth_;
  const int height = PictureHeight_;
  const int count = PictureCount_;
  const bool playing = stage_.MP(slot_).IsPlaying();
  Surface before = std::move(strip_);
  MakeStrip();
  if (!playing) return InitialMF();
  // A running video fills its strip by itself; only one of another size begins empty.
  if (width == PictureWidth_ && height == PictureHeight_ && count == PictureCount_) strip_ = std::move(before);
}

}  // namespace kinalyx
