#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "video/Strobe.h"

namespace kinalyx {
namespace {

constexpr int kAttackDistance = 20;
/// Milliseconds that a layer stands for each frame of the step.
constexpr int kLayerMs = 50;

}  // namespace

// ---------------------------------------------------------------- one strobe

void AVIControl::Strobe::Begin(Kind kind, int start, int end, int step) {
  kind_ = kind;
  frame_ = start;
  end_ = end > start ? end : control_.FrameCount() - 1;
  step_ = std::max(1, step);
  running_ = true;
  if (control_.surface_.Empty() || control_.FormatHeader_.bitCount != 24 || !Prepare()) return End();
  control_.services_.scheduler.Add(*this, control_.services_.host.timeGetTime() + Wait());
}

void AVIControl::Strobe::End() {
  control_.services_.scheduler.Remove(*this);
  running_ = false;
  layers_.reset();
  references_ = {};
  picture_ = {};
  control_.surface_.ForgetComposed();
  control_.Post(PlayerNews::Kind::StrobeEnded, 0);
}

std::int64_t AVIControl::Strobe::Tick(std::int64_t) {
  if (!AddLayer()) {
    End();
    return 0;
  }
  control_.SoftenFrameBuffer();
  control_.ShowFrameBuffer();
  return control_.services_.host.timeGetTime() + Wait();
}

/// Takes the reference pictures and the start picture; false when one cannot be had.
bool AVIControl::Strobe::Prepare() {
  const int start = frame_;
  if (kind_ == Kind::Scene) {
    references_.resize(1);
    if (!control_.CopyFieldOf(control_.CurrentRawFrame_, references_[0])) return false;
    layers_.emplace(Shape());
  } else {
    references_.resize(4);
    for (int i = 1; i <= 4; ++i) {
      const int frame = static_cast<int>(std::nearbyint(i * 0.24 * control_.FrameCount()));
      if (!control_.CopyFieldOf(std::min(frame, control_.FrameCount() - 1),
                                references_[static_cast<std::size_t>(i - 1)]))
        return false;
    }
  }
  const int first = kind_ == Kind::Scene ? start : control_.CurrentRawFrame_;
  if (!control_.CopyFieldOf(first, control_.FrameBuffer_)) return false;
  control_.CurrentRawFrame_ = start;
  return true;
}

std::int64_t AVIControl::Strobe::Wait() const { return kind_ == Kind::Scene ? std::int64_t{step_} * kLayerMs : 0; }

RowShape AVIControl::Strobe::Shape() const {
  return {ScanLineBytes(control_.FormatHeader_.width, control_.FormatHeader_.bitCount), control_.FormatHeader_.height};
}

/// False when the strobe is over.
bool AVIControl::Strobe::AddLayer() {
  if (frame_ > end_ || std::int64_t{frame_} + step_ >= end_) return false;
  frame_ += step_;
  control_.CurrentRawFrame_ += step_;
  const bool field = control_.CurrentField_;
  if (!control_.CopyFieldOf(control_.CurrentRawFrame_, picture_)) return false;
  // A control that has not softened anything yet shows its first picture as it is.
  if (!control_.softened_) return true;
  if (kind_ == Kind::Scene) {
    layers_->Add(references_[0].data(), picture_.data(), field, control_.FrameBuffer_.data());
  } else {
    AddAgainstBackground(Shape(),
                         {references_[0].data(), references_[1].data(), references_[2].data(), references_[3].data()},
                         picture_.data(), field, control_.FrameBuffer_.data());
  }
  return true;
}

// ---------------------------------------------------------------- fields

/// Copies the current field of a frame into a block of the frames' size; its other rows stay.
bool AVIControl::CopyFieldOf(int frame, std::vector<std::uint8_t>& target) {
  const FrameRows rows = VideoStream_->Frame(frame, FormatHeader_.bitCount);
  if (!rows || rows.width != FormatHeader_.width || rows.height != FormatHeader_.height) return false;
  target.resize(static_cast<std::size_t>(FormatHeader_.imageSize));
  CopyField(rows.bits, rows.rowBytes, rows.height, CurrentField_, target.data());
  return true;
}

/// The same, softened.
bool AVIControl::CopySoftFieldOf(int frame, std::vector<std::uint8_t>& target) {
  if (FormatHeader_.bitCount != 24) return CopyFieldOf(frame, target);
  if (VideoStream_->Field(frame, CurrentField_, target)) {
    SoftenField(target.data(), ScanLineBytes(FormatHeader_.width, 24), FormatHeader_.height, CurrentField_);
    softened_ = true;
    return true;
  }
  const FrameRows rows = VideoStream_->Frame(frame, FormatHeader_.bitCount);
  if (!rows || rows.width != FormatHeader_.width || rows.height != FormatHeader_.height) return false;
  target.resize(static_cast<std::size_t>(FormatHeader_.imageSize));
  CopySoftField(rows.bits, rows.rowBytes, rows.height, CurrentField_, target.data());
  softened_ = true;
  return true;
}

void AVIControl::SoftenFrameBuffer() {
  if (FormatHeader_.bitCount != 24) return;
  SoftenField(FrameBuffer_.data(), ScanLineBytes(FormatHeader_.width, 24), FormatHeader_.height, CurrentField_);
  softened_ = true;
}

void AVIControl::ComposeField(const std::vector<std::uint8_t>& field) {
  const int bits = FormatHeader_.bitCount;
  surface_.Compose(
      {field.data(), FormatHeader_.width, FormatHeader_.height, ScanLineBytes(FormatHeader_.width, bits), bits, true},
      properties_.FlipHorizontal, services_.scratch);
}

/// Shows the buffer, which may hold what no position has.
void AVIControl::ShowFrameBuffer() {
  surface_.ForgetComposed();
  ComposeField(FrameBuffer_);
  PresentFrame();
}

void AVIControl::AttackBits() {
  if (!VideoStream_ || surface_.Empty() || !CopyFieldOf(CurrentRawFrame_ + kAttackDistance, FrameBuffer_)) return;
  const PlayerNews::Hold hold(News());
  SoftenFrameBuffer();
  ShowFrameBuffer();
}

void AVIControl::Enhance(double HighAmount, double LowAmount) {
  if (!VideoStream_ || surface_.Empty()) return;
  const PlayerNews::Hold hold(News());
  if (FormatHeader_.bitCount == 24 && CopyFieldOf(CurrentRawFrame_, FrameBuffer_)) {
    const int rowBytes = ScanLineBytes(FormatHeader_.width, 24);
    if (softened_)
      EnhanceField(FrameBuffer_.data(), rowBytes, FormatHeader_.height, CurrentField_, HighAmount, LowAmount);
    SoftenFrameBuffer();
    ShowFrameBuffer();
  }
  if (FrameBuffer_.empty()) return;
  std::fill(FrameBuffer_.begin() + ScanLineBytes(FormatHeader_.width, FormatHeader_.bitCount), FrameBuffer_.end(), 0);
}

// ---------------------------------------------------------------- strobe

bool AVIControl::StrobeRunning() const { return strobe_->Running(); }

/// Ends whatever moves; false without a video.
bool AVIControl::ReadyForStrobe() {
  StopStrobe();
  StopPlay();
  return VideoStream_ != nullptr;
}

void AVIControl::Strobeframes(int Start, int End, int Step) {
  const PlayerNews::Hold hold(News());
  if (ReadyForStrobe()) strobe_->Begin(Strobe::Kind::Scene, Start, End, Step);
}

void AVIControl::Strobeframes2(int Start, int End, int Step) {
  const PlayerNews::Hold hold(News());
  if (ReadyForStrobe()) strobe_->Begin(Strobe::Kind::Background, Start, End, Step);
}

void AVIControl::StopStrobe() {
  const PlayerNews::Hold hold(News());
  if (StrobeRunning()) strobe_->End();
}

}  // namespace kinalyx
